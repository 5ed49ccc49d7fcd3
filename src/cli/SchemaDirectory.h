// Finds the directory of the schema files.
#ifndef CLI_SCHEMADIRECTORY_H_
#define CLI_SCHEMADIRECTORY_H_

#include <optional>
#include <stdexcept>
#include <string>

namespace cli {

// Tells why there is no schema directory, and how to name one.
class SchemaDirectoryMissing : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The directory that the user named, or else the one installed with the running tool, or else the
// one of the source tree that the tool was built from.
// Throws SchemaDirectoryMissing when the one named has no schemas, or none was found.
std::string findSchemaDirectory(const std::optional<std::string>& named);

}  // namespace cli

#endif  // CLI_SCHEMADIRECTORY_H_

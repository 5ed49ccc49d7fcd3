// The shipped schemas as nobody has built them in.
#ifndef TESTS_SUPPORT_SCHEMACOPY_H_
#define TESTS_SUPPORT_SCHEMACOPY_H_

#include <filesystem>
#include <string>

#include "support/TempDirectory.h"

namespace test {

// A folder of copies, each with an empty line behind: they say what the originals say, but have to
// be compiled.
class SchemaCopy {
 public:
  SchemaCopy() {
    for (const auto& file : std::filesystem::directory_iterator(AS_SCHEMA_DIR)) {
      directory_.write(file.path().filename().string(), contentOf(file.path().string()) + "\n");
    }
  }

  std::string path() const { return directory_.path(); }

 private:
  TempDirectory directory_;
};

}  // namespace test

#endif  // TESTS_SUPPORT_SCHEMACOPY_H_

#include "cli/SchemaDirectory.h"

#include <filesystem>
#include <system_error>

namespace cli {

namespace {

namespace fs = std::filesystem;

// The schema that every use of the tool needs; its presence tells a schema directory.
constexpr char dictionarySchema[] = "vorcobol.xsd";

bool holdsSchemas(const fs::path& directory) {
  std::error_code ignored;
  return fs::is_regular_file(directory / dictionarySchema, ignored);
}

// Empty when the system does not tell.
fs::path directoryOfThisTool() {
  std::error_code ignored;
  return fs::read_symlink("/proc/self/exe", ignored).parent_path();
}

std::string checked(const std::string& named) {
  std::error_code ignored;
  if (!fs::exists(named, ignored)) {
    throw SchemaDirectoryMissing("the schema directory '" + named + "' does not exist");
  }
  if (!fs::is_directory(named, ignored)) {
    throw SchemaDirectoryMissing("the schema directory '" + named + "' is not a directory");
  }
  if (!holdsSchemas(named)) {
    throw SchemaDirectoryMissing("the schema directory '" + named + "' holds no " +
                                 dictionarySchema);
  }
  return named;
}

}  // namespace

std::string findSchemaDirectory(const std::optional<std::string>& named) {
  if (named) return checked(*named);
  const fs::path here = directoryOfThisTool();
  const fs::path installed = (here / AS_SCHEMA_DIR_FROM_BIN).lexically_normal();
  const fs::path built = (here / AS_SCHEMA_DIR_FROM_BUILD).lexically_normal();
  for (const fs::path& directory : {installed, built}) {
    if (holdsSchemas(directory)) return directory.string();
  }
  throw SchemaDirectoryMissing("the schema directory is missing: there is no " +
                               (installed / dictionarySchema).string() +
                               "; name the directory that holds it with --schemas DIR");
}

}  // namespace cli

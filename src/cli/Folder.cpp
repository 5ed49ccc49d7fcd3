#include "cli/Folder.h"

#include <system_error>

#include "as/toolkit/Files.h"

namespace cli {

void makeFolder(const std::filesystem::path& folder) {
  if (folder.empty()) return;
  std::error_code failure;
  std::filesystem::create_directories(folder, failure);
  if (!failure) return;
  throw as::toolkit::FileError("the folder " + folder.string() +
                               " cannot be made: " + failure.message());
}

}  // namespace cli

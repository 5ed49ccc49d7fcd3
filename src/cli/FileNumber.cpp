#include "cli/FileNumber.h"

#include <sys/stat.h>

namespace cli {

std::optional<FileNumber> fileNumberOf(const std::string& file) {
  struct stat state = {};
  if (::stat(file.c_str(), &state) != 0 || !S_ISREG(state.st_mode)) return std::nullopt;
  return FileNumber{state.st_dev, state.st_ino};
}

}  // namespace cli

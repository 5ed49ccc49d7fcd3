// What tells files apart, whatever they are called.
#ifndef CLI_FILENUMBER_H_
#define CLI_FILENUMBER_H_

#include <sys/types.h>

#include <optional>
#include <string>
#include <utility>

namespace cli {

using FileNumber = std::pair<dev_t, ino_t>;

// That of the file; nothing for what is no regular file.
std::optional<FileNumber> fileNumberOf(const std::string& file);

}  // namespace cli

#endif  // CLI_FILENUMBER_H_

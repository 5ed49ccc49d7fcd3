// The folders that several files are written to.
#ifndef CLI_FOLDER_H_
#define CLI_FOLDER_H_

#include <filesystem>

namespace cli {

// Makes a folder and those that it stands in, as far as they are missing. Throws toolkit::FileError
// with the reason when it cannot.
void makeFolder(const std::filesystem::path& folder);

}  // namespace cli

#endif  // CLI_FOLDER_H_

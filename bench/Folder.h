// A folder of a benchmark's own, gone with the object.
#ifndef BENCH_FOLDER_H_
#define BENCH_FOLDER_H_

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>

namespace bench {

class Folder {
 public:
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "bench-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("mkdtemp: " + name);
    path_ = name;
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::string fileNamed(const std::string& name) const { return (path_ / name).string(); }

  // Writes a file; answers its path.
  std::string write(const std::string& name, const std::string& text) const {
    std::ofstream(fileNamed(name)) << text;
    return fileNamed(name);
  }

 private:
  std::filesystem::path path_;
};

}  // namespace bench

#endif  // BENCH_FOLDER_H_

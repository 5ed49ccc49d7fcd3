// Files of tests, and a directory of a test's own, gone with the object.
#ifndef TESTS_SUPPORT_TEMPDIRECTORY_H_
#define TESTS_SUPPORT_TEMPDIRECTORY_H_

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace test {

inline std::string contentOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

class TempDirectory {
 public:
  TempDirectory() {
    std::string pattern = testing::TempDir() + "agentservices-XXXXXX";
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp: " + pattern);
    path_ = pattern;
  }
  ~TempDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempDirectory(const TempDirectory&) = delete;
  TempDirectory& operator=(const TempDirectory&) = delete;

  // The path, without a separator at the end.
  std::string path() const { return path_.string(); }

  // Writes a file into the directory, or into one below it, and returns its path.
  std::string write(const std::string& name, const std::string& content) const {
    const std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file.string();
  }

 private:
  std::filesystem::path path_;
};

}  // namespace test

#endif  // TESTS_SUPPORT_TEMPDIRECTORY_H_

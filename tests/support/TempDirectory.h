// Directories of a test's own, gone with the object, and the files in them.
#ifndef TESTS_SUPPORT_TEMPDIRECTORY_H_
#define TESTS_SUPPORT_TEMPDIRECTORY_H_

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>

namespace test {

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

  // Writes a file into the directory, or into a directory below if its name says so, and returns
  // its path.
  std::string write(const std::string& name, const std::string& content) const {
    const std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file.string();
  }

 private:
  std::filesystem::path path_;
};

// The current directory as long as the object lives.
class CurrentDirectory {
 public:
  CurrentDirectory() { std::filesystem::current_path(directory_.path()); }
  ~CurrentDirectory() {
    std::error_code ignored;
    std::filesystem::current_path(old_, ignored);
  }
  CurrentDirectory(const CurrentDirectory&) = delete;
  CurrentDirectory& operator=(const CurrentDirectory&) = delete;

  // In the one spelling that a program is told of it.
  std::string path() const { return std::filesystem::current_path().string(); }

  std::string write(const std::string& name, const std::string& content) const {
    return directory_.write(name, content);
  }

 private:
  const std::filesystem::path old_ = std::filesystem::current_path();
  const TempDirectory directory_;
};

inline std::string contentOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace test

#endif  // TESTS_SUPPORT_TEMPDIRECTORY_H_

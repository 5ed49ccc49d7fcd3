// Searches folders.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

#include "as/toolkit/Files.h"

namespace as::toolkit {

namespace {

namespace fs = std::filesystem;

class Search {
 public:
  Search(fs::path folder, const std::vector<std::string>& extensions)
      : folder_(std::move(folder)), extensions_(extensions) {}

  FoundFiles run() {
    waiting_.push_back(folder_);
    while (!waiting_.empty()) {
      const fs::path next = std::move(waiting_.back());
      waiting_.pop_back();
      look(next);
    }
    std::sort(found_.files.begin(), found_.files.end());
    std::sort(found_.refusals.begin(), found_.refusals.end(),
              [](const Refusal& left, const Refusal& right) { return left.file < right.file; });
    return std::move(found_);
  }

 private:
  void look(const fs::path& folder) {
    std::error_code failure;
    fs::directory_iterator next(folder, failure);
    for (; !failure && next != fs::directory_iterator(); next.increment(failure)) {
      std::error_code ignored;
      if (next->symlink_status(ignored).type() == fs::file_type::directory) {
        waiting_.push_back(next->path());
      } else if (isWanted(next->path()) && next->is_regular_file(ignored)) {
        found_.files.push_back(next->path().lexically_relative(folder_).string());
      }
    }
    if (failure) {
      found_.refusals.push_back(
          {folder.string(), 0, 0, "it cannot be read: " + failure.message(), ""});
    }
  }

  bool isWanted(const fs::path& file) const {
    std::string extension = file.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return std::find(extensions_.begin(), extensions_.end(), extension) != extensions_.end();
  }

  fs::path folder_;
  const std::vector<std::string>& extensions_;
  std::vector<fs::path> waiting_;
  FoundFiles found_;
};

}  // namespace

FoundFiles filesIn(const std::string& folder, const std::vector<std::string>& extensions) {
  return Search(folder, extensions).run();
}

}  // namespace as::toolkit

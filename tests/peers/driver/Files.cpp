#include "Files.h"

#include <fnmatch.h>

#include <algorithm>
#include <array>
#include <fstream>

namespace peers {

namespace fs = std::filesystem;

namespace {

constexpr std::array<const char*, 4> xmlNames = {"*.xml", "*.xsd", "*.xsl", "*.svg"};

template <class Patterns>
bool matchesOne(const fs::path& file, const Patterns& patterns) {
  const std::string name = file.filename();
  return std::any_of(patterns.begin(), patterns.end(), [&](const std::string& pattern) {
    return ::fnmatch(pattern.c_str(), name.c_str(), 0) == 0;
  });
}

bool startsAsXml(const fs::path& file) {
  std::string start(3, '\0');
  std::ifstream(file, std::ios::binary).read(start.data(), 3);
  const auto startsWith = [&](const std::string& bytes) {
    return start.compare(0, bytes.size(), bytes) == 0;
  };
  return startsWith("<") || startsWith(std::string("\0<", 2)) || startsWith("\xEF\xBB\xBF") ||
         startsWith("\xFE\xFF") || startsWith("\xFF\xFE");
}

}  // namespace

std::vector<fs::path> filesBelow(const std::vector<fs::path>& roots,
                                 const std::vector<std::string>& patterns) {
  std::vector<fs::path> files;
  const auto consider = [&](const fs::path& file) {
    // Not by a link, which may lead round in a circle, nor anything that blocks when it is opened.
    if (!fs::is_regular_file(fs::symlink_status(file))) return;
    const bool wanted = patterns.empty() ? matchesOne(file, xmlNames) || startsAsXml(file)
                                         : matchesOne(file, patterns);
    if (wanted) files.push_back(file);
  };
  for (const fs::path& root : roots) {
    if (!fs::is_directory(root)) {
      consider(root);
      continue;
    }
    for (const auto& entry : fs::recursive_directory_iterator(root)) consider(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace peers

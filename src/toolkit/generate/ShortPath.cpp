#include "toolkit/generate/ShortPath.h"

#include <algorithm>
#include <cstddef>

#include "toolkit/text/Utf8Text.h"

namespace as::toolkit::gen {

namespace {

// COBOL's names have 30 characters, and stand in 49 levels: no path of its has half as many bytes.
constexpr std::size_t longestName = 200;
constexpr std::size_t longestHalf = 2000;
constexpr std::string_view leftOut = "...";

std::size_t lengthOf(std::string_view name) { return std::min(name.size(), longestName) + 1; }

}  // namespace

std::string shortName(std::string_view name) {
  if (name.size() <= longestName) return std::string(name);
  return std::string(beginningOf(name, longestName)).append(leftOut);
}

std::string shortPath(const std::vector<std::string_view>& names) {
  std::size_t front = 0;
  std::size_t back = names.size();
  for (std::size_t length = 0; front < back; ++front) {
    length += lengthOf(names[front]);
    if (length > longestHalf) break;
  }
  for (std::size_t length = 0; front < back; --back) {
    length += lengthOf(names[back - 1]);
    if (length > longestHalf) break;
  }
  std::string path;
  const auto add = [&path](std::string_view part) {
    if (!path.empty()) path += '.';
    path += part;
  };
  for (std::size_t i = 0; i < front; ++i) add(shortName(names[i]));
  if (front < back) add(leftOut);
  for (std::size_t i = back; i < names.size(); ++i) add(shortName(names[i]));
  return path;
}

}  // namespace as::toolkit::gen

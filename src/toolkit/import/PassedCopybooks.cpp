#include "toolkit/import/PassedCopybooks.h"

#include <algorithm>

namespace as::toolkit {

namespace {

bool isInFront(const SourcePlace& one, const SourcePlace& other) {
  return one.line != other.line ? one.line < other.line : one.column < other.column;
}

}  // namespace

bool PassedCopybooks::isOneBetween(const SourcePlace& begin, const SourcePlace& end) {
  const std::vector<SourcePlace>& all = source_.passedCopybooks();
  for (; known_ < all.size(); ++known_) {
    std::vector<SourcePlace>& places = byFile_[all[known_].file];
    // Nearly always behind all others.
    places.insert(std::upper_bound(places.begin(), places.end(), all[known_], isInFront),
                  all[known_]);
  }
  const auto file = byFile_.find(begin.file);
  if (file == byFile_.end()) return false;
  const auto first = std::upper_bound(file->second.begin(), file->second.end(), begin, isInFront);
  if (first == file->second.end()) return false;
  return end.line == 0 || end.file != begin.file || isInFront(*first, end);
}

}  // namespace as::toolkit

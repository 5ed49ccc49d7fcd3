#include "toolkit/import/OpenRecord.h"

#include <utility>

namespace as::toolkit {

void OpenRecord::begin(Index record) {
  next_ = record;
  byName_.clear();
  known_.clear();
}

OpenRecord::Found OpenRecord::find(const std::vector<NameReference::Name>& names, Index end,
                                   const SourcePlace& place) {
  if (names.empty()) return {};
  for (; next_ < end; ++next_) {
    const Index name = program_.entries[static_cast<std::size_t>(next_)].nameId;
    if (name != none) byName_[name].push_back(next_);
  }
  const auto wanted = byName_.find(names.front().id);
  if (wanted == byName_.end()) return {};
  const std::vector<Index>& entries = wanted->second;
  if (names.size() == 1) return {entries.front(), entries.back()};
  std::vector<Index> key;
  key.reserve(names.size());
  for (const NameReference::Name& name : names) key.push_back(name.id);
  Known& known = known_[std::move(key)];
  if (!budget_.addSearches(entries.size() - known.lookedAt, place)) return {};
  for (; known.lookedAt < entries.size(); ++known.lookedAt) {
    const Index entry = entries[known.lookedAt];
    if (!finder_.isQualified(entry, names)) continue;
    if (known.found.first == none) known.found.first = entry;
    known.found.last = entry;
  }
  return known.found;
}

}  // namespace as::toolkit

#include "toolkit/import/OpenRecord.h"

#include <algorithm>
#include <utility>

namespace as::toolkit {

void OpenRecord::begin(Index record) {
  next_ = record;
  byName_.clear();
  known_.clear();
}

const OpenRecord::Entries* OpenRecord::entriesOf(Index nameId) const {
  const auto found = byName_.find(nameId);
  return found == byName_.end() ? nullptr : &found->second;
}

bool OpenRecord::isBelow(Index entry, Index group) const {
  while (entry > group) entry = program_.entries[static_cast<std::size_t>(entry)].parent;
  return entry == group;
}

OpenRecord::Found OpenRecord::find(const std::vector<NameReference::Name>& names, Index end,
                                   const SourcePlace& place) {
  for (; next_ < end; ++next_) {
    const Index name = program_.entries[static_cast<std::size_t>(next_)].nameId;
    if (name != none) byName_[name].push_back(next_);
  }
  const Entries* const wanted = names.empty() ? nullptr : entriesOf(names.front().id);
  if (wanted == nullptr) return {};
  if (names.size() == 1) return {wanted->front(), wanted->back()};
  const Entries* rarest = wanted;
  std::vector<Index> key;
  key.reserve(names.size());
  for (const NameReference::Name& name : names) {
    const Entries* const entries = entriesOf(name.id);
    if (entries == nullptr) return {};
    if (entries->size() < rarest->size()) rarest = entries;
    key.push_back(name.id);
  }
  Known& known = known_[std::move(key)];
  const std::size_t steps = lookAt(names, *wanted, *rarest, known);
  return budget_.addSearches(steps, place) ? known.found : Found();
}

// Looks at what was not looked at yet, one by one or group by group: what is quicker. Returns how
// much that was.
std::size_t OpenRecord::lookAt(const std::vector<NameReference::Name>& names, const Entries& wanted,
                               const Entries& groups, Known& known) const {
  const std::size_t first = std::exchange(known.lookedAt, wanted.size());
  std::size_t steps = 0;
  const auto take = [&](Index entry) {
    ++steps;
    if (!finder_.isQualified(entry, names)) return;
    Found& found = known.found;
    if (found.first == none || entry < found.first) found.first = entry;
    found.last = std::max(found.last, entry);
  };
  const auto from = wanted.begin() + static_cast<std::ptrdiff_t>(first);
  if (wanted.size() - first <= groups.size()) {
    std::for_each(from, wanted.end(), take);
    return steps;
  }
  for (const Index group : groups) {
    ++steps;
    // What stands in a group stands together.
    for (auto next = std::upper_bound(from, wanted.end(), group);
         next != wanted.end() && isBelow(*next, group); ++next) {
      take(*next);
    }
  }
  return steps;
}

}  // namespace as::toolkit

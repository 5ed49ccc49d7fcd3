#include "toolkit/import/EntryFinder.h"

#include <algorithm>
#include <cstddef>

namespace as::toolkit {

namespace {

const DataEntry& at(const CobolProgram& program, Index entry) {
  return program.entries[static_cast<std::size_t>(entry)];
}

}  // namespace

void EntryFinder::add(Index entry) {
  const Index name = at(program_, entry).nameId;
  if (name != none) byName_[name].push_back(entry);
}

const EntryFinder::Entries* EntryFinder::entriesOf(Index nameId) const {
  const auto found = byName_.find(nameId);
  return found == byName_.end() ? nullptr : &found->second;
}

bool EntryFinder::isQualified(Index entry, const std::vector<NameReference::Name>& names) const {
  std::size_t next = 1;
  for (Index group = at(program_, entry).parent; group != none && next < names.size();
       group = at(program_, group).parent) {
    if (at(program_, group).nameId == names[next].id) ++next;
  }
  return next == names.size();
}

EntryFinder::Found EntryFinder::find(const std::vector<NameReference::Name>& names, Range range) {
  std::vector<Index> key = {range.begin, range.end};
  for (const NameReference::Name& name : names) key.push_back(name.id);
  const auto known = known_.find(key);
  if (known != known_.end()) return known->second;
  const Found found = search(names, range);
  known_.emplace(std::move(key), found);
  return found;
}

EntryFinder::Found EntryFinder::search(const std::vector<NameReference::Name>& names,
                                       Range range) const {
  Found found;
  const Entries* const wanted = names.empty() ? nullptr : entriesOf(names.front().id);
  if (wanted == nullptr) return found;
  // True when enough is known.
  const auto take = [&found](Index entry) {
    found.isUnclear = found.entry != none && found.entry != entry;
    if (found.entry == none) found.entry = entry;
    return found.isUnclear;
  };
  // Takes those between `begin` and `end` that are qualified so.
  const auto takeFrom = [&](Index begin, Index end) {
    for (auto next = std::lower_bound(wanted->begin(), wanted->end(), begin);
         next != wanted->end() && *next < end; ++next) {
      if (isQualified(*next, names) && take(*next)) return true;
    }
    return false;
  };
  const Entries* rarest = wanted;
  for (const NameReference::Name& name : names) {
    const Entries* const entries = entriesOf(name.id);
    if (entries == nullptr) return found;
    if (entries->size() < rarest->size()) rarest = entries;
  }
  if (rarest == wanted) {
    takeFrom(range.begin, range.end);
    return found;
  }
  for (auto group = std::lower_bound(rarest->begin(), rarest->end(), range.begin);
       group != rarest->end() && *group < range.end; ++group) {
    if (takeFrom(*group, std::min(at(program_, *group).end, range.end))) break;
  }
  return found;
}

}  // namespace as::toolkit

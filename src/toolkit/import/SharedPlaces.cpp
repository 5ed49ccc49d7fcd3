#include "toolkit/import/SharedPlaces.h"

#include <string>
#include <unordered_map>
#include <vector>

#include "toolkit/import/EntryNames.h"
#include "toolkit/import/RecordLayout.h"

namespace as::toolkit {

namespace {

using Kind = NameReference::Kind;

}  // namespace

void SharedPlaces::findOriginals(Index record, EntryProblems& problems) {
  // By group and name; the last one of a name is meant. The last one that is no redefinition by
  // group alone.
  std::map<std::pair<Index, Index>, Index> known;
  std::unordered_map<Index, Index> lastOriginal;
  for (Index i = record; i < size(); ++i) {
    DataEntry& entry = at(i);
    if (entry.parent == none && !entry.isRedefinition) continue;
    const NameReference* const reference = referenceOf(program_, entry, Kind::redefines);
    const auto tell = [&](EntryRule rule, const std::string& text) {
      problems.tell(rule, reference->place, text);
    };
    if (entry.isRedefinition && reference != nullptr) {
      const Index name = reference->names.front().id;
      Index original = none;
      Index last = none;
      if (entry.parent == none) {
        const auto found = recordsByName_.find({entry.section, name});
        original = found == recordsByName_.end() ? none : found->second;
        last = lastOriginal_;
      } else {
        const auto found = known.find({entry.parent, name});
        original = found == known.end() ? none : found->second;
        last = lastOriginal.emplace(entry.parent, none).first->second;
      }
      if (original == none) {
        tell(EntryRule::lostRedefined, reference->names.front().text + " does not stand before " +
                                           entry.name + " on its level");
      } else {
        if (at(original).isRedefinition) original = at(original).original;
        if (original != none && last != none && original != last) {
          tell(EntryRule::farRedefined, entry.name + " redefines " + at(original).name + ", but " +
                                            at(last).name + " stands between them");
        }
        entry.original = original;
      }
    }
    if (entry.parent == none) continue;
    if (entry.nameId != none) known[{entry.parent, entry.nameId}] = i;
    if (!entry.isRedefinition && !entry.isRenaming) lastOriginal[entry.parent] = i;
  }
}

// RENAMES entries are what they rename, or texts that run from one item through another.
void SharedPlaces::findRenamed(Index record, EntryProblems& problems) {
  for (Index i = at(record).end - 1; i > record && at(i).isRenaming; --i) {
    DataEntry& entry = at(i);
    const NameReference* const reference = referenceOf(program_, entry, Kind::renames);
    if (reference == nullptr) continue;
    const auto find = [&](const std::vector<NameReference::Name>& names) {
      const Index found = finder_.find(names, {record, at(record).end}).entry;
      if (found != none && !at(found).isRenaming) return found;
      problems.tell(EntryRule::lostRenamed, reference->place,
                    textOf(names) + " is no item of the record of " + entry.name);
      return none;
    };
    const Index first = find(reference->names);
    const Index last = reference->through.empty() ? first : find(reference->through);
    if (first == none || last == none) continue;
    const DataEntry& from = at(first);
    const DataEntry& to = at(last);
    const std::int64_t length = to.offset + extentOf(to) - from.offset;
    if (!from.isPlaced || !to.isPlaced) continue;
    if (length < 0 || last < first) {
      problems.tell(
          EntryRule::lostRenamed, reference->place,
          to.name + " ends in front of " + from.name + ", where " + entry.name + " starts");
      continue;
    }
    const bool isOneItem = reference->through.empty() && !from.hasMembers && !from.isTable();
    entry.element = isOneItem ? from.element : ItemElement::alphanumeric;
    if (isOneItem) {
      entry.picture = from.picture;
      entry.usage = from.usage;
      entry.sign = from.sign;
      entry.isUnsigned = from.isUnsigned;
      entry.isJustified = from.isJustified;
      entry.isBlankWhenZero = from.isBlankWhenZero;
    } else {
      entry.usage = Usage::display;
      entry.picture = none;
    }
    entry.isSync = false;
    entry.original = first;
    entry.lastRenamed = last;
    entry.offset = from.offset;
    entry.length = static_cast<int>(length);
    entry.isPlaced = true;
  }
}

void SharedPlaces::keep(Index record) {
  const DataEntry& entry = at(record);
  if (!entry.isRedefinition) lastOriginal_ = record;
  if (entry.nameId != none) recordsByName_[{entry.section, entry.nameId}] = record;
}

}  // namespace as::toolkit

#include "toolkit/diff/ItemChanges.h"

#include <string_view>
#include <utility>

#include "toolkit/diff/ItemTraits.h"

namespace as::toolkit {

namespace {

// Which items callers see: those of files, of the linkage section and of what entry points hand
// over from elsewhere, and all of a program that nobody can call, a copybook.
std::vector<bool> seenItems(const DictionaryFacts& facts) {
  std::vector<bool> seen(facts.items().size(), facts.entryPoints().empty());
  for (const SectionFacts& section : facts.sections()) {
    if (section.kind == SectionFacts::Kind::workingStorage) continue;
    for (const ItemNumber record : section.records) seen[record] = true;
  }
  for (const EntryPointFacts& entry : facts.entryPoints()) {
    for (const EntryParameterFacts& parameter : entry.parameters) {
      if (parameter.number != noItem) seen[facts.recordOf(parameter.number)] = true;
    }
  }
  for (ItemNumber i = 0; i < seen.size(); ++i) {
    if (facts[i].parent != noItem) seen[i] = seen[facts[i].parent];
  }
  return seen;
}

// Of each item, whether it or something in it has a name.
std::vector<bool> namedItems(const DictionaryFacts& facts) {
  std::vector<bool> named(facts.items().size());
  for (ItemNumber i = named.size(); i-- > 0;) {
    if (!facts[i].isUnnamed()) named[i] = true;
    if (named[i] && facts[i].parent != noItem) named[facts[i].parent] = true;
  }
  return named;
}

// What is told of a group alone, though it is true of all that stands in it.
bool holdsForMembers(std::string_view kind) {
  return kind.substr(0, 6) == "table-" || kind == "redefinition-changed";
}

}  // namespace

ItemChanges::ItemChanges(const DictionaryFacts& before, const DictionaryFacts& after,
                         ChangeList& changes)
    : before_(before),
      after_(after),
      changes_(changes),
      changesOf_(before.items().size()),
      oldSeen_(seenItems(before)),
      newSeen_(seenItems(after)),
      oldNamed_(namedItems(before)),
      newNamed_(namedItems(after)) {}

ChangeNumber ItemChanges::tell(const char* kind, ItemNumber old, ItemNumber added,
                               std::string oldValue, std::string newValue, ChangeNumber cause) {
  const bool isOfMembers = holdsForMembers(kind) && (oldNamed_[old] || newNamed_[added]);
  const ChangeNumber change =
      changes_.add(kind, {before_.pathOf(old), after_.pathOf(added)}, std::move(oldValue),
                   std::move(newValue), isSeen(old, added) && (isKnown(old) || isOfMembers), cause);
  if (std::string_view(kind) != "item-moved") changesOf_[old].push_back(change);
  return change;
}

ChangeNumber ItemChanges::tellRemoved(ItemNumber old, bool losesNames) {
  return changes_.add("item-removed", {before_.pathOf(old), ""}, describe(before_[old]), "",
                      oldSeen_[old] && (isKnown(old) || losesNames));
}

ChangeNumber ItemChanges::tellAdded(ItemNumber added) {
  return changes_.add("item-added", {"", after_.pathOf(added)}, "", describe(after_[added]));
}

void ItemChanges::tellCondition(const char* kind, ItemNumber old, const ConditionFacts* before,
                                ItemNumber added, const ConditionFacts* after, std::string oldValue,
                                std::string newValue) {
  ChangeList::Place place;
  if (before != nullptr) place.before = before_.pathOf(old) + "." + before->name;
  if (after != nullptr) place.after = after_.pathOf(added) + "." + after->name;
  changes_.add(kind, place, std::move(oldValue), std::move(newValue), isSeen(old, added));
}

// By its name, or as a record, which callers know without one.
bool ItemChanges::isKnown(ItemNumber old) const {
  return !before_[old].isUnnamed() || before_[old].parent == noItem;
}

bool ItemChanges::isSeen(ItemNumber old, ItemNumber added) const {
  return oldSeen_[old] || newSeen_[added];
}

}  // namespace as::toolkit

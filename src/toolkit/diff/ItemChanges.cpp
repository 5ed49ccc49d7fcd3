#include "toolkit/diff/ItemChanges.h"

#include <string_view>
#include <utility>

#include "toolkit/diff/ItemTraits.h"

namespace as::toolkit {

namespace {

// Which items callers see: those of files and of the linkage section, and all of a program that
// nobody can call, a copybook.
std::vector<bool> seenItems(const DictionaryFacts& facts) {
  std::vector<bool> seen(facts.items().size(), facts.entryPoints().empty());
  for (const SectionFacts& section : facts.sections()) {
    if (section.kind == SectionFacts::Kind::workingStorage) continue;
    for (const ItemNumber record : section.records) seen[record] = true;
  }
  for (ItemNumber i = 0; i < seen.size(); ++i) {
    if (facts[i].parent != noItem) seen[i] = seen[facts[i].parent];
  }
  return seen;
}

}  // namespace

ItemChanges::ItemChanges(const DictionaryFacts& before, const DictionaryFacts& after,
                         ChangeList& changes)
    : before_(before),
      after_(after),
      changes_(changes),
      changesOf_(before.items().size()),
      oldSeen_(seenItems(before)),
      newSeen_(seenItems(after)) {}

ChangeNumber ItemChanges::tell(const char* kind, ItemNumber old, ItemNumber added,
                               std::string oldValue, std::string newValue, ChangeNumber cause) {
  const bool isUnnamed = before_[old].isUnnamed();
  const ChangeNumber change =
      changes_.add(kind, {before_.pathOf(old), after_.pathOf(added)}, std::move(oldValue),
                   std::move(newValue), isSeen(old, added) && !isUnnamed, cause);
  if (std::string_view(kind) != "item-moved") changesOf_[old].push_back(change);
  return change;
}

ChangeNumber ItemChanges::tellRemoved(ItemNumber old) {
  return changes_.add("item-removed", {before_.pathOf(old), ""}, describe(before_[old]), "",
                      oldSeen_[old] && !before_[old].isUnnamed());
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

bool ItemChanges::isSeen(ItemNumber old, ItemNumber added) const {
  return oldSeen_[old] || newSeen_[added];
}

}  // namespace as::toolkit

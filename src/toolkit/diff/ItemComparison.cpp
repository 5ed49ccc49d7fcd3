#include "toolkit/diff/ItemComparison.h"

#include <unordered_map>
#include <utility>

#include "toolkit/diff/ItemTraits.h"
#include "toolkit/diff/Sequence.h"

namespace as::toolkit {

namespace {

std::string numberOf(int number) { return number < 0 ? "unknown" : std::to_string(number); }

}  // namespace

ItemComparison::ItemComparison(const DictionaryFacts& before, const DictionaryFacts& after,
                               const ItemMatch& match, ChangeList& changes)
    : before_(before),
      after_(after),
      match_(match),
      changes_(before, after, changes),
      own_(before, after, match, changes_),
      hasMoved_(before.items().size(), false),
      placeCause_(after.items().size(), noChange) {}

void ItemComparison::compare() {
  // Records that changed their section are told with the section that they stand in now.
  std::unordered_map<ItemNumber, std::string> titles;
  for (const SectionFacts& section : before_.sections()) {
    for (const ItemNumber record : section.records) titles.emplace(record, section.title());
  }
  Items olds;
  Items news;
  for (const SectionFacts& section : before_.sections()) {
    olds.insert(olds.end(), section.records.begin(), section.records.end());
  }
  for (const SectionFacts& section : after_.sections()) {
    news.insert(news.end(), section.records.begin(), section.records.end());
  }
  for (const SectionFacts& section : after_.sections()) {
    for (const ItemNumber record : section.records) {
      const ItemNumber old = match_.oldOf(record);
      if (old == noItem || titles[old] == section.title()) continue;
      // That a file was renamed is told of the file.
      const bool areFiles =
          section.kind == SectionFacts::Kind::file && titles[old].rfind("fd ", 0) == 0;
      if (!areFiles) changes_.tell("record-moved", old, record, titles[old], section.title());
    }
  }
  Flow flow;
  compareLists(olds, news, flow, true);
}

void ItemComparison::compareLists(const Items& old, const Items& added, Flow& flow,
                                  bool areRecords) {
  std::unordered_map<ItemNumber, std::size_t> places;
  for (std::size_t i = 0; i < added.size(); ++i) places.emplace(added[i], i);
  std::vector<std::size_t> partners;
  partners.reserve(old.size());
  for (const ItemNumber number : old) {
    const auto place = places.find(match_.newOf(number));
    partners.push_back(place == places.end() ? noPartner : place->second);
  }
  const std::vector<bool> keeps = keepingOrder(partners);
  // Where records stand among each other is of no account: each has an address of its own.
  std::unordered_map<ItemNumber, ChangeNumber> reordered;
  const auto reorder = [&](ItemNumber number) {
    if (areRecords) return noChange;
    const auto [at, isNew] = reordered.emplace(number, noChange);
    if (isNew) {
      const ItemNumber partner = match_.newOf(number);
      at->second =
          changes_.tell("item-reordered", number, partner, numberOf(before_[number].offset),
                        numberOf(after_[partner].offset));
      lastCause_ = at->second;
    }
    return at->second;
  };
  std::size_t next = 0;
  for (std::size_t i = 0; i <= old.size(); ++i) {
    if (i < old.size() && !keeps[i]) {
      if (match_.newOf(old[i]) == noItem) {
        passOld(old[i], flow, changes_.tellRemoved(old[i], losesNames(old[i])));
      } else if (partners[i] == noPartner) {
        if (!areRecords) passOld(old[i], flow, regroup(old[i]));
      } else {
        passOld(old[i], flow, reorder(old[i]));
      }
      continue;
    }
    const std::size_t end = i == old.size() ? added.size() : partners[i];
    for (; next < end; ++next) {
      const ItemNumber number = added[next];
      const ItemNumber partner = match_.oldOf(number);
      if (partner == noItem) {
        const ChangeNumber change = changes_.tellAdded(number);
        placeCause_[number] = change;
        if (after_[number].extent() > 0) {
          flow.delta += after_[number].extent();
          flow.cause = change;
          lastCause_ = change;
        }
        compareWrapped(number, change);
        continue;
      }
      const bool isSibling =
          !areRecords && !old.empty() && before_[partner].parent == before_[old.front()].parent;
      ChangeNumber cause = noChange;
      if (isSibling) {
        cause = reorder(partner);
      } else if (!areRecords) {
        cause = regroup(partner);
      }
      compareItem(partner, number, flow, cause, areRecords);
      if (!areRecords) {
        flow.delta += after_[number].extent();
        if (after_[number].extent() > 0) flow.cause = lastCause_ = cause;
      }
    }
    if (i == old.size()) break;
    compareItem(old[i], added[next], flow, noChange, areRecords);
    ++next;
  }
}

// Whether anything with a name stands in it that is nowhere any more.
bool ItemComparison::losesNames(ItemNumber group) const {
  Items waiting = before_[group].children;
  while (!waiting.empty()) {
    const ItemNumber number = waiting.back();
    waiting.pop_back();
    if (!before_[number].isUnnamed() && match_.newOf(number) == noItem) return true;
    const Items& children = before_[number].children;
    waiting.insert(waiting.end(), children.begin(), children.end());
  }
  return false;
}

// That an item stands in another group: told once, when it is missed in the old one or found in the
// new one.
ChangeNumber ItemComparison::regroup(ItemNumber old) {
  const auto [at, isNew] = regrouped_.emplace(old, noChange);
  if (isNew) {
    const ItemNumber added = match_.newOf(old);
    at->second =
        changes_.tell("item-regrouped", old, added, before_.pathOf(old), after_.pathOf(added));
  }
  return at->second;
}

// What a new group was put around; what is new in it goes without saying.
void ItemComparison::compareWrapped(ItemNumber group, ChangeNumber change) {
  for (const ItemNumber child : after_[group].children) {
    const ItemNumber partner = match_.oldOf(child);
    if (partner == noItem) {
      compareWrapped(child, change);
      continue;
    }
    const ChangeNumber cause = regroup(partner);
    Flow inside;
    inside.cause = change;
    compareItem(partner, child, inside, cause, false);
  }
}

void ItemComparison::passOld(ItemNumber old, Flow& flow, ChangeNumber cause) {
  if (before_[old].extent() == 0) return;
  flow.delta -= before_[old].extent();
  flow.cause = cause;
  lastCause_ = cause;
}

void ItemComparison::compareItem(ItemNumber old, ItemNumber added, Flow& flow,
                                 ChangeNumber reordered, bool isRecord) {
  const ItemFacts& before = before_[old];
  const ItemFacts& after = after_[added];
  if (isRecord) {
    flow = {};
    lastCause_ = noChange;
  }
  if (before.name != after.name) changes_.tell("item-renamed", old, added, before.name, after.name);
  ChangeNumber sizeCause = noChange;
  ChangeNumber own = reordered;
  for (const TraitChange& trait : traitChanges(before, after)) {
    const ChangeNumber change =
        changes_.tell(trait.kind, old, added, trait.oldValue, trait.newValue);
    if (trait.changesSize && sizeCause == noChange) sizeCause = change;
    if (own == noChange) own = change;
  }
  ChangeNumber tableCause = own_.compareTable(old, added);
  const ChangeNumber redefined = own_.compareRedefinition(old, added);
  if (tableCause == noChange) tableCause = redefined;
  if (own == noChange) own = tableCause;
  own_.compareConditions(old, added);

  const Flow entry = flow;
  comparePlace(old, added, flow, own);
  const Flow start = flow;
  Flow inside = flow;
  const ChangeNumber outerCause = std::exchange(lastCause_, noChange);
  if (!before.children.empty() || !after.children.empty()) {
    compareLists(before.children, after.children, inside, false);
  }
  if (before.length != after.length) {
    if (sizeCause == noChange) sizeCause = lastCause_;
    sizeCause = compareSize(old, added, sizeCause);
  }
  if (lastCause_ == noChange) lastCause_ = outerCause;
  const long long growth = after.extent() - before.extent();
  if (reordered != noChange) {
    // The list counts it where it stands now.
    flow = entry;
    return;
  }
  flow = start;
  flow.delta += growth;
  if (growth != 0) {
    const ChangeNumber cause = tableCause != noChange ? tableCause : sizeCause;
    if (cause != noChange) {
      flow.cause = cause;
      lastCause_ = cause;
    }
  }
}

void ItemComparison::comparePlace(ItemNumber old, ItemNumber added, Flow& flow, ChangeNumber own) {
  const ItemFacts& before = before_[old];
  const ItemFacts& after = after_[added];
  placeCause_[added] = flow.cause;
  if (before.offset < 0 || after.offset < 0) return;
  const long long actual = static_cast<long long>(after.offset) - before.offset;
  ChangeNumber cause = flow.cause;
  if (after.redefined != noItem && placeCause_[after.redefined] != noChange) {
    cause = placeCause_[after.redefined];
  }
  if (after.renames) cause = lastCause_;
  if (own != noChange && (cause == noChange || actual != flow.delta)) {
    // What it is itself made it stand elsewhere: on a boundary, over other bytes.
    if (!after.redefines && !after.renames) cause = own;
    if (cause == noChange) cause = own;
  }
  if (actual == 0) {
    if (!after.redefines && !after.renames) flow = {};
    placeCause_[added] = noChange;
    return;
  }
  hasMoved_[old] = true;
  const ChangeNumber moved = changes_.tell("item-moved", old, added, std::to_string(before.offset),
                                           std::to_string(after.offset), cause);
  if (cause == noChange) cause = moved;
  placeCause_[added] = cause;
  if (after.redefines || after.renames) return;
  flow = {actual, cause};
  lastCause_ = cause;
}

ChangeNumber ItemComparison::compareSize(ItemNumber old, ItemNumber added, ChangeNumber cause) {
  const ItemFacts& before = before_[old];
  const ItemFacts& after = after_[added];
  if (before.length < 0 || after.length < 0) return cause;
  const ChangeNumber change =
      changes_.tell("size-changed", old, added, std::to_string(before.length),
                    std::to_string(after.length), cause);
  if (cause != noChange) return cause;
  lastCause_ = change;
  return change;
}

}  // namespace as::toolkit

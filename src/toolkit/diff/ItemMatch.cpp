#include "toolkit/diff/ItemMatch.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "toolkit/diff/NameMatch.h"
#include "toolkit/diff/Sequence.h"

namespace as::toolkit {

namespace {

// Splits two lists into what stands between members that are partners and keep their order, and
// calls visit(old, added) for each piece.
template <class Visit>
void forEachRun(const std::vector<ItemNumber>& old, const std::vector<ItemNumber>& added,
                const std::vector<ItemNumber>& newOf, const Visit& visit) {
  std::unordered_map<ItemNumber, std::size_t> places;
  for (std::size_t i = 0; i < added.size(); ++i) places.emplace(added[i], i);
  std::vector<std::size_t> partners;
  partners.reserve(old.size());
  for (const ItemNumber number : old) {
    const auto place = places.find(newOf[number]);
    partners.push_back(place == places.end() ? noPartner : place->second);
  }
  const std::vector<bool> keeps = keepingOrder(partners);
  std::vector<ItemNumber> left;
  std::size_t next = 0;
  for (std::size_t i = 0; i <= old.size(); ++i) {
    if (i < old.size() && !keeps[i]) {
      if (newOf[old[i]] == noItem) left.push_back(old[i]);
      continue;
    }
    const std::size_t end = i == old.size() ? added.size() : partners[i];
    visit(left, std::vector<ItemNumber>(added.begin() + static_cast<std::ptrdiff_t>(next),
                                        added.begin() + static_cast<std::ptrdiff_t>(end)));
    left.clear();
    next = end + 1;
  }
}

// All items at and below `roots`.
template <class Visit>
void forEachBelow(const DictionaryFacts& facts, const std::vector<ItemNumber>& roots,
                  const Visit& visit) {
  std::vector<ItemNumber> waiting(roots.rbegin(), roots.rend());
  while (!waiting.empty()) {
    const ItemNumber number = waiting.back();
    waiting.pop_back();
    visit(number);
    const std::vector<ItemNumber>& children = facts[number].children;
    waiting.insert(waiting.end(), children.rbegin(), children.rend());
  }
}

// An order of all dictionaries that hold different items.
bool comesBefore(const DictionaryFacts& left, const DictionaryFacts& right) {
  const auto& lefts = left.items();
  const auto& rights = right.items();
  if (lefts.size() != rights.size()) return lefts.size() < rights.size();
  const auto keyOf = [](const ItemFacts& item) {
    return std::tie(item.name, item.parent, item.category, item.length, item.offset);
  };
  for (std::size_t i = 0; i < lefts.size(); ++i) {
    if (keyOf(lefts[i]) != keyOf(rights[i])) return keyOf(lefts[i]) < keyOf(rights[i]);
  }
  return false;
}

}  // namespace

ItemMatch::ItemMatch(const DictionaryFacts& before, const DictionaryFacts& after)
    : ItemMatch(before, after, comesBefore(after, before)) {}

// Where several partners would do, the first is taken from the dictionary that is looked through:
// it is always the same one of the two.
ItemMatch::ItemMatch(const DictionaryFacts& before, const DictionaryFacts& after, bool isTurned)
    : before_(isTurned ? after : before),
      after_(isTurned ? before : after),
      newOf_(before_.items().size(), noItem),
      oldOf_(after_.items().size(), noItem) {
  matchSections();
  matchRegrouped();
  if (isTurned) std::swap(newOf_, oldOf_);
}

void ItemMatch::join(ItemNumber old, ItemNumber added) {
  newOf_[old] = added;
  oldOf_[added] = old;
}

void ItemMatch::matchSections() {
  const std::vector<std::size_t> partners =
      matchNamesOf(before_.sections(), after_.sections(),
                   [](const SectionFacts& section) { return section.title(); });
  const auto forEachPair = [&](const auto& visit) {
    for (std::size_t i = 0; i < partners.size(); ++i) {
      if (partners[i] == noPartner) continue;
      visit(before_.sections()[i].records, after_.sections()[partners[i]].records);
    }
  };
  forEachPair([this](const Items& old, const Items& added) { matchNames(old, added); });
  Items oldRecords;
  Items newRecords;
  for (const SectionFacts& section : before_.sections()) {
    oldRecords.insert(oldRecords.end(), section.records.begin(), section.records.end());
  }
  for (const SectionFacts& section : after_.sections()) {
    newRecords.insert(newRecords.end(), section.records.begin(), section.records.end());
  }
  // Records that went to another section.
  matchNames(oldRecords, newRecords);
  forEachPair([this](const Items& old, const Items& added) { matchRenamed(old, added); });
  // Those of files that were renamed.
  if (before_.sections().size() == after_.sections().size()) {
    for (std::size_t i = 0; i < before_.sections().size(); ++i) {
      matchRenamed(before_.sections()[i].records, after_.sections()[i].records);
    }
  }
  for (ItemNumber old = 0; old < newOf_.size(); ++old) {
    if (newOf_[old] != noItem) matchRenamed(before_[old].children, after_[newOf_[old]].children);
  }
}

void ItemMatch::matchNames(const Items& old, const Items& added) {
  std::vector<std::pair<const Items*, const Items*>> waiting = {{&old, &added}};
  while (!waiting.empty()) {
    const auto [olds, news] = waiting.back();
    waiting.pop_back();
    // The items of a name that are still to be found, from the last to the first.
    std::unordered_map<std::string_view, Items> known;
    for (std::size_t i = news->size(); i-- > 0;) {
      const ItemNumber number = (*news)[i];
      if (oldOf_[number] == noItem && !after_[number].isUnnamed()) {
        known[after_[number].name].push_back(number);
      }
    }
    for (const ItemNumber number : *olds) {
      if (newOf_[number] != noItem) continue;
      const auto found = known.find(before_[number].name);
      if (found == known.end() || found->second.empty()) continue;
      join(number, found->second.back());
      found->second.pop_back();
    }
    matchUnnamed(*olds, *news);
    for (const ItemNumber number : *olds) {
      if (newOf_[number] == noItem || before_[number].children.empty()) continue;
      waiting.emplace_back(&before_[number].children, &after_[newOf_[number]].children);
    }
  }
}

bool ItemMatch::isUnnamedPair(const ItemFacts& old, const ItemFacts& added) const {
  return old.isGroup() == added.isGroup() && old.redefines == added.redefines;
}

// Unnamed items are known by their place between others; those of the same size come first, and
// among those that change the last: what is put to use is taken from the front.
void ItemMatch::matchUnnamed(const Items& old, const Items& added) {
  forEachRun(old, added, newOf_, [this](const Items& left, const Items& right) {
    Items olds;
    Items news;
    for (const ItemNumber number : left) {
      if (before_[number].isUnnamed()) olds.push_back(number);
    }
    for (const ItemNumber number : right) {
      if (after_[number].isUnnamed() && oldOf_[number] == noItem) news.push_back(number);
    }
    std::size_t next = 0;
    for (const ItemNumber number : olds) {
      for (std::size_t i = next; i < std::min(news.size(), next + 8); ++i) {
        if (!isUnnamedPair(before_[number], after_[news[i]])) continue;
        if (before_[number].length != after_[news[i]].length) continue;
        join(number, news[i]);
        next = i + 1;
        break;
      }
    }
    while (!olds.empty() && !news.empty()) {
      if (newOf_[olds.back()] != noItem) {
        if (oldOf_[news.back()] == noItem) {
          news.pop_back();
        } else {
          olds.pop_back();
          news.pop_back();
        }
        continue;
      }
      if (oldOf_[news.back()] != noItem) break;
      if (isUnnamedPair(before_[olds.back()], after_[news.back()])) join(olds.back(), news.back());
      olds.pop_back();
      news.pop_back();
    }
  });
}

bool ItemMatch::isRenamed(const ItemFacts& old, const ItemFacts& added) const {
  const bool isAlike = old.category == added.category && old.length == added.length &&
                       old.maxOccurs == added.maxOccurs && old.usage == added.usage &&
                       old.scale == added.scale && old.sign == added.sign &&
                       old.redefines == added.redefines && old.renames == added.renames;
  if (!isAlike || !old.isGroup()) return isAlike;
  // Many old groups may be compared with a large new one, whose names are not worth reading then.
  if (2 * old.children.size() < added.children.size()) return false;
  // A group is what it is made of: half of its members have their names or their places.
  std::unordered_set<std::string_view> names;
  for (const ItemNumber child : added.children) names.insert(after_[child].name);
  std::size_t same = 0;
  for (std::size_t i = 0; i < old.children.size(); ++i) {
    const ItemFacts& child = before_[old.children[i]];
    const bool isPlaced = i < added.children.size() &&
                          after_[added.children[i]].category == child.category &&
                          after_[added.children[i]].length == child.length;
    if (isPlaced || names.contains(child.name)) ++same;
  }
  return 2 * same >= std::max(old.children.size(), added.children.size());
}

void ItemMatch::matchRenamed(const Items& old, const Items& added) {
  forEachRun(old, added, newOf_,
             [this](const Items& left, const Items& right) { matchRun(left, right); });
}

void ItemMatch::matchRun(const Items& old, const Items& added) {
  // How far what stands between is looked over: places are the same only near by.
  constexpr std::size_t farthest = 64;
  // Records have addresses of their own: one without members is known by its neighbours alone.
  Items left;
  std::copy_if(added.begin(), added.end(), std::back_inserter(left),
               [this](ItemNumber number) { return oldOf_[number] == noItem; });
  const bool arePaired = std::equal(old.begin(), old.end(), left.begin(), left.end(),
                                    [this](ItemNumber number, ItemNumber partner) {
                                      return isRenamed(before_[number], after_[partner]);
                                    });
  std::size_t next = 0;
  for (const ItemNumber number : old) {
    const bool hasPlace = before_[number].parent != noItem || before_[number].isGroup();
    if (!hasPlace && !arePaired) continue;
    const std::size_t end = std::min(added.size(), next + farthest);
    for (std::size_t i = next; i < end; ++i) {
      if (oldOf_[added[i]] != noItem || !isRenamed(before_[number], after_[added[i]])) continue;
      join(number, added[i]);
      next = i + 1;
      matchNames(before_[number].children, after_[added[i]].children);
      break;
    }
  }
}

void ItemMatch::matchRegrouped() {
  struct Pair {
    ItemNumber old = noItem;
    ItemNumber added = noItem;
    bool isSingle = true;
  };
  // What a joined group holds goes with it.
  std::vector<bool> isRegrouped(before_.items().size());
  for (const SectionFacts& section : before_.sections()) {
    for (const ItemNumber record : section.records) {
      if (newOf_[record] == noItem) continue;
      std::unordered_map<std::string_view, Pair> pairs;
      Items olds;
      const auto note = [](ItemNumber& place, bool& isSingle, ItemNumber number) {
        if (place != noItem) isSingle = false;
        place = number;
      };
      forEachBelow(before_, {record}, [&](ItemNumber number) {
        if (newOf_[number] != noItem || before_[number].isUnnamed()) return;
        olds.push_back(number);
        Pair& pair = pairs[before_[number].name];
        note(pair.old, pair.isSingle, number);
      });
      if (pairs.empty()) continue;
      forEachBelow(after_, {newOf_[record]}, [&](ItemNumber number) {
        if (oldOf_[number] != noItem) return;
        const auto found = pairs.find(after_[number].name);
        if (found != pairs.end()) note(found->second.added, found->second.isSingle, number);
      });
      for (const ItemNumber old : olds) {
        const Pair& pair = pairs.at(before_[old].name);
        if (!pair.isSingle || pair.added == noItem) continue;
        if (newOf_[old] != noItem || oldOf_[pair.added] != noItem) continue;
        if (before_[old].isGroup() != after_[pair.added].isGroup()) continue;
        join(old, pair.added);
        isRegrouped[old] = true;
        matchNames(before_[old].children, after_[pair.added].children);
      }
    }
  }
  for (ItemNumber old = 0; old < newOf_.size(); ++old) {
    const ItemNumber parent = before_[old].parent;
    if (parent != noItem && isRegrouped[parent]) isRegrouped[old] = true;
    if (!isRegrouped[old] || newOf_[old] == noItem) continue;
    matchRenamed(before_[old].children, after_[newOf_[old]].children);
  }
}

}  // namespace as::toolkit

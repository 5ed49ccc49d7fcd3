// Finds out which item of a new dictionary is which of the old one.
#ifndef TOOLKIT_DIFF_ITEMMATCH_H_
#define TOOLKIT_DIFF_ITEMMATCH_H_

#include <vector>

#include "toolkit/facts/DictionaryFacts.h"

namespace as::toolkit {

// By names first: those of siblings, then those of records in all sections. Of what is left, items
// of the same size and kind in the same place are renamed ones (of records without members, those
// that stand for as many others between the same neighbours); then, within a record, items of a
// name that only one old and one new item have, stand in another group. Who is whose partner does
// not depend on which dictionary is the old one. Grows with the number of items.
class ItemMatch {
 public:
  ItemMatch(const DictionaryFacts& before, const DictionaryFacts& after);

  // Its partner; noItem for one that was removed, or added.
  ItemNumber newOf(ItemNumber old) const { return newOf_[old]; }
  ItemNumber oldOf(ItemNumber added) const { return oldOf_[added]; }

 private:
  using Items = std::vector<ItemNumber>;

  ItemMatch(const DictionaryFacts& before, const DictionaryFacts& after, bool isTurned);

  void join(ItemNumber old, ItemNumber added);
  void matchSections();
  // Each of these goes down into what it joins.
  void matchNames(const Items& old, const Items& added);
  void matchUnnamed(const Items& old, const Items& added);
  void matchRenamed(const Items& old, const Items& added);
  void matchRun(const Items& old, const Items& added);
  void matchRegrouped();

  bool isRenamed(const ItemFacts& old, const ItemFacts& added) const;
  bool isUnnamedPair(const ItemFacts& old, const ItemFacts& added) const;

  const DictionaryFacts& before_;
  const DictionaryFacts& after_;
  Items newOf_;
  Items oldOf_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_ITEMMATCH_H_

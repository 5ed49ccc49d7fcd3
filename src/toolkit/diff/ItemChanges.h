// Tells the changes of data items: by their paths, and as breaking where callers see them.
#ifndef TOOLKIT_DIFF_ITEMCHANGES_H_
#define TOOLKIT_DIFF_ITEMCHANGES_H_

#include <string>
#include <vector>

#include "toolkit/diff/ChangeList.h"
#include "toolkit/facts/DictionaryFacts.h"

namespace as::toolkit {

class ItemChanges {
 public:
  ItemChanges(const DictionaryFacts& before, const DictionaryFacts& after, ChangeList& changes);

  ChangeNumber tell(const char* kind, ItemNumber old, ItemNumber added, std::string oldValue = "",
                    std::string newValue = "", ChangeNumber cause = noChange);
  // An unnamed group may lose names that stand in it.
  ChangeNumber tellRemoved(ItemNumber old, bool losesNames);
  ChangeNumber tellAdded(ItemNumber added);
  // Of a condition of the two items; null for one that was not there or is no more.
  void tellCondition(const char* kind, ItemNumber old, const ConditionFacts* before,
                     ItemNumber added, const ConditionFacts* after, std::string oldValue,
                     std::string newValue);

  // What was told of an old item, moves and what it is part of left aside.
  const std::vector<ChangeNumber>& of(ItemNumber old) const { return changesOf_[old]; }

 private:
  bool isKnown(ItemNumber old) const;
  bool isSeen(ItemNumber old, ItemNumber added) const;

  const DictionaryFacts& before_;
  const DictionaryFacts& after_;
  ChangeList& changes_;
  std::vector<std::vector<ChangeNumber>> changesOf_;
  // Of each item, whether callers see it: by the record that it stands in.
  std::vector<bool> oldSeen_;
  std::vector<bool> newSeen_;
  std::vector<bool> oldNamed_;
  std::vector<bool> newNamed_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_ITEMCHANGES_H_

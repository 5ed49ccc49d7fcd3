// Compares the data items of two dictionaries, record by record, and tells what is the reason for
// what.
#ifndef TOOLKIT_DIFF_ITEMCOMPARISON_H_
#define TOOLKIT_DIFF_ITEMCOMPARISON_H_

#include <unordered_map>
#include <vector>

#include "toolkit/diff/ChangeList.h"
#include "toolkit/diff/ItemChanges.h"
#include "toolkit/diff/ItemMatch.h"
#include "toolkit/diff/OwnComparison.h"
#include "toolkit/facts/DictionaryFacts.h"

namespace as::toolkit {

class ItemComparison {
 public:
  ItemComparison(const DictionaryFacts& before, const DictionaryFacts& after,
                 const ItemMatch& match, ChangeList& changes);

  // The records of all sections.
  void compare();

  // What was told of an old item, moves and what it is part of left aside.
  const std::vector<ChangeNumber>& changesOf(ItemNumber old) const { return changes_.of(old); }
  bool hasMoved(ItemNumber old) const { return hasMoved_[old]; }

 private:
  using Items = std::vector<ItemNumber>;

  // How far what comes next has moved as things stand, and because of what.
  struct Flow {
    long long delta = 0;
    ChangeNumber cause = noChange;
  };

  void compareLists(const Items& old, const Items& added, Flow& flow, bool areRecords);
  void compareItem(ItemNumber old, ItemNumber added, Flow& flow, ChangeNumber reordered,
                   bool isRecord);
  bool losesNames(ItemNumber group) const;
  ChangeNumber regroup(ItemNumber old);
  void compareWrapped(ItemNumber group, ChangeNumber change);
  void passOld(ItemNumber old, Flow& flow, ChangeNumber cause);
  void comparePlace(ItemNumber old, ItemNumber added, Flow& flow, ChangeNumber own);
  // Answers the reason that the new size has: `cause` if there is one.
  ChangeNumber compareSize(ItemNumber old, ItemNumber added, ChangeNumber cause);

  const DictionaryFacts& before_;
  const DictionaryFacts& after_;
  const ItemMatch& match_;
  ItemChanges changes_;
  OwnComparison own_;
  std::vector<bool> hasMoved_;
  // Why each new item stands where it does; redefinitions follow it.
  std::vector<ChangeNumber> placeCause_;
  std::unordered_map<ItemNumber, ChangeNumber> regrouped_;
  // The last change of the record at hand that made something larger or smaller.
  ChangeNumber lastCause_ = noChange;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_ITEMCOMPARISON_H_

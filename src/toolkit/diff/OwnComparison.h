// Compares what items are by themselves, wherever they stand: tables, redefinitions, conditions.
#ifndef TOOLKIT_DIFF_OWNCOMPARISON_H_
#define TOOLKIT_DIFF_OWNCOMPARISON_H_

#include "toolkit/diff/ItemChanges.h"
#include "toolkit/diff/ItemMatch.h"
#include "toolkit/facts/DictionaryFacts.h"

namespace as::toolkit {

class OwnComparison {
 public:
  OwnComparison(const DictionaryFacts& before, const DictionaryFacts& after, const ItemMatch& match,
                ItemChanges& changes)
      : before_(before), after_(after), match_(match), changes_(changes) {}

  // They answer the first change that may be a reason for another size; noChange for none.
  ChangeNumber compareTable(ItemNumber old, ItemNumber added);
  ChangeNumber compareRedefinition(ItemNumber old, ItemNumber added);

  void compareConditions(ItemNumber old, ItemNumber added);

 private:
  const DictionaryFacts& before_;
  const DictionaryFacts& after_;
  const ItemMatch& match_;
  ItemChanges& changes_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_OWNCOMPARISON_H_

// Finds out which condition of a new item is which of the old one.
#ifndef TOOLKIT_DIFF_CONDITIONMATCH_H_
#define TOOLKIT_DIFF_CONDITIONMATCH_H_

#include <vector>

#include "toolkit/facts/DictionaryFacts.h"

namespace as::toolkit {

// Null in the place of what was added, or removed.
struct ConditionPair {
  const ConditionFacts* before;
  const ConditionFacts* after;
};

// By name and values, then by name, then by values: what has only those is a renamed one. A name or
// values may stand there many times: the first is the first then. The old ones in their order, then
// those that were added. The lists have to outlive the pairs.
std::vector<ConditionPair> matchConditions(const std::vector<ConditionFacts>& before,
                                           const std::vector<ConditionFacts>& after);

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_CONDITIONMATCH_H_

#include "toolkit/diff/ConditionMatch.h"

#include <cstddef>
#include <map>
#include <string>
#include <utility>

namespace as::toolkit {

namespace {

// What two conditions have to have in common.
using Key = std::vector<std::string>;

Key nameOf(const ConditionFacts& condition) { return {condition.name}; }
Key valuesOf(const ConditionFacts& condition) { return condition.values; }
Key allOf(const ConditionFacts& condition) {
  Key key = condition.values;
  key.push_back(condition.name);
  return key;
}

// Joins those without a partner, of each key the first to the first.
void joinBy(Key (*keyOf)(const ConditionFacts&), std::vector<ConditionPair>& pairs,
            std::vector<const ConditionFacts*>& news) {
  // The places of the new ones, from the last to the first.
  std::map<Key, std::vector<std::size_t>> places;
  for (std::size_t i = news.size(); i-- > 0;) {
    if (news[i] != nullptr) places[keyOf(*news[i])].push_back(i);
  }
  for (ConditionPair& pair : pairs) {
    if (pair.after != nullptr) continue;
    const auto found = places.find(keyOf(*pair.before));
    if (found == places.end() || found->second.empty()) continue;
    pair.after = std::exchange(news[found->second.back()], nullptr);
    found->second.pop_back();
  }
}

}  // namespace

std::vector<ConditionPair> matchConditions(const std::vector<ConditionFacts>& before,
                                           const std::vector<ConditionFacts>& after) {
  std::vector<ConditionPair> pairs;
  pairs.reserve(before.size() + after.size());
  for (const ConditionFacts& condition : before) pairs.push_back({&condition, nullptr});
  std::vector<const ConditionFacts*> news;
  news.reserve(after.size());
  for (const ConditionFacts& condition : after) news.push_back(&condition);
  for (const auto keyOf : {allOf, nameOf, valuesOf}) joinBy(keyOf, pairs, news);
  for (const ConditionFacts* const condition : news) {
    if (condition != nullptr) pairs.push_back({nullptr, condition});
  }
  return pairs;
}

}  // namespace as::toolkit

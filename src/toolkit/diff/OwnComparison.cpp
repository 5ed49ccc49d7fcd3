#include "toolkit/diff/OwnComparison.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/diff/ConditionMatch.h"
#include "toolkit/text/ShownPlace.h"

namespace as::toolkit {

namespace {

std::string valuesOf(const ConditionFacts& condition) {
  constexpr std::size_t longest = 200;
  std::string text;
  for (const std::string& value : condition.values) {
    if (text.size() > longest) return text + ", ...";
    text += (text.empty() ? "" : ", ") + value;
  }
  return text;
}

// What happened to the values; null for nothing.
const char* valuesKind(const std::vector<std::string>& before,
                       const std::vector<std::string>& after) {
  std::vector<std::string> olds = before;
  std::vector<std::string> news = after;
  std::sort(olds.begin(), olds.end());
  std::sort(news.begin(), news.end());
  if (olds == news) return nullptr;
  if (std::includes(news.begin(), news.end(), olds.begin(), olds.end())) {
    return "condition-values-added";
  }
  return std::includes(olds.begin(), olds.end(), news.begin(), news.end())
             ? "condition-values-removed"
             : "condition-values-changed";
}

// What a table depends on; "none" for nothing.
std::string counterOf(const DictionaryFacts& facts, ItemNumber number) {
  const ItemFacts& item = facts[number];
  if (item.odoItem != noItem) return facts.pathOf(item.odoItem);
  return item.odo.empty() ? "none" : item.odo;
}

}  // namespace

ChangeNumber OwnComparison::compareTable(ItemNumber old, ItemNumber added) {
  ChangeNumber first = noChange;
  const ItemFacts& before = before_[old];
  const ItemFacts& after = after_[added];
  const auto note = [&](const char* kind, std::string oldValue, std::string newValue) {
    const ChangeNumber change =
        changes_.tell(kind, old, added, std::move(oldValue), std::move(newValue));
    if (first == noChange) first = change;
  };
  if (before.isTable() != after.isTable()) {
    note(after.isTable() ? "table-made" : "table-unmade", std::to_string(before.maxOccurs),
         std::to_string(after.maxOccurs));
    return first;
  }
  if (before.maxOccurs != after.maxOccurs) {
    note(before.maxOccurs < after.maxOccurs ? "table-longer" : "table-shorter",
         std::to_string(before.maxOccurs), std::to_string(after.maxOccurs));
  }
  const std::string oldCounter = counterOf(before_, old);
  const std::string newCounter = counterOf(after_, added);
  const bool isSameCounter = before.odoItem != noItem && after.odoItem != noItem
                                 ? match_.newOf(before.odoItem) == after.odoItem
                                 : oldCounter == newCounter;
  if (!isSameCounter) note("table-depending-changed", oldCounter, newCounter);
  // A fixed table says the one number twice.
  const bool areFixed = before.minOccurs == before.maxOccurs && after.minOccurs == after.maxOccurs;
  if (before.minOccurs != after.minOccurs && !areFixed && isSameCounter) {
    changes_.tell("table-minimum-changed", old, added, std::to_string(before.minOccurs),
                  std::to_string(after.minOccurs));
  }
  return first;
}

ChangeNumber OwnComparison::compareRedefinition(ItemNumber old, ItemNumber added) {
  const ItemFacts& before = before_[old];
  const ItemFacts& after = after_[added];
  if (before.redefined == noItem && after.redefined == noItem &&
      before.redefines == after.redefines) {
    return noChange;
  }
  const bool isSame =
      before.redefined != noItem && after.redefined != noItem &&
      (match_.newOf(before.redefined) == after.redefined ||
       match_.newOf(before.redefined) == noItem || match_.oldOf(after.redefined) == noItem);
  if (isSame) return noChange;
  const auto nameOf = [](const DictionaryFacts& facts, ItemNumber number) {
    return number == noItem ? std::string("none") : shownPlace({facts[number].name});
  };
  return changes_.tell("redefinition-changed", old, added, nameOf(before_, before.redefined),
                       nameOf(after_, after.redefined));
}

void OwnComparison::compareConditions(ItemNumber old, ItemNumber added) {
  for (const auto& [before, after] :
       matchConditions(before_[old].conditions, after_[added].conditions)) {
    const auto note = [&, before = before, after = after](const char* kind, std::string oldValue,
                                                          std::string newValue) {
      changes_.tellCondition(kind, old, before, added, after, std::move(oldValue),
                             std::move(newValue));
    };
    if (after == nullptr) {
      note("condition-removed", valuesOf(*before), "");
    } else if (before == nullptr) {
      note("condition-added", "", valuesOf(*after));
    } else if (before->name != after->name) {
      note("condition-renamed", before->name, after->name);
    } else if (const char* const kind = valuesKind(before->values, after->values)) {
      note(kind, valuesOf(*before), valuesOf(*after));
    }
  }
}

}  // namespace as::toolkit

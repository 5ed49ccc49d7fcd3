// Finds the items of a dictionary by the paths of mappings.
#ifndef TOOLKIT_FACTS_ITEMPATHS_H_
#define TOOLKIT_FACTS_ITEMPATHS_H_

#include <string_view>
#include <unordered_map>

#include "toolkit/facts/DictionaryFacts.h"

namespace as::toolkit {

// As the library finds them: of the items of one name in one group the first, and none of files.
class ItemPaths {
 public:
  // `facts` has to outlive this object.
  explicit ItemPaths(const DictionaryFacts& facts);

  // `path` may have subscripts behind it; noItem when nothing is found.
  ItemNumber find(std::string_view path) const;

 private:
  std::unordered_map<ItemNumber, std::unordered_map<std::string_view, ItemNumber>> index_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_FACTS_ITEMPATHS_H_

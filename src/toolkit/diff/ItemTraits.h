// How two items differ by themselves, wherever they stand.
#ifndef TOOLKIT_DIFF_ITEMTRAITS_H_
#define TOOLKIT_DIFF_ITEMTRAITS_H_

#include <string>
#include <vector>

#include "toolkit/facts/DictionaryFacts.h"

namespace as::toolkit {

struct TraitChange {
  const char* kind;
  std::string oldValue;
  std::string newValue;
  bool changesSize;  // Whether it can be the reason for another size.
};

// Category, PICTURE, sign, usage and the clauses of one item; not its size, place and tables.
std::vector<TraitChange> traitChanges(const ItemFacts& before, const ItemFacts& after);

// "numeric S9(5)V99 comp-3"
std::string describe(const ItemFacts& item);

// The PICTURE with each character as often as it stands for, shortly: "X(08)" and "X(8)" give the
// same.
std::string normalPicture(const std::string& picture);

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_ITEMTRAITS_H_

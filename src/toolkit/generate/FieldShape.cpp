#include "toolkit/generate/FieldShape.h"

#include <algorithm>
#include <vector>

namespace as::toolkit::gen {

bool areOfOneShape(const ServiceModel& model, const Field& left, const Field& right) {
  if (left.reference != right.reference) return false;
  if (left.reference != none || &left == &right) return true;
  if (left.dataType != right.dataType || left.elementForm != right.elementForm ||
      left.attributeForm != right.attributeForm) {
    return false;
  }
  const Item* const leftItem = model.itemOf(left);
  const Item* const rightItem = model.itemOf(right);
  if ((leftItem == nullptr) != (rightItem == nullptr)) return false;
  if (leftItem != nullptr && !leftItem->isLike(*rightItem)) return false;
  if (left.structure == right.structure) return true;
  if (left.structure == none || right.structure == none) return false;
  const auto areSame = [&model](const std::vector<Field>& some, const std::vector<Field>& others) {
    return std::equal(some.begin(), some.end(), others.begin(), others.end(),
                      [&model](const Field& one, const Field& other) {
                        return one.name == other.name && one.occurs == other.occurs &&
                               one.least == other.least && areOfOneShape(model, one, other);
                      });
  };
  const Type& leftType = model.types[left.structure];
  const Type& rightType = model.types[right.structure];
  return areSame(leftType.fields, rightType.fields) &&
         areSame(leftType.attributes, rightType.attributes);
}

}  // namespace as::toolkit::gen

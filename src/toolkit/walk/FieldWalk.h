// Visits parameters and fields with everything below them, in document order.
#ifndef TOOLKIT_WALK_FIELDWALK_H_
#define TOOLKIT_WALK_FIELDWALK_H_

#include <string>

#include "as/IField.h"
#include "toolkit/walk/TreeWalk.h"

namespace as::toolkit {

// The name of the type definition that the field refers to, found or not; empty for none.
inline std::string referenceOf(as::IField& field) { return field.getAttributeValue("ref"); }

// walkTree over parameters and their fields. It does not follow references: a type definition may
// hold a reference to itself.
template <class Enter, class Leave>
void walkFields(as::IList* list, const Enter& enter, const Leave& leave) {
  walkTree<as::IField>(
      list,
      [](as::IField& field) { return referenceOf(field).empty() ? field.getChildren() : nullptr; },
      enter, leave);
}

}  // namespace as::toolkit

#endif  // TOOLKIT_WALK_FIELDWALK_H_

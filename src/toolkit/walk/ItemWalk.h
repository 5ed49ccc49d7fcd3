// Visits data items with everything below them, in document order.
#ifndef TOOLKIT_WALK_ITEMWALK_H_
#define TOOLKIT_WALK_ITEMWALK_H_

#include "as/IDataItem.h"
#include "as/IGroup.h"
#include "toolkit/walk/TreeWalk.h"

namespace as::toolkit {

// walkTree over data items and the members of groups.
template <class Enter, class Leave>
void walkItems(as::IList* list, const Enter& enter, const Leave& leave) {
  walkTree<as::IDataItem>(
      list,
      [](as::IDataItem& item) -> as::IList* {
        auto* const group = as::interface_cast<as::IGroup>(&item);
        return group == nullptr ? nullptr : group->getChildren();
      },
      enter, leave);
}

}  // namespace as::toolkit

#endif  // TOOLKIT_WALK_ITEMWALK_H_

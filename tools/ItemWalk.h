// Visits data items with everything below them, in document order.
#ifndef TOOLS_ITEMWALK_H_
#define TOOLS_ITEMWALK_H_

#include <vector>

#include "as/IDataItem.h"
#include "as/IGroup.h"
#include "as/IList.h"

// Calls enter(item, depth) for every data item in `list` and below, and leave(item) when everything
// below that item has been visited. The items of the list have depth 0. A null list has no items.
// Documents nest deeply: the walk keeps its way in a vector, not on the stack.
template <class Enter, class Leave>
void walkItems(as::IList* list, const Enter& enter, const Leave& leave) {
  struct Level {
    as::IDataItem* owner;
    as::IList* members;
    int next;
  };
  std::vector<Level> way = {{nullptr, list, 0}};
  while (!way.empty()) {
    Level& level = way.back();
    if (level.members == nullptr || level.next == level.members->getLength()) {
      if (level.owner != nullptr) leave(*level.owner);
      way.pop_back();
      continue;
    }
    auto* const item = as::interface_cast<as::IDataItem>(level.members->getItem(level.next++));
    if (item == nullptr) continue;
    enter(*item, way.size() - 1);
    auto* const group = as::interface_cast<as::IGroup>(item);
    way.push_back({item, group == nullptr ? nullptr : group->getChildren(), 0});
  }
}

// Calls visit(T&) for every member of `list` that is a T. A null list has no members.
template <class T, class Visit>
void forEachMember(as::IList* list, const Visit& visit) {
  const int length = list == nullptr ? 0 : list->getLength();
  for (int i = 0; i < length; ++i) {
    if (T* const member = as::interface_cast<T>(list->getItem(i))) visit(*member);
  }
}

#endif  // TOOLS_ITEMWALK_H_

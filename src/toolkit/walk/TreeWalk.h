// Visits what a model's lists hold, with everything below it, in document order.
#ifndef TOOLKIT_WALK_TREEWALK_H_
#define TOOLKIT_WALK_TREEWALK_H_

#include <vector>

#include "as/IList.h"
#include "as/RTTI.h"

namespace as::toolkit {

// Calls enter(T&, depth) for every T in `list` and below, and leave(T&) when everything below it
// has been visited. The members of the list have depth 0; childrenOf(T&) is the list below a T,
// null for none. A null list has no members. Documents nest deeply: the walk keeps its way in a
// vector, not on the stack.
template <class T, class ChildrenOf, class Enter, class Leave>
void walkTree(as::IList* list, const ChildrenOf& childrenOf, const Enter& enter,
              const Leave& leave) {
  struct Level {
    T* owner;
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
    T* const member = as::interface_cast<T>(level.members->getItem(level.next++));
    if (member == nullptr) continue;
    enter(*member, way.size() - 1);
    way.push_back({member, childrenOf(*member), 0});
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

}  // namespace as::toolkit

#endif  // TOOLKIT_WALK_TREEWALK_H_

// A group item: a data item made of other data items.
#ifndef AS_IGROUP_H_
#define AS_IGROUP_H_

#include "as/IDataItem.h"

namespace as {

class AS_EXPORT IGroup : virtual public IDataItem {
 public:
  ~IGroup() override;
  AS_RTTI(IGroup)

  // The data items that the group holds, as::IDataItem objects, in document order; never null,
  // possibly empty. Condition names are no members: see getConditions(). The group keeps the list.
  virtual IList* getChildren() = 0;
};

}  // namespace as

#endif  // AS_IGROUP_H_

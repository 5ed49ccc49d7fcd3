// Every collection of the model: the children of an element that belong to it, in document order.
#ifndef AS_ILIST_H_
#define AS_ILIST_H_

#include "as/IElement.h"

namespace as {

class AS_EXPORT IList : virtual public IElement {
 public:
  ~IList() override;
  AS_RTTI(IList)

  // The number of members, 0 or more.
  virtual int getLength() = 0;

  // The member at `index`, 0 to getLength() - 1; null for any other index. Ask it for the
  // interface you expect: `as::interface_cast<as::IDataItem>(list->getItem(0))`.
  // The list keeps the member.
  virtual IElement* getItem(int index) = 0;
};

}  // namespace as

#endif  // AS_ILIST_H_

// Every collection of the model: the children of an element that belong to it, in document order.
#ifndef AS_ILIST_H_
#define AS_ILIST_H_

#include "as/IElement.h"

namespace as {

// A list shows at once what the adding operations of its owner add; nothing ever leaves it.
//
// A list is an element too: getAttributeValue() reads the element that the members stand in, which
// is the owner's own where they stand in no section of their own (conditions, fields, headers).
//
// A section that a document lacks reads as one empty list that all documents share, its user data
// included. It stays empty: when something has been added to the section, ask for the list again.
class AS_EXPORT IList : virtual public IElement {
 public:
  ~IList() override;
  AS_RTTI(IList)

  // The number of members, 0 or more. Counts members only: comments and text are none.
  virtual int getLength() = 0;

  // The member at `index`, 0 to getLength() - 1; null for any other index. Ask it for the interface
  // you expect: `as::interface_cast<as::IDataItem>(list->getItem(0))`. The list keeps the member.
  virtual IElement* getItem(int index) = 0;
};

}  // namespace as

#endif  // AS_ILIST_H_

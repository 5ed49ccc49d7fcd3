// One parameter of an entry point: a data item handed over at the call.
#ifndef AS_ILINKAGEITEM_H_
#define AS_ILINKAGEITEM_H_

#include "as/IElement.h"

namespace as {

class IDataItem;

class AS_EXPORT ILinkageItem : virtual public IElement {
 public:
  // What getByType() answers.
  enum BY_TYPE : int {
    BY_REFERENCE = 0,
    BY_VALUE = 1,
    BY_RETURNING = 2,
  };

  ~ILinkageItem() override;
  AS_RTTI(ILinkageItem)

  // Attribute "byType": BY_VALUE for "value", BY_RETURNING for "returning", else BY_REFERENCE.
  virtual int getByType() = 0;

  // The data item that attribute "dataItem" names: the first of that name among the program's
  // top-level items; null when there is none. Items inside groups and items of the file section are
  // never found. Names are compared exactly, letter case included. The program keeps the item.
  virtual IDataItem* getDataItem() = 0;
};

}  // namespace as

#endif  // AS_ILINKAGEITEM_H_

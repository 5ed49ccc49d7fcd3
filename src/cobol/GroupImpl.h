// A group item: a "group" element.
#ifndef COBOL_GROUPIMPL_H_
#define COBOL_GROUPIMPL_H_

#include "as/IGroup.h"
#include "cobol/DataItemImpl.h"
#include "cobol/DataItemList.h"

class CGroupImpl : virtual public as::IGroup, virtual public CDataItemImpl {
 public:
  explicit CGroupImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CDataItemImpl(element), children_(element, this) {}
  AS_IDENTITY(CGroupImpl)

  as::IList* getChildren() override;
  void collectChildren() override;

 private:
  CDataItemList children_;
};

#endif  // COBOL_GROUPIMPL_H_

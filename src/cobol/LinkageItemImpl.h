// A parameter of an entry point: a "parameter" element.
#ifndef COBOL_LINKAGEITEMIMPL_H_
#define COBOL_LINKAGEITEMIMPL_H_

#include "as/ILinkageItem.h"
#include "xml/ElementImpl.h"

class CLinkageItemImpl : virtual public as::ILinkageItem, virtual public CElementImpl {
 public:
  explicit CLinkageItemImpl(xercesc::DOMElement* element) : CElementImpl(element) {}
  AS_IDENTITY(CLinkageItemImpl)

  int getByType() override;
  as::IDataItem* getDataItem() override;
};

#endif  // COBOL_LINKAGEITEMIMPL_H_

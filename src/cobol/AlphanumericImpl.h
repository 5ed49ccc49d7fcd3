// An alphanumeric item: an "alphanumeric" element.
#ifndef COBOL_ALPHANUMERICIMPL_H_
#define COBOL_ALPHANUMERICIMPL_H_

#include "as/IAlphanumeric.h"
#include "cobol/DataItemImpl.h"

class CAlphanumericImpl : virtual public as::IAlphanumeric, virtual public CDataItemImpl {
 public:
  explicit CAlphanumericImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CDataItemImpl(element) {}
  AS_IDENTITY(CAlphanumericImpl)

  int getJustification() override;
};

#endif  // COBOL_ALPHANUMERICIMPL_H_

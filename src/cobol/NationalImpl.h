// A national item: a "national" element.
#ifndef COBOL_NATIONALIMPL_H_
#define COBOL_NATIONALIMPL_H_

#include "as/INational.h"
#include "cobol/DataItemImpl.h"

class CNationalImpl : virtual public as::INational, virtual public CDataItemImpl {
 public:
  explicit CNationalImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CDataItemImpl(element) {}
  AS_IDENTITY(CNationalImpl)

  int getUsage() override;
};

#endif  // COBOL_NATIONALIMPL_H_

// A numeric item: a "numeric" element.
#ifndef COBOL_NUMERICIMPL_H_
#define COBOL_NUMERICIMPL_H_

#include "as/INumeric.h"
#include "cobol/DataItemImpl.h"

class CNumericImpl : virtual public as::INumeric, virtual public CDataItemImpl {
 public:
  explicit CNumericImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CDataItemImpl(element) {}
  AS_IDENTITY(CNumericImpl)

  int getUsage() override;
  int getSign() override;
  int getDigits() override;
  int getAlignment() override;
};

#endif  // COBOL_NUMERICIMPL_H_

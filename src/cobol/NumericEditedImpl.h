// A numeric edited item: a "numericEdited" element.
#ifndef COBOL_NUMERICEDITEDIMPL_H_
#define COBOL_NUMERICEDITEDIMPL_H_

#include "as/INumericEdited.h"
#include "cobol/DataItemImpl.h"

class CNumericEditedImpl : virtual public as::INumericEdited, virtual public CDataItemImpl {
 public:
  explicit CNumericEditedImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CDataItemImpl(element) {}
  AS_IDENTITY(CNumericEditedImpl)

  int getDigits() override;
  bool isBlankWhenZero() override;

  // Attribute "alignment": how many of the digits stand after the decimal point. Not in the
  // interface.
  int getAlignment() const;
};

#endif  // COBOL_NUMERICEDITEDIMPL_H_

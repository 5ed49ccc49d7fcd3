// One value of a condition: a "numericConstant", "alphanumericConstant", "numericRange" or
// "alphanumericRange" element.
#ifndef COBOL_CONDITIONVALUEIMPL_H_
#define COBOL_CONDITIONVALUEIMPL_H_

#include "as/IConditionValue.h"
#include "xml/ElementImpl.h"

// The wrapper is no public base: a value is reached through its interface, or through RTTI_cast.
class CConditionValueImpl : virtual public as::IConditionValue, virtual private CElementImpl {
 public:
  explicit CConditionValueImpl(xercesc::DOMElement* element) : CElementImpl(element) {}
  AS_IDENTITY(CConditionValueImpl)

  int getType() override;
  std::string getConstant() override;
  std::string getFrom() override;
  std::string getTo() override;
};

#endif  // COBOL_CONDITIONVALUEIMPL_H_

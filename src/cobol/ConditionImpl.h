// A condition name: a "numericCondition" or "alphanumericCondition" element.
#ifndef COBOL_CONDITIONIMPL_H_
#define COBOL_CONDITIONIMPL_H_

#include "as/ICondition.h"
#include "xml/List.h"

// Every child element is one of its values.
class CConditionImpl : virtual public as::ICondition, virtual public CList {
 public:
  explicit CConditionImpl(xercesc::DOMElement* element) : CElementImpl(element), CList(element) {}
  AS_IDENTITY(CConditionImpl)

  std::string getName() override;
};

#endif  // COBOL_CONDITIONIMPL_H_

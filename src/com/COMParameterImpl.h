// A parameter or field of a COM service: adds the COM data type and marks the return value.
#ifndef COM_COMPARAMETERIMPL_H_
#define COM_COMPARAMETERIMPL_H_

#include "as/ICOMParameter.h"
#include "service/ParameterImpl.h"

class CCOMParameterImpl : virtual public as::ICOMParameter,
                          virtual public CParameterImpl,
                          virtual public as::ICOMField {
 public:
  explicit CCOMParameterImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CParameterImpl(element) {}
  AS_IDENTITY(CCOMParameterImpl)

  TYPE getType() override;
  void setType(TYPE type) override;
  bool isReturnParameter() override;
  void setReturnParameter(bool isReturn) override;

  // The word of a type; "string" for every number that is none.
  static const XMLCh* DataTypeToString(TYPE type);
};

#endif  // COM_COMPARAMETERIMPL_H_

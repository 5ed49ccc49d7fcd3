// A parameter of a COM service; also a field of one.
#ifndef AS_ICOMPARAMETER_H_
#define AS_ICOMPARAMETER_H_

#include "as/ICOMField.h"
#include "as/IParameter.h"

namespace as {

class AS_EXPORT ICOMParameter : virtual public IParameter, virtual public ICOMField {
 public:
  ~ICOMParameter() override;
  AS_RTTI(ICOMParameter)

  // Attribute "returnParameter" of the element itself, reference or not: the parameter is the
  // operation's return value. True for "1", which the setter writes, and for "true" in any case;
  // false for anything else, also when absent.
  virtual bool isReturnParameter() = 0;

  // Writes "1" for true, "0" for false. The operation's other parameters keep their flags.
  virtual void setReturnParameter(bool returnParameter) = 0;
};

}  // namespace as

#endif  // AS_ICOMPARAMETER_H_

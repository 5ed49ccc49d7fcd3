// A parameter of a Java service; also a field of one.
#ifndef AS_IJAVAPARAMETER_H_
#define AS_IJAVAPARAMETER_H_

#include "as/IJavaField.h"
#include "as/IParameter.h"

namespace as {

class AS_EXPORT IJavaParameter : virtual public IParameter, virtual public IJavaField {
 public:
  ~IJavaParameter() override;
  AS_RTTI(IJavaParameter)

  // See IJavaField.
  TYPE getType() override = 0;
  void setType(TYPE type) override = 0;
};

}  // namespace as

#endif  // AS_IJAVAPARAMETER_H_

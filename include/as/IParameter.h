// One parameter of an operation, or one parameter type definition of a service.
#ifndef AS_IPARAMETER_H_
#define AS_IPARAMETER_H_

#include "as/IField.h"

namespace as {

// Fields and field attributes are objects of the same kind and cast to this interface too. A
// direction of their own is written and read like a parameter's, but what is inside a parameter
// travels with the parameter.
class AS_EXPORT IParameter : virtual public IField {
 public:
  // Which way the value travels.
  enum BY_TYPE : int {
    BY_IN = 0,
    BY_OUT = 1,
    BY_IO = 2,
  };

  ~IParameter() override;
  AS_RTTI(IParameter)

  // Attribute "byType": BY_IN for "in", BY_OUT for "out", else BY_IO, also when absent. Always the
  // element's own, reference or not.
  virtual BY_TYPE getByType() = 0;

  // Writes attribute "byType": "in", "out", and "io" for every other value.
  virtual void setByType(BY_TYPE byType) = 0;

  // The parameter type definition that attribute "ref" names, the nearest of a chain (see
  // as::IField); null when the attribute is absent or empty or finds none. Resolved once, when the
  // document is read: what changes later (the name of a definition) does not change it before the
  // service has been written and read again. No operation makes a reference.
  virtual IParameter* getReferenceType() = 0;
};

}  // namespace as

#endif  // AS_IPARAMETER_H_

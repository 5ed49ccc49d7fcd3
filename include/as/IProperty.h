// A named value attached to a program or a service. Properties are read only.
#ifndef AS_IPROPERTY_H_
#define AS_IPROPERTY_H_

#include "as/IElement.h"

namespace as {

class AS_EXPORT IProperty : virtual public IElement {
 public:
  ~IProperty() override;
  AS_RTTI(IProperty)

  // Attribute "value"; empty when absent.
  virtual std::string getValue() = 0;

  // Attribute "name"; empty when absent.
  virtual std::string getName() = 0;
};

}  // namespace as

#endif  // AS_IPROPERTY_H_

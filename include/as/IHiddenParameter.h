// A mapping that callers of the operation do not see: feeds a fixed value into a data item.
#ifndef AS_IHIDDENPARAMETER_H_
#define AS_IHIDDENPARAMETER_H_

#include <string>

#include "as/IMapping.h"

namespace as {

// Its data item is set and read as that of any mapping.
class AS_EXPORT IHiddenParameter : virtual public IMapping {
 public:
  ~IHiddenParameter() override;
  AS_RTTI(IHiddenParameter)

  // Attribute "value": the fixed value, as text; empty when absent. Nothing checks it against the
  // data item.
  virtual std::string getValue() = 0;

  // Writes the attribute. What setters do with texts is told with as::IElement.
  virtual void setValue(const char* value) = 0;
};

}  // namespace as

#endif  // AS_IHIDDENPARAMETER_H_

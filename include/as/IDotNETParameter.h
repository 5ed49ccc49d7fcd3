// A parameter of a .NET service; also a field of one.
#ifndef AS_IDOTNETPARAMETER_H_
#define AS_IDOTNETPARAMETER_H_

#include <string>

#include "as/IDotNETField.h"
#include "as/IParameter.h"

namespace as {

class AS_EXPORT IDotNETParameter : virtual public IParameter, virtual public IDotNETField {
 public:
  ~IDotNETParameter() override;
  AS_RTTI(IDotNETParameter)

  // See IDotNETField.
  TYPE getType() override = 0;
  void setType(TYPE type) override = 0;
  std::string getTypeToString() override = 0;
};

}  // namespace as

#endif  // AS_IDOTNETPARAMETER_H_

// An operation of a .NET service.
#ifndef AS_IDOTNETOPERATION_H_
#define AS_IDOTNETOPERATION_H_

#include "as/IOperation.h"

namespace as {

// Has no operations of its own. It tells the operations of a .NET service from those of the other
// flavours.
class AS_EXPORT IDotNETOperation : virtual public IOperation {
 public:
  ~IDotNETOperation() override;
  AS_RTTI(IDotNETOperation)
};

}  // namespace as

#endif  // AS_IDOTNETOPERATION_H_

// A .NET service.
#ifndef AS_IDOTNET_H_
#define AS_IDOTNET_H_

#include "as/IService.h"

namespace as {

// Has no operations of its own. The service of a .NET document casts to this interface, the
// services of the other flavours do not: neither does a new .NET service once it is written and
// read, which makes it a Web service. Its operations are as::IDotNETOperation objects, its
// parameters and fields as::IDotNETParameter objects.
class AS_EXPORT IDotNET : virtual public IService {
 public:
  ~IDotNET() override;
  AS_RTTI(IDotNET)
};

}  // namespace as

#endif  // AS_IDOTNET_H_

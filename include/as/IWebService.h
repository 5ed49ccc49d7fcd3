// A Web service.
#ifndef AS_IWEBSERVICE_H_
#define AS_IWEBSERVICE_H_

#include "as/IService.h"

namespace as {

// Has no operations of its own. The service of a Web service document casts to this interface, the
// services of the other flavours do not. It is one by its namespace, whatever getImplementation()
// answers. Its operations are as::IWSOperation objects, its parameters and fields as::IWSParameter
// objects.
class AS_EXPORT IWebService : virtual public IService {
 public:
  ~IWebService() override;
  AS_RTTI(IWebService)
};

}  // namespace as

#endif  // AS_IWEBSERVICE_H_

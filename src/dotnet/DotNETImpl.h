// A .NET service: a plain service with a type of its own to be told by.
#ifndef DOTNET_DOTNETIMPL_H_
#define DOTNET_DOTNETIMPL_H_

#include "as/IDotNET.h"
#include "service/ServiceImpl.h"

class CDotNETImpl : virtual public as::IDotNET, virtual public CServiceImpl {
 public:
  explicit CDotNETImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CServiceImpl(element) {}
  AS_IDENTITY(CDotNETImpl)
};

#endif  // DOTNET_DOTNETIMPL_H_

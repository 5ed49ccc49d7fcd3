// An operation of a .NET service: a plain one with a type of its own to be told by.
#ifndef DOTNET_DOTNETOPERATIONIMPL_H_
#define DOTNET_DOTNETOPERATIONIMPL_H_

#include "as/IDotNETOperation.h"
#include "service/OperationImpl.h"

class CDotNETOperationImpl : virtual public as::IDotNETOperation, virtual public COperationImpl {
 public:
  explicit CDotNETOperationImpl(xercesc::DOMElement* element)
      : CElementImpl(element), COperationImpl(element) {}
  AS_IDENTITY(CDotNETOperationImpl)
};

#endif  // DOTNET_DOTNETOPERATIONIMPL_H_

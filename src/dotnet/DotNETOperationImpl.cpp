#include "dotnet/DotNETOperationImpl.h"

AS_DEFINE_IDENTITY2(CDotNETOperationImpl, as::IDotNETOperation, COperationImpl)

CDotNETOperationImpl::CDotNETOperationImpl(xercesc::DOMElement* element)
    : CElementImpl(element), COperationImpl(element) {}

CDotNETOperationImpl::~CDotNETOperationImpl() = default;

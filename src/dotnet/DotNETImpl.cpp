#include "dotnet/DotNETImpl.h"

AS_DEFINE_IDENTITY2(CDotNETImpl, as::IDotNET, CServiceImpl)

CDotNETImpl::CDotNETImpl(xercesc::DOMElement* element)
    : CElementImpl(element), CServiceImpl(element) {}

CDotNETImpl::~CDotNETImpl() = default;

#include "ws/WSFaultImpl.h"

AS_DEFINE_IDENTITY2(CWSFaultImpl, as::IWSFault, CElementImpl)

CWSFaultImpl::CWSFaultImpl(xercesc::DOMElement* element)
    : CElementImpl(element), WSMessagePart(element) {}

CWSFaultImpl::~CWSFaultImpl() = default;

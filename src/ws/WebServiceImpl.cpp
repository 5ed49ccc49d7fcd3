#include "ws/WebServiceImpl.h"

AS_DEFINE_IDENTITY2(CWebServiceImpl, as::IWebService, CServiceImpl)

CWebServiceImpl::CWebServiceImpl(xercesc::DOMElement* element)
    : CElementImpl(element), CServiceImpl(element) {}

CWebServiceImpl::~CWebServiceImpl() = default;

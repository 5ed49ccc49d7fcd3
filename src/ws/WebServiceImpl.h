// A Web service: a plain service with a type of its own to be told by.
#ifndef WS_WEBSERVICEIMPL_H_
#define WS_WEBSERVICEIMPL_H_

#include "as/IWebService.h"
#include "service/ServiceImpl.h"

class CWebServiceImpl : virtual public as::IWebService, virtual public CServiceImpl {
 public:
  explicit CWebServiceImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CServiceImpl(element) {}
  AS_IDENTITY(CWebServiceImpl)
};

#endif  // WS_WEBSERVICEIMPL_H_

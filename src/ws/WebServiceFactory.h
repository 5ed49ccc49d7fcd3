// Creates what is added to Web services, and new Web services.
#ifndef WS_WEBSERVICEFACTORY_H_
#define WS_WEBSERVICEFACTORY_H_

#include "service/ServiceFactory.h"

class CWSFaultImpl;
class CWSHeaderImpl;
class CWSParameterImpl;

class CWebServiceFactory : public CServiceFactory {
 public:
  using CServiceFactory::CServiceFactory;

  CServiceImpl* createService() override;
  CParameterImpl* newParameter(xercesc::DOMElement* element) override;
  COperationImpl* newOperation(xercesc::DOMElement* element) override;
  CServiceImpl* newService(xercesc::DOMElement* element) override;

  // A new element, not yet in the tree, with its empty list and its wrapper.
  CWSHeaderImpl* createHeader();
  CWSFaultImpl* createFault();
  CWSParameterImpl* createFieldAttribute();
};

#endif  // WS_WEBSERVICEFACTORY_H_

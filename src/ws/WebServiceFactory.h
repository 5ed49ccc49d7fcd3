// Creates what is added to Web services, and new Web services.
#ifndef WS_WEBSERVICEFACTORY_H_
#define WS_WEBSERVICEFACTORY_H_

#include "service/ServiceFactory.h"
#include "ws/WSFaultImpl.h"
#include "ws/WSHeaderImpl.h"
#include "ws/WSParameterImpl.h"

class CWebServiceFactory : public CServiceFactory {
 public:
  using CServiceFactory::CServiceFactory;

  std::unique_ptr<CServiceImpl> createService() override;
  CParameterImpl* newParameter(xercesc::DOMElement* element) override;
  COperationImpl* newOperation(xercesc::DOMElement* element) override;
  std::unique_ptr<CServiceImpl> newService(xercesc::DOMElement* element) override;

  CWSHeaderImpl* createHeader() override;
  CWSFaultImpl* createFault() override;
  CWSParameterImpl* createFieldAttribute() override;
};

#endif  // WS_WEBSERVICEFACTORY_H_

// Creates what is added to .NET services, and new .NET services.
#ifndef DOTNET_DOTNETFACTORY_H_
#define DOTNET_DOTNETFACTORY_H_

#include "service/ServiceFactory.h"

class CDotNETFactory : public CServiceFactory {
 public:
  using CServiceFactory::CServiceFactory;

  std::unique_ptr<CServiceImpl> createService() override;
  CParameterImpl* newParameter(xercesc::DOMElement* element) override;
  COperationImpl* newOperation(xercesc::DOMElement* element) override;
  std::unique_ptr<CServiceImpl> newService(xercesc::DOMElement* element) override;
};

#endif  // DOTNET_DOTNETFACTORY_H_

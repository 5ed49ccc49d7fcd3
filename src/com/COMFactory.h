// Creates what is added to COM services, and new COM services.
#ifndef COM_COMFACTORY_H_
#define COM_COMFACTORY_H_

#include "service/ServiceFactory.h"

class CCOMFactory : public CServiceFactory {
 public:
  using CServiceFactory::CServiceFactory;

  std::unique_ptr<CServiceImpl> createService() override;
  CParameterImpl* newParameter(xercesc::DOMElement* element) override;
};

#endif  // COM_COMFACTORY_H_

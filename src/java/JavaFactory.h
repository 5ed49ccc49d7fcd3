// Creates what is added to Java services, and new Java services.
#ifndef JAVA_JAVAFACTORY_H_
#define JAVA_JAVAFACTORY_H_

#include "service/ServiceFactory.h"

class CJavaFactory : public CServiceFactory {
 public:
  using CServiceFactory::CServiceFactory;

  std::unique_ptr<CServiceImpl> createService() override;
  CParameterImpl* newParameter(xercesc::DOMElement* element) override;
  COperationImpl* newOperation(xercesc::DOMElement* element) override;
};

#endif  // JAVA_JAVAFACTORY_H_

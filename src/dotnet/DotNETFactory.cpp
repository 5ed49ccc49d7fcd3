#include "dotnet/DotNETFactory.h"

#include "dotnet/DotNETImpl.h"
#include "dotnet/DotNETOperationImpl.h"
#include "dotnet/DotNETParameterImpl.h"
#include "service/ServiceImpl.h"
#include "xml/Vocabulary.h"

std::unique_ptr<CServiceImpl> CDotNETFactory::createService() {
  // New .NET documents are written in the Web service namespace; "implementation" tells them apart.
  return createServiceDocument(XSDNS::wsURI, XSDNS::wsSchemaLocation, as::IService::TYPE_DOTNET);
}

CParameterImpl* CDotNETFactory::newParameter(xercesc::DOMElement* element) {
  return newWrapper<CDotNETParameterImpl>(element);
}

COperationImpl* CDotNETFactory::newOperation(xercesc::DOMElement* element) {
  return newWrapper<CDotNETOperationImpl>(element);
}

std::unique_ptr<CServiceImpl> CDotNETFactory::newService(xercesc::DOMElement* element) {
  return newRoot<CDotNETImpl>(element);
}

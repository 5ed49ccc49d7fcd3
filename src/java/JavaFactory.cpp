#include "java/JavaFactory.h"

#include "java/JavaOperationImpl.h"
#include "java/JavaParameterImpl.h"
#include "service/ServiceImpl.h"
#include "xml/Vocabulary.h"

std::unique_ptr<CServiceImpl> CJavaFactory::createService() {
  return createServiceDocument(XSDNS::javaURI, XSDNS::javaSchemaLocation, as::IService::TYPE_JAVA);
}

CParameterImpl* CJavaFactory::newParameter(xercesc::DOMElement* element) {
  return newWrapper<CJavaParameterImpl>(element);
}

COperationImpl* CJavaFactory::newOperation(xercesc::DOMElement* element) {
  return newWrapper<CJavaOperationImpl>(element);
}

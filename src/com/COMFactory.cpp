#include "com/COMFactory.h"

#include "com/COMParameterImpl.h"
#include "service/ServiceImpl.h"
#include "xml/Vocabulary.h"

std::unique_ptr<CServiceImpl> CCOMFactory::createService() {
  return createServiceDocument(XSDNS::comURI, XSDNS::comSchemaLocation, as::IService::TYPE_COM);
}

CParameterImpl* CCOMFactory::newParameter(xercesc::DOMElement* element) {
  return newWrapper<CCOMParameterImpl>(element);
}

#include "ws/WebServiceFactory.h"

#include "service/SSVocabulary.h"
#include "service/ServiceImpl.h"
#include "ws/WSOperationImpl.h"
#include "ws/WSSVocabulary.h"
#include "ws/WebServiceImpl.h"
#include "xml/Vocabulary.h"

std::unique_ptr<CServiceImpl> CWebServiceFactory::createService() {
  return createServiceDocument(XSDNS::wsURI, XSDNS::wsSchemaLocation, as::IService::TYPE_WS);
}

CParameterImpl* CWebServiceFactory::newParameter(xercesc::DOMElement* element) {
  return newWrapper<CWSParameterImpl>(element);
}

COperationImpl* CWebServiceFactory::newOperation(xercesc::DOMElement* element) {
  return newWrapper<CWSOperationImpl>(element);
}

std::unique_ptr<CServiceImpl> CWebServiceFactory::newService(xercesc::DOMElement* element) {
  return newRoot<CWebServiceImpl>(element);
}

CWSHeaderImpl* CWebServiceFactory::createHeader() {
  return newWrapper<CWSHeaderImpl>(createElementWithLists(WSS::header, SS::parameters));
}

CWSFaultImpl* CWebServiceFactory::createFault() {
  return newWrapper<CWSFaultImpl>(createElementWithLists(WSS::fault, SS::parameters));
}

CWSParameterImpl* CWebServiceFactory::createFieldAttribute() {
  return as::interface_cast<CWSParameterImpl>(
      newParameter(createElementWithLists(WSS::fieldAttribute, SS::mappings)));
}

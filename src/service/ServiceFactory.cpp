#include "service/ServiceFactory.h"

#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMImplementationRegistry.hpp>

#include "service/HiddenParameterImpl.h"
#include "service/MappingImpl.h"
#include "service/OperationImpl.h"
#include "service/ParameterImpl.h"
#include "service/SSVocabulary.h"
#include "service/ServiceImpl.h"
#include "xml/Vocabulary.h"

using xercesc::DOMElement;
using xercesc::DOMImplementationRegistry;
using xercesc::DOMNode;

CServiceFactory::~CServiceFactory() = default;

CHiddenParameterImpl* CServiceFactory::newHiddenParameter(DOMElement* element) {
  return newWrapper<CHiddenParameterImpl>(element);
}

CParameterImpl* CServiceFactory::newParameter(DOMElement* element) {
  return newWrapper<CParameterImpl>(element);
}

COperationImpl* CServiceFactory::newOperation(DOMElement* element) {
  return newWrapper<COperationImpl>(element);
}

CMappingImpl* CServiceFactory::newMapping(DOMElement* element) {
  return newWrapper<CMappingImpl>(element);
}

CServiceImpl* CServiceFactory::newService(DOMElement* element) {
  return newWrapper<CServiceImpl>(element);
}

COperationImpl* CServiceFactory::createOperation() {
  return newOperation(createElementWithLists(SS::operation, SS::hiddenParameters, SS::parameters));
}

CParameterImpl* CServiceFactory::createParameter() {
  return newParameter(createElementWithLists(SS::parameter, SS::mappings));
}

CParameterImpl* CServiceFactory::createField() {
  return newParameter(createElementWithLists(SS::field, SS::mappings));
}

CHiddenParameterImpl* CServiceFactory::createHiddenParameter() {
  return newHiddenParameter(createElement(SS::hiddenParameter));
}

CMappingImpl* CServiceFactory::createMapping() { return newMapping(createElement(SS::mapping)); }

CList* CServiceFactory::createList(const CElementImpl& owner, const XMLCh* name, DOMNode* before) {
  auto* element = static_cast<DOMElement*>(CElementImpl::getNamedChild(owner.getElement(), name));
  if (element == nullptr) {
    element = createElement(name);
    owner.getElement()->insertBefore(element, before);
  }
  auto list = std::make_unique<CList>(element);
  list->setOwned();
  return list.release();
}

CServiceImpl* CServiceFactory::createServiceDocument(const XMLCh* xmlns,
                                                     const XMLCh* schemaLocation,
                                                     as::IService::TYPE type) {
  // Every flavour's root is created in the Web service namespace; what the document says of itself
  // stands in its "xmlns" attribute, and that is what is written.
  owned_.reset(DOMImplementationRegistry::getDOMImplementation(XMLNS::core)
                   ->createDocument(XSDNS::wsURI, SS::service, nullptr));
  document_ = owned_.get();
  DOMElement* const root = document_->getDocumentElement();
  root->setAttribute(XMLNS::xmlns, xmlns);
  root->setAttributeNS(XSDNS::xmlURI, XMLNS::xmlnsxsi, XSDNS::xsiURI);
  root->setAttributeNS(XSDNS::xsiURI, XMLNS::xsischemaLocation, schemaLocation);
  for (const XMLCh* const list : {SS::properties, SS::parameterTypeDefs, SS::operations}) {
    appendList(root, list);
  }
  std::unique_ptr<CServiceImpl> service(newService(root));
  service->collectChildren();
  service->setImplementation(type);
  CElementImpl::bind(document_, service.get());
  return service.release();
}

DOMElement* CServiceFactory::createElement(const XMLCh* name) {
  return document_->createElementNS(document_->getNamespaceURI(), name);
}

void CServiceFactory::appendList(DOMElement* parent, const XMLCh* name) {
  DOMElement* const element = createElement(name);
  auto list = std::make_unique<CList>(element);
  parent->appendChild(element);
  // Found by its element, and taken in, when the parent's wrapper collects its children.
  static_cast<void>(list.release());
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)

#include "service/ServiceFactory.h"

#include <utility>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMImplementationRegistry.hpp>

#include "service/HiddenParameterImpl.h"
#include "service/MappingImpl.h"
#include "service/OperationImpl.h"
#include "service/ParameterImpl.h"
#include "service/SSVocabulary.h"
#include "service/ServiceImpl.h"
#include "xml/OutOfMemory.h"
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

std::unique_ptr<CServiceImpl> CServiceFactory::newService(DOMElement* element) {
  return newRoot<CServiceImpl>(element);
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

CElementImpl* CServiceFactory::createHeader() { return nullptr; }

CElementImpl* CServiceFactory::createFault() { return nullptr; }

CParameterImpl* CServiceFactory::createFieldAttribute() { return nullptr; }

void CServiceFactory::append(const CElementImpl& owner, CList*& list, const XMLCh* name,
                             DOMNode* before, DOMElement* child) {
  if (list != nullptr) {
    list->addChild(child);
  } else {
    list = owner.getFactory()->startList(owner, name, before, child);
  }
}

CList* CServiceFactory::startList(const CElementImpl& owner, const XMLCh* name, DOMNode* before,
                                  DOMElement* first) {
  DOMNode* const there = CElementImpl::getNamedChild(owner.getElement(), name);
  auto* const element = there != nullptr ? static_cast<DOMElement*>(there) : createElement(name);
  auto* list = as::interface_cast<CList>(CElementImpl::wrapperOf(element));
  if (list == nullptr) list = pool_->make<CList>(element);
  list->addChild(first);
  if (there == nullptr) orBadAlloc([&] { owner.getElement()->insertBefore(element, before); });
  return list;
}

std::unique_ptr<CServiceImpl> CServiceFactory::createServiceDocument(const XMLCh* xmlns,
                                                                     const XMLCh* schemaLocation,
                                                                     as::IService::TYPE type) {
  // Every flavour's root is created in the Web service namespace; what the document says of itself
  // stands in its "xmlns" attribute, and that is what is written.
  DocumentPointer document(DOMImplementationRegistry::getDOMImplementation(XMLNS::core)
                               ->createDocument(XSDNS::wsURI, SS::service, nullptr));
  auto pool = std::make_unique<WrapperPool>();
  document_ = document.get();
  pool_ = pool.get();
  DOMElement* const root = document_->getDocumentElement();
  root->setAttribute(XMLNS::xmlns, xmlns);
  root->setAttributeNS(XSDNS::xmlURI, XMLNS::xmlnsxsi, XSDNS::xsiURI);
  root->setAttributeNS(XSDNS::xsiURI, XMLNS::xsischemaLocation, schemaLocation);
  for (const XMLCh* const list : {SS::properties, SS::parameterTypeDefs, SS::operations}) {
    appendList(root, list);
  }
  std::unique_ptr<CServiceImpl> service = newService(root);
  service->setImplementation(type);
  CElementImpl::bind(document_, service.get());
  service->setDocument(std::move(document));
  service->setPool(std::move(pool));
  return service;
}

DOMElement* CServiceFactory::createElement(const XMLCh* name) {
  return orBadAlloc([&] { return document_->createElementNS(document_->getNamespaceURI(), name); });
}

void CServiceFactory::appendList(DOMElement* parent, const XMLCh* name) {
  DOMElement* const element = createElement(name);
  pool_->make<CList>(element);  // Found by its element when the parent collects its children.
  orBadAlloc([&] { parent->appendChild(element); });
}

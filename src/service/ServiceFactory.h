// Creates what the library itself adds to a service document: elements with their wrappers, and
// whole new documents. One subclass a flavour.
#ifndef SERVICE_SERVICEFACTORY_H_
#define SERVICE_SERVICEFACTORY_H_

#include <memory>
#include <xercesc/dom/DOMDocument.hpp>

#include "as/IService.h"
#include "xml/ElementImpl.h"
#include "xml/List.h"

class CHiddenParameterImpl;
class CMappingImpl;
class COperationImpl;
class CParameterImpl;
class CServiceImpl;

// New elements carry no namespace of their own; the serialiser writes them into their document's.
class CServiceFactory {
 public:
  // For a new document, which the factory creates and owns ...
  CServiceFactory() = default;
  // ... or for one that is there already and belongs to its parser.
  explicit CServiceFactory(xercesc::DOMDocument* document) : document_(document) {}
  virtual ~CServiceFactory();

  CServiceFactory(const CServiceFactory&) = delete;
  CServiceFactory& operator=(const CServiceFactory&) = delete;

  // A new, empty service document of the flavour; the caller owns the service, the factory the
  // document.
  virtual CServiceImpl* createService() = 0;

  // A new wrapper around the element, its children collected.
  virtual CHiddenParameterImpl* newHiddenParameter(xercesc::DOMElement* element);
  virtual CParameterImpl* newParameter(xercesc::DOMElement* element);
  virtual COperationImpl* newOperation(xercesc::DOMElement* element);
  virtual CMappingImpl* newMapping(xercesc::DOMElement* element);
  virtual CServiceImpl* newService(xercesc::DOMElement* element);

  // A new element, not yet in the tree, with its empty lists and its wrapper.
  COperationImpl* createOperation();
  CParameterImpl* createParameter();
  CParameterImpl* createField();
  CHiddenParameterImpl* createHiddenParameter();
  CMappingImpl* createMapping();

  // A new list, the caller's, over the list child `name` of `owner`: over the one that is there but
  // that the owner has not collected, else over a new one in front of `before` (null: behind
  // everything).
  CList* createList(const CElementImpl& owner, const XMLCh* name, xercesc::DOMNode* before);

 protected:
  // A new document of a flavour: see createService(). `type` is what "implementation" says.
  CServiceImpl* createServiceDocument(const XMLCh* xmlns, const XMLCh* schemaLocation,
                                      as::IService::TYPE type);

  xercesc::DOMElement* createElement(const XMLCh* name);
  // A new element `name` with the empty list children given.
  template <class... Names>
  xercesc::DOMElement* createElementWithLists(const XMLCh* name, Names... lists) {
    xercesc::DOMElement* const element = createElement(name);
    (appendList(element, lists), ...);
    return element;
  }

  // A new Wrapper around `element`, bound and with its children collected.
  template <class Wrapper>
  static Wrapper* newWrapper(xercesc::DOMElement* element) {
    auto wrapper = std::make_unique<Wrapper>(element);
    CElementImpl::bind(element, wrapper.get());
    wrapper->collectChildren();
    return wrapper.release();
  }

 private:
  struct Release {
    void operator()(xercesc::DOMDocument* document) const { document->release(); }
  };

  void appendList(xercesc::DOMElement* parent, const XMLCh* name);

  xercesc::DOMDocument* document_ = nullptr;
  std::unique_ptr<xercesc::DOMDocument, Release> owned_;
};

#endif  // SERVICE_SERVICEFACTORY_H_

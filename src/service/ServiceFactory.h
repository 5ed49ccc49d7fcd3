// Creates what the library itself adds to a service document: elements with their wrappers, and
// whole new documents. One subclass a flavour.
#ifndef SERVICE_SERVICEFACTORY_H_
#define SERVICE_SERVICEFACTORY_H_

#include <memory>
#include <xercesc/dom/DOMDocument.hpp>

#include "as/IService.h"
#include "xml/ElementImpl.h"
#include "xml/List.h"
#include "xml/WrapperPool.h"

class CHiddenParameterImpl;
class CMappingImpl;
class COperationImpl;
class CParameterImpl;
class CServiceImpl;

// New elements carry no namespace of their own; the serialiser writes them into their document's.
// New wrappers are made in the document's pool. What is created joins the document only when it is
// complete: an addition that fails leaves the document and its lists as they were.
class CServiceFactory {
 public:
  // For a new document, which createService() creates ...
  CServiceFactory() = default;
  // ... or for one that is there already, with its wrappers. Neither is owned.
  CServiceFactory(xercesc::DOMDocument* document, WrapperPool& pool)
      : document_(document), pool_(&pool) {}
  virtual ~CServiceFactory();

  CServiceFactory(const CServiceFactory&) = delete;
  CServiceFactory& operator=(const CServiceFactory&) = delete;

  // The service of a new, empty document of the flavour, which it owns. The factory adds to that
  // document from then on.
  virtual std::unique_ptr<CServiceImpl> createService() = 0;

  // A new wrapper around the element, its children collected. A service, being a root, is not the
  // pool's but the caller's.
  virtual CHiddenParameterImpl* newHiddenParameter(xercesc::DOMElement* element);
  virtual CParameterImpl* newParameter(xercesc::DOMElement* element);
  virtual COperationImpl* newOperation(xercesc::DOMElement* element);
  virtual CMappingImpl* newMapping(xercesc::DOMElement* element);
  virtual std::unique_ptr<CServiceImpl> newService(xercesc::DOMElement* element);

  // A new element, not yet in the tree, with its empty lists and its wrapper.
  COperationImpl* createOperation();
  CParameterImpl* createParameter();
  CParameterImpl* createField();
  CHiddenParameterImpl* createHiddenParameter();
  CMappingImpl* createMapping();
  // The same of what only Web services have; null in every other flavour.
  virtual CElementImpl* createHeader();
  virtual CElementImpl* createFault();
  virtual CParameterImpl* createFieldAttribute();

  // Appends `child`, a complete element of the document of `owner`, to the owner's list `list`. An
  // owner without that list (null) gets it with its first member: over its child `name`, if it has
  // one that it has not collected, else over a new one in front of `before` (null: behind
  // everything).
  static void append(const CElementImpl& owner, CList*& list, const XMLCh* name,
                     xercesc::DOMNode* before, xercesc::DOMElement* child);

 protected:
  // A new document of a flavour: see createService(). `type` is what "implementation" says.
  std::unique_ptr<CServiceImpl> createServiceDocument(const XMLCh* xmlns,
                                                      const XMLCh* schemaLocation,
                                                      as::IService::TYPE type);

  xercesc::DOMElement* createElement(const XMLCh* name);
  // A new element `name` with the empty list children given.
  template <class... Names>
  xercesc::DOMElement* createElementWithLists(const XMLCh* name, Names... lists) {
    xercesc::DOMElement* const element = createElement(name);
    (appendList(element, lists), ...);
    return element;
  }

  // A new Wrapper around `element` with its children collected, in the pool ...
  template <class Wrapper>
  Wrapper* newWrapper(xercesc::DOMElement* element) {
    auto* const wrapper = pool_->make<Wrapper>(element);
    wrapper->collectChildren();
    return wrapper;
  }
  // ... or by itself.
  template <class Root>
  static std::unique_ptr<Root> newRoot(xercesc::DOMElement* element) {
    auto root = std::make_unique<Root>(element);
    root->collectChildren();
    return root;
  }

 private:
  void appendList(xercesc::DOMElement* parent, const XMLCh* name);
  CList* startList(const CElementImpl& owner, const XMLCh* name, xercesc::DOMNode* before,
                   xercesc::DOMElement* first);

  xercesc::DOMDocument* document_ = nullptr;
  WrapperPool* pool_ = nullptr;
};

#endif  // SERVICE_SERVICEFACTORY_H_

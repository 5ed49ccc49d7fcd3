// The base of every wrapper: one model object around one DOM element.
#ifndef XML_ELEMENTIMPL_H_
#define XML_ELEMENTIMPL_H_

#include <string>
#include <xercesc/dom/DOMElement.hpp>

#include "as/IElement.h"
#include "xml/AttributeName.h"
#include "xml/Identity.h"

class CServiceFactory;
class CServiceImpl;
class ReadElement;

// Binding: a wrapped element carries its wrapper, seen as CElementImpl, as DOM user data under
// APIDATA_KEY, and the document carries the root's wrapper. There is no user-data handler: the DOM
// never calls back into the model.
//
// Ownership: a wrapper owns neither DOM nodes nor other wrappers, unless it is a root's (see
// WrapperPool); the document must outlive it. Its destructor leaves the element's user data as it
// is, so wrappers are destroyed only when a whole model goes.
class CElementImpl : virtual public as::IElement {
 public:
  // Binds the wrapper to `element`, in place of any earlier one. A null element makes an unbound
  // wrapper. Nothing that the classes derived from this construct binds again, or can fail: a
  // wrapper that an element is bound to is always a whole one.
  explicit CElementImpl(xercesc::DOMElement* element);
  ~CElementImpl() override;
  AS_IDENTITY(CElementImpl)

  CElementImpl(const CElementImpl&) = delete;
  CElementImpl& operator=(const CElementImpl&) = delete;

  void* getUserData() override;
  void setUserData(void* data) override;
  std::string getAttributeValue(const char* name) override;

  // Fills the object's lists. Called once, when every wrapper of the document exists.
  virtual void collectChildren();

  // The wrapped element; null only for an unbound wrapper.
  xercesc::DOMElement* getElement() const { return element_; }

  // Its name without a prefix.
  const XMLCh* localName() const;
  // The value of an attribute as it stands in the DOM; empty, never null, for an absent one.
  const XMLCh* wide(AttributeName attribute) const;

  // The wrapper of the first child element of that local name, in whatever namespace; null when
  // there is no such child or it carries no wrapper.
  CElementImpl* getNamedChild(const XMLCh* localName);
  // The first child element of `node` of that local name; null when there is none.
  static xercesc::DOMNode* getNamedChild(const xercesc::DOMNode* node, const XMLCh* localName);

  // Both return null whatever they are given: the walk upwards is bounded by the node that it
  // starts from. Kept for its callers' sake; nothing may rely on them to find an ancestor.
  CElementImpl* getNamedParent(const XMLCh* localName);
  static xercesc::DOMNode* getNamedParent(const xercesc::DOMNode* node, const XMLCh* localName);

  // Whether the pool has told which wrappers are those of the child elements (see
  // WrapperPool::close()), and these wrappers, the last first.
  bool knowsChildren() const { return beforeSubtree_ != this; }
  template <class Visit>
  void visitChildrenBackwards(const Visit& visit) const {
    for (CElementImpl* at = madeBefore_; at != beforeSubtree_; at = at->beforeSubtree_) visit(at);
  }

  // For whoever will ask for the object soon: has the processor fetch it, without waiting for it;
  // and, once it is there, what its accessors read. A large model is in no cache: to wait for each
  // object is a quarter of the time of reading it.
  void fetch() const {
    constexpr int line = 64;
    __builtin_prefetch(this);
    __builtin_prefetch(reinterpret_cast<const char*>(this) - line);
  }
  void fetchElement() const;

  // Binds `wrapper` to the node that it wraps, in place of any earlier one.
  static void bind(xercesc::DOMNode* node, CElementImpl* wrapper);
  // The wrapper bound to `node`; null when there is none and for a null node.
  static CElementImpl* wrapperOf(const xercesc::DOMNode* node);
  // The wrapper of the root of the document that `node` stands in; null when there is none.
  static CElementImpl* rootOf(const xercesc::DOMNode* node);

  // The service that the element belongs to, and its factory, which every operation that adds to a
  // document gets its new elements from. Null outside service documents and before the root is
  // bound to the document. (Defined with the service.)
  CServiceImpl* getService() const;
  CServiceFactory* getFactory() const;

 protected:
  // An unbound wrapper.
  CElementImpl() = default;

  // The value of an attribute as text, integer and truth (CXStr's conversions).
  std::string text(AttributeName attribute) const;
  int integer(AttributeName attribute) const;
  bool truth(AttributeName attribute) const;
  // Writes an attribute. A null C text counts as an empty one; a null word writes nothing. When
  // memory runs out, std::bad_alloc is thrown, and the attribute has its old or its new value.
  void write(const XMLCh* attribute, const char* value);
  void write(const XMLCh* attribute, const std::string& value);
  void write(const XMLCh* attribute, const XMLCh* word);

  // Keeps the list that wraps the child of that name in `member` and has it collect its members. A
  // missing child, or one whose wrapper is no such list, leaves `member` as it is. Done again, it
  // finds the same list, which has its members already.
  template <class List>
  void collectNamedList(const XMLCh* localName, List*& member) {
    List* const list = as::interface_cast<List>(getNamedChild(localName));
    if (list == nullptr || list == member) return;
    member = list;
    list->collectChildren();
  }

  // For a list that shows the children of an element without being its wrapper.
  void pointAt(xercesc::DOMElement* element);

 private:
  friend class WrapperPool;

  void* userData_ = nullptr;
  xercesc::DOMElement* element_ = nullptr;
  // The same, where it is an element that was read: asked directly, it need not be looked at to
  // find out what it is.
  const ReadElement* read_ = nullptr;
  // The pool's: the wrapper made before this one, and the one made before all below this one. This
  // itself: not known.
  CElementImpl* madeBefore_ = nullptr;
  CElementImpl* beforeSubtree_ = this;
};

#endif  // XML_ELEMENTIMPL_H_

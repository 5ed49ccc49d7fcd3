// The one list of the model: those children of an element that a filter accepts.
#ifndef XML_LIST_H_
#define XML_LIST_H_

#include <vector>
#include <xercesc/dom/DOMNodeFilter.hpp>

#include "as/IList.h"
#include "xml/ElementImpl.h"

// A list wraps an element, or shows children of the element of the object that it is a member of
// (see UnboundList). It is filled once, when that object collects its children, and grows
// afterwards only through addChild(). It points at its members; they live in their document's
// WrapperPool.
class CList : virtual public as::IList, virtual public CElementImpl {
 public:
  // Empty, and with no filter: filled, it holds every child element.
  explicit CList(xercesc::DOMElement* element) : CElementImpl(element) {}
  AS_IDENTITY(CList)

  int getLength() override;
  as::IElement* getItem(int index) override;
  void collectChildren() override;

  // Called for every member as the list is filled.
  virtual void onAddChild(CElementImpl* child);

  // REQUIRES (both): 0 <= index < getLength(). Members are asked for in their order, nearly always:
  // those that come next are fetched meanwhile.
  xercesc::DOMElement* getNode(int index) const;
  CElementImpl* getElement(int index) const;
  using CElementImpl::getElement;

  // The first member, from number `from` on, whose element has that value of an attribute; -1 for
  // none. Compared where it stands in the document, which is much faster than asking the members.
  int find(const XMLCh* attribute, const XMLCh* value, int from = 0) const;

  // Appends every child element that the filter accepts, in document order, each with its own
  // children collected before the next. REQUIRES: each of them carries its wrapper.
  // Calling it again appends them all again.
  void addChildren() { addChildrenOf(*this); }
  // The same for a list that is a member of `owner`, the wrapper of the list's element.
  void addChildrenOf(const CElementImpl& owner);

  // Appends `child` to the list's element and to the list, or, when it throws, to neither. Its
  // wrapper exists and has collected its children already.
  void addChild(xercesc::DOMElement* child);

  // The list that stands for an absent one. Its length is 0, it wraps nothing.
  static CList emptyList;
  // `list` as the interface, the empty list for null.
  static as::IList* orEmpty(CList* list);

 protected:
  CList() = default;

  // Which children are members; null for all. Not owned.
  void setFilter(const xercesc::DOMNodeFilter* filter) { filter_ = filter; }

 private:
  void add(CElementImpl* member);

  std::vector<CElementImpl*> members_;
  const xercesc::DOMNodeFilter* filter_ = nullptr;
};

#endif  // XML_LIST_H_

#include "xml/List.h"

#include <xercesc/util/XMLString.hpp>

#include "xml/ElementChildren.h"
#include "xml/OutOfMemory.h"

using xercesc::DOMElement;

AS_DEFINE_IDENTITY2(CList, as::IList, CElementImpl)

CList CList::emptyList(nullptr);

int CList::getLength() { return static_cast<int>(members_.size()); }

as::IElement* CList::getItem(int index) {
  if (index < 0 || index >= getLength()) return nullptr;
  return getElement(index);
}

void CList::collectChildren() { addChildren(); }

void CList::onAddChild(CElementImpl* /*child*/) {}

DOMElement* CList::getNode(int index) const { return getElement(index)->getElement(); }

CElementImpl* CList::getElement(int index) const {
  const auto place = static_cast<std::size_t>(index);
  const std::size_t left = members_.size() - place;
  if (left > 2) members_[place + 2]->fetch();
  if (left > 1) members_[place + 1]->fetchElement();
  return members_[place];
}

int CList::find(const XMLCh* attribute, const XMLCh* value, int from) const {
  const int count = static_cast<int>(members_.size());
  for (int i = from; i < count; i++) {
    if (xercesc::XMLString::equals(getElement(i)->wide(attribute), value)) return i;
  }
  return -1;
}

void CList::addChildrenOf(const CElementImpl& owner) {
  if (!owner.knowsChildren()) {
    ElementChildren children(getElement(), filter_);
    while (DOMElement* const child = children.next()) add(wrapperOf(child));
    return;
  }
  // Told by the pool, members cost neither a walk through the document nor a look-up each.
  std::vector<CElementImpl*> backwards;
  owner.visitChildrenBackwards([&](CElementImpl* child) {
    const bool isMember = filter_ == nullptr || filter_->acceptNode(child->getElement()) ==
                                                    xercesc::DOMNodeFilter::FILTER_ACCEPT;
    if (isMember) backwards.push_back(child);
  });
  members_.reserve(members_.size() + backwards.size());
  while (!backwards.empty()) {
    CElementImpl* const member = backwards.back();
    backwards.pop_back();
    add(member);
  }
}

// One by one: a member that refers to others finds those in front of it.
void CList::add(CElementImpl* member) {
  members_.push_back(member);
  onAddChild(member);
  member->collectChildren();
}

void CList::addChild(DOMElement* child) {
  members_.push_back(wrapperOf(child));
  try {
    orBadAlloc([&] { getElement()->appendChild(child); });
  } catch (...) {
    members_.pop_back();
    throw;
  }
}

as::IList* CList::orEmpty(CList* list) {
  return as::interface_cast<as::IList>(list != nullptr ? list : &emptyList);
}

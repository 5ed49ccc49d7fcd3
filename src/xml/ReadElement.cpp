#include "xml/ReadElement.h"

#include <utility>
#include <xercesc/dom/impl/DOMCasts.hpp>
#include <xercesc/util/XMLString.hpp>

#include "as/Globals.h"
#include "xml/Vocabulary.h"

using xercesc::DOMChildNode;
using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMElementImpl;
using xercesc::DOMNode;
using xercesc::DOMText;
using xercesc::DOMTextImpl;

namespace {

bool isOfWrappers(const XMLCh* key) {
  return key == APIDATA_KEY || xercesc::XMLString::equals(key, APIDATA_KEY);
}

// The neighbours of a child. Elements and texts tell by their types what class they are of.
DOMChildNode& linksOf(DOMNode* child) {
  switch (child->getNodeType()) {
    case DOMNode::ELEMENT_NODE:
      return static_cast<DOMElementImpl*>(static_cast<DOMElement*>(child))->fChild;
    case DOMNode::TEXT_NODE:
      return static_cast<DOMTextImpl*>(static_cast<DOMText*>(child))->fChild;
    default:
      return *xercesc::castToChildImpl(child);
  }
}

}  // namespace

ReadElement::ReadElement(DOMDocument* document, const XMLCh* namespaceUri, const XMLCh* prefix,
                         const XMLCh* localName, const XMLCh* qualifiedName)
    : DOMElementNSImpl(document, namespaceUri, prefix, localName, qualifiedName) {
  fAttributes = &attributes_;
}

ReadElement::ReadElement(DOMDocument* document, const XMLCh* namespaceUri, const XMLCh* localName)
    : DOMElementNSImpl(document, u"") {
  fAttributes = &attributes_;
  fName = localName;
  fNamespaceURI = namespaceUri;
  fLocalName = fName;
}

DOMNode* ReadElement::getParentNode() const { return fNode.isOwned() ? fNode.fOwnerNode : nullptr; }

void ReadElement::append(DOMNode* child, xercesc::DOMNodeImpl& node, DOMChildNode& links) {
  node.fOwnerNode = this;
  node.isOwned(true);
  DOMNode*& first = fParent.fFirstChild;
  if (first == nullptr) {
    first = child;
    node.isFirstChild(true);
    links.previousSibling = child;
    return;
  }
  // A first child leads to the last one.
  DOMNode*& last = linksOf(first).previousSibling;
  linksOf(last).nextSibling = child;
  links.previousSibling = last;
  last = child;
}

void* ReadElement::setUserData(const XMLCh* key, void* data, xercesc::DOMUserDataHandler* handler) {
  if (!isOfWrappers(key)) return DOMElementNSImpl::setUserData(key, data, handler);
  if (handler == nullptr && !isInTable_) return std::exchange(wrapper_, data);
  // From the first handler on all of it stands in the table.
  isInTable_ = true;
  void* const inTable = DOMElementNSImpl::setUserData(key, data, handler);
  void* const before = std::exchange(wrapper_, nullptr);
  return before != nullptr ? before : inTable;
}

void* ReadElement::getUserData(const XMLCh* key) const {
  const bool isHere = !isInTable_ && isOfWrappers(key);
  return isHere ? wrapper_ : DOMElementNSImpl::getUserData(key);
}

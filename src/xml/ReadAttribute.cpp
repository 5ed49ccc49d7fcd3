#include "xml/ReadAttribute.h"

#include <xercesc/dom/impl/DOMTextImpl.hpp>

void ReadAttribute::setValueFast(const XMLCh* value) {
  if (value == nullptr || fParent.fFirstChild != nullptr) {
    DOMAttrNSImpl::setValueFast(value);
    return;
  }
  auto* const text =
      static_cast<xercesc::DOMTextImpl*>(fParent.fOwnerDocument->createTextNode(value));
  text->fNode.fOwnerNode = this;
  text->fNode.isOwned(true);
  text->fNode.isFirstChild(true);
  // A first child leads to the last one.
  text->fChild.previousSibling = text;
  fParent.fFirstChild = text;
  fNode.isSpecified(true);
}

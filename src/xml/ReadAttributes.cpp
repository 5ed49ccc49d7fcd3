#include "xml/ReadAttributes.h"

#include <utility>
#include <xercesc/dom/DOMMemoryManager.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>
#include <xercesc/util/XMLString.hpp>

#include "xml/AttributeValue.h"
#include "xml/ReadAttribute.h"
#include "xml/ReadElement.h"

using xercesc::DOMAttr;
using xercesc::DOMDocumentImpl;
using xercesc::DOMNode;
using xercesc::XMLString;

namespace {

DOMDocumentImpl* documentOf(const DOMNode* node) {
  return static_cast<DOMDocumentImpl*>(node->getOwnerDocument());
}

}  // namespace

void ReadAttributes::makeRoom(XMLSize_t count) {
  if (count == 0) return;
  read_ = static_cast<Attribute*>(documentOf(fOwnerNode)->allocate(count * sizeof(Attribute)));
}

void ReadAttributes::add(const XMLCh* name, const XMLCh* value) {
  DOMDocumentImpl* const document = documentOf(fOwnerNode);
  const Attribute added = {name, document->cloneString(value)};
  // In the order of names, as in any map of the DOM.
  std::size_t place = count_;
  for (; place > 0 && XMLString::compareString(read_[place - 1].name, added.name) > 0; place--) {
    read_[place] = read_[place - 1];
  }
  read_[place] = added;
  count_++;
  if (place >= signsThere) return;
  const auto shift = static_cast<unsigned>(place) * AttributeName::bitsOfASign;
  const std::uint64_t before = (std::uint64_t{1} << shift) - 1;
  signs_ = (signs_ & before) | AttributeName::signOf(added.name) << shift |
           (signs_ & ~before) << AttributeName::bitsOfASign;
}

const ReadAttributes::Attribute* ReadAttributes::findBehindSigns(AttributeName name) const {
  for (std::size_t i = signsThere; i < count_; i++) {
    if (name == read_[i].name) return &read_[i];
  }
  return nullptr;
}

const XMLCh* ReadAttributes::valueOfNode(const XMLCh* name) const {
  const DOMNode* const found = DOMAttrMapImpl::getNamedItem(name);
  return found == nullptr ? u"" : ::valueOf(static_cast<const DOMAttr&>(*found));
}

XMLSize_t ReadAttributes::getLength() const {
  return count_ > 0 ? count_ : DOMAttrMapImpl::getLength();
}

DOMNode* ReadAttributes::item(XMLSize_t index) const {
  makeNodes();
  return DOMAttrMapImpl::item(index);
}

int ReadAttributes::findNamePoint(const XMLCh* name) const {
  makeNodes();
  return DOMAttrMapImpl::findNamePoint(name);
}

int ReadAttributes::findNamePoint(const XMLCh* namespaceUri, const XMLCh* localName) const {
  makeNodes();
  return DOMAttrMapImpl::findNamePoint(namespaceUri, localName);
}

DOMNode* ReadAttributes::getNamedItem(const XMLCh* name) const {
  makeNodes();
  return DOMAttrMapImpl::getNamedItem(name);
}

DOMNode* ReadAttributes::getNamedItemNS(const XMLCh* namespaceUri, const XMLCh* localName) const {
  makeNodes();
  return DOMAttrMapImpl::getNamedItemNS(namespaceUri, localName);
}

DOMNode* ReadAttributes::setNamedItem(DOMNode* attribute) {
  makeNodes();
  return DOMAttrMapImpl::setNamedItem(attribute);
}

DOMNode* ReadAttributes::setNamedItemNS(DOMNode* attribute) {
  makeNodes();
  return DOMAttrMapImpl::setNamedItemNS(attribute);
}

DOMNode* ReadAttributes::removeNamedItem(const XMLCh* name) {
  makeNodes();
  return DOMAttrMapImpl::removeNamedItem(name);
}

DOMNode* ReadAttributes::removeNamedItemNS(const XMLCh* namespaceUri, const XMLCh* localName) {
  makeNodes();
  return DOMAttrMapImpl::removeNamedItemNS(namespaceUri, localName);
}

DOMNode* ReadAttributes::removeNamedItemAt(XMLSize_t index) {
  makeNodes();
  return DOMAttrMapImpl::removeNamedItemAt(index);
}

xercesc::DOMAttrMapImpl* ReadAttributes::cloneAttrMap(DOMNode* element) {
  makeNodes();
  return DOMAttrMapImpl::cloneAttrMap(element);
}

void ReadAttributes::setReadOnly(bool isReadOnly, bool isDeep) {
  makeNodes();
  DOMAttrMapImpl::setReadOnly(isReadOnly, isDeep);
}

void ReadAttributes::cloneContent(const DOMAttrMapImpl* other) {
  makeNodes();
  DOMAttrMapImpl::cloneContent(other);
}

// Whoever asks sees no difference.
void ReadAttributes::makeNodes() const {
  if (count_ > 0) ReadElement::of(fOwnerNode)->attributes().makeNodes();
}

void ReadAttributes::makeNodes() {
  if (count_ == 0) return;
  // What the DOM asks for meanwhile are its nodes.
  const std::uint32_t count = std::exchange(count_, 0);
  DOMDocumentImpl* const document = documentOf(fOwnerNode);
  try {
    reserve(count);
    for (const Attribute& attribute : std::span(read_, count)) {
      auto* const node = new (document, xercesc::DOMMemoryManager::ATTR_NS_OBJECT)
          ReadAttribute(document, nullptr, nullptr, attribute.name, attribute.name);
      node->setValueFast(attribute.value);
      // Takes the place of one that an attempt has left which failed.
      setNamedItemNSFast(node);
    }
  } catch (...) {
    count_ = count;
    throw;
  }
}

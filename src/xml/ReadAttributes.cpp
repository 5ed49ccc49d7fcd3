#include "xml/ReadAttributes.h"

#include <bit>
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

constexpr std::size_t signsThere = 8;
constexpr unsigned bitsOfASign = 8;
constexpr std::uint64_t lowestOfEach = 0x0101010101010101;
constexpr std::uint64_t highestOfEach = lowestOfEach << (bitsOfASign - 1);

// The factors tell the attributes of items apart, as far as three letters can.
std::uint64_t signOf(const XMLCh* name) {
  const unsigned first = name[0];
  const unsigned second = first == 0 ? 0U : name[1];
  const unsigned third = second == 0 ? 0U : name[2];
  // The highest bit tells that there is one.
  return ((2 * first + 6 * second + 7 * third) & 0xFF) | 0x80;
}

bool areEqual(const XMLCh* one, const XMLCh* other) {
  for (; *one == *other; one++, other++) {
    if (*one == 0) return true;
  }
  return false;
}

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
  const auto shift = static_cast<unsigned>(place) * bitsOfASign;
  const std::uint64_t before = (std::uint64_t{1} << shift) - 1;
  signs_ = (signs_ & before) | signOf(added.name) << shift | (signs_ & ~before) << bitsOfASign;
}

inline const ReadAttributes::Attribute* ReadAttributes::find(const XMLCh* name) const {
  // Zero where a sign is the one that is looked for.
  const std::uint64_t different = signs_ ^ (signOf(name) * lowestOfEach);
  // A bit in each such place, and sometimes in the one behind it.
  std::uint64_t places = (different - lowestOfEach) & ~different & highestOfEach;
  for (; places != 0; places &= places - 1) {
    const auto place = static_cast<unsigned>(std::countr_zero(places)) / bitsOfASign;
    if (areEqual(read_[place].name, name)) return &read_[place];
  }
  for (std::size_t i = signsThere; i < count_; i++) {
    if (areEqual(read_[i].name, name)) return &read_[i];
  }
  return nullptr;
}

const XMLCh* ReadAttributes::valueOf(const XMLCh* name) const {
  if (count_ == 0) return valueOfNode(name);
  const Attribute* const found = find(name);
  return found == nullptr ? u"" : found->value;
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

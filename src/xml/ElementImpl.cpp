#include "xml/ElementImpl.h"

#include <array>
#include <typeinfo>
#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/util/XMLString.hpp>

#include "xml/AttributeValue.h"
#include "xml/ElementChildren.h"
#include "xml/OutOfMemory.h"
#include "xml/Vocabulary.h"
#include "xml/XStr.h"

using xercesc::DOMAttr;
using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::XMLString;

AS_DEFINE_IDENTITY1(CElementImpl, as::IElement)

namespace {

const ReadElement* asRead(const DOMElement* element) {
  const bool isRead = element != nullptr && typeid(*element) == typeid(ReadElement);
  return isRead ? static_cast<const ReadElement*>(element) : nullptr;
}

}  // namespace

CElementImpl::CElementImpl(DOMElement* element) : element_(element), read_(asRead(element)) {
  if (element != nullptr) bind(element, this);
}

CElementImpl::~CElementImpl() = default;

void* CElementImpl::getUserData() { return userData_; }

void CElementImpl::setUserData(void* data) { userData_ = data; }

std::string CElementImpl::getAttributeValue(const char* name) {
  // Names are a few letters of ASCII, if nobody asks for what there cannot be.
  std::array<XMLCh, 32> few;  // NOLINT(cppcoreguidelines-pro-type-member-init)
  for (std::size_t i = 0; name != nullptr && i < few.size(); i++) {
    const auto letter = static_cast<unsigned char>(name[i]);
    if (letter > 0x7F) break;
    few[i] = letter;
    if (letter != 0) continue;
    return i == 0 || element_ == nullptr ? std::string() : text(few.data());
  }
  CXStr attribute(name);
  if (attribute.isEmpty() || element_ == nullptr) return {};
  return text(static_cast<const XMLCh*>(attribute));
}

void CElementImpl::collectChildren() {}

CElementImpl* CElementImpl::getNamedChild(const XMLCh* localName) {
  return wrapperOf(getNamedChild(element_, localName));
}

DOMNode* CElementImpl::getNamedChild(const DOMNode* node, const XMLCh* localName) {
  if (node == nullptr) return nullptr;
  ElementChildren children(node, nullptr);
  while (DOMElement* const child = children.next()) {
    if (XMLString::compareString(child->getLocalName(), localName) == 0) return child;
  }
  return nullptr;
}

CElementImpl* CElementImpl::getNamedParent(const XMLCh* localName) {
  return wrapperOf(getNamedParent(element_, localName));
}

DOMNode* CElementImpl::getNamedParent(const DOMNode* /*node*/, const XMLCh* /*localName*/) {
  return nullptr;
}

void CElementImpl::bind(DOMNode* node, CElementImpl* wrapper) {
  orBadAlloc([&] { node->setUserData(APIDATA_KEY, wrapper, nullptr); });
}

CElementImpl* CElementImpl::wrapperOf(const DOMNode* node) {
  return node == nullptr ? nullptr : static_cast<CElementImpl*>(node->getUserData(APIDATA_KEY));
}

CElementImpl* CElementImpl::rootOf(const DOMNode* node) {
  return node == nullptr ? nullptr : wrapperOf(node->getOwnerDocument());
}

std::string CElementImpl::text(AttributeName attribute) const { return textOf(wide(attribute)); }

int CElementImpl::integer(AttributeName attribute) const { return integerOf(wide(attribute)); }

bool CElementImpl::truth(AttributeName attribute) const { return truthOf(wide(attribute)); }

const XMLCh* CElementImpl::wide(AttributeName attribute) const {
  if (read_ != nullptr) return read_->attributes().valueOf(attribute);
  const DOMAttr* const found = element_->getAttributeNode(attribute.text());
  return found == nullptr ? u"" : valueOf(*found);
}

void CElementImpl::fetchElement() const {
  if (read_ != nullptr) read_->fetch();
}

const XMLCh* CElementImpl::localName() const {
  return read_ != nullptr ? read_->localName() : element_->getLocalName();
}

void CElementImpl::pointAt(DOMElement* element) {
  element_ = element;
  read_ = asRead(element);
}

void CElementImpl::write(const XMLCh* attribute, const char* value) {
  CXStr converted(value == nullptr ? "" : value);
  write(attribute, static_cast<const XMLCh*>(converted));
}

void CElementImpl::write(const XMLCh* attribute, const std::string& value) {
  write(attribute, value.c_str());
}

void CElementImpl::write(const XMLCh* attribute, const XMLCh* word) {
  if (word == nullptr) return;
  // A new attribute takes the place of the old one: to change a value, the DOM takes the old one
  // away before it makes room for the new one.
  orBadAlloc([&] {
    DOMAttr* const made = element_->getOwnerDocument()->createAttribute(attribute);
    made->setValue(word);
    DOMAttr* const old = element_->setAttributeNode(made);
    if (old != nullptr) old->release();
  });
}

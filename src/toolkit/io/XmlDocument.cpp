#include "toolkit/io/XmlDocument.h"

#include <stdexcept>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/TransService.hpp>

using xercesc::DOMElement;
using xercesc::DOMLSSerializer;
using xercesc::TranscodeFromStr;
using xercesc::TranscodeToStr;

namespace as::toolkit {

namespace {

std::string narrow(const XMLCh* text) {
  const TranscodeToStr utf8(text, "UTF-8");
  return {reinterpret_cast<const char*>(utf8.str()), utf8.length()};
}

std::basic_string<XMLCh> wide(const std::string& text) {
  const TranscodeFromStr utf16(reinterpret_cast<const XMLByte*>(text.data()), text.size(), "UTF-8");
  return {utf16.str(), utf16.length()};
}

}  // namespace

std::string XmlElement::localName() const {
  const std::string name = narrow(element_->getNodeName());
  return name.substr(name.find(':') + 1);
}

std::string XmlElement::prefix() const {
  const std::string name = narrow(element_->getNodeName());
  const std::size_t colon = name.find(':');
  return colon == std::string::npos ? "" : name.substr(0, colon);
}

std::string XmlElement::declaredNamespace() const {
  const std::string before = prefix();
  return get(before.empty() ? "xmlns" : "xmlns:" + before);
}

std::string XmlElement::namespaceOf(const std::string& prefix) const {
  const std::string declaration = "xmlns:" + prefix;
  for (XmlElement at = *this; at.isElement(); at = at.parent()) {
    if (at.has(declaration)) return at.get(declaration);
  }
  return "";
}

void XmlElement::rename(const std::string& localName) {
  const std::string start = prefix();
  const std::string name = start.empty() ? localName : start + ":" + localName;
  element_ = static_cast<DOMElement*>(
      element_->getOwnerDocument()->renameNode(element_, nullptr, wide(name).c_str()));
}

XmlElement XmlElement::parent() const {
  return XmlElement(dynamic_cast<DOMElement*>(element_->getParentNode()));
}

std::vector<XmlElement> XmlElement::children() const {
  std::vector<XmlElement> all;
  for (DOMElement* child = element_->getFirstElementChild(); child != nullptr;
       child = child->getNextElementSibling()) {
    all.emplace_back(child);
  }
  return all;
}

XmlElement XmlElement::next(const XmlElement& root) const {
  if (DOMElement* const child = element_->getFirstElementChild()) return XmlElement(child);
  for (XmlElement at = *this; !at.isSame(root); at = at.parent()) {
    if (DOMElement* const sibling = at.element_->getNextElementSibling()) {
      return XmlElement(sibling);
    }
  }
  return XmlElement(nullptr);
}

bool XmlElement::hasChild(const std::string& localName) const {
  for (DOMElement* child = element_->getFirstElementChild(); child != nullptr;
       child = child->getNextElementSibling()) {
    if (XmlElement(child).localName() == localName) return true;
  }
  return false;
}

void XmlElement::detach() const { element_->getParentNode()->removeChild(element_); }

std::vector<std::string> XmlElement::attributeNames() const {
  std::vector<std::string> names;
  const xercesc::DOMNamedNodeMap* const attributes = element_->getAttributes();
  for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
    names.push_back(narrow(attributes->item(i)->getNodeName()));
  }
  return names;
}

bool XmlElement::has(const std::string& name) const {
  return element_->hasAttribute(wide(name).c_str());
}

std::string XmlElement::get(const std::string& name) const {
  return narrow(element_->getAttribute(wide(name).c_str()));
}

void XmlElement::set(const std::string& name, const std::string& value) {
  element_->setAttribute(wide(name).c_str(), wide(value).c_str());
}

void XmlElement::remove(const std::string& name) { element_->removeAttribute(wide(name).c_str()); }

XmlDocument::XmlDocument(const std::string& text)
    : parser_(std::make_unique<xercesc::XercesDOMParser>()) {
  const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()),
                                          text.size(), "service");
  // Names and namespace declarations stay text, to be written as they were read.
  parser_->setDoNamespaces(false);
  parser_->parse(source);
  if (parser_->getErrorCount() > 0 || parser_->getDocument() == nullptr) {
    throw std::runtime_error("the service cannot be read a second time");
  }
}

XmlDocument::~XmlDocument() = default;

XmlElement XmlDocument::root() { return XmlElement(parser_->getDocument()->getDocumentElement()); }

std::string XmlDocument::text() {
  auto* const implementation =
      xercesc::DOMImplementationRegistry::getDOMImplementation(wide("LS").c_str());
  const auto release = [](auto* object) { object->release(); };
  const std::unique_ptr<DOMLSSerializer, decltype(release)> serializer(
      implementation->createLSSerializer(), release);
  const std::unique_ptr<xercesc::DOMLSOutput, decltype(release)> output(
      implementation->createLSOutput(), release);
  xercesc::MemBufFormatTarget target;
  output->setByteStream(&target);
  output->setEncoding(wide("UTF-8").c_str());
  serializer->write(parser_->getDocument(), output.get());
  return {reinterpret_cast<const char*>(target.getRawBuffer()), target.getLen()};
}

}  // namespace as::toolkit

// The values of attributes, as fast as the DOM can tell them.
#ifndef XML_ATTRIBUTEVALUE_H_
#define XML_ATTRIBUTEVALUE_H_

#include <typeinfo>
#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>

#include "xml/ReadElement.h"

// What attribute.getValue() answers. A value is one text nearly always; asked for it, the DOM makes
// sure of that by a cast between classes of its own, which takes longer than all the rest.
inline const XMLCh* valueOf(const xercesc::DOMAttr& attribute) {
  const xercesc::DOMNode* const text = attribute.getFirstChild();
  const bool isOneText = text != nullptr && text->getNextSibling() == nullptr &&
                         text->getNodeType() == xercesc::DOMNode::TEXT_NODE;
  return isOneText ? text->getNodeValue() : attribute.getValue();
}

// Calls visit(name, value) for each attribute of an element in the order of names.
template <class Visit>
void visitAttributes(const xercesc::DOMElement& element, const Visit& visit) {
  if (typeid(element) == typeid(ReadElement)) {
    const auto read = static_cast<const ReadElement&>(element).attributes().read();
    for (const ReadAttributes::Attribute& attribute : read) visit(attribute.name, attribute.value);
    if (!read.empty()) return;
  }
  const xercesc::DOMNamedNodeMap& attributes = *element.getAttributes();
  for (XMLSize_t i = 0; i < attributes.getLength(); i++) {
    const auto& attribute = static_cast<const xercesc::DOMAttr&>(*attributes.item(i));
    visit(attribute.getNodeName(), valueOf(attribute));
  }
}

#endif  // XML_ATTRIBUTEVALUE_H_

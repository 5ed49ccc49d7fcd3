// The value of an attribute, as fast as the DOM can tell it.
#ifndef XML_ATTRIBUTEVALUE_H_
#define XML_ATTRIBUTEVALUE_H_

#include <xercesc/dom/DOMAttr.hpp>

// What attribute.getValue() answers. A value is one text nearly always; asked for it, the DOM makes
// sure of that by a cast between classes of its own, which takes longer than all the rest.
inline const XMLCh* valueOf(const xercesc::DOMAttr& attribute) {
  const xercesc::DOMNode* const text = attribute.getFirstChild();
  const bool isOneText = text != nullptr && text->getNextSibling() == nullptr &&
                         text->getNodeType() == xercesc::DOMNode::TEXT_NODE;
  return isOneText ? text->getNodeValue() : attribute.getValue();
}

#endif  // XML_ATTRIBUTEVALUE_H_

#include "xml/ElementChildren.h"

using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::DOMNodeFilter;

ElementChildren::ElementChildren(const DOMNode* node, const DOMNodeFilter* filter)
    : root_(node), filter_(filter), upcoming_(node->getFirstChild()) {}

DOMElement* ElementChildren::next() {
  while (upcoming_ != nullptr) {
    DOMNode* const node = upcoming_;
    const bool rejected =
        filter_ != nullptr && filter_->acceptNode(node) != DOMNodeFilter::FILTER_ACCEPT;
    if (node->getNodeType() == DOMNode::ELEMENT_NODE) {
      upcoming_ = following(node);
      if (!rejected) return static_cast<DOMElement*>(node);
    } else {
      const bool lookThrough = !rejected && node->getNodeType() == DOMNode::ENTITY_REFERENCE_NODE;
      DOMNode* const inside = lookThrough ? node->getFirstChild() : nullptr;
      upcoming_ = inside != nullptr ? inside : following(node);
    }
  }
  return nullptr;
}

DOMNode* ElementChildren::following(const DOMNode* node) const {
  for (; node != nullptr && node != root_; node = node->getParentNode()) {
    if (DOMNode* const sibling = node->getNextSibling()) return sibling;
  }
  return nullptr;
}

// A node filter that picks elements by their local name.
#ifndef XML_LOCALNAMEFILTER_H_
#define XML_LOCALNAMEFILTER_H_

#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/dom/DOMNodeFilter.hpp>
#include <xercesc/util/XMLString.hpp>

// Accepts the elements whose local name is one of Names, in whatever namespace, and rejects every
// other node with all below it.
template <const XMLCh*... Names>
class LocalNameFilter : public xercesc::DOMNodeFilter {
 public:
  FilterAction acceptNode(const xercesc::DOMNode* node) const override {
    if (node->getNodeType() != xercesc::DOMNode::ELEMENT_NODE) return FILTER_REJECT;
    const XMLCh* const name = node->getLocalName();
    return (xercesc::XMLString::equals(name, Names) || ...) ? FILTER_ACCEPT : FILTER_REJECT;
  }
};

// The same as a class Self of its own, derived from this, with its one object.
template <class Self, const XMLCh*... Names>
class NamedNodeFilter : public LocalNameFilter<Names...> {
 public:
  static Self filter;
};

template <class Self, const XMLCh*... Names>
Self NamedNodeFilter<Self, Names...>::filter;

#endif  // XML_LOCALNAMEFILTER_H_

// Steps through the element children of a node.
#ifndef XML_ELEMENTCHILDREN_H_
#define XML_ELEMENTCHILDREN_H_

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNodeFilter.hpp>

// Yields what an element-only DOM tree walker rooted at the node yields from firstChild() and
// nextSibling(): without a filter every element child, an entity reference being looked through;
// with one the element children that it accepts (what it rejects is left out with all below it,
// entity references included). A walker of the parser's own recurses once for every node that it
// passes over, which a long run of comments turns into a stack overflow, and stays in the document
// until that goes; this one does neither.
class ElementChildren {
 public:
  // `node` is not null; `filter` may be. Both must outlive the object.
  ElementChildren(const xercesc::DOMNode* node, const xercesc::DOMNodeFilter* filter);

  // The next element; null when there is none left.
  xercesc::DOMElement* next();

 private:
  // The node behind `node` in document order that is neither below it nor outside the root.
  xercesc::DOMNode* following(const xercesc::DOMNode* node) const;

  const xercesc::DOMNode* root_;
  const xercesc::DOMNodeFilter* filter_;
  xercesc::DOMNode* upcoming_;
};

#endif  // XML_ELEMENTCHILDREN_H_

// An element of a document that is read: the parser's own, but it keeps its wrapper by itself, and
// knows what it is.
#ifndef XML_READELEMENT_H_
#define XML_READELEMENT_H_

#include <cstddef>
#include <xercesc/dom/impl/DOMElementNSImpl.hpp>
#include <xercesc/dom/impl/DOMTextImpl.hpp>

#include "xml/ReadAttributes.h"

// The DOM keeps user data in a table of the whole document, which finds every element's by its
// address: two blocks of memory an element, and a good part of the time of a large parse and of its
// end. What is kept under APIDATA_KEY stands in the element here; whatever else a client keeps goes
// the DOM's way, and so does everything that comes with a handler. And to append a node or to tell
// its parent, the DOM finds out by casts from class to class what the node and its neighbours are:
// that was a fifth of a parse. Here it is known. Nothing else is different; the DOM may clone,
// change and release the element like any other. (A clone has no user data, as always.)
//
// REQUIRES: made in the document's memory, but not in the place of an element that was released,
// which may have been a smaller one: new (document) ReadElement(...).
class ReadElement final : public xercesc::DOMElementNSImpl {
 public:
  ReadElement(xercesc::DOMDocument* document, const XMLCh* namespaceUri, const XMLCh* prefix,
              const XMLCh* localName, const XMLCh* qualifiedName);
  // Of a name without a prefix. Both are of the document's pooled texts; `namespaceUri` may be
  // null.
  ReadElement(xercesc::DOMDocument* document, const XMLCh* namespaceUri, const XMLCh* localName);

  // The node as what it is.
  static ReadElement* of(xercesc::DOMNode* node) {
    return static_cast<ReadElement*>(static_cast<xercesc::DOMElement*>(node));
  }

  // Has the processor fetch the attributes, without waiting for them. What was read with the
  // element stands behind it, and then comes the next one: so many lines are enough for both.
  void fetch() const {
    constexpr std::ptrdiff_t line = 64;
    const char* const first = reinterpret_cast<const char*>(&attributes_);
    for (std::ptrdiff_t i = 0; i < 8; i++) __builtin_prefetch(first + i * line);
  }

  const XMLCh* localName() const { return fLocalName; }
  ReadAttributes& attributes() { return attributes_; }
  const ReadAttributes& attributes() const { return attributes_; }

  // Appends a new node. As much as the parser needs to know its own nodes: nobody looks at the
  // element yet.
  void append(ReadElement* child) { append(child, child->fNode, child->fChild); }
  void append(xercesc::DOMTextImpl* child) { append(child, child->fNode, child->fChild); }

  xercesc::DOMNode* getParentNode() const override;
  void* setUserData(const XMLCh* key, void* data, xercesc::DOMUserDataHandler* handler) override;
  void* getUserData(const XMLCh* key) const override;

 private:
  void append(xercesc::DOMNode* child, xercesc::DOMNodeImpl& node, xercesc::DOMChildNode& links);

  void* wrapper_ = nullptr;
  ReadAttributes attributes_{this};
  bool isInTable_ = false;  // Data with a handler was kept under that key.
};

#endif  // XML_READELEMENT_H_

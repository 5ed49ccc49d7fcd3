// What the validating parser drives while it builds a document: creates the document's wrappers.
#ifndef XML_ELEMENTHANDLER_H_
#define XML_ELEMENTHANDLER_H_

#include <cstddef>
#include <memory>
#include <vector>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/util/XMLString.hpp>

#include "xml/ElementImpl.h"

// The wrappers of one parse that no model object owns.
using WrapperPool = std::vector<std::unique_ptr<CElementImpl>>;

// For a root R with children A and B the parser calls startDocument(R), startElement(R),
// startElement(A), newElement(A), startElement(B), newElement(B), newElement(R),
// endParse(document): wrappers are made from the leaves up, the root last.
//
// A handler serves one parse. It owns the wrappers that it made until the model is complete, so
// that a parse that fails half-way releases them; what the model did not take in by then is handed
// over with releaseUnowned(), to live as long as the document.
class CElementHandler {
 public:
  // A row of a builder's table: elements of that local name are wrapped so.
  struct ElementWrapping {
    const XMLCh* localName;
    void (*wrap)(CElementHandler&, xercesc::DOMNode*);
  };
  // Wraps by class Wrapper, constructed from the element alone.
  template <class Wrapper>
  static void wrapAs(CElementHandler& handler, xercesc::DOMNode* node) {
    handler.wrap<Wrapper>(node);
  }

  CElementHandler(const CElementHandler&) = delete;
  CElementHandler& operator=(const CElementHandler&) = delete;

  // An element has ended. Creates its wrapper and binds it, if it needs one.
  virtual void newElement(xercesc::DOMNode* node) = 0;
  // An element has begun. Does nothing unless overridden.
  virtual void startElement(xercesc::DOMNode* node);
  // The root has begun: throws as::CASInvalidNamespaceException when its namespace is not the
  // handler's. Does nothing unless overridden.
  virtual void startDocument(xercesc::DOMNode* root);
  // The document is complete and normalised: binds the root's wrapper to it and has the root
  // collect its children.
  virtual void endParse(xercesc::DOMDocument* document) = 0;
  // Whether newElement() takes elements of that name. The parser asks as the element begins, since
  // the schema judges an element's place only as its parent ends, and refuses the document that has
  // another. Every one unless overridden.
  virtual bool takes(const xercesc::DOMNode* node) const;

 protected:
  CElementHandler();
  // Releases the wrappers that the model has not taken in. Not virtual: a handler is destroyed as
  // what it is, or through CDelegatingHandler's own virtual destructor.
  ~CElementHandler();

  // Creates a wrapper of class Wrapper for `node`, an element, and binds it. The handler's until
  // the model takes it in.
  template <class Wrapper, class... Arguments>
  void wrap(xercesc::DOMNode* node, Arguments... arguments) {
    auto made = std::make_unique<Wrapper>(static_cast<xercesc::DOMElement*>(node), arguments...);
    auto* const wrapper = as::interface_cast<CElementImpl>(made.get());
    // The list that a wrapper may embed has bound itself in the meantime.
    CElementImpl::bind(node, wrapper);
    wrappers_.emplace_back(wrapper);
    static_cast<void>(made.release());
  }

  // The first row for the element's local name; null when there is none.
  template <std::size_t N>
  static const ElementWrapping* rowFor(const xercesc::DOMNode* node,
                                       const ElementWrapping (&rows)[N]) {
    for (const ElementWrapping& row : rows) {
      if (xercesc::XMLString::equals(row.localName, node->getLocalName())) return &row;
    }
    return nullptr;
  }

  // Wraps the element as its row says; false when there is none.
  template <std::size_t N>
  bool wrapByName(const ElementWrapping (&rows)[N], xercesc::DOMNode* node) {
    const ElementWrapping* const row = rowFor(node, rows);
    if (row != nullptr) row->wrap(*this, node);
    return row != nullptr;
  }

  // Binds the root's wrapper to the document and returns it; null when the root has none.
  static CElementImpl* bindRoot(xercesc::DOMDocument* document);

 public:
  // The wrappers that the model did not take in, given away.
  WrapperPool releaseUnowned();

 protected:
  // Lets go of the wrappers that the model has taken in. To be called when the model is given away:
  // its wrappers may be gone at any time then.
  void forgetOwned();

 private:
  WrapperPool wrappers_;
};

#endif  // XML_ELEMENTHANDLER_H_

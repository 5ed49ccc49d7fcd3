// What the validating parser drives while it builds a document: creates the document's wrappers.
#ifndef XML_ELEMENTHANDLER_H_
#define XML_ELEMENTHANDLER_H_

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMNode.hpp>

#include "xml/NamePool.h"

// For a root R with children A and B the parser calls startDocument(R), startElement(R),
// startElement(A), newElement(A), startElement(B), newElement(B), newElement(R),
// endParse(document): wrappers are made from the leaves up, the root last.
class CElementHandler {
 public:
  CElementHandler(const CElementHandler&) = delete;
  CElementHandler& operator=(const CElementHandler&) = delete;

  // An element has ended. Creates its wrapper, if it needs one.
  virtual void newElement(xercesc::DOMNode* node) = 0;
  // An element has begun. Does nothing unless overridden.
  virtual void startElement(xercesc::DOMNode* node);
  // The root has begun: throws as::CASInvalidNamespaceException when its namespace is not the
  // handler's. Does nothing unless overridden.
  virtual void startDocument(xercesc::DOMNode* root);
  // The document is complete: binds the root's wrapper to it and has the root
  // collect its children.
  virtual void endParse(xercesc::DOMDocument* document) = 0;
  // Whether newElement() takes elements of that name. The parser asks as the element begins, since
  // the schema judges an element's place only as its parent ends, and refuses the document that has
  // another. Every one unless overridden.
  virtual bool takes(const xercesc::DOMNode* node) const;
  // Tells the names that the model will ask for, as the root begins. None unless overridden.
  virtual void tellNames(NamePool& names) const;
  // Whether the blanks between elements are to stand in the document, where the schema lets nothing
  // but elements in: they do unless overridden, for documents that are written back.
  virtual bool keepsBlanks() const;

 protected:
  CElementHandler() = default;
  // Not virtual: a handler is destroyed as what it is, or through CDelegatingHandler's own virtual
  // destructor.
  ~CElementHandler() = default;
};

#endif  // XML_ELEMENTHANDLER_H_

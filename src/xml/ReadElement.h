// An element of a document that is read: the parser's own, but it keeps its wrapper by itself.
#ifndef XML_READELEMENT_H_
#define XML_READELEMENT_H_

#include <xercesc/dom/impl/DOMElementNSImpl.hpp>

// The DOM keeps user data in a table of the whole document, which finds every element's by its
// address: two blocks of memory an element, and a good part of the time of a large parse and of its
// end. What is kept under APIDATA_KEY stands in the element here; whatever else a client keeps goes
// the DOM's way, and so does everything that comes with a handler. Nothing else is different; the
// DOM may clone, change and release the element like any other. (A clone has no user data, as
// always.)
//
// REQUIRES: made in the document's memory, but not in the place of an element that was released,
// which may have been a smaller one: new (document) ReadElement(...).
class ReadElement final : public xercesc::DOMElementNSImpl {
 public:
  using DOMElementNSImpl::DOMElementNSImpl;

  void* setUserData(const XMLCh* key, void* data, xercesc::DOMUserDataHandler* handler) override;
  void* getUserData(const XMLCh* key) const override;

 private:
  void* wrapper_ = nullptr;
  bool isInTable_ = false;  // Data with a handler was kept under that key.
};

#endif  // XML_READELEMENT_H_

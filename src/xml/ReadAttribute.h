// An attribute of a document that is read: the parser's own, but quicker to get its value.
#ifndef XML_READATTRIBUTE_H_
#define XML_READATTRIBUTE_H_

#include <xercesc/dom/impl/DOMAttrNSImpl.hpp>

// A document has more attributes than anything else, and the DOM finds out anew for each of them,
// by casts from class to class, what the text is that it has just made for the value: that was a
// quarter of a parse. Here it is known. Nothing else is different; the DOM may clone, change and
// release the attribute like any other.
class ReadAttribute final : public xercesc::DOMAttrNSImpl {
 public:
  using DOMAttrNSImpl::DOMAttrNSImpl;

  void setValueFast(const XMLCh* value) override;
};

// The document gives the memory of one that was released to the next attribute.
static_assert(sizeof(ReadAttribute) == sizeof(xercesc::DOMAttrNSImpl));

#endif  // XML_READATTRIBUTE_H_

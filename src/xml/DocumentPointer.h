// An owning pointer to a document that no parser holds.
#ifndef XML_DOCUMENTPOINTER_H_
#define XML_DOCUMENTPOINTER_H_

#include <memory>
#include <xercesc/dom/DOMDocument.hpp>

// Documents are released, not deleted.
struct ReleaseDocument {
  void operator()(xercesc::DOMDocument* document) const { document->release(); }
};

using DocumentPointer = std::unique_ptr<xercesc::DOMDocument, ReleaseDocument>;

#endif  // XML_DOCUMENTPOINTER_H_

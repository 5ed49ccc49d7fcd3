// An owning pointer to a document that no parser holds.
#ifndef XML_DOCUMENTPOINTER_H_
#define XML_DOCUMENTPOINTER_H_

#include <memory>
#include <xercesc/dom/DOMDocument.hpp>

// Documents of wrapped elements are deleted, not released: on its way to the same deletion
// release() looks through the whole tree for handlers of user data, of which there are none. What
// else it does is to free a document type that an implementation made, which no document has here:
// those that are read make their own, in their own memory, and new ones have none.
using DocumentPointer = std::unique_ptr<xercesc::DOMDocument>;

#endif  // XML_DOCUMENTPOINTER_H_

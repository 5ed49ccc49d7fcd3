// The base of every object of the model: one wrapped element of an XML document.
#ifndef AS_IELEMENT_H_
#define AS_IELEMENT_H_

#include <string>

#include "as/RTTI.h"

namespace as {

// A model object is a thin wrapper around one element of a document. It holds no copy of the
// document's data: every getter reads the element when it is called, every setter writes it.
//
// Ownership: a client owns only the roots that it was given (a program, a service) and deletes only
// those. Everything reached from a root lives exactly as long as the root; never delete it.
//
// The end: delete a root before the library is unloaded, and before it stops the XML parser as the
// process ends; one that is never deleted does no harm then. The handler that stops the parser is
// registered while the library is loaded. So objects of static duration in a program linked with
// the library are in time, as are exit handlers; a host that loads it with dlopen() has to make its
// own after that. The entry object may go later, while the library is loaded, unless it keeps
// schemas (see CAgentServicesFactory).
//
// Threads: the library serves one thread at a time, process-wide, since every conversion of text
// goes through one shared transcoder. Two threads with a document each have to take turns too.
//
// Text is UTF-8; a text returned is a copy. A text given to an operation ends at its first zero
// byte; each byte of it that is no part of well-formed UTF-8 becomes U+FFFD; a null text counts as
// an empty one. Nothing else is checked: a setter also takes characters that XML cannot hold (most
// control characters, U+FFFE, U+FFFF), and its getter gives them back, but the document cannot be
// written while it holds one (see CAgentServicesFactory::Serialize).
//
// Where an interface says nothing else, its operations throw nothing, unless memory runs out. Then
// they throw std::bad_alloc: a getter has changed nothing, an adding operation has left the model
// as it was, and of what a setter writes each attribute has its old or its new value.
class AS_EXPORT IElement {
 public:
  virtual ~IElement();

  // The pointer that the client stored with setUserData, through whichever interface of the object;
  // null before that.
  virtual void* getUserData() = 0;

  // Stores a pointer of the client's. The library neither reads nor releases what it points to, and
  // does not write it to the document.
  virtual void setUserData(void* data) = 0;

  // The value of the element's own attribute `name`, with its prefix if it has one
  // ("xsi:schemaLocation"); empty when there is no such attribute (which cannot be told from an
  // empty one) and when name is null or empty.
  virtual std::string getAttributeValue(const char* name) = 0;

  AS_RTTI_ROOT(IElement)
};

}  // namespace as

#endif  // AS_IELEMENT_H_

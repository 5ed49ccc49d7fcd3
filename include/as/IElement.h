// The base of every object of the model: one wrapped element of an XML document.
#ifndef AS_IELEMENT_H_
#define AS_IELEMENT_H_

#include <string>

#include "as/RTTI.h"

namespace as {

// A model object is a thin wrapper around one element of a document. It holds no copy of the
// document's data: every getter reads the element when it is called, every setter writes it.
//
// Ownership: a client owns only the roots that it was given (a program, a service) and deletes
// only those. Everything reached from a root lives exactly as long as the root; never delete it.
//
// Text is UTF-8 throughout. Objects of one document must not be used by two threads at a time.
class AS_EXPORT IElement {
 public:
  virtual ~IElement();

  // The pointer that the client stored with setUserData; null before that.
  virtual void* getUserData() = 0;

  // Stores a pointer of the client's. The library neither reads nor releases what it points to.
  virtual void setUserData(void* data) = 0;

  // The value of the element's attribute `name`; empty when there is no such attribute (which
  // cannot be told from an empty one) and when name is null.
  virtual std::string getAttributeValue(const char* name) = 0;

  AS_RTTI_ROOT(IElement)
};

}  // namespace as

#endif  // AS_IELEMENT_H_

// Memory that runs out inside the XML library, as clients are told of it.
#ifndef XML_OUTOFMEMORY_H_
#define XML_OUTOFMEMORY_H_

#include <new>
#include <xercesc/util/OutOfMemoryException.hpp>

// Answers what `call` does. The XML library has an exception of its own for memory that runs out,
// which clients do not know and no base class tells: std::bad_alloc takes its place.
template <class Call>
auto orBadAlloc(const Call& call) -> decltype(call()) {
  try {
    return call();
  } catch (const xercesc::OutOfMemoryException&) {
    throw std::bad_alloc();
  }
}

#endif  // XML_OUTOFMEMORY_H_

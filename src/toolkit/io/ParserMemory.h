// Memory that runs out inside the XML parser, as clients are told of it.
#ifndef TOOLKIT_IO_PARSERMEMORY_H_
#define TOOLKIT_IO_PARSERMEMORY_H_

#include <new>
#include <xercesc/util/OutOfMemoryException.hpp>

namespace as::toolkit {

// Answers what `call`, which makes use of the parser by itself, does. The parser's exception for
// want of memory is known to no client and derives from nothing: std::bad_alloc takes its place.
template <class Call>
auto withBadAlloc(const Call& call) -> decltype(call()) {
  try {
    return call();
  } catch (const xercesc::OutOfMemoryException&) {
    throw std::bad_alloc();
  }
}

}  // namespace as::toolkit

#endif  // TOOLKIT_IO_PARSERMEMORY_H_

// Requests to the toolkit on the bytes of an input.
#ifndef FUZZ_TOOLKITREQUESTS_H_
#define FUZZ_TOOLKITREQUESTS_H_

#include <cstdlib>
#include <string>

#include "InputFiles.h"
#include "Shape.h"
#include "as/Namespaces.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Files.h"

namespace fuzz {

inline void require(bool condition) {
  if (!condition) std::abort();
}

// Dictionaries and services of every flavour, which carry such files.
inline Shape documentsWith(Shape::Files files) {
  return {{as::namespaces::dd.uri, as::namespaces::ws.uri, as::namespaces::com.uri,
           as::namespaces::java.uri, as::namespaces::dotnet.uri},
          false,
          files};
}

// With the shipped schemas, the same for every input.
inline const as::toolkit::DocumentReader& reader() {
  static const as::toolkit::DocumentReader made(schemaDirectory());
  return made;
}

// Runs `action`, which may refuse the document, or fail to write; any other exception ends the
// process, and is a finding. Whether it did what it was to do.
template <class Action>
bool succeeds(const Action& action) {
  try {
    action();
    return true;
  } catch (const as::toolkit::RefusedDocument& refused) {
    require(!refused.refusal().text.empty());
    return false;
  } catch (const as::toolkit::FileError&) {
    return false;
  }
}

// What is shown on a terminal holds no control characters but those that end its lines.
inline void requirePlain(const std::string& text) {
  for (const char c : text) require(c == '\n' || static_cast<unsigned char>(c) >= ' ');
}

}  // namespace fuzz

#endif  // FUZZ_TOOLKITREQUESTS_H_

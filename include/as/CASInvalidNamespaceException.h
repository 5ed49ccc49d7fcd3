// The root element of a document is in a namespace that the parse request does not accept.
#ifndef AS_CASINVALIDNAMESPACEEXCEPTION_H_
#define AS_CASINVALIDNAMESPACEEXCEPTION_H_

#include "as/Export.h"

namespace as {

// Carries nothing: a dictionary was expected and something else came (a service, say), or the other
// way round. A root in no namespace, and a service's in the plain service namespace, count as
// something else too. Derives from nothing: catch it by this type.
class AS_EXPORT CASInvalidNamespaceException {};

}  // namespace as

#endif  // AS_CASINVALIDNAMESPACEEXCEPTION_H_

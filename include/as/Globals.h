// What the library keeps for the whole process, for clients that work with the DOM themselves.
// Needs the headers of Xerces-C; as/AgentServices.h does not include it.
#ifndef AS_GLOBALS_H_
#define AS_GLOBALS_H_

#include <xercesc/util/XercesDefs.hpp>

#include "as/Export.h"

XERCES_CPP_NAMESPACE_BEGIN
class XMLTranscoder;
XERCES_CPP_NAMESPACE_END

// Clients read these; only the library writes them.

// 1 when the XML parser was started as the library was loaded, 0 when that failed.
extern AS_EXPORT int nXercesInitStatus;

// The transcoder of every conversion between UTF-8 and XMLCh; null when the XML parser is not
// running. Not guarded by a lock: one thread at a time.
extern AS_EXPORT XERCES_CPP_NAMESPACE_QUALIFIER XMLTranscoder* gUTF8Transcoder;

// The key of the DOM user data that binds every wrapped element to its wrapper, and the document to
// the root's. The data is a pointer to a class of the library's inside: a client can tell by it
// that an element is wrapped, and must not replace it.
extern AS_EXPORT const XMLCh APIDATA_KEY[];

#endif  // AS_GLOBALS_H_

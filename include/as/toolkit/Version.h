// Which versions of what are at work.
#ifndef AS_TOOLKIT_VERSION_H_
#define AS_TOOLKIT_VERSION_H_

#include "as/Export.h"

namespace as::toolkit {

// Of the toolkit, which comes with the library of the same version: "1.0.0".
AS_EXPORT const char* toolkitVersion();

// The XML parser that the toolkit was built for, with its version: "Xerces-C++ 3.2.4".
AS_EXPORT const char* parserVersion();

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_VERSION_H_

#include "as/toolkit/Version.h"

#include <xercesc/util/XercesVersion.hpp>

namespace as::toolkit {

const char* toolkitVersion() { return AS_TOOLKIT_VERSION; }

const char* parserVersion() { return "Xerces-C++ " XERCES_FULLVERSIONDOT; }

}  // namespace as::toolkit

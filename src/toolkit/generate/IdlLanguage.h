// What the interface definition language of COM calls types and names.
#ifndef TOOLKIT_GENERATE_IDLLANGUAGE_H_
#define TOOLKIT_GENERATE_IDLLANGUAGE_H_

#include "toolkit/generate/InterfacePlan.h"

namespace as::toolkit::gen {

const Language& idlLanguage();

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_IDLLANGUAGE_H_

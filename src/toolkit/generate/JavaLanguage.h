// What Java calls types and names.
#ifndef TOOLKIT_GENERATE_JAVALANGUAGE_H_
#define TOOLKIT_GENERATE_JAVALANGUAGE_H_

#include "toolkit/generate/InterfacePlan.h"

namespace as::toolkit::gen {

const Language& javaLanguage();

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_JAVALANGUAGE_H_

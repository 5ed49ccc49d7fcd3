// What C# calls types and names.
#ifndef TOOLKIT_GENERATE_CSHARPLANGUAGE_H_
#define TOOLKIT_GENERATE_CSHARPLANGUAGE_H_

#include "toolkit/generate/InterfacePlan.h"

namespace as::toolkit::gen {

const Language& csharpLanguage();

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_CSHARPLANGUAGE_H_

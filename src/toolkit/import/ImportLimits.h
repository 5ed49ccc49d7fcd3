// The limits of reading a source as constants.
#ifndef TOOLKIT_IMPORT_IMPORTLIMITS_H_
#define TOOLKIT_IMPORT_IMPORTLIMITS_H_

#include <cstddef>

namespace as::toolkit::importLimits {

#define AS_IMPORT_LIMIT(name, number, counts, reason) inline constexpr std::size_t name = number;
#include "toolkit/import/ImportLimits.def"

}  // namespace as::toolkit::importLimits

#endif  // TOOLKIT_IMPORT_IMPORTLIMITS_H_

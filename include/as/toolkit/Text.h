// Text for people.
#ifndef AS_TOOLKIT_TEXT_H_
#define AS_TOOLKIT_TEXT_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "as/Export.h"

namespace as::toolkit {

// The UTF-8 `text` with its control characters written as \u001B: a document may hold them, and
// they would break lines or steer the terminal. Findings, refusals and exceptions tell text as the
// document has it.
AS_EXPORT std::string printable(std::string_view text);

// "1 table", "3 tables"
AS_EXPORT std::string count(std::size_t number, const char* what);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_TEXT_H_

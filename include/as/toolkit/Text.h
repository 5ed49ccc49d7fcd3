// Text for people.
#ifndef AS_TOOLKIT_TEXT_H_
#define AS_TOOLKIT_TEXT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "as/Export.h"

namespace as::toolkit {

// The UTF-8 `text` with its control characters written as \u001B: a document may hold them, and
// they would break lines or steer the terminal. Findings, refusals and exceptions tell text as the
// document has it.
AS_EXPORT std::string printable(std::string_view text);

// "1 table", "3 tables"
AS_EXPORT std::string count(std::size_t number, const char* what);

// The UTF-8 `text` as a value of JSON, in double quotes; what is no UTF-8 becomes U+FFFD.
AS_EXPORT std::string jsonText(std::string_view text);

// The one of `names` that somebody may have meant who wrote `name`: the first of those that differ
// in the fewest letters; empty when all differ in more than a few. Small and capital letters are
// the same. Takes a bounded time.
AS_EXPORT std::string nearestName(const std::string& name, const std::vector<std::string>& names);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_TEXT_H_

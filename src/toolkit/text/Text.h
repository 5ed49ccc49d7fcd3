// Text as a terminal shows it.
#ifndef TOOLKIT_TEXT_TEXT_H_
#define TOOLKIT_TEXT_TEXT_H_

#include <cstddef>
#include <string>
#include <string_view>

// The UTF-8 `text` with its control characters written as \u001B: a document may hold them, and
// they would break lines or steer the terminal.
std::string printable(std::string_view text);

// How many characters the UTF-8 `text` has.
std::size_t characterCount(std::string_view text);

#endif  // TOOLKIT_TEXT_TEXT_H_

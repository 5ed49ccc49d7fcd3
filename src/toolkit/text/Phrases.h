// Turns of phrase that texts have in common.
#ifndef TOOLKIT_TEXT_PHRASES_H_
#define TOOLKIT_TEXT_PHRASES_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "as/toolkit/Text.h"

namespace as::toolkit {

// 'text'
std::string quote(const std::string& text);

// "did you mean 'name'?"
std::string didYouMean(const std::string& name);

// The names with periods between: RECORD.GROUP.ITEM.
std::string dotted(const std::vector<std::string>& names);

// So many of the things of one kind are told where they could be any number, over and over again.
inline constexpr std::size_t mostTold = 20;

// The first names with commas between, and how many others there are: "A, B, C and 7 others".
std::string firstOf(const std::vector<std::string>& names);

// Whether the text is a number as COBOL programs write it, without an exponent.
bool isNumeral(std::string_view text);

// How many characters the UTF-8 `text` has.
std::size_t characterCount(std::string_view text);

}  // namespace as::toolkit

#endif  // TOOLKIT_TEXT_PHRASES_H_

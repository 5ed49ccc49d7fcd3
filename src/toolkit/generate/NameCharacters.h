// Characters of Unicode, as names and comments of target languages are judged by.
#ifndef TOOLKIT_GENERATE_NAMECHARACTERS_H_
#define TOOLKIT_GENERATE_NAMECHARACTERS_H_

#include <string>
#include <string_view>

namespace as::toolkit::gen {

// Unicode code points of UTF-8 text; what is no UTF-8 counts as U+FFFD.
std::u32string charactersOf(std::string_view text);
std::string utf8Of(std::u32string_view text);

// A letter of ASCII in its other form; anything else as it is.
char32_t capitalOf(char32_t character);
char32_t smallOf(char32_t character);
// With letters of ASCII in their small form.
std::string inSmallLetters(std::string_view text);

// Letters of ASCII, digits, and what XML 1.0 takes in names (without the colon).
bool isAsciiLetter(char32_t character);
bool isDigit(char32_t character);
bool isXmlNameStart(char32_t character);
bool isXmlNameCharacter(char32_t character);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_NAMECHARACTERS_H_

// Characters as bytes of UTF-8.
#ifndef TOOLKIT_TEXT_UTF8_H_
#define TOOLKIT_TEXT_UTF8_H_

#include <cstdint>
#include <string>

namespace as::toolkit {

// Adds the character of that code, of which no more than 21 bits count.
void appendUtf8(std::string& text, std::uint32_t code);

}  // namespace as::toolkit

#endif  // TOOLKIT_TEXT_UTF8_H_

// Characters of UTF-8.
#ifndef TOOLKIT_TEXT_UTF8TEXT_H_
#define TOOLKIT_TEXT_UTF8TEXT_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace as::toolkit {

// What stands for a character that is none.
inline constexpr std::uint32_t replacementCharacter = 0xFFFD;

bool isAscii(std::string_view text);

bool isUtf8(std::string_view text);

// How many bytes of `text` from `at` on are one character; 0 when they are none.
std::size_t characterLength(std::string_view text, std::size_t at);

// Whether a character goes on with that byte, which no character begins with.
constexpr bool isWithinCharacter(char byte) {
  constexpr unsigned int mask = 0xC0;
  constexpr unsigned int continuation = 0x80;
  return (static_cast<unsigned char>(byte) & mask) == continuation;
}

// The first `most` bytes of the text, or fewer, so that no character is cut.
std::string_view beginningOf(std::string_view text, std::size_t most);

// How many columns the character that begins with the first byte of `text` takes where characters
// of two bytes take two: those of Asia but for the narrow letters of Japan, and Greek and Cyrillic.
// REQUIRES: a text that is not empty.
int columnsOfCharacter(std::string_view text);

}  // namespace as::toolkit

#endif  // TOOLKIT_TEXT_UTF8TEXT_H_

#include "toolkit/generate/NameCharacters.h"

#include <algorithm>

#include "toolkit/text/Utf8.h"
#include "toolkit/text/Utf8Text.h"

namespace as::toolkit::gen {

namespace {

constexpr char32_t replacement = 0xFFFD;

}  // namespace

std::u32string charactersOf(std::string_view text) {
  std::u32string characters;
  characters.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const auto first = static_cast<unsigned char>(text[i++]);
    if (first < 0x80) {
      characters += first;
      continue;
    }
    const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
    char32_t character = more == 0 ? replacement : first & (0x3FU >> static_cast<unsigned>(more));
    for (int k = 0; k < more; ++k) {
      if (i == text.size() || !isWithinCharacter(text[i])) {
        character = replacement;
        break;
      }
      character = (character << 6U) | (static_cast<unsigned char>(text[i++]) & 0x3FU);
    }
    characters += character;
  }
  return characters;
}

std::string utf8Of(std::u32string_view text) {
  std::string bytes;
  for (const char32_t character : text) appendUtf8(bytes, character);
  return bytes;
}

char32_t capitalOf(char32_t character) {
  return character >= U'a' && character <= U'z' ? character - U'a' + U'A' : character;
}

char32_t smallOf(char32_t character) {
  return character >= U'A' && character <= U'Z' ? character - U'A' + U'a' : character;
}

bool isAsciiLetter(char32_t character) {
  return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z');
}

bool isDigit(char32_t character) { return character >= U'0' && character <= U'9'; }

bool isXmlNameStart(char32_t c) {
  return isAsciiLetter(c) || c == U'_' || (c >= 0xC0 && c <= 0xD6) || (c >= 0xD8 && c <= 0xF6) ||
         (c >= 0xF8 && c <= 0x131) || (c >= 0x134 && c <= 0x13E) || (c >= 0x141 && c <= 0x148) ||
         (c >= 0x14A && c <= 0x17E) || (c >= 0x391 && c <= 0x3A1) || (c >= 0x3A3 && c <= 0x3CE) ||
         (c >= 0x410 && c <= 0x44F) || (c >= 0x4E00 && c <= 0x9FA5) ||
         (c >= 0x3041 && c <= 0x3094) || (c >= 0x30A1 && c <= 0x30FA) ||
         (c >= 0xAC00 && c <= 0xD7A3);
}

bool isXmlNameCharacter(char32_t character) {
  return isXmlNameStart(character) || isDigit(character) || character == U'-' || character == U'.';
}

std::string inSmallLetters(std::string_view text) {
  std::u32string characters = charactersOf(text);
  std::transform(characters.begin(), characters.end(), characters.begin(), smallOf);
  return utf8Of(characters);
}

}  // namespace as::toolkit::gen

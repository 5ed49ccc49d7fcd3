// The characters that COBOL is written with.
#ifndef TOOLKIT_IMPORT_CHARACTERS_H_
#define TOOLKIT_IMPORT_CHARACTERS_H_

#include <array>
#include <cstdint>
#include <limits>
#include <string_view>

#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

enum class CharacterClass : std::uint8_t {
  blank,      // Control characters, too.
  word,       // What words are made of: letters of any language, digits, "-", "_", "$", "#", "@".
  inRun,      // What stands in numbers and pictures beside those.
  separator,  // ".", ",", ";": only in front of a blank.
  star,       // Begins comments with the ">" behind it.
  bar,        // Begins comments by itself.
  quote,
  mark,  // A word by itself.
};

namespace characters {

constexpr std::array<CharacterClass, 256> makeClasses() {
  std::array<CharacterClass, 256> made{};  // All blank.
  for (std::size_t i = '!'; i <= '~'; i++) made[i] = CharacterClass::inRun;
  for (std::size_t i = 0x80; i < made.size(); i++) made[i] = CharacterClass::word;
  const auto set = [&](std::string_view all, CharacterClass to) {
    for (const char one : all) made[static_cast<unsigned char>(one)] = to;
  };
  set("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_$#@", CharacterClass::word);
  set(".,;", CharacterClass::separator);
  set("*", CharacterClass::star);
  set("|", CharacterClass::bar);
  set("\"'", CharacterClass::quote);
  set("():&=<>", CharacterClass::mark);
  return made;
}

inline constexpr std::array<CharacterClass, 256> classes = makeClasses();

}  // namespace characters

constexpr CharacterClass classOf(char character) {
  return characters::classes[static_cast<unsigned char>(character)];
}

constexpr bool isBlank(char character) { return classOf(character) == CharacterClass::blank; }
constexpr bool isQuote(char character) { return character == '"' || character == '\''; }
constexpr bool isDigit(char character) { return character >= '0' && character <= '9'; }
constexpr bool isWordCharacter(char character) {
  return classOf(character) == CharacterClass::word;
}

// Whether a bar begins a comment: no half of "||", and no byte of a character of an encoding that
// was not known.
constexpr bool isCommentBar(char before, char behind) {
  return before != '|' && behind != '|' && static_cast<unsigned char>(before) < 0x80;
}

inline constexpr std::size_t tabWidth = 8;

// The column behind `text`, which begins in `column`.
constexpr std::int32_t columnBehind(std::string_view text, std::int32_t column) {
  constexpr auto most = std::numeric_limits<std::int32_t>::max() - static_cast<int>(tabWidth) - 1;
  for (const char character : text) {
    if (column >= most) return most;
    if (character == '\t') {
      column +=
          static_cast<std::int32_t>(tabWidth) - (column - 1) % static_cast<std::int32_t>(tabWidth);
    } else if (!isWithinCharacter(character)) {
      column++;
    }
  }
  return column;
}

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_CHARACTERS_H_

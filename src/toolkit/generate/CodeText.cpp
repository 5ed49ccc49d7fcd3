#include "toolkit/generate/CodeText.h"

#include "toolkit/generate/NameCharacters.h"
#include "toolkit/generate/NameRule.h"

namespace as::toolkit::gen {

namespace {

// Ends a line for some compiler, or is nothing that XML holds.
bool isNoText(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0x2028 ||
         character == 0x2029 || character == 0xFFFE || character == 0xFFFF;
}

// Turns the direction of what follows: code is not what it looks like then.
bool turns(char32_t character) {
  return character == 0x061C || character == 0x200E || character == 0x200F ||
         (character >= 0x202A && character <= 0x202E) ||
         (character >= 0x2066 && character <= 0x2069);
}

bool hasMeaning(char32_t character, char32_t last) {
  // A backslash starts an escape of Java even inside of a comment.
  constexpr std::u32string_view always = U"&<>\"@{}\\";
  return always.find(character) != std::u32string_view::npos || turns(character) ||
         (character == U'/' && last == U'*');
}

}  // namespace

std::string docText(std::string_view text) {
  std::u32string result;
  char32_t last = U' ';
  for (const char32_t character : charactersOf(text)) {
    if (isNoText(character)) {
      result += U' ';
    } else if (hasMeaning(character, last)) {
      result += U"&#";
      for (const char digit : std::to_string(static_cast<unsigned>(character))) {
        result += static_cast<char32_t>(digit);
      }
      result += U';';
    } else {
      result += character;
    }
    last = character;
  }
  return utf8Of(result);
}

std::string commentText(std::string_view text) {
  std::u32string result;
  for (const char32_t character : charactersOf(text)) {
    const bool isHarmful = isNoText(character) || turns(character);
    // An escape in a comment counts in some languages (\u000a in Java).
    const char32_t next = isHarmful ? U' ' : character == U'\\' ? U'/' : character;
    const char32_t last = result.empty() ? U' ' : result.back();
    if ((last == U'*' && next == U'/') || (last == U'/' && next == U'*') ||
        (last == U'-' && next == U'-') || (last == U'?' && next == U'?')) {
      result += U' ';
    }
    result += next;
  }
  return utf8Of(result);
}

}  // namespace as::toolkit::gen

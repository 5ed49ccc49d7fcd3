#include "toolkit/text/Utf8Text.h"

#include <algorithm>
#include <cstring>

namespace as::toolkit {

namespace {

using Byte = unsigned char;

std::size_t roundedDown(std::size_t number, std::size_t by) { return number - number % by; }

}  // namespace

bool isAscii(std::string_view text) {
  std::size_t i = 0;
  for (; i < roundedDown(text.size(), sizeof(std::uint64_t)); i += sizeof(std::uint64_t)) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, text.data() + i, sizeof eight);
    if ((eight & 0x8080808080808080U) != 0) return false;
  }
  return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(i), text.end(),
                     [](char character) { return static_cast<Byte>(character) < 0x80; });
}

std::size_t characterLength(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) {
    return i < text.size() ? static_cast<Byte>(text[i]) : Byte{0};
  };
  const auto goesOn = [&](std::size_t i) { return isWithinCharacter(static_cast<char>(byte(i))); };
  const Byte first = byte(at);
  if (first < 0x80) return 1;
  if (first < 0xC2 || first > 0xF4) return 0;
  if (first < 0xE0) return goesOn(at + 1) ? 2 : 0;
  const Byte second = byte(at + 1);
  if (first < 0xF0) {
    const bool isOverlong = first == 0xE0 && second < 0xA0;
    const bool isSurrogate = first == 0xED && second >= 0xA0;
    return goesOn(at + 1) && goesOn(at + 2) && !isOverlong && !isSurrogate ? 3 : 0;
  }
  const bool isOverlong = first == 0xF0 && second < 0x90;
  const bool isBeyond = first == 0xF4 && second >= 0x90;
  return goesOn(at + 1) && goesOn(at + 2) && goesOn(at + 3) && !isOverlong && !isBeyond ? 4 : 0;
}

std::string_view beginningOf(std::string_view text, std::size_t most) {
  if (text.size() <= most) return text;
  while (most > 0 && isWithinCharacter(text[most])) --most;
  return text.substr(0, most);
}

bool isUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = characterLength(text, i);
    if (length == 0) return false;
    i += length;
  }
  return true;
}

int columnsOfCharacter(std::string_view text) {
  const auto first = static_cast<Byte>(text.front());
  // Greek and Cyrillic are U+0370 to U+04FF.
  if (first < 0xE0) return first >= 0xCD && first <= 0xD3 ? 2 : 1;
  const std::string_view three = text.substr(0, 3);
  const bool isNarrow = (three >= "\xEF\xBD\xA1" && three <= "\xEF\xBE\x9F") ||
                        three == "\xE2\x80\xBE" || three == "\xEF\xBF\xBD";
  return isNarrow ? 1 : 2;
}

}  // namespace as::toolkit

#include "toolkit/import/EncodingRecognition.h"

#include <cstddef>

namespace as::toolkit {

namespace {

using Byte = unsigned char;

bool between(Byte byte, int first, int last) { return byte >= first && byte <= last; }

}  // namespace

bool looksLikeEbcdic(std::string_view bytes) {
  constexpr std::size_t sample = 65536;
  bytes = bytes.substr(0, sample);
  std::size_t ebcdic = 0;
  std::size_t ascii = 0;
  std::size_t ebcdicBlanks = 0;
  std::size_t asciiBlanks = 0;
  for (const char character : bytes) {
    const auto byte = static_cast<Byte>(character);
    if (byte == 0x40) ebcdicBlanks++;
    if (byte == ' ') asciiBlanks++;
    const bool isLetter = between(byte, 0xC1, 0xC9) || between(byte, 0xD1, 0xD9) ||
                          between(byte, 0xE2, 0xE9) || between(byte, 0x81, 0x89) ||
                          between(byte, 0x91, 0x99) || between(byte, 0xA2, 0xA9);
    const bool isMark = byte == 0x40 || between(byte, 0x4B, 0x4E) || between(byte, 0x5B, 0x5E) ||
                        between(byte, 0x60, 0x61) || between(byte, 0x6B, 0x6F) ||
                        between(byte, 0x7A, 0x7F) || byte == 0x15 || byte == 0x25 || byte == 0x0D;
    if (isLetter || isMark || between(byte, 0xF0, 0xF9)) ebcdic++;
    if (between(byte, ' ', '~') || byte == '\n' || byte == '\r') ascii++;
  }
  return ebcdicBlanks > asciiBlanks && ebcdic > ascii && ebcdic * 10 >= bytes.size() * 8;
}

bool looksLikeShiftJis(std::string_view bytes) {
  std::size_t pairs = 0;
  std::size_t lowFirst = 0;
  std::size_t highSecond = 0;
  for (std::size_t i = 0; i < bytes.size(); i++) {
    const auto first = static_cast<Byte>(bytes[i]);
    if (first < 0x80 || between(first, 0xA1, 0xDF)) continue;
    const bool isLow = between(first, 0x81, 0x9F);
    if (!isLow && !between(first, 0xE0, 0xFC)) return false;
    if (++i == bytes.size()) return false;
    const auto second = static_cast<Byte>(bytes[i]);
    if (!between(second, 0x40, 0xFC) || second == 0x7F) return false;
    pairs++;
    if (isLow) lowFirst++;
    if (second >= 0x80) highSecond++;
  }
  constexpr std::size_t leastPairs = 2;
  return pairs >= leastPairs && lowFirst * 2 >= pairs && highSecond * 3 >= pairs;
}

}  // namespace as::toolkit

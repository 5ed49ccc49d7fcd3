// Tests of how the encoding of a source is recognised: each byte, and how many of a kind it takes.
#include <gtest/gtest.h>
#include <iconv.h>

#include <array>
#include <string>
#include <string_view>

#include "toolkit/import/EncodingRecognition.h"

namespace {

using as::toolkit::looksLikeEbcdic;
using as::toolkit::looksLikeShiftJis;

using Bytes = std::array<bool, 256>;

// What COBOL is written with, in EBCDIC, and the ends of lines.
Bytes ebcdicBytes() {
  std::string in =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 .<(+$*);-/,%_>?:#@'=\"";
  std::string out(in.size(), '\0');
  char* from = in.data();
  char* to = out.data();
  std::size_t left = in.size();
  std::size_t room = out.size();
  const iconv_t conversion = iconv_open("IBM037", "US-ASCII");
  iconv(conversion, &from, &left, &to, &room);
  iconv_close(conversion);
  Bytes bytes{};
  for (const char byte : out + "\x15\x25\x0D") bytes[static_cast<unsigned char>(byte)] = true;
  return bytes;
}

Bytes asciiBytes() {
  Bytes bytes{};
  for (char byte = ' '; byte <= '~'; byte++) bytes[static_cast<unsigned char>(byte)] = true;
  bytes['\n'] = bytes['\r'] = true;
  return bytes;
}

std::string times(std::size_t count, char byte) { return std::string(count, byte); }

TEST(LooksLikeEbcdic, ByBytesOfItsLettersDigitsAndMarks) {
  const Bytes ebcdic = ebcdicBytes();
  for (int byte = 0; byte < 256; byte++) {
    // Eight of ten have to be.
    const std::string text = "\x40" + times(6, '\xC1') + static_cast<char>(byte) + "\x01\x01";
    EXPECT_EQ(looksLikeEbcdic(text), ebcdic[static_cast<std::size_t>(byte)]) << byte;
  }
}

TEST(LooksLikeEbcdic, WhenMoreBytesAreOfItThanOfAscii) {
  const Bytes ebcdic = ebcdicBytes();
  const Bytes ascii = asciiBytes();
  for (int byte = 0; byte < 256; byte++) {
    const auto at = static_cast<std::size_t>(byte);
    const std::string even = times(8, '\x40') + "\xC1" + static_cast<char>(byte);
    EXPECT_EQ(looksLikeEbcdic(even), ebcdic[at] || !ascii[at]) << byte;
    const std::string oneLess = even + "y";
    EXPECT_EQ(looksLikeEbcdic(oneLess), ebcdic[at] && !ascii[at]) << byte;
  }
}

TEST(LooksLikeEbcdic, WhenItHasMoreOfItsBlanks) {
  EXPECT_FALSE(looksLikeEbcdic(times(10, '\xC1')));
  EXPECT_FALSE(looksLikeEbcdic(times(15, '\xC1') + "\x40 "));
  EXPECT_TRUE(looksLikeEbcdic(times(15, '\xC1') + "\x40\x40 "));
  EXPECT_TRUE(looksLikeEbcdic(times(10, '\xC1') + "\x40"));
}

TEST(LooksLikeEbcdic, WhenEightOfTenBytesAreOfIt) {
  EXPECT_TRUE(looksLikeEbcdic("\x40" + times(79, '\xC1') + times(20, '\x01')));
  EXPECT_FALSE(looksLikeEbcdic("\x40" + times(78, '\xC1') + times(21, '\x01')));
}

TEST(LooksLikeEbcdic, ByItsFirst64KiB) {
  constexpr std::size_t sample = 65536;
  constexpr std::size_t least = 52429;  // Eight of ten of them.
  const std::string others = times(sample - least, '\x01');
  EXPECT_TRUE(looksLikeEbcdic(others + times(least, '\x40').replace(0, 1, "\xC1") + others));
  EXPECT_FALSE(looksLikeEbcdic(others + "\x01" + times(least, '\x40').replace(0, 1, "\xC1")));
}

const std::string pairs = "\x81\x80\x81\x80\x81\x80";

bool isBetween(int byte, int first, int last) { return byte >= first && byte <= last; }

TEST(LooksLikeShiftJis, ByBytesThatBeginACharacter) {
  for (int byte = 0; byte < 256; byte++) {
    const bool isWhole = byte < 0x80 || isBetween(byte, 0xA1, 0xDF);
    const bool isFirst = isBetween(byte, 0x81, 0x9F) || isBetween(byte, 0xE0, 0xFC);
    const std::string text = pairs + static_cast<char>(byte);
    EXPECT_EQ(looksLikeShiftJis(text), isWhole) << byte;
    EXPECT_EQ(looksLikeShiftJis(text + "\x81"), isFirst) << byte;
  }
}

TEST(LooksLikeShiftJis, ByBytesThatEndACharacter) {
  for (int byte = 0; byte < 256; byte++) {
    EXPECT_EQ(looksLikeShiftJis(pairs + "\x81" + static_cast<char>(byte)),
              isBetween(byte, 0x40, 0xFC) && byte != 0x7F)
        << byte;
  }
}

TEST(LooksLikeShiftJis, NotByWhatStandsBehindIt) {
  EXPECT_FALSE(looksLikeShiftJis(std::string_view(pairs).substr(0, 3)));
}

TEST(LooksLikeShiftJis, ByTwoCharactersOfTwoBytes) {
  EXPECT_FALSE(looksLikeShiftJis("\x81\x80"));
  EXPECT_TRUE(looksLikeShiftJis("\x81\x80\x81\x80"));
}

TEST(LooksLikeShiftJis, WhenHalfOfThemBeginLow) {
  EXPECT_TRUE(looksLikeShiftJis("\x9F\x80\xE0\x80"));
  EXPECT_FALSE(looksLikeShiftJis("\x9F\x80\xE0\x80\xE0\x80"));
}

TEST(LooksLikeShiftJis, WhenAThirdOfThemEndHigh) {
  EXPECT_TRUE(looksLikeShiftJis("\x81\x80\x81\x7E\x81\x7E"));
  EXPECT_FALSE(looksLikeShiftJis("\x81\x80\x81\x7E\x81\x7E\x81\x7E"));
}

}  // namespace

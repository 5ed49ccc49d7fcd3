// Tests of the characters that sources are written with, byte by byte, and of their places.
#include <gtest/gtest.h>

#include <string>

#include "toolkit/import/Characters.h"
#include "toolkit/text/Utf8Text.h"

namespace {

using as::toolkit::CharacterClass;
using as::toolkit::characterLength;
using as::toolkit::columnBehind;
using as::toolkit::columnsOfCharacter;
using as::toolkit::isAscii;
using as::toolkit::isCommentBar;
using as::toolkit::isUtf8;

CharacterClass classIn(char character) {
  const auto byte = static_cast<unsigned char>(character);
  const auto isAny = [&](const char* all) { return std::string(all).find(character) < 256; };
  if (byte < 0x21 || byte == 0x7F) return CharacterClass::blank;
  if (byte > 0x7F || isAny("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz")) {
    return CharacterClass::word;
  }
  if (isAny("0123456789-_$#@")) return CharacterClass::word;
  if (isAny(".,;")) return CharacterClass::separator;
  if (isAny("*")) return CharacterClass::star;
  if (isAny("|")) return CharacterClass::bar;
  if (isAny("\"'")) return CharacterClass::quote;
  if (isAny("():&=<>")) return CharacterClass::mark;
  EXPECT_TRUE(isAny("!%+/?[\\]^`{}~")) << byte;
  return CharacterClass::inRun;
}

TEST(Characters, AreOfTheirClass) {
  for (int byte = 0; byte < 256; byte++) {
    const auto character = static_cast<char>(byte);
    EXPECT_EQ(as::toolkit::classOf(character), classIn(character)) << byte;
  }
}

TEST(Characters, OfUtf8BeginWithABeginning) {
  for (int byte = 0; byte < 256; byte++) {
    EXPECT_EQ(as::toolkit::isWithinCharacter(static_cast<char>(byte)), byte >= 0x80 && byte < 0xC0);
  }
}

TEST(CommentBar, IsNoHalfOfTwo) {
  EXPECT_TRUE(isCommentBar(' ', ' '));
  EXPECT_TRUE(isCommentBar('\x7F', '\x80'));
  EXPECT_FALSE(isCommentBar('|', ' '));
  EXPECT_FALSE(isCommentBar(' ', '|'));
  EXPECT_FALSE(isCommentBar('\x80', ' '));
}

TEST(Columns, AreCountedInCharactersAndTabs) {
  EXPECT_EQ(columnBehind("", 7), 7);
  EXPECT_EQ(columnBehind("ab", 7), 9);
  EXPECT_EQ(columnBehind("\xC3\xA4", 7), 8);
  for (int column = 1; column <= 8; column++) EXPECT_EQ(columnBehind("\t", column), 9) << column;
  EXPECT_EQ(columnBehind("\t", 9), 17);
  EXPECT_EQ(columnBehind("\ta\t", 1), 17);
}

// Wherever they end, the column is a number.
TEST(Columns, EndBeforeTheirNumbersDo) {
  constexpr std::int32_t most = 2147483647;
  EXPECT_EQ(columnBehind("\t", most - 1), most - 9);
  EXPECT_EQ(columnBehind("aa", most - 10), most - 9);
  EXPECT_EQ(columnBehind("\t", most - 10), most - 6);
}

TEST(AsciiText, HasNoOtherByteAnywhere) {
  for (std::size_t size = 0; size < 20; size++) {
    const std::string text(size, '\x7F');
    EXPECT_TRUE(isAscii(text)) << size;
    for (std::size_t i = 0; i < size; i++) {
      std::string other = text;
      other[i] = '\x80';
      EXPECT_FALSE(isAscii(other)) << i << " of " << size;
    }
  }
}

struct Row {
  std::string bytes;
  std::size_t length;
};

TEST(CharacterLength, IsThatOfUtf8) {
  for (const Row& row : {
           Row{"\x7F", 1},
           Row{"\x80\x80", 0},
           Row{"\xC1\x80", 0},
           Row{"\xC2\x80", 2},
           Row{"\xC2\x7F", 0},
           Row{"\xC2\xBF", 2},
           Row{"\xC2\xC0", 0},
           Row{"\xC2", 0},
           Row{"\xDF\x80", 2},
           Row{"\xE0\x9F\x80", 0},
           Row{"\xE0\xA0\x80", 3},
           Row{"\xE1\x80\x80", 3},
           Row{"\xE1\x80\x7F", 0},
           Row{"\xE1\x7F\x80", 0},
           Row{"\xE1\x80", 0},
           Row{"\xEC\xBF\xBF", 3},
           Row{"\xED\x9F\xBF", 3},
           Row{"\xED\xA0\x80", 0},
           Row{"\xEE\xA0\x80", 3},
           Row{"\xEF\xBF\xBF", 3},
           Row{"\xF0\x8F\x80\x80", 0},
           Row{"\xF0\x90\x80\x80", 4},
           Row{"\xF1\x80\x80\x80", 4},
           Row{"\xF1\x7F\x80\x80", 0},
           Row{"\xF1\x80\x7F\x80", 0},
           Row{"\xF1\x80\x80\x7F", 0},
           Row{"\xF1\x80\x80", 0},
           Row{"\xF3\x90\x80\x80", 4},
           Row{"\xF4\x8F\xBF\xBF", 4},
           Row{"\xF4\x90\x80\x80", 0},
           Row{"\xF5\x80\x80\x80", 0},
       }) {
    EXPECT_EQ(characterLength("a" + row.bytes + "a", 1), row.length) << row.bytes;
    EXPECT_EQ(isUtf8("a" + row.bytes + "a"), row.length > 0) << row.bytes;
    EXPECT_EQ(characterLength(row.bytes, 0), row.length) << row.bytes;
  }
}

TEST(CharacterColumns, AreTwoForCharactersOfTwoBytes) {
  struct Columns {
    const char* character;
    int columns;
  };
  for (const Columns& row : {
           Columns{"a", 1},
           Columns{"\xC3\xA4", 1},
           Columns{"\xCC\x80", 1},
           Columns{"\xCD\xB0", 2},
           Columns{"\xD3\xBF", 2},
           Columns{"\xD4\x80", 1},
           Columns{"\xDF\xBF", 1},
           Columns{"\xE0\xA0\x80", 2},
           Columns{"\xE2\x80\xBD", 2},
           Columns{"\xE2\x80\xBE", 1},
           Columns{"\xE2\x80\xBF", 2},
           Columns{"\xE6\x97\xA5", 2},
           Columns{"\xEF\xBD\xA0", 2},
           Columns{"\xEF\xBD\xA1", 1},
           Columns{"\xEF\xBE\x9F", 1},
           Columns{"\xEF\xBE\xA0", 2},
           Columns{"\xEF\xBF\xBC", 2},
           Columns{"\xEF\xBF\xBD", 1},
           Columns{"\xF0\x9F\x98\x80", 2},
       }) {
    EXPECT_EQ(columnsOfCharacter(row.character), row.columns) << row.character;
    EXPECT_EQ(columnsOfCharacter(row.character + std::string("abc")), row.columns);
  }
}

}  // namespace

// Tests of text for people.
#include <gtest/gtest.h>

#include <string>

#include "as/toolkit/Text.h"

namespace {

using as::toolkit::count;
using as::toolkit::printable;

TEST(PrintableText, WritesEveryControlCharacterByItsNumber) {
  const struct {
    std::string text;
    const char* printed;
  } rows[] = {
      {std::string(1, '\0'), "\\u0000"},
      {"\x09", "\\u0009"},
      {"\x0A", "\\u000A"},
      {"\x1B", "\\u001B"},
      {"\x1F", "\\u001F"},
      {"\x7F", "\\u007F"},
      {"\xC2\x80", "\\u0080"},
      {"\xC2\x9F", "\\u009F"},
      {"a\nb", "a\\u000Ab"},
      {"\xC2\x85z", "\\u0085z"},
  };
  for (const auto& row : rows) EXPECT_EQ(printable(row.text), row.printed);
}

TEST(PrintableText, LeavesTheCharactersBesideThemAlone) {
  for (const char* const text : {"", " ", "~", "\xC2\xA0", "\xC2\xBF", "\xC3\x80", "\xC3\x9F",
                                 "\xC1\x80", "\xE2\x82\xAC", "\xC2", "\xC2\x7E", "a\\u000A"}) {
    EXPECT_EQ(printable(text), text);
  }
}

TEST(CountText, IsPluralUnlessThereIsOne) {
  EXPECT_EQ(count(0, "table"), "0 tables");
  EXPECT_EQ(count(1, "table"), "1 table");
  EXPECT_EQ(count(2, "table"), "2 tables");
}

// Half a character and a control.
TEST(PrintableText, WritesAControlBehindTheFirstByteOfACharacter) {
  EXPECT_EQ(printable("\xC2\x7F"), "\xC2\\u007F");
  EXPECT_EQ(printable("\xC2\x1F"), "\xC2\\u001F");
}

}  // namespace

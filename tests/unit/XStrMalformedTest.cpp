// Tests of what stays of a text beside bytes that are no UTF-8: the first and last character of
// each length, and those around the ones that are none.
#include <gtest/gtest.h>

#include <string>

#include "xml/XStr.h"

namespace {

std::u16string wideOf(const std::string& text) {
  CXStr converted(text);
  return static_cast<const XMLCh*>(converted);
}

TEST(XStrMalformed, WholeCharactersStayBesideABadByte) {
  const struct {
    const char* narrow;
    std::u16string wide;
  } rows[] = {
      {"\x01", {0x01}},
      {"\x7F", {0x7F}},
      {"\xC2\x80", {0x80}},
      {"\xDF\xBF", {0x7FF}},
      {"\xE0\xA0\x80", {0x800}},
      {"\xE0\xBF\xBF", {0xFFF}},
      {"\xE1\x80\x80", {0x1000}},
      {"\xE2\x82\xAC", {0x20AC}},
      {"\xED\x80\x80", {0xD000}},
      {"\xED\x9F\xBF", {0xD7FF}},
      {"\xEE\x80\x80", {0xE000}},
      {"\xEF\xBF\xBD", {0xFFFD}},
      {"\xF0\x90\x80\x80", {0xD800, 0xDC00}},
      {"\xF1\x80\x80\x80", {0xD8C0, 0xDC00}},
      {"\xF3\xBF\xBF\xBF", {0xDBBF, 0xDFFF}},
      {"\xF4\x80\x80\x80", {0xDBC0, 0xDC00}},
      {"\xF4\x8F\xBF\xBF", {0xDBFF, 0xDFFF}},
  };
  for (const auto& row : rows) {
    const std::string narrow = row.narrow;
    EXPECT_EQ(wideOf("\xFF" + narrow), u"\uFFFD" + row.wide) << narrow;
    EXPECT_EQ(wideOf(narrow + "\xFF"), row.wide + u"\uFFFD") << narrow;
    EXPECT_EQ(wideOf("\x80" + narrow + narrow + "."), u"\uFFFD" + row.wide + row.wide + u".");
  }
}

TEST(XStrMalformed, EachByteOfWhatIsNearlyACharacterIsReplaced) {
  for (const char* const narrow :
       {"\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
        "\xF5\x80\x80\x80", "\xF7\xBF\xBF\xBF", "\xE2\x82", "\xF1\x80"}) {
    const std::u16string expected(std::string(narrow).size(), u'\uFFFD');
    EXPECT_EQ(wideOf(narrow), expected) << narrow;
    // The parser's transcoder stops there, or goes on behind it.
    EXPECT_EQ(wideOf(std::string(100, 'x') + narrow), std::u16string(100, u'x') + expected);
    EXPECT_EQ(wideOf(std::string(narrow) + "a"), expected + u"a") << narrow;
  }
}

}  // namespace

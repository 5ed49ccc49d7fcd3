// Tests of what dictionaries that are imported hold of texts that XML cannot.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "toolkit/import/XmlText.h"

namespace {

using as::toolkit::XmlText;

struct Row {
  const char* name;
  std::string text;
  std::string held;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const std::string none = "\xEF\xBF\xBD";  // Stands for what is no character.

const Row rows[] = {
    {"Nothing", "", ""},
    {"Ascii", "a&<>\"~", "a&<>\"~"},
    {"Blanks", "\t\n\r", "\t\n\r"},
    {"Controls", std::string("\0\x01\x1F", 3), none + none + none},
    {"TwoBytes", "\xC2\x80\xDF\xBF", "\xC2\x80\xDF\xBF"},
    {"ThreeBytes", "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80", "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80"},
    {"FourBytes", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBD", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBD"},
    {"ByteOfNoCharacter",
     "a\x80"
     "b\xFF"
     "c",
     "a" + none + "b" + none + "c"},
    {"OverlongInTwo", "\xC1\xBF", none + none},
    {"OverlongInThree", "\xE0\x9F\xBF", none + none + none},
    {"OverlongInFour", "\xF0\x8F\xBF\xBF", none + none + none + none},
    {"Cut", "\xE6\x97", none + none},
    {"CutInFrontOfAnother",
     "\xE6"
     "a",
     none + "a"},
    {"Surrogate", "\xED\xA0\x80", none + none + none},
    {"NoCharacters", "\xEF\xBF\xBE\xEF\xBF\xBF", none + none + none + none + none + none},
    {"BeyondAll", "\xF4\x90\x80\x80", none + none + none + none},
    {"FarBeyondAll", "\xF5\x80\x80\x80", none + none + none + none},
};

class HeldText : public testing::TestWithParam<Row> {};

TEST_P(HeldText, IsTheTextAsFarAsItGoes) {
  EXPECT_EQ(XmlText::heldOf(GetParam().text), GetParam().held);
}

INSTANTIATE_TEST_SUITE_P(Rows, HeldText, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HeldValue, IsReadAsItWas) {
  XmlText text;
  text.open("a");
  text.attribute("b", "\t\n\r&<>\"'\xC3\xA4\x7F\xFF");
  text.close("a");
  EXPECT_EQ(text.take(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<a b=\"&#9;&#10;&#13;&amp;&lt;&gt;&quot;'\xC3\xA4\x7F" +
                none + "\"/>\n");
}

}  // namespace

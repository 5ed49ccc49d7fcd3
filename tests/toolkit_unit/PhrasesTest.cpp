// Tests of turns of phrase, of names that are made unique, and of the words for what codes stand
// for.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "toolkit/import/LineText.h"
#include "toolkit/text/Names.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/text/Utf8.h"
#include "toolkit/text/Words.h"

namespace {

namespace tk = as::toolkit;

TEST(Phrases, AreWordForWord) {
  EXPECT_EQ(tk::quote("A"), "'A'");
  EXPECT_EQ(tk::didYouMean("A"), "did you mean 'A'?");
  EXPECT_EQ(tk::dotted({}), "");
  EXPECT_EQ(tk::dotted({"A"}), "A");
  EXPECT_EQ(tk::dotted({"A", "B", "C"}), "A.B.C");
}

TEST(Phrases, TellTheFirstTwentyNames) {
  EXPECT_EQ(tk::firstOf({}), "");
  EXPECT_EQ(tk::firstOf({"A"}), "A");
  EXPECT_EQ(tk::firstOf({"A", "B"}), "A, B");
  const std::string twenty = "A, A, A, A, A, A, A, A, A, A, A, A, A, A, A, A, A, A, A, A";
  EXPECT_EQ(tk::firstOf(std::vector<std::string>(20, "A")), twenty);
  EXPECT_EQ(tk::firstOf(std::vector<std::string>(21, "A")), twenty + " and 1 other");
  EXPECT_EQ(tk::firstOf(std::vector<std::string>(27, "A")), twenty + " and 7 others");
}

TEST(Numerals, HaveDigitsAndOneSignAndOnePeriodAtMost) {
  for (const char* const text : {"0", "9", "-1", "+2", "3.4", "5,6", "1234567890", "-.5", "7."}) {
    EXPECT_TRUE(tk::isNumeral(text)) << text;
  }
  for (const char* const text :
       {"", "-", "+.,", "A", "1A", "1 ", "1/2", "1-2", "2-", "--1", "1.2.3", "1.2,3", ".", "1E5"}) {
    EXPECT_FALSE(tk::isNumeral(text)) << text;
  }
}

TEST(CharacterCount, IsThatOfTheBytesThatBeginOne) {
  for (int byte = 0; byte < 256; byte++) {
    EXPECT_EQ(tk::characterCount("A" + std::string(1, static_cast<char>(byte)) + "B"),
              byte >= 0x80 && byte < 0xC0 ? 2U : 3U)
        << byte;
  }
}

TEST(Utf8Text, HasAsManyBytesAsItsCharactersNeed) {
  struct Row {
    std::uint32_t code;
    const char* bytes;
  };
  for (const Row& row : {
           Row{0x41, "A"},
           Row{0x7F, "\x7F"},
           Row{0x80, "\xC2\x80"},
           Row{0x7FF, "\xDF\xBF"},
           Row{0x800, "\xE0\xA0\x80"},
           Row{0xFFFF, "\xEF\xBF\xBF"},
           Row{0x10000, "\xF0\x90\x80\x80"},
           Row{0x5F0F7, "\xF1\x9F\x83\xB7"},
           Row{0x10FFFF, "\xF4\x8F\xBF\xBF"},
       }) {
    std::string text = "<";
    tk::appendUtf8(text, row.code);
    EXPECT_EQ(text, std::string("<") + row.bytes);
  }
}

TEST(UniqueNames, AreNumberedFromTheSecondOn) {
  tk::Names names;
  EXPECT_EQ(names.unique("A"), "A");
  EXPECT_EQ(names.unique("A"), "A-2");
  EXPECT_EQ(names.unique("A"), "A-3");
  EXPECT_EQ(names.unique("A-2"), "A-2-2");
  EXPECT_EQ(names.unique("B-2"), "B-2");
  EXPECT_EQ(names.unique("B"), "B");
  EXPECT_EQ(names.unique("B"), "B-3");
}

TEST(LineText, IsTrimmedOfItsBlanks) {
  EXPECT_EQ(tk::trimmed(" \t A B\x01 \x7F"), "A B");
  EXPECT_EQ(tk::trimmed("  "), "");
  EXPECT_EQ(tk::withoutBlanksInFront(" A "), "A ");
  EXPECT_EQ(tk::withoutBlanksBehind(" A "), " A");
}

TEST(LineText, BeginsAWordThatEnds) {
  for (const char* const text : {"CBL", "cbl A", "CBL\t"}) {
    EXPECT_TRUE(tk::beginsWord(text, "CBL")) << text;
  }
  for (const char* const text : {"", "CB", "CBLA", "CBL-A", "CBL1", " CBL", "CBL.", "CBL(A)"}) {
    EXPECT_FALSE(tk::beginsWord(text, "CBL")) << text;
  }
}

// The words of the codes from 0 on, and of none in front of and behind them.
std::string wordsOf(const std::function<std::string(int)>& word) {
  std::string words;
  int code = 0;
  for (; word(code) != "unknown"; ++code) words += (code == 0 ? "" : ", ") + word(code);
  EXPECT_EQ(word(-1), "unknown");
  EXPECT_EQ(word(code + 1), "unknown");
  return words;
}

TEST(Words, StandForTheCodesOfTheModel) {
  EXPECT_EQ(wordsOf(tk::dataTypeWord),
            "group, numeric, alphanumeric, object, pointer, national, numeric edited, alphanumeric "
            "edited, index");
  EXPECT_EQ(
      wordsOf(tk::numericUsageWord),
      "comp, comp-x, comp-1, comp-2, comp-3, comp-4, comp-5, comp-6, external float, display");
  EXPECT_EQ(wordsOf(tk::signWord),
            "leading, leading separate, trailing, trailing separate, signed, none");
  EXPECT_EQ(wordsOf(tk::justificationWord), "left, right");
  EXPECT_EQ(wordsOf(tk::nationalUsageWord), "display, unicode");
  EXPECT_EQ(wordsOf(tk::conditionValueTypeWord), "constant, range");
  EXPECT_EQ(wordsOf(tk::byTypeWord), "reference, value, returning");
  EXPECT_EQ(wordsOf(tk::implementationWord), "Web service, Java, COM, xd, .NET");
  EXPECT_EQ(wordsOf(tk::directionWord), "in, out, io");
  EXPECT_EQ(wordsOf(tk::mappingTypeWord),
            "data item, command line, return code, standard input, standard output");
}

}  // namespace

// Tests of the conversion between UTF-8 and XMLCh text.
#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <type_traits>
#include <vector>

#include "xml/XStr.h"

namespace {

std::string text(CXStr value) { return value; }

const XMLCh* wide(CXStr& value) { return value; }

std::u16string wideText(CXStr value) {
  const XMLCh* const result = value;
  return result == nullptr ? std::u16string(u"(null)") : std::u16string(result);
}

TEST(XStr, DefaultIsNull) {
  CXStr value;
  EXPECT_TRUE(value.isEmpty());
  EXPECT_EQ(static_cast<char*>(value), nullptr);
  EXPECT_EQ(wide(value), nullptr);
  EXPECT_EQ(static_cast<std::string>(value), "");
}

TEST(XStr, KeepsACopyOfText) {
  char source[] = "abc";
  CXStr value(source);
  source[0] = 'x';
  EXPECT_STREQ(static_cast<char*>(value), "abc");
}

TEST(XStr, NullTextStaysNull) {
  CXStr value(static_cast<const char*>(nullptr));
  EXPECT_EQ(static_cast<char*>(value), nullptr);
  EXPECT_TRUE(value.isEmpty());
}

TEST(XStr, EmptyTextIsEmptyButNotNull) {
  CXStr value("");
  EXPECT_TRUE(value.isEmpty());
  EXPECT_NE(static_cast<char*>(value), nullptr);
  ASSERT_NE(wide(value), nullptr);
  EXPECT_EQ(wideText(value), u"(null)") << "a copy goes through XMLCh, where empty becomes null";
}

TEST(XStr, TakesAStdString) { EXPECT_EQ(text(CXStr(std::string("name"))), "name"); }

TEST(XStr, FormatsIntegers) {
  const struct {
    int number;
    const char* text;
  } rows[] = {{0, "0"}, {7, "7"}, {-1, "-1"}, {INT_MAX, "2147483647"}, {INT_MIN, "-2147483648"}};
  for (const auto& row : rows) EXPECT_EQ(text(CXStr(row.number)), row.text);
}

TEST(XStr, ReadsIntegersAsStrtolDoesWithinInt) {
  const struct {
    const char* text;
    int number;
  } rows[] = {
      {"0", 0},
      {"42", 42},
      {"-42", -42},
      {"+5", 5},
      {"  12", 12},
      {"12abc", 12},
      {"007", 7},
      {"abc", 0},
      {"", 0},
      {"-", 0},
      {"0x10", 0},
      {"1e3", 1},
      {"2147483647", INT_MAX},
      {"2147483648", INT_MAX},
      {"-2147483648", INT_MIN},
      {"-2147483649", INT_MIN},
      {"99999999999999999999999999", INT_MAX},
      {"-99999999999999999999999999", INT_MIN},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(static_cast<int>(CXStr(row.text)), row.number) << row.text;
  }
  EXPECT_EQ(static_cast<int>(CXStr()), 0);
}

TEST(XStr, ReadsTruthInAnyCase) {
  for (const char* yes : {"true", "TRUE", "True", "tRuE"}) {
    EXPECT_TRUE(static_cast<bool>(CXStr(yes))) << yes;
  }
  for (const char* no : {"yes", "1", "false", "", "true ", " true", "truee", "tru"}) {
    EXPECT_FALSE(static_cast<bool>(CXStr(no))) << no;
  }
  EXPECT_FALSE(static_cast<bool>(CXStr()));
}

TEST(XStr, EmptyAndNullWideTextMakeANullText) {
  const XMLCh* const none = nullptr;
  for (const XMLCh* source : {none, static_cast<const XMLCh*>(u"")}) {
    CXStr value(source, false);
    EXPECT_TRUE(value.isEmpty());
    EXPECT_EQ(static_cast<char*>(value), nullptr);
    EXPECT_EQ(static_cast<std::string>(value), "");
    EXPECT_EQ(wide(value), nullptr);
  }
}

TEST(XStr, FlagHasNoEffect) {
  EXPECT_EQ(text(CXStr(u"abc", true)), "abc");
  EXPECT_EQ(text(CXStr(u"abc", false)), "abc");
}

TEST(XStr, ConvertsEveryLengthOfSequenceBothWays) {
  const struct {
    const char* narrow;
    const char16_t* wide;
  } rows[] = {
      {"A", u"A"},
      {"\xC3\xA9", u"\u00E9"},
      {"\xE2\x82\xAC", u"\u20AC"},
      {"\xF0\x9F\x98\x80", u"\U0001F600"},
      {"a\xC3\xA9z", u"a\u00E9z"},
      {"\xEF\xBF\xBF", u"\uFFFF"},
      {"\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(wideText(CXStr(row.narrow)), row.wide);
    EXPECT_EQ(text(CXStr(row.wide, false)), row.narrow);
  }
  CXStr accent("\xC3\xA9");
  const XMLCh* const one = accent;
  EXPECT_EQ(one[0], 0xE9);
  EXPECT_EQ(one[1], 0);
}

TEST(XStr, ConvertsLongTextsWhole) {
  std::string narrow;
  std::u16string wideExpected;
  for (int i = 0; i < 20000; i++) {
    narrow += "x\xE2\x82\xAC";
    wideExpected += u"x\u20AC";
  }
  EXPECT_EQ(wideText(CXStr(narrow)), wideExpected);
  EXPECT_EQ(text(CXStr(wideExpected.c_str(), false)), narrow);
}

TEST(XStr, ReplacesWhatIsNoUtf8) {
  const struct {
    const char* narrow;
    const char16_t* wide;
  } rows[] = {
      {"\xFF", u"\uFFFD"},                      // never a byte of UTF-8
      {"a\x80z", u"a\uFFFDz"},                  // a trailing byte alone
      {"\xC3", u"\uFFFD"},                      // cut short
      {"\xE2\x82", u"\uFFFD\uFFFD"},            // cut short
      {"\xC0\xAF", u"\uFFFD\uFFFD"},            // overlong
      {"\xE0\x80\x80", u"\uFFFD\uFFFD\uFFFD"},  // overlong
      {"\xF0\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},            // a surrogate
      {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // beyond U+10FFFF
      {"\xF5\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"ok\xC3\xA9 \xC3(", u"ok\u00E9 \uFFFD("},
  };
  for (const auto& row : rows) EXPECT_EQ(wideText(CXStr(row.narrow)), row.wide) << row.narrow;
}

// Behind texts of every length around the room that short ones are converted in.
TEST(XStr, ReplacesEachByteOfASequenceCutShortAtTheEnd) {
  const std::string sequences[] = {"\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"};
  std::vector<std::size_t> lengths = {0, 1, 2, 3, 4, 5, 6, 7, 8, 15, 16, 17, 31, 32, 33};
  for (std::size_t length = 250; length < 260; length++) lengths.push_back(length);
  for (std::size_t length = 508; length < 516; length++) lengths.push_back(length);
  for (const std::size_t length : lengths) {
    const std::string good(length, 'a');
    const std::u16string wideGood(length, u'a');
    for (const std::string& sequence : sequences) {
      const std::u16string whole = wideText(CXStr(sequence));
      for (std::size_t cut = 1; cut < sequence.size(); cut++) {
        const std::string part = sequence.substr(0, cut);
        const std::u16string replaced(cut, u'\uFFFD');
        EXPECT_EQ(wideText(CXStr(good + part)), wideGood + replaced) << length << ' ' << cut;
        EXPECT_EQ(wideText(CXStr(good + sequence + part)), wideGood + whole + replaced)
            << length << ' ' << cut;
      }
    }
  }
}

// A bad byte far into a text stops the transcoder where it has already done a part.
TEST(XStr, ReplacesBadBytesBehindALongGoodPart) {
  const std::string good(100, 'a');
  EXPECT_EQ(wideText(CXStr(good + "\xFF" + good)),
            std::u16string(100, u'a') + u"\uFFFD" + std::u16string(100, u'a'));
}

TEST(XStr, EveryPairOfBytesConvertsToWellFormedText) {
  for (int first = 1; first < 256; first++) {
    for (int second = 1; second < 256; second++) {
      const char source[] = {static_cast<char>(first), static_cast<char>(second), '\0'};
      const std::u16string once = wideText(CXStr(source));
      const std::string back = text(CXStr(once.c_str(), false));
      ASSERT_EQ(wideText(CXStr(back)), once) << first << ' ' << second;
    }
  }
}

TEST(XStr, CopyingLeavesTheSourcesWideRenderingAlone) {
  CXStr source("abc");
  const XMLCh* const handedOut = source;
  const CXStr copy(source);
  CXStr assigned;
  assigned = source;
  EXPECT_EQ(text(copy), "abc");
  EXPECT_EQ(text(assigned), "abc");
  EXPECT_EQ(std::u16string(handedOut), u"abc");
}

TEST(XStr, CopyOfEmptyIsNull) {
  CXStr source("");
  CXStr copy(source);
  EXPECT_EQ(static_cast<char*>(copy), nullptr);
}

TEST(XStr, AssignsText) {
  CXStr value("old");
  value = "new";
  EXPECT_EQ(text(value), "new");
  value = static_cast<const char*>(nullptr);
  EXPECT_EQ(static_cast<char*>(value), nullptr);
}

TEST(XStr, AssigningWideTextConvertsIt) {
  CXStr value("old");
  value = static_cast<const XMLCh*>(u"n\u00E9w");
  EXPECT_EQ(text(value), "n\xC3\xA9w");
}

TEST(XStr, AssigningEmptyWideTextKeepsTheOldOne) {
  CXStr value("old");
  value = static_cast<const XMLCh*>(u"");
  EXPECT_EQ(text(value), "old");
  value = static_cast<const XMLCh*>(nullptr);
  EXPECT_EQ(text(value), "old");
}

TEST(XStr, AssigningAnotherReplacesTheText) {
  CXStr value("old");
  CXStr other("other");
  value = other;
  EXPECT_EQ(text(value), "other");
  CXStr none;
  value = none;
  EXPECT_EQ(static_cast<char*>(value), nullptr);
}

TEST(XStr, AssigningToItselfChangesNothing) {
  CXStr value("same");
  CXStr& alias = value;
  value = alias;
  EXPECT_EQ(text(value), "same");
}

TEST(XStr, AssigningItsOwnTextChangesNothing) {
  CXStr value("same");
  value = static_cast<const char*>(static_cast<char*>(value));
  EXPECT_EQ(text(value), "same");
}

TEST(XStr, WideRenderingFollowsTheText) {
  CXStr value("one");
  EXPECT_EQ(std::u16string(wide(value)), u"one");
  value = "two";
  EXPECT_EQ(std::u16string(wide(value)), u"two");
  value = static_cast<const char*>(nullptr);
  EXPECT_EQ(wide(value), nullptr);
}

// Texts that are read where they stand, and texts that are not.
const std::vector<std::u16string> readTexts = {
    u"",
    u"0",
    u"42",
    u"-42",
    u"+42",
    u"--42",
    u"+-42",
    u"-",
    u" \t\n\v\f\r7",
    u"\u00A07",
    u"\u20287",
    u"7\u00E9",
    u"-\u0663",
    u"1,2",
    u"0x10",
    u"2147483646",
    u"2147483647",
    u"2147483648",
    u"-2147483647",
    u"-2147483648",
    u"-2147483649",
    u"99999999999999999999999999999999999999",
    u"-99999999999999999999999999999999999999",
    u"true",
    u"TRUE",
    u"tRuE",
    u"tru",
    u"truE ",
    u" true",
    u"truex",
    u"T\u0052UE",
    u"\u0174rue",
    u"t\u0072u\u0145",
    u"\u007F",
    u"\u0080",
    u"caf\u00E9",
    u"\xD83D\xDE00",
    u"a lone \xD83D surrogate",
};

TEST(XStr, TextsAreReadAsACXStrOfThemReads) {
  for (const std::u16string& read : readTexts) {
    CXStr converted(read.c_str(), false);
    EXPECT_EQ(textOf(read.c_str()), static_cast<std::string>(converted));
    EXPECT_EQ(integerOf(read.c_str()), static_cast<int>(converted)) << textOf(read.c_str());
    EXPECT_EQ(truthOf(read.c_str()), static_cast<bool>(converted)) << textOf(read.c_str());
  }
}

TEST(XStr, NoTextIsReadAsAnEmptyOne) {
  EXPECT_EQ(textOf(nullptr), "");
  EXPECT_EQ(integerOf(nullptr), 0);
  EXPECT_FALSE(truthOf(nullptr));
}

TEST(XStr, HasAVirtualDestructor) { EXPECT_TRUE(std::has_virtual_destructor_v<CXStr>); }

}  // namespace

// Tests of which patterns leave no choice.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <string>

#include "support/SmallStack.h"
#include "support/TempDirectory.h"
#include "xml/PatternInspection.h"
#include "xml/XStr.h"

namespace {

bool leavesNoChoice(const std::string& pattern) {
  CXStr wide(pattern);
  return ::leavesNoChoice(wide);
}

TEST(PatternInspection, LetsThroughWhatLeavesNoChoice) {
  for (const char* pattern : {"a",
                              "abc",
                              "a|b",
                              "ab|cd",
                              "(a|b)c",
                              "[ab]c|d",
                              "a*",
                              "a*b",
                              "a+b?c",
                              "[0-9]+",
                              "\\d+",
                              "\\d{4}-\\d{2}",
                              "[^,]*",
                              "[^,]*,[^,]*",
                              "x(a|b)?",
                              "(ab){0,15}",
                              "(,[^,]*){0,15}",
                              ".*",
                              "a.*",
                              "\\s*",
                              "[a-z]+\\.[a-z]+",
                              "[\\s,]*x",
                              "[^\\s]+ x",
                              "a{3}",
                              "a{0}b",
                              "a{2,}b",
                              "\\*\\?\\+",
                              "[*+?]*",
                              "[a-]+b",
                              "[\\-]+b",
                              "()",
                              "(a*)?b",
                              "(a|)b",
                              "\\n\\r\\t",
                              "\\n*\\t",
                              "(|a)b",
                              "(a|b?)c",
                              "[\\d-]+x",
                              "\\{a\\}",
                              "a{256}"}) {
    EXPECT_TRUE(leavesNoChoice(pattern)) << pattern;
  }
}

TEST(PatternInspection, RefusesWhatLeavesAChoice) {
  for (const char* pattern :
       {"a|a",     "ab|ac",   "a?a",     "a*a",       "a*a*b",    "(a|b)?b", ".*a",
        "[a-c]*b", "(a||b)a", "(|a|b)a", "(a|b|)a",   "\\d*5",    "\\w+a",   "a{1,3}a",
        "(a|aa)b", "a?a?a?b", "[^a]*b",  "\\p{L}a|b", "[^\\w]*x", "[\\d]*7", "\\n*\\s",
        "\\r?\\s", "\\t|\\s", "\\S*x",   "\\P{L}*1",  "\\1*1"}) {
    EXPECT_FALSE(leavesNoChoice(pattern)) << pattern;
  }
}

TEST(PatternInspection, RefusesRepetitionsThatRecurseOrMultiply) {
  for (const char* pattern : {"(ab)*", "(ab)+", "(ab){2,}", "(a|b)*", "(a*)*", "(a+)+", "(a?)*",
                              "(a?){3}", "(a*){0,5}", "a**", "a+?", "a?+", "a*{2}", "a{3}{3}",
                              "a{257}", "(a{20}b){20}", "a{99999999999999999999}"}) {
    EXPECT_FALSE(leavesNoChoice(pattern)) << pattern;
  }
}

TEST(PatternInspection, RefusesWhatItDoesNotUnderstand) {
  for (const char* pattern :
       {"(",   ")",   "(a",    "a)",      "[",       "[a",      "[]",    "]",    "}",      "{",
        "{3}", "*",   "+",     "?",       "a{",      "a{}",     "a{,3}", "a{3",  "a{3,2}", "a{x}",
        "\\",  "[\\", "[z-a]", "[a-[b]]", "[a-\\s]", "[\\s-z]", "[a-",   "[[a]]"}) {
    EXPECT_FALSE(leavesNoChoice(pattern)) << pattern;
  }
}

TEST(PatternInspection, RefusesGroupsThatNestTooDeep) {
  const auto nested = [](std::size_t depth) {
    return std::string(depth, '(') + "a" + std::string(depth, ')');
  };
  EXPECT_TRUE(leavesNoChoice(nested(256)));
  EXPECT_FALSE(leavesNoChoice(nested(257)));
}

// No pattern of a document is longer.
TEST(PatternInspection, LooksAtNestedGroupsOnASmallStack) {
  bool ofWhole = false;
  bool ofOpen = true;
  test::onASmallStack([&] {
    ofWhole = leavesNoChoice(std::string(127, '(') + "a" + std::string(127, ')'));
    ofOpen = leavesNoChoice(std::string(256, '('));
  });
  EXPECT_TRUE(ofWhole);
  EXPECT_FALSE(ofOpen);
}

// Copies of them may lie beside documents.
TEST(PatternInspection, LetsTheShippedSchemasThrough) {
  int patterns = 0;
  for (const auto& schema : std::filesystem::directory_iterator(AS_SCHEMA_DIR)) {
    const std::string text = test::contentOf(schema.path());
    const std::regex pattern("<xs:pattern value=\"([^\"]*)\"");
    for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at) {
      EXPECT_TRUE(leavesNoChoice((*at)[1])) << (*at)[1] << " in " << schema.path();
      patterns++;
    }
  }
  EXPECT_GT(patterns, 10);
}

TEST(PatternInspection, RefusesRepetitionsOfRepetitions) {
  for (const std::string first : {"*", "+", "?", "{2}", "{2,3}", "{2,}"}) {
    EXPECT_TRUE(leavesNoChoice("a" + first)) << first;
    for (const std::string second : {"*", "+", "?", "{2}", "{0}"}) {
      EXPECT_FALSE(leavesNoChoice("a" + first + second)) << first << second;
    }
  }
}

}  // namespace

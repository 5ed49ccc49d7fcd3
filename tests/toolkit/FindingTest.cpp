// Tests of findings as text, and of text for people.
#include <gtest/gtest.h>

#include <string>

#include "as/toolkit/Finding.h"
#include "as/toolkit/Text.h"

namespace {

namespace toolkit = as::toolkit;
using toolkit::Severity;

TEST(FindingTest, IsToldInOneLine) {
  const struct {
    toolkit::Finding finding;
    const char* text;
  } rows[] = {{{"r", Severity::error, "op.p", "it is wrong", "right it"},
               "error: op.p: it is wrong; right it"},
              {{"r", Severity::warning, "service", "it is odd", "look"},
               "warning: service: it is odd; look"},
              {{"r", Severity::note, "op", "it is so", ""}, "note: op: it is so"}};
  for (const auto& row : rows) EXPECT_EQ(textOf(row.finding), row.text);
}

TEST(FindingTest, AreCountedBySeverity) {
  const toolkit::Findings findings = {{"a", Severity::error, "", "", ""},
                                      {"b", Severity::note, "", "", ""},
                                      {"c", Severity::error, "", "", ""}};
  EXPECT_EQ(countOf(findings, Severity::error), 2u);
  EXPECT_EQ(countOf(findings, Severity::warning), 0u);
  EXPECT_EQ(countOf(findings, Severity::note), 1u);
}

TEST(TextTest, ControlCharactersAreSpelledOut) {
  EXPECT_EQ(toolkit::printable("a\x1B[0m\n\x7F\xC2\x9B-ä€"), "a\\u001B[0m\\u000A\\u007F\\u009B-ä€");
}

TEST(TextTest, CountsAreInTheRightNumber) {
  EXPECT_EQ(toolkit::count(0, "table"), "0 tables");
  EXPECT_EQ(toolkit::count(1, "table"), "1 table");
  EXPECT_EQ(toolkit::count(3, "table"), "3 tables");
}

}  // namespace

// Tests of names that somebody may have meant.
#include <gtest/gtest.h>

#include <string>

#include "toolkit/text/NearNames.h"

namespace {

using as::toolkit::editDistance;
using as::toolkit::NearNames;

TEST(EditDistance, CountsChanges) {
  const struct {
    const char* left;
    const char* right;
    std::size_t distance;
  } rows[] = {{"", "", 0},         {"A", "", 1},
              {"ABC", "ABC", 0},   {"abc", "ABC", 0},
              {"ABC", "ABD", 1},   {"ABC", "AC", 1},
              {"ABC", "ABCD", 1},  {"ABC", "BAC", 1},
              {"ABC", "CBA", 2},   {"KITTEN", "SITTING", 3},
              {"A", "BCDE", 4},    {"ABCD", "WXYZ", 4},
              {"ABXY", "XYAB", 4}, {"ABCDEF", "BADCFE", 3}};
  for (const auto& row : rows) {
    for (std::size_t most = 0; most <= 4; ++most) {
      const std::size_t expected = std::min(row.distance, most + 1);
      if (row.distance > 4) continue;
      EXPECT_EQ(editDistance(row.left, row.right, most), expected) << row.left << ' ' << most;
      EXPECT_EQ(editDistance(row.right, row.left, most), expected) << row.right << ' ' << most;
    }
  }
}

TEST(NearNames, AreTheFirstOfTheNearestOnes) {
  NearNames names;
  for (const char* const name : {"PERIOD-YEARS", "PERIOD-DEAR", "PERIOD-YEAR", "PERIOD-YEAR"}) {
    names.add(name);
  }
  EXPECT_EQ(names.nearestTo("PERIOD-YEAR"), 2U);
  EXPECT_EQ(names.nearestTo("PERIOD-YER"), 2U);
  EXPECT_EQ(names.nearestTo("PERIOD-EAR"), 1U);
  EXPECT_EQ(names.nearestTo("period-years"), 0U);
  EXPECT_FALSE(names.nearestTo("MONTH"));
  EXPECT_FALSE(names.nearestTo(""));
}

TEST(NearNames, ShortOnesTakeFewerChanges) {
  NearNames names;
  for (const char* const name : {"AB", "CDE", "FGHIJK"}) names.add(name);
  EXPECT_EQ(names.nearestTo("ab"), 0U);
  EXPECT_FALSE(names.nearestTo("AX"));
  EXPECT_EQ(names.nearestTo("CDX"), 1U);
  EXPECT_FALSE(names.nearestTo("CXX"));
  EXPECT_EQ(names.nearestTo("FGHIXX"), 2U);
  EXPECT_FALSE(names.nearestTo("FGHXXX"));
}

// A million of names asked for in a million of others would take hours.
TEST(NearNames, TakeABoundedTime) {
  NearNames names;
  for (int i = 0; i < 20000; ++i) names.add("NAME-" + std::to_string(i));
  EXPECT_EQ(names.nearestTo("NAME-17X"), 17U);
  int found = 0;
  for (int i = 0; i < 20000; ++i) found += names.nearestTo("NAMX-" + std::to_string(i)) ? 1 : 0;
  EXPECT_LT(found, 20000);
  EXPECT_FALSE(names.nearestTo("NAME-18X"));
  EXPECT_EQ(names.nearestTo("NAME-17X"), 17U);
}

TEST(NearNames, OfAnyLengthAreSafe) {
  NearNames names;
  names.add(std::string(5000, 'A'));
  names.add("");
  EXPECT_FALSE(names.nearestTo(std::string(5001, 'A')));
  EXPECT_FALSE(names.nearestTo("\xFF\x80"));
}

TEST(EditDistance, OfTheLongestNames) {
  const std::string longest(100, 'A');
  const std::string other = longest.substr(1) + "B";
  EXPECT_EQ(editDistance(longest, other, 2), 1U);
  EXPECT_EQ(editDistance(longest + "A", longest, 2), 3U);
  EXPECT_EQ(editDistance(longest, longest + "A", 2), 3U);
  NearNames names;
  names.add(other);
  EXPECT_EQ(names.nearestTo(longest), 0U);
  EXPECT_FALSE(names.nearestTo(longest + "A"));
}

}  // namespace

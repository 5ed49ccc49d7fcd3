// Tests of how places are told: whole as long as anybody reads them, and then without their middle.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "toolkit/text/ShownPlace.h"

namespace {

using as::toolkit::longestPlace;
using as::toolkit::shownPath;
using as::toolkit::shownPlace;

constexpr std::size_t half = longestPlace / 2;

TEST(ShownPlace, IsWholeAsLongAsItIsRead) {
  EXPECT_EQ(shownPlace({}), "");
  EXPECT_EQ(shownPlace({"type ", "A", ".b"}), "type A.b");
  EXPECT_EQ(shownPath(std::vector<std::string>{"A", "", "C"}), "A..C");
  const std::string longest(longestPlace, 'x');
  EXPECT_EQ(shownPlace({longest}), longest);
  EXPECT_EQ(shownPlace({"", longest.substr(1), "y"}), longest.substr(1) + "y");
}

TEST(ShownPlace, LosesItsMiddleWhenItIsLonger) {
  const std::string expected = std::string(half, 'x') + "..." + std::string(half, 'y');
  EXPECT_EQ(shownPlace({std::string(half + 1, 'x') + std::string(half, 'y')}), expected);
  EXPECT_EQ(shownPlace({std::string(longestPlace, 'x'), std::string(longestPlace, 'y')}), expected);
  EXPECT_EQ(shownPlace({std::string(half, 'x'), "z", std::string(half, 'y')}), expected);
  EXPECT_EQ(shownPlace({expected}), expected);
}

TEST(ShownPlace, IsMadeOfPartsOfAnyNumber) {
  const std::vector<std::string_view> parts(longestPlace, "xy");
  std::string whole;
  for (const std::string_view part : parts) whole += part;
  EXPECT_EQ(shownPlace(parts), whole.substr(0, half) + "..." + whole.substr(0, half));
  EXPECT_EQ(shownPlace(parts), shownPlace({whole}));
}

// Wherever the cut is within a character of so many bytes.
TEST(ShownPlace, HoldsWholeCharacters) {
  for (const std::string character : {"\u00e4", "\u20ac", "\U0001F600"}) {
    std::string text;
    for (std::size_t i = 0; i < longestPlace; ++i) text += character;
    for (std::size_t shift = 0; shift < 4; ++shift) {
      const std::string place =
          shownPlace({std::string(shift, 'a'), text, std::string(shift, 'b')});
      const std::size_t dots = place.find("...");
      ASSERT_NE(dots, std::string::npos);
      const std::string before = place.substr(shift, dots - shift);
      const std::string after = place.substr(dots + 3, place.size() - shift - dots - 3);
      EXPECT_EQ(before, text.substr(0, before.size())) << shift;
      EXPECT_EQ(after, text.substr(0, after.size())) << shift;
      EXPECT_EQ(before.size() % character.size(), 0U) << shift;
      EXPECT_EQ(after.size() % character.size(), 0U) << shift;
      EXPECT_GT(place.size(), longestPlace - 2 * character.size());
    }
  }
}

}  // namespace

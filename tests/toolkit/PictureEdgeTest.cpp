// Tests of pictures that are nearly right.
#include <gtest/gtest.h>

#include <string>

#include "as/toolkit/Picture.h"

namespace {

using as::toolkit::PictureRules;
using as::toolkit::readPicture;

TEST(NearlyPicture, IsRefused) {
  const char* const rows[] = {
      "9(/)",           // The character in front of the digits ...
      "9(:)",           // ... and the one behind them.
      "9(1:)",          //
      "+9EE+99",        // External floating point: E twice,
      "+9E9+",          // the exponent's sign behind it,
      "+9E+-",          // no exponent,
      "+..9E+99",       // two points together.
      "U(2000000000)",  // More bytes than a number holds,
      "UX",             // something else behind,
      "{9",             // and no symbol at all.
  };
  for (const char* const text : rows) EXPECT_FALSE(readPicture(text).has_value()) << text;
}

TEST(NearlyPicture, ACurrencyStringHasACharacter) {
  PictureRules rules;
  rules.currencyCharacters = 0;
  EXPECT_FALSE(readPicture("$9", rules).has_value());
  rules.currencyCharacters = 2147483647;
  EXPECT_FALSE(readPicture("$$9", rules).has_value());
  rules.currencyCharacters = 1;
  EXPECT_TRUE(readPicture("$9", rules).has_value());
}

TEST(NearlyPicture, ACurrencySymbolIsNoSymbolOfUtf8) {
  PictureRules rules;
  EXPECT_EQ(readPicture("UU", rules)->category, as::toolkit::Picture::Category::utf8);
  rules.currencySymbol = "U";
  EXPECT_EQ(readPicture("UU9", rules)->category, as::toolkit::Picture::Category::numericEdited);
}

}  // namespace

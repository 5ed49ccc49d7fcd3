// Tests of pictures that are nearly right.
#include <gtest/gtest.h>

#include <string>

#include "as/toolkit/Picture.h"

namespace {

using as::toolkit::PictureRules;
using as::toolkit::readPicture;

TEST(NearlyPicture, IsRefused) {
  const char* const rows[] = {
      "9(/)",     // The character in front of the digits ...
      "9(:)",     // ... and the one behind them.
      "9(1:)",    //
      "+9EE+99",  // External floating point: E twice,
      "+9E9+",    // the exponent's sign behind it,
      "+9E+-",    // no exponent,
      "+..9E+99"  // two points together.
  };
  for (const char* const text : rows) EXPECT_FALSE(readPicture(text).has_value()) << text;
}

TEST(NearlyPicture, ACurrencyStringHasACharacter) {
  PictureRules rules;
  rules.currencyCharacters = 0;
  EXPECT_FALSE(readPicture("$9", rules).has_value());
  rules.currencyCharacters = 1;
  EXPECT_TRUE(readPicture("$9", rules).has_value());
}

}  // namespace

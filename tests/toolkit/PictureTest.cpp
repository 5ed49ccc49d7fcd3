// Tests of what pictures say, and of what is no picture.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

#include "as/toolkit/Picture.h"

namespace {

using as::toolkit::Picture;
using as::toolkit::PictureRules;
using as::toolkit::readPicture;
using Category = Picture::Category;

struct Row {
  const char* text;
  Category category;
  int characters;
  int digits = 0;
  int scale = 0;
  int scaling = 0;
  bool isSigned = false;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.text; }

void expectRow(const std::optional<Picture>& picture, const Row& row) {
  ASSERT_TRUE(picture.has_value());
  EXPECT_EQ(picture->category, row.category);
  EXPECT_EQ(picture->characters, row.characters);
  EXPECT_EQ(picture->digits, row.digits);
  EXPECT_EQ(picture->scale, row.scale);
  EXPECT_EQ(picture->scaling, row.scaling);
  EXPECT_EQ(picture->isSigned, row.isSigned);
}

class PictureTest : public testing::TestWithParam<Row> {};

TEST_P(PictureTest, IsRead) { expectRow(readPicture(GetParam().text), GetParam()); }

const Row plainRows[] = {
#define ROW(...) {__VA_ARGS__},
#include "toolkit/Pictures.def"
#undef ROW
};

INSTANTIATE_TEST_SUITE_P(Rows, PictureTest, testing::ValuesIn(plainRows));

class NoPictureTest : public testing::TestWithParam<const char*> {};

TEST_P(NoPictureTest, IsRefused) { EXPECT_FALSE(readPicture(GetParam()).has_value()); }

const char* const wrongRows[] = {
    "",
    " ",
    "9 9",
    "(3)",
    "9(",
    "9()",
    "9(0)",
    "9(-1)",
    "9(3",
    "9(3))",
    "9(1000000001)",
    "9(99999999999999999999)",
    "X(999999999)X(2)",
    "Q",
    "?",
    "8",
    "C",
    "D9",
    "S",
    "V",
    "PV",
    "SP",
    "S9S",
    "9S",
    "SZ9",
    "SX",
    "S9.9",
    "9V9V9",
    "9.9.9",
    "9V9.9",
    "9VP",
    "9V9P",
    "PV9",
    "P9P",
    "9P9",
    "P9.9",
    "9P.",
    "9Z",
    "9.ZZ",
    "9+++",
    "Z*9",
    "ZZ++9",
    "+-9",
    "+9-",
    "-9CR",
    "9CRDB",
    "9CR9",
    "CR9",
    "9+9",
    "9$9",
    "9$9-",
    "CR$9",
    "Z$9",
    "++$$9",
    "+",
    "$",
    ".",
    "/",
    "XZ",
    "X9.9",
    "XV",
    "A+",
    "NX",
    "N9",
    "GN",
    "1X",
    "19",
    "E",
    "9E9",
    "+9E99",
    "9E+99",
    "+E+99",
    "+9.9.9E+99",
    "+Z9E+99",
    "+9E+999",
    "+9E+9",
    "+9E+99+",
    "++9E+99",
};

INSTANTIATE_TEST_SUITE_P(Rows, NoPictureTest, testing::ValuesIn(wrongRows));

TEST(PictureRules, CommaMayBeTheDecimalPoint) {
  PictureRules rules;
  rules.isDecimalPointComma = true;
  expectRow(readPicture("Z.ZZZ.ZZ9,99-", rules), {"", Category::numericEdited, 13, 9, 2, 0, true});
  EXPECT_FALSE(readPicture("9,9,9", rules).has_value());
}

TEST(PictureRules, CommaIsAnInsertionOtherwise) {
  expectRow(readPicture("9,9,9"), {"", Category::numericEdited, 5, 3, 0, 0, false});
}

TEST(PictureRules, CurrencySymbolMayBeAnother) {
  PictureRules rules;
  rules.currencySymbol = "F";
  expectRow(readPicture("FFF9.99", rules), {"", Category::numericEdited, 7, 5, 2, 0, false});
  expectRow(readPicture("fFF9.99", rules), {"", Category::numericEdited, 7, 5, 2, 0, false});
  EXPECT_FALSE(readPicture("$$$9.99", rules).has_value());
}

TEST(PictureRules, CurrencySymbolMayBeOfSeveralBytes) {
  PictureRules rules;
  rules.currencySymbol = "\u20AC";
  expectRow(readPicture("\u20AC(3)9.99", rules), {"", Category::numericEdited, 7, 5, 2, 0, false});
}

TEST(PictureRules, CurrencySymbolStandsForAString) {
  PictureRules rules;
  rules.currencyCharacters = 3;
  expectRow(readPicture("$$,$$9.99", rules), {"", Category::numericEdited, 11, 6, 2, 0, false});
  expectRow(readPicture("9.99", rules), {"", Category::numericEdited, 4, 3, 2, 0, false});
}

TEST(PictureRules, AnUnknownCurrencySymbolIsWhatMeansNothingElse) {
  PictureRules rules;
  rules.currencySymbol = "";
  expectRow(readPicture("\u20AC\u20AC9.99-", rules),
            {"", Category::numericEdited, 7, 4, 2, 0, true});
  EXPECT_FALSE(readPicture("$F9", rules).has_value());
  EXPECT_FALSE(readPicture("8", rules).has_value());
}

TEST(Picture, OfUCountsCharacters) {
  EXPECT_EQ(readPicture("U(5)")->category, Category::utf8);
  EXPECT_EQ(readPicture("uu")->characters, 2);
  EXPECT_FALSE(readPicture("U(500000001)").has_value());
  EXPECT_FALSE(readPicture("UX").has_value());
}

TEST(Picture, TellsTheStoredDigits) {
  EXPECT_EQ(readPicture("S9(5)V99")->storedDigits(), 7);
  EXPECT_EQ(readPicture("VPPP9(4)")->storedDigits(), 4);
  EXPECT_EQ(readPicture("9(4)PPP")->storedDigits(), 4);
}

TEST(Picture, TellsWhatTheLastDigitCounts) {
  EXPECT_EQ(readPicture("9(5)")->exponent(), 0);
  EXPECT_EQ(readPicture("S9(5)V99")->exponent(), -2);
  EXPECT_EQ(readPicture("VPPP9(4)")->exponent(), -7);
  EXPECT_EQ(readPicture("9(4)PPP")->exponent(), 3);
}

}  // namespace

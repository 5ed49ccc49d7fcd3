// Tests of what items say of the values of fields: limits, patterns, lengths, the values of their
// conditions, and what is told of them in lines.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <limits>
#include <ostream>
#include <regex>
#include <string>
#include <vector>

#include "toolkit/generate/FacetLookup.h"

namespace {

using namespace as::toolkit::gen;
using as::toolkit::Capacity;
using testing::ElementsAre;
using Kind = Item::Kind;

TEST(IsMore, TellsNumeralsApart) {
  const char* const rising[] = {"0", "0.0009", "0.001", "0.01", "9", "9.5", "9.51", "9.6", "10"};
  for (std::size_t i = 0; i < std::size(rising); ++i) {
    for (std::size_t k = 0; k < std::size(rising); ++k) {
      EXPECT_EQ(isMore(rising[i], rising[k]), i > k) << rising[i] << " " << rising[k];
    }
  }
}

// Of numerals without digits in front of the point, too.
TEST(NumeralPattern, TakesNoTextWithoutADigit) {
  for (const char* const text : {"", "-", ".", "-.", "5", "0.123"}) {
    EXPECT_FALSE(std::regex_match(text, std::regex(numeralPattern(2, 2, true)))) << text;
  }
  for (const char* const text : {"0", "-0", "0.1", ".12", "-.12"}) {
    EXPECT_TRUE(std::regex_match(text, std::regex(numeralPattern(2, 2, true)))) << text;
  }
}

TEST(NumeralPattern, IsOfTheDigits) {
  EXPECT_EQ(numeralPattern(0, 0, false), "[0-9]+");
  EXPECT_EQ(numeralPattern(0, -1, true), "-?[0-9]+([.][0-9]+)?");
  EXPECT_EQ(numeralPattern(3, 0, false), "[0-9]{1,3}");
  EXPECT_EQ(numeralPattern(3, -1, true), "-?[0-9]{1,3}([.][0-9]+)?");
  EXPECT_EQ(numeralPattern(3, 2, true), "-?[0-9]{1,1}([.][0-9]{1,2})?");
  EXPECT_EQ(numeralPattern(2, 2, true), "-?(0|0?[.][0-9]{1,2})");
  EXPECT_EQ(numeralPattern(1, 1, false), "(0|0?[.][0-9]{1,1})");
}

Capacity capacityOf(Capacity::Kind kind) {
  Capacity capacity;
  capacity.kind = kind;
  return capacity;
}
Capacity integer(int bits = 0, bool isSigned = true) {
  Capacity capacity = capacityOf(Capacity::Kind::integer);
  capacity.bits = bits;
  capacity.isSigned = isSigned;
  return capacity;
}
Capacity decimal(int digits = 0, int places = -1, int whole = 0, bool isSigned = true) {
  Capacity capacity = capacityOf(Capacity::Kind::decimal);
  capacity.digits = digits;
  capacity.places = places;
  capacity.whole = whole;
  capacity.isSigned = isSigned;
  return capacity;
}
const Capacity texts = capacityOf(Capacity::Kind::text);
const Capacity bytes = capacityOf(Capacity::Kind::bytes);

Item item(Kind kind) {
  Item made;
  made.kind = kind;
  made.name = "I";
  return made;
}
Item number(int digits, int scale = 0, bool isSigned = false, Kind kind = Kind::number) {
  Item made = item(kind);
  made.digits = digits;
  made.scale = scale;
  made.isSigned = isSigned;
  return made;
}
Item binary(int bits, bool isSigned, int scale = 0) {
  Item made = number(bits == 8 ? 3 : 5, scale, isSigned);
  made.bits = bits;
  return made;
}
Item sized(Kind kind, int size) {
  Item made = item(kind);
  made.characters = size;
  made.bytes = 2 * size;
  return made;
}
// With a condition for each value.
Item with(Item made, const std::vector<ConditionValue>& values) {
  for (const ConditionValue& value : values) made.conditions.push_back({"C", {value}});
  return made;
}

// A field of that capacity, with that item or none.
struct Case {
  Case(const Capacity& capacity, const Item* item) {
    field.name = "f";
    field.capacity = capacity;
    if (item == nullptr) return;
    field.item = 0;
    model.items.push_back(*item);
  }

  ServiceModel model;
  Field field;
};

struct Row {
  const char* label;
  Capacity capacity;
  std::vector<Item> item;  // One, or none.
  const char* expected;    // What is said, in the order of the members.
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.label; }

std::string told(const Facets& facets) {
  std::string text;
  if (facets.totalDigits != 0) text += "digits " + std::to_string(facets.totalDigits) + " ";
  if (facets.fractionDigits != -1) text += "behind " + std::to_string(facets.fractionDigits) + " ";
  if (!facets.least.empty()) text += "from " + facets.least + " ";
  if (!facets.most.empty()) text += "to " + facets.most + " ";
  if (facets.longest != -1) text += "longest " + std::to_string(facets.longest) + " ";
  if (!facets.pattern.empty()) text += facets.pattern + " ";
  if (facets.hasValues()) {
    for (const std::string& value : *facets.onlyValues) text += "'" + value + "' ";
  }
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

class FacetsTest : public testing::TestWithParam<Row> {};

TEST_P(FacetsTest, AreThoseOfItemAndCapacity) {
  const Row& row = GetParam();
  const Case made(row.capacity, row.item.empty() ? nullptr : &row.item.front());
  EXPECT_EQ(told(FacetLookup(made.model).facetsOf(made.field, true)), row.expected);
  const bool hasConditions = !row.item.empty() && !row.item.front().conditions.empty();
  const bool hasValues = std::string(row.expected).find('\'') != std::string::npos;
  EXPECT_EQ(FacetLookup(made.model).hasOtherConditions(made.field), hasConditions && !hasValues);
  EXPECT_THAT(FacetLookup(made.model).facetsOf(made.field, false).onlyValues, testing::IsNull());
}

const ConditionValue range{"1", "3", true};

INSTANTIATE_TEST_SUITE_P(
    Numbers, FacetsTest,
    testing::Values(
        Row{"Unknown", integer(), {}, "behind 0"},
        Row{"Byte", integer(8), {}, "behind 0 from -128 to 127"},
        Row{"UnsignedByte", integer(8, false), {}, "behind 0 from 0 to 255"},
        Row{"OneBit", integer(1, false), {}, "behind 0 from 0 to 1"},
        Row{"Long", integer(64), {}, "behind 0 from -9223372036854775808 to 9223372036854775807"},
        Row{"UnsignedLong", integer(64, false), {}, "behind 0 from 0 to 18446744073709551615"},
        Row{"TooManyBits", integer(65), {}, "behind 0"},
        Row{"BitsOfTheItem", integer(64), {binary(16, false)}, "behind 0 from 0 to 65535"},
        Row{"SignedBitsOfTheItem", decimal(), {binary(16, true)}, "behind 0 from -32768 to 32767"},
        Row{"Digits", integer(32), {number(4)}, "digits 4 behind 0 from 0 to 9999"},
        Row{"SignedDigits",
            decimal(),
            {number(5, 2, true)},
            "digits 5 behind 2 from -999.99 to 999.99"},
        Row{"FractionAlone", decimal(), {number(2, 2)}, "digits 2 behind 2 from 0 to 0.99"},
        Row{"ZerosInFront", decimal(), {number(2, 4)}, "digits 4 behind 4 from 0 to 0.0099"},
        Row{"ZerosBehind", decimal(), {number(3, -3)}, "digits 6 behind 0 from 0 to 999000"},
        Row{"BitsWithAPoint",
            decimal(),
            {binary(16, true, 2)},
            "digits 5 behind 2 from -327.68 to 327.67"},
        Row{"BitsBehindZeros",
            decimal(),
            {binary(8, false, 4)},
            "digits 4 behind 4 from 0 to 0.0255"},
        Row{"BitsInFrontOfZeros",
            decimal(),
            {binary(8, true, -2)},
            "digits 5 behind 0 from -12800 to 12700"},
        // What lint was asked not to tell: the field holds less than the item.
        Row{"FewerBitsThanDigits", integer(8), {number(5, 0, true)}, "behind 0 from -128 to 127"},
        Row{"FewerBitsThanUnsignedDigits", integer(8), {number(3)}, "behind 0 from 0 to 127"},
        Row{"MoreBitsThanDigits", integer(8), {number(2)}, "digits 2 behind 0 from 0 to 99"},
        Row{"FewerBitsThanBits", integer(8), {binary(16, true)}, "behind 0 from -128 to 127"},
        Row{"NoSign", integer(8, false), {number(2, 0, true)}, "digits 2 behind 0 from 0 to 99"},
        Row{"NoSignOfADecimal",
            decimal(0, -1, 0, false),
            {number(2, 1, true)},
            "digits 2 behind 1 from 0 to 9.9"},
        Row{"NoPlaces", integer(32), {number(5, 2, true)}, "digits 3 behind 0 from -999 to 999"},
        Row{"NoPlacesOfADecimal",
            decimal(0, 0),
            {number(5, 2, true)},
            "digits 3 behind 0 from -999 to 999"},
        Row{"FewerPlaces", decimal(0, 1), {number(5, 2)}, "digits 4 behind 1 from 0 to 999.9"},
        Row{"NoPlacesOfAFraction",
            integer(8),
            {number(2, 2, true)},
            "digits 1 behind 0 from 0 to 0"},
        Row{"FewerDigitsInFront",
            decimal(0, 4, 2),
            {number(5, 2, true)},
            "digits 4 behind 2 from -99.99 to 99.99"},
        Row{"AsManyDigitsInFront",
            decimal(0, 4, 3),
            {number(5, 2)},
            "digits 5 behind 2 from 0 to 999.99"},
        Row{"Edited",
            decimal(),
            {number(3, 1, false, Kind::numberEdited)},
            "digits 3 behind 1 from 0 to 99.9"},
        Row{"OneDigit", integer(32), {number(1)}, "digits 1 behind 0 from 0 to 9"},
        Row{"NoDigits", integer(8), {number(0)}, "behind 0 from -128 to 127"},
        Row{"NoDigitsOfADecimal", decimal(), {number(0)}, ""},
        Row{"Pointer",
            integer(32),
            {item(Kind::pointer)},
            "behind 0 from -2147483648 to 2147483647"},
        Row{"Index", integer(8, false), {item(Kind::index)}, "behind 0 from 0 to 255"},
        Row{"IndexAsADecimal", decimal(), {item(Kind::index)}, "behind 0"},
        Row{"OtherItem", integer(16), {item(Kind::text)}, "behind 0 from -32768 to 32767"},
        Row{"AnyDecimal", decimal(), {}, ""}, Row{"DecimalOfDigits", decimal(28), {}, "digits 28"},
        Row{"DecimalOfDigitsAndPlaces",
            decimal(6, 4),
            {},
            "digits 6 behind 4 from -99.9999 to 99.9999"},
        Row{"UnsignedDecimal", decimal(1, 0, 0, false), {}, "digits 1 behind 0 from 0 to 9"},
        Row{"DecimalOfWhole", decimal(0, 2, 1), {}, "digits 3 behind 2 from -9.99 to 9.99"},
        Row{"DecimalOfPlaces", decimal(0, 2), {}, "behind 2"},
        Row{"Floating", capacityOf(Capacity::Kind::floating), {number(4)}, ""}),
    [](const testing::TestParamInfo<Row>& row) { return std::string(row.param.label); });

// So many digits no item has, but documents may say so.
TEST(FacetsOfManyDigits, AreLeftOut) {
  const auto toldOf = [](const Item& item) {
    const Case made(decimal(), &item);
    return told(facetsOf(made.model, made.field)).substr(0, 11);
  };
  EXPECT_EQ(toldOf(number(1000)), "digits 1000");
  EXPECT_EQ(toldOf(number(1001)), "");
  EXPECT_EQ(toldOf(number(1, 1000)), "digits 1000");
  EXPECT_EQ(toldOf(number(1, 1001)), "");
  EXPECT_EQ(toldOf(number(1, -1000)), "digits 1001");
  EXPECT_EQ(toldOf(number(1, -1001)), "");
  const auto patternOf = [](const Item& item) {
    const Case made(texts, &item);
    return facetsOf(made.model, made.field).pattern;
  };
  EXPECT_EQ(patternOf(number(1000)), "[0-9]{1,1000}");
  EXPECT_EQ(patternOf(number(1001)), "");
  EXPECT_EQ(patternOf(number(5, 1000)), "(0|0?[.][0-9]{1,1000})");
  EXPECT_EQ(patternOf(number(5, -1000)), "[0-9]{1,1005}");
  for (const int scale :
       {1001, -1001, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    EXPECT_EQ(patternOf(number(5, scale)), "") << scale;
    EXPECT_EQ(toldOf(number(5, scale)), "") << scale;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, FacetsTest,
    testing::Values(
        Row{"NoItem", texts, {}, ""}, Row{"Text", texts, {sized(Kind::text, 5)}, "longest 5"},
        Row{"OneCharacter", texts, {sized(Kind::text, 1)}, "longest 1"},
        Row{"NoLength", texts, {sized(Kind::text, 0)}, ""},
        Row{"TextEdited", texts, {sized(Kind::textEdited, 5)}, "longest 5"},
        Row{"National", texts, {sized(Kind::national, 5)}, "longest 5"},
        Row{"NumberEdited", texts, {sized(Kind::numberEdited, 5)}, "longest 5"},
        Row{"Group", texts, {sized(Kind::group, 5)}, "longest 10"},
        Row{"GroupOfNoLength", texts, {sized(Kind::group, 0)}, ""},
        Row{"PointerAsText", texts, {sized(Kind::pointer, 5)}, ""},
        Row{"NumberAsText", texts, {number(5, 2, true)}, "-?[0-9]{1,3}([.][0-9]{1,2})?"},
        Row{"OneDigitAsText", texts, {number(1)}, "[0-9]{1,1}"},
        Row{"ZerosBehindAsText", texts, {number(2, -3)}, "[0-9]{1,5}"},
        Row{"NoDigitsAsText", texts, {number(0)}, ""},
        Row{"FloatingAsText",
            texts,
            {[] {
              Item made = number(7);
              made.floatingDigits = 1;
              return made;
            }()},
            ""},
        Row{"Bytes", bytes, {sized(Kind::text, 3)}, "longest 6"},
        Row{"BytesOfNoLength", bytes, {sized(Kind::text, 0)}, ""},
        Row{"BytesOfNoItem", bytes, {}, ""}),
    [](const testing::TestParamInfo<Row>& row) { return std::string(row.param.label); });

ConditionValue value(const char* from) { return {from, "", false}; }

INSTANTIATE_TEST_SUITE_P(
    Conditions, FacetsTest,
    testing::Values(
        Row{"Numerals",
            decimal(),
            {with(number(3, 1, true),
                  {value("+01.50"), value("00"), value("1.5"), value(".5"), value("12.")})},
            "digits 3 behind 1 from -99.9 to 99.9 '1.5' '0' '0.5' '12'"},
        Row{"OneZero",
            decimal(),
            {with(number(3, 1, true), {value("-0"), value("0"), value("+0.0"), value("-.0")})},
            "digits 3 behind 1 from -99.9 to 99.9 '0'"},
        Row{"ARange",
            integer(32),
            {with(number(3), {value("1"), range})},
            "digits 3 behind 0 from 0 to 999"},
        Row{"NoNumeral",
            integer(32),
            {with(number(3), {value("A")})},
            "digits 3 behind 0 from 0 to 999"},
        Row{"NothingAsANumeral",
            integer(32),
            {with(number(3), {value("")})},
            "digits 3 behind 0 from 0 to 999"},
        Row{"APointAlone",
            integer(32),
            {with(number(3), {value(".")})},
            "digits 3 behind 0 from 0 to 999"},
        Row{"NoFraction",
            integer(32),
            {with(number(3), {value("1.x")})},
            "digits 3 behind 0 from 0 to 999"},
        Row{"ASignAlone",
            integer(32),
            {with(number(3), {value("-")})},
            "digits 3 behind 0 from 0 to 999"},
        Row{"AsManyDigits",
            integer(32),
            {with(number(3), {value("999")})},
            "digits 3 behind 0 from 0 to 999 '999'"},
        Row{"TooManyDigits",
            integer(32),
            {with(number(3), {value("1000")})},
            "digits 3 behind 0 from 0 to 999"},
        Row{"TooManyPlaces",
            decimal(),
            {with(number(3, 1), {value("1.25")})},
            "digits 3 behind 1 from 0 to 99.9"},
        Row{"NegativeOfUnsigned",
            integer(32),
            {with(number(3), {value("-1")})},
            "digits 3 behind 0 from 0 to 999"},
        Row{"NegativeOfSigned",
            integer(32),
            {with(number(3, 0, true), {value("-999")})},
            "digits 3 behind 0 from -999 to 999 '-999'"},
        Row{"TheMostOfBits",
            integer(32),
            {with(binary(16, true), {value("32767"), value("-32768")})},
            "behind 0 from -32768 to 32767 '32767' '-32768'"},
        Row{"MoreThanTheMostOfBits",
            integer(32),
            {with(binary(16, true), {value("32768")})},
            "behind 0 from -32768 to 32767"},
        Row{"LessThanTheLeastOfBits",
            integer(32),
            {with(binary(16, true), {value("-32769")})},
            "behind 0 from -32768 to 32767"},
        // An address has the limits of its type.
        Row{"AnAddress",
            integer(8, false),
            {with(item(Kind::pointer), {value("255")})},
            "behind 0 from 0 to 255 '255'"},
        Row{"NoAddress",
            integer(8, false),
            {with(item(Kind::pointer), {value("256")})},
            "behind 0 from 0 to 255"},
        Row{"TheMostBehindZeros",
            decimal(),
            {with(number(2, 4), {value("0.0099")})},
            "digits 4 behind 4 from 0 to 0.0099 '0.0099'"},
        Row{"MoreThanTheMostBehindZeros",
            decimal(),
            {with(number(2, 4), {value("0.01")})},
            "digits 4 behind 4 from 0 to 0.0099"},
        Row{"MoreThanTheField",
            integer(8),
            {with(number(3), {value("128")})},
            "behind 0 from 0 to 127"},
        Row{"NumeralsAsText",
            texts,
            {with(number(2), {value("+7"), value("07")})},
            "[0-9]{1,2} '7'"},
        Row{"NoNumeralsAsText", texts, {with(number(2), {value("100")})}, "[0-9]{1,2}"},
        Row{"Words",
            texts,
            {with(sized(Kind::text, 4), {value("AB  "), value("AB"), value("ABCD")})},
            "longest 4 'AB' 'ABCD'"},
        Row{"TooLongAWord", texts, {with(sized(Kind::text, 4), {value("ABCDE")})}, "longest 4"},
        Row{"AWordOfMoreBytes",
            texts,
            {with(sized(Kind::text, 2), {value("\u00e4\u00f6")})},
            "longest 2 '\u00e4\u00f6'"},
        Row{"AnyWord", texts, {with(sized(Kind::text, 0), {value("ABCDE")})}, "'ABCDE'"},
        Row{"BytesHaveNoWords", bytes, {with(sized(Kind::text, 4), {value("AB")})}, "longest 8"}),
    [](const testing::TestParamInfo<Row>& row) { return std::string(row.param.label); });

// Such values are as long as the item, or any.
TEST(FacetsOfWords, AreNoValues) {
  for (const char* const word :
       {"SPACE", "SPACES", "ZERO", "ZEROS", "ZEROES", "QUOTE", "QUOTES", "HIGH-VALUE",
        "HIGH-VALUES", "LOW-VALUE", "LOW-VALUES", "NULL", "NULLS", "ALL"}) {
    const Item of = with(sized(Kind::text, 20), {value(word)});
    const Case made(texts, &of);
    EXPECT_TRUE(FacetLookup(made.model).hasOtherConditions(made.field)) << word;
  }
  const Item of = with(sized(Kind::text, 20), {value("SPACED")});
  const Case made(texts, &of);
  EXPECT_FALSE(FacetLookup(made.model).hasOtherConditions(made.field));
}

// Each of so many was compared with all others, anew for every field.
TEST(FacetsOfManyConditions, ReadEachValueOnce) {
  constexpr std::size_t many = 100'000;
  Item of = number(6);
  of.conditions = {{"C", {}}};
  for (std::size_t i = 0; i < 2 * many; ++i) {
    of.conditions.front().values.push_back(value(std::to_string(i % many).c_str()));
  }
  const Case made(integer(32), &of);
  const FacetLookup lookup(made.model);
  const auto first = lookup.facetsOf(made.field, true).onlyValues;
  ASSERT_EQ(first->size(), many);
  EXPECT_EQ(first->back(), "99999");
  for (int i = 0; i < 5000; ++i) {
    ASSERT_FALSE(lookup.hasOtherConditions(made.field));
    ASSERT_EQ(lookup.facetsOf(made.field, true).onlyValues, first);
  }
}

// What one can hold of an item another one may not.
TEST(FacetsOfManyConditions, AreThoseOfEachCapacity) {
  const Item of = with(item(Kind::pointer), {value("256")});
  Case made(integer(16, false), &of);
  const FacetLookup lookup(made.model);
  EXPECT_EQ(told(lookup.facetsOf(made.field, true)), "behind 0 from 0 to 65535 '256'");
  made.field.capacity = integer(8, false);
  EXPECT_EQ(told(lookup.facetsOf(made.field, true)), "behind 0 from 0 to 255");
  made.field.capacity = texts;
  EXPECT_EQ(told(lookup.facetsOf(made.field, true)), "'256'");
}

TEST(LinesAbout, TellItemTableAndConditions) {
  Item of = sized(Kind::text, 2);
  of.picture = "X(2)";
  of.usage = "display";
  of.conditions = {{"YES", {value("Y"), value("y")}}, {"FEW", {range}}};
  Case made(texts, &of);
  made.field.mappings = {{Mapping::Source::item, "R.I(1)", 0},
                         {Mapping::Source::commandLine, "$COMMAND-LINE", none}};
  EXPECT_THAT(linesAbout(made.model, made.field),
              ElementsAre("R.I(1), PIC X(2), display", "$COMMAND-LINE", "YES: 'Y', 'y'",
                          "FEW: '1' to '3'"));
  made.field.item = none;
  made.field.mappings.clear();
  EXPECT_THAT(linesAbout(made.model, made.field), testing::IsEmpty());
  made.field.occurs = 1;
  EXPECT_THAT(linesAbout(made.model, made.field), testing::IsEmpty());
  made.field.occurs = 2;
  EXPECT_THAT(linesAbout(made.model, made.field), ElementsAre("occurs 2 times"));
  made.field.dependingOn = "R.N";
  EXPECT_THAT(linesAbout(made.model, made.field),
              ElementsAre("occurs 1 to 2 times, depending on R.N"));
}

// The lines about a field of an item with those conditions.
std::vector<std::string> linesWith(const std::vector<Condition>& conditions) {
  Item of = sized(Kind::text, 2);
  of.conditions = conditions;
  const Case made(texts, &of);
  return linesAbout(made.model, made.field);
}

Condition manyValues(std::size_t number) {
  return {"C", std::vector<ConditionValue>(number, value("A"))};
}

TEST(LinesAbout, AreThirtyOfAKindAtMost) {
  std::string values = "C: 'A'";
  for (int i = 1; i < 30; ++i) values += ", 'A'";
  EXPECT_THAT(linesWith({manyValues(30)}), ElementsAre(values));
  EXPECT_THAT(linesWith({manyValues(31)}), ElementsAre(values + ", ..."));
  const std::vector<Condition> thirty(30, manyValues(1));
  EXPECT_EQ(linesWith(thirty), std::vector<std::string>(30, "C: 'A'"));
  std::vector<Condition> more = thirty;
  more.push_back(manyValues(1));
  std::vector<std::string> expected(30, "C: 'A'");
  expected.emplace_back("...");
  EXPECT_EQ(linesWith(more), expected);
  Item of = sized(Kind::text, 2);
  Case made(texts, &of);
  made.field.mappings.assign(31, {Mapping::Source::item, "R.I", 0});
  EXPECT_EQ(linesAbout(made.model, made.field), std::vector<std::string>(30, "R.I"));
}

// An item may have any number of fields, each of which tells them.
TEST(LinesAbout, TellLongTextsOfTheItemShortened) {
  const std::string longText(201, 'X');
  const std::string shown = std::string(200, 'X') + "...";
  EXPECT_THAT(linesWith({{longText, {{longText, longText, true}}}}),
              ElementsAre(shown + ": '" + shown + "' to '" + shown + "'"));
  Item of = sized(Kind::text, 2);
  of.picture = longText;
  Case made(texts, &of);
  made.field.mappings = {{Mapping::Source::item, "R.I", 0}};
  EXPECT_THAT(linesAbout(made.model, made.field), ElementsAre("R.I, PIC " + shown));
}

TEST(LinesAbout, AreSomeThousandBytesOfConditions) {
  const ConditionValue longValue = value(std::string(195, 'X').c_str());  // With all else 199.
  const Condition twenty{"C", std::vector<ConditionValue>(20, longValue)};
  ASSERT_EQ(linesWith({twenty}).front().size(), 3981U);
  EXPECT_THAT(linesWith({twenty, manyValues(1)}), ElementsAre(testing::_, "C: 'A'"));
  EXPECT_THAT(linesWith({twenty, manyValues(2), manyValues(1)}),
              ElementsAre(testing::_, "C: 'A', 'A'", "C: 'A'"));
  EXPECT_THAT(linesWith({twenty, manyValues(3), manyValues(1), manyValues(1)}),
              ElementsAre(testing::_, "C: 'A', 'A', 'A'", "C: 'A'", "..."));
  const Condition twentyThree{"C", std::vector<ConditionValue>(23, longValue)};
  const std::string line = linesWith({twentyThree}).front();
  EXPECT_EQ(line.size(), 4185U);
  EXPECT_THAT(line, testing::EndsWith("X', ..."));
}

}  // namespace

// Tests of what types and limits the values of fields get.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/TempDirectory.h"
#include "toolkit/generate/FacetLookup.h"
#include "toolkit/generate/JsonTypes.h"
#include "toolkit/generate/SampleMaker.h"
#include "toolkit/generate/TypeTable.h"
#include "toolkit/generate/XsdTypes.h"

namespace {

using namespace as::toolkit::gen;
using as::toolkit::Capacity;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;
using Kind = Capacity::Kind;

Field fieldOf(const Capacity& capacity) {
  Field field;
  field.capacity = capacity;
  return field;
}

std::string_view typeOf(const TypeTable& table, const Capacity& capacity) {
  const TypeRow* const row = rowFor(table, fieldOf(capacity));
  return row == nullptr ? "none" : row->type;
}

struct TypeRowTest {
  const char* label;
  Capacity capacity;
  const char* xsd;
  const char* json;
};

class TypeTableTest : public testing::TestWithParam<TypeRowTest> {};

TEST_P(TypeTableTest, LosesNothing) {
  EXPECT_EQ(typeOf(xsdTypes(), GetParam().capacity), GetParam().xsd);
  EXPECT_EQ(typeOf(jsonTypes(), GetParam().capacity), GetParam().json);
}

INSTANTIATE_TEST_SUITE_P(
    Capacities, TypeTableTest,
    testing::Values(
        TypeRowTest{"int", {Kind::integer, 9, 32}, "xs:int", "integer"},
        TypeRowTest{"unsignedInt", {Kind::integer, 9, 32, false}, "xs:unsignedInt", "integer"},
        TypeRowTest{"long", {Kind::integer, 18, 64}, "xs:long", "string of digits"},
        TypeRowTest{
            "unsignedLong", {Kind::integer, 19, 64, false}, "xs:unsignedLong", "string of digits"},
        TypeRowTest{"fifteenDigitsPacked",
                    {Kind::decimal, 15, 0, true, 2},
                    "xs:decimal",
                    "string of a decimal number"},
        TypeRowTest{"fifteenDigitsWhole", {Kind::decimal, 15, 0, true, 0}, "xs:long", "integer"},
        TypeRowTest{
            "thirtyDigitsWhole", {Kind::decimal, 30, 0, true, 0}, "xs:integer", "string of digits"},
        TypeRowTest{"float", {Kind::floating, 6}, "xs:float", "number"},
        TypeRowTest{"double", {Kind::floating, 15}, "xs:double", "number"},
        TypeRowTest{"integerOfAnySize", {Kind::integer}, "xs:integer", "string of digits"},
        TypeRowTest{"bytes", {Kind::bytes}, "xs:base64Binary", "string in base 64"},
        TypeRowTest{"group", {Kind::group}, "none", "none"},
        TypeRowTest{"text", {Kind::text}, "xs:string", "string"}),
    [](const auto& row) { return std::string(row.param.label); });

TEST(TypeTableTest, WordsOfFlavoursStandForThemselves) {
  Field date = fieldOf({Kind::open});
  date.dataType = "date";
  EXPECT_STREQ(rowFor(xsdTypes(), date)->type, "xs:dateTime");
  date.dataType = "unknown";
  EXPECT_EQ(rowFor(xsdTypes(), date), nullptr);
}

TEST(TypeTableTest, ARowTellsWhatItHolds) {
  const TypeTable table = {{"a", {Kind::integer, 9, 32}},
                           {"b", {Kind::integer, 9, 32, false}},
                           {"c", {Kind::floating, 6}},
                           {"d", {Kind::decimal}},
                           {"e", {Kind::decimal, 28}},
                           {"f", {Kind::decimal, 0, 0, true, 0}},
                           {"g", {Kind::decimal, 0, 0, true, 4, 15}},
                           {"h", {Kind::text}},
                           {"i", {Kind::bytes}},
                           {"j", {Kind::open}, "date"}};
  EXPECT_EQ(textOf(table),
            "| integers of 32 bits, signed | `a` |\n"
            "| integers of 32 bits, unsigned | `b` |\n"
            "| floating-point numbers of 6 digits | `c` |\n"
            "| decimal numbers | `d` |\n"
            "| decimal numbers of 28 digits | `e` |\n"
            "| decimal numbers, integers only | `f` |\n"
            "| decimal numbers of 15 digits before the point, 4 behind it | `g` |\n"
            "| text | `h` |\n"
            "| bytes | `i` |\n"
            "| what is of data type `date` | `j` |\n");
}

TEST(TypeTableTest, DocumentationShowsTheTables) {
  const std::string guide = test::contentOf(AS_EXAMPLES_DIR "/../docs/generate.md");
  const auto shown = [&guide](const std::string& kind) {
    const std::string start = "<!-- types " + kind + " -->\n\n| holds | type |\n|---|---|\n";
    const std::size_t at = guide.find(start);
    if (at == std::string::npos) return std::string("no table of ") + kind;
    const std::size_t from = at + start.size();
    return guide.substr(from, guide.find("\n<!-- /types -->", from) - from);
  };
  EXPECT_EQ(shown("xsd"), textOf(xsdTypes()));
  EXPECT_EQ(shown("jsonschema"), textOf(jsonTypes()));
}

// A model of one item, and a field of that capacity mapped to it.
struct Mapped {
  Mapped(const Item& item, const Capacity& capacity) {
    model.items.push_back(item);
    field = fieldOf(capacity);
    field.item = 0;
  }
  Facets facets(bool withConditions = false) const {
    return FacetLookup(model).facetsOf(field, withConditions);
  }
  std::vector<std::string> values() const {
    const Facets read = facets(true);
    return read.hasValues() ? *read.onlyValues : std::vector<std::string>();
  }
  std::string sample() const { return SampleMaker(model).valueOf(field); }

  ServiceModel model;
  Field field;
};

Item numberOf(int digits, int scale, bool isSigned, int bits = 0) {
  Item item;
  item.kind = Item::Kind::number;
  item.digits = digits;
  item.scale = scale;
  item.isSigned = isSigned;
  item.bits = bits;
  return item;
}

Item textOf(int characters) {
  Item item;
  item.characters = characters;
  return item;
}

TEST(FacetsTest, DigitsAndScaleLimitNumbers) {
  const Mapped mapped(numberOf(7, 2, true), {Kind::decimal});
  EXPECT_EQ(mapped.facets().totalDigits, 7);
  EXPECT_EQ(mapped.facets().fractionDigits, 2);
  EXPECT_EQ(mapped.facets().least, "-99999.99");
  EXPECT_EQ(mapped.facets().most, "99999.99");
  EXPECT_EQ(mapped.sample(), "12345.67");
}

TEST(FacetsTest, NoSignMeansNothingBelowZero) {
  EXPECT_EQ(Mapped(numberOf(3, 0, false), {Kind::integer, 4, 16}).facets().least, "0");
}

TEST(FacetsTest, DigitsBehindThePointAlone) {
  const Mapped mapped(numberOf(2, 4, false), {Kind::decimal});
  EXPECT_EQ(mapped.facets().totalDigits, 4);
  EXPECT_EQ(mapped.facets().most, "0.0099");
  EXPECT_EQ(mapped.sample(), "0.0012");
}

TEST(FacetsTest, BinaryItemsHoldWhatTheirBytesHold) {
  const Mapped mapped(numberOf(4, 0, true, 16), {Kind::integer, 9, 32});
  EXPECT_EQ(mapped.facets().least, "-32768");
  EXPECT_EQ(mapped.facets().most, "32767");
  EXPECT_EQ(mapped.facets().totalDigits, 0);
}

TEST(FacetsTest, TextsAreAsLongAsTheirItem) {
  const Mapped mapped(textOf(5), {Kind::text});
  EXPECT_EQ(mapped.facets().longest, 5);
  EXPECT_EQ(mapped.sample(), "ABCDE");
}

TEST(FacetsTest, TextsOfNumbersAreNumerals) {
  const Mapped mapped(numberOf(5, 2, true), {Kind::text});
  EXPECT_EQ(mapped.facets().pattern, "-?[0-9]{1,3}([.][0-9]{1,2})?");
  EXPECT_EQ(mapped.sample(), "123.45");
}

TEST(FacetsTest, ConditionsAreValuesWhereTheyAreAskedFor) {
  Item item = textOf(3);
  item.conditions = {{"IS-A", {{"A  ", "", false}}}, {"IS-B", {{"BBB", "", false}}}};
  const Mapped mapped(item, {Kind::text});
  EXPECT_THAT(mapped.facets().onlyValues, IsNull());
  EXPECT_THAT(mapped.values(), ElementsAre("A", "BBB"));
  EXPECT_EQ(mapped.sample(), "A");
}

TEST(FacetsTest, NumbersOfConditionsAreWrittenAsNumbers) {
  Item item = numberOf(4, 1, true);
  item.conditions = {{"IS", {{"+007.5", "", false}, {"-2", "", false}}}};
  EXPECT_THAT(Mapped(item, {Kind::decimal}).values(), ElementsAre("7.5", "-2"));
}

TEST(FacetsTest, ConditionsThatAreNeverTrueMakeNoValues) {
  const struct {
    Item item;
    Capacity capacity;
    const char* value;
    bool fits;
  } rows[] = {
      {numberOf(2, 2, true), {Kind::decimal}, "2", false},
      {numberOf(2, 2, true), {Kind::decimal}, "-0.25", true},
      {numberOf(2, 2, true), {Kind::text}, "2", false},
      {numberOf(2, 2, true), {Kind::text}, "0.20", true},
      {numberOf(3, 0, false), {Kind::integer, 4, 16}, "-1", false},
      {numberOf(3, 0, false), {Kind::integer, 4, 16}, "1000", false},
      {numberOf(3, 0, false), {Kind::integer, 4, 16}, "999", true},
      {numberOf(3, 1, false), {Kind::decimal}, "1.25", false},
      {numberOf(3, 1, false), {Kind::decimal}, "1.20", true},
      {numberOf(4, 0, true, 16), {Kind::integer, 9, 32}, "32768", false},
      {numberOf(4, 0, true, 16), {Kind::integer, 9, 32}, "-32768", true},
  };
  for (const auto& row : rows) {
    Item item = row.item;
    item.conditions = {{"IS", {{row.value, "", false}}}};
    EXPECT_EQ(Mapped(item, row.capacity).values().size(), row.fits ? 1U : 0U)
        << row.value << " of " << item.digits << " digits";
  }
}

// What callers may send where a value has no item, or one that tells little.
TEST(FacetsTest, TypesLimitWhatNoItemDoes) {
  struct Row {
    Capacity capacity;
    int totalDigits;
    int fractionDigits;
    const char* least;
    const char* most;
  };
  const Row rows[] = {
      {{Kind::integer, 2, 8}, 0, 0, "-128", "127"},
      {{Kind::integer, 19, 64, false}, 0, 0, "0", "18446744073709551615"},
      {{Kind::integer, 18, 64}, 0, 0, "-9223372036854775808", "9223372036854775807"},
      {{Kind::integer}, 0, 0, "", ""},
      {{Kind::integer, 0, 128}, 0, 0, "", ""},
      {{Kind::decimal}, 0, -1, "", ""},
      {{Kind::decimal, 28}, 28, -1, "", ""},
      {{Kind::decimal, 0, 0, true, 0}, 0, 0, "", ""},
      {{Kind::decimal, 5, 0, true, 2}, 5, 2, "-999.99", "999.99"},
      {{Kind::decimal, 5, 0, false, 0}, 5, 0, "0", "99999"},
      {{Kind::decimal, 0, 0, true, 4, 15}, 19, 4, "-999999999999999.9999", "999999999999999.9999"},
      {{Kind::floating, 6}, 0, -1, "", ""},
  };
  for (const Row& row : rows) {
    const Facets facets = facetsOf(ServiceModel(), fieldOf(row.capacity));
    EXPECT_EQ(facets.totalDigits, row.totalDigits) << row.most;
    EXPECT_EQ(facets.fractionDigits, row.fractionDigits) << row.most;
    EXPECT_EQ(facets.least, row.least);
    EXPECT_EQ(facets.most, row.most);
  }
}

Item itemOf(Item::Kind kind, int bytes, int digits = 0) {
  Item item;
  item.kind = kind;
  item.bytes = bytes;
  item.digits = digits;
  return item;
}

TEST(FacetsTest, NumbersOfNoDigitsOrTooManyHaveNoLimits) {
  for (const Item& item : {numberOf(0, 0, true), numberOf(1001, 0, true), numberOf(5, 1001, true),
                           numberOf(5, -1001, true)}) {
    const Facets facets = Mapped(item, {Kind::decimal}).facets();
    EXPECT_EQ(facets.totalDigits, 0);
    EXPECT_EQ(facets.most, "");
    EXPECT_EQ(Mapped(item, {Kind::text}).facets().longest, -1);
  }
}

TEST(FacetsTest, ZerosInFrontOfThePointCountAsDigits) {
  const Mapped mapped(numberOf(3, -2, true), {Kind::decimal});
  EXPECT_EQ(mapped.facets().totalDigits, 5);
  EXPECT_EQ(mapped.facets().most, "99900");
  EXPECT_EQ(Mapped(numberOf(3, -2, false), {Kind::text}).facets().pattern, "[0-9]{1,5}");
  EXPECT_EQ(Mapped(numberOf(3, -2, false), {Kind::text}).sample(), "12300");
}

TEST(FacetsTest, AddressesAreIntegersOfAnySize) {
  for (const Item::Kind kind : {Item::Kind::pointer, Item::Kind::index}) {
    const Facets facets = Mapped(itemOf(kind, 4), {Kind::decimal, 9, 0, false, 2}).facets();
    EXPECT_EQ(facets.fractionDigits, 0);
    EXPECT_EQ(facets.most, "");
  }
}

TEST(FacetsTest, EditedNumbersHaveTheLimitsOfNumbers) {
  EXPECT_EQ(Mapped(itemOf(Item::Kind::numberEdited, 6, 4), {Kind::decimal}).facets().most, "9999");
}

TEST(FacetsTest, TextsHoldGroupsAndBytes) {
  struct Row {
    Item item;
    Capacity capacity;
    int longest;
  };
  for (const Row& row : {Row{itemOf(Item::Kind::group, 12), {Kind::text}, 12},
                         Row{itemOf(Item::Kind::group, 0), {Kind::text}, -1},
                         Row{itemOf(Item::Kind::pointer, 4), {Kind::text}, -1},
                         Row{itemOf(Item::Kind::text, 4), {Kind::text}, -1},
                         Row{itemOf(Item::Kind::text, 4), {Kind::bytes}, 4},
                         Row{itemOf(Item::Kind::text, 0), {Kind::bytes}, -1}}) {
    EXPECT_EQ(Mapped(row.item, row.capacity).facets().longest, row.longest);
  }
}

TEST(FacetsTest, FloatingPointNumbersHaveNoPattern) {
  Item item = numberOf(0, 0, true);
  item.floatingDigits = 6;
  EXPECT_EQ(Mapped(item, {Kind::text}).facets().pattern, "");
}

// What COBOL takes for a number, and XML Schema does not.
TEST(FacetsTest, ValuesOfConditionsAreNumerals) {
  struct Row {
    const char* text;
    const char* numeral;  // Null for none.
  };
  for (const Row& row :
       {Row{"+1", "1"}, Row{".50", "0.5"}, Row{"-.5", "-0.5"}, Row{"1.", "1"}, Row{"007", "7"},
        Row{"0.00", "0"}, Row{"", nullptr}, Row{"-", nullptr}, Row{".", nullptr},
        Row{"1E3", nullptr}, Row{"1.2.3", nullptr}, Row{"--1", nullptr}, Row{"ZERO", nullptr}}) {
    Item item = numberOf(7, 2, true);
    item.conditions = {{"IS", {{row.text, "", false}}}};
    const std::vector<std::string> values = Mapped(item, {Kind::decimal}).values();
    if (row.numeral == nullptr) {
      EXPECT_THAT(values, IsEmpty()) << row.text;
    } else {
      EXPECT_THAT(values, ElementsAre(row.numeral));
    }
  }
}

TEST(FacetsTest, ConditionsAreNoValuesOfOtherTypes) {
  Item item = textOf(3);
  item.conditions = {{"IS", {{"ABCD", "", false}}}};
  EXPECT_THAT(Mapped(item, {Kind::text}).values(), IsEmpty());
  item.conditions = {{"IS", {{"ABC", "", false}}}};
  EXPECT_THAT(Mapped(item, {Kind::bytes}).values(), IsEmpty());
  item.conditions = {{"IS", {{"ÄÖÜ ", "", false}}}};
  item.characters = 4;
  EXPECT_THAT(Mapped(item, {Kind::text}).values(), ElementsAre("ÄÖÜ"));
  item.characters = 0;
  EXPECT_THAT(Mapped(item, {Kind::text}).values(), ElementsAre("ÄÖÜ"));
}

TEST(FacetsTest, AConditionOfAnAddressIsLimitedByItsType) {
  for (const auto& [value, fits] :
       {std::pair("4294967295", true), std::pair("4294967296", false), std::pair("-1", false)}) {
    Item item = itemOf(Item::Kind::pointer, 4);
    item.conditions = {{"IS", {{value, "", false}}}};
    EXPECT_EQ(Mapped(item, {Kind::integer, 0, 32, false}).values().empty(), !fits) << value;
  }
  // An address of a length that nobody tells.
  Item item = itemOf(Item::Kind::pointer, 0);
  item.conditions = {{"IS", {{"-99999999999999999999", "", false}}}};
  EXPECT_THAT(Mapped(item, {Kind::integer}).values(), ElementsAre("-99999999999999999999"));
}

TEST(FacetsTest, AValueOfTwoConditionsIsOne) {
  Item item = numberOf(2, 0, false);
  item.conditions = {{"A", {{"1", "", false}, {"2", "", false}}}, {"B", {{"01", "", false}}}};
  EXPECT_THAT(Mapped(item, {Kind::integer, 2, 8}).values(), ElementsAre("1", "2"));
}

TEST(FacetsTest, NothingIsOtherThanTheConditionsOfNoItem) {
  EXPECT_FALSE(FacetLookup(ServiceModel()).hasOtherConditions(fieldOf({Kind::text})));
  const Mapped mapped(textOf(3), {Kind::text});
  EXPECT_FALSE(FacetLookup(mapped.model).hasOtherConditions(mapped.field));
}

TEST(FacetsTest, PatternsAreOfAnyNumberOfDigitsBehindThePoint) {
  EXPECT_EQ(numeralPattern(0, -1, true), "-?[0-9]+([.][0-9]+)?");
  EXPECT_EQ(numeralPattern(28, -1, false), "[0-9]{1,28}([.][0-9]+)?");
}

TEST(FacetsTest, NoMoreIsToldOfAFieldThanAnyoneReads) {
  Item item = textOf(1);
  item.conditions.resize(40);
  item.conditions[0].values.resize(40);
  Mapped mapped(item, {Kind::text});
  mapped.field.mappings.resize(40);
  mapped.field.occurs = 5;
  const std::vector<std::string> lines = linesAbout(mapped.model, mapped.field);
  EXPECT_EQ(lines.size(), 30U + 1U + 30U + 1U);
  EXPECT_EQ(lines[30], "occurs 5 times");
  EXPECT_EQ(std::count(lines[31].begin(), lines[31].end(), ','), 30);
}

TEST(FacetsTest, RangesAndWordsMakeNoValues) {
  Item item = textOf(3);
  item.conditions = {{"IS", {{"A", "", false}, {"B", "D", true}}}};
  const Mapped mapped(item, {Kind::text});
  EXPECT_TRUE(FacetLookup(mapped.model).hasOtherConditions(mapped.field));
  item.conditions = {{"IS", {{"SPACES", "", false}}}};
  EXPECT_THAT(Mapped(item, {Kind::text}).values(), IsEmpty());
}

TEST(SampleMakerTest, CountersTellHowOftenTablesOccur) {
  Item counter = numberOf(2, 0, false);
  counter.path = "R.COUNT";
  Mapped mapped(counter, {Kind::integer, 2, 8});
  Type type;
  Field table = fieldOf({Kind::text});
  table.occurs = 6;
  table.least = 3;
  table.dependingOn = "R.COUNT";
  type.fields = {table};
  mapped.model.types.push_back(type);
  EXPECT_EQ(mapped.sample(), "3");
}

// Each is one that its type takes.
TEST(SampleMakerTest, EveryTypeHasASample) {
  struct Row {
    Capacity capacity;
    const char* sample;
  };
  for (const Row& row :
       {Row{{Kind::integer, 2, 8}, "20"}, Row{{Kind::integer, 2, 8, false}, "155"},
        Row{{Kind::integer, 0, 1, false}, "0"}, Row{{Kind::integer, 0, 3, false}, "6"},
        Row{{Kind::integer}, "12345"}, Row{{Kind::decimal}, "123.45"},
        Row{{Kind::decimal, 0, 0, true, 0}, "12345"}, Row{{Kind::decimal, 5, 0, true, 2}, "123.45"},
        Row{{Kind::floating, 6}, "1.5"}, Row{{Kind::text}, "text"}, Row{{Kind::bytes}, "AQID"},
        Row{{Kind::open}, ""}}) {
    EXPECT_EQ(SampleMaker(ServiceModel()).valueOf(fieldOf(row.capacity)), row.sample);
  }
  Field date = fieldOf({Kind::open});
  date.dataType = "date";
  EXPECT_EQ(SampleMaker(ServiceModel()).valueOf(date), "2001-02-03T04:05:06Z");
}

TEST(SampleMakerTest, BytesAreNoMoreThanTheItemHas) {
  EXPECT_EQ(Mapped(itemOf(Item::Kind::text, 1), {Kind::bytes}).sample(), "AQ==");
  EXPECT_EQ(Mapped(itemOf(Item::Kind::text, 2), {Kind::bytes}).sample(), "AQI=");
  EXPECT_EQ(Mapped(itemOf(Item::Kind::text, 3), {Kind::bytes}).sample(), "AQID");
}

TEST(SampleMakerTest, WhatNeedNotBeThereIsNotCounted) {
  ServiceModel model;
  model.types.resize(1);
  model.types[0].attributes.resize(2);
  model.types[0].fields.resize(3);
  model.types[0].fields[1].least = 0;
  Field root;
  root.structure = 0;
  EXPECT_EQ(SampleMaker(model).countOf(root, 500), 5U);
  root.least = 0;
  EXPECT_EQ(SampleMaker(model).countOf(root, 500), 0U);
}

TEST(SampleMakerTest, CountsDoNotOverflow) {
  ServiceModel model;
  for (std::size_t i = 0; i < 40; ++i) {
    Type type;
    Field field = fieldOf({Kind::text});
    field.occurs = 1000;
    field.least = 1000;
    if (i > 0) field.structure = i - 1;
    type.fields = {field};
    model.types.push_back(type);
  }
  Field root;
  root.structure = 39;
  EXPECT_EQ(SampleMaker(model).countOf(root, 500), 500U);
}

}  // namespace

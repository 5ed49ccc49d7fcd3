// Tests of what types and limits the values of fields get.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "support/TempDirectory.h"
#include "toolkit/generate/Facets.h"
#include "toolkit/generate/JsonTypes.h"
#include "toolkit/generate/SampleMaker.h"
#include "toolkit/generate/TypeTable.h"
#include "toolkit/generate/XsdTypes.h"

namespace {

using namespace as::toolkit::gen;
using as::toolkit::Capacity;
using testing::ElementsAre;
using testing::IsEmpty;
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
        TypeRowTest{"text", {Kind::text}, "xs:string", "string"}),
    [](const auto& row) { return std::string(row.param.label); });

TEST(TypeTableTest, WordsOfFlavoursStandForThemselves) {
  Field date = fieldOf({Kind::open});
  date.dataType = "date";
  EXPECT_STREQ(rowFor(xsdTypes(), date)->type, "xs:dateTime");
  date.dataType = "unknown";
  EXPECT_EQ(rowFor(xsdTypes(), date), nullptr);
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
    return facetsOf(model, field, withConditions);
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
  EXPECT_EQ(mapped.facets().most, "0.9999");
  EXPECT_EQ(mapped.sample(), "0.1234");
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
  EXPECT_THAT(mapped.facets().values, IsEmpty());
  EXPECT_THAT(mapped.facets(true).values, ElementsAre("A", "BBB"));
  EXPECT_EQ(mapped.sample(), "A");
}

TEST(FacetsTest, NumbersOfConditionsAreWrittenAsNumbers) {
  Item item = numberOf(4, 1, true);
  item.conditions = {{"IS", {{"+007.5", "", false}, {"-2", "", false}}}};
  EXPECT_THAT(Mapped(item, {Kind::decimal}).facets(true).values, ElementsAre("7.5", "-2"));
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
    EXPECT_EQ(Mapped(item, row.capacity).facets(true).values.size(), row.fits ? 1U : 0U)
        << row.value << " of " << item.digits << " digits";
  }
}

TEST(FacetsTest, RangesAndWordsMakeNoValues) {
  Item item = textOf(3);
  item.conditions = {{"IS", {{"A", "", false}, {"B", "D", true}}}};
  EXPECT_TRUE(
      hasOtherConditions(Mapped(item, {Kind::text}).model, Mapped(item, {Kind::text}).field));
  item.conditions = {{"IS", {{"SPACES", "", false}}}};
  EXPECT_THAT(Mapped(item, {Kind::text}).facets(true).values, IsEmpty());
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

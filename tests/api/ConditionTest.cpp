// Tests of condition names (level 88) and their values.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::dictionaryOf;
using test::itemOf;
using test::parse;
using test::topItem;

std::string condition(const std::string& values) {
  return "<numericCondition name='C'>" + values + "</numericCondition>";
}

std::string numeric(const std::string& conditions) {
  return "<numeric name='N'>" + conditions + "</numeric>";
}

as::IList* conditionsOf(as::IProgram& program, int item = 0) {
  return topItem<as::IDataItem>(program, item)->getConditions();
}

// The only value of the only condition of the only item.
as::IConditionValue* onlyValue(as::IProgram& program) {
  return itemOf<as::IConditionValue>(itemOf<as::ICondition>(conditionsOf(program), 0), 0);
}

TEST(Condition, HasAName) {
  const auto program = parse(dictionaryOf(
      numeric("<numericCondition name='JA'><numericConstant value='1'/></numericCondition>"
              "<numericCondition name='Gr\xC3\xBCn'><numericConstant value='2'/>"
              "</numericCondition>")));
  ASSERT_EQ(conditionsOf(*program)->getLength(), 2);
  EXPECT_EQ(itemOf<as::ICondition>(conditionsOf(*program), 0)->getName(), "JA");
  EXPECT_EQ(itemOf<as::ICondition>(conditionsOf(*program), 1)->getName(), "Gr\xC3\xBCn");
}

TEST(Condition, AnItemWithoutConditionsHasAnEmptyList) {
  const auto program = parse(dictionaryOf(numeric("")));
  ASSERT_NE(conditionsOf(*program), nullptr);
  EXPECT_EQ(conditionsOf(*program)->getLength(), 0);
  EXPECT_EQ(conditionsOf(*program)->getItem(0), nullptr);
}

TEST(Condition, ConstantHasAValueOnly) {
  const auto program = parse(dictionaryOf(numeric(condition("<numericConstant value='42'/>"))));
  as::IConditionValue* const value = onlyValue(*program);
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(value->getType(), as::IConditionValue::TYPE_CONSTANT);
  EXPECT_EQ(value->getType(), 0);
  EXPECT_EQ(value->getConstant(), "42");
  EXPECT_EQ(value->getFrom(), "");
  EXPECT_EQ(value->getTo(), "");
}

TEST(Condition, RangeHasEndsOnly) {
  const auto program = parse(dictionaryOf(numeric(condition("<numericRange from='1' to='12'/>"))));
  as::IConditionValue* const value = onlyValue(*program);
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(value->getType(), as::IConditionValue::TYPE_RANGE);
  EXPECT_EQ(value->getType(), 1);
  EXPECT_EQ(value->getConstant(), "");
  EXPECT_EQ(value->getFrom(), "1");
  EXPECT_EQ(value->getTo(), "12");
}

TEST(Condition, IsTheListOfItsValuesInDocumentOrder) {
  const auto program = parse(dictionaryOf(
      numeric(condition("<numericConstant value='7'/><!-- or --><numericRange from='1' to='3'/>\n"
                        "<numericConstant value='5'/><numericRange from='10' to='20'/>"))));
  auto* const list = itemOf<as::ICondition>(conditionsOf(*program), 0);
  ASSERT_EQ(list->getLength(), 4);
  std::vector<std::string> texts;
  for (int i = 0; i < list->getLength(); i++) {
    auto* const value = itemOf<as::IConditionValue>(list, i);
    ASSERT_NE(value, nullptr);
    texts.push_back(std::to_string(value->getType()) + ":" + value->getConstant() + ":" +
                    value->getFrom() + ":" + value->getTo());
  }
  EXPECT_EQ(texts, (std::vector<std::string>{"0:7::", "1::1:3", "0:5::", "1::10:20"}));
  EXPECT_EQ(list->getItem(4), nullptr);
  EXPECT_EQ(list->getItem(-1), nullptr);
}

TEST(Condition, TextsAreUntouched) {
  const struct {
    const char* what;
    const char* written;
    const char* read;
  } rows[] = {
      {"empty", "", ""},
      {"leading zeros", "007", "007"},
      {"sign and point", "-1.50", "-1.50"},
      {"word", "ZERO", "ZERO"},
      {"no number", "not a number", "not a number"},
      {"blanks around and in a row", "  a  b ", "  a  b "},
      {"only blanks", "   ", "   "},
      {"line break and tab written as references", "a&#10;b&#9;c&#13;d", "a\nb\tc\rd"},
      {"line break and tab as they are", "a\nb\tc", "a b c"},
      {"mark-up characters", "&lt;&amp;&quot;&apos;>", "<&\"'>"},
      {"umlauts", "\xC3\x84\xC3\x96\xC3\x9C\xC3\x9F", "\xC3\x84\xC3\x96\xC3\x9C\xC3\x9F"},
      {"beyond 16 bits", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
      {"beyond 16 bits as a reference", "&#x1F600;", "\xF0\x9F\x98\x80"},
      {"larger than any integer", "99999999999999999999", "99999999999999999999"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const std::string text = row.written;
    const auto program = parse(dictionaryOf(numeric(
        condition("<numericConstant value=\"" + text + "\"/>" + "<numericRange from=\"" + text +
                  "\" to=\"x\"/>" + "<numericRange from=\"x\" to=\"" + text + "\"/>"))));
    auto* const list = itemOf<as::ICondition>(conditionsOf(*program), 0);
    ASSERT_EQ(list->getLength(), 3);
    EXPECT_EQ(itemOf<as::IConditionValue>(list, 0)->getConstant(), row.read);
    EXPECT_EQ(itemOf<as::IConditionValue>(list, 1)->getFrom(), row.read);
    EXPECT_EQ(itemOf<as::IConditionValue>(list, 2)->getTo(), row.read);
  }
}

constexpr const char* kinds[] = {"group",    "numeric", "alphanumeric", "numericEdited",
                                 "national", "pointer", "cobolObject",  "index"};

class ConditionOfKind : public testing::TestWithParam<const char*> {};

TEST_P(ConditionOfKind, NumericOnesAreListed) {
  const std::string kind = GetParam();
  const auto program = parse(dictionaryOf(
      "<" + kind + " name='I'>" + condition("<numericConstant value='1'/>") + "</" + kind + ">"));
  ASSERT_EQ(conditionsOf(*program)->getLength(), 1);
  auto* const listed = itemOf<as::ICondition>(conditionsOf(*program), 0);
  ASSERT_NE(listed, nullptr);
  EXPECT_EQ(listed->getName(), "C");
  EXPECT_EQ(listed->getLength(), 1);
}

TEST_P(ConditionOfKind, AlphanumericOnesAreNotListed) {
  const std::string kind = GetParam();
  const std::string alphanumeric =
      "<alphanumericCondition name='A'><alphanumericConstant value='x'/>"
      "<alphanumericRange from='a' to='z'/></alphanumericCondition>";
  const auto program = parse(dictionaryOf(
      "<" + kind + " name='I'>" + alphanumeric + condition("<numericConstant value='1'/>") +
      alphanumeric + "</" + kind + "><" + kind + " name='J'>" + alphanumeric + "</" + kind + ">"));
  ASSERT_EQ(conditionsOf(*program, 0)->getLength(), 1);
  EXPECT_EQ(itemOf<as::ICondition>(conditionsOf(*program, 0), 0)->getName(), "C");
  EXPECT_EQ(conditionsOf(*program, 1)->getLength(), 0);
}

INSTANTIATE_TEST_SUITE_P(All, ConditionOfKind, testing::ValuesIn(kinds),
                         [](const auto& row) { return std::string(row.param); });

TEST(Condition, OfAGroupAndOfItsItemsAreKeptApart) {
  const auto program = parse(dictionaryOf(
      "<group name='G'>"
      "<numericCondition name='G1'><numericConstant value='1'/></numericCondition>"
      "<numeric name='N'><numericCondition name='N1'><numericConstant value='1'/>"
      "</numericCondition></numeric>"
      "<numericCondition name='G2'><numericConstant value='2'/></numericCondition></group>"));
  as::IList* const ofGroup = conditionsOf(*program);
  ASSERT_EQ(ofGroup->getLength(), 2);
  EXPECT_EQ(itemOf<as::ICondition>(ofGroup, 0)->getName(), "G1");
  EXPECT_EQ(itemOf<as::ICondition>(ofGroup, 1)->getName(), "G2");
  as::IList* const children = topItem<as::IGroup>(*program)->getChildren();
  ASSERT_EQ(children->getLength(), 1);
  as::IList* const ofItem = itemOf<as::IDataItem>(children, 0)->getConditions();
  ASSERT_EQ(ofItem->getLength(), 1);
  EXPECT_EQ(itemOf<as::ICondition>(ofItem, 0)->getName(), "N1");
}

TEST(Condition, ListIsTheSameEveryTime) {
  const auto program = parse(dictionaryOf(numeric(condition("<numericConstant value='1'/>"))));
  EXPECT_EQ(conditionsOf(*program), conditionsOf(*program));
  EXPECT_EQ(conditionsOf(*program)->getItem(0), conditionsOf(*program)->getItem(0));
}

}  // namespace

// Tests of conditions and sums of compiler directives.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "toolkit/import/Definitions.h"
#include "toolkit/import/ImportLimits.h"

namespace {

using as::toolkit::compare;
using as::toolkit::Definitions;
using as::toolkit::DirectiveError;
using as::toolkit::DirectiveText;
using as::toolkit::DirectiveValue;

DirectiveValue valueOf(const std::string& literal) {
  return DirectiveValue::of(DirectiveText(literal).take());
}

class DefinitionsTest : public testing::Test {
 protected:
  DefinitionsTest() {
    define("FIVE", "5");
    define("TEXT", "'ab'");
    define("ON", "1");
    define("OFF", "0");
    define("EMPTY", "");
  }

  void define(const std::string& name, const std::string& literal) {
    definitions_.define(name, valueOf(literal), true);
  }

  // "true", "false", or why it is neither.
  std::string conditionOf(const std::string& condition) {
    DirectiveText text(condition);
    try {
      return definitions_.isTrue(text, note()) ? "true" : "false";
    } catch (const DirectiveError& error) {
      return error.what();
    }
  }

  // The number or text that it comes to, and what is left of it behind a bar.
  std::string resultOf(const std::string& sum) {
    DirectiveText text(sum);
    try {
      const auto result = definitions_.resultOf(text, note());
      return (result ? result->text : "nothing") +
             (text.isAtEnd() ? "" : " | " + std::string(text.peek().text));
    } catch (const DirectiveError& error) {
      return error.what();
    }
  }

  Definitions::Undefined note() {
    return [this](std::string_view name) { undefined_.emplace_back(name); };
  }

  Definitions definitions_;
  std::vector<std::string> undefined_;
};

struct Row {
  const char* text;
  const char* result;
};

TEST_F(DefinitionsTest, AreCompared) {
  for (const Row& row : {
           Row{"FIVE = 4", "false"},
           Row{"FIVE = 5", "true"},
           Row{"FIVE = 6", "false"},
           Row{"FIVE <> 4", "true"},
           Row{"FIVE <> 5", "false"},
           Row{"FIVE <> 6", "true"},
           Row{"FIVE < 4", "false"},
           Row{"FIVE < 5", "false"},
           Row{"FIVE < 6", "true"},
           Row{"FIVE <= 4", "false"},
           Row{"FIVE <= 5", "true"},
           Row{"FIVE <= 6", "true"},
           Row{"FIVE > 4", "true"},
           Row{"FIVE > 5", "false"},
           Row{"FIVE > 6", "false"},
           Row{"FIVE >= 4", "true"},
           Row{"FIVE >= 5", "true"},
           Row{"FIVE >= 6", "false"},
           Row{"FIVE EQUAL 4", "false"},
           Row{"FIVE EQUAL TO 5", "true"},
           Row{"FIVE EQUALS 5", "true"},
           Row{"FIVE EQUALS 6", "false"},
           Row{"FIVE LESS 4", "false"},
           Row{"FIVE LESS THAN 5", "false"},
           Row{"FIVE LESS 6", "true"},
           Row{"FIVE GREATER 4", "true"},
           Row{"FIVE GREATER THAN 5", "false"},
           Row{"FIVE GREATER 6", "false"},
           Row{"FIVE LESS THAN OR EQUAL TO 4", "false"},
           Row{"FIVE LESS OR EQUAL 5", "true"},
           Row{"FIVE LESS OR = 6", "true"},
           Row{"FIVE GREATER THAN OR EQUAL TO 4", "true"},
           Row{"FIVE GREATER OR EQUAL 5", "true"},
           Row{"FIVE GREATER OR = 6", "false"},
           Row{"FIVE IS NOT LESS THAN 5", "true"},
           Row{"FIVE NOT > 4", "false"},
           Row{"FIVE = +5.0", "true"},
           Row{"-5 < FIVE", "true"},
           Row{"FIVE = '5'", "true"},
           Row{"FIVE = '5.0'", "false"},
           Row{"TEXT < 'b'", "true"},
           Row{"TEXT > 'aa'", "true"},
           Row{"TEXT = 'ab'", "true"},
           Row{"FIVE LESS OR 6", "EQUAL is wanting"},
           Row{"FIVE 5", "DEFINED or a comparison is wanting behind \"FIVE\""},
           Row{"FIVE", "DEFINED or a comparison is wanting behind \"FIVE\""},
           Row{"5", "DEFINED or a comparison is wanting behind \"5\""},
       }) {
    EXPECT_EQ(conditionOf(row.text), row.result) << row.text;
  }
  EXPECT_TRUE(undefined_.empty());
}

TEST_F(DefinitionsTest, AreConditionsByThemselves) {
  for (const Row& row : {
           Row{"ON", "true"},
           Row{"on", "true"},
           Row{"OFF", "false"},
           Row{"EMPTY", "true"},
           Row{"ON AND OFF", "false"},
           Row{"OFF OR ON", "true"},
           Row{"(OFF)", "false"},
           Row{"(ON)", "true"},
           Row{"NOT OFF", "true"},
           Row{"NOT NOT OFF", "false"},
           Row{"ON DEFINED", "true"},
           Row{"ON NOT DEFINED", "false"},
           Row{"ON IS NOT SET", "false"},
           Row{"NONE IS NOT SET", "true"},
           Row{"NONE SET", "false"},
       }) {
    EXPECT_EQ(conditionOf(row.text), row.result) << row.text;
  }
  EXPECT_TRUE(undefined_.empty());
}

TEST_F(DefinitionsTest, ThatAreNotThereAreTold) {
  EXPECT_EQ(conditionOf("NONE"), "false");
  EXPECT_EQ(conditionOf("NONE = 1"), "false");
  EXPECT_EQ(conditionOf("1 = OTHER"), "false");
  EXPECT_EQ(conditionOf("NONE NOT = OTHER"), "false");
  EXPECT_EQ(undefined_, (std::vector<std::string>{"NONE", "NONE", "OTHER", "NONE", "OTHER"}));
}

TEST_F(DefinitionsTest, AreJoined) {
  for (const Row& row : {
           Row{"ON AND ON", "true"},
           Row{"ON AND OFF", "false"},
           Row{"OFF AND ON", "false"},
           Row{"OFF AND OFF", "false"},
           Row{"ON OR ON", "true"},
           Row{"ON OR OFF", "true"},
           Row{"OFF OR OFF", "false"},
           Row{"ON OR ON AND OFF", "true"},
           Row{"OFF AND ON OR ON", "true"},
           Row{"(ON OR ON) AND OFF", "false"},
           Row{"OFF AND (ON OR ON)", "false"},
           Row{"NOT OFF AND OFF", "false"},
           Row{"NOT (OFF AND OFF)", "true"},
           Row{"NOT ON OR ON", "true"},
           Row{"((ON))", "true"},
           Row{"((ON)", "a \"(\" has no \")\""},
           Row{"(ON))", "a \")\" has no \"(\""},
           Row{"ON AND", "a name or a literal is wanting"},
           Row{"", "a name or a literal is wanting"},
           Row{"= 1", "\"=\" stands where a name or a literal is to be"},
       }) {
    EXPECT_EQ(conditionOf(row.text), row.result) << row.text;
  }
}

TEST_F(DefinitionsTest, AreReckonedWith) {
  for (const Row& row : {
           Row{"FIVE", "5"},
           Row{"'x y'", "x y"},
           Row{"FIVE 6", "5 | 6"},
           Row{"FIVE + 2", "7"},
           Row{"FIVE - 7", "-2"},
           Row{"FIVE * 3", "15"},
           Row{"FIVE / 2", "2"},
           Row{"-7 / 2", "-3"},
           Row{"2 + 3 * 4 - 1", "13"},
           Row{"2 * 3 + 4 * 5", "26"},
           Row{"20 / 2 / 5", "2"},
           Row{"20 - 3 - 2", "15"},
           Row{"20 / ( 2 * 5 )", "2"},
           Row{"( 1 + 2 ) * ( 3 + 4 )", "21"},
           Row{"( ( FIVE ) )", "5"},
           Row{"( FIVE ) )", "5 | )"},
           Row{"2.5 * 3", "7"},
           Row{"FIVE + NONE", "nothing"},
           Row{"FIVE + 'x'", "\"x\" is no number"},
           Row{"TEXT + 1", "ab | +"},
           Row{"( 'x' )", "\"x\" is no number"},
           Row{"( FIVE", "a \"(\" has no \")\""},
           Row{"FIVE / 0", "a number is divided by zero"},
           Row{"FIVE +", "a name or a literal is wanting"},
           Row{"999999999999999 + 0", "999999999999999"},
           Row{"999999999999999 + 1", "the number is too large"},
           Row{"-999999999999999 - 1", "the number is too large"},
       }) {
    EXPECT_EQ(resultOf(row.text), row.result) << row.text;
  }
}

TEST_F(DefinitionsTest, AreOfTheirFirstValue) {
  definitions_.define("five", valueOf("5.0"), false);
  EXPECT_THROW(definitions_.define("five", valueOf("6"), false), DirectiveError);
  EXPECT_EQ(definitions_.find("FIVE")->number, 5);
  definitions_.define("five", valueOf("6"), true);
  EXPECT_EQ(definitions_.find("Five")->number, 6);
  definitions_.remove("five");
  EXPECT_EQ(definitions_.find("FIVE"), nullptr);
}

TEST_F(DefinitionsTest, AreNotTooLong) {
  const std::string longest(as::toolkit::importLimits::definitionText, 'A');
  define(longest, "'" + longest + "'");
  EXPECT_EQ(definitions_.find(longest)->text, longest);
  EXPECT_THROW(define(longest + "A", "1"), DirectiveError);
  EXPECT_THROW(define("B", "'" + longest + "A'"), DirectiveError);
  EXPECT_EQ(definitions_.find(longest + "A"), nullptr);
}

TEST(DirectiveValues, AreComparedAsNumbersIfBothAre) {
  EXPECT_LT(compare(valueOf("9"), valueOf("10")), 0);
  EXPECT_GT(compare(valueOf("10"), valueOf("9")), 0);
  EXPECT_EQ(compare(valueOf("1"), valueOf("+1.0")), 0);
  EXPECT_GT(compare(valueOf("'9'"), valueOf("10")), 0);
  EXPECT_GT(compare(valueOf("9"), valueOf("'10'")), 0);
}

}  // namespace

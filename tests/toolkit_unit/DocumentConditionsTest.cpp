// Tests of the condition names that are found in dictionaries when they are read once more.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "toolkit/facts/DocumentConditions.h"

namespace {

using as::toolkit::ConditionFacts;
using as::toolkit::DocumentConditions;
using as::toolkit::DocumentSource;

// Of each item "NAME=VALUE,VALUE;" for its conditions, and "." behind.
std::string shown(const DocumentSource& source) {
  DocumentConditions conditions(source);
  std::string text;
  for (std::size_t i = 0; i < conditions.itemCount(); ++i) {
    for (const ConditionFacts& condition : conditions.takeOf(i)) {
      text += condition.name + "=";
      for (const std::string& value : condition.values) text += value + ",";
      text += ";";
    }
    text += ".";
  }
  return text;
}

struct Row {
  const char* name;
  std::string document;
  const char* shown;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const std::string constant = "<numericConstant value='1'/>";

const Row rows[] = {
    {"NoItems", "<program/>", ""},
    {"Items", "<program><group><index/></group><pointer/></program>", "..."},
    {"Conditions",
     "<program><numeric><numericCondition name='A'>" + constant +
         "<numericRange from='2' to='5'/></numericCondition><numericCondition name='B'/></numeric>"
         "</program>",
     "A=1,2 THRU 5,;B=;."},
    {"ConditionsOfAGroupBehindItsMembers",
     "<program><group><index/><alphanumericCondition name='A'><alphanumericConstant value='x'/>"
     "</alphanumericCondition></group></program>",
     "A=x,;.."},
    {"Attributes",
     "<program><numeric><numericCondition><numericConstant/><numericRange to='2'/>"
     "</numericCondition></numeric></program>",
     "=, THRU 2,;."},
    {"ConditionOfNoItem",
     "<program><numericCondition name='A'>" + constant + "</numericCondition></program>", ""},
    {"ValueOfNoCondition", "<program>" + constant + "<index>" + constant + "</index></program>",
     "."},
    {"NoDocument", "<program><index/>", ""},
    {"NoText", "", ""},
    {"UnknownEncoding", "<?xml version='1.0' encoding='none-such'?><program><index/></program>",
     ""},
    {"EntityElsewhere",
     "<!DOCTYPE program [<!ENTITY e SYSTEM 'e.xml'>]><program><index/>&e;</program>", ""},
};

class FoundConditions : public testing::TestWithParam<Row> {};

TEST_P(FoundConditions, AreThoseOfTheItems) {
  EXPECT_EQ(shown({"p.xml", GetParam().document}), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Rows, FoundConditions, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ConditionsOfFiles, AreNoneOfFilesThatAreNotThere) {
  EXPECT_EQ(shown({"no-such-file.xml", std::nullopt}), "");
}

}  // namespace

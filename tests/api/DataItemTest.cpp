// Tests of what all data items have in common: their attributes, and their places in groups.
#include <gtest/gtest.h>

#include <climits>
#include <ostream>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::dictionary;
using test::dictionaryOf;
using test::itemOf;
using test::parse;
using test::Result;
using test::topItem;

struct Kind {
  const char* element;
  int dataType;
};

void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.element; }

constexpr Kind kinds[] = {
    {"group", 0},    {"numeric", 1}, {"alphanumeric", 2}, {"numericEdited", 6},
    {"national", 5}, {"pointer", 4}, {"cobolObject", 2},  {"index", 8},
};

std::string item(const std::string& kind, const std::string& attributes) {
  return "<" + kind + " name='ITEM' " + attributes + "/>";
}

// Attributes.

class DataItemOfKind : public testing::TestWithParam<Kind> {};

TEST_P(DataItemOfKind, HasItsDataType) {
  const auto program = parse(dictionaryOf(item(GetParam().element, "")));
  EXPECT_EQ(topItem<as::IDataItem>(*program)->getDataType(), GetParam().dataType);
}

TEST_P(DataItemOfKind, AnswersForEveryAttribute) {
  const auto program =
      parse(dictionaryOf(item(GetParam().element,
                              "picture='S9(7)V99' length='11' minOccurs='12' maxOccurs='13' "
                              "offset='14' line='15' linkage='true' sync='true' redefines='true' "
                              "renames='true' odo='COUNT'") +
                         "<numeric name='COUNT'/>"));
  auto* const found = topItem<as::IDataItem>(*program);
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->getName(), "ITEM");
  EXPECT_EQ(found->getPicture(), "S9(7)V99");
  EXPECT_EQ(found->getLength(), 11);
  EXPECT_EQ(found->getMinOccurs(), 12);
  EXPECT_EQ(found->getMaxOccurs(), 13);
  EXPECT_EQ(found->getOffset(), 14);
  EXPECT_EQ(found->getLine(), 15);
  EXPECT_TRUE(found->isLinkage());
  EXPECT_TRUE(found->isSync());
  EXPECT_TRUE(found->isRedefined());
  EXPECT_TRUE(found->isRenamed());
  EXPECT_TRUE(found->hasODO());
  EXPECT_EQ(found->getODO(), topItem<as::IDataItem>(*program, 1));
}

TEST_P(DataItemOfKind, HasDefaultsForAbsentAttributes) {
  const auto program = parse(dictionaryOf(item(GetParam().element, "")));
  auto* const found = topItem<as::IDataItem>(*program);
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->getPicture(), "");
  EXPECT_EQ(found->getLength(), 0);
  EXPECT_EQ(found->getMinOccurs(), 0);
  EXPECT_EQ(found->getMaxOccurs(), 0);
  EXPECT_EQ(found->getOffset(), 0);
  EXPECT_EQ(found->getLine(), 0);
  EXPECT_FALSE(found->isLinkage());
  EXPECT_FALSE(found->isSync());
  EXPECT_FALSE(found->isRedefined());
  EXPECT_FALSE(found->isRenamed());
  EXPECT_FALSE(found->hasODO());
  EXPECT_EQ(found->getODO(), nullptr);
  EXPECT_EQ(found->getParent(), nullptr);
  ASSERT_NE(found->getConditions(), nullptr);
  EXPECT_EQ(found->getConditions()->getLength(), 0);
}

INSTANTIATE_TEST_SUITE_P(All, DataItemOfKind, testing::ValuesIn(kinds),
                         [](const auto& row) { return row.param.element; });

struct Number {
  const char* attribute;
  int (as::IDataItem::*get)();
};

constexpr Number numbers[] = {
    {"length", &as::IDataItem::getLength},       {"minOccurs", &as::IDataItem::getMinOccurs},
    {"maxOccurs", &as::IDataItem::getMaxOccurs}, {"offset", &as::IDataItem::getOffset},
    {"line", &as::IDataItem::getLine},
};

TEST(DataItemNumber, IsThatOfItsOwnAttribute) {
  for (const Number& written : numbers) {
    const auto program =
        parse(dictionaryOf(item("numeric", std::string(written.attribute) + "='7'")));
    for (const Number& read : numbers) {
      SCOPED_TRACE(std::string(written.attribute) + " " + read.attribute);
      EXPECT_EQ((topItem<as::IDataItem>(*program)->*read.get)(), &read == &written ? 7 : 0);
    }
  }
}

TEST(DataItemNumber, IsReadAsADecimalInteger) {
  const struct {
    const char* text;
    int value;
  } rows[] = {
      {"0", 0},
      {"1", 1},
      {"2147483647", INT_MAX},
      {"007", 7},
      {"0000000000010", 10},
      {"+5", 5},
      {"-0", 0},
      {" 12 ", 12},
      {"\t&#10;3", 3},
  };
  for (const Number& number : numbers) {
    for (const auto& row : rows) {
      SCOPED_TRACE(std::string(number.attribute) + "='" + row.text + "'");
      const auto program =
          parse(dictionaryOf(item("group", std::string(number.attribute) + "='" + row.text + "'")));
      EXPECT_EQ((topItem<as::IDataItem>(*program)->*number.get)(), row.value);
    }
  }
}

// What an int cannot hold never reaches an accessor.
TEST(DataItemNumber, IsRefusedWhenAnIntDoesNotHoldIt) {
  for (const Number& number : numbers) {
    for (const char* text : {"2147483648", "4294967297", "99999999999999999999", "-1"}) {
      SCOPED_TRACE(std::string(number.attribute) + "='" + text + "'");
      EXPECT_EQ(test::outcomeOf(
                    dictionaryOf(item("group", std::string(number.attribute) + "='" + text + "'")))
                    .result,
                Result::parseException);
    }
  }
}

struct Flag {
  const char* attribute;
  bool (as::IDataItem::*get)();
};

constexpr Flag flags[] = {
    {"linkage", &as::IDataItem::isLinkage},
    {"sync", &as::IDataItem::isSync},
    {"redefines", &as::IDataItem::isRedefined},
    {"renames", &as::IDataItem::isRenamed},
};

// `word` in every mix of upper and lower case.
std::vector<std::string> casesOf(const std::string& word) {
  std::vector<std::string> result;
  for (unsigned mix = 0; mix < 1U << word.size(); mix++) {
    std::string text = word;
    for (std::size_t i = 0; i < text.size(); i++) {
      if ((mix >> i & 1U) != 0) text[i] = static_cast<char>(text[i] - 'a' + 'A');
    }
    result.push_back(text);
  }
  return result;
}

TEST(DataItemFlag, IsThatOfItsOwnAttribute) {
  for (const Flag& written : flags) {
    const auto program =
        parse(dictionaryOf(item("numeric", std::string(written.attribute) + "='true'")));
    for (const Flag& read : flags) {
      SCOPED_TRACE(std::string(written.attribute) + " " + read.attribute);
      EXPECT_EQ((topItem<as::IDataItem>(*program)->*read.get)(), &read == &written);
    }
  }
}

TEST(DataItemFlag, IsTrueForTrueAndFalseForFalseInAnyCase) {
  const struct {
    const char* word;
    bool value;
    std::size_t cases;
  } rows[] = {{"true", true, 16}, {"false", false, 32}};
  for (const auto& row : rows) {
    const std::vector<std::string> texts = casesOf(row.word);
    ASSERT_EQ(texts.size(), row.cases);
    std::string items;
    for (const std::string& text : texts) {
      std::string attributes;
      for (const Flag& flag : flags) {
        attributes += std::string(flag.attribute) + "='" + text + "' ";
      }
      items += item("alphanumeric", attributes);
    }
    const auto program = parse(dictionaryOf(items));
    for (std::size_t i = 0; i < texts.size(); i++) {
      for (const Flag& flag : flags) {
        EXPECT_EQ((topItem<as::IDataItem>(*program, static_cast<int>(i))->*flag.get)(), row.value)
            << flag.attribute << "='" << texts[i] << "'";
      }
    }
  }
}

TEST(DataItem, TextsAreUntouched) {
  const struct {
    const char* written;
    const char* read;
  } rows[] = {
      {" A  B ", " A  B "},
      {"&lt;&amp;&gt;", "<&>"},
      {"Pr\xC3\xA4mie", "Pr\xC3\xA4mie"},
      {"&#xE4;&#8364;", "\xC3\xA4\xE2\x82\xAC"},
      {"\xE6\x97\xA5\xE6\x9C\xAC", "\xE6\x97\xA5\xE6\x9C\xAC"},
      {"\xF0\x9D\x84\x9E", "\xF0\x9D\x84\x9E"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.written);
    const std::string text = row.written;
    const auto program =
        parse(dictionaryOf("<numeric name='" + text + "' picture='" + text + "'/>"));
    EXPECT_EQ(topItem<as::IDataItem>(*program)->getName(), row.read);
    EXPECT_EQ(topItem<as::IDataItem>(*program)->getPicture(), row.read);
  }
}

// Places.

const char nested[] =
    "<group name='G1'>"
    "<numeric name='N1'/>"
    "<group name='G2'><alphanumeric name='A1'/><group name='G3'/></group>"
    "<pointer name='P1'/>"
    "</group>"
    "<numeric name='N2'/>";

TEST(DataItemParent, IsNullOnTheTopLevel) {
  const auto program = parse(dictionaryOf(nested));
  EXPECT_EQ(topItem<as::IDataItem>(*program, 0)->getParent(), nullptr);
  EXPECT_EQ(topItem<as::IDataItem>(*program, 1)->getParent(), nullptr);
}

TEST(DataItemParent, IsTheGroupThatHoldsTheItem) {
  const auto program = parse(dictionaryOf(nested));
  auto* const g1 = topItem<as::IGroup>(*program);
  ASSERT_EQ(g1->getChildren()->getLength(), 3);
  auto* const g2 = itemOf<as::IGroup>(g1->getChildren(), 1);
  ASSERT_EQ(g2->getChildren()->getLength(), 2);
  for (int i = 0; i < 3; i++) {
    EXPECT_EQ(itemOf<as::IDataItem>(g1->getChildren(), i)->getParent(), g1) << i;
  }
  for (int i = 0; i < 2; i++) {
    EXPECT_EQ(itemOf<as::IDataItem>(g2->getChildren(), i)->getParent(), g2) << i;
  }
}

TEST(DataItemParent, OfFileItemsIsNullForRecordsAndTheGroupBelow) {
  const auto program = parse(dictionary("<fileSection><fd name='F'><dataItems>" +
                                        std::string(nested) + "</dataItems></fd></fileSection>"));
  as::IList* const records = itemOf<as::IFD>(program->getFileSection(), 0)->getDataItems();
  EXPECT_EQ(itemOf<as::IDataItem>(records, 0)->getParent(), nullptr);
  EXPECT_EQ(itemOf<as::IDataItem>(records, 1)->getParent(), nullptr);
  auto* const g1 = itemOf<as::IGroup>(records, 0);
  EXPECT_EQ(itemOf<as::IDataItem>(g1->getChildren(), 0)->getParent(), g1);
}

TEST(DataItemChildren, AreTheGroupsOwnInDocumentOrder) {
  const auto program = parse(dictionaryOf(
      "<group name='G'><numericCondition name='C'><numericConstant value='1'/></numericCondition>"
      "<group name='1'><numeric name='DEEPER'/></group>\n<numeric name='2'/>"
      "<alphanumericCondition name='D'><alphanumericConstant value='1'/></alphanumericCondition>"
      "<alphanumeric name='3'/><numericEdited name='4'/><national name='5'/><!-- x -->"
      "<pointer name='6'/><cobolObject name='7'/><index name='8'/></group>"));
  as::IList* const children = topItem<as::IGroup>(*program)->getChildren();
  ASSERT_EQ(children->getLength(), 8);
  for (int i = 0; i < 8; i++) {
    EXPECT_EQ(itemOf<as::IDataItem>(children, i)->getName(), std::to_string(i + 1));
  }
}

TEST(DataItemChildren, OfAnEmptyGroupAreAnEmptyList) {
  const auto program = parse(dictionaryOf("<group name='G'/>"));
  as::IList* const children = topItem<as::IGroup>(*program)->getChildren();
  ASSERT_NE(children, nullptr);
  EXPECT_EQ(children->getLength(), 0);
}

}  // namespace

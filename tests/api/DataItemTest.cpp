// Tests of what all data items have in common: their attributes, parents, the objects of OCCURS
// DEPENDING ON, and the operations of every element and list.
#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "support/Dictionary.h"

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

std::string nameOf(as::IDataItem* found) { return found == nullptr ? "(none)" : found->getName(); }

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

// OCCURS DEPENDING ON. The item that is found is told by its line.

struct Odo {
  const char* name;
  const char* odo;
  const char* items;
  int line;  // Of the item found; 0 when none is.
};

void PrintTo(const Odo& odo, std::ostream* out) { *out << odo.odo; }

class DataItemOdo : public testing::TestWithParam<Odo> {};

TEST_P(DataItemOdo, FindsItsObject) {
  const auto program =
      parse(dictionary("<fileSection><fd name='F'><dataItems><numeric name='IN-FILE'/>"
                       "</dataItems></fd></fileSection><dataItems>" +
                       item("group", std::string("odo='") + GetParam().odo + "'") +
                       GetParam().items + "</dataItems>"));
  auto* const table = topItem<as::IDataItem>(*program);
  as::IDataItem* const object = table->getODO();
  EXPECT_EQ(object == nullptr ? 0 : object->getLine(), GetParam().line);
  EXPECT_EQ(table->hasODO(), *GetParam().odo != '\0');
}

constexpr char levels[] =
    "<group name='A' line='1'><numeric name='B' line='2'/>"
    "<group name='C' line='3'><numeric name='D' line='4'/><numeric name='B' line='5'/></group>"
    "</group><numeric name='E' line='6'/>";
constexpr char namesakes[] =
    "<numeric name='X' line='1'/>"
    "<group name='X' line='2'><numeric name='Y' line='3'/></group>"
    "<group name='X' line='4'><numeric name='Y' line='5'/><numeric name='Z' line='6'/></group>";
constexpr char innerNamesakes[] =
    "<group name='A' line='1'><numeric name='B' line='2'/><group name='B' line='3'>"
    "<numeric name='C' line='4'/></group><group name='B' line='5'><numeric name='C' line='6'/>"
    "<numeric name='D' line='7'/></group></group>";

INSTANTIATE_TEST_SUITE_P(
    All, DataItemOdo,
    testing::Values(
        Odo{"Empty", "", levels, 0}, Odo{"TopLevelItem", "E", levels, 6},
        Odo{"TopLevelGroup", "A", levels, 1}, Odo{"ItemOfAGroup", "A.B", levels, 2},
        Odo{"GroupOfAGroup", "A.C", levels, 3}, Odo{"TwoLevelsDown", "A.C.D", levels, 4},
        Odo{"NamesakeOnAnotherLevel", "A.C.B", levels, 5},
        Odo{"ItemOfAGroupWithoutItsPath", "B", levels, 0},
        Odo{"PathFromTheMiddle", "C.D", levels, 0}, Odo{"PathWithAGap", "A.D", levels, 0},
        Odo{"UnknownItem", "UNKNOWN", levels, 0}, Odo{"UnknownInAGroup", "A.UNKNOWN", levels, 0},
        Odo{"UnknownGroup", "UNKNOWN.B", levels, 0}, Odo{"BelowAnElementaryItem", "E.B", levels, 0},
        Odo{"OtherCase", "a.b", levels, 0}, Odo{"BlanksAround", " E ", levels, 0},
        Odo{"ItemOfAFile", "IN-FILE", levels, 0}, Odo{"NoNames", ".", levels, 0},
        Odo{"DotInFront", ".E", levels, 0}, Odo{"TwoDots", "A..B", levels, 0},
        Odo{"DotBehind", "A.B.", levels, 2}, Odo{"Subscripts", "A.B(1)", levels, 2},
        Odo{"SubscriptsWithin", "A(1).B", levels, 1}, Odo{"OnlySubscripts", "(1)", levels, 0},
        Odo{"ItemItself", "ITEM", levels, 0}, Odo{"FirstOfItemAndGroups", "X", namesakes, 1},
        Odo{"GroupBehindAnElementaryNamesake", "X.Y", namesakes, 3},
        Odo{"LaterGroupWhenTheFirstLacksIt", "X.Z", namesakes, 6},
        Odo{"FirstInnerItem", "A.B", innerNamesakes, 2},
        Odo{"InnerGroupBehindAnElementaryNamesake", "A.B.C", innerNamesakes, 4},
        Odo{"LaterInnerGroupWhenTheFirstLacksIt", "A.B.D", innerNamesakes, 7},
        Odo{"NothingInAnyOfThem", "A.B.E", innerNamesakes, 0}),
    [](const auto& row) { return row.param.name; });

TEST(DataItemOdo, MayBeTheItemItself) {
  const auto program = parse(dictionaryOf(item("numeric", "odo='ITEM'")));
  EXPECT_EQ(topItem<as::IDataItem>(*program)->getODO(), topItem<as::IDataItem>(*program));
}

TEST(DataItemOdo, MayNameATableItself) {
  const auto program = parse(dictionaryOf(
      "<group name='REC'><numeric name='COUNT'/><group name='TAB' odo='REC.COUNT'/></group>"));
  as::IList* const children = topItem<as::IGroup>(*program)->getChildren();
  EXPECT_EQ(itemOf<as::IDataItem>(children, 1)->getODO(), itemOf<as::IDataItem>(children, 0));
}

TEST(DataItemOdo, OfAFileItemIsFoundAmongTheProgramsItems) {
  const auto program =
      parse(dictionary("<fileSection><fd name='F'><dataItems><group name='R' odo='COUNT'/><numeric "
                       "name='COUNT' line='1'/></dataItems></fd></fileSection>"
                       "<dataItems><numeric name='COUNT' line='2'/></dataItems>"));
  as::IList* const records = itemOf<as::IFD>(program->getFileSection(), 0)->getDataItems();
  as::IDataItem* const object = itemOf<as::IDataItem>(records, 0)->getODO();
  EXPECT_EQ(object, topItem<as::IDataItem>(*program));
}

TEST(DataItemOdo, OfAFileItemIsNullInAProgramWithoutDataItems) {
  const auto program = parse(
      dictionary("<fileSection><fd name='F'><dataItems><group name='R' odo='R'/></dataItems></fd>"
                 "</fileSection>"));
  as::IList* const records = itemOf<as::IFD>(program->getFileSection(), 0)->getDataItems();
  EXPECT_TRUE(itemOf<as::IDataItem>(records, 0)->hasODO());
  EXPECT_EQ(itemOf<as::IDataItem>(records, 0)->getODO(), nullptr);
}

TEST(DataItemOdo, MayBeNamedInAnyScript) {
  const auto program =
      parse(dictionaryOf("<group name='S\xC3\xA4tze'><numeric name='\xF0\x9D\x84\x9E'/></group>"
                         "<group name='T' odo='S\xC3\xA4tze.\xF0\x9D\x84\x9E'/>"));
  EXPECT_EQ(nameOf(topItem<as::IDataItem>(*program, 1)->getODO()), "\xF0\x9D\x84\x9E");
}

// Every element.

// A dictionary with an object of every class.
std::string everything() {
  return dictionary(
      "<properties><property name='P'/></properties>"
      "<fileSection><fd name='F'><dataItems><group name='R'/></dataItems></fd></fileSection>"
      "<dataItems><group name='G'><numericCondition name='C'><numericConstant value='1'/>"
      "<numericRange from='2' to='3'/></numericCondition><numeric name='N'/>"
      "<alphanumeric name='A'/><numericEdited name='E'/><national name='U'/><pointer name='O'/>"
      "</group></dataItems>"
      "<entryPoints><entryPoint name='M'><parameter dataItem='G'/></entryPoint></entryPoints>");
}

// Every object that can be reached, embedded lists included, each once.
std::vector<as::IElement*> objectsOf(as::IProgram& program) {
  std::vector<as::IElement*> objects = {&program, program.getProperties(), program.getFileSection(),
                                        program.getDataItems(), program.getEntryPoints()};
  for (std::size_t i = 1; i < objects.size(); i++) {
    if (auto* const list = as::interface_cast<as::IList>(objects[i])) {
      for (int member = 0; member < list->getLength(); member++) {
        objects.push_back(list->getItem(member));
      }
    }
    if (auto* const file = as::interface_cast<as::IFD>(objects[i])) {
      objects.push_back(file->getDataItems());
    }
    if (auto* const dataItem = as::interface_cast<as::IDataItem>(objects[i])) {
      objects.push_back(dataItem->getConditions());
    }
    if (auto* const group = as::interface_cast<as::IGroup>(objects[i])) {
      objects.push_back(group->getChildren());
    }
  }
  return objects;
}

TEST(Element, UserDataIsNullAtFirst) {
  const auto program = parse(everything());
  const std::vector<as::IElement*> objects = objectsOf(*program);
  ASSERT_EQ(objects.size(), 29u);
  for (as::IElement* const object : objects) EXPECT_EQ(object->getUserData(), nullptr);
}

TEST(Element, UserDataIsEachObjectsOwn) {
  const auto program = parse(everything());
  const std::vector<as::IElement*> objects = objectsOf(*program);
  std::vector<int> data(objects.size());
  for (std::size_t i = 0; i < objects.size(); i++) objects[i]->setUserData(&data[i]);
  for (std::size_t i = 0; i < objects.size(); i++) {
    EXPECT_EQ(objects[i]->getUserData(), &data[i]) << i;
  }
  for (as::IElement* const object : objects) object->setUserData(nullptr);
  for (as::IElement* const object : objects) EXPECT_EQ(object->getUserData(), nullptr);
}

TEST(Element, UserDataIsTheSameThroughEveryInterface) {
  const auto program = parse(everything());
  int data = 0;
  topItem<as::IGroup>(*program)->setUserData(&data);
  EXPECT_EQ(topItem<as::IDataItem>(*program)->getUserData(), &data);
  EXPECT_EQ(program->getDataItems()->getItem(0)->getUserData(), &data);
}

TEST(Element, AttributeValueIsTheTextInTheDocument) {
  const auto program =
      parse(dictionaryOf("<numeric xmlns:gr\xC3\xB6\xC3\x9F"
                         "e='urn:\xF0\x9F\x93\x84' name='Gr\xC3\xB6\xC3\x9F"
                         "e' length='007' sync='TRUE' picture=''/>"));
  as::IElement* const element = program->getDataItems()->getItem(0);
  const struct {
    const char* name;
    const char* value;
  } rows[] = {
      {"name",
       "Gr\xC3\xB6\xC3\x9F"
       "e"},
      {"length", "007"},
      {"sync", "TRUE"},
      {"xmlns:gr\xC3\xB6\xC3\x9F"
       "e",
       "urn:\xF0\x9F\x93\x84"},
      {"picture", ""},  // Empty.
      {"offset", ""},   // Absent.
      {"unknown", ""},  // No attribute of the schema.
      {"Name", ""},     // Upper and lower case count.
      {"gr\xC3\xB6", ""},
      {"\xFF\xFE", ""},  // No UTF-8.
      {" name", ""},
      {"", ""},
      {nullptr, ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name == nullptr ? "(null)" : row.name);
    EXPECT_EQ(element->getAttributeValue(row.name), row.value);
  }
}

TEST(Element, EveryObjectAnswersForTheAttributesOfItsElement) {
  const auto program = parse(everything());
  EXPECT_EQ(program->getAttributeValue("name"), "PAYROLL");
  EXPECT_EQ(program->getDataItems()->getAttributeValue("name"), "");
  EXPECT_EQ(program->getEntryPoints()->getItem(0)->getAttributeValue("name"), "M");
  auto* const group = topItem<as::IGroup>(*program);
  EXPECT_EQ(group->getAttributeValue("name"), "G");
  // The lists that an item embeds are views of the item's own element.
  EXPECT_EQ(group->getChildren()->getAttributeValue("name"), "G");
  EXPECT_EQ(group->getConditions()->getAttributeValue("name"), "G");
  EXPECT_EQ(itemOf<as::ICondition>(group->getConditions(), 0)->getItem(1)->getAttributeValue("to"),
            "3");
}

TEST(List, AnIndexOutOfRangeGivesNull) {
  const auto program = parse(everything());
  int lists = 0;
  for (as::IElement* const object : objectsOf(*program)) {
    auto* const list = as::interface_cast<as::IList>(object);
    if (list == nullptr) continue;
    lists++;
    for (const int index : {-1, INT_MIN, list->getLength(), list->getLength() + 1, INT_MAX}) {
      EXPECT_EQ(list->getItem(index), nullptr) << index << " of " << list->getLength();
    }
  }
  EXPECT_EQ(lists, 16);
}

TEST(List, ListsOfOneDocumentDoNotShareMembers) {
  const auto program = parse(dictionaryOf(
      "<group name='G'><numeric name='A'/></group><group name='G'><numeric name='B'/></group>"));
  as::IList* const first = topItem<as::IGroup>(*program, 0)->getChildren();
  as::IList* const second = topItem<as::IGroup>(*program, 1)->getChildren();
  ASSERT_EQ(first->getLength(), 1);
  ASSERT_EQ(second->getLength(), 1);
  EXPECT_EQ(itemOf<as::IDataItem>(first, 0)->getName(), "A");
  EXPECT_EQ(itemOf<as::IDataItem>(second, 0)->getName(), "B");
}

TEST(List, ProgramsDoNotShareAnything) {
  const auto program = parse(everything());
  auto other = parse(everything());
  const std::vector<as::IElement*> objects = objectsOf(*program);
  for (as::IElement* const object : objectsOf(*other)) {
    for (as::IElement* const mine : objects) EXPECT_NE(mine, object);
  }
  other.reset();
  EXPECT_EQ(topItem<as::IDataItem>(*program)->getName(), "G");
}

}  // namespace

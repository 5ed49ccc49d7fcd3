// Tests of what every object of a dictionary's model and every list in it have in common.
#include <gtest/gtest.h>

#include <climits>
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
using test::topItem;

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

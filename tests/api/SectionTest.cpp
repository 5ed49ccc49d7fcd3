// Tests of the sections of programs, services and operations: elements that are lists of others.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <utility>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::dictionary;
using test::element;
using test::labelOf;
using test::operationOf;
using test::parse;
using test::parseService;
using test::payService;

// A document, and the element of it that holds the sections.
struct Owner {
  std::unique_ptr<as::IElement> root;
  as::IElement* element;
};

Owner programWith(const std::string& content) {
  std::unique_ptr<as::IElement> program = parse(dictionary(content));
  as::IElement* const owner = program.get();
  return {std::move(program), owner};
}

Owner serviceWith(const std::string& content) {
  std::unique_ptr<as::IElement> service = parseService(payService(content));
  as::IElement* const owner = service.get();
  return {std::move(service), owner};
}

Owner operationWith(const std::string& content) {
  Owner owner = serviceWith(element("operations", element("operation", content)));
  owner.element = operationOf(*as::interface_cast<as::IService>(owner.element));
  return owner;
}

struct Section {
  const char* label;
  Owner (*ownerWith)(const std::string& content);
  const char* name;
  as::IList* (*of)(as::IElement* owner);
  const char* members;    // Two, of which ...
  const char* attribute;  // ... this is "FIRST" and "SECOND".
};

void PrintTo(const Section& section, std::ostream* out) { *out << section.label; }

// What the operation `get` of the interface answers.
template <class Interface, as::IList* (Interface::*get)()>
as::IList* listOf(as::IElement* owner) {
  return (as::interface_cast<Interface>(owner)->*get)();
}

constexpr Section sections[] = {
    {"ProgramProperties", programWith, "properties",
     listOf<as::IProgram, &as::IProgram::getProperties>,
     "<property name='FIRST'/><property name='SECOND'/>", "name"},
    {"ProgramFileSection", programWith, "fileSection",
     listOf<as::IProgram, &as::IProgram::getFileSection>, "<fd name='FIRST'/><fd name='SECOND'/>",
     "name"},
    {"ProgramDataItems", programWith, "dataItems",
     listOf<as::IProgram, &as::IProgram::getDataItems>,
     "<numeric name='FIRST'/><group name='SECOND'/>", "name"},
    {"ProgramEntryPoints", programWith, "entryPoints",
     listOf<as::IProgram, &as::IProgram::getEntryPoints>,
     "<entryPoint name='FIRST'/><entryPoint name='SECOND'/>", "name"},
    {"ServiceProperties", serviceWith, "properties",
     listOf<as::IService, &as::IService::getProperties>,
     "<property name='FIRST'/><property name='SECOND'/>", "name"},
    {"ServiceParameterTypeDefs", serviceWith, "parameterTypeDefs",
     listOf<as::IService, &as::IService::getParameterTypeDefs>,
     "<parameter name='FIRST'/><parameter name='SECOND'/>", "name"},
    {"ServiceOperations", serviceWith, "operations",
     listOf<as::IService, &as::IService::getOperations>,
     "<operation name='FIRST'/><operation name='SECOND'/>", "name"},
    {"OperationParameters", operationWith, "parameters",
     listOf<as::IOperation, &as::IOperation::getParameters>,
     "<parameter name='FIRST'/><parameter name='SECOND'/>", "name"},
    {"OperationHiddenParameters", operationWith, "hiddenParameters",
     listOf<as::IOperation, &as::IOperation::getHiddenParameters>,
     "<hiddenParameter value='FIRST'/><hiddenParameter value='SECOND'/>", "value"},
};

class SectionTest : public testing::TestWithParam<Section> {
 protected:
  // The section with that content.
  static Owner with(const std::string& content) {
    return GetParam().ownerWith(element(GetParam().name, content));
  }
  static Owner without() { return GetParam().ownerWith(""); }
  static as::IList* listIn(const Owner& owner) { return GetParam().of(owner.element); }
};

TEST_P(SectionTest, AbsentReadsAsAnEmptyList) {
  const Owner owner = without();
  as::IList* const list = listIn(owner);
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->getLength(), 0);
  EXPECT_EQ(list->getItem(0), nullptr);
  EXPECT_EQ(list->getAttributeValue("name"), "");
}

TEST_P(SectionTest, AbsentReadsAsTheListThatAllShare) {
  const Owner owner = without();
  for (const Section& section : sections) {
    EXPECT_EQ(section.of(section.ownerWith("").element), listIn(owner)) << section.label;
  }
}

TEST_P(SectionTest, WithoutMembersIsAListOfItsOwn) {
  const Owner owner = with("");
  ASSERT_NE(listIn(owner), nullptr);
  EXPECT_NE(listIn(owner), listIn(without()));
  EXPECT_EQ(listIn(owner)->getLength(), 0);
  EXPECT_EQ(listIn(owner)->getItem(0), nullptr);
}

TEST_P(SectionTest, HasItsMembersInOrder) {
  const Owner owner = with(GetParam().members);
  as::IList* const list = listIn(owner);
  ASSERT_EQ(list->getLength(), 2);
  EXPECT_EQ(list->getItem(0)->getAttributeValue(GetParam().attribute), "FIRST");
  EXPECT_EQ(list->getItem(1)->getAttributeValue(GetParam().attribute), "SECOND");
}

TEST_P(SectionTest, HasNothingOutsideItsMembers) {
  const Owner owner = with(GetParam().members);
  EXPECT_EQ(listIn(owner)->getItem(-1), nullptr);
  EXPECT_EQ(listIn(owner)->getItem(2), nullptr);
}

// Blanks, comments and processing instructions between the members are none.
TEST_P(SectionTest, HoldsElementsOnly) {
  const Owner owner = with("\n <!-- c -->" + std::string(GetParam().members) + "<?target data?>\n");
  EXPECT_EQ(listIn(owner)->getLength(), 2);
}

TEST_P(SectionTest, IsTheSameObjectEveryTime) {
  const Owner owner = with(GetParam().members);
  EXPECT_EQ(listIn(owner), listIn(owner));
  EXPECT_EQ(listIn(owner)->getItem(1), listIn(owner)->getItem(1));
}

TEST_P(SectionTest, LeavesTheOthersEmpty) {
  const Owner owner = with(GetParam().members);
  for (const Section& section : sections) {
    if (section.ownerWith != GetParam().ownerWith) continue;
    EXPECT_EQ(section.of(owner.element)->getLength(),
              section.label == std::string(GetParam().label) ? 2 : 0)
        << section.label;
  }
}

INSTANTIATE_TEST_SUITE_P(All, SectionTest, testing::ValuesIn(sections), labelOf<Section>);

}  // namespace

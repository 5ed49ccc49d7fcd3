// Tests of mappings and hidden parameters: paths, subscripts, and the data item that is found.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <memory>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/ParsedJava.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::mappingOf;
using test::operationOf;
using test::parameterOf;
using test::parsedJava;
using test::parseService;

std::unique_ptr<as::IService> serviceWithMapping(const std::string& attributes) {
  return parsedJava("<parameter name='p'><mappings><mapping " + attributes +
                    "/></mappings></parameter>");
}

TEST(Mapping, WritesThePathWithASubscriptForEachTable) {
  const auto program = test::parse(test::payProgram());
  auto* const request = test::topItem<as::IGroup>(*program, 1);
  auto* const line = test::itemOf<as::IGroup>(request->getChildren(), 2);
  const struct {
    as::IDataItem* item;
    const char* path;
    const char* subscript;
  } rows[] = {
      {test::topItem<as::IDataItem>(*program), "WS-COUNT", ""},
      {test::itemOf<as::IDataItem>(request->getChildren(), 0), "REQ.ID", ""},
      {line, "REQ.LINE(*)", "*"},
      {test::itemOf<as::IDataItem>(line->getChildren(), 0), "REQ.LINE.AMOUNT(*)", "*"},
      {test::itemOf<as::IDataItem>(line->getChildren(), 1), "REQ.LINE.CELL(*,*)", "*,*"},
  };
  for (const auto& row : rows) {
    const auto service = serviceWithMapping("");
    as::IMapping* const mapping = mappingOf(*service);
    mapping->setDataItem(row.item);
    EXPECT_EQ(mapping->getRawMapping(), row.path);
    EXPECT_EQ(mapping->getAttributeValue("subscript"), row.subscript);
  }
}

TEST(Mapping, KeepsTheSubscriptWhenMappedToNoTable) {
  const auto service = serviceWithMapping("item='A(*)' subscript='*'");
  const auto program = test::parse(test::payProgram());
  mappingOf(*service)->setDataItem(test::topItem<as::IDataItem>(*program));
  EXPECT_EQ(mappingOf(*service)->getRawMapping(), "WS-COUNT");
  EXPECT_EQ(mappingOf(*service)->getAttributeValue("subscript"), "*");
  mappingOf(*service)->setDataItem(nullptr);
  EXPECT_EQ(mappingOf(*service)->getRawMapping(), "WS-COUNT");
}

TEST(Mapping, ReadsSubscriptsOfBothSides) {
  const struct {
    const char* list;
    int count;
    int first;
    int second;
  } rows[] = {
      {"3,*,12", 3, 3, -1},
      {"*", 1, -1, -1},
      {"7", 1, 7, -1},
      {"abc", 0, -1, -1},
      {"12abc", 0, -1, -1},
      {"1,x", 0, 1, -1},
      {" 1", 0, -1, -1},
      {"-2,5", 2, -2, 5},
      {"+3", 1, 3, -1},
      {"+-3", 0, -1, -1},
      {"1,", 0, 1, -1},
      {",1", 0, -1, -1},
      {"99999999999", 0, -1, -1},
      {"2147483647", 1, INT_MAX, -1},
      {"0,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15", 16, 0, 1},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.list);
    const std::string list = row.list;
    const auto service = serviceWithMapping("item='A.B(" + list + ")' subscript='" + list + "'");
    for (const bool interfaceSide : {true, false}) {
      std::array<int, 17> subscripts;
      subscripts.fill(77);
      as::IMapping* const mapping = mappingOf(*service);
      EXPECT_EQ(interfaceSide ? mapping->getInterfaceSubscripts(subscripts.data())
                              : mapping->getDataItemSubscripts(subscripts.data()),
                row.count);
      EXPECT_EQ(subscripts[0], row.first);
      EXPECT_EQ(subscripts[1], row.second);
      EXPECT_EQ(subscripts[16], 77) << "beyond what callers make room for";
    }
  }
}

TEST(Mapping, HasNoSubscriptsWithoutAClosedListAtTheEnd) {
  std::array<int, 16> subscripts;
  for (const char* item : {"A.B", "A(2,1)x", "A(2", "A)2(", "A()", "$stdin"}) {
    subscripts.fill(77);
    const auto service = serviceWithMapping("item='" + std::string(item) + "'");
    EXPECT_EQ(mappingOf(*service)->getDataItemSubscripts(subscripts.data()), 0) << item;
    EXPECT_EQ(subscripts[15], -1);
    EXPECT_EQ(mappingOf(*service)->getInterfaceSubscripts(subscripts.data()), 0);
    EXPECT_EQ(mappingOf(*service)->getInterfaceSubscripts(nullptr), 0);
    EXPECT_EQ(mappingOf(*service)->getDataItemSubscripts(nullptr), 0);
  }
}

TEST(Mapping, TellsSpecialSourcesExactly) {
  const struct {
    const char* item;
    int type;
  } rows[] = {{"$command_line", 1}, {"$return_code", 2}, {"$stdin", 3},
              {"$stdout", 4},       {"A.B", 0},          {"", 0},
              {"$STDIN", 0},        {"$stdin ", 0},      {"$other", 0}};
  for (const auto& row : rows) {
    const auto service = serviceWithMapping("item='" + std::string(row.item) + "'");
    EXPECT_EQ(mappingOf(*service)->getType(), row.type) << row.item;
    EXPECT_EQ(mappingOf(*service)->getDataItem(), nullptr);
  }
}

TEST(Mapping, QualifiesInCobolsOrder) {
  const struct {
    const char* item;
    const char* name;
  } rows[] = {{"A.B.C", "C of B of A"}, {"A.B(1).C", "B of A"}, {"A", "A"}, {"", ""}, {"A.", "A"},
              {"A..B", "B of  of A"}};
  for (const auto& row : rows) {
    const auto service = serviceWithMapping("item='" + std::string(row.item) + "'");
    EXPECT_EQ(mappingOf(*service)->getFullyQualifiedName(), row.name) << row.item;
  }
}

// A service of the program in the file `dictionary`, with one mapping.
auto mappedTo(const std::string& item, const std::string& dictionary) {
  return parseService(test::parameterDocument(as::namespaces::java.uri,
                                              "<parameter><mappings><mapping item='" + item +
                                                  "'/></mappings></parameter>",
                                              "", dictionary),
                      true);
}

TEST(Mapping, FindsItsItemInTheProgram) {
  const test::TempDirectory directory;
  const std::string file = directory.write("PAY.xml", test::payProgram());
  const struct {
    const char* item;
    const char* name;
  } rows[] = {
      {"REQ.LINE.CELL(*,2)", "CELL"}, {"REQ", "REQ"}, {"REQ.NONE", ""}, {"ID", ""}, {"$stdin", ""}};
  for (const auto& row : rows) {
    const auto service = mappedTo(row.item, file);
    as::IDataItem* const item = mappingOf(*service)->getDataItem();
    EXPECT_EQ(item == nullptr ? "" : item->getName(), row.name) << row.item;
  }
}

// No program has such items, but a document may.
TEST(Mapping, ToASpecialSourceFindsNoItemThatIsCalledLikeIt) {
  const test::TempDirectory directory;
  const std::string file = directory.write(
      "PAY.xml", test::dictionaryOf("<numeric name='$stdin'/><numeric name='$other'/>"));
  const struct {
    const char* item;
    bool isFound;
  } rows[] = {{"$stdin", false}, {"$stdin(1)", true}, {"$other", true}};
  for (const auto& row : rows) {
    const auto service = mappedTo(row.item, file);
    EXPECT_EQ(mappingOf(*service)->getDataItem() != nullptr, row.isFound) << row.item;
  }
}

TEST(HiddenParameter, ReadsAndWritesItsValue) {
  const auto service = parsedJava("");
  as::IHiddenParameter* const hidden = operationOf(*service)->addHiddenParameter(nullptr, "x");
  EXPECT_EQ(hidden->getValue(), "");
  hidden->setValue("B\xC3\xA4r");
  EXPECT_EQ(hidden->getValue(), "B\xC3\xA4r");
  hidden->setValue(nullptr);
  EXPECT_EQ(hidden->getValue(), "");
}

// Whatever the smallest number of occurrences is, the greatest tells that there is a table.
TEST(MappingDimensions, GoByTheGreatestNumberOfOccurrences) {
  const auto program = test::parse(test::dictionaryOf(
      "<group name='G' maxOccurs='5'><group name='H' minOccurs='0' maxOccurs='10'>"
      "<numeric name='N' digits='1' minOccurs='1'/></group></group>"));
  as::IDataItem* item = test::topItem<as::IDataItem>(*program);
  for (int depth = 0; depth < 2; depth++) {
    item = test::itemOf<as::IDataItem>(as::interface_cast<as::IGroup>(item)->getChildren(), 0);
  }
  const auto service = parsedJava("<parameter name='p'/>");
  as::IMapping* const mapping = parameterOf<as::IParameter>(*service)->addMapping(item);
  EXPECT_EQ(mapping->getRawMapping(), "G.H.N(*,*)");
  EXPECT_EQ(mapping->getAttributeValue("subscript"), "*,*");
}

}  // namespace

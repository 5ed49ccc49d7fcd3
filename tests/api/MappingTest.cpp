// Tests of parameters, fields and mappings of a parsed service, and of the Java words on them.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <memory>
#include <string>

#include "support/Dictionary.h"
#include "support/JavaService.h"
#include "support/TempDirectory.h"

namespace {

using test::parseService;

// A service with one operation around `parameters`, and `definitions` of types.
std::string serviceOf(const std::string& parameters, const std::string& definitions = "",
                      const std::string& dictionary = "none.xml") {
  return test::javaService("dataDictFilename='" + dictionary + "'",
                           "<parameterTypeDefs>" + definitions +
                               "</parameterTypeDefs><operations><operation name='op'><parameters>" +
                               parameters + "</parameters></operation></operations>");
}

as::IOperation* operationOf(as::IService& service) {
  return test::itemOf<as::IOperation>(service.getOperations(), 0);
}

template <class T = as::IParameter>
T* parameterOf(as::IService& service, int index = 0) {
  return test::itemOf<T>(operationOf(service)->getParameters(), index);
}

as::IMapping* mappingOf(as::IService& service) {
  return test::itemOf<as::IMapping>(parameterOf(service)->getMappings(), 0);
}

std::unique_ptr<as::IService> serviceWithMapping(const std::string& attributes) {
  return parseService(serviceOf("<parameter name='p'><mappings><mapping " + attributes +
                                "/></mappings></parameter>"));
}

TEST(Parameter, ReadsAndWritesItsDirection) {
  const struct {
    const char* attribute;
    int direction;
  } rows[] = {{"byType='in'", 0}, {"byType='out'", 1}, {"byType='io'", 2}, {"", 2}};
  for (const auto& row : rows) {
    const auto service = parseService(serviceOf("<parameter " + std::string(row.attribute) + "/>"));
    EXPECT_EQ(parameterOf(*service)->getByType(), row.direction) << row.attribute;
  }
  const auto service = parseService(serviceOf("<parameter/>"));
  as::IParameter* const parameter = parameterOf(*service);
  const char* const words[] = {"in", "out", "io"};
  for (int direction = 0; direction < 3; direction++) {
    parameter->setByType(static_cast<as::IParameter::BY_TYPE>(direction));
    EXPECT_EQ(parameter->getAttributeValue("byType"), words[direction]);
  }
  parameter->setByType(as::IParameter::BY_IN);
  parameter->setByType(static_cast<as::IParameter::BY_TYPE>(7));
  EXPECT_EQ(parameter->getAttributeValue("byType"), "io");
}

TEST(Parameter, TakesAllButItsNameFromItsDefinition) {
  const auto service = parseService(
      serviceOf("<parameter name='own' ref='D' occurs='9'/>",
                "<parameter name='D' occurs='3' dataType='BigDecimal'><mappings><mapping item='A'/>"
                "</mappings><field name='f'/></parameter>"));
  as::IParameter* const parameter = parameterOf(*service);
  EXPECT_EQ(parameter->getName(), "own");
  EXPECT_EQ(parameter->getOccurs(), 3);
  EXPECT_EQ(parameter->getChildren()->getLength(), 1);
  EXPECT_EQ(parameter->getMappings()->getLength(), 1);
  ASSERT_NE(parameter->getReferenceType(), nullptr);
  EXPECT_EQ(parameter->getReferenceType()->getName(), "D");
  auto* const java = as::interface_cast<as::IJavaParameter>(parameter);
  EXPECT_EQ(java->getType(), as::IJavaField::JAVA_BIG_DECIMAL);
  java->setType(as::IJavaField::JAVA_INT);
  EXPECT_EQ(parameter->getAttributeValue("dataType"), "int");
  EXPECT_EQ(java->getType(), as::IJavaField::JAVA_BIG_DECIMAL);
  EXPECT_EQ(parameter->addField("g", 1), nullptr);
  const auto program = test::parse(test::payProgram());
  EXPECT_EQ(parameter->addMapping(test::topItem<as::IDataItem>(*program)), nullptr);
}

// Unknown, forward, self, and from a field to the definition around it: every accessor ends.
TEST(Parameter, ReferencesThatLeadNowhereOrBackEnd) {
  const struct {
    const char* definitions;
    bool resolved;
  } rows[] = {
      {"", false},
      {"<parameter name='D' ref='D'/>", true},
      {"<parameter name='D' ref='E'/><parameter name='E' ref='D'/>", true},
      {"<parameter name='D'><field name='f' ref='D'/></parameter>", true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.definitions);
    const auto service =
        parseService(serviceOf("<parameter name='p' ref='D' occurs='4'/>", row.definitions));
    as::IParameter* const parameter = parameterOf(*service);
    EXPECT_EQ(parameter->getReferenceType() != nullptr, row.resolved);
    EXPECT_EQ(parameter->getOccurs(), row.resolved ? 0 : 4);
    EXPECT_EQ(parameter->getMappings()->getLength(), 0);
    EXPECT_LE(parameter->getChildren()->getLength(), 1);
    EXPECT_EQ(as::interface_cast<as::IJavaParameter>(parameter)->getType(),
              as::IJavaField::JAVA_SHORT);
  }
}

TEST(Parameter, QualifiedNameJoinsNamesWithoutASeparator) {
  const auto service = parseService(
      serviceOf("<parameter name='p'><field name='f1'><field name='f2'/></field></parameter>",
                "<parameter name='D'><field name='x'/></parameter>"));
  auto* const outer = test::itemOf<as::IField>(parameterOf(*service)->getChildren(), 0);
  EXPECT_EQ(test::itemOf<as::IField>(outer->getChildren(), 0)->getQualifiedName(), "oppf1f2");
  EXPECT_EQ(parameterOf(*service)->getQualifiedName(), "opp");
  auto* const definition = test::itemOf<as::IParameter>(service->getParameterTypeDefs(), 0);
  EXPECT_EQ(test::itemOf<as::IField>(definition->getChildren(), 0)->getQualifiedName(), "Dx");
}

TEST(Parameter, AddsFieldsAndMappingsWhereTheSchemaWantsThem) {
  const auto service = parseService(serviceOf("<parameter name='p'><field name='f'/></parameter>"));
  const auto program = test::parse(test::payProgram());
  as::IParameter* const parameter = parameterOf(*service);
  EXPECT_EQ(parameter->addMapping(nullptr), nullptr);
  ASSERT_NE(parameter->addMapping(test::topItem<as::IDataItem>(*program)), nullptr);
  as::IField* const field = parameter->addField("g", 2);
  EXPECT_EQ(field->getOccurs(), 2);
  EXPECT_TRUE(parameter->hasChildren());
  const auto again = parseService(as::CAgentServicesFactory::SerializeToString(service.get()));
  EXPECT_EQ(parameterOf(*again)->getChildren()->getLength(), 2);
  EXPECT_EQ(mappingOf(*again)->getRawMapping(), "WS-COUNT");
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

TEST(Mapping, FindsItsItemInTheProgram) {
  const test::TempDirectory directory;
  const std::string file = directory.write("PAY.xml", test::payProgram());
  const struct {
    const char* item;
    const char* name;
  } rows[] = {
      {"REQ.LINE.CELL(*,2)", "CELL"}, {"REQ", "REQ"}, {"REQ.NONE", ""}, {"ID", ""}, {"$stdin", ""}};
  for (const auto& row : rows) {
    const auto service =
        parseService(serviceOf("<parameter><mappings><mapping item='" + std::string(row.item) +
                                   "'/></mappings></parameter>",
                               "", file),
                     true);
    as::IDataItem* const item = mappingOf(*service)->getDataItem();
    EXPECT_EQ(item == nullptr ? "" : item->getName(), row.name) << row.item;
  }
}

TEST(HiddenParameter, ReadsAndWritesItsValue) {
  const auto service = parseService(serviceOf(""));
  as::IHiddenParameter* const hidden = operationOf(*service)->addHiddenParameter(nullptr, "x");
  EXPECT_EQ(hidden->getValue(), "");
  hidden->setValue("B\xC3\xA4r");
  EXPECT_EQ(hidden->getValue(), "B\xC3\xA4r");
  hidden->setValue(nullptr);
  EXPECT_EQ(hidden->getValue(), "");
}

TEST(JavaService, ReadsAndWritesTransactionTypes) {
  const char* const words[] = {"notSupported", "mandatory",   "never",
                               "requires",     "requiresNew", "supports"};
  const auto service = parseService(serviceOf(""));
  auto* const operation = as::interface_cast<as::IJavaOperation>(operationOf(*service));
  ASSERT_NE(operation, nullptr);
  EXPECT_EQ(operation->getTransactionType(), as::IJavaOperation::TRANS_NEVER) << "absent";
  for (int type = 0; type < 6; type++) {
    operation->setTransactionType(static_cast<as::IJavaOperation::TRANS_TYPE>(type));
    EXPECT_EQ(operation->getAttributeValue("transactionType"), words[type]);
    EXPECT_EQ(operation->getTransactionType(), type);
  }
  operation->setTransactionType(static_cast<as::IJavaOperation::TRANS_TYPE>(9));
  EXPECT_EQ(operation->getAttributeValue("transactionType"), "never");
}

TEST(JavaService, ReadsAndWritesDataTypes) {
  const char* const words[] = {"byte",   "short",      "int",    "long",      "float",
                               "double", "BigDecimal", "String", "byteArray", "BigInteger"};
  const auto service = parseService(serviceOf("<parameter><field/></parameter>"));
  auto* const field = test::itemOf<as::IJavaParameter>(parameterOf(*service)->getChildren(), 0);
  ASSERT_NE(field, nullptr) << "fields are Java ones, too";
  EXPECT_EQ(field->getType(), as::IJavaField::JAVA_SHORT) << "absent";
  for (int type = 0; type < 10; type++) {
    field->setType(static_cast<as::IJavaField::TYPE>(type));
    EXPECT_EQ(field->getAttributeValue("dataType"), words[type]);
    EXPECT_EQ(field->getType(), type);
  }
  field->setType(static_cast<as::IJavaField::TYPE>(10));
  EXPECT_EQ(field->getAttributeValue("dataType"), "BigInteger");
}

TEST(JavaService, CastsToNoOtherFlavour) {
  const auto service = parseService(serviceOf("<parameter/>"));
  EXPECT_EQ(as::interface_cast<as::IWebService>(service.get()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IDotNET>(service.get()), nullptr);
  EXPECT_EQ(parameterOf<as::IWSParameter>(*service), nullptr);
  EXPECT_EQ(parameterOf<as::ICOMParameter>(*service), nullptr);
  EXPECT_EQ(parameterOf<as::IDotNETParameter>(*service), nullptr);
  EXPECT_NE(parameterOf<as::IJavaField>(*service), nullptr);
}

}  // namespace

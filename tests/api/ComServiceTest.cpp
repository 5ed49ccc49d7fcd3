// Tests of what a COM service has of its own: the data types of parameters and fields, and the mark
// of the return value.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::classOf;
using test::itemOf;
using test::operationOf;
using test::parameterOf;

using Type = as::ICOMField::TYPE;

std::string comDocument(const std::string& parameters, const std::string& definitions = "") {
  return test::parameterDocument(as::namespaces::com.uri, parameters, definitions);
}

std::unique_ptr<as::IService> comService(const std::string& parameters,
                                         const std::string& definitions = "") {
  return test::parseService(comDocument(parameters, definitions));
}

as::ICOMParameter* comParameter(as::IService& service, int index = 0) {
  return parameterOf<as::ICOMParameter>(service, index);
}

// The first field of the first parameter.
as::ICOMParameter* comField(as::IService& service) {
  return itemOf<as::ICOMParameter>(comParameter(service)->getChildren(), 0);
}

constexpr struct {
  const char* word;
  Type type;    // What the word is written for,
  Type readAs;  // and what it reads as.
} dataTypes[] = {
    {"byte", as::ICOMField::COM_BYTE, as::ICOMField::COM_BYTE},
    {"short", as::ICOMField::COM_SHORT, as::ICOMField::COM_SHORT},
    {"int", as::ICOMField::COM_INT, as::ICOMField::COM_INT},
    {"long", as::ICOMField::COM_LONG, as::ICOMField::COM_LONG},
    {"float", as::ICOMField::COM_FLOAT, as::ICOMField::COM_FLOAT},
    {"double", as::ICOMField::COM_DOUBLE, as::ICOMField::COM_DOUBLE},
    {"currency", as::ICOMField::COM_CURRENCY, as::ICOMField::COM_CURRENCY},
    {"string", as::ICOMField::COM_STRING, as::ICOMField::COM_STRING},
    {"date", as::ICOMField::COM_DATE, as::ICOMField::COM_DATE},
    {"object", as::ICOMField::COM_OBJECT, as::ICOMField::COM_STRING},
};

TEST(ComParameter, ReadsItsDataType) {
  for (const auto& row : dataTypes) {
    const std::string attribute = "dataType='" + std::string(row.word) + "'";
    const auto service =
        comService("<parameter " + attribute + "><field " + attribute + "/></parameter>");
    EXPECT_EQ(comParameter(*service)->getType(), row.readAs) << row.word;
    EXPECT_EQ(comField(*service)->getType(), row.readAs) << row.word;
  }
}

TEST(ComParameter, WritesItsDataType) {
  for (const auto& row : dataTypes) {
    const auto service = comService("<parameter dataType='float'><field/></parameter>");
    comParameter(*service)->setType(row.type);
    comField(*service)->setType(row.type);
    EXPECT_EQ(comParameter(*service)->getAttributeValue("dataType"), row.word);
    EXPECT_EQ(comParameter(*service)->getType(), row.readAs) << row.word;
    EXPECT_EQ(comField(*service)->getAttributeValue("dataType"), row.word);
    EXPECT_EQ(comField(*service)->getType(), row.readAs) << row.word;
  }
}

TEST(ComParameter, WithoutADataTypeIsAnObject) {
  const auto service = comService("<parameter><field/></parameter>");
  EXPECT_EQ(comParameter(*service)->getType(), as::ICOMField::COM_OBJECT);
  EXPECT_EQ(comField(*service)->getType(), as::ICOMField::COM_OBJECT);
}

TEST(ComParameter, WritesStringForANumberThatIsNoType) {
  for (const int number : {10, 12, -1, 1000}) {
    const auto service = comService("<parameter dataType='byte'/>");
    comParameter(*service)->setType(static_cast<Type>(number));
    EXPECT_EQ(comParameter(*service)->getAttributeValue("dataType"), "string") << number;
    EXPECT_EQ(comParameter(*service)->getType(), as::ICOMField::COM_STRING) << number;
  }
}

TEST(ComParameter, DataTypesThatAreNoneAreRefused) {
  for (const char* const word : {"", "Byte", "INT", " int", "integer", "String", "BigDecimal"}) {
    const std::string document = comDocument("<parameter dataType='" + std::string(word) + "'/>");
    EXPECT_EQ(test::serviceOutcomeOf(document).result, test::Result::parseException) << word;
  }
}

// References to type definitions.

TEST(ComParameterReference, ReadsTheTypeOfItsDefinition) {
  for (const auto& row : dataTypes) {
    const auto service = comService(
        "<parameter ref='D' dataType='float'><field ref='D'/></parameter>"
        "<parameter dataType='int'><field ref='D' dataType='double'/></parameter>",
        "<parameter name='D' dataType='" + std::string(row.word) + "'/>");
    EXPECT_EQ(comParameter(*service)->getType(), row.readAs) << row.word;
    auto* const field = itemOf<as::ICOMField>(comParameter(*service, 1)->getChildren(), 0);
    EXPECT_EQ(field->getType(), row.readAs) << row.word;
    EXPECT_EQ(comParameter(*service, 1)->getType(), as::ICOMField::COM_INT);
  }
}

TEST(ComParameterReference, WritesTheTypeToItself) {
  const auto service = comService("<parameter ref='D'/>", "<parameter name='D' dataType='date'/>");
  as::ICOMParameter* const parameter = comParameter(*service);
  parameter->setType(as::ICOMField::COM_BYTE);
  EXPECT_EQ(parameter->getAttributeValue("dataType"), "byte");
  EXPECT_EQ(parameter->getType(), as::ICOMField::COM_DATE);
  auto* const definition = itemOf<as::ICOMParameter>(service->getParameterTypeDefs(), 0);
  ASSERT_NE(definition, nullptr);
  EXPECT_EQ(definition->getAttributeValue("dataType"), "date");
  definition->setType(as::ICOMField::COM_LONG);
  EXPECT_EQ(parameter->getType(), as::ICOMField::COM_LONG);
}

TEST(ComParameterReference, TypeOfADefinition) {
  const struct {
    const char* definitions;
    Type type;
  } rows[] = {
      {"<parameter name='D'/>", as::ICOMField::COM_OBJECT},
      {"<parameter name='E' dataType='date'/><parameter name='D' ref='E' dataType='int'/>",
       as::ICOMField::COM_DATE},
      {"<parameter name='D' dataType='int'/><parameter name='D' dataType='date'/>",
       as::ICOMField::COM_INT},
      {"", as::ICOMField::COM_FLOAT},
      {"<parameter name='d' dataType='date'/>", as::ICOMField::COM_FLOAT},
  };
  for (const auto& row : rows) {
    const auto service = comService("<parameter ref='D' dataType='float'/>", row.definitions);
    EXPECT_EQ(comParameter(*service)->getType(), row.type) << row.definitions;
  }
}

TEST(ComParameterReference, LeavesTheReturnValueToTheParameter) {
  const auto service = comService("<parameter ref='D'/><parameter ref='E' returnParameter='1'/>",
                                  "<parameter name='D' returnParameter='1'/><parameter name='E'/>");
  EXPECT_FALSE(comParameter(*service)->isReturnParameter());
  EXPECT_TRUE(comParameter(*service, 1)->isReturnParameter());
  comParameter(*service)->setReturnParameter(true);
  EXPECT_TRUE(comParameter(*service)->isReturnParameter());
}

// The return value.

TEST(ComParameter, ReadsWhetherItIsTheReturnValue) {
  const struct {
    const char* attribute;
    bool isReturn;
  } rows[] = {
      {"", false},
      {"returnParameter='1'", true},
      {"returnParameter='0'", false},
      {"returnParameter='true'", true},
      {"returnParameter='TRUE'", true},
      {"returnParameter='tRuE'", true},
      {"returnParameter='false'", false},
      {"returnParameter='False'", false},
  };
  for (const auto& row : rows) {
    const std::string attribute = row.attribute;
    const auto service =
        comService("<parameter " + attribute + "><field " + attribute + "/></parameter>");
    EXPECT_EQ(comParameter(*service)->isReturnParameter(), row.isReturn) << row.attribute;
    EXPECT_EQ(comField(*service)->isReturnParameter(), row.isReturn) << row.attribute;
  }
}

TEST(ComParameter, WritesWhetherItIsTheReturnValue) {
  for (const char* const before : {"", "returnParameter='true'", "returnParameter='0'"}) {
    const auto service = comService("<parameter " + std::string(before) + "><field/></parameter>");
    for (as::ICOMParameter* const item : {comParameter(*service), comField(*service)}) {
      for (const bool isReturn : {true, false}) {
        item->setReturnParameter(isReturn);
        EXPECT_EQ(item->getAttributeValue("returnParameter"), isReturn ? "1" : "0");
        EXPECT_EQ(item->isReturnParameter(), isReturn);
      }
    }
  }
}

TEST(ComParameter, LeavesTheFlagsOfOthersAlone) {
  const auto service = comService("<parameter returnParameter='1'/><parameter/>");
  comParameter(*service, 1)->setReturnParameter(true);
  EXPECT_TRUE(comParameter(*service, 0)->isReturnParameter());
  EXPECT_TRUE(comParameter(*service, 1)->isReturnParameter());
}

// The objects.

TEST(ComService, HasObjectsOfItsClasses) {
  const auto service =
      comService("<parameter><mappings><mapping item='A'/></mappings><field/></parameter>",
                 "<parameter name='D'/>");
  EXPECT_EQ(classOf(service.get()), "CServiceImpl");
  EXPECT_EQ(classOf(operationOf(*service)), "COperationImpl");
  EXPECT_EQ(classOf(comParameter(*service)), "CCOMParameterImpl");
  EXPECT_EQ(classOf(comField(*service)), "CCOMParameterImpl");
  EXPECT_EQ(classOf(service->getParameterTypeDefs()->getItem(0)), "CCOMParameterImpl");
  EXPECT_EQ(classOf(comParameter(*service)->getMappings()->getItem(0)), "CMappingImpl");
}

TEST(ComService, ParametersAndFieldsHaveEveryInterfaceOfOne) {
  const auto service = comService("<parameter><field/></parameter>");
  for (as::ICOMParameter* const parameter : {comParameter(*service), comField(*service)}) {
    ASSERT_NE(parameter, nullptr);
    as::IElement* const element = parameter;
    EXPECT_EQ(as::interface_cast<as::ICOMField>(element), parameter);
    EXPECT_EQ(as::interface_cast<as::IParameter>(element), parameter);
    EXPECT_EQ(as::interface_cast<as::IField>(element), parameter);
    EXPECT_EQ(as::interface_cast<as::ICOMParameter>(as::interface_cast<as::ICOMField>(element)),
              parameter);
  }
}

TEST(ComService, CastsToNoOtherFlavour) {
  const auto service = comService("<parameter/>");
  EXPECT_EQ(as::interface_cast<as::IWebService>(service.get()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IDotNET>(service.get()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IWSOperation>(operationOf(*service)), nullptr);
  EXPECT_EQ(as::interface_cast<as::IJavaOperation>(operationOf(*service)), nullptr);
  EXPECT_EQ(as::interface_cast<as::IDotNETOperation>(operationOf(*service)), nullptr);
  EXPECT_EQ(parameterOf<as::IWSField>(*service), nullptr);
  EXPECT_EQ(parameterOf<as::IJavaField>(*service), nullptr);
  EXPECT_EQ(parameterOf<as::IDotNETField>(*service), nullptr);
}

TEST(ComService, AddsComParametersAndFields) {
  const auto service = comService("");
  auto* const parameter = as::interface_cast<as::ICOMParameter>(
      operationOf(*service)->addParameter(as::IParameter::BY_OUT, "p", 1));
  ASSERT_NE(parameter, nullptr);
  auto* const field = as::interface_cast<as::ICOMParameter>(parameter->addField("f", 2));
  ASSERT_NE(field, nullptr);
  for (as::ICOMParameter* const added : {parameter, field}) {
    EXPECT_EQ(added->getType(), as::ICOMField::COM_OBJECT);
    EXPECT_FALSE(added->isReturnParameter());
    EXPECT_EQ(added->getAttributeValue("returnParameter"), "");
  }
}

TEST(ComService, SurvivesWritingAndReading) {
  for (const auto& row : dataTypes) {
    const auto service = comService("<parameter name='first'/>");
    auto* const parameter = as::interface_cast<as::ICOMParameter>(
        operationOf(*service)->addParameter(as::IParameter::BY_OUT, "second", 1));
    parameter->setType(row.type);
    parameter->setReturnParameter(true);
    auto* const field = as::interface_cast<as::ICOMParameter>(parameter->addField("f", 2));
    field->setType(row.type);
    field->setReturnParameter(false);
    const auto again = test::writtenAndRead(*service);
    EXPECT_EQ(comParameter(*again)->getType(), as::ICOMField::COM_OBJECT);
    EXPECT_FALSE(comParameter(*again)->isReturnParameter());
    EXPECT_EQ(comParameter(*again, 1)->getType(), row.readAs) << row.word;
    EXPECT_TRUE(comParameter(*again, 1)->isReturnParameter());
    auto* const fieldAgain = itemOf<as::ICOMParameter>(comParameter(*again, 1)->getChildren(), 0);
    EXPECT_EQ(fieldAgain->getName(), "f");
    EXPECT_EQ(fieldAgain->getType(), row.readAs) << row.word;
    EXPECT_FALSE(fieldAgain->isReturnParameter());
  }
}

}  // namespace

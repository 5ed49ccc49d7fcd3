// Tests of what a .NET service has of its own: the data types of parameters and fields, and the
// types by which its objects are told from those of other flavours.
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

using Type = as::IDotNETField::TYPE;

std::string dotNetDocument(const std::string& parameters, const std::string& definitions = "") {
  return test::parameterDocument(as::namespaces::dotnet.uri, parameters, definitions);
}

std::unique_ptr<as::IService> dotNetService(const std::string& parameters,
                                            const std::string& definitions = "") {
  return test::parseService(dotNetDocument(parameters, definitions));
}

as::IDotNETParameter* dotNetParameter(as::IService& service, int index = 0) {
  return parameterOf<as::IDotNETParameter>(service, index);
}

// The first field of the first parameter.
as::IDotNETParameter* dotNetField(as::IService& service) {
  return itemOf<as::IDotNETParameter>(dotNetParameter(service)->getChildren(), 0);
}

constexpr struct {
  const char* word;
  Type type;
} dataTypes[] = {
    {"Byte", as::IDotNETField::NET_BYTE},       {"SByte", as::IDotNETField::NET_SBYTE},
    {"Int16", as::IDotNETField::NET_INT16},     {"Int32", as::IDotNETField::NET_INT32},
    {"Int64", as::IDotNETField::NET_INT64},     {"UInt16", as::IDotNETField::NET_UINT16},
    {"UInt32", as::IDotNETField::NET_UINT32},   {"UInt64", as::IDotNETField::NET_UINT64},
    {"Single", as::IDotNETField::NET_SINGLE},   {"Double", as::IDotNETField::NET_DOUBLE},
    {"Decimal", as::IDotNETField::NET_DECIMAL}, {"String", as::IDotNETField::NET_STRING},
};

TEST(DotNetParameter, ReadsItsDataType) {
  for (const auto& row : dataTypes) {
    const std::string attribute = "dataType='" + std::string(row.word) + "'";
    const auto service =
        dotNetService("<parameter " + attribute + "><field " + attribute + "/></parameter>");
    for (as::IDotNETParameter* const item : {dotNetParameter(*service), dotNetField(*service)}) {
      EXPECT_EQ(item->getType(), row.type) << row.word;
      EXPECT_EQ(item->getTypeToString(), row.word);
    }
  }
}

TEST(DotNetParameter, WritesItsDataType) {
  for (const auto& row : dataTypes) {
    const auto service = dotNetService("<parameter dataType='Single'><field/></parameter>");
    for (as::IDotNETParameter* const item : {dotNetParameter(*service), dotNetField(*service)}) {
      item->setType(row.type);
      EXPECT_EQ(item->getAttributeValue("dataType"), row.word);
      EXPECT_EQ(item->getType(), row.type) << row.word;
      EXPECT_EQ(item->getTypeToString(), row.word);
    }
  }
}

TEST(DotNetParameter, WithoutADataTypeIsAByte) {
  const auto service = dotNetService("<parameter><field/></parameter>");
  for (as::IDotNETParameter* const item : {dotNetParameter(*service), dotNetField(*service)}) {
    EXPECT_EQ(item->getType(), as::IDotNETField::NET_BYTE);
    EXPECT_EQ(item->getTypeToString(), "Byte");
    EXPECT_EQ(item->getAttributeValue("dataType"), "");
  }
}

TEST(DotNetParameter, IsTheSameSeenAsAField) {
  const auto service = dotNetService("<parameter dataType='Int64'/>");
  auto* const field = parameterOf<as::IDotNETField>(*service);
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(field->getType(), as::IDotNETField::NET_INT64);
  EXPECT_EQ(field->getTypeToString(), "Int64");
  field->setType(as::IDotNETField::NET_UINT16);
  EXPECT_EQ(dotNetParameter(*service)->getType(), as::IDotNETField::NET_UINT16);
}

TEST(DotNetParameter, DataTypesThatAreNoneAreRefused) {
  for (const char* const word : {"", "byte", "int32", "INT32", " Int32", "Int", "string"}) {
    const std::string document =
        dotNetDocument("<parameter dataType='" + std::string(word) + "'/>");
    EXPECT_EQ(test::serviceOutcomeOf(document).result, test::Result::parseException) << word;
  }
}

TEST(DotNetParameterDeathTest, ANumberThatIsNoTypeEndsTheProcess) {
  const auto service = dotNetService("<parameter ref='D'><field/></parameter><parameter/>",
                                     "<parameter name='D'><field/></parameter>");
  const std::string message =
      "DotnetParameterImpl:68: static const XMLCh\\* "
      "CDotNETParameterImpl::DataTypeToString\\(as::IDotNETField::TYPE\\): "
      "Assertion `false' failed";
  for (const int number : {12, -1}) {
    const Type type = static_cast<Type>(number);
    EXPECT_DEATH(dotNetParameter(*service)->setType(type), message) << number;
    EXPECT_DEATH(dotNetParameter(*service, 1)->setType(type), message) << number;
    EXPECT_DEATH(dotNetField(*service)->setType(type), message) << number;
  }
}

// References to type definitions.

TEST(DotNetParameterReference, ReadsTheTypeOfItsDefinition) {
  for (const auto& row : dataTypes) {
    const auto service = dotNetService(
        "<parameter ref='D' dataType='Int32'/>"
        "<parameter dataType='Int16'><field ref='D' dataType='Int32'/></parameter>",
        "<parameter name='D' dataType='" + std::string(row.word) + "'/>");
    EXPECT_EQ(dotNetParameter(*service)->getType(), row.type) << row.word;
    EXPECT_EQ(dotNetParameter(*service)->getTypeToString(), row.word);
    auto* const field = itemOf<as::IDotNETField>(dotNetParameter(*service, 1)->getChildren(), 0);
    EXPECT_EQ(field->getType(), row.type) << row.word;
    EXPECT_EQ(field->getTypeToString(), row.word);
    EXPECT_EQ(dotNetParameter(*service, 1)->getType(), as::IDotNETField::NET_INT16);
  }
}

TEST(DotNetParameterReference, WritesTheTypeToItself) {
  const auto service =
      dotNetService("<parameter ref='D'/>", "<parameter name='D' dataType='Decimal'/>");
  as::IDotNETParameter* const parameter = dotNetParameter(*service);
  parameter->setType(as::IDotNETField::NET_STRING);
  EXPECT_EQ(parameter->getAttributeValue("dataType"), "String");
  EXPECT_EQ(parameter->getType(), as::IDotNETField::NET_DECIMAL);
  EXPECT_EQ(parameter->getTypeToString(), "Decimal");
  auto* const definition = itemOf<as::IDotNETParameter>(service->getParameterTypeDefs(), 0);
  ASSERT_NE(definition, nullptr);
  EXPECT_EQ(definition->getAttributeValue("dataType"), "Decimal");
  definition->setType(as::IDotNETField::NET_DOUBLE);
  EXPECT_EQ(parameter->getType(), as::IDotNETField::NET_DOUBLE);
}

TEST(DotNetParameterReference, TypeOfADefinition) {
  const struct {
    const char* definitions;
    Type type;
  } rows[] = {
      {"<parameter name='D'/>", as::IDotNETField::NET_BYTE},
      {"<parameter name='E' dataType='Decimal'/><parameter name='D' ref='E' dataType='Int16'/>",
       as::IDotNETField::NET_DECIMAL},
      {"<parameter name='D' dataType='Int16'/><parameter name='D' dataType='Decimal'/>",
       as::IDotNETField::NET_INT16},
      {"", as::IDotNETField::NET_SINGLE},
      {"<parameter name='d' dataType='Decimal'/>", as::IDotNETField::NET_SINGLE},
  };
  for (const auto& row : rows) {
    const auto service = dotNetService("<parameter ref='D' dataType='Single'/>", row.definitions);
    EXPECT_EQ(dotNetParameter(*service)->getType(), row.type) << row.definitions;
  }
}

// The objects.

TEST(DotNetService, HasObjectsOfItsClasses) {
  const auto service =
      dotNetService("<parameter><mappings><mapping item='A'/></mappings><field/></parameter>",
                    "<parameter name='D'/>");
  EXPECT_EQ(classOf(service.get()), "CDotNETImpl");
  EXPECT_EQ(classOf(operationOf(*service)), "CDotNETOperationImpl");
  EXPECT_EQ(classOf(dotNetParameter(*service)), "CDotNETParameterImpl");
  EXPECT_EQ(classOf(dotNetField(*service)), "CDotNETParameterImpl");
  EXPECT_EQ(classOf(service->getParameterTypeDefs()->getItem(0)), "CDotNETParameterImpl");
  EXPECT_EQ(classOf(dotNetParameter(*service)->getMappings()->getItem(0)), "CMappingImpl");
}

TEST(DotNetService, CastsToItsInterface) {
  const auto service = dotNetService("");
  auto* const dotNet = as::interface_cast<as::IDotNET>(service.get());
  ASSERT_NE(dotNet, nullptr);
  EXPECT_EQ(as::interface_cast<as::IService>(dotNet), service.get());
  EXPECT_EQ(dotNet->getDDFilename(), "PAY.xml");
}

TEST(DotNetService, OperationsCastToTheirInterface) {
  const auto service = dotNetService("");
  as::IOperation* const added = service->addOperation("added", nullptr);
  for (as::IOperation* const operation : {operationOf(*service), added}) {
    auto* const dotNet = as::interface_cast<as::IDotNETOperation>(operation);
    ASSERT_NE(dotNet, nullptr);
    EXPECT_EQ(as::interface_cast<as::IOperation>(dotNet), operation);
    EXPECT_EQ(dotNet->getName(), operation->getName());
  }
}

TEST(DotNetService, ParametersAndFieldsHaveEveryInterfaceOfOne) {
  const auto service = dotNetService("<parameter><field/></parameter>");
  for (as::IDotNETParameter* const parameter : {dotNetParameter(*service), dotNetField(*service)}) {
    ASSERT_NE(parameter, nullptr);
    as::IElement* const element = parameter;
    EXPECT_EQ(as::interface_cast<as::IDotNETField>(element), parameter);
    EXPECT_EQ(as::interface_cast<as::IParameter>(element), parameter);
    EXPECT_EQ(as::interface_cast<as::IField>(element), parameter);
    EXPECT_EQ(
        as::interface_cast<as::IDotNETParameter>(as::interface_cast<as::IDotNETField>(element)),
        parameter);
  }
}

TEST(DotNetService, CastsToNoOtherFlavour) {
  const auto service = dotNetService("<parameter/>");
  EXPECT_EQ(as::interface_cast<as::IWebService>(service.get()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IWSOperation>(operationOf(*service)), nullptr);
  EXPECT_EQ(as::interface_cast<as::IJavaOperation>(operationOf(*service)), nullptr);
  EXPECT_EQ(parameterOf<as::IWSField>(*service), nullptr);
  EXPECT_EQ(parameterOf<as::IJavaField>(*service), nullptr);
  EXPECT_EQ(parameterOf<as::ICOMField>(*service), nullptr);
}

// The namespace makes the flavour; the word is only read.
TEST(DotNetService, IsOneByItsNamespace) {
  const auto service = dotNetService("");
  EXPECT_EQ(service->getImplementation(), as::IService::TYPE_WS);
  EXPECT_NE(as::interface_cast<as::IDotNET>(service.get()), nullptr);
}

TEST(DotNetService, AddsDotNetParametersAndFields) {
  const auto service = dotNetService("");
  auto* const parameter = as::interface_cast<as::IDotNETParameter>(
      operationOf(*service)->addParameter(as::IParameter::BY_IN, "p", 1));
  ASSERT_NE(parameter, nullptr);
  auto* const field = as::interface_cast<as::IDotNETParameter>(parameter->addField("f", 2));
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(parameter->getType(), as::IDotNETField::NET_BYTE);
  EXPECT_EQ(field->getType(), as::IDotNETField::NET_BYTE);
}

TEST(DotNetService, SurvivesWritingAndReading) {
  for (const auto& row : dataTypes) {
    const auto service = dotNetService("<parameter name='first'/>");
    auto* const parameter = as::interface_cast<as::IDotNETParameter>(
        operationOf(*service)->addParameter(as::IParameter::BY_IN, "second", 1));
    parameter->setType(row.type);
    as::interface_cast<as::IDotNETParameter>(parameter->addField("f", 2))->setType(row.type);
    const auto again = test::writtenAndRead(*service);
    EXPECT_EQ(classOf(again.get()), "CDotNETImpl");
    EXPECT_EQ(dotNetParameter(*again)->getType(), as::IDotNETField::NET_BYTE);
    EXPECT_EQ(dotNetParameter(*again, 1)->getType(), row.type) << row.word;
    auto* const field = itemOf<as::IDotNETParameter>(dotNetParameter(*again, 1)->getChildren(), 0);
    EXPECT_EQ(field->getName(), "f");
    EXPECT_EQ(field->getType(), row.type) << row.word;
  }
}

}  // namespace

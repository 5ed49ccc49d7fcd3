// Tests of the root of a service definition: its attributes, its flavour and its lists.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::itemOf;
using test::javaService;
using test::labelOf;
using test::newService;
using test::parseService;
using test::payService;
using test::Result;
using test::serviceOutcomeOf;
using test::written;
using test::writtenAndRead;

struct TextAttribute {
  const char* attribute;
  std::string (as::IService::*get)();
  void (as::IService::*set)(const char*);
};

void PrintTo(const TextAttribute& attribute, std::ostream* out) { *out << attribute.attribute; }

class ServiceText : public testing::TestWithParam<TextAttribute> {};

TEST_P(ServiceText, IsTheAttribute) {
  const auto service =
      parseService(javaService("name='A' dataDictFilename='A' exitProgramName='A'", ""));
  ((*service).*GetParam().set)("B");
  EXPECT_EQ(((*service).*GetParam().get)(), "B");
  for (const char* const attribute : {"name", "dataDictFilename", "exitProgramName"}) {
    EXPECT_EQ(service->getAttributeValue(attribute),
              attribute == std::string(GetParam().attribute) ? "B" : "A")
        << attribute;
  }
}

TEST_P(ServiceText, IsReadFromTheDocument) {
  const auto service =
      parseService(javaService(std::string(GetParam().attribute) + "='Pay &amp; Go \xC3\xA4'", ""));
  EXPECT_EQ(((*service).*GetParam().get)(), "Pay & Go \xC3\xA4");
}

TEST_P(ServiceText, IsEmptyWhenAbsent) {
  const auto service = parseService(javaService("", ""));
  EXPECT_EQ(((*service).*GetParam().get)(), "");
}

TEST_P(ServiceText, IsAddedWhenAbsent) {
  const auto service = parseService(javaService("", ""));
  ((*service).*GetParam().set)("B");
  EXPECT_EQ(((*service).*GetParam().get)(), "B");
}

TEST_P(ServiceText, NullIsWrittenAsEmpty) {
  const auto service = parseService(javaService(std::string(GetParam().attribute) + "='A'", ""));
  ((*service).*GetParam().set)(nullptr);
  EXPECT_EQ(((*service).*GetParam().get)(), "");
  const std::string text = written(*service);
  EXPECT_NE(text.find(" " + std::string(GetParam().attribute) + "=\"\""), std::string::npos)
      << text;
}

TEST_P(ServiceText, SurvivesWritingAndReading) {
  const auto service = parseService(javaService("", ""));
  ((*service).*GetParam().set)("<\"Pay\" & 'Go' \xE2\x82\xAC>");
  const auto again = writtenAndRead(*service);
  EXPECT_EQ(((*again).*GetParam().get)(), "<\"Pay\" & 'Go' \xE2\x82\xAC>");
}

INSTANTIATE_TEST_SUITE_P(
    Attributes, ServiceText,
    testing::Values(TextAttribute{"name", &as::IService::getName, &as::IService::setName},
                    TextAttribute{"dataDictFilename", &as::IService::getDDFilename,
                                  &as::IService::setDDFilename},
                    TextAttribute{"exitProgramName", &as::IService::getExitProgramName,
                                  &as::IService::setExitProgramName}),
    [](const auto& value) { return std::string(value.param.attribute); });

TEST(Service, TextIsACopy) {
  const auto service = parseService(javaService("name='A'", ""));
  const std::string before = service->getName();
  service->setName("B");
  EXPECT_EQ(before, "A");
}

// The flavour.

struct Implementation {
  const char* label;
  const char* attributes;
  int type;
};

void PrintTo(const Implementation& implementation, std::ostream* out) {
  *out << implementation.label;
}

class ServiceImplementation : public testing::TestWithParam<Implementation> {};

TEST_P(ServiceImplementation, IsTheWord) {
  const auto service = parseService(javaService(GetParam().attributes, ""));
  EXPECT_EQ(service->getImplementation(), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(Words, ServiceImplementation,
                         testing::Values(Implementation{"ws", "implementation='ws'", 0},
                                         Implementation{"java", "implementation='java'", 1},
                                         Implementation{"com", "implementation='com'", 2},
                                         Implementation{"xd", "implementation='xd'", 3},
                                         Implementation{"dotnet", "implementation='dotnet'", 4},
                                         Implementation{"absent", "", 0}),
                         labelOf<Implementation>);

class ServiceUnknownImplementation : public testing::TestWithParam<const char*> {};

TEST_P(ServiceUnknownImplementation, IsRefused) {
  const std::string document = javaService("implementation='" + std::string(GetParam()) + "'", "");
  EXPECT_EQ(serviceOutcomeOf(document).result, Result::parseException);
}

INSTANTIATE_TEST_SUITE_P(Words, ServiceUnknownImplementation,
                         testing::Values("", "Java", "JAVA", " java", "javas", "jav", "0", "net"));

TEST(Service, ImplementationOfANewServiceIsItsFlavour) {
  for (const test::Flavour& flavour : test::flavours::all) {
    EXPECT_EQ(newService(flavour)->getImplementation(), flavour.implementation) << flavour.label;
  }
}

// The namespace.

TEST(ServiceNamespace, OfAParsedServiceIsEmpty) {
  const auto service = parseService(payService(""));
  EXPECT_EQ(service->getNamespaceURI(), "");
  EXPECT_NE(service->getAttributeValue("xmlns"), "");
}

TEST(ServiceNamespace, OfANewServiceIsEmpty) {
  for (const test::Flavour& flavour : test::flavours::all) {
    EXPECT_EQ(newService(flavour)->getNamespaceURI(), "") << flavour.label;
  }
}

// Lists.

TEST(Service, ThatIsNewHasListsOfItsOwn) {
  const std::unique_ptr<as::IService> service = test::newService(test::flavours::java);
  const auto empty = parseService(payService(""));
  as::IList* const shared = empty->getProperties();
  for (as::IList* const list :
       {service->getProperties(), service->getParameterTypeDefs(), service->getOperations()}) {
    EXPECT_EQ(list->getLength(), 0);
    EXPECT_NE(list, shared);
  }
}

TEST(Service, PropertiesHaveNamesAndValues) {
  const auto service = parseService(
      payService("<properties><property name='A' value='1 &lt; 2'/><property name='B' value=''/>"
                 "<property name='C'/></properties>"));
  as::IList* const properties = service->getProperties();
  ASSERT_EQ(properties->getLength(), 3);
  const char* const expected[][2] = {{"A", "1 < 2"}, {"B", ""}, {"C", ""}};
  for (int i = 0; i < 3; i++) {
    auto* const property = itemOf<as::IProperty>(properties, i);
    ASSERT_NE(property, nullptr) << i;
    EXPECT_EQ(property->getName(), expected[i][0]);
    EXPECT_EQ(property->getValue(), expected[i][1]);
  }
}

TEST(Service, ParameterTypeDefinitionsAreParameters) {
  const auto service = parseService(
      payService("<parameterTypeDefs><parameter name='LINE' occurs='3'/></parameterTypeDefs>"));
  auto* const definition = itemOf<as::IParameter>(service->getParameterTypeDefs(), 0);
  ASSERT_NE(definition, nullptr);
  EXPECT_EQ(definition->getName(), "LINE");
  EXPECT_EQ(definition->getOccurs(), 3);
}

TEST(Service, OperationsAreOperations) {
  const auto service = parseService(payService("<operations><operation name='A'/></operations>"));
  auto* const operation = itemOf<as::IOperation>(service->getOperations(), 0);
  ASSERT_NE(operation, nullptr);
  EXPECT_EQ(operation->getName(), "A");
}

}  // namespace

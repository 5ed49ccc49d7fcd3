// Tests of the root of a service definition: its attributes, its lists, its program, and adding
// operations to it.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Dictionary.h"
#include "support/JavaService.h"
#include "support/TempDirectory.h"

namespace {

using test::itemOf;
using test::javaService;
using test::newServices;
using test::parseService;
using test::payProgram;
using test::payService;
using test::Result;
using test::TempDirectory;

as::IService* request(const std::string& document, bool loadProgram) {
  return newServices()->parseService("service.xml",
                                     reinterpret_cast<const unsigned char*>(document.data()),
                                     static_cast<unsigned int>(document.size()), loadProgram);
}

// What is left of `service` when it is written and read again.
std::unique_ptr<as::IService> writtenAndRead(as::IService& service) {
  return parseService(as::CAgentServicesFactory::SerializeToString(&service));
}

std::unique_ptr<as::IService> newJavaService() {
  return std::unique_ptr<as::IService>(
      as::CAgentServicesFactory::NewJavaService(test::parse(payProgram()).release()));
}

// A service whose program is read from the dictionary in the file named `file`.
std::unique_ptr<as::IService> loadedService(const std::string& file,
                                            const std::string& content = "") {
  return parseService(javaService("implementation='java' dataDictFilename='" + file + "'", content),
                      true);
}

std::vector<std::string> operationNames(as::IService& service) {
  std::vector<std::string> names;
  as::IList* const operations = service.getOperations();
  for (int i = 0; i < operations->getLength(); i++) {
    auto* const operation = itemOf<as::IOperation>(operations, i);
    names.push_back(operation == nullptr ? "(none)" : operation->getName());
  }
  return names;
}

using Names = std::vector<std::string>;

// Attributes.

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
  const std::string written = as::CAgentServicesFactory::SerializeToString(service.get());
  EXPECT_NE(written.find(" " + std::string(GetParam().attribute) + "=\"\""), std::string::npos)
      << written;
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
  const char* name;
  const char* attributes;
  int type;
};

void PrintTo(const Implementation& implementation, std::ostream* out) {
  *out << implementation.name;
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
                         [](const auto& value) { return std::string(value.param.name); });

class ServiceUnknownImplementation : public testing::TestWithParam<const char*> {};

TEST_P(ServiceUnknownImplementation, IsRefused) {
  const std::string document = javaService("implementation='" + std::string(GetParam()) + "'", "");
  EXPECT_EQ(test::outcomeOf([&] { return request(document, false); }).result,
            Result::parseException);
}

INSTANTIATE_TEST_SUITE_P(Words, ServiceUnknownImplementation,
                         testing::Values("", "Java", "JAVA", " java", "javas", "jav", "0", "net"));

TEST(Service, ImplementationOfANewServiceIsItsFlavour) {
  const auto newProgram = [] { return test::parse(payProgram()).release(); };
  std::unique_ptr<as::IService> service(as::CAgentServicesFactory::NewWebService(newProgram()));
  EXPECT_EQ(service->getImplementation(), as::IService::TYPE_WS);
  service.reset(as::CAgentServicesFactory::NewJavaService(newProgram()));
  EXPECT_EQ(service->getImplementation(), as::IService::TYPE_JAVA);
  service.reset(as::CAgentServicesFactory::NewCOMService(newProgram()));
  EXPECT_EQ(service->getImplementation(), as::IService::TYPE_COM);
  service.reset(as::CAgentServicesFactory::NewDotNETService(newProgram()));
  EXPECT_EQ(service->getImplementation(), as::IService::TYPE_DOTNET);
}

// The namespace.

TEST(ServiceNamespace, OfAParsedServiceIsEmpty) {
  const auto service = parseService(payService(""));
  EXPECT_EQ(service->getNamespaceURI(), "");
  EXPECT_NE(service->getAttributeValue("xmlns"), "");
}

TEST(ServiceNamespace, OfANewServiceIsEmpty) {
  const auto newProgram = [] { return test::parse(payProgram()).release(); };
  const std::unique_ptr<as::IService> services[] = {
      std::unique_ptr<as::IService>(as::CAgentServicesFactory::NewWebService(newProgram())),
      std::unique_ptr<as::IService>(as::CAgentServicesFactory::NewJavaService(newProgram())),
      std::unique_ptr<as::IService>(as::CAgentServicesFactory::NewCOMService(newProgram())),
      std::unique_ptr<as::IService>(as::CAgentServicesFactory::NewDotNETService(newProgram())),
  };
  for (const auto& service : services) {
    EXPECT_EQ(service->getNamespaceURI(), "") << service->getImplementation();
  }
}

// Lists.

struct Section {
  const char* element;
  const char* content;  // Two members.
  as::IList* (as::IService::*get)();
};

void PrintTo(const Section& section, std::ostream* out) { *out << section.element; }

class ServiceSection : public testing::TestWithParam<Section> {
 protected:
  static std::string section(const std::string& content) {
    const std::string element = GetParam().element;
    return "<" + element + ">" + content + "</" + element + ">";
  }
  static as::IList* listOf(as::IService& service) { return (service.*GetParam().get)(); }
};

TEST_P(ServiceSection, AbsentReadsAsEmpty) {
  const auto service = parseService(payService(""));
  ASSERT_NE(listOf(*service), nullptr);
  EXPECT_EQ(listOf(*service)->getLength(), 0);
  EXPECT_EQ(listOf(*service)->getItem(0), nullptr);
}

TEST_P(ServiceSection, AbsentIsTheListThatAllServicesShare) {
  const auto service = parseService(payService(""));
  const auto other = parseService(payService(""));
  EXPECT_EQ(listOf(*service), other->getProperties());
  EXPECT_EQ(listOf(*service), other->getParameterTypeDefs());
  EXPECT_EQ(listOf(*service), other->getOperations());
}

TEST_P(ServiceSection, WithoutMembersIsAListOfItsOwn) {
  const auto service = parseService(payService(section("")));
  const auto empty = parseService(payService(""));
  EXPECT_NE(listOf(*service), listOf(*empty));
  EXPECT_EQ(listOf(*service)->getLength(), 0);
}

TEST_P(ServiceSection, HasItsMembersInOrder) {
  const auto service = parseService(payService(section(GetParam().content)));
  as::IList* const list = listOf(*service);
  ASSERT_EQ(list->getLength(), 2);
  EXPECT_EQ(list->getItem(0)->getAttributeValue("name"), "FIRST");
  EXPECT_EQ(list->getItem(1)->getAttributeValue("name"), "SECOND");
}

TEST_P(ServiceSection, HasNothingOutsideItsMembers) {
  const auto service = parseService(payService(section(GetParam().content)));
  EXPECT_EQ(listOf(*service)->getItem(-1), nullptr);
  EXPECT_EQ(listOf(*service)->getItem(2), nullptr);
}

TEST_P(ServiceSection, IsTheSameObjectEveryTime) {
  const auto service = parseService(payService(section(GetParam().content)));
  EXPECT_EQ(listOf(*service), listOf(*service));
  EXPECT_EQ(listOf(*service)->getItem(1), listOf(*service)->getItem(1));
}

TEST_P(ServiceSection, LeavesTheOthersEmpty) {
  const auto service = parseService(payService(section(GetParam().content)));
  const int members = service->getProperties()->getLength() +
                      service->getParameterTypeDefs()->getLength() +
                      service->getOperations()->getLength();
  EXPECT_EQ(members, 2);
}

TEST_P(ServiceSection, IsThereInANewService) {
  const auto service = newJavaService();
  const auto empty = parseService(payService(""));
  EXPECT_EQ(listOf(*service)->getLength(), 0);
  EXPECT_NE(listOf(*service), listOf(*empty));
}

INSTANTIATE_TEST_SUITE_P(
    Sections, ServiceSection,
    testing::Values(Section{"properties", "<property name='FIRST'/><property name='SECOND'/>",
                            &as::IService::getProperties},
                    Section{"parameterTypeDefs",
                            "<parameter name='FIRST'/><parameter name='SECOND'/>",
                            &as::IService::getParameterTypeDefs},
                    Section{"operations", "<operation name='FIRST'/><operation name='SECOND'/>",
                            &as::IService::getOperations}),
    [](const auto& value) { return std::string(value.param.element); });

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

// The program.

TEST(ServiceProgram, IsNullWithoutLoading) {
  const auto service = parseService(payService(""));
  EXPECT_EQ(service->getProgram(), nullptr);
}

TEST(ServiceProgram, WithoutLoadingLeavesItsAttributes) {
  const auto service =
      parseService(javaService("programName='OTHER' dataDictFilename='some/where/PAY.xml'", ""));
  EXPECT_EQ(service->getDDFilename(), "some/where/PAY.xml");
  EXPECT_EQ(service->getAttributeValue("programName"), "OTHER");
}

TEST(ServiceProgram, IsTheOneOfTheDictionary) {
  const TempDirectory directory;
  const auto service = loadedService(directory.write("PAY.xml", payProgram()));
  ASSERT_NE(service->getProgram(), nullptr);
  EXPECT_EQ(service->getProgram()->getName(), "PAYROLL");
  EXPECT_EQ(service->getProgram()->getEntryPoints()->getLength(), 1);
}

TEST(ServiceProgram, IsTheSameObjectEveryTime) {
  const TempDirectory directory;
  const auto service = loadedService(directory.write("PAY.xml", payProgram()));
  EXPECT_EQ(service->getProgram(), service->getProgram());
}

TEST(ServiceProgram, NeedsItsFileNoMoreOnceLoaded) {
  std::unique_ptr<as::IService> service;
  {
    const TempDirectory directory;
    service = loadedService(directory.write("PAY.xml", payProgram()));
  }
  EXPECT_EQ(service->getProgram()->getDataItems()->getLength(), 3);
}

TEST(ServiceProgram, WritesItsName) {
  const TempDirectory directory;
  const std::string file = directory.write("PAY.xml", payProgram());
  for (const char* const attribute : {"", "programName='OTHER'"}) {
    const auto service =
        parseService(javaService("dataDictFilename='" + file + "' " + attribute, ""), true);
    EXPECT_EQ(service->getAttributeValue("programName"), "PAYROLL") << attribute;
  }
}

class ServiceDictionaryFile : public testing::TestWithParam<const char*> {};

TEST_P(ServiceDictionaryFile, IsWrittenWithoutDirectory) {
  const TempDirectory directory;
  const auto service = loadedService(directory.write(GetParam(), payProgram()));
  EXPECT_EQ(service->getDDFilename(), GetParam());
}

TEST_P(ServiceDictionaryFile, CountsFromTheCurrentDirectory) {
  const TempDirectory directory;
  const std::string file = directory.write(GetParam(), payProgram());
  const auto service = loadedService(std::filesystem::relative(file).string());
  EXPECT_EQ(service->getDDFilename(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Names, ServiceDictionaryFile,
                         testing::Values("PAY.xml", "PAY", "PAY.2.xml", ".PAY", "PAY.",
                                         "MY PAY.xml", "PAY%20.xml", "P\xC3\x84Y.xml"));

TEST(ServiceProgram, OfANewServiceIsTheOneGiven) {
  as::IProgram* const program = test::parse(payProgram(), "some/where/PAY.xml").release();
  const std::unique_ptr<as::IService> service(as::CAgentServicesFactory::NewJavaService(program));
  EXPECT_EQ(service->getProgram(), program);
  EXPECT_EQ(service->getAttributeValue("programName"), "PAYROLL");
  EXPECT_EQ(service->getDDFilename(), "PAY.xml");
}

// Adding operations.

TEST(ServiceAddOperation, AppendsLast) {
  const auto service = parseService(
      payService("<operations><operation name='A'/><operation name='B'/></operations>"));
  service->addOperation("C", nullptr);
  service->addOperation("D", nullptr);
  EXPECT_EQ(operationNames(*service), (Names{"A", "B", "C", "D"}));
}

TEST(ServiceAddOperation, ReturnsTheMemberOfTheList) {
  const auto service = parseService(payService("<operations><operation name='A'/></operations>"));
  as::IOperation* const added = service->addOperation("B", nullptr);
  ASSERT_NE(added, nullptr);
  EXPECT_EQ(itemOf<as::IOperation>(service->getOperations(), 1), added);
}

TEST(ServiceAddOperation, KeepsTheListAndItsMembers) {
  const auto service = parseService(payService("<operations><operation name='A'/></operations>"));
  as::IList* const list = service->getOperations();
  as::IElement* const first = list->getItem(0);
  service->addOperation("B", nullptr);
  EXPECT_EQ(service->getOperations(), list);
  EXPECT_EQ(list->getItem(0), first);
}

TEST(ServiceAddOperation, TakesANameThatIsThereAlready) {
  const auto service = parseService(payService("<operations><operation name='A'/></operations>"));
  service->addOperation("A", nullptr);
  EXPECT_EQ(operationNames(*service), (Names{"A", "A"}));
}

TEST(ServiceAddOperation, NullNameIsWrittenAsEmpty) {
  const auto service = parseService(payService("<operations/>"));
  service->addOperation(nullptr, nullptr);
  EXPECT_EQ(operationNames(*service), Names{""});
  const std::string written = as::CAgentServicesFactory::SerializeToString(service.get());
  EXPECT_NE(written.find("<operation name=\"\""), std::string::npos) << written;
}

TEST(ServiceAddOperation, HasEmptyListsOfItsOwn) {
  const auto service = parseService(payService("<operations/>"));
  as::IOperation* const added = service->addOperation("A", nullptr);
  EXPECT_EQ(added->getHiddenParameters()->getLength(), 0);
  EXPECT_EQ(added->getParameters()->getLength(), 0);
  EXPECT_NE(added->getHiddenParameters(), added->getParameters());
}

TEST(ServiceAddOperation, HiddenParametersStandBeforeParameters) {
  const auto service = parseService(payService("<operations/>"));
  service->addOperation("A", nullptr);
  const std::string written = as::CAgentServicesFactory::SerializeToString(service.get());
  const std::size_t hidden = written.find("<hiddenParameters");
  const std::size_t parameters = written.find("<parameters");
  ASSERT_NE(hidden, std::string::npos) << written;
  ASSERT_NE(parameters, std::string::npos) << written;
  EXPECT_LT(hidden, parameters);
}

TEST(ServiceAddOperation, WithoutEntryPointIsUnbound) {
  const auto service = parseService(payService("<operations/>"));
  as::IOperation* const added = service->addOperation("A", nullptr);
  EXPECT_EQ(added->getAttributeValue("entryPoint"), "");
  EXPECT_EQ(added->getEntryPoint(), nullptr);
}

TEST(ServiceAddOperation, IsBoundToItsEntryPoint) {
  const TempDirectory directory;
  const auto service = loadedService(directory.write("PAY.xml", payProgram()));
  auto* const entryPoint = itemOf<as::IEntryPoint>(service->getProgram()->getEntryPoints(), 0);
  ASSERT_NE(entryPoint, nullptr);
  as::IOperation* const added = service->addOperation("A", entryPoint);
  EXPECT_EQ(added->getAttributeValue("entryPoint"), "PAY");
  EXPECT_EQ(added->getEntryPoint(), entryPoint);
}

TEST(ServiceAddOperation, TakesTheNameOfAnEntryPointThatItCannotFind) {
  const auto program = test::parse(payProgram());
  const auto service = parseService(payService("<operations/>"));
  as::IOperation* const added =
      service->addOperation("A", itemOf<as::IEntryPoint>(program->getEntryPoints(), 0));
  EXPECT_EQ(added->getAttributeValue("entryPoint"), "PAY");
  EXPECT_EQ(added->getEntryPoint(), nullptr);
}

TEST(ServiceAddOperation, IsOfTheFlavourOfTheDocument) {
  const auto service = parseService(payService("<operations/>"));
  as::IOperation* const added = service->addOperation("A", nullptr);
  EXPECT_NE(as::interface_cast<as::IJavaOperation>(added), nullptr);
}

TEST(ServiceAddOperation, WorksOnANewService) {
  const auto service = newJavaService();
  service->addOperation("A", nullptr);
  service->addOperation("B", nullptr);
  EXPECT_EQ(operationNames(*service), (Names{"A", "B"}));
}

struct Place {
  const char* name;
  const char* content;
};

void PrintTo(const Place& place, std::ostream* out) { *out << place.name; }

// What a service holds that has no "operations".
class ServiceWithoutOperations : public testing::TestWithParam<Place> {};

TEST_P(ServiceWithoutOperations, TakesOne) {
  const auto service = parseService(payService(GetParam().content));
  as::IOperation* const added = service->addOperation("A", nullptr);
  EXPECT_EQ(operationNames(*service), Names{"A"});
  EXPECT_EQ(itemOf<as::IOperation>(service->getOperations(), 0), added);
}

TEST_P(ServiceWithoutOperations, GoesOnWithTheListItWasGiven) {
  const auto service = parseService(payService(GetParam().content));
  service->addOperation("A", nullptr);
  as::IList* const list = service->getOperations();
  service->addOperation("B", nullptr);
  EXPECT_EQ(service->getOperations(), list);
  EXPECT_EQ(operationNames(*service), (Names{"A", "B"}));
}

TEST_P(ServiceWithoutOperations, LeavesTheSharedListEmpty) {
  const auto service = parseService(payService(GetParam().content));
  as::IList* const before = service->getOperations();
  service->addOperation("A", nullptr);
  EXPECT_NE(service->getOperations(), before);
  EXPECT_EQ(before->getLength(), 0);
}

// The schema wants the sections in their order.
TEST_P(ServiceWithoutOperations, IsValidAfterwards) {
  const auto service = parseService(payService(GetParam().content));
  service->addOperation("A", nullptr);
  const auto again = writtenAndRead(*service);
  EXPECT_EQ(operationNames(*again), Names{"A"});
}

INSTANTIATE_TEST_SUITE_P(Contents, ServiceWithoutOperations,
                         testing::Values(Place{"nothing", ""}, Place{"blanks", "\n  "},
                                         Place{"properties",
                                               "<properties><property name='A'/></properties>"},
                                         Place{"parameterTypeDefs", "<parameterTypeDefs/>\n"},
                                         Place{"both", "<properties/><parameterTypeDefs/>"}),
                         [](const auto& value) { return std::string(value.param.name); });

}  // namespace

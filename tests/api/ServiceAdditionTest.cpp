// Tests of adding operations to a service.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::itemOf;
using test::javaService;
using test::labelOf;
using test::namesIn;
using test::parseService;
using test::payProgram;
using test::payService;
using test::TempDirectory;
using test::written;
using test::writtenAndRead;
using Names = std::vector<std::string>;

// A service whose program is read from the dictionary in the file named `file`.
std::unique_ptr<as::IService> loadedService(const std::string& file,
                                            const std::string& content = "") {
  return parseService(javaService("implementation='java' dataDictFilename='" + file + "'", content),
                      true);
}

TEST(ServiceAddOperation, AppendsLast) {
  const auto service = parseService(
      payService("<operations><operation name='A'/><operation name='B'/></operations>"));
  service->addOperation("C", nullptr);
  service->addOperation("D", nullptr);
  EXPECT_EQ(namesIn(service->getOperations()), (Names{"A", "B", "C", "D"}));
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
  EXPECT_EQ(namesIn(service->getOperations()), (Names{"A", "A"}));
}

TEST(ServiceAddOperation, NullNameIsWrittenAsEmpty) {
  const auto service = parseService(payService("<operations/>"));
  service->addOperation(nullptr, nullptr);
  EXPECT_EQ(namesIn(service->getOperations()), Names{""});
  const std::string text = written(*service);
  EXPECT_NE(text.find("<operation name=\"\""), std::string::npos) << text;
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
  const std::string text = written(*service);
  const std::size_t hidden = text.find("<hiddenParameters");
  const std::size_t parameters = text.find("<parameters");
  ASSERT_NE(hidden, std::string::npos) << text;
  ASSERT_NE(parameters, std::string::npos) << text;
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
  const auto service = test::newService(test::flavours::java);
  service->addOperation("A", nullptr);
  service->addOperation("B", nullptr);
  EXPECT_EQ(namesIn(service->getOperations()), (Names{"A", "B"}));
}

struct Place {
  const char* label;
  const char* content;
};

void PrintTo(const Place& place, std::ostream* out) { *out << place.label; }

// What a service holds that has no "operations".
class ServiceWithoutOperations : public testing::TestWithParam<Place> {};

TEST_P(ServiceWithoutOperations, TakesOne) {
  const auto service = parseService(payService(GetParam().content));
  as::IOperation* const added = service->addOperation("A", nullptr);
  EXPECT_EQ(namesIn(service->getOperations()), Names{"A"});
  EXPECT_EQ(itemOf<as::IOperation>(service->getOperations(), 0), added);
}

TEST_P(ServiceWithoutOperations, GoesOnWithTheListItWasGiven) {
  const auto service = parseService(payService(GetParam().content));
  service->addOperation("A", nullptr);
  as::IList* const list = service->getOperations();
  service->addOperation("B", nullptr);
  EXPECT_EQ(service->getOperations(), list);
  EXPECT_EQ(namesIn(service->getOperations()), (Names{"A", "B"}));
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
  EXPECT_EQ(namesIn(again->getOperations()), Names{"A"});
}

INSTANTIATE_TEST_SUITE_P(Contents, ServiceWithoutOperations,
                         testing::Values(Place{"nothing", ""}, Place{"blanks", "\n  "},
                                         Place{"properties",
                                               "<properties><property name='A'/></properties>"},
                                         Place{"parameterTypeDefs", "<parameterTypeDefs/>\n"},
                                         Place{"both", "<properties/><parameterTypeDefs/>"}),
                         labelOf<Place>);

}  // namespace

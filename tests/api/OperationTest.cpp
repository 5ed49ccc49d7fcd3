// Tests of a service's operations: their attributes, their binding to an entry point, and adding
// parameters and hidden parameters.
#include <gtest/gtest.h>

#include <climits>
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
using test::TempDirectory;

// A service document with one operation.
std::string operationDocument(const std::string& attributes, const std::string& content = "") {
  return payService("<operations><operation " + attributes + ">" + content +
                    "</operation></operations>");
}

as::IOperation& firstOperation(as::IService& service) {
  return *itemOf<as::IOperation>(service.getOperations(), 0);
}

std::string written(as::IService& service) {
  return as::CAgentServicesFactory::SerializeToString(&service);
}

// A service with one operation, and that operation.
class Parsed {
 public:
  explicit Parsed(const std::string& attributes, const std::string& content = "")
      : service_(parseService(operationDocument(attributes, content))) {}

  as::IOperation* operator->() const { return &firstOperation(*service_); }
  as::IService& service() const { return *service_; }
  std::string text() const { return written(*service_); }

 private:
  std::unique_ptr<as::IService> service_;
};

// The names of the members of `list`, in order.
std::vector<std::string> namesIn(as::IList* list) {
  std::vector<std::string> names;
  for (int i = 0; i < list->getLength(); i++) {
    names.push_back(list->getItem(i)->getAttributeValue("name"));
  }
  return names;
}

using Names = std::vector<std::string>;

// Attributes.

TEST(Operation, NameIsTheAttribute) {
  EXPECT_EQ(Parsed("name='Pay &lt;1&gt;'")->getName(), "Pay <1>");
}

TEST(Operation, NameIsEmptyWhenAbsent) { EXPECT_EQ(Parsed("")->getName(), ""); }

TEST(Operation, NameIsWritten) {
  const Parsed operation("name='A' entryPoint='PAY'");
  operation->setName("B");
  EXPECT_EQ(operation->getName(), "B");
  EXPECT_EQ(operation->getAttributeValue("name"), "B");
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "PAY");
}

TEST(Operation, NullNameIsWrittenAsEmpty) {
  const Parsed operation("name='A'");
  operation->setName(nullptr);
  EXPECT_EQ(operation->getName(), "");
  EXPECT_NE(operation.text().find("<operation name=\"\""), std::string::npos) << operation.text();
}

struct ExitPointsRead {
  const char* name;
  const char* attributes;
  int count;
};

void PrintTo(const ExitPointsRead& row, std::ostream* out) { *out << row.attributes; }

class OperationExitPointsRead : public testing::TestWithParam<ExitPointsRead> {};

TEST_P(OperationExitPointsRead, IsTheNumber) {
  EXPECT_EQ(Parsed(GetParam().attributes)->getExitPoints(), GetParam().count);
}

INSTANTIATE_TEST_SUITE_P(
    Attributes, OperationExitPointsRead,
    testing::Values(ExitPointsRead{"absent", "", 0}, ExitPointsRead{"zero", "exitPoints='0'", 0},
                    ExitPointsRead{"small", "exitPoints='3'", 3},
                    ExitPointsRead{"leadingZeros", "exitPoints='0012'", 12},
                    ExitPointsRead{"greatestInt", "exitPoints='2147483647'", INT_MAX},
                    ExitPointsRead{"oneMore", "exitPoints='2147483648'", INT_MAX},
                    ExitPointsRead{"greatest", "exitPoints='4294967295'", INT_MAX}),
    [](const auto& value) { return std::string(value.param.name); });

struct ExitPointsWritten {
  unsigned int count;
  const char* text;
  int read;
};

void PrintTo(const ExitPointsWritten& row, std::ostream* out) { *out << row.text; }

class OperationExitPointsWritten : public testing::TestWithParam<ExitPointsWritten> {};

TEST_P(OperationExitPointsWritten, IsDecimal) {
  const Parsed operation("exitPoints='7'");
  operation->setExitPoints(GetParam().count);
  EXPECT_EQ(operation->getAttributeValue("exitPoints"), GetParam().text);
}

TEST_P(OperationExitPointsWritten, IsReadAsTheNearestInt) {
  const Parsed operation("");
  operation->setExitPoints(GetParam().count);
  EXPECT_EQ(operation->getExitPoints(), GetParam().read);
}

TEST_P(OperationExitPointsWritten, IsValid) {
  const Parsed operation("");
  operation->setExitPoints(GetParam().count);
  const auto again = parseService(operation.text());
  EXPECT_EQ(firstOperation(*again).getAttributeValue("exitPoints"), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Numbers, OperationExitPointsWritten,
                         testing::Values(ExitPointsWritten{0, "0", 0}, ExitPointsWritten{3, "3", 3},
                                         ExitPointsWritten{2147483647U, "2147483647", INT_MAX},
                                         ExitPointsWritten{2147483648U, "2147483648", INT_MAX},
                                         ExitPointsWritten{4294967295U, "4294967295", INT_MAX}),
                         [](const auto& value) { return std::string(value.param.text); });

// Entry points.

// A program with the entry points PAY, REFUND, PAY again and BONUS.
std::string entryPointProgram() {
  return test::dictionary(
      "<entryPoints><entryPoint name='PAY' callConvention='1'/><entryPoint name='REFUND'/>"
      "<entryPoint name='PAY' callConvention='2'/><entryPoint name='BONUS'/></entryPoints>");
}

// A service with one operation whose program has those entry points.
class Bound {
 public:
  explicit Bound(const std::string& attributes) {
    const TempDirectory directory;
    const std::string file = directory.write("PAY.xml", entryPointProgram());
    service_ = parseService(javaService("implementation='java' dataDictFilename='" + file + "'",
                                        "<operations><operation " + attributes + "/></operations>"),
                            true);
  }

  as::IOperation* operator->() const { return &firstOperation(*service_); }
  as::IEntryPoint* entryPoint(int index) const {
    return itemOf<as::IEntryPoint>(service_->getProgram()->getEntryPoints(), index);
  }

 private:
  std::unique_ptr<as::IService> service_;
};

struct LookUp {
  const char* name;
  const char* attributes;
  int index;  // -1 for none.
};

void PrintTo(const LookUp& row, std::ostream* out) { *out << row.attributes; }

class OperationEntryPoint : public testing::TestWithParam<LookUp> {};

TEST_P(OperationEntryPoint, IsTheFirstOfThatName) {
  const Bound operation(GetParam().attributes);
  ASSERT_NE(operation.entryPoint(3), nullptr);
  EXPECT_EQ(operation->getEntryPoint(),
            GetParam().index < 0 ? nullptr : operation.entryPoint(GetParam().index));
}

TEST_P(OperationEntryPoint, IsNullWithoutProgram) {
  EXPECT_EQ(Parsed(GetParam().attributes)->getEntryPoint(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Names, OperationEntryPoint,
                         testing::Values(LookUp{"firstOfDuplicates", "entryPoint='PAY'", 0},
                                         LookUp{"second", "entryPoint='REFUND'", 1},
                                         LookUp{"last", "entryPoint='BONUS'", 3},
                                         LookUp{"otherCase", "entryPoint='pay'", -1},
                                         LookUp{"start", "entryPoint='PA'", -1},
                                         LookUp{"longer", "entryPoint='PAYS'", -1},
                                         LookUp{"blankBehind", "entryPoint='PAY '", -1},
                                         LookUp{"blankInFront", "entryPoint=' PAY'", -1},
                                         LookUp{"unknown", "entryPoint='OTHER'", -1},
                                         LookUp{"empty", "entryPoint=''", -1},
                                         LookUp{"absent", "name='PAY'", -1}),
                         [](const auto& value) { return std::string(value.param.name); });

TEST(OperationBinding, WritesTheName) {
  const Bound operation("");
  EXPECT_TRUE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "REFUND");
  EXPECT_EQ(operation->getEntryPoint(), operation.entryPoint(1));
}

TEST(OperationBinding, ToASecondOfItsNameFindsTheFirst) {
  const Bound operation("");
  EXPECT_TRUE(operation->setEntryPoint(operation.entryPoint(2)));
  EXPECT_EQ(operation->getEntryPoint(), operation.entryPoint(0));
}

TEST(OperationBinding, RefusesToBindAgain) {
  const Bound operation("");
  ASSERT_TRUE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_FALSE(operation->setEntryPoint(operation.entryPoint(3)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "REFUND");
}

TEST(OperationBinding, RefusesTheSameAgain) {
  const Bound operation("");
  ASSERT_TRUE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_FALSE(operation->setEntryPoint(operation.entryPoint(1)));
}

TEST(OperationBinding, RefusesWhenTheDocumentBindsIt) {
  const Bound operation("entryPoint='PAY'");
  EXPECT_FALSE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "PAY");
}

TEST(OperationBinding, ReplacesANameThatIsNotFound) {
  const Bound operation("entryPoint='OTHER'");
  EXPECT_TRUE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "REFUND");
}

TEST(OperationBinding, RefusesNull) {
  const Bound operation("entryPoint='OTHER'");
  EXPECT_FALSE(operation->setEntryPoint(nullptr));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "OTHER");
}

TEST(OperationBinding, NullAddsNoAttribute) {
  const Parsed operation("name='A'");
  EXPECT_FALSE(operation->setEntryPoint(nullptr));
  EXPECT_EQ(operation.text().find("entryPoint"), std::string::npos) << operation.text();
}

// The entry point of another program, with a name that the service's own does not know.
TEST(OperationBinding, ToAnUnknownNameIsWrittenAndNotFound) {
  const auto other =
      test::parse(test::dictionary("<entryPoints><entryPoint name='OTHER'/></entryPoints>"));
  const Bound operation("");
  EXPECT_TRUE(operation->setEntryPoint(itemOf<as::IEntryPoint>(other->getEntryPoints(), 0)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "OTHER");
  EXPECT_EQ(operation->getEntryPoint(), nullptr);
}

TEST(OperationBinding, ToAnUnknownNameCanBeReplaced) {
  const auto other =
      test::parse(test::dictionary("<entryPoints><entryPoint name='OTHER'/></entryPoints>"));
  const Bound operation("");
  ASSERT_TRUE(operation->setEntryPoint(itemOf<as::IEntryPoint>(other->getEntryPoints(), 0)));
  EXPECT_TRUE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_EQ(operation->getEntryPoint(), operation.entryPoint(1));
}

TEST(OperationBinding, WithoutProgramSucceedsEveryTime) {
  const auto program = test::parse(entryPointProgram());
  const Parsed operation("entryPoint='PAY'");
  EXPECT_TRUE(operation->setEntryPoint(itemOf<as::IEntryPoint>(program->getEntryPoints(), 1)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "REFUND");
  EXPECT_TRUE(operation->setEntryPoint(itemOf<as::IEntryPoint>(program->getEntryPoints(), 3)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "BONUS");
}

// Lists.

struct Section {
  const char* element;
  const char* content;  // Two members.
  as::IList* (as::IOperation::*get)();
};

void PrintTo(const Section& section, std::ostream* out) { *out << section.element; }

class OperationSection : public testing::TestWithParam<Section> {
 protected:
  static std::string section(const std::string& content) {
    const std::string element = GetParam().element;
    return "<" + element + ">" + content + "</" + element + ">";
  }
  static as::IList* listOf(const Parsed& operation) {
    return (*operation.operator->().*GetParam().get)();
  }
};

TEST_P(OperationSection, AbsentReadsAsTheSharedEmptyList) {
  const Parsed operation("");
  const auto empty = parseService(payService(""));
  ASSERT_NE(listOf(operation), nullptr);
  EXPECT_EQ(listOf(operation), empty->getProperties());
  EXPECT_EQ(listOf(operation)->getLength(), 0);
}

TEST_P(OperationSection, WithoutMembersIsAListOfItsOwn) {
  const Parsed operation("", section(""));
  ASSERT_NE(listOf(operation), nullptr);
  EXPECT_NE(listOf(operation), listOf(Parsed("")));
  EXPECT_EQ(listOf(operation)->getLength(), 0);
}

TEST_P(OperationSection, HasItsMembersInOrder) {
  const Parsed operation("", section(GetParam().content));
  as::IList* const list = listOf(operation);
  ASSERT_EQ(list->getLength(), 2);
  EXPECT_EQ(itemOf<as::IElement>(list, 0)->getAttributeValue(
                GetParam().element == std::string("parameters") ? "name" : "value"),
            "1");
  EXPECT_EQ(itemOf<as::IElement>(list, 1)->getAttributeValue(
                GetParam().element == std::string("parameters") ? "name" : "value"),
            "2");
}

TEST_P(OperationSection, IsTheSameObjectEveryTime) {
  const Parsed operation("", section(GetParam().content));
  EXPECT_EQ(listOf(operation), listOf(operation));
}

TEST_P(OperationSection, LeavesTheOtherEmpty) {
  const Parsed operation("", section(GetParam().content));
  EXPECT_EQ(operation->getParameters()->getLength() + operation->getHiddenParameters()->getLength(),
            2);
}

INSTANTIATE_TEST_SUITE_P(
    Sections, OperationSection,
    testing::Values(Section{"parameters", "<parameter name='1'/><parameter name='2'/>",
                            &as::IOperation::getParameters},
                    Section{"hiddenParameters",
                            "<hiddenParameter value='1'/><hiddenParameter value='2'/>",
                            &as::IOperation::getHiddenParameters}),
    [](const auto& value) { return std::string(value.param.element); });

// Adding parameters.

struct Direction {
  int byType;
  const char* text;
  int read;
};

void PrintTo(const Direction& row, std::ostream* out) { *out << row.byType; }

class OperationAddParameterDirection : public testing::TestWithParam<Direction> {};

TEST_P(OperationAddParameterDirection, IsWritten) {
  const Parsed operation("", "<parameters/>");
  as::IParameter* const added =
      operation->addParameter(static_cast<as::IParameter::BY_TYPE>(GetParam().byType), "P", 1);
  ASSERT_NE(added, nullptr);
  EXPECT_EQ(added->getAttributeValue("byType"), GetParam().text);
  EXPECT_EQ(added->getByType(), GetParam().read);
}

INSTANTIATE_TEST_SUITE_P(Directions, OperationAddParameterDirection,
                         testing::Values(Direction{0, "in", 0}, Direction{1, "out", 1},
                                         Direction{2, "io", 2}, Direction{3, "io", 2},
                                         Direction{-1, "io", 2}));

struct Occurs {
  int occurs;
  const char* text;
};

void PrintTo(const Occurs& row, std::ostream* out) { *out << row.occurs; }

class OperationAddParameterOccurs : public testing::TestWithParam<Occurs> {};

TEST_P(OperationAddParameterOccurs, IsWritten) {
  const Parsed operation("", "<parameters/>");
  as::IParameter* const added =
      operation->addParameter(as::IParameter::BY_IN, "P", GetParam().occurs);
  ASSERT_NE(added, nullptr);
  EXPECT_EQ(added->getAttributeValue("occurs"), GetParam().text);
  EXPECT_EQ(added->getOccurs(), GetParam().occurs);
}

INSTANTIATE_TEST_SUITE_P(Numbers, OperationAddParameterOccurs,
                         testing::Values(Occurs{0, "0"}, Occurs{1, "1"}, Occurs{12, "12"},
                                         Occurs{-1, "-1"}, Occurs{INT_MAX, "2147483647"},
                                         Occurs{INT_MIN, "-2147483648"}));

TEST(OperationAddParameter, WritesTheName) {
  const Parsed operation("", "<parameters/>");
  EXPECT_EQ(operation->addParameter(as::IParameter::BY_IN, "Net \"pay\"", 1)->getName(),
            "Net \"pay\"");
}

TEST(OperationAddParameter, NullNameIsWrittenAsEmpty) {
  const Parsed operation("", "<parameters/>");
  EXPECT_EQ(operation->addParameter(as::IParameter::BY_IN, nullptr, 1)->getName(), "");
  EXPECT_NE(operation.text().find(" name=\"\""), std::string::npos) << operation.text();
}

TEST(OperationAddParameter, AppendsLast) {
  const Parsed operation("", "<parameters><parameter name='A'/><parameter name='B'/></parameters>");
  operation->addParameter(as::IParameter::BY_IN, "C", 1);
  operation->addParameter(as::IParameter::BY_IN, "A", 1);
  EXPECT_EQ(namesIn(operation->getParameters()), (Names{"A", "B", "C", "A"}));
}

TEST(OperationAddParameter, ReturnsTheMemberOfTheList) {
  const Parsed operation("", "<parameters><parameter name='A'/></parameters>");
  as::IParameter* const added = operation->addParameter(as::IParameter::BY_IN, "B", 1);
  EXPECT_EQ(itemOf<as::IParameter>(operation->getParameters(), 1), added);
}

TEST(OperationAddParameter, LeavesTheHiddenParametersAlone) {
  const Parsed operation("", "<hiddenParameters/><parameters/>");
  operation->addParameter(as::IParameter::BY_IN, "A", 1);
  EXPECT_EQ(operation->getHiddenParameters()->getLength(), 0);
}

TEST(OperationAddParameter, HasNeitherFieldsNorMappings) {
  const Parsed operation("", "<parameters/>");
  as::IParameter* const added = operation->addParameter(as::IParameter::BY_IN, "A", 1);
  EXPECT_EQ(added->getMappings()->getLength(), 0);
  EXPECT_EQ(added->getChildren()->getLength(), 0);
  EXPECT_FALSE(added->hasChildren());
}

TEST(OperationAddParameter, IsOfTheFlavourOfTheDocument) {
  const Parsed operation("", "<parameters/>");
  EXPECT_NE(as::interface_cast<as::IJavaParameter>(
                operation->addParameter(as::IParameter::BY_IN, "A", 1)),
            nullptr);
}

TEST(OperationAddParameter, SurvivesWritingAndReading) {
  const Parsed operation("", "<parameters/>");
  operation->addParameter(as::IParameter::BY_OUT, "A", 0);
  const auto again = parseService(operation.text());
  auto* const found = itemOf<as::IParameter>(firstOperation(*again).getParameters(), 0);
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->getName(), "A");
  EXPECT_EQ(found->getByType(), as::IParameter::BY_OUT);
  EXPECT_EQ(found->getAttributeValue("occurs"), "0");
}

// Adding hidden parameters.

struct Arguments {
  const char* name;
  bool hasItem;
  const char* value;
};

void PrintTo(const Arguments& row, std::ostream* out) { *out << row.name; }

class OperationAddHiddenParameter : public testing::TestWithParam<Arguments> {
 protected:
  OperationAddHiddenParameter()
      : service_(as::CAgentServicesFactory::NewJavaService(test::parse(payProgram()).release())),
        operation_(service_->addOperation("A", nullptr)) {}

  // Adds one with the arguments of the row.
  as::IHiddenParameter* add() {
    as::IDataItem* const item = test::topItem<as::IDataItem>(*service_->getProgram());
    EXPECT_NE(item, nullptr);
    return operation_->addHiddenParameter(GetParam().hasItem ? item : nullptr, GetParam().value);
  }

  std::unique_ptr<as::IService> service_;
  as::IOperation* operation_;
};

TEST_P(OperationAddHiddenParameter, HasNoItem) {
  as::IHiddenParameter* const added = add();
  ASSERT_NE(added, nullptr);
  EXPECT_EQ(added->getDataItem(), nullptr);
  EXPECT_EQ(added->getRawMapping(), "");
}

TEST_P(OperationAddHiddenParameter, HasNoValue) {
  as::IHiddenParameter* const added = add();
  ASSERT_NE(added, nullptr);
  EXPECT_EQ(added->getValue(), "");
}

TEST_P(OperationAddHiddenParameter, HasNoAttributes) {
  add();
  const std::string text = written(*service_);
  EXPECT_NE(text.find("<hiddenParameter/>"), std::string::npos) << text;
}

TEST_P(OperationAddHiddenParameter, ReturnsTheLastMember) {
  as::IHiddenParameter* const first = add();
  as::IHiddenParameter* const second = add();
  EXPECT_NE(first, second);
  ASSERT_EQ(operation_->getHiddenParameters()->getLength(), 2);
  EXPECT_EQ(itemOf<as::IHiddenParameter>(operation_->getHiddenParameters(), 0), first);
  EXPECT_EQ(itemOf<as::IHiddenParameter>(operation_->getHiddenParameters(), 1), second);
}

INSTANTIATE_TEST_SUITE_P(WhateverTheArguments, OperationAddHiddenParameter,
                         testing::Values(Arguments{"none", false, nullptr},
                                         Arguments{"item", true, nullptr},
                                         Arguments{"value", false, "7"},
                                         Arguments{"both", true, "7"}),
                         [](const auto& value) { return std::string(value.param.name); });

TEST(OperationHiddenParameter, GoesBehindTheOthers) {
  const Parsed operation(
      "", "<hiddenParameters><hiddenParameter value='1'/></hiddenParameters><parameters/>");
  operation->addHiddenParameter(nullptr, nullptr)->setValue("2");
  as::IList* const hidden = operation->getHiddenParameters();
  ASSERT_EQ(hidden->getLength(), 2);
  EXPECT_EQ(itemOf<as::IHiddenParameter>(hidden, 0)->getValue(), "1");
  EXPECT_EQ(itemOf<as::IHiddenParameter>(hidden, 1)->getValue(), "2");
}

TEST(OperationHiddenParameter, LeavesTheParametersAlone) {
  const Parsed operation("", "<hiddenParameters/><parameters/>");
  operation->addHiddenParameter(nullptr, nullptr);
  EXPECT_EQ(operation->getParameters()->getLength(), 0);
}

// Operations that lack what is added to.

struct Content {
  const char* name;
  const char* content;
};

void PrintTo(const Content& row, std::ostream* out) { *out << row.name; }

class OperationMissingChild : public testing::TestWithParam<Content> {
 protected:
  // What is added, read from `service`.
  static void expectAdded(as::IService& service, int parameters, int hiddenParameters) {
    as::IOperation& operation = firstOperation(service);
    EXPECT_EQ(operation.getParameters()->getLength(), parameters);
    EXPECT_EQ(operation.getHiddenParameters()->getLength(), hiddenParameters);
  }
};

TEST_P(OperationMissingChild, TakesParameters) {
  const Parsed operation("", GetParam().content);
  as::IParameter* const added = operation->addParameter(as::IParameter::BY_IN, "A", 1);
  operation->addParameter(as::IParameter::BY_IN, "B", 1);
  EXPECT_EQ(namesIn(operation->getParameters()), (Names{"A", "B"}));
  EXPECT_EQ(itemOf<as::IParameter>(operation->getParameters(), 0), added);
}

TEST_P(OperationMissingChild, TakesHiddenParameters) {
  const Parsed operation("", GetParam().content);
  as::IHiddenParameter* const added = operation->addHiddenParameter(nullptr, nullptr);
  operation->addHiddenParameter(nullptr, nullptr);
  ASSERT_EQ(operation->getHiddenParameters()->getLength(), 2);
  EXPECT_EQ(itemOf<as::IHiddenParameter>(operation->getHiddenParameters(), 0), added);
}

// The schema wants the hidden parameters before the parameters.
TEST_P(OperationMissingChild, IsValidWithAParameter) {
  const Parsed operation("", GetParam().content);
  operation->addParameter(as::IParameter::BY_IN, "A", 1);
  expectAdded(*parseService(operation.text()), 1, 0);
}

TEST_P(OperationMissingChild, IsValidWithAHiddenParameter) {
  const Parsed operation("", GetParam().content);
  operation->addHiddenParameter(nullptr, nullptr);
  expectAdded(*parseService(operation.text()), 0, 1);
}

TEST_P(OperationMissingChild, IsValidWithAParameterThenAHiddenOne) {
  const Parsed operation("", GetParam().content);
  operation->addParameter(as::IParameter::BY_IN, "A", 1);
  operation->addHiddenParameter(nullptr, nullptr);
  expectAdded(*parseService(operation.text()), 1, 1);
}

TEST_P(OperationMissingChild, IsValidWithAHiddenParameterThenAnother) {
  const Parsed operation("", GetParam().content);
  operation->addHiddenParameter(nullptr, nullptr);
  operation->addParameter(as::IParameter::BY_IN, "A", 1);
  expectAdded(*parseService(operation.text()), 1, 1);
}

TEST_P(OperationMissingChild, AddsNoSecondOne) {
  const Parsed operation("", GetParam().content);
  for (const char* const name : {"A", "B"}) {
    operation->addParameter(as::IParameter::BY_IN, name, 1);
    operation->addHiddenParameter(nullptr, nullptr);
  }
  const std::string text = operation.text();
  for (const std::string element : {"<parameters", "<hiddenParameters"}) {
    const std::size_t first = text.find(element);
    EXPECT_NE(first, std::string::npos) << text;
    EXPECT_EQ(first, text.rfind(element)) << text;
  }
}

INSTANTIATE_TEST_SUITE_P(Contents, OperationMissingChild,
                         testing::Values(Content{"nothing", ""}, Content{"blanks", "\n  "},
                                         Content{"comment", "<!-- nothing yet -->"},
                                         Content{"hiddenParameters", "<hiddenParameters/>"},
                                         Content{"hiddenParametersInBlanks",
                                                 "\n  <hiddenParameters/>\n"},
                                         Content{"parameters", "<parameters/>"},
                                         Content{"parametersInBlanks", "\n  <parameters/>\n"},
                                         Content{"both", "<hiddenParameters/><parameters/>"}),
                         [](const auto& value) { return std::string(value.param.name); });

// A Web service keeps more in an operation; both stand in front of that.
class OperationOfAWebService : public testing::TestWithParam<Content> {
 protected:
  static std::string document() {
    const std::string ns = "http://agentservices.example/schema/ws/v1.0/vorws.xsd";
    return "<service xmlns='" + ns +
           "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" + ns +
           " " + ns + "' implementation='ws'><operations><operation>" + GetParam().content +
           "</operation></operations></service>";
  }
};

TEST_P(OperationOfAWebService, IsValidWithBoth) {
  const auto service = parseService(document());
  as::IOperation& operation = firstOperation(*service);
  operation.addParameter(as::IParameter::BY_IN, "A", 1);
  operation.addHiddenParameter(nullptr, nullptr);
  const auto again = parseService(written(*service));
  EXPECT_EQ(firstOperation(*again).getParameters()->getLength(), 1);
  EXPECT_EQ(firstOperation(*again).getHiddenParameters()->getLength(), 1);
}

TEST_P(OperationOfAWebService, IsValidWithAHiddenParameter) {
  const auto service = parseService(document());
  firstOperation(*service).addHiddenParameter(nullptr, nullptr);
  const auto again = parseService(written(*service));
  EXPECT_EQ(firstOperation(*again).getHiddenParameters()->getLength(), 1);
}

INSTANTIATE_TEST_SUITE_P(Contents, OperationOfAWebService,
                         testing::Values(Content{"header", "<header/>"},
                                         Content{"fault", "<fault/>"},
                                         Content{"behindHidden", "<hiddenParameters/><header/>"},
                                         Content{"behindParameters", "<parameters/><header/>"}),
                         [](const auto& value) { return std::string(value.param.name); });

}  // namespace

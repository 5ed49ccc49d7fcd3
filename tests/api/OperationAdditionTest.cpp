// Tests of adding parameters and hidden parameters to an operation.
#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/ParsedOperation.h"
#include "support/Requests.h"

namespace {

using test::itemOf;
using test::labelOf;
using test::namesIn;
using test::operationOf;
using test::ParsedOperation;
using test::parseService;
using test::payProgram;
using test::written;
using Names = std::vector<std::string>;

struct Direction {
  int byType;
  const char* text;
  int read;
};

void PrintTo(const Direction& row, std::ostream* out) { *out << row.byType; }

class OperationAddParameterDirection : public testing::TestWithParam<Direction> {};

TEST_P(OperationAddParameterDirection, IsWritten) {
  const ParsedOperation operation("", "<parameters/>");
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
  const ParsedOperation operation("", "<parameters/>");
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
  const ParsedOperation operation("", "<parameters/>");
  EXPECT_EQ(operation->addParameter(as::IParameter::BY_IN, "Net \"pay\"", 1)->getName(),
            "Net \"pay\"");
}

TEST(OperationAddParameter, NullNameIsWrittenAsEmpty) {
  const ParsedOperation operation("", "<parameters/>");
  EXPECT_EQ(operation->addParameter(as::IParameter::BY_IN, nullptr, 1)->getName(), "");
  EXPECT_NE(operation.text().find(" name=\"\""), std::string::npos) << operation.text();
}

TEST(OperationAddParameter, AppendsLast) {
  const ParsedOperation operation(
      "", "<parameters><parameter name='A'/><parameter name='B'/></parameters>");
  operation->addParameter(as::IParameter::BY_IN, "C", 1);
  operation->addParameter(as::IParameter::BY_IN, "A", 1);
  EXPECT_EQ(namesIn(operation->getParameters()), (Names{"A", "B", "C", "A"}));
}

TEST(OperationAddParameter, ReturnsTheMemberOfTheList) {
  const ParsedOperation operation("", "<parameters><parameter name='A'/></parameters>");
  as::IParameter* const added = operation->addParameter(as::IParameter::BY_IN, "B", 1);
  EXPECT_EQ(itemOf<as::IParameter>(operation->getParameters(), 1), added);
}

TEST(OperationAddParameter, LeavesTheHiddenParametersAlone) {
  const ParsedOperation operation("", "<hiddenParameters/><parameters/>");
  operation->addParameter(as::IParameter::BY_IN, "A", 1);
  EXPECT_EQ(operation->getHiddenParameters()->getLength(), 0);
}

TEST(OperationAddParameter, HasNeitherFieldsNorMappings) {
  const ParsedOperation operation("", "<parameters/>");
  as::IParameter* const added = operation->addParameter(as::IParameter::BY_IN, "A", 1);
  EXPECT_EQ(added->getMappings()->getLength(), 0);
  EXPECT_EQ(added->getChildren()->getLength(), 0);
  EXPECT_FALSE(added->hasChildren());
}

TEST(OperationAddParameter, IsOfTheFlavourOfTheDocument) {
  const ParsedOperation operation("", "<parameters/>");
  EXPECT_NE(as::interface_cast<as::IJavaParameter>(
                operation->addParameter(as::IParameter::BY_IN, "A", 1)),
            nullptr);
}

TEST(OperationAddParameter, SurvivesWritingAndReading) {
  const ParsedOperation operation("", "<parameters/>");
  operation->addParameter(as::IParameter::BY_OUT, "A", 0);
  const auto again = parseService(operation.text());
  auto* const found = itemOf<as::IParameter>(operationOf(*again)->getParameters(), 0);
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->getName(), "A");
  EXPECT_EQ(found->getByType(), as::IParameter::BY_OUT);
  EXPECT_EQ(found->getAttributeValue("occurs"), "0");
}

// Adding hidden parameters.

struct Arguments {
  const char* label;
  bool hasItem;
  const char* value;
};

void PrintTo(const Arguments& row, std::ostream* out) { *out << row.label; }

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
                         labelOf<Arguments>);

TEST(OperationHiddenParameter, GoesBehindTheOthers) {
  const ParsedOperation operation(
      "", "<hiddenParameters><hiddenParameter value='1'/></hiddenParameters><parameters/>");
  operation->addHiddenParameter(nullptr, nullptr)->setValue("2");
  as::IList* const hidden = operation->getHiddenParameters();
  ASSERT_EQ(hidden->getLength(), 2);
  EXPECT_EQ(itemOf<as::IHiddenParameter>(hidden, 0)->getValue(), "1");
  EXPECT_EQ(itemOf<as::IHiddenParameter>(hidden, 1)->getValue(), "2");
}

TEST(OperationHiddenParameter, LeavesTheParametersAlone) {
  const ParsedOperation operation("", "<hiddenParameters/><parameters/>");
  operation->addHiddenParameter(nullptr, nullptr);
  EXPECT_EQ(operation->getParameters()->getLength(), 0);
}

// Operations that lack what is added to.

struct Content {
  const char* label;
  const char* content;
};

void PrintTo(const Content& row, std::ostream* out) { *out << row.label; }

class OperationMissingChild : public testing::TestWithParam<Content> {
 protected:
  // What is added, read from `service`.
  static void expectAdded(as::IService& service, int parameters, int hiddenParameters) {
    EXPECT_EQ(operationOf(service)->getParameters()->getLength(), parameters);
    EXPECT_EQ(operationOf(service)->getHiddenParameters()->getLength(), hiddenParameters);
  }
};

TEST_P(OperationMissingChild, TakesParameters) {
  const ParsedOperation operation("", GetParam().content);
  as::IParameter* const added = operation->addParameter(as::IParameter::BY_IN, "A", 1);
  operation->addParameter(as::IParameter::BY_IN, "B", 1);
  EXPECT_EQ(namesIn(operation->getParameters()), (Names{"A", "B"}));
  EXPECT_EQ(itemOf<as::IParameter>(operation->getParameters(), 0), added);
}

TEST_P(OperationMissingChild, TakesHiddenParameters) {
  const ParsedOperation operation("", GetParam().content);
  as::IHiddenParameter* const added = operation->addHiddenParameter(nullptr, nullptr);
  operation->addHiddenParameter(nullptr, nullptr);
  ASSERT_EQ(operation->getHiddenParameters()->getLength(), 2);
  EXPECT_EQ(itemOf<as::IHiddenParameter>(operation->getHiddenParameters(), 0), added);
}

// The schema wants the hidden parameters before the parameters.
TEST_P(OperationMissingChild, IsValidWithAParameter) {
  const ParsedOperation operation("", GetParam().content);
  operation->addParameter(as::IParameter::BY_IN, "A", 1);
  expectAdded(*parseService(operation.text()), 1, 0);
}

TEST_P(OperationMissingChild, IsValidWithAHiddenParameter) {
  const ParsedOperation operation("", GetParam().content);
  operation->addHiddenParameter(nullptr, nullptr);
  expectAdded(*parseService(operation.text()), 0, 1);
}

TEST_P(OperationMissingChild, IsValidWithAParameterThenAHiddenOne) {
  const ParsedOperation operation("", GetParam().content);
  operation->addParameter(as::IParameter::BY_IN, "A", 1);
  operation->addHiddenParameter(nullptr, nullptr);
  expectAdded(*parseService(operation.text()), 1, 1);
}

TEST_P(OperationMissingChild, IsValidWithAHiddenParameterThenAnother) {
  const ParsedOperation operation("", GetParam().content);
  operation->addHiddenParameter(nullptr, nullptr);
  operation->addParameter(as::IParameter::BY_IN, "A", 1);
  expectAdded(*parseService(operation.text()), 1, 1);
}

TEST_P(OperationMissingChild, AddsNoSecondOne) {
  const ParsedOperation operation("", GetParam().content);
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
                         labelOf<Content>);

// A Web service keeps more in an operation; both stand in front of that.
class OperationOfAWebService : public testing::TestWithParam<Content> {
 protected:
  static std::string document() {
    return test::webService(
        "implementation='ws'",
        "<operations><operation>" + std::string(GetParam().content) + "</operation></operations>");
  }
};

TEST_P(OperationOfAWebService, IsValidWithBoth) {
  const auto service = parseService(document());
  operationOf(*service)->addParameter(as::IParameter::BY_IN, "A", 1);
  operationOf(*service)->addHiddenParameter(nullptr, nullptr);
  const auto again = parseService(written(*service));
  EXPECT_EQ(operationOf(*again)->getParameters()->getLength(), 1);
  EXPECT_EQ(operationOf(*again)->getHiddenParameters()->getLength(), 1);
}

TEST_P(OperationOfAWebService, IsValidWithAHiddenParameter) {
  const auto service = parseService(document());
  operationOf(*service)->addHiddenParameter(nullptr, nullptr);
  const auto again = parseService(written(*service));
  EXPECT_EQ(operationOf(*again)->getHiddenParameters()->getLength(), 1);
}

INSTANTIATE_TEST_SUITE_P(Contents, OperationOfAWebService,
                         testing::Values(Content{"header", "<header/>"},
                                         Content{"fault", "<fault/>"},
                                         Content{"behindHidden", "<hiddenParameters/><header/>"},
                                         Content{"behindParameters", "<parameters/><header/>"}),
                         labelOf<Content>);

}  // namespace

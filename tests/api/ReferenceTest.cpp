// Tests of what a parameter takes from the type definition that it refers to, and what stays its
// own.
#include <gtest/gtest.h>

#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/ParsedJava.h"
#include "support/Requests.h"

namespace {

using test::parameterOf;
using test::parsedJava;
using test::written;

TEST(Reference, TakesAllButItsNameFromItsDefinition) {
  const auto service = parsedJava(
      "<parameter name='own' ref='D' occurs='9'/>",
      "<parameter name='D' occurs='3' dataType='BigDecimal'><mappings><mapping item='A'/>"
      "</mappings><field name='f'/></parameter>");
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
TEST(Reference, ThatLeadsNowhereOrBackEnds) {
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
    const auto service = parsedJava("<parameter name='p' ref='D' occurs='4'/>", row.definitions);
    as::IParameter* const parameter = parameterOf(*service);
    EXPECT_EQ(parameter->getReferenceType() != nullptr, row.resolved);
    EXPECT_EQ(parameter->getOccurs(), row.resolved ? 0 : 4);
    EXPECT_EQ(parameter->getMappings()->getLength(), 0);
    EXPECT_LE(parameter->getChildren()->getLength(), 1);
    EXPECT_EQ(as::interface_cast<as::IJavaParameter>(parameter)->getType(),
              as::IJavaField::JAVA_SHORT);
  }
}

const std::string chain =
    "<parameter name='Far' occurs='5'><mappings><mapping item='A'/></mappings><field name='f'/>"
    "</parameter><parameter name='Near' ref='Far' occurs='2'/>";

// Fields and mappings come from the end of the chain, the occurrences from its nearest link.
TEST(Reference, FollowsAChainForAllButTheOccurrences) {
  const auto service = parsedJava("<parameter name='p' ref='Near' occurs='9'/>", chain);
  auto* const parameter = parameterOf<as::IParameter>(*service);
  EXPECT_EQ(parameter->getReferenceType()->getName(), "Near");
  EXPECT_EQ(parameter->getOccurs(), 2);
  EXPECT_EQ(parameter->getChildren()->getLength(), 1);
  EXPECT_EQ(parameter->getMappings()->getLength(), 1);
}

TEST(Reference, OccurrencesAreWrittenToTheOwnElement) {
  const auto service = parsedJava("<parameter name='p' ref='Near' occurs='9'/>", chain);
  auto* const parameter = parameterOf<as::IParameter>(*service);
  parameter->setOccurs(7);
  EXPECT_EQ(parameter->getAttributeValue("occurs"), "7");
  EXPECT_EQ(parameter->getOccurs(), 2);
}

TEST(Reference, IsResolvedOnce) {
  const auto service =
      parsedJava("<parameter name='p' ref='A'/>", "<parameter name='A'/><parameter name='B'/>");
  auto* const parameter = parameterOf<as::IParameter>(*service);
  auto* const first = test::itemOf<as::IParameter>(service->getParameterTypeDefs(), 0);
  auto* const second = test::itemOf<as::IParameter>(service->getParameterTypeDefs(), 1);
  first->setName("C");
  second->setName("A");
  EXPECT_EQ(parameter->getReferenceType(), first);
}

TEST(Reference, FindsOnlyDefinitionsInFrontOfIt) {
  const auto service = parsedJava("<parameter name='p' ref='A'/>",
                                  "<parameter name='A' ref='B'/><parameter name='B' occurs='4'/>");
  auto* const definition = test::itemOf<as::IParameter>(service->getParameterTypeDefs(), 0);
  EXPECT_EQ(definition->getReferenceType(), nullptr);
  EXPECT_NE(parameterOf<as::IParameter>(*service)->getReferenceType(), nullptr);
}

// A definition is found by what stands behind it, and by itself: only the latter leads back.
TEST(Reference, NeverLeadsBackToWhereItStarted) {
  const struct {
    const char* label;
    const char* definitions;
    const char* references;  // Of each definition and of the parameter, by name; "-" for none.
  } rows[] = {
      {"to itself", "<parameter name='A' ref='A'/>", "- A"},
      {"to each other", "<parameter name='A' ref='B'/><parameter name='B' ref='A'/>", "- A A"},
      {"in a ring",
       "<parameter name='A' ref='C'/><parameter name='B' ref='A'/><parameter name='C' ref='B'/>",
       "- A B A"},
      {"to one of its own name", "<parameter name='A'/><parameter name='A' ref='A'/>", "- A A"},
      {"to itself in front of another", "<parameter name='A' ref='A'/><parameter name='A'/>",
       "- - A"},
  };
  for (const auto& row : rows) {
    const auto service = parsedJava("<parameter name='p' ref='A'/>", row.definitions);
    std::string references;
    const auto tell = [&](as::IParameter* parameter) {
      as::IParameter* const to = parameter->getReferenceType();
      references += (references.empty() ? "" : " ") + (to == nullptr ? "-" : to->getName());
      EXPECT_EQ(parameter->getChildren()->getLength(), 0) << row.label;
      EXPECT_EQ(parameter->getMappings()->getLength(), 0) << row.label;
    };
    as::IList* const definitions = service->getParameterTypeDefs();
    for (int i = 0; i < definitions->getLength(); i++) {
      tell(test::itemOf<as::IParameter>(definitions, i));
    }
    tell(parameterOf<as::IParameter>(*service));
    EXPECT_EQ(references, row.references) << row.label;
  }
}

// Which describes a value of any depth.
TEST(Reference, OfAFieldMayBeToTheDefinitionAroundIt) {
  const auto service =
      parsedJava("<parameter name='p' ref='Node'/>",
                 "<parameter name='Node'><field name='next' ref='Node'/></parameter>");
  auto* const definition = test::itemOf<as::IParameter>(service->getParameterTypeDefs(), 0);
  auto* const next = test::itemOf<as::IField>(definition->getChildren(), 0);
  EXPECT_EQ(test::itemOf<as::IField>(next->getChildren(), 0), next);
}

TEST(Reference, IsToTheFirstDefinitionOfTheName) {
  const auto service =
      parsedJava("<parameter name='p' ref='A'/>",
                 "<parameter name='A' occurs='1'/><parameter name='A' occurs='2'/>");
  EXPECT_EQ(parameterOf<as::IParameter>(*service)->getOccurs(), 1);
}

TEST(Reference, CannotBeExtended) {
  const auto service = parsedJava("<parameter name='p' ref='A'/>", "<parameter name='A'/>");
  auto* const parameter = parameterOf<as::IParameter>(*service);
  const auto program = test::parse(test::payProgram());
  const std::string before = written(*service);
  EXPECT_EQ(parameter->addField("f", 1), nullptr);
  EXPECT_EQ(parameter->addMapping(test::topItem<as::IDataItem>(*program)), nullptr);
  EXPECT_EQ(written(*service), before);
}

TEST(Reference, HidesWhatStandsBesideIt) {
  const std::string own =
      "<mappings><mapping item='OWN'/></mappings><field name='own'/><field name='own2'/>";
  const auto service =
      parsedJava("<parameter name='p' ref='A'>" + own + "</parameter>",
                 "<parameter name='A'><mappings/><field name='theirs'/></parameter>");
  auto* const parameter = parameterOf<as::IParameter>(*service);
  EXPECT_EQ(parameter->getMappings()->getLength(), 0);
  ASSERT_EQ(parameter->getChildren()->getLength(), 1);
  EXPECT_EQ(test::itemOf<as::IField>(parameter->getChildren(), 0)->getName(), "theirs");
}

TEST(Reference, ToNothingLeavesNothing) {
  const auto service = parsedJava(
      "<parameter name='p' ref='Gone'><mappings><mapping item='A'/></mappings><field name='f'/>"
      "</parameter>");
  auto* const parameter = parameterOf<as::IParameter>(*service);
  EXPECT_EQ(parameter->getMappings(), service->getProperties()) << "the shared empty list";
  EXPECT_EQ(parameter->getChildren()->getLength(), 0);
  EXPECT_NE(parameter->getChildren(), service->getProperties()) << "a list of its own";
}

// Tens of thousands of definitions, each referring to the one in front of it: a small file, which
// must be no burden.
TEST(Reference, ChainsMayBeOfAnyLength) {
  constexpr int length = 50000;
  std::string definitions = "<parameter name='D0' dataType='long'><field name='f'/></parameter>";
  for (int i = 1; i <= length; i++) {
    definitions +=
        "<parameter name='D" + std::to_string(i) + "' ref='D" + std::to_string(i - 1) + "'/>";
  }
  const auto service =
      parsedJava("<parameter name='p' ref='D" + std::to_string(length) + "'/>", definitions);
  auto* const parameter = parameterOf<as::IJavaParameter>(*service);
  EXPECT_EQ(parameter->getType(), as::IJavaField::JAVA_LONG);
  EXPECT_EQ(parameter->getChildren()->getLength(), 1);
  EXPECT_EQ(parameter->getMappings()->getLength(), 0);
}

}  // namespace

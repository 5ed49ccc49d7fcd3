// Tests of the parameters and fields that every service has, whatever its flavour: their direction,
// their names, adding to them, and how deep they may be nested.
#include <gtest/gtest.h>

#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/ParsedJava.h"
#include "support/Requests.h"

namespace {

using test::mappingOf;
using test::parameterOf;
using test::parsedJava;
using test::parseService;
using test::written;

TEST(Parameter, ReadsAndWritesItsDirection) {
  const struct {
    const char* attribute;
    int direction;
  } rows[] = {{"byType='in'", 0}, {"byType='out'", 1}, {"byType='io'", 2}, {"", 2}};
  for (const auto& row : rows) {
    const auto service = parsedJava("<parameter " + std::string(row.attribute) + "/>");
    EXPECT_EQ(parameterOf(*service)->getByType(), row.direction) << row.attribute;
  }
  const auto service = parsedJava("<parameter/>");
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

TEST(FieldName, NullCountsAsEmpty) {
  const auto service = parsedJava("<parameter name='p'/>");
  as::IField* const field = parameterOf<as::IParameter>(*service)->addField(nullptr, 1);
  EXPECT_EQ(field->getName(), "");
  field->setName("x");
  field->setName(nullptr);
  EXPECT_EQ(field->getName(), "");
  EXPECT_NE(written(*service).find("<field name=\"\""), std::string::npos);
}

TEST(Parameter, QualifiedNameJoinsNamesWithoutASeparator) {
  const auto service =
      parsedJava("<parameter name='p'><field name='f1'><field name='f2'/></field></parameter>",
                 "<parameter name='D'><field name='x'/></parameter>");
  auto* const outer = test::itemOf<as::IField>(parameterOf(*service)->getChildren(), 0);
  EXPECT_EQ(test::itemOf<as::IField>(outer->getChildren(), 0)->getQualifiedName(), "oppf1f2");
  EXPECT_EQ(parameterOf(*service)->getQualifiedName(), "opp");
  auto* const definition = test::itemOf<as::IParameter>(service->getParameterTypeDefs(), 0);
  EXPECT_EQ(test::itemOf<as::IField>(definition->getChildren(), 0)->getQualifiedName(), "Dx");
}

// The operation's name belongs to its parameters alone, and nodes are compared by their names,
// prefixes included: in a prefixed document it is left out.
TEST(QualifiedName, StartsWithTheOperationOfItsOwnParametersOnly) {
  const std::string message =
      "<header><parameters><parameter name='h'><field name='x'/>"
      "</parameter></parameters></header>";
  std::string document = test::parameterDocument(as::namespaces::ws.uri, "<parameter name='p'/>");
  document.insert(document.find("</operation>"), message);
  const auto service = parseService(document);
  auto* const operation = as::interface_cast<as::IWSOperation>(test::operationOf(*service));
  auto* const header = test::itemOf<as::IWSHeader>(operation->getHeaders(), 0);
  auto* const parameter = test::itemOf<as::IParameter>(header->getParameters(), 0);
  EXPECT_EQ(parameter->getQualifiedName(), "h");
  EXPECT_EQ(test::itemOf<as::IField>(parameter->getChildren(), 0)->getQualifiedName(), "hx");
  EXPECT_EQ(parameterOf<as::IParameter>(*service)->getQualifiedName(), "opp");
}

TEST(QualifiedName, OfAPrefixedDocumentStartsAtTheParameter) {
  const std::string ns = as::namespaces::java.uri;
  const auto service = parseService(
      "<j:service " + test::declarations(ns, ns + " " + ns, "j") +
      "><j:operations><j:operation name='op'><j:parameters><j:parameter name='p'>"
      "<j:field name='f'/></j:parameter></j:parameters></j:operation></j:operations></j:service>");
  auto* const parameter = parameterOf<as::IParameter>(*service);
  EXPECT_EQ(parameter->getQualifiedName(), "p");
  EXPECT_EQ(test::itemOf<as::IField>(parameter->getChildren(), 0)->getQualifiedName(), "pf");
}

TEST(QualifiedName, StartsBehindAFieldAttribute) {
  const auto service = parseService(test::parameterDocument(
      as::namespaces::ws.uri,
      "<parameter name='p'><fieldAttribute name='a'><field name='f'/></fieldAttribute>"
      "</parameter>"));
  auto* const attribute =
      test::itemOf<as::IField>(parameterOf<as::IWSParameter>(*service)->getFieldAttributes(), 0);
  EXPECT_EQ(attribute->getQualifiedName(), "oppa");
  EXPECT_EQ(test::itemOf<as::IField>(attribute->getChildren(), 0)->getQualifiedName(), "f");
}

TEST(Parameter, AddsFieldsAndMappingsWhereTheSchemaWantsThem) {
  const auto service = parsedJava("<parameter name='p'><field name='f'/></parameter>");
  const auto program = test::parse(test::payProgram());
  as::IParameter* const parameter = parameterOf(*service);
  EXPECT_EQ(parameter->addMapping(nullptr), nullptr);
  ASSERT_NE(parameter->addMapping(test::topItem<as::IDataItem>(*program)), nullptr);
  as::IField* const field = parameter->addField("g", 2);
  EXPECT_EQ(field->getOccurs(), 2);
  EXPECT_TRUE(parameter->hasChildren());
  const auto again = test::writtenAndRead(*service);
  EXPECT_EQ(parameterOf(*again)->getChildren()->getLength(), 2);
  EXPECT_EQ(mappingOf(*again)->getRawMapping(), "WS-COUNT");
}

// Nesting.

// What may be read may be written, and the other way round.
TEST(Nesting, AsDeepAsADocumentMayBeIsWrittenAndRead) {
  // The root, "operations", "operation", "parameters" and "parameter" stand around the fields.
  constexpr int fields = 2048 - 5;
  std::string open;
  std::string close;
  for (int i = 0; i < fields; i++) {
    open += "<field name='f'>";
    close += "</field>";
  }
  for (const char* const innermost : {"", "\n", "<!-- c -->"}) {
    const auto service =
        parsedJava("<parameter name='p'>" + open + innermost + close + "</parameter>");
    const auto again = test::writtenAndRead(*service);
    EXPECT_EQ(parameterOf<as::IParameter>(*again)->getChildren()->getLength(), 1);
  }
  const std::string deeper = test::parameterDocument(
      as::namespaces::java.uri, "<parameter><field>" + open + close + "</field></parameter>");
  EXPECT_EQ(test::serviceOutcomeOf(deeper).result, test::Result::parseException);
}

TEST(Nesting, DeeperThanADocumentMayBeIsNotWritten) {
  const auto service = parsedJava("<parameter name='p'/>");
  as::IField* field = parameterOf<as::IParameter>(*service);
  for (int i = 0; i < 2048 - 5; i++) field = field->addField("f", 1);
  EXPECT_THROW(written(*service), as::CASException);
}

}  // namespace

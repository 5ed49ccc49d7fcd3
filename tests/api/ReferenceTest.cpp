// Tests of what a parameter takes from the type definition that it refers to, and what stays its
// own; and of names, of nesting as deep as a document may be.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/Flavours.h"
#include "support/ModelText.h"

namespace {

using test::flavours::javaNamespace;
using test::flavours::parameterOf;
using test::flavours::parseService;
using test::flavours::written;

// Java services.
std::string documentOf(const std::string& parameters, const std::string& definitions = "") {
  return test::flavours::document(javaNamespace, parameters, definitions);
}

std::unique_ptr<as::IService> parsed(const std::string& parameters,
                                     const std::string& definitions = "") {
  return parseService(documentOf(parameters, definitions));
}

const std::string chain =
    "<parameter name='Far' occurs='5'><mappings><mapping item='A'/></mappings><field name='f'/>"
    "</parameter><parameter name='Near' ref='Far' occurs='2'/>";

// Fields and mappings come from the end of the chain, the occurrences from its nearest link.
TEST(Reference, FollowsAChainForAllButTheOccurrences) {
  const auto service = parsed("<parameter name='p' ref='Near' occurs='9'/>", chain);
  auto* const parameter = parameterOf<as::IParameter>(*service);
  EXPECT_EQ(parameter->getReferenceType()->getName(), "Near");
  EXPECT_EQ(parameter->getOccurs(), 2);
  EXPECT_EQ(parameter->getChildren()->getLength(), 1);
  EXPECT_EQ(parameter->getMappings()->getLength(), 1);
}

TEST(Reference, OccurrencesAreWrittenToTheOwnElement) {
  const auto service = parsed("<parameter name='p' ref='Near' occurs='9'/>", chain);
  auto* const parameter = parameterOf<as::IParameter>(*service);
  parameter->setOccurs(7);
  EXPECT_EQ(parameter->getAttributeValue("occurs"), "7");
  EXPECT_EQ(parameter->getOccurs(), 2);
}

TEST(Reference, IsResolvedOnce) {
  const auto service =
      parsed("<parameter name='p' ref='A'/>", "<parameter name='A'/><parameter name='B'/>");
  auto* const parameter = parameterOf<as::IParameter>(*service);
  auto* const first = test::itemOf<as::IParameter>(service->getParameterTypeDefs(), 0);
  auto* const second = test::itemOf<as::IParameter>(service->getParameterTypeDefs(), 1);
  first->setName("C");
  second->setName("A");
  EXPECT_EQ(parameter->getReferenceType(), first);
}

TEST(Reference, FindsOnlyDefinitionsInFrontOfIt) {
  const auto service = parsed("<parameter name='p' ref='A'/>",
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
    const auto service = parsed("<parameter name='p' ref='A'/>", row.definitions);
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
  const auto service = parsed("<parameter name='p' ref='Node'/>",
                              "<parameter name='Node'><field name='next' ref='Node'/></parameter>");
  auto* const definition = test::itemOf<as::IParameter>(service->getParameterTypeDefs(), 0);
  auto* const next = test::itemOf<as::IField>(definition->getChildren(), 0);
  EXPECT_EQ(test::itemOf<as::IField>(next->getChildren(), 0), next);
}

TEST(Reference, IsToTheFirstDefinitionOfTheName) {
  const auto service = parsed("<parameter name='p' ref='A'/>",
                              "<parameter name='A' occurs='1'/><parameter name='A' occurs='2'/>");
  EXPECT_EQ(parameterOf<as::IParameter>(*service)->getOccurs(), 1);
}

TEST(Reference, CannotBeExtended) {
  const auto service = parsed("<parameter name='p' ref='A'/>", "<parameter name='A'/>");
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
  const auto service = parsed("<parameter name='p' ref='A'>" + own + "</parameter>",
                              "<parameter name='A'><mappings/><field name='theirs'/></parameter>");
  auto* const parameter = parameterOf<as::IParameter>(*service);
  EXPECT_EQ(parameter->getMappings()->getLength(), 0);
  ASSERT_EQ(parameter->getChildren()->getLength(), 1);
  EXPECT_EQ(test::itemOf<as::IField>(parameter->getChildren(), 0)->getName(), "theirs");
}

TEST(Reference, ToNothingLeavesNothing) {
  const auto service = parsed(
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
      parsed("<parameter name='p' ref='D" + std::to_string(length) + "'/>", definitions);
  auto* const parameter = parameterOf<as::IJavaParameter>(*service);
  EXPECT_EQ(parameter->getType(), as::IJavaField::JAVA_LONG);
  EXPECT_EQ(parameter->getChildren()->getLength(), 1);
  EXPECT_EQ(parameter->getMappings()->getLength(), 0);
}

TEST(FieldName, NullCountsAsEmpty) {
  const auto service = parsed("<parameter name='p'/>");
  as::IField* const field = parameterOf<as::IParameter>(*service)->addField(nullptr, 1);
  EXPECT_EQ(field->getName(), "");
  field->setName("x");
  field->setName(nullptr);
  EXPECT_EQ(field->getName(), "");
  EXPECT_NE(written(*service).find("<field name=\"\""), std::string::npos);
}

// The operation's name belongs to its parameters alone, and nodes are compared by their names,
// prefixes included: in a prefixed document it is left out.
TEST(QualifiedName, StartsWithTheOperationOfItsOwnParametersOnly) {
  const std::string message =
      "<header><parameters><parameter name='h'><field name='x'/>"
      "</parameter></parameters></header>";
  std::string document =
      test::flavours::document(test::flavours::webNamespace, "<parameter name='p'/>");
  document.insert(document.find("</operation>"), message);
  const auto service = parseService(document);
  auto* const operation =
      as::interface_cast<as::IWSOperation>(test::flavours::firstOperation(*service));
  auto* const header = test::itemOf<as::IWSHeader>(operation->getHeaders(), 0);
  auto* const parameter = test::itemOf<as::IParameter>(header->getParameters(), 0);
  EXPECT_EQ(parameter->getQualifiedName(), "h");
  EXPECT_EQ(test::itemOf<as::IField>(parameter->getChildren(), 0)->getQualifiedName(), "hx");
  EXPECT_EQ(parameterOf<as::IParameter>(*service)->getQualifiedName(), "opp");
}

TEST(QualifiedName, OfAPrefixedDocumentStartsAtTheParameter) {
  const std::string ns = javaNamespace;
  const auto service = parseService(
      "<j:service xmlns:j='" + ns +
      "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" + ns + " " +
      ns +
      "'><j:operations><j:operation name='op'><j:parameters><j:parameter name='p'>"
      "<j:field name='f'/></j:parameter></j:parameters></j:operation></j:operations></j:service>");
  auto* const parameter = parameterOf<as::IParameter>(*service);
  EXPECT_EQ(parameter->getQualifiedName(), "p");
  EXPECT_EQ(test::itemOf<as::IField>(parameter->getChildren(), 0)->getQualifiedName(), "pf");
}

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
    const auto service = parsed("<parameter name='p'>" + open + innermost + close + "</parameter>");
    const auto again = test::flavours::writtenAndRead(*service);
    EXPECT_EQ(parameterOf<as::IParameter>(*again)->getChildren()->getLength(), 1);
  }
  EXPECT_EQ(test::outcomeOf([&] {
              return parsed("<parameter><field>" + open + close + "</field></parameter>").release();
            }).result,
            test::Result::parseException);
}

TEST(Nesting, DeeperThanADocumentMayBeIsNotWritten) {
  const auto service = parsed("<parameter name='p'/>");
  as::IField* field = parameterOf<as::IParameter>(*service);
  for (int i = 0; i < 2048 - 5; i++) field = field->addField("f", 1);
  EXPECT_THROW(written(*service), as::CASException);
}

// Whatever the smallest number of occurrences is, the greatest tells that there is a table.
TEST(MappingDimensions, GoByTheGreatestNumberOfOccurrences) {
  const auto program = test::parse(test::dictionaryOf(
      "<group name='G' maxOccurs='5'><group name='H' minOccurs='0' maxOccurs='10'>"
      "<numeric name='N' digits='1' minOccurs='1'/></group></group>"));
  as::IDataItem* item = test::topItem<as::IDataItem>(*program);
  for (int depth = 0; depth < 2; depth++) {
    item = test::itemOf<as::IDataItem>(as::interface_cast<as::IGroup>(item)->getChildren(), 0);
  }
  const auto service = parsed("<parameter name='p'/>");
  as::IMapping* const mapping = parameterOf<as::IParameter>(*service)->addMapping(item);
  EXPECT_EQ(mapping->getRawMapping(), "G.H.N(*,*)");
  EXPECT_EQ(mapping->getAttributeValue("subscript"), "*,*");
}

TEST(JavaNumbers, OutsideTheTablesAreNeverOrNothing) {
  const auto service = parsed("<parameter name='p'/>");
  auto* const operation =
      as::interface_cast<as::IJavaOperation>(test::flavours::firstOperation(*service));
  auto* const parameter = parameterOf<as::IJavaParameter>(*service);
  for (const int other : {-1, 6, 99}) {
    operation->setTransactionType(as::IJavaOperation::TRANS_REQUIRES);
    operation->setTransactionType(static_cast<as::IJavaOperation::TRANS_TYPE>(other));
    EXPECT_EQ(operation->getAttributeValue("transactionType"), "never") << other;
  }
  for (const int other : {-1, 10, 99}) {
    parameter->setType(static_cast<as::IJavaField::TYPE>(other));
    EXPECT_EQ(written(*service).find("dataType"), std::string::npos) << other;
  }
  parameter->setType(as::IJavaField::JAVA_STRING);
  for (const int other : {-1, 10, 99}) {
    parameter->setType(static_cast<as::IJavaField::TYPE>(other));
    EXPECT_EQ(parameter->getAttributeValue("dataType"), "String") << other;
  }
}

// The bodies that the interface brings along answer nothing.
TEST(WebParameterInterface, HasBodiesThatAnswerNothing) {
  const auto service = parseService(test::flavours::document(
      test::flavours::webNamespace,
      "<parameter namespace='urn:x' elementForm='qualified' attributeForm='qualified'/>"));
  auto* const parameter = parameterOf<as::IWSParameter>(*service);
  EXPECT_EQ(parameter->as::IWSParameter::getNamespace(), "");
  EXPECT_EQ(static_cast<int>(parameter->as::IWSParameter::getElementForm()), -1);
  EXPECT_EQ(static_cast<int>(parameter->as::IWSParameter::getAttributeForm()), -1);
  EXPECT_EQ(parameter->getNamespace(), "urn:x");
}

}  // namespace

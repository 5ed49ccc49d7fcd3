// Tests of what a reference to a type definition comes to in a Web service: everywhere where one
// may stand, along chains of definitions, and where there is no such definition.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::fieldAttributeOf;
using test::itemOf;
using test::labelOf;
using test::parseService;
using test::webService;
using test::written;

constexpr int unknown = -1;

as::IWSParameter* parameterOf(as::IService& service) {
  return test::parameterOf<as::IWSParameter>(service);
}
as::IWSParameter* headerParameterOf(as::IService& service) {
  return itemOf<as::IWSParameter>(test::headerOf(service)->getParameters(), 0);
}
as::IWSParameter* faultParameterOf(as::IService& service) {
  return itemOf<as::IWSParameter>(test::faultOf(service)->getParameters(), 0);
}
// The definition of that name; null when there is none.
as::IWSParameter* definitionOf(as::IService& service, const std::string& name) {
  as::IList* const definitions = service.getParameterTypeDefs();
  for (int i = 0; i < definitions->getLength(); i++) {
    auto* const definition = itemOf<as::IWSParameter>(definitions, i);
    if (definition->getName() == name) return definition;
  }
  return nullptr;
}
as::IWSParameter* fieldOf(as::IField* parent) { return test::fieldOf<as::IWSParameter>(parent); }

// Where an element can stand that refers to a definition.
struct Place {
  const char* label;
  const char* element;
  bool inDefinitions;       // Else in the operation.
  const char* before;       // In front of the element, in the operation or the definitions ...
  const char* after;        // ... and behind it.
  bool isParameter;         // It has a namespace and forms of its own.
  bool hasFieldAttributes;  // It may hold some.
  as::IWSParameter* (*find)(as::IService&);
};

void PrintTo(const Place& place, std::ostream* out) { *out << place.label; }

const Place places[] = {
    {"Parameter", "parameter", false, "<parameters>", "</parameters>", true, true, parameterOf},
    {"Field", "field", false, "<parameters><parameter>", "</parameter></parameters>", false, true,
     [](as::IService& s) { return fieldOf(parameterOf(s)); }},
    {"FieldAttribute", "fieldAttribute", false, "<parameters><parameter>",
     "</parameter></parameters>", false, false,
     [](as::IService& s) { return fieldAttributeOf(parameterOf(s)); }},
    {"HeaderParameter", "parameter", false, "<header><parameters>", "</parameters></header>", true,
     true, headerParameterOf},
    {"HeaderField", "field", false, "<header><parameters><parameter>",
     "</parameter></parameters></header>", false, true,
     [](as::IService& s) { return fieldOf(headerParameterOf(s)); }},
    {"FaultParameter", "parameter", false, "<fault><parameters>", "</parameters></fault>", true,
     true, faultParameterOf},
    {"FaultFieldAttribute", "fieldAttribute", false, "<fault><parameters><parameter>",
     "</parameter></parameters></fault>", false, false,
     [](as::IService& s) { return fieldAttributeOf(faultParameterOf(s)); }},
    {"Definition", "parameter", true, "", "", true, true,
     [](as::IService& s) { return definitionOf(s, "x"); }},
    {"FieldOfADefinition", "field", true, "<parameter name='Outer'>", "</parameter>", false, true,
     [](as::IService& s) { return fieldOf(definitionOf(s, "Outer")); }},
};

std::vector<Place> holders() {
  std::vector<Place> holders;
  std::copy_if(std::begin(places), std::end(places), std::back_inserter(holders),
               [](const Place& place) { return place.hasFieldAttributes; });
  return holders;
}

class WebReference : public testing::TestWithParam<Place> {
 protected:
  // The element in question, named "x", with `attributes` and `content`, in a service with those
  // `definitions` besides.
  as::IWSParameter* make(const std::string& attributes, const std::string& definitions = "",
                         const std::string& content = "") {
    const Place& place = GetParam();
    const std::string element = place.before + ("<" + std::string(place.element)) + " name='x' " +
                                attributes + ">" + content + "</" + place.element + ">" +
                                place.after;
    service_ = parseService(
        webService("", "<parameterTypeDefs>" + definitions + (place.inDefinitions ? element : "") +
                           "</parameterTypeDefs><operations><operation name='op'>" +
                           (place.inDefinitions ? "" : element) + "</operation></operations>"));
    as::IWSParameter* const found = place.find(*service_);
    EXPECT_EQ(found->getName(), "x");
    return found;
  }

  as::IService& service() { return *service_; }

 private:
  std::unique_ptr<as::IService> service_;
};

using WebReferenceDeathTest = WebReference;
using WebReferenceOfHolder = WebReference;  // Of an element that may hold field attributes.

INSTANTIATE_TEST_SUITE_P(Elements, WebReference, testing::ValuesIn(places), labelOf<Place>);
INSTANTIATE_TEST_SUITE_P(Elements, WebReferenceOfHolder, testing::ValuesIn(holders()),
                         labelOf<Place>);

constexpr char everything[] =
    "dataType='int' namespace='urn:own' elementForm='qualified' attributeForm='unqualified' ";

// What leads to nothing is no reference: the element answers for itself, as far as it does at all.
TEST_P(WebReference, ThatNamesNothingIsNone) {
  for (const char* const ref : {"", "ref='' ", "ref='Gone' ", "ref='d' ", "ref='D ' "}) {
    SCOPED_TRACE(ref);
    as::IWSParameter* const element =
        make(std::string(everything) + ref,
             "<parameter name='D' dataType='string' namespace='urn:d' elementForm='unqualified' "
             "attributeForm='qualified'><fieldAttribute name='d'/></parameter>");
    const bool own = GetParam().isParameter;
    EXPECT_EQ(element->getReferenceType(), nullptr);
    EXPECT_EQ(element->getType(), as::IWSField::WS_INT);
    EXPECT_EQ(element->getTypeToString(), "int");
    EXPECT_EQ(element->getNamespace(), own ? "urn:own" : "");
    EXPECT_EQ(element->getElementForm(), own ? 0 : unknown);
    EXPECT_EQ(element->getAttributeForm(), own ? 1 : unknown);
    EXPECT_EQ(element->getNamespaceForParam(), "urn:own");
    EXPECT_EQ(element->getElementFormForParam(), as::IWSField::FORM_QUALIFIED);
    EXPECT_EQ(element->getAttributeFormForParam(), as::IWSField::FORM_UNQUALIFIED);
    EXPECT_EQ(element->getFieldAttributes()->getLength(), 0);
  }
}

TEST_P(WebReferenceOfHolder, ThatNamesNothingLeavesRoomForFieldAttributes) {
  for (const char* const ref : {"ref=''", "ref='Gone'"}) {
    SCOPED_TRACE(ref);
    as::IWSParameter* const element = make(ref, "", "<fieldAttribute name='old'/>");
    as::IWSParameter* const added = element->addFieldAttribute("id");
    ASSERT_NE(added, nullptr);
    ASSERT_EQ(element->getFieldAttributes()->getLength(), 2);
    EXPECT_EQ(itemOf<as::IWSParameter>(element->getFieldAttributes(), 1), added);
    const auto again = test::writtenAndRead(service());
    as::IList* const read = GetParam().find(*again)->getFieldAttributes();
    ASSERT_EQ(read->getLength(), 2);
    EXPECT_EQ(itemOf<as::IWSParameter>(read, 1)->getName(), "id");
  }
}

TEST_P(WebReference, AnswersForTheDefinition) {
  as::IWSParameter* const element =
      make(std::string(everything) + "ref='D'",
           "<parameter name='D' dataType='string' namespace='urn:d' elementForm='unqualified' "
           "attributeForm='qualified'><fieldAttribute name='d'/></parameter>");
  as::IWSParameter* const definition = definitionOf(service(), "D");
  EXPECT_EQ(as::interface_cast<as::IWSParameter>(element->getReferenceType()), definition);
  EXPECT_EQ(element->getType(), as::IWSField::WS_STRING);
  EXPECT_EQ(element->getTypeToString(), "string");
  EXPECT_EQ(element->getNamespace(), "urn:d");
  EXPECT_EQ(element->getElementForm(), as::IWSField::FORM_UNQUALIFIED);
  EXPECT_EQ(element->getAttributeForm(), as::IWSField::FORM_QUALIFIED);
  EXPECT_EQ(element->getNamespaceForParam(), "urn:d");
  EXPECT_EQ(element->getElementFormForParam(), as::IWSField::FORM_UNQUALIFIED);
  EXPECT_EQ(element->getAttributeFormForParam(), as::IWSField::FORM_QUALIFIED);
  EXPECT_EQ(element->getFieldAttributes(), definition->getFieldAttributes());
}

// The definition answers also for what it does not say, though the element says it.
TEST_P(WebReference, AnswersForADefinitionThatSaysNothing) {
  as::IWSParameter* const element =
      make(std::string(everything) + "ref='D'", "<parameter name='D'/>",
           GetParam().hasFieldAttributes ? "<fieldAttribute name='own'/>" : "");
  EXPECT_EQ(element->getType(), unknown);
  EXPECT_EQ(element->getNamespace(), "");
  EXPECT_EQ(element->getElementForm(), unknown);
  EXPECT_EQ(element->getAttributeForm(), unknown);
  EXPECT_EQ(element->getNamespaceForParam(), "");
  EXPECT_EQ(element->getElementFormForParam(), unknown);
  EXPECT_EQ(element->getAttributeFormForParam(), unknown);
  EXPECT_EQ(element->getFieldAttributes()->getLength(), 0);
}

TEST_P(WebReference, SettersWriteTheElementAndNotTheDefinition) {
  as::IWSParameter* const element = make("ref='D'", "<parameter name='D'/>");
  element->setType(as::IWSField::WS_XML);
  element->setNamespace("urn:new");
  element->setElementForm(as::IWSField::FORM_UNQUALIFIED);
  element->setAttributeForm(as::IWSField::FORM_QUALIFIED);
  as::IWSParameter* const definition = definitionOf(service(), "D");
  const struct {
    const char* attribute;
    const char* text;
  } rows[] = {{"dataType", "XML"},
              {"namespace", "urn:new"},
              {"elementForm", "unqualified"},
              {"attributeForm", "qualified"}};
  for (const auto& row : rows) {
    EXPECT_EQ(element->getAttributeValue(row.attribute), row.text);
    EXPECT_EQ(definition->getAttributeValue(row.attribute), "") << row.attribute;
  }
  EXPECT_EQ(element->getType(), unknown);
  EXPECT_EQ(element->getNamespace(), "");
  EXPECT_EQ(element->getElementForm(), unknown);
  EXPECT_EQ(element->getAttributeForm(), unknown);
}

TEST_P(WebReference, NumbersOfNoFormAreNotWritten) {
  as::IWSParameter* const element =
      make("ref='D' elementForm='qualified' attributeForm='unqualified'", "<parameter name='D'/>");
  const std::string before = written(service());
  for (const int other : {2, unknown, 99}) {
    element->setElementForm(static_cast<as::IWSField::FORM>(other));
    element->setAttributeForm(static_cast<as::IWSField::FORM>(other));
  }
  EXPECT_EQ(written(service()), before);
}

TEST_P(WebReference, ShowsWhatIsSetAtTheDefinitionLater) {
  as::IWSParameter* const element = make("ref='D'", "<parameter name='D'/>");
  as::IWSParameter* const definition = definitionOf(service(), "D");
  definition->setType(as::IWSField::WS_ARRAY);
  definition->setNamespace("urn:later");
  definition->setElementForm(as::IWSField::FORM_QUALIFIED);
  as::IWSParameter* const added = definition->addFieldAttribute("later");
  EXPECT_EQ(element->getType(), as::IWSField::WS_ARRAY);
  EXPECT_EQ(element->getNamespace(), "urn:later");
  EXPECT_EQ(element->getElementForm(), as::IWSField::FORM_QUALIFIED);
  EXPECT_EQ(fieldAttributeOf(element), added);
}

// Chains. Type, forms and field attributes are those of the chain's end, the namespace that of its
// nearest link, said or not.
TEST_P(WebReference, FollowsAChainToItsEnd) {
  const struct {
    const char* label;
    const char* definitions;
    int type;
    int elementForm;
    int attributeForm;
    const char* ns;
    const char* fieldAttribute;  // Null for none.
  } rows[] = {
      {"three links",
       "<parameter name='F' dataType='long' elementForm='unqualified' attributeForm='qualified' "
       "namespace='urn:f'><fieldAttribute name='f'/></parameter>"
       "<parameter name='E' ref='F' dataType='int' elementForm='qualified' "
       "attributeForm='unqualified' namespace='urn:e'><fieldAttribute name='e'/></parameter>"
       "<parameter name='D' ref='E' dataType='byte' elementForm='qualified' "
       "attributeForm='unqualified' namespace='urn:d'><fieldAttribute name='d'/></parameter>",
       6, 1, 0, "urn:d", "f"},
      {"the nearest link without a namespace",
       "<parameter name='E' namespace='urn:e' dataType='float'/><parameter name='D' ref='E'/>", 8,
       unknown, unknown, "", nullptr},
      {"an end that says nothing",
       "<parameter name='E'/><parameter name='D' ref='E' dataType='byte' elementForm='qualified' "
       "attributeForm='qualified'><fieldAttribute name='d'/></parameter>",
       unknown, unknown, unknown, "", nullptr},
      {"a last link that names nothing",
       "<parameter name='E' ref='Gone' dataType='short' elementForm='qualified' "
       "attributeForm='unqualified'><fieldAttribute name='e'/></parameter>"
       "<parameter name='D' ref='E' dataType='byte'/>",
       2, 0, 1, "", "e"},
      {"a last link that names a definition behind it, which it does not find",
       "<parameter name='D' ref='E' dataType='byte' elementForm='unqualified' namespace='urn:d'>"
       "<fieldAttribute name='d'/></parameter><parameter name='E' dataType='long' "
       "attributeForm='qualified' namespace='urn:e'><fieldAttribute name='e'/></parameter>",
       0, 1, unknown, "urn:d", "d"},
      {"the first of two of one name",
       "<parameter name='D' dataType='double' namespace='urn:1'/>"
       "<parameter name='D' dataType='decimal' namespace='urn:2'/>",
       9, unknown, unknown, "urn:1", nullptr},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.label);
    as::IWSParameter* const element = make(std::string(everything) + "ref='D'", row.definitions);
    EXPECT_EQ(element->getType(), row.type);
    if (row.type != unknown) {
      EXPECT_EQ(element->getTypeToString(), definitionOf(service(), "D")->getTypeToString());
    }
    EXPECT_EQ(element->getElementForm(), row.elementForm);
    EXPECT_EQ(element->getElementFormForParam(), row.elementForm);
    EXPECT_EQ(element->getAttributeForm(), row.attributeForm);
    EXPECT_EQ(element->getAttributeFormForParam(), row.attributeForm);
    EXPECT_EQ(element->getNamespace(), row.ns);
    EXPECT_EQ(element->getNamespaceForParam(), row.ns);
    ASSERT_EQ(element->getFieldAttributes()->getLength(), row.fieldAttribute == nullptr ? 0 : 1);
    if (row.fieldAttribute != nullptr) {
      EXPECT_EQ(fieldAttributeOf(element)->getName(), row.fieldAttribute);
    }
  }
}

TEST_P(WebReference, TakesFieldAttributesOnlyAtTheEndOfItsChain) {
  as::IWSParameter* const element =
      make("ref='D'", "<parameter name='E'/><parameter name='D' ref='E'/>");
  EXPECT_EQ(element->addFieldAttribute("a"), nullptr);
  EXPECT_EQ(definitionOf(service(), "D")->addFieldAttribute("a"), nullptr);
  as::IWSParameter* const added = definitionOf(service(), "E")->addFieldAttribute("a");
  ASSERT_NE(added, nullptr);
  EXPECT_EQ(fieldAttributeOf(element), added);
}

INSTANTIATE_TEST_SUITE_P(Elements, WebReferenceDeathTest,
                         testing::Values(places[0], places[1], places[3]), labelOf<Place>);

constexpr char noSuchType[] =
    "WSParameterImpl:82: static const XMLCh\\* "
    "CWSParameterImpl::DataTypeToString\\(as::IWSField::TYPE\\): Assertion `false' failed";

// The element's own type is no way out.
TEST_P(WebReferenceDeathTest, TheWordOfADefinitionWithoutTypeEndsTheProcess) {
  for (const char* const definition :
       {"<parameter name='D'/>", "<parameter name='D' dataType='Int32'/>",
        "<parameter name='E'/><parameter name='D' ref='E' dataType='int'/>"}) {
    as::IWSParameter* const element = make("ref='D' dataType='int'", definition);
    EXPECT_DEATH(element->getTypeToString(), noSuchType) << definition;
  }
}

// Also where a reference hides what was set.
TEST_P(WebReferenceDeathTest, SettingANumberOfNoTypeEndsTheProcess) {
  as::IWSParameter* const element = make("ref='D'", "<parameter name='D' dataType='int'/>");
  for (const int type : {unknown, 15}) {
    EXPECT_DEATH(element->setType(static_cast<as::IWSField::TYPE>(type)), noSuchType) << type;
  }
}

// What an element is goes by its name in the namespace, however the document writes that.
TEST(WebPrefix, DoesNotMatterToWhatAnElementIs) {
  const std::string ns = as::namespaces::ws.uri;
  const auto service = parseService(
      "<w:service " + test::declarations(ns, ns + " " + ns, "w") +
      "><w:parameterTypeDefs><w:parameter name='D' namespace='urn:d' elementForm='unqualified'>"
      "<w:fieldAttribute name='a'/></w:parameter></w:parameterTypeDefs><w:operations><w:operation>"
      "<w:parameters><w:parameter namespace='urn:own' elementForm='qualified' "
      "attributeForm='unqualified'><w:field namespace='urn:own' elementForm='qualified' "
      "attributeForm='qualified'/><w:field ref='D'/></w:parameter></w:parameters><w:header "
      "use='literal'><w:parameters><w:parameter/></w:parameters></w:header><w:fault "
      "use='encoded'/></w:operation></w:operations></w:service>");
  as::IWSParameter* const parameter = parameterOf(*service);
  EXPECT_EQ(parameter->getNamespace(), "urn:own");
  EXPECT_EQ(parameter->getElementForm(), as::IWSField::FORM_QUALIFIED);
  EXPECT_EQ(parameter->getAttributeForm(), as::IWSField::FORM_UNQUALIFIED);
  EXPECT_EQ(fieldOf(parameter)->getNamespace(), "");
  EXPECT_EQ(fieldOf(parameter)->getElementForm(), unknown);
  EXPECT_EQ(fieldOf(parameter)->getAttributeForm(), unknown);
  auto* const referring = itemOf<as::IWSParameter>(parameter->getChildren(), 1);
  EXPECT_EQ(referring->getNamespace(), "urn:d");
  EXPECT_EQ(referring->getElementForm(), as::IWSField::FORM_UNQUALIFIED);
  EXPECT_EQ(fieldAttributeOf(referring)->getName(), "a");
  EXPECT_NE(headerParameterOf(*service), nullptr);
  EXPECT_EQ(test::faultOf(*service)->getUse(), as::IWSFault::USE_ENCODED);
}

}  // namespace

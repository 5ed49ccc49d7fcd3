// Tests of the parameters, fields and field attributes of Web services: data types, namespaces and
// forms, and what a reference to a type definition changes.
#include <gtest/gtest.h>

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
using test::labelOf;
using test::parameterOf;
using test::parseService;
using test::written;

constexpr int unknown = -1;

// A service with one operation around `parameters`, and `definitions` of types.
std::unique_ptr<as::IService> parsed(const std::string& parameters,
                                     const std::string& definitions = "") {
  return parseService(test::parameterDocument(as::namespaces::ws.uri, parameters, definitions));
}

as::IWSParameter* fieldOf(as::IField* parameter) {
  return test::fieldOf<as::IWSParameter>(parameter);
}

// Everything that a Web parameter wraps, with the way to it from the first parameter.
struct Place {
  const char* label;
  const char* open;   // In front of the attributes of the element in question ...
  const char* close;  // ... and behind them.
  as::IWSParameter* (*find)(as::IWSParameter*);
  bool isParameter;
};

void PrintTo(const Place& place, std::ostream* out) { *out << place.label; }

const std::vector<Place>& places() {
  static const std::vector<Place> all = {
      {"Parameter", "<parameter name='x' ", "/>", [](as::IWSParameter* p) { return p; }, true},
      {"Field", "<parameter><field name='x' ", "/></parameter>",
       [](as::IWSParameter* p) { return fieldOf(p); }, false},
      {"InnerField", "<parameter><field><field name='x' ", "/></field></parameter>",
       [](as::IWSParameter* p) { return fieldOf(fieldOf(p)); }, false},
      {"FieldAttribute", "<parameter><fieldAttribute name='x' ", "/></parameter>",
       [](as::IWSParameter* p) { return fieldAttributeOf(p); }, false},
  };
  return all;
}

// The element in question, with `attributes`, in a service with those `definitions`.
class WebParameterPlace : public testing::TestWithParam<Place> {
 protected:
  as::IWSParameter* make(const std::string& attributes, const std::string& definitions = "") {
    service_ = parsed(GetParam().open + attributes + GetParam().close, definitions);
    return GetParam().find(parameterOf<as::IWSParameter>(*service_));
  }

  as::IService& service() { return *service_; }

 private:
  std::unique_ptr<as::IService> service_;
};

INSTANTIATE_TEST_SUITE_P(Elements, WebParameterPlace, testing::ValuesIn(places()), labelOf<Place>);

const char* const words[] = {"byte",   "unsignedByte", "short",   "unsignedShort",
                             "int",    "unsignedInt",  "long",    "unsignedLong",
                             "float",  "double",       "decimal", "integer",
                             "string", "Array",        "XML"};

TEST_P(WebParameterPlace, HasTheTypeOfItsWord) {
  for (int type = 0; type < 15; type++) {
    as::IWSParameter* const parameter = make("dataType='" + std::string(words[type]) + "'");
    EXPECT_EQ(parameter->getType(), type) << words[type];
    EXPECT_EQ(parameter->getTypeToString(), words[type]);
  }
}

TEST_P(WebParameterPlace, WritesTheWordOfItsType) {
  as::IWSParameter* const parameter = make("");
  for (int type = 14; type >= 0; type--) {
    parameter->setType(static_cast<as::IWSField::TYPE>(type));
    EXPECT_EQ(parameter->getAttributeValue("dataType"), words[type]);
    EXPECT_EQ(parameter->getType(), type);
  }
}

TEST_P(WebParameterPlace, HasNoTypeForAMissingOrForeignWord) {
  EXPECT_EQ(make("")->getType(), unknown);
  // The schema takes the words of .NET too, for new .NET services stand in its namespace.
  for (const char* const word : {"Int32", "String", "Byte", "Decimal"}) {
    EXPECT_EQ(make("dataType='" + std::string(word) + "'")->getType(), unknown) << word;
  }
}

// The number of no type has no word, and to ask for one is a programming error.
using WebTypeDeathTest = WebParameterPlace;

TEST_P(WebTypeDeathTest, NumbersOfNoTypeEndTheProcess) {
  const std::string end =
      "WSParameterImpl:82: static const XMLCh\\* "
      "CWSParameterImpl::DataTypeToString\\(as::IWSField::TYPE\\): Assertion `false' failed";
  as::IWSParameter* const parameter = make("");
  EXPECT_DEATH(parameter->getTypeToString(), end);
  for (const int type : {-1, 15, 99}) {
    EXPECT_DEATH(parameter->setType(static_cast<as::IWSField::TYPE>(type)), end) << type;
  }
}

INSTANTIATE_TEST_SUITE_P(Elements, WebTypeDeathTest,
                         testing::Values(places().front(), places().back()), labelOf<Place>);

TEST_P(WebParameterPlace, TakesItsTypeFromItsDefinition) {
  as::IWSParameter* const parameter =
      make("ref='D' dataType='int'", "<parameter name='D' dataType='string'/>");
  EXPECT_EQ(parameter->getType(), as::IWSField::WS_STRING);
  EXPECT_EQ(parameter->getTypeToString(), "string");
  parameter->setType(as::IWSField::WS_DOUBLE);
  EXPECT_EQ(parameter->getAttributeValue("dataType"), "double");
  EXPECT_EQ(parameter->getType(), as::IWSField::WS_STRING);
}

TEST_P(WebParameterPlace, OfAMissingDefinitionHasItsOwnType) {
  EXPECT_EQ(make("ref='Gone' dataType='int'")->getType(), as::IWSField::WS_INT);
}

// The two forms: attribute, accessor for whatever it is, accessor for parameters, setter.
struct Form {
  const char* attribute;
  as::IWSField::FORM (as::IWSParameter::*get)();
  as::IWSField::FORM (as::IWSParameter::*getForParam)();
  void (as::IWSParameter::*set)(as::IWSField::FORM);
};

const Form forms[] = {
    {"elementForm", &as::IWSParameter::getElementForm, &as::IWSParameter::getElementFormForParam,
     &as::IWSParameter::setElementForm},
    {"attributeForm", &as::IWSParameter::getAttributeForm,
     &as::IWSParameter::getAttributeFormForParam, &as::IWSParameter::setAttributeForm},
};
const char* const formWords[] = {"qualified", "unqualified"};

// Whatever is nested has a namespace and forms through a type definition only: what stands at its
// own element is not looked at.
TEST_P(WebParameterPlace, HasFormsOfItsOwnOnlyAsAParameter) {
  for (const Form& form : forms) {
    for (int code = 0; code < 2; code++) {
      as::IWSParameter* const parameter =
          make(std::string(form.attribute) + "='" + formWords[code] + "'");
      EXPECT_EQ((parameter->*form.get)(), GetParam().isParameter ? code : unknown)
          << form.attribute;
      EXPECT_EQ((parameter->*form.getForParam)(), code) << form.attribute;
    }
  }
}

TEST_P(WebParameterPlace, HasUnknownFormsWithoutAttributes) {
  as::IWSParameter* const parameter = make("");
  for (const Form& form : forms) {
    EXPECT_EQ((parameter->*form.get)(), unknown) << form.attribute;
    EXPECT_EQ((parameter->*form.getForParam)(), unknown) << form.attribute;
  }
}

TEST_P(WebParameterPlace, WritesFormsAtItsOwnElement) {
  as::IWSParameter* const parameter = make("");
  for (const Form& form : forms) {
    for (const int code : {1, 0, 1}) {
      (parameter->*form.set)(static_cast<as::IWSField::FORM>(code));
      EXPECT_EQ(parameter->getAttributeValue(form.attribute), formWords[code]);
    }
    for (const int other : {2, -1, 99}) {
      (parameter->*form.set)(static_cast<as::IWSField::FORM>(other));
      EXPECT_EQ(parameter->getAttributeValue(form.attribute), "unqualified") << other;
    }
  }
}

TEST_P(WebParameterPlace, WritesNoFormForANumberOfNone) {
  as::IWSParameter* const parameter = make("");
  for (const Form& form : forms) {
    for (const int other : {2, -1, 99}) {
      (parameter->*form.set)(static_cast<as::IWSField::FORM>(other));
    }
    EXPECT_EQ(written(service()).find(form.attribute), std::string::npos);
  }
}

TEST_P(WebParameterPlace, TakesFormsFromItsDefinition) {
  for (const Form& form : forms) {
    const std::string attribute = form.attribute;
    as::IWSParameter* const parameter =
        make("ref='D' " + attribute + "='unqualified'",
             "<parameter name='D' " + attribute + "='qualified'/><parameter name='E'/>");
    EXPECT_EQ((parameter->*form.get)(), 0);
    EXPECT_EQ((parameter->*form.getForParam)(), 0);
    (parameter->*form.set)(as::IWSField::FORM_UNQUALIFIED);
    EXPECT_EQ((parameter->*form.get)(), 0);
    EXPECT_EQ((make("ref='E' " + attribute + "='qualified'", "<parameter name='E'/>")->*form.get)(),
              unknown);
  }
}

TEST_P(WebParameterPlace, HasANamespaceOfItsOwnOnlyAsAParameter) {
  as::IWSParameter* const parameter = make("namespace='urn:own'");
  EXPECT_EQ(parameter->getNamespace(), GetParam().isParameter ? "urn:own" : "");
  EXPECT_EQ(parameter->getNamespaceForParam(), "urn:own");
  EXPECT_EQ(make("")->getNamespace(), "");
}

TEST_P(WebParameterPlace, TakesItsNamespaceFromItsDefinition) {
  as::IWSParameter* const parameter =
      make("ref='D' namespace='urn:own'", "<parameter name='D' namespace='urn:d'/>");
  EXPECT_EQ(parameter->getNamespace(), "urn:d");
  EXPECT_EQ(parameter->getNamespaceForParam(), "urn:d");
  parameter->setNamespace("urn:new");
  EXPECT_EQ(parameter->getAttributeValue("namespace"), "urn:new");
  EXPECT_EQ(parameter->getNamespace(), "urn:d");
  EXPECT_EQ(make("ref='D' namespace='urn:own'", "<parameter name='D'/>")->getNamespace(), "");
}

TEST_P(WebParameterPlace, WritesItsNamespace) {
  as::IWSParameter* const parameter = make("namespace='urn:old'");
  parameter->setNamespace("urn:new & more");
  EXPECT_EQ(parameter->getNamespaceForParam(), "urn:new & more");
  parameter->setNamespace(nullptr);
  EXPECT_EQ(parameter->getNamespaceForParam(), "");
}

// Through a chain of references type and forms come from its end, the namespace from its nearest
// link alone.
TEST_P(WebParameterPlace, FollowsAChainOfReferencesForAllButTheNamespace) {
  as::IWSParameter* const parameter =
      make("ref='Near'",
           "<parameter name='Far' dataType='decimal' elementForm='unqualified' "
           "attributeForm='qualified' namespace='urn:far'/>"
           "<parameter name='Near' ref='Far' dataType='byte' elementForm='qualified' "
           "attributeForm='unqualified' namespace='urn:near'/>");
  EXPECT_EQ(parameter->getType(), as::IWSField::WS_DECIMAL);
  EXPECT_EQ(parameter->getElementForm(), as::IWSField::FORM_UNQUALIFIED);
  EXPECT_EQ(parameter->getAttributeForm(), as::IWSField::FORM_QUALIFIED);
  EXPECT_EQ(parameter->getNamespace(), "urn:near");
}

TEST_P(WebParameterPlace, ReferencesThatLeadBackEnd) {
  for (const char* const definitions :
       {"<parameter name='D' ref='D'/>",
        "<parameter name='E' ref='D'/><parameter name='D' ref='E'/>",
        "<parameter name='D'><field name='f' ref='D'/><fieldAttribute name='a' ref='D'/>"
        "</parameter>"}) {
    as::IWSParameter* const parameter = make("ref='D' dataType='int'", definitions);
    EXPECT_EQ(parameter->getType(), unknown) << definitions;
    EXPECT_EQ(parameter->getElementForm(), unknown) << definitions;
    EXPECT_EQ(parameter->getAttributeForm(), unknown) << definitions;
    EXPECT_EQ(parameter->getNamespace(), "") << definitions;
    EXPECT_LE(parameter->getFieldAttributes()->getLength(), 1) << definitions;
  }
}

TEST(WebFieldAttributes, AreTheDirectChildrenInOrder) {
  const auto service = parsed(
      "<parameter><fieldAttribute name='a'/><field name='f'><fieldAttribute name='inner'/></field>"
      "<fieldAttribute name='b'/></parameter>");
  auto* const parameter = parameterOf<as::IWSParameter>(*service);
  ASSERT_EQ(parameter->getFieldAttributes()->getLength(), 2);
  EXPECT_EQ(fieldAttributeOf(parameter)->getName(), "a");
  EXPECT_EQ(fieldAttributeOf(parameter, 1)->getName(), "b");
  EXPECT_EQ(parameter->getChildren()->getLength(), 1);
  EXPECT_EQ(fieldAttributeOf(fieldOf(parameter))->getName(), "inner");
}

TEST(WebFieldAttributes, AreParametersWithMappings) {
  const auto service = parsed(
      "<parameter><fieldAttribute name='a' occurs='2'><mappings><mapping item='X'/></mappings>"
      "</fieldAttribute></parameter>");
  as::IWSParameter* const attribute = fieldAttributeOf(parameterOf<as::IWSParameter>(*service));
  EXPECT_EQ(attribute->getOccurs(), 2);
  ASSERT_EQ(attribute->getMappings()->getLength(), 1);
  EXPECT_EQ(test::itemOf<as::IMapping>(attribute->getMappings(), 0)->getRawMapping(), "X");
  EXPECT_EQ(attribute->getChildren()->getLength(), 0);
  EXPECT_EQ(attribute->getFieldAttributes()->getLength(), 0);
}

TEST(WebFieldAttributes, OfAReferenceAreThoseOfTheDefinition) {
  const auto service = parsed(
      "<parameter ref='D'><fieldAttribute name='own'/></parameter>",
      "<parameter name='D'><fieldAttribute name='a'/><fieldAttribute name='b'/></parameter>");
  auto* const parameter = parameterOf<as::IWSParameter>(*service);
  ASSERT_EQ(parameter->getFieldAttributes()->getLength(), 2);
  EXPECT_EQ(fieldAttributeOf(parameter)->getName(), "a");
}

TEST(WebFieldAttributes, OfAMissingDefinitionAreTheOwn) {
  const auto service = parsed("<parameter ref='Gone'><fieldAttribute name='own'/></parameter>");
  auto* const parameter = parameterOf<as::IWSParameter>(*service);
  ASSERT_EQ(parameter->getFieldAttributes()->getLength(), 1);
  EXPECT_EQ(fieldAttributeOf(parameter)->getName(), "own");
}

// Where field attributes belong: they hold none themselves.
using WebFieldAttributeHolder = WebParameterPlace;

INSTANTIATE_TEST_SUITE_P(Elements, WebFieldAttributeHolder,
                         testing::ValuesIn(places().begin(), places().end() - 1), labelOf<Place>);

TEST_P(WebFieldAttributeHolder, AddsFieldAttributesLast) {
  as::IWSParameter* const parameter = make("");
  parameter->addField("f", 1);
  as::IWSParameter* const first = parameter->addFieldAttribute("id");
  as::IWSParameter* const second = parameter->addFieldAttribute(nullptr);
  ASSERT_EQ(parameter->getFieldAttributes()->getLength(), 2);
  EXPECT_EQ(fieldAttributeOf(parameter), first);
  EXPECT_EQ(fieldAttributeOf(parameter, 1), second);
  EXPECT_EQ(first->getName(), "id");
  EXPECT_EQ(first->getAttributeValue("occurs"), "0");
  EXPECT_EQ(first->getType(), unknown);
  EXPECT_EQ(first->getMappings()->getLength(), 0);
  EXPECT_EQ(second->getName(), "");
  const std::string text = written(service());
  EXPECT_LT(text.find("<field "), text.find("<fieldAttribute name=\"id\" occurs=\"0\">"));
  EXPECT_NE(text.find("<mappings/>", text.find("<fieldAttribute name=\"id\"")), std::string::npos);
}

TEST_P(WebParameterPlace, AddsNoFieldAttributesToAReference) {
  as::IWSParameter* const parameter = make("ref='D'", "<parameter name='D'/>");
  const std::string before = written(service());
  EXPECT_EQ(parameter->addFieldAttribute("id"), nullptr);
  EXPECT_EQ(parameter->getFieldAttributes()->getLength(), 0);
  EXPECT_EQ(written(service()), before);
}

TEST(WebFieldAttributes, ThatAreAddedAreReadBack) {
  const auto service = parsed("<parameter name='p'/>");
  as::IWSParameter* const added =
      parameterOf<as::IWSParameter>(*service)->addFieldAttribute("größe");
  added->setType(as::IWSField::WS_UNSIGNED_INT);
  const auto program = test::parse(test::payProgram());
  added->addMapping(test::topItem<as::IDataItem>(*program, 2));
  const auto again = test::writtenAndRead(*service);
  as::IWSParameter* const read = fieldAttributeOf(parameterOf<as::IWSParameter>(*again));
  EXPECT_EQ(read->getName(), "größe");
  EXPECT_EQ(read->getTypeToString(), "unsignedInt");
  EXPECT_EQ(test::itemOf<as::IMapping>(read->getMappings(), 0)->getRawMapping(), "RC");
}

// Whatever is added anywhere is a Web parameter.
TEST(WebParameter, ThatIsAddedIsAWebParameter) {
  const auto service = parsed("<parameter name='p'/>");
  as::IParameter* const added =
      test::operationOf(*service)->addParameter(as::IParameter::BY_IN, "q", 1);
  EXPECT_NE(as::interface_cast<as::IWSParameter>(added), nullptr);
  EXPECT_NE(as::interface_cast<as::IWSField>(added->addField("f", 1)), nullptr);
  EXPECT_EQ(as::interface_cast<as::IJavaField>(added), nullptr);
  EXPECT_EQ(as::interface_cast<as::ICOMField>(added), nullptr);
  EXPECT_EQ(as::interface_cast<as::IDotNETField>(added), nullptr);
}

// The bodies that the interface brings along answer nothing.
TEST(WebParameterInterface, HasBodiesThatAnswerNothing) {
  const auto service =
      parsed("<parameter namespace='urn:x' elementForm='qualified' attributeForm='qualified'/>");
  auto* const parameter = parameterOf<as::IWSParameter>(*service);
  EXPECT_EQ(parameter->as::IWSParameter::getNamespace(), "");
  EXPECT_EQ(static_cast<int>(parameter->as::IWSParameter::getElementForm()), -1);
  EXPECT_EQ(static_cast<int>(parameter->as::IWSParameter::getAttributeForm()), -1);
  EXPECT_EQ(parameter->getNamespace(), "urn:x");
}

}  // namespace

// Tests of elements that stand where they should not: in the namespace of another kind of document,
// of names that the model has no object for, or in places that only a document's own schema allows.
// The schema judges the content of an element as that ends; until then everything inside it has
// been read, and must not end the process.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "as/Namespaces.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/OwnProcess.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::Outcome;
using test::outcomeOf;
using test::Result;
using test::TempDirectory;
using testing::AllOf;
using testing::HasSubstr;

struct Kind {
  const char* label;
  const char* uri;
  const char* schemaFile;
  const char* root;
};

constexpr Kind kinds[] = {
    {"dictionary", as::namespaces::dd.uri, as::namespaces::dd.schemaFile, "program"},
    {"Web", as::namespaces::ws.uri, as::namespaces::ws.schemaFile, "service"},
    {"COM", as::namespaces::com.uri, as::namespaces::com.schemaFile, "service"},
    {"Java", as::namespaces::java.uri, as::namespaces::java.schemaFile, "service"},
    {".NET", as::namespaces::dotnet.uri, as::namespaces::dotnet.schemaFile, "service"},
    {"service", as::namespaces::service.uri, as::namespaces::service.schemaFile, "service"},
};
constexpr const Kind& dictionary = kinds[0];
constexpr const Kind& web = kinds[1];

// The kinds whose documents have models of their own.
std::vector<Kind> documentKinds() { return {kinds, kinds + 5}; }

// Where an element is put: inside these, from the root on.
struct Place {
  const char* label;
  const char* open;
  const char* close;
};

std::vector<Place> placesIn(const Kind& kind) {
  if (kind.root == std::string("program")) {
    return {{"root", "", ""},
            {"section", "<dataItems>", "</dataItems>"},
            {"group", "<dataItems><group name='G'>", "</group></dataItems>"}};
  }
  return {{"root", "", ""},
          {"list", "<operations>", "</operations>"},
          {"parameter", "<operations><operation><parameters><parameter>",
           "</parameter></parameters></operation></operations>"}};
}

// "URI file URI file ...", for every kind.
std::string hints(const std::string& directory = "") {
  std::string text;
  for (const Kind& kind : kinds) {
    text += std::string(text.empty() ? "" : " ") + kind.uri + " " + directory + kind.schemaFile;
  }
  return text;
}

// A document of that kind, whose second line is the content.
std::string document(const Kind& kind, const std::string& content, const std::string& location,
                     const std::string& root = "") {
  const std::string name = root.empty() ? kind.root : root;
  return test::element(name, "\n" + content, test::declarations(kind.uri, location) + " name='R'");
}

// What the request for documents of that kind makes of it.
template <class Root>
Outcome<Root> requested(as::IAgentServices& services, const std::string& document, const char* id);

template <>
Outcome<as::IProgram> requested(as::IAgentServices& services, const std::string& document,
                                const char* id) {
  return outcomeOf(services, document, id);
}

template <>
Outcome<as::IService> requested(as::IAgentServices& services, const std::string& document,
                                const char* id) {
  return test::serviceOutcomeOf(services, document, false, id);
}

[[noreturn]] void request(const Kind& kind, as::IAgentServices& services,
                          const std::string& document, const std::string& id = "test.xml") {
  if (kind.root == std::string("program")) {
    test::tellAndExit(requested<as::IProgram>(services, document, id.c_str()));
  }
  test::tellAndExit(requested<as::IService>(services, document, id.c_str()));
}

#define EXPECT_REQUEST(expected, told, ...)                                                      \
  EXPECT_EXIT(request(__VA_ARGS__), testing::ExitedWithCode(static_cast<int>(Result::expected)), \
              told)

std::string refusalOf(const std::string& element, const Kind& kind) {
  return "the element '" + element + "' has no place in a document of the namespace '" + kind.uri +
         "'";
}

// With the shipped schemas.

class ForeignElementDeathTest : public testing::TestWithParam<Kind> {};

TEST_P(ForeignElementDeathTest, OfAnotherSchemaIsRefusedWhereItStarts) {
  const Kind& kind = GetParam();
  const auto services = test::newServices();
  for (const Kind& other : kinds) {
    if (other.uri == kind.uri) continue;
    for (const Place& place : placesIn(kind)) {
      SCOPED_TRACE(std::string(other.label) + " " + place.label);
      const std::string name = std::string("o:") + other.root;
      const std::string element = "<" + name + " xmlns:o='" + other.uri + "' name='x'/>";
      EXPECT_REQUEST(parseException, AllOf(HasSubstr(refusalOf(name, kind)), HasSubstr("line 2")),
                     kind, *services, document(kind, place.open + element + place.close, hints()));
    }
  }
}

// Names that the builder of the document has objects for do not make it one of its own.
TEST_P(ForeignElementDeathTest, OfAFamiliarNameIsRefused) {
  const Kind& kind = GetParam();
  const Kind& other = kind.uri == dictionary.uri ? web : dictionary;
  const auto services = test::newServices();
  for (const char* name : {"properties", "parameter", "dataItems", "operations"}) {
    SCOPED_TRACE(name);
    EXPECT_REQUEST(
        parseException, "", kind, *services,
        document(kind, std::string("<") + name + " xmlns='" + other.uri + "'/>", hints()));
    EXPECT_REQUEST(parseException, "", kind, *services,
                   document(kind, std::string("<") + name + " xmlns=''/>", hints()));
  }
}

TEST_P(ForeignElementDeathTest, OfItsOwnSchemaInAWrongPlaceIsRefused) {
  const Kind& kind = GetParam();
  const auto services = test::newServices();
  const std::string root = std::string("<") + kind.root + " name='x'/>";
  for (const Place& place : placesIn(kind)) {
    SCOPED_TRACE(place.label);
    EXPECT_REQUEST(parseException, HasSubstr("not allowed for content model"), kind, *services,
                   document(kind, place.open + root + place.close, hints()));
  }
}

TEST_P(ForeignElementDeathTest, AsTheRootIsRefused) {
  const Kind& kind = GetParam();
  const auto services = test::newServices();
  for (const char* root :
       {"numeric", "dataItems", "operation", "field", "alphanumericEdited", "x"}) {
    SCOPED_TRACE(root);
    EXPECT_REQUEST(parseException, HasSubstr("no declaration found"), kind, *services,
                   document(kind, "", hints(), root));
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ForeignElementDeathTest, testing::ValuesIn(documentKinds()),
                         [](const auto& row) {
                           const std::string label = row.param.label;
                           return label[0] == '.' ? "DotNet" : label;
                         });

// With schemas that let everything through, brought by the document: no schema directory is set.

// A schema of the kind's namespace with a global element for each name, whose content is any.
std::string openSchema(const Kind& kind, const std::vector<std::string>& names) {
  std::string text =
      "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' elementFormDefault='qualified' "
      "targetNamespace='" +
      std::string(kind.uri) + "' xmlns='" + kind.uri + "'>";
  for (const std::string& name : names) {
    text += "<xs:element name='" + name + "' nillable='true'/>";
  }
  // Elements that it declares inside have no namespace.
  return text +
         "<xs:complexType name='unqualified'><xs:sequence><xs:element name='dataItems' "
         "form='unqualified' minOccurs='0'/><xs:element name='operations' form='unqualified' "
         "minOccurs='0'/><xs:element name='foo' form='unqualified' minOccurs='0'/></xs:sequence>"
         "<xs:anyAttribute processContents='lax'/></xs:complexType></xs:schema>";
}

class OwnSchemaDeathTest : public testing::TestWithParam<Kind> {
 protected:
  OwnSchemaDeathTest() {
    const std::vector<std::string> names = {"program",
                                            "dataItems",
                                            "group",
                                            "numeric",
                                            "alphanumericEdited",
                                            "nullConditionValue",
                                            "object",
                                            "service",
                                            "operation",
                                            "field",
                                            "operations",
                                            "parameters",
                                            "parameter",
                                            "address",
                                            "foo"};
    for (const Kind& each : kinds) directory_.write(each.schemaFile, openSchema(each, names));
    directory_.write("none.xsd",
                     "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element "
                     "name='dataItems'/><xs:element name='operations'/></xs:schema>");
  }

  std::string documentAround(const std::string& content, const std::string& root = "") const {
    return document(GetParam(), content, hints(), root);
  }

  TempDirectory directory_;
  const std::string id_ = directory_.path() + "/d.xml";
  const std::unique_ptr<as::IAgentServices> services_ = test::servicesWithoutSchemas();
};

TEST_P(OwnSchemaDeathTest, DoesNotLetInWhatTheModelHasNoObjectFor) {
  const bool isDictionary = GetParam().root == std::string("program");
  std::vector<const char*> names = {"alphanumericEdited", "nullConditionValue", "object", "foo",
                                    "address"};
  names.push_back(isDictionary ? "service" : "program");
  names.push_back(isDictionary ? "operation" : "numeric");
  for (const char* name : names) {
    for (const Place& place : placesIn(GetParam())) {
      SCOPED_TRACE(std::string(name) + " " + place.label);
      EXPECT_REQUEST(
          parseException, AllOf(HasSubstr(refusalOf(name, GetParam())), HasSubstr("line 2")),
          GetParam(), *services_,
          documentAround(place.open + ("<" + std::string(name) + "/>") + place.close), id_);
    }
    EXPECT_REQUEST(parseException, HasSubstr(refusalOf(name, GetParam())), GetParam(), *services_,
                   documentAround("", name), id_);
  }
}

TEST_P(OwnSchemaDeathTest, DoesNotLetInElementsOfAnotherNamespace) {
  for (const Kind& other : kinds) {
    if (other.uri == GetParam().uri) continue;
    for (const char* name : {"dataItems", "operations", "parameter", "numeric"}) {
      SCOPED_TRACE(std::string(other.label) + " " + name);
      EXPECT_REQUEST(parseException, HasSubstr(refusalOf(name, GetParam())), GetParam(), *services_,
                     documentAround("<" + std::string(name) + " xmlns='" + other.uri + "'/>"), id_);
    }
  }
  for (const char* name : {"dataItems", "operations"}) {
    EXPECT_REQUEST(parseException, HasSubstr(refusalOf(name, GetParam())), GetParam(), *services_,
                   documentAround("<" + std::string(name) +
                                  " xmlns='' xsi:noNamespaceSchemaLocation='none.xsd'/>"),
                   id_);
  }
}

// What it declares inside its own elements it may declare without a namespace.
TEST_P(OwnSchemaDeathTest, MayDeclareElementsWithoutANamespace) {
  const bool isDictionary = GetParam().root == std::string("program");
  const std::string list = isDictionary ? "dataItems" : "operations";
  const std::string start = "<r:" + std::string(GetParam().root) + " " +
                            test::declarations(GetParam().uri, hints(), "r") +
                            " xsi:type='r:unqualified' name='R'>";
  const std::string end = "</r:" + std::string(GetParam().root) + ">";
  EXPECT_REQUEST(root, "", GetParam(), *services_, start + "<" + list + "/>" + end, id_);
  EXPECT_REQUEST(parseException, HasSubstr(refusalOf("foo", GetParam())), GetParam(), *services_,
                 start + "<foo/>" + end, id_);
}

// The names are good, the places are not: the model is what can be made of them.
TEST_P(OwnSchemaDeathTest, MayPutElementsAnywhere) {
  const bool isDictionary = GetParam().root == std::string("program");
  const std::vector<std::string> contents =
      isDictionary ? std::vector<std::string>{"<program/>",
                                              "<group><program><dataItems/></program>"
                                              "</group>",
                                              "<dataItems><dataItems/><parameter/></dataItems>",
                                              "<dataItems xsi:nil='true'/>",
                                              "text<numeric>text"
                                              "</numeric>"}
                   : std::vector<std::string>{"<service/>",
                                              "<operations><service><operations/></service><field/>"
                                              "</operations>",
                                              "<operations xsi:nil='true'/>",
                                              "<operations><operation>text<operation/><field/>"
                                              "<parameters><operations/></parameters></operation>"
                                              "</operations>"};
  for (const std::string& content : contents) {
    SCOPED_TRACE(content);
    EXPECT_REQUEST(root, "", GetParam(), *services_, documentAround(content), id_);
  }
}

TEST_P(OwnSchemaDeathTest, RootThatIsNoModelsGivesNull) {
  const bool isDictionary = GetParam().root == std::string("program");
  for (const char* root :
       isDictionary ? std::vector<const char*>{"numeric", "group", "dataItems"}
                    : std::vector<const char*>{"operation", "operations", "parameter", "field"}) {
    SCOPED_TRACE(root);
    EXPECT_REQUEST(null, "", GetParam(), *services_, documentAround("", root), id_);
  }
}

// Grows as any other does.
TEST_P(OwnSchemaDeathTest, ServiceInsideAServiceTakesOperations) {
  if (GetParam().root != std::string("service")) return;
  const auto outcome = requested<as::IService>(
      *services_, documentAround("<operations><service name='INNER'/></operations>"), id_.c_str());
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  auto* const inner = test::itemOf<as::IService>(outcome.root->getOperations(), 0);
  ASSERT_NE(inner, nullptr);
  const auto grow = [inner] {
    as::IOperation* const added = inner->addOperation("added", nullptr);
    const bool good = added != nullptr && added->getName() == "added" &&
                      inner->getOperations()->getLength() == 1 &&
                      test::itemOf<as::IOperation>(inner->getOperations(), 0) == added;
    std::_Exit(good ? 0 : 1);
  };
  EXPECT_EXIT(grow(), testing::ExitedWithCode(0), "");
}

INSTANTIATE_TEST_SUITE_P(Kinds, OwnSchemaDeathTest, testing::ValuesIn(documentKinds()),
                         [](const auto& row) {
                           const std::string label = row.param.label;
                           return label[0] == '.' ? "DotNet" : label;
                         });

}  // namespace

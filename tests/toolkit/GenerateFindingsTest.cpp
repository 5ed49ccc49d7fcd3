// Tests of what generators tell of services, each text whole: what an output cannot say, what
// stands in its place, and what to do.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Json.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using test::textsOf;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

std::string withMapping(const std::string& tag, const std::string& attributes,
                        const std::string& item, const std::string& more = "") {
  return test::element(tag, "<mappings><mapping item='R." + item + "'/></mappings>" + more,
                       attributes);
}

std::string listOf(const std::string& attributes, const std::string& item) {
  return "<parameter " + attributes + "><mappings><mapping item='R." + item +
         "(*)' subscript='*'/></mappings></parameter>";
}

const std::string textParameter =
    withMapping("parameter", "name='t' byType='in' dataType='string'", "T");

// A structure with a field attribute.
const std::string withAttribute =
    "<field name='s'>" + withMapping("field", "name='t' dataType='string'", "T") +
    withMapping("fieldAttribute", "name='a' dataType='string'", "T") + "</field>";

const char* const noAddress =
    "service: where it is served is not known: the address is 'http://localhost/Tests' unless told "
    "with option 'address'";

struct Row {
  const char* label;
  const char* kind;
  const char* flavour;
  std::string operation;  // What is in it behind its parameters.
  std::string parameters;
  std::vector<std::string> findings;
  std::string attributes{};  // Of the operation.
  std::string types{};
  std::string properties{};
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.label; }

class GenerateFindings : public test::ToolkitTest, public testing::WithParamInterface<Row> {
 protected:
  // s.xml, with the operation "ask".
  void writeService(const Row& row) const {
    write("p.xml",
          test::dictionary(
              "<dataItems><group name='R' offset='0' length='32' linkage='true'>"
              "<alphanumeric name='T' offset='0' length='8' picture='X(8)'/>"
              "<numeric name='D' offset='8' length='8' picture='S9(13)V99' usage='comp-3' "
              "sign='true' digits='15' alignment='2'/>"
              "<numeric name='N' offset='16' length='4' picture='9(4)' digits='4'/>"
              "<alphanumeric name='L' offset='20' length='4' picture='X(4)' minOccurs='3' "
              "maxOccurs='3'/></group></dataItems>"
              "<entryPoints><entryPoint name='E'><parameter dataItem='R' byType='reference'/>"
              "</entryPoint></entryPoints>"));
    const toolkit::Flavour& flavour = *toolkit::findFlavour(row.flavour);
    write("s.xml",
          test::serviceDocument(
              flavour.documents.uri,
              std::string("name='Tests' implementation='") + flavour.word +
                  "' programName='PAYROLL' dataDictFilename='p.xml'",
              "<properties>" + row.properties + "</properties><parameterTypeDefs>" + row.types +
                  "</parameterTypeDefs><operations>" +
                  test::element("operation",
                                "<parameters>" + row.parameters + "</parameters>" + row.operation,
                                "name='ask' entryPoint='E' " + row.attributes) +
                  "</operations>"));
  }

  toolkit::Generated made(const Row& row, const toolkit::GenerateOptions& options = {}) const {
    writeService(row);
    return toolkit::generateFrom(reader(), *toolkit::findGeneratorKind(row.kind), {"s.xml"},
                                 options);
  }
};

TEST_P(GenerateFindings, AreToldWhole) {
  EXPECT_THAT(textsOf(made(GetParam()).findings), ElementsAreArray(GetParam().findings));
}

const char* const literal =
    "style='document' inputUse='literal' outputUse='literal' inputNamespace='urn:i' "
    "outputNamespace='urn:o'";
const char* const encoded =
    "style='rpc' inputUse='encoded' outputUse='literal' inputNamespace='urn:i' "
    "outputNamespace='urn:o'";

std::string header(const std::string& parameters, const char* use = "literal") {
  return test::element("header", "<parameters>" + parameters + "</parameters>",
                       std::string("byType='in' namespace='urn:h' use='") + use + "'");
}
std::string fault(const std::string& parameters, const char* use = "literal") {
  return test::element("fault", "<parameters>" + parameters + "</parameters>",
                       std::string("namespace='urn:f' use='") + use + "'");
}

INSTANTIATE_TEST_SUITE_P(
    OfServices, GenerateFindings,
    testing::Values(
        Row{"NoAddress", "wsdl", "ws", "", textParameter, {noAddress}, literal},
        Row{"ARepeatedHeader",
            "wsdl",
            "ws",
            header(listOf("name='l' byType='in' dataType='string' occurs='3'", "L")),
            textParameter,
            {"ask, header 1.l: a header has one block of a name: that it occurs 3 times is not "
             "said; "
             "put it into a structure",
             noAddress},
            literal},
        Row{"AnEncodedHeader",
            "wsdl",
            "ws",
            header(textParameter, "encoded"),
            textParameter,
            {"ask, header 1: it is encoded: WSDL tells its type, but of no element that it travels "
             "in, and most readers want one; make its use literal",
             noAddress},
            encoded},
        Row{"AnEncodedFault",
            "wsdl",
            "ws",
            fault(textParameter, "encoded"),
            textParameter,
            {"ask, fault 1: it is encoded: WSDL tells its type, but of no element that it travels "
             "in, and most readers want one; make its use literal",
             noAddress},
            encoded},
        Row{"AnEncodedAttribute",
            "wsdl",
            "ws",
            "",
            textParameter + "<parameter name='p' byType='in'>" + withAttribute + "</parameter>",
            {"ask.p: it has field attributes, which SOAP's encoding does not know: the schema has "
             "them all the same; make them fields, or the use literal",
             noAddress},
            encoded},
        Row{"ARepeatedAttribute",
            "xsd",
            "ws",
            "",
            "<parameter name='p' byType='in'>" +
                withMapping("field", "name='t' dataType='string'", "T") +
                "<fieldAttribute name='l' dataType='string' occurs='3'><mappings><mapping "
                "item='R.L(*)' subscript='*'/></mappings></fieldAttribute></parameter>",
            {"ask.p.l: an attribute has one value: that it occurs 3 times is not said; make it a "
             "field"},
            literal},
        Row{"ADecimalAsADouble",
            "java",
            "java",
            "",
            withMapping("parameter", "name='d' byType='in' dataType='double'", "D"),
            {"ask.d: it is a double, the item is a decimal number: BigDecimal stands for it; give "
             "it a data type that is exact"}},
        Row{"ANumberAsText",
            "java",
            "java",
            "",
            withMapping("parameter", "name='n' byType='in' dataType='String'", "N"),
            {"ask.n: it stands for numbers of 4 digits: String stands for it"}},
        Row{"NoType",
            "xsd",
            "ws",
            "",
            "<parameter name='p' byType='in' dataType='Array'/>",
            {"ask.p: there is no type for 'Array': it may hold anything; give it fields, or a data "
             "type of a value"},
            literal},
        Row{"NoTypeOfADeclaredOne",
            "xsd",
            "ws",
            "",
            "<parameter name='p' byType='in' ref='T'/>",
            {"type T: there is no type for 'Array': it may hold anything; give it fields, or a "
             "data "
             "type of a value"},
            literal,
            "<parameter name='T' dataType='Array'/>"},
        Row{"NoUuid",
            "idl",
            "com",
            "",
            textParameter,
            {"property iid: 'mine' is no UUID; write one, as "
             "86ed69ed-f01a-59f8-9692-cb87dba6a410"},
            "",
            "",
            "<property name='iid' value='mine'/>"},
        Row{"TwoThatAreReturned",
            "idl",
            "com",
            "",
            withMapping("parameter", "name='a' byType='out' dataType='string' returnParameter='1'",
                        "T") +
                withMapping("parameter",
                            "name='b' byType='out' dataType='string' returnParameter='1'", "T"),
            {"ask.b: another one is returned: it is a parameter, and not what is returned; mark "
             "one parameter that only comes out"}},
        Row{"OneThatGoesInIsReturned",
            "idl",
            "com",
            "",
            withMapping("parameter", "name='a' byType='io' dataType='string' returnParameter='1'",
                        "T"),
            {"ask.a: it goes in, too: it is a parameter, and not what is returned; mark one "
             "parameter that only comes out"}},
        Row{"AStructureInItself",
            "idl",
            "com",
            "",
            "<parameter name='p' byType='in' ref='Node'/>",
            {"type Node.next: type definition 'Node' refers to itself; refer to another definition "
             "or spell the fields out",
             "type Node.next: a structure of COM cannot stand in itself: a VARIANT stands for it"},
            "",
            "<parameter name='Node'><mappings/><field name='next' ref='Node'/></parameter>"},
        // That a name is made up for the values of structures is not told.
        Row{"ATypeWhoseNameIsNone",
            "xsd",
            "java",
            "",
            "<parameter name='p' byType='in' ref='my type'/>",
            {"type my type: 'my type' is no name in XML, or taken: 'my_type' stands for it"},
            "",
            "<parameter name='my type'><mappings/>" +
                withMapping("field", "name='t' dataType='String'", "T") + "</parameter>"}),
    test::labelOf<Row>);

TEST_F(GenerateFindings, TellWhatAnOptionMeans) {
  const std::string text = withMapping("parameter", "name='t' byType='in' dataType='String'", "T");
  const Row row{"", "java", "java", "", text, {}};
  toolkit::GenerateOptions options;
  options.values = {{"package", "com.class"}};
  EXPECT_THAT(textsOf(made(row, options).findings),
              ElementsAre("option package: 'class' is no name in Java; choose another one"));
  options.values = {{"operation", "tell"}};
  EXPECT_THAT(textsOf(made({"", "xsd", "java", "", text, {}}, options).findings),
              ElementsAre("service: there is no operation 'tell'; name another one"));
  options.values = {{"namespace", "a|b"}};
  EXPECT_THAT(textsOf(made({"", "xsd", "java", "", text, {}}, options).findings),
              ElementsAre("service: namespace 'a|b' is no URI; write what it cannot hold as %20"));
  options.values = {{"address", "http://here/"}};
  EXPECT_THAT(made({"", "wsdl", "ws", "", textParameter, {}, literal}, options).findings,
              IsEmpty());
}

TEST_F(GenerateFindings, WhatHasNoTypeIsAnythingInJson) {
  const toolkit::Generated json =
      made({"",
            "jsonschema",
            "ws",
            "",
            textParameter + "<parameter name='o' byType='in' dataType='Array'/>",
            {},
            literal});
  ASSERT_EQ(json.files.size(), 1U) << testing::PrintToString(textsOf(json.findings));
  const auto schemas = test::parsedJson(json.files.front().content)["$defs"];
  EXPECT_EQ(schemas["ask"]["properties"]["o"], nlohmann::json::object()) << schemas;
}

// What is mapped to several items has the limits of none of them, unless they are alike.
TEST_F(GenerateFindings, ItemsThatDifferLimitNothing) {
  const auto xsdOf = [this](const std::string& other) {
    const toolkit::Generated xsd =
        made({"",
              "xsd",
              "java",
              "",
              "<parameter name='t' byType='in' dataType='String'><mappings><mapping "
              "item='R.T'/><mapping item='" +
                  other + "'/></mappings></parameter>",
              {}});
    EXPECT_EQ(xsd.files.size(), 1U) << testing::PrintToString(textsOf(xsd.findings));
    return xsd.files.empty() ? "" : xsd.files.front().content;
  };
  EXPECT_THAT(xsdOf("R.T"), testing::HasSubstr("<xs:maxLength value=\"8\"/>"));
  EXPECT_THAT(xsdOf("R.L(1)"), testing::Not(testing::HasSubstr("<xs:maxLength")));
}

// As many digits as two digits tell.
TEST_F(GenerateFindings, EditedNumbersHaveTheirPlaces) {
  writeService({"",
                "xsd",
                "java",
                "",
                withMapping("parameter", "name='e' byType='out' dataType='BigDecimal'", "E"),
                {}});
  write("p.xml",
        test::dictionary("<dataItems><group name='R' offset='0' length='13' linkage='true'>"
                         "<numericEdited name='E' offset='0' length='13' picture='Z9.9(10)' "
                         "digits='12' alignment='10'/></group></dataItems><entryPoints><entryPoint "
                         "name='E'><parameter dataItem='R' byType='reference'/></entryPoint>"
                         "</entryPoints>"));
  const toolkit::Generated xsd =
      toolkit::generateFrom(reader(), *toolkit::findGeneratorKind("xsd"), {"s.xml"});
  ASSERT_EQ(xsd.files.size(), 1U) << testing::PrintToString(textsOf(xsd.findings));
  EXPECT_THAT(xsd.files.front().content,
              testing::HasSubstr("<xs:totalDigits value=\"12\"/>\n"
                                 "              <xs:fractionDigits value=\"10\"/>"));
}

// A type that stands for a structure is that structure with nothing added.
TEST_F(GenerateFindings, NamesForStructuresExtendThem) {
  const toolkit::Generated xsd = made({"",
                                       "xsd",
                                       "java",
                                       "",
                                       "<parameter name='p' byType='in' ref='Other'/>",
                                       {},
                                       "",
                                       "<parameter name='Node'><mappings/>" +
                                           withMapping("field", "name='t' dataType='String'", "T") +
                                           "</parameter><parameter name='Other' ref='Node'/>"});
  ASSERT_EQ(xsd.files.size(), 1U);
  EXPECT_NE(xsd.files.front().content.find("  <xs:complexType name=\"Other\">\n"
                                           "    <xs:complexContent>\n"
                                           "      <xs:extension base=\"tns:Node\"/>\n"
                                           "    </xs:complexContent>\n"
                                           "  </xs:complexType>\n"),
            std::string::npos)
      << xsd.files.front().content;
}

// A comment that switches a rule off is heeded, wherever the document comes from.
TEST_F(GenerateFindings, LeaveOutWhatTheDocumentSwitchesOff) {
  writeService({"",
                "xsd",
                "java",
                "",
                withMapping("parameter", "name='p' byType='in' dataType='short'", "T"),
                {}});
  std::string document = test::contentOf("s.xml");
  const toolkit::GeneratorKind& kind = *toolkit::findGeneratorKind("xsd");
  EXPECT_THAT(toolkit::generateFrom(reader(), kind, {"-", document}).files, IsEmpty());
  const std::string operation = "<operation ";
  document.insert(document.find(operation), "<!-- lint: off narrow-data-type -->");
  const toolkit::Generated made = toolkit::generateFrom(reader(), kind, {"-", document});
  EXPECT_EQ(made.files.size(), 1U) << testing::PrintToString(textsOf(made.findings));
}

}  // namespace

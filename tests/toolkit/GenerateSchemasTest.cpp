// Tests of the schemas of Web services: namespaces and forms, field attributes, types that are
// others, and what items say of the fields that are mapped to them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "support/GeneratedWeb.h"
#include "support/Json.h"

namespace {

namespace toolkit = as::toolkit;
using namespace test::web;
using nlohmann::json;
using test::textsOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

using GenerateSchemas = test::GenerateWebTest;

TEST_F(GenerateSchemas, FieldAttributesAreAttributesOfTheValue) {
  const auto xsd = [this](const std::string& type, const std::string& item,
                          const std::string& content) {
    return text(
        "xsd",
        Service{operation("op", parameter("name='p' byType='in' " + type, mapped(item) + content)),
                ""});
  };
  // Of a value that any text may be, with no type of its own.
  const std::string plain =
      text("xsd", operation("op", parameter("name='p'" + in, attribute("name='code'" + in))));
  EXPECT_THAT(plain, HasSubstr("<xs:simpleContent>\n      <xs:extension base=\"xs:string\">"));
  EXPECT_THAT(plain, Not(HasSubstr("<xs:simpleType name=")));
  const std::string limited = xsd("dataType='string'", "NAME", attribute("name='code'" + in));
  EXPECT_THAT(limited, HasSubstr("<xs:extension base=\"tns:op.p.value\">"));
  EXPECT_THAT(limited, HasSubstr("<xs:simpleType name=\"op.p.value\">"));
  EXPECT_THAT(limited, HasSubstr("<xs:attribute name=\"code\" use=\"required\">"));
  // Of what may be anything there is no simple content.
  EXPECT_THAT(xsd("dataType='XML'", "NAME", attribute("name='code'" + in)),
              Not(HasSubstr("<xs:simpleContent>")));
}

TEST_F(GenerateSchemas, AttributesHaveTheFormOfWhatTheyStandIn) {
  for (const auto& [form, isQualified] :
       {std::pair("qualified", true), std::pair("unqualified", false)}) {
    const std::string xsd = text(
        "xsd",
        Service{operation("op", parameter(std::string("name='p' attributeForm='") + form + "'" + in,
                                          mapped("NAME") + attribute("name='code'" + in))),
                ""});
    EXPECT_EQ(xsd.find("<xs:attribute name=\"code\" form=\"qualified\"") != std::string::npos,
              isQualified)
        << xsd;
  }
}

TEST_F(GenerateSchemas, AnAttributeThatRepeatsIsToldAndOneOfAnythingIsText) {
  const Service service = {
      operation("op",
                parameter("name='p'" + in,
                          mapped("NAME") +
                              attribute("name='codes' occurs='4'" + in, mapped("SECOND(*)", "*")) +
                              attribute("name='any' byType='in' dataType='XML'", ""))),
      ""};
  const toolkit::Generated made = this->made("xsd", service);
  EXPECT_THAT(allOf(made),
              HasSubstr("<xs:attribute name=\"any\" use=\"required\" type=\"xs:string\"/>"));
  EXPECT_THAT(
      textsOf(made.findings),
      Contains("op.p.codes: an attribute has one value: that it occurs 4 times is not said; "
               "make it a field"));
}

// An attribute has a simple type: what a reference leads to may have none.
TEST_F(GenerateSchemas, AttributesThatReferToWhatIsNoValueAreText) {
  const char* const types[][2] = {
      {"<mappings/>", "<field name='x' dataType='int'><mappings/></field>"},
      {"<mappings/>", "<fieldAttribute name='x' dataType='int'><mappings/></fieldAttribute>"}};
  for (const auto& [mappings, parts] : types) {
    const Service service = {
        operation("op", parameter("name='p'" + in,
                                  mapped("NAME") + attribute("name='a' ref='T'", "<mappings/>"))),
        parameter("name='T' dataType='string'", std::string(mappings) + parts),
        "name='Tests'",
        "",
        {"structured-attribute"}};
    const toolkit::Generated made = this->made("xsd", service);
    EXPECT_THAT(allOf(made),
                HasSubstr("<xs:attribute name=\"a\" use=\"required\" type=\"xs:string\"/>"));
    EXPECT_THAT(textsOf(made.findings),
                Contains("op.p.a: an attribute has one value: the parts of 'T' are not said; make "
                         "it a field"));
  }
  const Service anything = {
      operation("op", parameter("name='p'" + in,
                                mapped("NAME") + attribute("name='a' ref='Other'", "<mappings/>"))),
      parameter("name='T' dataType='XML'", "<mappings/>") + parameter("name='Other' ref='T'", "")};
  const std::string xsd = text("xsd", anything);
  EXPECT_THAT(xsd, HasSubstr("<xs:attribute name=\"a\" use=\"required\" type=\"xs:string\"/>"));
  // Another name of what may be anything may be anything.
  EXPECT_THAT(xsd, HasSubstr("<xs:complexType name=\"Other\" mixed=\"true\">"));
  EXPECT_THAT(xsd, Not(HasSubstr("<xs:restriction base=\"tns:T\"/>")));
}

TEST_F(GenerateSchemas, ADeclaredTypeThatIsAnotherExtendsIt) {
  const Service service = {operation("op", parameter("name='p' byType='in' ref='Other'", "") +
                                               parameter("name='q' byType='in' ref='Word'", "")),
                           parameter("name='One'", "<mappings/>" + field("name='a'" + in)) +
                               parameter("name='Other' ref='One'", "") +
                               parameter("name='Name'" + in) +
                               parameter("name='Word' ref='Name'", "")};
  const std::string xsd = text("xsd", service);
  EXPECT_THAT(xsd, HasSubstr("<xs:complexType name=\"Other\">\n"
                             "    <xs:complexContent>\n"
                             "      <xs:extension base=\"tns:One\"/>\n"));
  EXPECT_THAT(xsd, HasSubstr("<xs:simpleType name=\"Word\">\n"
                             "    <xs:restriction base=\"tns:Name\"/>\n"));
}

TEST_F(GenerateSchemas, WhatIsMappedToNothingHasNoDocumentation) {
  const Service service = {
      operation("op", parameter("name='p' byType='in' ref='Free'", "") +
                          parameter("name='q' byType='in' dataType='XML'", "")),
      parameter("name='Free' dataType='string'", "")};
  const std::string xsd = text("xsd", service);
  EXPECT_THAT(xsd,
              HasSubstr("<xs:simpleType name=\"Free\">\n    <xs:restriction base=\"xs:string\"/>"));
  EXPECT_THAT(xsd, Not(HasSubstr("<xs:annotation>")));
  EXPECT_THAT(
      xsd, HasSubstr("<xs:any minOccurs=\"0\" maxOccurs=\"unbounded\" processContents=\"lax\"/>"));
}

// Elements of another namespace are declared there, once for fields of one shape.
TEST_F(GenerateSchemas, FieldsOfTypesOfOtherNamespacesAreReferences) {
  const auto parameterOf = [](const std::string& name, const std::string& type,
                              const std::string& attributes = "") {
    return parameter("name='" + name + "' namespace='urn:around' byType='in' " + attributes,
                     "<mappings/>" + field("name='x' ref='" + type + "'", ""));
  };
  const Service service = {
      operation("op",
                parameterOf("a", "One") + parameterOf("b", "One") + parameterOf("c", "Two") +
                    parameterOf("d", "Near") + parameterOf("e", "One", "elementForm='unqualified'"),
                "", document),
      parameter("name='One' namespace='urn:other'" + in) +
          parameter("name='Two' namespace='urn:other'" + in, mapped("GROUP.PART")) +
          parameter("name='Near' namespace='urn:around'" + in)};
  const std::string xsd = text("xsd", service);
  const auto times = [&xsd](const std::string& part) {
    int count = 0;
    for (std::size_t at = xsd.find(part); at != std::string::npos; at = xsd.find(part, at + 1)) {
      ++count;
    }
    return count;
  };
  // Two share an element; one of another type needs another name.
  EXPECT_EQ(times(":x\"/>"), 1) << xsd;
  EXPECT_EQ(times(":x_"), 2) << xsd;
  EXPECT_EQ(times("<xs:element name=\"x_"), 1) << xsd;
  EXPECT_EQ(times("<xs:element name=\"x\" type="), 2) << xsd;
  EXPECT_EQ(times("<xs:element name=\"x\" form=\"unqualified\" type="), 1) << xsd;
}

TEST_F(GenerateSchemas, LongNamespacesMakeNamesOfFilesThatDiskAndReaderTake) {
  const std::string uri = "urn:" + std::string(300, 'a');
  const Service service = {
      operation("op", parameter("name='p' namespace='" + uri + "'" + in, ""), "", document), ""};
  const toolkit::Generated made = this->made("xsd", service);
  ASSERT_THAT(made.files, SizeIs(testing::Ge(2U)));
  bool isThere = false;
  for (const toolkit::GeneratedFile& file : made.files) {
    EXPECT_LT(file.name.size(), 120U);
    isThere = isThere || file.name.rfind("Tests-urn-" + std::string(76, 'a') + "-", 0) == 0;
  }
  EXPECT_TRUE(isThere);
}

TEST_F(GenerateSchemas, SchemasOfServicesWithoutAProgramAreInTheNamespaceOfTheirName) {
  const Service service = {
      operation("op", ""),
      "",
      "name='Te sts'",
      "",
      {"unusable-dictionary", "lost-entry-point", "other-program", "no-dictionary"}};
  made("xsd", service);
  std::string text = test::contentOf("s.xml");
  for (const char* const part : {" programName='PAYROLL'", " dataDictFilename='p.xml'"}) {
    text.erase(text.find(part), std::string(part).size());
  }
  write("alone.xml", text);
  const toolkit::Generated alone =
      toolkit::generateFrom(reader(), *toolkit::findGeneratorKind("xsd"), {"alone.xml"});
  EXPECT_THAT(allOf(alone), HasSubstr("targetNamespace=\"urn:agentservices:Te%20sts\""));
}

TEST_F(GenerateSchemas, FieldsOfSeveralItemsAlikeHaveTheLimitsOfOne) {
  const auto xsd = [this](const std::string& other) {
    return text("xsd",
                operation("op", parameter("name='p'" + in,
                                          "<mappings><mapping item='R.NAME'/><mapping item='R." +
                                              other + "'/></mappings>")));
  };
  EXPECT_THAT(xsd("OTHER"), HasSubstr("<xs:maxLength value=\"8\"/>"));
  EXPECT_THAT(xsd("GROUP.PART"), Not(HasSubstr("<xs:maxLength")));
  // Nor does a third one help that is as the first.
  EXPECT_THAT(xsd("GROUP.PART'/><mapping item='R.OTHER"), Not(HasSubstr("<xs:maxLength")));
}

TEST_F(GenerateSchemas, WhatIsMappedToItemsThatThereAreNotHasNoLimits) {
  const Service lost = {operation("op", parameter("name='p'" + in, mapped("NONE"))),
                        "",
                        "name='Tests'",
                        "",
                        {"lost-data-item"}};
  const json schema = test::parsedJson(text("jsonschema", lost));
  EXPECT_EQ(schema["$defs"]["op"]["properties"]["p"],
            test::parsedJson(R"({"type": "string", "description": "R.NONE"})"));
}

TEST_F(GenerateSchemas, WithoutADictionaryThereAreTypesAlone) {
  Service service = {
      operation("op", parameter("name='p'" + in)), "", "name='Tests'", "", {"unusable-dictionary"}};
  made("jsonschema", service);
  std::filesystem::remove("p.xml");
  const toolkit::Generated alone =
      toolkit::generateFrom(reader(), *toolkit::findGeneratorKind("jsonschema"), {"s.xml"});
  EXPECT_EQ(test::parsedJson(allOf(alone))["$defs"]["op"]["properties"]["p"],
            test::parsedJson(R"({"type": "string", "description": "R.NAME"})"));
}

// How often a field of four occurs, by its mapping.
TEST_F(GenerateSchemas, TablesOccurAsOftenAsTheirItemsSay) {
  struct Row {
    std::string content;
    int least;
    const char* about;
    std::vector<const char*> withoutRules;
  };
  const std::string twice =
      "<mappings><mapping item='R.FIRST.CODE(*)' subscript='*'/>"
      "<mapping item='R.SECOND(*)' subscript='*'/></mappings>";
  const Row rows[] = {
      {mapped("SECOND(*)", "*"), 2, "occurs 2 to 4 times, depending on R.M", {}},
      {mapped("FIRST.CODE(*)", "*"), 1, "occurs 1 to 4 times, depending on R.N", {}},
      // Both of their counters count: neither can be told.
      {twice, 1, "occurs 4 times", {}},
      // One of a table that is no table outside.
      {mapped("THIRD(*)", "*"), 2, "occurs 2 to 4 times, depending on R.NONE", {}},
      {mapped("SECOND(2)", "2"), 4, "occurs 4 times", {}},
      {mapped("FIRST.CELL(*,2)", "*"), 1, "occurs 1 to 4 times, depending on R.N", {}},
      {mapped("FIRST.CELL(2)", "*"),
       4,
       "occurs 4 times",
       {"subscript-count", "interface-subscript-open"}},
      {mapped("SECOND(2)", "*"),
       4,
       "occurs 4 times",
       {"interface-subscript-open", "too-many-field-tables"}},
  };
  for (const Row& row : rows) {
    const Service service = {operation("op", parameter("name='p' occurs='4'" + in, row.content)),
                             "", "name='Tests'", "", row.withoutRules};
    const json p = test::parsedJson(text("jsonschema", service))["$defs"]["op"]["properties"]["p"];
    EXPECT_EQ(p["minItems"], row.least) << row.content;
    EXPECT_EQ(p["maxItems"], 4) << row.content;
    EXPECT_THAT(p["description"], HasSubstr(row.about)) << row.content;
  }
}

}  // namespace

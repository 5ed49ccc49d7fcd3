// Tests of how operations of Web services travel: paths, headers, faults and examples of OpenAPI,
// messages and files of WSDL.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
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

using GenerateMessages = test::GenerateWebTest;

TEST_F(GenerateMessages, PathsOfOpenApiAreOperationsInTheBytesOfUrls) {
  const std::string operations = operation("a b/c", "") + operation("az_AZ-09.~", "") +
                                 operation("Prämie{1}", "") + operation("%2F", "");
  const json made = openApi({operations, ""});
  std::vector<std::string> paths;
  for (const auto& path : made["paths"].items()) paths.push_back(path.key());
  EXPECT_THAT(paths, testing::UnorderedElementsAre("/a%20b%2Fc", "/az_AZ-09.~",
                                                   "/Pr%C3%A4mie%7B1%7D", "/%252F"));
  EXPECT_EQ(made["paths"]["/a%20b%2Fc"]["post"]["operationId"], "a b/c");
}

// lint may be asked not to tell of two operations of one name.
TEST_F(GenerateMessages, OperationsOfOneNameHavePathsOfTheirOwn) {
  const json made = openApi({operation("op", "") + operation("op", "") + operation("Op", ""),
                             "",
                             "name='Tests'",
                             "",
                             {"same-name"}});
  ASSERT_THAT(made["paths"], SizeIs(3));
  for (const auto& path : made["paths"].items()) {
    EXPECT_EQ("/" + path.value()["post"]["operationId"].get<std::string>(), path.key());
  }
  EXPECT_TRUE(made["paths"].contains("/op"));
  EXPECT_TRUE(made["paths"].contains("/Op"));
}

// What OpenAPI says elsewhere is looked at there alone.
TEST_F(GenerateMessages, HeadersAreNotCalledAsWhatIsSaidElsewhere) {
  const std::string header =
      message("header",
              parameter("name='Authorization'" + in) + parameter("name='ACCEPT'" + in) +
                  parameter("name='content-type'" + in) + parameter("name='Accepts'" + in),
              "byType='in' namespace='u' use='literal'");
  const json post = openApi({operation("op", "", header)})["paths"]["/op"]["post"];
  ASSERT_THAT(post["parameters"], SizeIs(4));
  EXPECT_EQ(post["parameters"][0]["name"], "Authorization_");
  EXPECT_EQ(post["parameters"][1]["name"], "ACCEPT_");
  EXPECT_EQ(post["parameters"][2]["name"], "content-type_");
  EXPECT_EQ(post["parameters"][3]["name"], "Accepts");
}

TEST_F(GenerateMessages, OpenApiTellsServerVersionAndProperties) {
  const Service service = {operation("op", ""), "", "name='Tests'",
                           "<property name='team' value='claims'/>"};
  const json told = openApi(service, {{"server", "https://host/base"}, {"version", "2.1-beta"}});
  EXPECT_EQ(told["servers"], test::parsedJson(R"([{"url": "https://host/base"}])"));
  EXPECT_EQ(told["info"]["version"], "2.1-beta");
  EXPECT_EQ(told["info"]["description"], "Program PAYROLL\nteam: claims");
  const json untold = openApi(service);
  EXPECT_FALSE(untold.contains("servers"));
  EXPECT_EQ(untold["info"]["version"], "1");
}

TEST_F(GenerateMessages, HeadersOfOpenApiTravelTheirWays) {
  const std::string headers =
      message("header", parameter("name='token'" + in), "byType='in' namespace='u' use='literal'") +
      message("header", parameter("name='trace id'" + in),
              "byType='io' namespace='u' use='literal'") +
      message("header", parameter("name='taken'" + in), "byType='out' namespace='u' use='literal'");
  const json post = openApi({operation("op", "", headers), ""})["paths"]["/op"]["post"];
  ASSERT_THAT(post["parameters"], SizeIs(2));
  EXPECT_EQ(post["parameters"][0]["name"], "token");
  EXPECT_EQ(post["parameters"][0]["in"], "header");
  EXPECT_EQ(post["parameters"][0]["required"], true);
  EXPECT_EQ(post["parameters"][0]["schema"]["maxLength"], 8);
  // No header has a blank in its name.
  EXPECT_EQ(post["parameters"][1]["name"], "trace_id");
  const json answered = post["responses"]["200"]["headers"];
  ASSERT_THAT(answered, SizeIs(2));
  EXPECT_EQ(answered["taken"]["schema"]["maxLength"], 8);
  EXPECT_EQ(answered["trace_id"]["required"], true);
  EXPECT_FALSE(answered["taken"].contains("name"));
}

TEST_F(GenerateMessages, TablesAndStructuresInHeadersOfOpenApiAreJson) {
  const std::string header =
      message("header",
              parameter("name='codes' occurs='4'" + in, mapped("SECOND(*)", "*")) +
                  parameter("name='who' byType='in'", "<mappings/>" + field("name='first'" + in)) +
                  parameter("name='plain'" + in),
              "byType='in' namespace='u' use='literal'");
  const json post = openApi({operation("op", "", header)})["paths"]["/op"]["post"];
  const json& parameters = post["parameters"];
  ASSERT_THAT(parameters, SizeIs(3));
  const json codes = parameters[0]["content"]["application/json"]["schema"];
  EXPECT_EQ(codes["type"], "array");
  EXPECT_EQ(codes["minItems"], 2);
  EXPECT_EQ(codes["maxItems"], 4);
  EXPECT_TRUE(parameters[1]["content"]["application/json"]["schema"].contains("$ref"));
  EXPECT_FALSE(parameters[0].contains("schema"));
  EXPECT_FALSE(parameters[2].contains("content"));
}

TEST_F(GenerateMessages, OneFaultOfOpenApiIsTheAnswerAndSeveralAreAnyOfThem) {
  const std::string fault = message("fault", parameter("name='why'" + out));
  const json one = openApi({operation("op", "", fault), ""});
  const json content = one["paths"]["/op"]["post"]["responses"]["500"]["content"];
  EXPECT_EQ(content["application/json"]["schema"]["$ref"], "#/components/schemas/opFault");
  EXPECT_EQ(content["application/json"]["example"]["why"], "ABCDEFGH");
  const json two = openApi({operation("op", "", fault + fault), ""});
  EXPECT_EQ(two["paths"]["/op"]["post"]["responses"]["500"]["content"]["application/json"],
            test::parsedJson(R"({"schema": {"anyOf": [{"$ref": "#/components/schemas/opFault"},
                                                 {"$ref": "#/components/schemas/opFault2"}]}})"));
  EXPECT_TRUE(two["components"]["schemas"].contains("opFault2"));
  EXPECT_FALSE(
      openApi({operation("op", ""), ""})["paths"]["/op"]["post"]["responses"].contains("500"));
}

TEST_F(GenerateMessages, ExamplesOfOpenApiAreSmallAllOrNone) {
  const std::string header =
      message("header", parameter("name='token'" + in), "byType='in' namespace='u' use='literal'");
  const std::string large =
      parameter("name='rows' byType='in' occurs='300'", "<mappings/>" + field("name='a'" + in, ""));
  const Service service = {operation("op", large, header), ""};
  const auto requestOf = [](const json& made) {
    return made["paths"]["/op"]["post"]["requestBody"]["content"]["application/json"];
  };
  EXPECT_FALSE(requestOf(openApi(service)).contains("example"));
  EXPECT_THAT(textsOf(made("openapi", service).findings),
              Contains("op: an example of its request would be large and is left out; option "
                       "'examples' asks for it"));
  const json all = openApi(service, {{"examples", "all"}});
  EXPECT_THAT(requestOf(all)["example"]["rows"], SizeIs(300));
  EXPECT_EQ(all["paths"]["/op"]["post"]["parameters"][0]["example"], "ABCDEFGH");
  EXPECT_THAT(text("openapi", service, {{"examples", "none"}}), Not(HasSubstr("\"example\"")));
}

TEST_F(GenerateMessages, ExamplesEndWhereTypesStandInThemselves) {
  const json made =
      openApi({operation("op", parameter("name='p' byType='in' ref='Node'", "")),
               parameter("name='Node'", "<mappings/>" + field("name='next' ref='Node'", "") +
                                            field("name='v'" + in))});
  EXPECT_EQ(made["paths"]["/op"]["post"]["requestBody"]["content"]["application/json"]["example"],
            test::parsedJson(R"({"p": {"v": "ABCDEFGH"}})"));
}

TEST_F(GenerateMessages, ValuesOfConditionsAreOfTheFieldsType) {
  const std::string parameters =
      parameter("name='number' byType='in' dataType='int'", mapped("CODED")) +
      parameter("name='text'" + in, mapped("CODED"));
  const Service service = {operation("op", parameters)};
  const auto propertiesOf = [](const json& made) {
    return made["components"]["schemas"]["op"]["properties"];
  };
  const json told = propertiesOf(openApi(service, {{"conditions", "enumerations"}}));
  EXPECT_EQ(told["number"]["enum"], test::parsedJson("[1, 2]"));
  EXPECT_EQ(told["text"]["enum"], test::parsedJson(R"(["1", "2"])"));
  EXPECT_EQ(told["text"]["pattern"], "^[0-9]{1,1}$");
  EXPECT_FALSE(propertiesOf(openApi(service))["number"].contains("enum"));
}

// A group without fields has no value that any schema knows.
TEST_F(GenerateMessages, WhatHasNoTypeMayBeAnything) {
  const Service service = {operation("op", parameter("name='p' byType='in' dataType='Array'", ""))};
  const toolkit::Generated made = this->made("openapi", service);
  const json told = test::parsedJson(allOf(made));
  EXPECT_EQ(told["components"]["schemas"]["op"]["properties"]["p"], json::object());
  EXPECT_EQ(told["paths"]["/op"]["post"]["requestBody"]["content"]["application/json"]["example"],
            test::parsedJson(R"({"p": ""})"));
  EXPECT_THAT(textsOf(made.findings),
              Contains("op.p: there is no type for 'Array': it may hold anything; give it fields, "
                       "or a data type of a value"));
}

TEST_F(GenerateMessages, SchemasOfWsdlStandInFilesOfTheirOwnWhereTheyAreAskedFor) {
  const Service service = {
      operation("op", parameter("name='a' namespace='urn:own'" + in), "", document), ""};
  const toolkit::Generated made = this->made(
      "wsdl", service, optionsOf({{"schema", "separate"}, {"address", "https://host/x"}}));
  ASSERT_THAT(made.files, SizeIs(testing::Gt(2U)));
  EXPECT_EQ(made.files[0].name, "Tests.wsdl");
  EXPECT_EQ(made.files[1].name, "Tests.xsd");
  EXPECT_THAT(made.files[0].content, HasSubstr("<xs:schema>\n"));
  for (std::size_t i = 1; i < made.files.size(); ++i) {
    EXPECT_THAT(made.files[0].content,
                HasSubstr("schemaLocation=\"" + made.files[i].name + "\"/>"));
    EXPECT_THAT(made.files[i].content, HasSubstr("<xs:schema "));
  }
  EXPECT_THAT(made.files[0].content, HasSubstr("<xs:import namespace=\"urn:own\" schemaLocation="));
  EXPECT_THAT(made.files[0].content, HasSubstr("<soap:address location=\"https://host/x\"/>"));
  // Where it is served is told.
  EXPECT_THAT(textsOf(made.findings), Not(Contains(HasSubstr("where it is served"))));
}

TEST_F(GenerateMessages, HeadersOfWsdlAreElementsOfTheirOwnNamespaces) {
  const std::string header =
      message("header",
              parameter("name='token'" + in) + parameter("name='own' namespace='urn:own'" + in) +
                  parameter("name='codes' occurs='4'" + in, mapped("SECOND(*)", "*")),
              "byType='in' namespace='urn:head' use='literal'");
  const Service service = {operation("op", "", header), ""};
  const toolkit::Generated made = this->made("wsdl", service);
  const std::string wsdl = allOf(made);
  const std::string head = wsdl.substr(0, wsdl.find(">\n", wsdl.find("<wsdl:definitions")));
  const auto prefixOf = [&head](const std::string& uri) {
    const std::size_t end = head.find("=\"" + uri + "\"");
    const std::size_t start = head.rfind(':', end) + 1;
    return head.substr(start, end - start);
  };
  EXPECT_THAT(wsdl, HasSubstr("name=\"token\" element=\"" + prefixOf("urn:head") + ":token\""));
  EXPECT_THAT(wsdl, HasSubstr("name=\"own\" element=\"" + prefixOf("urn:own") + ":own\""));
  EXPECT_THAT(textsOf(made.findings),
              Contains("op, header 1.codes: a header has one block of a name: that it occurs 4 "
                       "times is not said; put it into a structure"));
}

TEST_F(GenerateMessages, MessagesOfOneOperationAreNumbered) {
  const std::string messages =
      message("header", parameter("name='a'" + in), "byType='in' namespace='u' use='encoded'") +
      message("header", parameter("name='b'" + in), "byType='in' namespace='u' use='literal'") +
      message("fault", parameter("name='c'" + out)) +
      message("fault", parameter("name='d'" + out), "namespace='u' use='encoded'");
  const Service service = {operation("op", "", messages), ""};
  const std::string wsdl = text("wsdl", service);
  for (const char* const name : {"opHeader", "opHeader2", "opFault", "opFault2"}) {
    EXPECT_THAT(wsdl, HasSubstr(std::string("<wsdl:message name=\"") + name + "\">"));
  }
  EXPECT_THAT(wsdl, HasSubstr("<wsdl:fault name=\"opFault2\" message=\"tns:opFault2\"/>"));
  const json schema = test::parsedJson(text("jsonschema", service));
  for (const char* const name : {"opHeader", "opHeader2", "opFault", "opFault2"}) {
    EXPECT_TRUE(schema["$defs"].contains(name)) << name;
  }
}

TEST_F(GenerateMessages, StructuresOfEncodedFaultsHaveTypes) {
  const std::string fault = message(
      "fault", parameter("name='why' byType='out'", "<mappings/>" + field("name='code'" + out)),
      "namespace='u' use='encoded'");
  const std::string wsdl = text("wsdl", {operation("op", "", fault), ""});
  EXPECT_THAT(wsdl, HasSubstr("<xs:element name=\"code\""));
}

TEST_F(GenerateMessages, MessagesWithoutANamespaceAreInThatOfTheService) {
  const Service service = {
      operation("op", "",
                message("header", parameter("name='a'" + in), "byType='in' use='literal'") +
                    message("fault", parameter("name='b'" + out), "use='literal'")),
      "",
      "name='Tests'",
      "",
      {"no-message-namespace"}};
  const std::string wsdl = text("wsdl", service);
  EXPECT_THAT(wsdl, HasSubstr("element=\"tns:a\""));
  EXPECT_THAT(wsdl, HasSubstr("element=\"tns:opFault\""));
  const std::string xsd = text("xsd", service);
  EXPECT_THAT(xsd, HasSubstr("<xs:element name=\"a\">"));
  EXPECT_THAT(xsd, HasSubstr("<xs:element name=\"opFault\">"));
}

TEST_F(GenerateMessages, AnOperationWithoutAStyleIsOneOfDocuments) {
  const Service service = {operation("op", parameter("name='a' namespace='urn:a'" + in), "",
                                     " inputUse='literal' outputUse='literal'"),
                           "",
                           "name='Tests'",
                           "",
                           {"no-style"}};
  EXPECT_THAT(text("wsdl", service), HasSubstr("style=\"document\""));
  EXPECT_THAT(text("markdown", service), Not(HasSubstr("- Style:")));
}

}  // namespace

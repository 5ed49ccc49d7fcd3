// Tests of how the flavours beside Java are shown: Web, COM and .NET services.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <regex>
#include <sstream>
#include <string>

#include "support/Flavours.h"
#include "support/SmallStack.h"
#include "support/Toolkit.h"
#include "support/XmlText.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;

// A Web service with everything that only Web services have.
std::string webService() {
  const std::string ns = as::namespaces::ws.uri;
  return "<service xmlns='" + ns +
         "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" + ns + " " +
         ns + R"xml(' name='Pay' implementation='ws'>
      <parameterTypeDefs>
        <parameter name='Line' occurs='3' dataType='Array' namespace='urn:t' elementForm='qualified'
                   attributeForm='unqualified'>
          <fieldAttribute name='no' dataType='int'>
            <mappings><mapping item='N'/><mapping item='M'/></mappings>
          </fieldAttribute>
          <field name='text' dataType='string'><mappings><mapping item='T'/></mappings></field>
        </parameter>
      </parameterTypeDefs>
      <operations>
        <operation name='pay' style='rpc' inputUse='literal' outputUse='encoded'
                   inputNamespace='urn:i' outputNamespace='urn:o'>
          <parameters>
            <parameter name='lines' ref='Line'/>
            <parameter name='odd'/>
          </parameters>
          <header byType='in' namespace='urn:h' use='literal'>
            <parameters><parameter name='session' byType='in' dataType='string'/></parameters>
          </header>
          <fault use='encoded'/>
          <header/>
        </operation>
        <operation name='bare'/>
        <operation name='faulty'><fault namespace='urn:f'/></operation>
      </operations></service>)xml";
}

class FlavourRenderTest : public test::ToolkitTest {};

TEST_F(FlavourRenderTest, ShowPrintsWebServicesWhole) {
  EXPECT_EQ(shown(webService()), R"text(SERVICE Pay

  flavour       Web

TYPE DEFINITIONS

  name       direction  occurs  type    mapped to  clauses
  Line                       3  Array              namespace urn:t, elementForm qualified, attributeForm unqualified
    @no                         int     N
                                        M
    text                        string  T

OPERATIONS

  pay  style rpc, inputUse literal, outputUse encoded, inputNamespace urn:i, outputNamespace urn:o

  name       direction  occurs  type    mapped to  clauses
  lines                                            like Line
  odd
  (header)                                         byType in, namespace urn:h, use literal
    session  in                 string
  (header)
  (fault)                                          use encoded

  bare

  faulty

  name       direction  occurs  type    mapped to  clauses
  (fault)                                          namespace urn:f
)text");
}

TEST_F(FlavourRenderTest, JsonHoldsHeadersAndFaults) {
  const json operation = shownJson(webService())["operations"][0];
  EXPECT_EQ(operation["style"], 0);
  EXPECT_EQ(operation["styleText"], "rpc");
  EXPECT_EQ(operation["inputUseText"], "literal");
  EXPECT_EQ(operation["outputUseText"], "encoded");
  EXPECT_EQ(operation["inputNamespace"], "urn:i");
  EXPECT_EQ(operation["outputNamespace"], "urn:o");
  ASSERT_EQ(operation["headers"].size(), 2u);
  EXPECT_EQ(operation["headers"][0]["byTypeText"], "in");
  EXPECT_EQ(operation["headers"][0]["namespace"], "urn:h");
  EXPECT_EQ(operation["headers"][0]["useText"], "literal");
  EXPECT_EQ(operation["headers"][0]["parameters"][0]["name"], "session");
  EXPECT_EQ(operation["headers"][1]["byTypeText"], "io");
  EXPECT_EQ(operation["headers"][1]["use"], -1);
  EXPECT_EQ(operation["headers"][1]["useText"], "unknown");
  ASSERT_EQ(operation["faults"].size(), 1u);
  EXPECT_EQ(operation["faults"][0]["useText"], "encoded");
  EXPECT_EQ(operation["faults"][0]["parameters"], json::array());
}

TEST_F(FlavourRenderTest, JsonHoldsFormsAndFieldAttributes) {
  const json service = shownJson(webService());
  const json line = service["parameterTypeDefs"][0];
  EXPECT_EQ(line["namespace"], "urn:t");
  EXPECT_EQ(line["elementFormText"], "qualified");
  EXPECT_EQ(line["attributeFormText"], "unqualified");
  EXPECT_EQ(line["fieldAttributes"][0]["name"], "no");
  EXPECT_EQ(line["fieldAttributes"][0]["mappings"].size(), 2u);
  EXPECT_EQ(line["children"].size(), 1u);
  const json lines = service["operations"][0]["parameters"][0];
  EXPECT_EQ(lines["namespace"], "urn:t");
  EXPECT_EQ(lines["typeText"], "Array");
  EXPECT_FALSE(lines.contains("fieldAttributes"));
}

// Nothing comes of them, but they stand in the document.
TEST_F(FlavourRenderTest, PartsOfFieldAttributesAreShown) {
  const std::string document = test::parameterDocument(
      as::namespaces::ws.uri,
      "<parameter name='p'><fieldAttribute name='a' byType='in'><field name='f' byType='out'>"
      "<field name='g'/></field><fieldAttribute name='b'/></fieldAttribute></parameter>");
  EXPECT_THAT(shown(document), HasSubstr("  p\n"
                                         "    @a     in\n"
                                         "      @b\n"
                                         "      f    out\n"
                                         "        g\n"));
  const json a = shownJson(document)["operations"][0]["parameters"][0]["fieldAttributes"][0];
  EXPECT_EQ(a["byTypeText"], "in");
  EXPECT_EQ(a["fieldAttributes"][0]["name"], "b");
  EXPECT_EQ(a["children"][0]["name"], "f");
  EXPECT_EQ(a["children"][0]["byTypeText"], "out");
  EXPECT_EQ(a["children"][0]["children"][0]["name"], "g");
  EXPECT_FALSE(a["children"][0]["children"][0].contains("byType"));
}

// However deep: the JSON of it is no matter of the stack.
TEST_F(FlavourRenderTest, FieldAttributesInsideEachOtherAreShown) {
  constexpr int levels = 2000;
  const std::string document = test::parameterDocument(
      as::namespaces::ws.uri, "<parameter name='p'>" +
                                  test::repeated("<fieldAttribute name='a'>", levels) +
                                  test::repeated("</fieldAttribute>", levels) + "</parameter>");
  write("deep.xml", document);
  const std::unique_ptr<as::IService> service = reader().readService("deep.xml");
  std::ostringstream out;
  test::onASmallStack([&] { as::toolkit::renderJson(out, *service); });
  EXPECT_EQ(test::countOf(out.str(), "\"name\": \"a\""), levels);
  EXPECT_EQ(test::countOf(treeOf(*service), "@a\n"), levels);
}

// To ask for the name of such a type would end the process.
TEST_F(FlavourRenderTest, AMissingDataTypeOfAWebServiceIsUnknown) {
  const json odd = shownJson(webService())["operations"][0]["parameters"][1];
  EXPECT_EQ(odd["type"], -1);
  EXPECT_EQ(odd["typeText"], "unknown");
}

TEST_F(FlavourRenderTest, ComServicesTellTheirReturnParameter) {
  const std::string document = test::parameterDocument(
      as::namespaces::com.uri,
      "<parameter name='a' dataType='currency' returnParameter='1'/><parameter name='b'/>");
  EXPECT_THAT(shown(document), HasSubstr("a     currency  returnParameter yes\n"));
  const json parameters = shownJson(document)["operations"][0]["parameters"];
  EXPECT_EQ(parameters[0]["returnParameter"], 1);
  EXPECT_EQ(parameters[0]["returnParameterText"], "yes");
  EXPECT_EQ(parameters[0]["typeText"], "currency");
  EXPECT_EQ(parameters[1]["returnParameterText"], "no");
  EXPECT_EQ(parameters[1]["typeText"], "object");
}

TEST_F(FlavourRenderTest, NetServicesTellTheirDataTypes) {
  const json service = shownJson(test::parameterDocument(
      as::namespaces::dotnet.uri,
      "<parameter name='a' dataType='UInt32'/><parameter name='b'/><parameter name='c' ref='D'/>",
      "<parameter name='D' dataType='Decimal'/>"));
  EXPECT_EQ(service["flavour"], ".NET");
  const json parameters = service["operations"][0]["parameters"];
  EXPECT_EQ(parameters[0]["typeText"], "UInt32");
  EXPECT_EQ(parameters[1]["typeText"], "Byte");
  EXPECT_EQ(parameters[2]["typeText"], "Decimal");
}

// A new .NET service is written in the namespace of Web services and read back as one of these:
// "implementation" tells the tool what it is.
TEST_F(FlavourRenderTest, NetServicesInTheNamespaceOfWebServicesAreKnown) {
  std::string document = test::parameterDocument(
      as::namespaces::ws.uri,
      "<parameter name='a' dataType='UInt32'/><parameter name='b'/><parameter name='c' ref='D'/>"
      "<parameter name='d' ref='E'/>",
      "<parameter name='D' dataType='Decimal'/><parameter name='E' ref='E'/>");
  document.replace(document.find("dataDictFilename"), 0, "implementation='dotnet' ");
  const json service = shownJson(document);
  EXPECT_EQ(service["flavour"], ".NET");
  const json parameters = service["operations"][0]["parameters"];
  EXPECT_EQ(parameters[0]["type"], 6);
  EXPECT_EQ(parameters[0]["typeText"], "UInt32");
  EXPECT_EQ(parameters[1]["typeText"], "Byte");
  EXPECT_EQ(parameters[2]["typeText"], "Decimal");
  EXPECT_EQ(parameters[3]["typeText"], "Byte");
}

// Whatever of a document tells its flavour, down to an empty one.
TEST_F(FlavourRenderTest, TheFlavourIsKnownHoweverLittleThereIs) {
  const struct {
    const char* ns;
    const char* name;
  } flavours[] = {{as::namespaces::ws.uri, "Web"},
                  {as::namespaces::com.uri, "COM"},
                  {as::namespaces::java.uri, "Java"},
                  {as::namespaces::dotnet.uri, ".NET"}};
  const std::string member =
      "<p:operations><p:operation><p:parameters><p:parameter/></p:parameters></p:operation>"
      "</p:operations>";
  const std::string contents[] = {
      "", "<p:operations/>", "<p:operations><p:operation name='o'/></p:operations>",
      "<p:parameterTypeDefs><p:parameter name='D'/></p:parameterTypeDefs>", member};
  for (const auto& flavour : flavours) {
    for (const std::string& content : contents) {
      for (const std::string prefix : {"", "p:"}) {
        // Without members and without a default namespace only "implementation" is left.
        const bool isEmpty = content.find("name=") == std::string::npos &&
                             content.find("<p:parameter/>") == std::string::npos;
        if (isEmpty && !prefix.empty()) continue;
        SCOPED_TRACE(flavour.name + (" " + prefix) + content);
        std::string document = "<p:service xmlns:p='" + std::string(flavour.ns) +
                               "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                               "xsi:schemaLocation='" +
                               flavour.ns + " " + flavour.ns + "'>" + content + "</p:service>";
        if (prefix.empty()) {
          document = std::regex_replace(document, std::regex("(</?)p:"), "$1");
          document.replace(document.find("xmlns:p="), 8, "xmlns=");
        }
        EXPECT_EQ(shownJson(document)["flavour"], flavour.name);
      }
    }
  }
}

TEST_F(FlavourRenderTest, AnEmptyPrefixedServiceIsWhatItsImplementationSays) {
  const std::string ns = as::namespaces::com.uri;
  EXPECT_EQ(shownJson("<p:service xmlns:p='" + ns +
                      "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                      "xsi:schemaLocation='" +
                      ns + " " + ns + "' implementation='com'/>")["flavour"],
            "COM");
}

}  // namespace

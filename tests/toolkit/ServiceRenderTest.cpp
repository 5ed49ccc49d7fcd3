// Tests of how services are shown, alone and with their programs.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/Documents.h"
#include "support/Json.h"
#include "support/Requests.h"
#include "support/Toolkit.h"

namespace {

using nlohmann::json;

// A service in a folder beside that of its dictionary, with something of everything.
class ServiceRenderTest : public test::ToolkitTest {
 protected:
  void writeBoth() const {
    write("d/PAY.xml", test::payProgram());
    write("s/pay.xml", test::javaService("name='Pay' implementation='java' programName='PAYROLL' "
                                         "dataDictFilename='../d/PAY.xml' "
                                         "exitProgramName='PAYEXIT'",
                                         R"xml(
      <properties><property name="team" value="salaries"/></properties>
      <parameterTypeDefs>
        <parameter name="Line" occurs="3">
          <field name="amount" dataType="BigDecimal">
            <mappings><mapping item="REQ.LINE.AMOUNT(*)" subscript="*"/></mappings>
          </field>
          <field name="more" ref="Line"/>
        </parameter>
      </parameterTypeDefs>
      <operations>
        <operation name="pay" entryPoint="PAY" exitPoints="1" transactionType="requires">
          <hiddenParameters><hiddenParameter item="REQ.TITLE" value="MR"/></hiddenParameters>
          <parameters>
            <parameter name="id" byType="in" dataType="int">
              <mappings><mapping item="REQ.IDX"/></mappings>
            </parameter>
            <parameter name="lines" byType="io" ref="Line"/>
            <parameter name="lost" ref="Nothing"/>
            <parameter name="result" byType="out">
              <field name="code" dataType="int">
                <mappings><mapping item="RC"/><mapping item="$return_code"/></mappings>
              </field>
            </parameter>
          </parameters>
        </operation>
        <operation name="ping" entryPoint="PING"/>
      </operations>)xml"));
  }

  std::unique_ptr<as::IService> withProgram() const {
    return reader().readServiceWithProgram("s/pay.xml").service;
  }
};

TEST_F(ServiceRenderTest, ShowPrintsEverySectionAsATree) {
  writeBoth();
  EXPECT_EQ(treeOfFile("s/pay.xml"), R"text(SERVICE Pay

  flavour       Java
  program       PAYROLL
  dictionary    ../d/PAY.xml
  exit program  PAYEXIT

PROPERTIES

  team  salaries

TYPE DEFINITIONS

  name      direction  occurs  type        mapped to           subscripts  clauses
  Line                      3
    amount                     BigDecimal  REQ.LINE.AMOUNT(*)  *
    more                                                                   like Line

OPERATIONS

  pay  entry point PAY, exit points 1, transactionType requires

  name      direction  occurs  type        mapped to           subscripts  clauses
  (hidden)                                 REQ.TITLE                       value MR
  id        in                 int         REQ.IDX
  lines     io                                                             like Line
  lost                                                                     like Nothing (not found)
  result    out
    code                       int         RC
                                           $return_code

  ping  entry point PING
)text");
}

TEST_F(ServiceRenderTest, ShowWithTheProgramTellsWhereMappingsLead) {
  writeBoth();
  EXPECT_EQ(treeOf(*withProgram()), R"text(SERVICE Pay

  flavour       Java
  program       PAYROLL
  dictionary    ../d/PAY.xml
  exit program  PAYEXIT

PROPERTIES

  team  salaries

TYPE DEFINITIONS

  name      direction  occurs  type        mapped to           subscripts  data item                              clauses
  Line                      3
    amount                     BigDecimal  REQ.LINE.AMOUNT(*)  *           REQ.LINE.AMOUNT S9(7)V99 comp-3 at 14
    more                                                                                                          like Line

OPERATIONS

  pay  entry point PAY, exit points 1, transactionType requires

  name      direction  occurs  type        mapped to           subscripts  data item                              clauses
  (hidden)                                 REQ.TITLE                       REQ.TITLE X(10) alphanumeric at 4      value MR
  id        in                 int         REQ.IDX                         (not found)
  lines     io                                                                                                    like Line
  lost                                                                                                            like Nothing (not found)
  result    out
    code                       int         RC                              RC S9(9) comp-5 at 0
                                           $return_code                    return code

  ping  entry point PING (not found)
)text");
}

// A table stands below an operation where there is something in it.
TEST_F(ServiceRenderTest, ShowPrintsNoTableOfNothing) {
  const auto shownOf = [this](const std::string& inside) {
    return shown(test::webService(
        "name='S' implementation='ws'",
        "<operations><operation name='o'>" + inside + "</operation></operations>"));
  };
  const std::string head = "SERVICE S\n\n  flavour       Web\n\nOPERATIONS\n\n  o\n";
  EXPECT_EQ(shownOf(""), head);
  EXPECT_EQ(shownOf("<hiddenParameters/><parameters/>"), head);
  EXPECT_EQ(shownOf("<hiddenParameters><hiddenParameter item='A'/></hiddenParameters>"),
            head + "\n  name      mapped to\n  (hidden)  A\n");
  EXPECT_EQ(shownOf("<parameters><parameter name='p'/></parameters>"), head + "\n  name\n  p\n");
  EXPECT_EQ(shownOf("<header/>"), head + "\n  name\n  (header)\n");
}

// Field attributes hold what fields do; those of a reference stand where it leads.
TEST_F(ServiceRenderTest, ShowPrintsWhatFieldAttributesHold) {
  const std::string tree = shown(test::webService(
      "name='S' implementation='ws'",
      "<parameterTypeDefs><parameter name='T'><fieldAttribute name='a'><fieldAttribute name='b'/>"
      "<field name='c'/></fieldAttribute><fieldAttribute name='d' ref='T'><field name='e'/>"
      "</fieldAttribute><fieldAttribute name='f' ref='NONE'/></parameter></parameterTypeDefs>"));
  EXPECT_EQ(tree,
            "SERVICE S\n\n  flavour       Web\n\nTYPE DEFINITIONS\n\n"
            "  name    clauses\n"
            "  T\n"
            "    @a\n"
            "      @b\n"
            "      c\n"
            "    @d    like T\n"
            "    @f    like NONE (not found)\n");
}

TEST_F(ServiceRenderTest, JsonHoldsWhatTheAccessorsAnswer) {
  writeBoth();
  const json service = jsonOfFile("s/pay.xml");
  EXPECT_EQ(service.at("flavour"), "Java");
  EXPECT_EQ(service.at("implementation"), 1);
  EXPECT_EQ(service.at("ddFilename"), "../d/PAY.xml");
  EXPECT_EQ(service.at("program"), nullptr);
  EXPECT_EQ(service.at("properties"),
            test::parsedJson(R"([{"name": "team", "value": "salaries"}])"));
  const json& pay = service.at("operations").at(0);
  EXPECT_EQ(pay.at("entryPoint"), nullptr);
  EXPECT_EQ(pay.at("entryPointText"), "PAY");
  EXPECT_EQ(pay.at("exitPoints"), 1);
  EXPECT_EQ(pay.at("transactionType"), 3);
  EXPECT_EQ(pay.at("transactionTypeText"), "requires");
  EXPECT_EQ(pay.at("parameters").at(0), test::parsedJson(R"json({
      "name": "id", "qualifiedName": "payid", "occurs": 0, "byType": 0, "byTypeText": "in",
      "referenceType": null, "referenceTypeText": "", "type": 2, "typeText": "int",
      "hasChildren": false, "children": [], "mappings": [
        {"type": 0, "typeText": "data item", "dataItem": null, "rawMapping": "REQ.IDX",
         "fullyQualifiedName": "IDX of REQ", "dataItemSubscripts": [],
         "interfaceSubscripts": []}]})json"));
}

TEST_F(ServiceRenderTest, JsonWithTheProgramHoldsWhatIsFound) {
  writeBoth();
  const json service = jsonOf(*withProgram());
  EXPECT_EQ(service.at("program"), "PAYROLL");
  const json& pay = service.at("operations").at(0);
  EXPECT_EQ(pay.at("entryPoint"), "PAY");
  EXPECT_EQ(pay.at("hiddenParameters").at(0).at("dataItem"), "REQ.TITLE");
  EXPECT_EQ(pay.at("hiddenParameters").at(0).at("value"), "MR");
  const json& mapping = service.at("/parameterTypeDefs/0/children/0/mappings/0"_json_pointer);
  EXPECT_EQ(mapping.at("dataItem"), "REQ.LINE.AMOUNT");
  EXPECT_EQ(mapping.at("dataItemSubscripts"), test::parsedJson("[-1]"));
}

TEST_F(ServiceRenderTest, JsonDoesNotFollowReferences) {
  writeBoth();
  const json service = jsonOfFile("s/pay.xml");
  const json& more = service.at("/parameterTypeDefs/0/children/1"_json_pointer);
  EXPECT_EQ(more.at("referenceType"), "Line");
  EXPECT_FALSE(more.contains("children"));
  EXPECT_FALSE(more.contains("mappings"));
}

// Every field tells all names on the way to it.
TEST_F(ServiceRenderTest, QualifiedNamesAreNoLongerThanTheyAreRead) {
  const json parameter = shownJson(test::parameterDocument(
      as::namespaces::java.uri,
      "<parameter name='" + std::string(5000, 'p') +
          "'><field name='f'/></parameter>"))["operations"][0]["parameters"][0];
  EXPECT_EQ(parameter["name"], std::string(5000, 'p'));
  EXPECT_EQ(parameter["children"][0]["qualifiedName"],
            "op" + std::string(1998, 'p') + "..." + std::string(1999, 'p') + "f");
}

}  // namespace

// Tests of the tool's show and validate over services.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

#include "support/Documents.h"
#include "support/Tool.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;

// A service in a folder beside that of its dictionary, with something of everything.
class ToolServiceTest : public test::ToolTest {
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

  json shownJson(const std::vector<std::string>& arguments) const {
    const test::ToolOutcome outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    return json::parse(outcome.out, nullptr, false);
  }
};

TEST_F(ToolServiceTest, ShowPrintsEverySectionAsATree) {
  writeBoth();
  EXPECT_EQ(run({"show", "s/pay.xml"}).out, R"text(SERVICE Pay

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

TEST_F(ToolServiceTest, ShowWithTheProgramTellsWhereMappingsLead) {
  writeBoth();
  EXPECT_EQ(run({"show", "--program", "s/pay.xml"}).out, R"text(SERVICE Pay

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

TEST_F(ToolServiceTest, AMissingDictionaryIsNamed) {
  writeBoth();
  std::filesystem::remove(pathOf("d/PAY.xml"));
  EXPECT_EQ(run({"show", "s/pay.xml"}).exitCode, 0);
  const test::ToolOutcome outcome = run({"show", "--program", "s/pay.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, testing::IsEmpty());
  EXPECT_EQ(outcome.err, "s/../d/PAY.xml: error: cannot be read: No such file or directory\n");
}

TEST_F(ToolServiceTest, AServiceThatNamesNoDictionaryIsTold) {
  write("s.xml", test::javaService("", ""));
  const test::ToolOutcome outcome = run({"show", "--program", "s.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("s.xml: error: the service names no dictionary\nhint: "));
}

TEST_F(ToolServiceTest, JsonHoldsWhatTheAccessorsAnswer) {
  writeBoth();
  const json service = shownJson({"show", "--json", "s/pay.xml"});
  EXPECT_EQ(service.at("flavour"), "Java");
  EXPECT_EQ(service.at("implementation"), 1);
  EXPECT_EQ(service.at("ddFilename"), "../d/PAY.xml");
  EXPECT_EQ(service.at("program"), nullptr);
  EXPECT_EQ(service.at("properties"), json::parse(R"([{"name": "team", "value": "salaries"}])"));
  const json& pay = service.at("operations").at(0);
  EXPECT_EQ(pay.at("entryPoint"), nullptr);
  EXPECT_EQ(pay.at("entryPointText"), "PAY");
  EXPECT_EQ(pay.at("exitPoints"), 1);
  EXPECT_EQ(pay.at("transactionType"), 3);
  EXPECT_EQ(pay.at("transactionTypeText"), "requires");
  EXPECT_EQ(pay.at("parameters").at(0), json::parse(R"json({
      "name": "id", "qualifiedName": "payid", "occurs": 0, "byType": 0, "byTypeText": "in",
      "referenceType": null, "referenceTypeText": "", "type": 2, "typeText": "int",
      "hasChildren": false, "children": [], "mappings": [
        {"type": 0, "typeText": "data item", "dataItem": null, "rawMapping": "REQ.IDX",
         "fullyQualifiedName": "IDX of REQ", "dataItemSubscripts": [],
         "interfaceSubscripts": []}]})json"));
}

TEST_F(ToolServiceTest, JsonWithTheProgramHoldsWhatIsFound) {
  writeBoth();
  const json service = shownJson({"show", "--program", "--json", "s/pay.xml"});
  EXPECT_EQ(service.at("program"), "PAYROLL");
  const json& pay = service.at("operations").at(0);
  EXPECT_EQ(pay.at("entryPoint"), "PAY");
  EXPECT_EQ(pay.at("hiddenParameters").at(0).at("dataItem"), "REQ.TITLE");
  EXPECT_EQ(pay.at("hiddenParameters").at(0).at("value"), "MR");
  const json& mapping = service.at("/parameterTypeDefs/0/children/0/mappings/0"_json_pointer);
  EXPECT_EQ(mapping.at("dataItem"), "REQ.LINE.AMOUNT");
  EXPECT_EQ(mapping.at("dataItemSubscripts"), json::parse("[-1]"));
}

TEST_F(ToolServiceTest, JsonDoesNotFollowReferences) {
  writeBoth();
  const json service = shownJson({"show", "--json", "s/pay.xml"});
  const json& more = service.at("/parameterTypeDefs/0/children/1"_json_pointer);
  EXPECT_EQ(more.at("referenceType"), "Line");
  EXPECT_FALSE(more.contains("children"));
  EXPECT_FALSE(more.contains("mappings"));
}

TEST_F(ToolServiceTest, ValidateTakesBothKinds) {
  writeBoth();
  EXPECT_EQ(run({"validate", "s/pay.xml", "d/PAY.xml"}).out, "s/pay.xml: ok\nd/PAY.xml: ok\n");
}

TEST_F(ToolServiceTest, AServiceWithoutASchemaLocationIsHelped) {
  write("s.xml", "<service xmlns='http://agentservices.example/schema/java/v2.0/vorjava.xsd'/>");
  EXPECT_THAT(run({"validate", "s.xml"}).err,
              HasSubstr("hint: name the schema in the root element: "));
}

}  // namespace

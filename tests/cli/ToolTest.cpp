// Tests of the command-line tool: runs the built program and looks at what it writes and answers.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/Tool.h"

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::labelOf;
using test::ToolTest;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::string dictionaryStart(const std::string& rootAttributes) {
  return std::string("<program xmlns=\"") + as::namespaces::dd.uri + "\" " + rootAttributes + ">";
}

// A dictionary with something of everything.
std::string orders() {
  return test::dictionary(R"xml(
    <properties>
      <property name="source" value="PAYROLL.cbl"/>
      <property name="compiled"/>
    </properties>
    <fileSection>
      <fd name="ORDERS" organization="lineSequential" accessMode="sequential"><dataItems>
        <group name="ORDER-LINE" offset="0" length="13" line="10">
          <numeric name="ORDER-NO" offset="0" length="8" line="11" picture="9(8)" digits="8"/>
          <alphanumeric name="ORDER-NOTE" offset="8" length="5" line="12" picture="X(5)"
                        justified="right"/>
        </group>
      </dataItems></fd>
      <fd name="PRINTER"/>
    </fileSection>
    <dataItems>
      <group name="TABLES" offset="0" length="52" line="20">
        <numeric name="USED" offset="0" length="2" line="21" picture="9(4)" usage="comp" digits="4"
                 sync="true">
          <numericCondition name="FEW"><numericConstant value="0"/>
            <numericRange from="2" to="5"/></numericCondition>
          <numericCondition name="FULL"><numericConstant value="10"/></numericCondition>
        </numeric>
        <numeric name="USED-TEXT" offset="0" length="2" line="24" picture="S9" digits="1"
                 sign="ts" redefines="TRUE"/>
        <numeric name="AMOUNT" offset="2" length="5" line="26" picture="S9(7)V99" usage="comp-3"
                 sign="true" digits="9" alignment="2" minOccurs="1" maxOccurs="10"
                 odo="TABLES.USED"/>
        <alphanumeric name="ALL-OF-IT" offset="0" length="52" line="27" renames="true"/>
      </group>
      <numericEdited name="SHOWN" offset="0" length="9" line="30" picture="Z(5)9.99" digits="8"
                     alignment="2" blankWhenZero="true"/>
      <national name="TITLE" offset="0" length="20" line="31" picture="N(10)" usage="unicode"/>
      <pointer name="WHERE" offset="0" length="8" line="32"/>
      <cobolObject name="WINDOW" offset="0" length="8" line="33"/>
      <index name="AT" offset="0" length="4" line="34"/>
      <group name="CALL-AREA" offset="0" length="1" line="40" linkage="true">
        <alphanumeric name="CALL-CODE" offset="0" length="1" line="41" picture="X" linkage="true"/>
      </group>
    </dataItems>
    <entryPoints>
      <entryPoint name="PAYROLL" callConvention="8">
        <parameter dataItem="CALL-AREA" byType="reference"/>
        <parameter dataItem="TITLE" byType="value"/>
        <parameter dataItem="CALL-CODE" byType="returning"/>
      </entryPoint>
    </entryPoints>)xml");
}

// The tree

TEST_F(ToolTest, ShowPrintsEverySectionAsATree) {
  EXPECT_EQ(shown(orders()), R"text(PROGRAM PAYROLL

PROPERTIES

  source    PAYROLL.cbl
  compiled

FILE SECTION

  fd ORDERS  organization line sequential, access sequential

  line  name          offset  length  picture   type            usage    digits  scale  clauses
    10  ORDER-LINE         0      13            group
    11    ORDER-NO         0       8  9(8)      numeric         display       8
    12    ORDER-NOTE       8       5  X(5)      alphanumeric                            justified right

  fd PRINTER

DATA ITEMS

  line  name          offset  length  picture   type            usage    digits  scale  clauses
    20  TABLES             0      52            group
    21    USED             0       2  9(4)      numeric         comp          4         sync
            88 FEW                    value 0, 2 thru 5
            88 FULL                   value 10
    24    USED-TEXT        0       2  S9        numeric         display       1         redefines USED, sign trailing separate
    26    AMOUNT           2       5  S9(7)V99  numeric         comp-3        9      2  occurs 1..10 depending on TABLES.USED, signed
    27    ALL-OF-IT        0      52            alphanumeric                            renames
    30  SHOWN              0       9  Z(5)9.99  numeric edited                8         blank when zero
    31  TITLE              0      20  N(10)     national        unicode
    32  WHERE              0       8            pointer
    33  WINDOW             0       8            alphanumeric
    34  AT                 0       4            index
    40  CALL-AREA          0       1            group                                   linkage
    41    CALL-CODE        0       1  X         alphanumeric

ENTRY POINTS

  PAYROLL  call convention 8
    by reference  CALL-AREA
    by value      TITLE
    returning     CALL-CODE (not found)
)text");
}

TEST_F(ToolTest, ShowLeavesOutEmptySectionsAndColumns) {
  EXPECT_EQ(shown(test::dictionaryOf("<pointer name='P'/>")), R"text(PROGRAM PAYROLL

DATA ITEMS

  name  type
  P     pointer
)text");
}

TEST_F(ToolTest, ShowOfAnEmptyProgramIsItsName) {
  EXPECT_EQ(shown(test::dictionary("")), "PROGRAM PAYROLL\n");
}

TEST_F(ToolTest, ShowWritesControlCharactersAsText) {
  EXPECT_THAT(shown(test::dictionaryOf("<pointer name='A&#10;B&#x7F;C&#x9B;D'/>")),
              HasSubstr(R"(A\u000AB\u007FC\u009BD)"));
}

TEST_F(ToolTest, ShowAlignsNamesByCharactersNotBytes) {
  EXPECT_THAT(shown(test::dictionaryOf("<pointer name='GRÖSSE'/><pointer name='WEIGHT'/>")),
              HasSubstr("  GRÖSSE  pointer\n  WEIGHT  pointer\n"));
}

TEST_F(ToolTest, ShowKeepsTheColumnsBehindAWideName) {
  const std::string wide(70, 'W');
  EXPECT_THAT(
      shown(test::dictionaryOf("<pointer name='" + wide + "'/><pointer name='NARROW'/>")),
      HasSubstr("  " + wide + "  pointer\n  NARROW" + std::string(54, ' ') + "  pointer\n"));
}

TEST_F(ToolTest, ShowReadsTheDeepestNesting) {
  constexpr int depth = 2040;
  std::string document;
  for (int i = 0; i < depth; ++i) document += "<group name='G" + std::to_string(i) + "'>";
  document += "<pointer name='BOTTOM'/>";
  for (int i = 0; i < depth; ++i) document += "</group>";
  document = test::dictionaryOf(document);
  EXPECT_THAT(shown(document),
              EndsWith("\n" + std::string(2 + 2 * depth, ' ') + "BOTTOM  pointer\n"));
  write("deep.xml", document);
  const test::ToolOutcome outcome = run({"show", "--json", "deep.xml"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr(R"("name": "BOTTOM")"));
}

// How one data item is shown: its attributes and the end of its line.
struct ItemCase {
  std::string label;
  std::string item;
  std::string lineEnd;
};

void PrintTo(const ItemCase& itemCase, std::ostream* out) { *out << itemCase.item; }

class ToolItemTest : public ToolTest, public testing::WithParamInterface<ItemCase> {};

TEST_P(ToolItemTest, IsShown) {
  EXPECT_THAT(shown(test::dictionaryOf("<numeric name='N'/>" + GetParam().item)),
              EndsWith("  " + GetParam().lineEnd + "\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Clauses, ToolItemTest,
    testing::Values(
        ItemCase{"FixedTable", "<group name='A' minOccurs='5' maxOccurs='5'/>", "occurs 5"},
        ItemCase{"MaxOccursAlone", "<group name='A' maxOccurs='5'/>", "occurs 5"},
        ItemCase{"VariableTable", "<group name='A' minOccurs='2' maxOccurs='5' odo='N'/>",
                 "occurs 2..5 depending on N"},
        ItemCase{"VariableTableFromNone", "<group name='A' minOccurs='0' maxOccurs='5' odo='N'/>",
                 "occurs 0..5 depending on N"},
        ItemCase{"LostOccursObject", "<group name='A' minOccurs='2' maxOccurs='5' odo='LOST'/>",
                 "occurs 2..5 depending on LOST (not found)"},
        ItemCase{"Redefines", "<group name='A' redefines='true'/>", "redefines N"},
        ItemCase{"RedefinesPastARedefinition",
                 "<group name='A' redefines='true'/><group name='B' redefines='true'/>",
                 "redefines N"},
        ItemCase{"RedefinesNothing", "<group name='G'><group name='A' redefines='true'/></group>",
                 "redefines"},
        ItemCase{"RedefinesOnItsOwnLevel",
                 "<group name='G'><pointer name='X'/></group><group name='A' redefines='true'/>",
                 "redefines G"},
        ItemCase{"Renames", "<alphanumeric name='A' renames='true'/>", "renames"},
        ItemCase{"Sync", "<index name='A' sync='true'/>", "sync"},
        ItemCase{"Linkage", "<index name='A' linkage='true'/>", "linkage"},
        ItemCase{"SignLeading", "<numeric name='A' sign='li'/>", "sign leading"},
        ItemCase{"SignLeadingSeparate", "<numeric name='A' sign='ls'/>", "sign leading separate"},
        ItemCase{"SignTrailing", "<numeric name='A' sign='ti'/>", "sign trailing"},
        ItemCase{"SignTrailingSeparate", "<numeric name='A' sign='ts'/>", "sign trailing separate"},
        ItemCase{"Signed", "<numeric name='A' sign='true'/>", "signed"},
        ItemCase{"NotSigned", "<numeric name='A' sign='false'/>", "numeric  display"},
        ItemCase{"Justified", "<alphanumeric name='A' justified='right'/>", "justified right"},
        ItemCase{"BlankWhenZero", "<numericEdited name='A' blankWhenZero='true'/>",
                 "blank when zero"},
        ItemCase{"SeveralClauses",
                 "<numeric name='A' redefines='true' maxOccurs='3' sign='true' sync='true'/>",
                 "redefines N, occurs 3, signed, sync"}),
    labelOf<ItemCase>);

INSTANTIATE_TEST_SUITE_P(
    Usages, ToolItemTest,
    testing::Values(ItemCase{"Comp", "<numeric name='A' usage='comp'/>", "numeric  comp"},
                    ItemCase{"CompX", "<numeric name='A' usage='comp-x'/>", "numeric  comp-x"},
                    ItemCase{"Comp1", "<numeric name='A' usage='comp-1'/>", "numeric  comp-1"},
                    ItemCase{"Comp2", "<numeric name='A' usage='comp-2'/>", "numeric  comp-2"},
                    ItemCase{"Comp3", "<numeric name='A' usage='comp-3'/>", "numeric  comp-3"},
                    ItemCase{"Comp4", "<numeric name='A' usage='comp-4'/>", "numeric  comp-4"},
                    ItemCase{"Comp5", "<numeric name='A' usage='comp-5'/>", "numeric  comp-5"},
                    ItemCase{"Comp6", "<numeric name='A' usage='comp-6'/>", "numeric  comp-6"},
                    ItemCase{"ExternalFloat", "<numeric name='A' usage='externalFloat'/>",
                             "numeric  external float"},
                    ItemCase{"National", "<national name='A'/>", "national  display"},
                    ItemCase{"Unicode", "<national name='A' usage='unicode'/>",
                             "national  unicode"}),
    labelOf<ItemCase>);

INSTANTIATE_TEST_SUITE_P(
    Conditions, ToolItemTest,
    testing::Values(
        ItemCase{"Constant",
                 "<numeric name='A'><numericCondition name='C'><numericConstant value='-1.5'/>"
                 "</numericCondition></numeric>",
                 "value -1.5"},
        ItemCase{"Range",
                 "<numeric name='A'><numericCondition name='C'><numericRange from='1' to='9'/>"
                 "</numericCondition></numeric>",
                 "value 1 thru 9"},
        ItemCase{"FigurativeConstant",
                 "<numeric name='A'><numericCondition name='C'><numericConstant value='ZERO'/>"
                 "</numericCondition></numeric>",
                 "value ZERO"},
        ItemCase{"NoNumber",
                 "<numeric name='A'><numericCondition name='C'><numericConstant value=''/>"
                 "<numericConstant value='a &quot;b'/></numericCondition></numeric>",
                 R"(value "", "a ""b")"},
        ItemCase{"OnAGroup",
                 "<group name='A'><numericCondition name='C'><numericConstant value='1'/>"
                 "</numericCondition></group>",
                 "88 C  value 1"}),
    labelOf<ItemCase>);

// JSON

TEST_F(ToolTest, JsonHasTheProgramsSections) {
  const json program = shownJson(test::dictionary(""));
  EXPECT_EQ(program, json::parse(R"({"name": "PAYROLL", "properties": [], "fileSection": [],
                                     "dataItems": [], "entryPoints": []})"));
}

// Where to look in the JSON of orders(), and everything that should be there.
struct JsonCase {
  std::string label;
  std::string pointer;
  std::string expected;
};

void PrintTo(const JsonCase& jsonCase, std::ostream* out) { *out << jsonCase.pointer; }

class ToolJsonTest : public ToolTest, public testing::WithParamInterface<JsonCase> {};

TEST_P(ToolJsonTest, HoldsWhatTheAccessorsAnswer) {
  const json program = shownJson(orders());
  const json::json_pointer pointer(GetParam().pointer);
  ASSERT_TRUE(program.contains(pointer));
  EXPECT_EQ(program.at(pointer), json::parse(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Objects, ToolJsonTest,
    testing::Values(
        JsonCase{"Properties", "/properties",
                 R"json([{"name": "source", "value": "PAYROLL.cbl"},
                         {"name": "compiled", "value": ""}])json"},
        JsonCase{"FileWithoutItems", "/fileSection/1",
                 R"json({"name": "PRINTER", "accessMode": 1, "accessModeText": "",
                         "organization": 0, "organizationText": "", "dataItems": null})json"},
        JsonCase{"FilesAccessMode", "/fileSection/0/accessModeText", R"json("sequential")json"},
        JsonCase{"FilesOrganization", "/fileSection/0/organizationText",
                 R"json("lineSequential")json"},
        JsonCase{"Alphanumeric", "/fileSection/0/dataItems/0/children/1",
                 R"json({"dataType": 2, "dataTypeText": "alphanumeric", "name": "ORDER-NOTE",
                         "picture": "X(5)", "length": 5, "minOccurs": 0, "maxOccurs": 0,
                         "offset": 8, "line": 12, "odo": null, "odoText": "", "hasODO": false,
                         "linkage": false, "sync": false, "redefined": false, "renamed": false,
                         "parent": "ORDER-LINE", "justification": 1,
                         "justificationText": "right", "conditions": []})json"},
        JsonCase{"NumericWithConditions", "/dataItems/0/children/0",
                 R"json({"dataType": 1, "dataTypeText": "numeric", "name": "USED",
                         "picture": "9(4)", "length": 2, "minOccurs": 0, "maxOccurs": 0,
                         "offset": 0, "line": 21, "odo": null, "odoText": "", "hasODO": false,
                         "linkage": false, "sync": true, "redefined": false, "renamed": false,
                         "parent": "TABLES", "usage": 0, "usageText": "comp", "sign": 5,
                         "signText": "none", "digits": 4, "alignment": 0, "conditions": [
                           {"name": "FEW", "values": [
                             {"type": 0, "typeText": "constant", "constant": "0", "from": "",
                              "to": ""},
                             {"type": 1, "typeText": "range", "constant": "", "from": "2",
                              "to": "5"}]},
                           {"name": "FULL", "values": [
                             {"type": 0, "typeText": "constant", "constant": "10", "from": "",
                              "to": ""}]}]})json"},
        JsonCase{"TableItem", "/dataItems/0/children/2",
                 R"json({"dataType": 1, "dataTypeText": "numeric", "name": "AMOUNT",
                         "picture": "S9(7)V99", "length": 5, "minOccurs": 1, "maxOccurs": 10,
                         "offset": 2, "line": 26, "odo": "TABLES.USED",
                         "odoText": "TABLES.USED", "hasODO": true, "linkage": false,
                         "sync": false, "redefined": false, "renamed": false,
                         "parent": "TABLES", "usage": 4, "usageText": "comp-3", "sign": 4,
                         "signText": "signed", "digits": 9, "alignment": 2,
                         "conditions": []})json"},
        JsonCase{"Redefinition", "/dataItems/0/children/1/redefined", "true"},
        JsonCase{"Renaming", "/dataItems/0/children/3/renamed", "true"},
        JsonCase{"NumericEdited", "/dataItems/1",
                 R"json({"dataType": 6, "dataTypeText": "numeric edited", "name": "SHOWN",
                         "picture": "Z(5)9.99", "length": 9, "minOccurs": 0, "maxOccurs": 0,
                         "offset": 0, "line": 30, "odo": null, "odoText": "", "hasODO": false,
                         "linkage": false, "sync": false, "redefined": false, "renamed": false,
                         "parent": null, "digits": 8, "blankWhenZero": true,
                         "conditions": []})json"},
        JsonCase{"National", "/dataItems/2/usage", "1"},
        JsonCase{"NationalInWords", "/dataItems/2/usageText", R"json("unicode")json"},
        JsonCase{"Pointer", "/dataItems/3/dataType", "4"},
        JsonCase{"ObjectReference", "/dataItems/4/dataType", "2"},
        JsonCase{"Index", "/dataItems/5",
                 R"json({"dataType": 8, "dataTypeText": "index", "name": "AT", "picture": "",
                         "length": 4, "minOccurs": 0, "maxOccurs": 0, "offset": 0, "line": 34,
                         "odo": null, "odoText": "", "hasODO": false, "linkage": false,
                         "sync": false, "redefined": false, "renamed": false, "parent": null,
                         "conditions": []})json"},
        JsonCase{"GroupWithChildren", "/dataItems/6",
                 R"json({"dataType": 0, "dataTypeText": "group", "name": "CALL-AREA",
                         "picture": "", "length": 1, "minOccurs": 0, "maxOccurs": 0, "offset": 0,
                         "line": 40, "odo": null, "odoText": "", "hasODO": false,
                         "linkage": true, "sync": false, "redefined": false, "renamed": false,
                         "parent": null, "conditions": [], "children": [
                           {"dataType": 2, "dataTypeText": "alphanumeric", "name": "CALL-CODE",
                            "picture": "X", "length": 1, "minOccurs": 0, "maxOccurs": 0,
                            "offset": 0, "line": 41, "odo": null, "odoText": "",
                            "hasODO": false, "linkage": true, "sync": false,
                            "redefined": false, "renamed": false, "parent": "CALL-AREA",
                            "justification": 0, "justificationText": "left",
                            "conditions": []}]})json"},
        JsonCase{"EntryPoints", "/entryPoints",
                 R"json([{"name": "PAYROLL", "callConv": 8, "parameters": [
                           {"byType": 0, "byTypeText": "reference", "dataItem": "CALL-AREA",
                            "dataItemText": "CALL-AREA"},
                           {"byType": 1, "byTypeText": "value", "dataItem": "TITLE",
                            "dataItemText": "TITLE"},
                           {"byType": 2, "byTypeText": "returning", "dataItem": null,
                            "dataItemText": "CALL-CODE"}]}])json"}),
    labelOf<JsonCase>);

TEST_F(ToolTest, JsonTellsAnOccursObjectThatIsNotFound) {
  const json item =
      shownJson(test::dictionaryOf("<group name='A' odo='LOST'/>")).at("dataItems").at(0);
  EXPECT_EQ(item.at("hasODO"), true);
  EXPECT_EQ(item.at("odo"), nullptr);
  EXPECT_EQ(item.at("odoText"), "LOST");
}

TEST_F(ToolTest, JsonKeepsTextsAsTheyAre) {
  const json item =
      shownJson(test::dictionaryOf("<pointer name='&quot;\\&#10;ä😀'/>")).at("dataItems").at(0);
  EXPECT_EQ(item.at("name"), "\"\\\nä😀");
}

TEST_F(ToolTest, JsonKeysKeepTheirOrder) {
  write("orders.xml", orders());
  const std::string out = run({"show", "--json", "orders.xml"}).out;
  EXPECT_THAT(out, StartsWith("{\n  \"name\": \"PAYROLL\",\n  \"properties\": [\n    {\n"
                              "      \"name\": \"source\",\n"));
  EXPECT_LT(out.find("\"fileSection\""), out.find("\"dataItems\""));
  EXPECT_THAT(out, EndsWith("\n  ]\n}\n"));
}

// Validation and refusals

TEST_F(ToolTest, ValidateAnswersForEveryFile) {
  write("first.xml", test::dictionary(""));
  write("bad.xml", "<program");
  write("last.xml", orders());
  const test::ToolOutcome outcome =
      run({"validate", "first.xml", "bad.xml", "missing.xml", "last.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, "first.xml: ok\nlast.xml: ok\n");
  EXPECT_THAT(outcome.err, StartsWith("bad.xml:1:"));
  EXPECT_THAT(outcome.err, HasSubstr("\nmissing.xml: error: "));
}

TEST_F(ToolTest, ValidateOfGoodFilesSucceedsSilently) {
  write("good.xml", orders());
  const test::ToolOutcome outcome = run({"validate", "good.xml", "good.xml"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, "good.xml: ok\ngood.xml: ok\n");
  EXPECT_THAT(outcome.err, IsEmpty());
}

TEST_F(ToolTest, AnyFileNameIsTaken) {
  for (const char* name : {"two words.xml", "a%20b.xml", "a:b.xml", "größe.xml", "a#b?c.xml"}) {
    write(name, test::dictionary(""));
    EXPECT_EQ(run({"validate", name}).out, std::string(name) + ": ok\n");
  }
}

TEST_F(ToolTest, TheExamplesAreGood) {
  int count = 0;
  for (const auto& entry : fs::directory_iterator(AS_EXAMPLES_DIR)) {
    if (entry.path().extension() != ".xml") continue;
    ++count;
    const std::string file = entry.path().string();
    EXPECT_EQ(run({"validate", file}).out, file + ": ok\n");
    EXPECT_EQ(run({"show", file}).exitCode, 0) << file;
    EXPECT_FALSE(json::parse(run({"show", "--json", file}).out, nullptr, false).is_discarded())
        << file;
  }
  EXPECT_GE(count, 3);
}

// A document that is refused, and the whole of what is said about it.
struct RefusalCase {
  std::string label;
  std::string document;
  std::string message;
};

void PrintTo(const RefusalCase& refusal, std::ostream* out) { *out << refusal.document; }

class ToolRefusalTest : public ToolTest, public testing::WithParamInterface<RefusalCase> {};

TEST_P(ToolRefusalTest, IsTold) {
  write("refused.xml", GetParam().document);
  for (const char* command : {"show", "validate"}) {
    const test::ToolOutcome outcome = run({command, "refused.xml"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.out, IsEmpty());
    EXPECT_EQ(outcome.err, GetParam().message + "\n");
  }
}

const std::string neitherKind =
    std::string(
        "refused.xml: error: not a data dictionary: its root element is not in the namespace ") +
    as::namespaces::dd.uri +
    "; and not a service: its root element is in none of the namespaces"
    " http://agentservices.example/schema/ws/v1.0/vorws.xsd"
    " http://agentservices.example/schema/java/v2.0/vorjava.xsd"
    " http://agentservices.example/schema/com/v1.0/vorcom.xsd"
    " http://agentservices.example/schema/dotnet/v1.0/vordotnet.xsd";

const std::string schemaHint =
    std::string(
        "hint: name the schema in the root element: "
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"") +
    as::namespaces::dd.uri + " " + as::namespaces::dd.uri + "\"";

INSTANTIATE_TEST_SUITE_P(
    Documents, ToolRefusalTest,
    testing::Values(
        RefusalCase{"MistypedAttribute", test::dictionaryOf("\n\n<pointer name='A' lenght='4'/>"),
                    "refused.xml:3:31: error: attribute 'lenght' is not declared for element "
                    "'pointer'"},
        RefusalCase{"MistypedElement", test::dictionaryOf("\n<pointr name='A'/>"),
                    "refused.xml:2:19: error: no declaration found for element 'pointr'"},
        RefusalCase{"OtherNamespace", "<service xmlns='http://elsewhere.example/service'/>",
                    neitherKind},
        RefusalCase{"NoNamespace", "<program name='PAYROLL'/>", neitherKind},
        RefusalCase{
            "NoSchemaLocation", dictionaryStart("name=\"PAYROLL\"") + "</program>",
            "refused.xml:1:93: error: no declaration found for element 'program'\n" + schemaHint},
        RefusalCase{
            "NoSchemaLocationBehindAPrefix",
            std::string("<d:program name='P' xmlns:d='") + as::namespaces::dd.uri + "'/>",
            "refused.xml:1:92: error: no declaration found for element 'd:program'\n" + schemaHint},
        RefusalCase{"Empty", "", "refused.xml:1:1: error: invalid document structure"},
        RefusalCase{"ControlCharactersInAMessage",
                    test::dictionaryOf("\n<pointer name='A' sync='&#9;'/>"),
                    "refused.xml:2:32: error: value '\\u0009' does not match regular expression "
                    "facet '[Tt][Rr][Uu][Ee]|[Ff][Aa][Ll][Ss][Ee]'"}),
    labelOf<RefusalCase>);

TEST_F(ToolTest, AMissingFileIsNamed) {
  const test::ToolOutcome outcome = run({"show", "missing.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_EQ(outcome.err, "missing.xml: error: cannot be read: No such file or directory\n");
}

TEST_F(ToolTest, ADirectoryIsNoDocument) {
  const test::ToolOutcome outcome = run({"validate", directory().string()});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, directory().string() + ": error: is a directory, not a document\n");
}

// The schema directory

TEST_F(ToolTest, SchemasMayBeNamedBeforeAndBehindTheCommand) {
  write("good.xml", test::dictionary(""));
  EXPECT_EQ(run({"--schemas", AS_SCHEMA_DIR, "validate", "good.xml"}).exitCode, 0);
  EXPECT_EQ(run({"validate", "--schemas", AS_SCHEMA_DIR, "good.xml"}).exitCode, 0);
  EXPECT_EQ(run({"show", "good.xml", "--schemas", AS_SCHEMA_DIR}).exitCode, 0);
}

TEST_F(ToolTest, AProblemInASchemaIsToldWithTheSchemasName) {
  write("good.xml", test::dictionary(""));
  write("schemas/vorcobol.xsd", "<xs:schema");
  const test::ToolOutcome outcome = run({"validate", "--schemas", "schemas", "good.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("schemas/vorcobol.xsd:1:"));
}

TEST_F(ToolTest, AnInstalledToolUsesTheSchemasInstalledWithIt) {
  write("good.xml", test::dictionary(""));
  write("share/AgentServices/schema/vorcobol.xsd", "<xs:schema");
  fs::create_directory(directory() / "bin");
  fs::copy_file(AS_TOOL, directory() / "bin/agentservices");
  const test::ToolOutcome outcome =
      runProgram(pathOf("bin/agentservices"), {"validate", "good.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("share/AgentServices/schema/vorcobol.xsd:1:"));
}

struct SchemasCase {
  std::string label;
  std::string schemas;
  std::string message;
};

void PrintTo(const SchemasCase& schemas, std::ostream* out) { *out << schemas.schemas; }

class ToolSchemasTest : public ToolTest, public testing::WithParamInterface<SchemasCase> {};

TEST_P(ToolSchemasTest, AreCheckedBeforeAnyDocument) {
  write("file", "");
  write("empty/other.xsd", "");
  const test::ToolOutcome outcome =
      run({"validate", "--schemas", GetParam().schemas, "missing.xml"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_EQ(outcome.err, "agentservices: error: the schema directory " + GetParam().message + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Directories, ToolSchemasTest,
    testing::Values(SchemasCase{"Missing", "missing", "'missing' does not exist"},
                    SchemasCase{"File", "file", "'file' is not a directory"},
                    SchemasCase{"WithoutTheSchema", "empty", "'empty' holds no vorcobol.xsd"}),
    labelOf<SchemasCase>);

// Usage and output

struct UsageCase {
  std::string label;
  std::vector<std::string> arguments;
};

void PrintTo(const UsageCase& usage, std::ostream* out) { *out << usage.label; }

class ToolUsageTest : public ToolTest, public testing::WithParamInterface<UsageCase> {};

TEST_P(ToolUsageTest, IsWrong) {
  const test::ToolOutcome outcome = run(GetParam().arguments);
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_THAT(outcome.err, Not(IsEmpty()));
}

INSTANTIATE_TEST_SUITE_P(
    Calls, ToolUsageTest,
    testing::Values(UsageCase{"Nothing", {}}, UsageCase{"UnknownCommand", {"shew", "a.xml"}},
                    UsageCase{"ShowWithoutFile", {"show"}},
                    UsageCase{"ShowOfTwoFiles", {"show", "a.xml", "b.xml"}},
                    UsageCase{"UnknownOption", {"show", "--xml", "a.xml"}},
                    UsageCase{"ValidateWithoutFile", {"validate"}},
                    UsageCase{"SchemasWithoutDirectory", {"validate", "a.xml", "--schemas"}}),
    labelOf<UsageCase>);

TEST_F(ToolTest, HelpIsNoMistake) {
  for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
           {"--help"}, {"show", "--help"}, {"validate", "--help"}}) {
    const test::ToolOutcome outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out, HasSubstr("--schemas"));
    EXPECT_THAT(outcome.err, IsEmpty());
  }
}

TEST_F(ToolTest, VersionIsTold) {
  const test::ToolOutcome outcome = run({"--version"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, testing::MatchesRegex("agentservices [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST_F(ToolTest, AFullDiskIsTold) {
  write("good.xml", orders());
  for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
           {"show", "good.xml"}, {"show", "--json", "good.xml"}, {"validate", "good.xml"}}) {
    const test::ToolOutcome outcome = runOn(open("/dev/full", O_WRONLY), AS_TOOL, arguments);
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.err, StartsWith("agentservices: error: the output could not be written"));
  }
}

TEST_F(ToolTest, AReaderThatWentAwayIsTold) {
  write("good.xml", orders());
  int ends[2] = {-1, -1};
  ASSERT_EQ(pipe(ends), 0);
  close(ends[0]);
  const test::ToolOutcome outcome = runOn(ends[1], AS_TOOL, {"show", "good.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, StartsWith("agentservices: error: the output could not be written"));
}

}  // namespace

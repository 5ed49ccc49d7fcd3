// Tests of how data dictionaries are shown, as trees and as JSON.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>

#include "support/Documents.h"
#include "support/Json.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/Toolkit.h"

namespace {

using nlohmann::json;
using test::labelOf;
using testing::AnyOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

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

class DictionaryRenderTest : public test::ToolkitTest {
 protected:
  std::string jsonText(const std::string& document) const {
    write("shown.xml", document);
    std::ostringstream out;
    as::toolkit::renderJson(out, *reader().readDictionary("shown.xml"));
    return out.str();
  }
};

// The tree

TEST_F(DictionaryRenderTest, ShowPrintsEverySectionAsATree) {
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

TEST_F(DictionaryRenderTest, ShowLeavesOutEmptySectionsAndColumns) {
  EXPECT_EQ(shown(test::dictionaryOf("<pointer name='P'/>")), R"text(PROGRAM PAYROLL

DATA ITEMS

  name  type
  P     pointer
)text");
}

TEST_F(DictionaryRenderTest, ShowOfAnEmptyProgramIsItsName) {
  EXPECT_EQ(shown(test::dictionary("")), "PROGRAM PAYROLL\n");
}

TEST_F(DictionaryRenderTest, ShowWritesControlCharactersAsText) {
  EXPECT_THAT(shown(test::dictionaryOf("<pointer name='A&#10;B&#x7F;C&#x9B;D'/>")),
              HasSubstr(R"(A\u000AB\u007FC\u009BD)"));
}

TEST_F(DictionaryRenderTest, ShowAlignsNamesByCharactersNotBytes) {
  EXPECT_THAT(shown(test::dictionaryOf("<pointer name='GRÖSSE'/><pointer name='WEIGHT'/>")),
              HasSubstr("  GRÖSSE  pointer\n  WEIGHT  pointer\n"));
}

TEST_F(DictionaryRenderTest, ShowKeepsTheColumnsBehindAWideName) {
  const std::string wide(70, 'W');
  EXPECT_THAT(
      shown(test::dictionaryOf("<pointer name='" + wide + "'/><pointer name='NARROW'/>")),
      HasSubstr("  " + wide + "  pointer\n  NARROW" + std::string(54, ' ') + "  pointer\n"));
}

TEST_F(DictionaryRenderTest, ShowReadsTheDeepestNesting) {
  constexpr int depth = 2040;
  std::string document;
  for (int i = 0; i < depth; ++i) document += "<group name='G" + std::to_string(i) + "'>";
  document += "<pointer name='BOTTOM'/>";
  for (int i = 0; i < depth; ++i) document += "</group>";
  document = test::dictionaryOf(document);
  EXPECT_THAT(shown(document),
              EndsWith("\n" + std::string(2 + 2 * depth, ' ') + "BOTTOM  pointer\n"));
  EXPECT_THAT(jsonText(document), HasSubstr(R"("name": "BOTTOM")"));
}

TEST_F(DictionaryRenderTest, ALongNameIsNotRepeatedWithEachRedefinition) {
  const std::string redefined = shown(test::dictionaryOf("<group name='" + std::string(5000, 'L') +
                                                         "'/><group name='A' redefines='true'/>"));
  EXPECT_THAT(redefined, HasSubstr("redefines LLL"));
  EXPECT_THAT(redefined, HasSubstr("LLL...LLL"));
}

// How one data item is shown: its attributes and the end of its line.
struct ItemCase {
  std::string label;
  std::string item;
  std::string lineEnd;
};

void PrintTo(const ItemCase& itemCase, std::ostream* out) { *out << itemCase.item; }

class ItemRenderTest : public test::ToolkitTest, public testing::WithParamInterface<ItemCase> {};

TEST_P(ItemRenderTest, IsShown) {
  EXPECT_THAT(shown(test::dictionaryOf("<numeric name='N'/>" + GetParam().item)),
              EndsWith("  " + GetParam().lineEnd + "\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Clauses, ItemRenderTest,
    testing::Values(
        ItemCase{"FixedTable", "<group name='A' minOccurs='5' maxOccurs='5'/>", "occurs 5"},
        ItemCase{"MaxOccursAlone", "<group name='A' maxOccurs='5'/>", "occurs 5"},
        ItemCase{"VariableTable", "<group name='A' minOccurs='2' maxOccurs='5' odo='N'/>",
                 "occurs 2..5 depending on N"},
        ItemCase{"VariableTableFromNone", "<group name='A' minOccurs='0' maxOccurs='5' odo='N'/>",
                 "occurs 0..5 depending on N"},
        ItemCase{"LostOccursObject", "<group name='A' minOccurs='2' maxOccurs='5' odo='LOST'/>",
                 "occurs 2..5 depending on LOST (not found)"},
        ItemCase{"NoTimes", "<group name='A' minOccurs='0' maxOccurs='0'/>", "A     group"},
        ItemCase{"NoTimesAsOftenAsTold", "<group name='A' odo='N'/>", "occurs 0 depending on N"},
        ItemCase{"LeastTimesAlone", "<group name='A' minOccurs='2'/>", "occurs 2..0"},
        ItemCase{"LinkageOfLinkage",
                 "<group name='A' linkage='true'><index name='B' linkage='true'/></group>",
                 "B   index"},
        ItemCase{"LinkageOfOthers", "<group name='A'><index name='B' linkage='true'/></group>",
                 "linkage"},
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
    Usages, ItemRenderTest,
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
    Conditions, ItemRenderTest,
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

TEST_F(DictionaryRenderTest, JsonHasTheProgramsSections) {
  const json program = shownJson(test::dictionary(""));
  EXPECT_EQ(program, test::parsedJson(R"({"name": "PAYROLL", "properties": [], "fileSection": [],
                                     "dataItems": [], "entryPoints": []})"));
}

// Where to look in the JSON of orders(), and everything that should be there.
struct JsonCase {
  std::string label;
  std::string pointer;
  std::string expected;
};

void PrintTo(const JsonCase& jsonCase, std::ostream* out) { *out << jsonCase.pointer; }

class DictionaryJsonTest : public test::ToolkitTest,
                           public testing::WithParamInterface<JsonCase> {};

TEST_P(DictionaryJsonTest, HoldsWhatTheAccessorsAnswer) {
  const json program = shownJson(orders());
  const json::json_pointer pointer(GetParam().pointer);
  ASSERT_TRUE(program.contains(pointer));
  EXPECT_EQ(program.at(pointer), test::parsedJson(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Objects, DictionaryJsonTest,
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

TEST_F(DictionaryRenderTest, JsonTellsAnOccursObjectThatIsNotFound) {
  const json item =
      shownJson(test::dictionaryOf("<group name='A' odo='LOST'/>")).at("dataItems").at(0);
  EXPECT_EQ(item.at("hasODO"), true);
  EXPECT_EQ(item.at("odo"), nullptr);
  EXPECT_EQ(item.at("odoText"), "LOST");
}

TEST_F(DictionaryRenderTest, JsonKeepsTextsAsTheyAre) {
  const json item =
      shownJson(test::dictionaryOf("<pointer name='&quot;\\&#10;ä😀'/>")).at("dataItems").at(0);
  EXPECT_EQ(item.at("name"), "\"\\\nä😀");
}

TEST_F(DictionaryRenderTest, JsonKeysKeepTheirOrder) {
  const std::string out = jsonText(orders());
  EXPECT_THAT(out, StartsWith("{\n  \"name\": \"PAYROLL\",\n  \"properties\": [\n    {\n"
                              "      \"name\": \"source\",\n"));
  EXPECT_LT(out.find("\"fileSection\""), out.find("\"dataItems\""));
  EXPECT_THAT(out, EndsWith("\n  ]\n}\n"));
}

TEST_F(DictionaryRenderTest, TheExamplesAreShown) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(AS_EXAMPLES_DIR)) {
    if (entry.path().extension() != ".xml") continue;
    ++count;
    const std::string file = entry.path().string();
    EXPECT_THAT(treeOfFile(file), AnyOf(StartsWith("PROGRAM "), StartsWith("SERVICE ")));
    EXPECT_FALSE(jsonOfFile(file).is_discarded()) << file;
  }
  EXPECT_GE(count, 3);
}

// Every item tells the path of its group.
TEST_F(DictionaryRenderTest, PathsAreNoLongerThanTheyAreRead) {
  const std::string document = test::dictionaryOf(
      "<group name='" + std::string(3000, 'A') + "'><group name='" + std::string(3000, 'B') +
      "'><numeric name='N' digits='1'/></group></group>");
  const json group = shownJson(document)["dataItems"][0]["children"][0];
  EXPECT_EQ(group["parent"], std::string(3000, 'A'));
  EXPECT_EQ(group["children"][0]["parent"],
            std::string(2000, 'A') + "..." + std::string(2000, 'B'));
}

}  // namespace

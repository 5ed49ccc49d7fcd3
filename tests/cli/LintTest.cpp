// Tests of the tool's lint command: every finding, word for word.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/Documents.h"
#include "support/Tool.h"

namespace {

using test::labelOf;
using test::payService;
using testing::HasSubstr;

class LintTest : public test::ToolTest {
 protected:
  test::ToolOutcome lint(const std::string& service) const {
    write("PAY.xml", test::payProgram());
    write("s.xml", service);
    return run({"lint", "s.xml"});
  }
};

// The service's type definitions and operations, and the lines that lint writes, each without
// "s.xml: ". The summary is not among them.
struct Finding {
  std::string label;
  std::string content;
  std::string lines;
  bool isError = true;
};

void PrintTo(const Finding& finding, std::ostream* out) { *out << finding.content; }

std::string operation(const std::string& members) {
  return "<operations><operation name='pay' entryPoint='PAY'>" + members +
         "</operation></operations>";
}

std::string parameters(const std::string& members) {
  return operation("<parameters>" + members + "</parameters>");
}

std::string mapped(const std::string& attributes, const std::string& mapping) {
  return parameters("<parameter name='p' " + attributes + "><mappings><mapping " + mapping +
                    "/></mappings></parameter>");
}

std::string hidden(const std::string& attributes) {
  return operation("<hiddenParameters><hiddenParameter " + attributes + "/></hiddenParameters>");
}

class LintFindingTest : public LintTest, public testing::WithParamInterface<Finding> {};

TEST_P(LintFindingTest, IsTold) {
  const Finding& finding = GetParam();
  const test::ToolOutcome outcome = lint(payService(finding.content));
  EXPECT_EQ(outcome.out, finding.lines.empty() ? "s.xml: clean\n"
                                               : "s.xml: " + finding.lines + "\ns.xml: " +
                                                     (finding.isError ? "1 error, 0 warnings\n"
                                                                      : "0 errors, 1 warning\n"));
  EXPECT_EQ(outcome.exitCode, finding.isError ? 1 : 0);
  EXPECT_THAT(outcome.err, testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Mappings, LintFindingTest,
    testing::Values(
        Finding{"Good", mapped("dataType='int'", "item='REQ.ID'"), "", false},
        Finding{"GoodSpecial", mapped("dataType='String'", "item='$stdin'"), "", false},
        Finding{
            "GoodTable",
            mapped("occurs='3' dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(*)' subscript='*'"),
            "", false},
        Finding{"GoodOccurrence", mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(3)'"), "",
                false},
        Finding{"NoItem", mapped("dataType='int'", "subscript='1'"),
                "error: pay.p: the mapping names no data item; name one in \"item\""},
        Finding{"UnknownItem", mapped("dataType='int'", "item='REQ.IDX'"),

                "error: pay.p: PAYROLL has no data item 'REQ.IDX'; correct the name"},
        Finding{"ItemElsewhere", mapped("dataType='int'", "item='ID'"),

                "error: pay.p: PAYROLL has no data item 'ID'; did you mean 'REQ.ID'?"},
        Finding{"UnknownSpecialName", mapped("dataType='int'", "item='$input'"),

                "error: pay.p: PAYROLL has no data item '$input'; use $command_line, $return_code, "
                "$stdin or $stdout"},
        Finding{
            "HiddenUnknownItem", hidden("item='REQ.X' value='1'"),

            "error: pay, hidden parameter 1: PAYROLL has no data item 'REQ.X'; correct the name"},
        Finding{"HiddenWithoutValue", hidden("item='REQ.ID'"),
                "warning: pay, hidden parameter 1: it has no value; give it one", false},
        Finding{"HiddenValueNoNumber", hidden("item='REQ.ID' value='abc'"),

                "error: pay, hidden parameter 1: value 'abc' is no number, ID is; write a number"},
        Finding{"NoMapping", parameters("<parameter name='p' dataType='int'/>"),

                "warning: pay.p: it is mapped to no data item; add a mapping or remove it", false}),
    labelOf<Finding>);

INSTANTIATE_TEST_SUITE_P(
    Subscripts, LintFindingTest,
    testing::Values(
        Finding{"Missing", mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT'"),

                "error: pay.p: 'REQ.LINE.AMOUNT' has 0 subscripts but stands in 1 table; write "
                "'REQ.LINE.AMOUNT(*)' or the occurrences meant"},
        Finding{"TooFew", mapped("dataType='int'", "item='REQ.LINE.CELL(1)'"),

                "error: pay.p: 'REQ.LINE.CELL' has 1 subscript but stands in 2 tables; write "
                "'REQ.LINE.CELL(*,*)' or the occurrences meant"},
        Finding{"NoTable", mapped("dataType='int'", "item='REQ.ID(1)'"),
                "error: pay.p: 'REQ.ID' has 1 subscript but stands in 0 tables; write 'REQ.ID'"},
        Finding{"OutOfRange", mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(4)'"),

                "error: pay.p: subscript 4 of 'REQ.LINE.AMOUNT' is outside of LINE, which occurs 3 "
                "times; write a number from 1 to 3, or *"},
        Finding{"Zero", mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(0)'"),

                "error: pay.p: subscript 0 of 'REQ.LINE.AMOUNT' is outside of LINE, which occurs 3 "
                "times; write a number from 1 to 3, or *"},
        Finding{"Unreadable", mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(x)'"),

                "error: pay.p: the subscripts of 'REQ.LINE.AMOUNT(x)' cannot be read; write "
                "numbers or * with commas between, as in ITEM(1,*)"},
        Finding{"InterfaceUnreadable",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(1)' subscript='x'"),

                "error: pay.p: subscript 'x' cannot be read; write numbers or * with commas "
                "between, as in 1,*"},
        Finding{"InterfaceLeftOver", mapped("dataType='int'", "item='REQ.ID' subscript='*'"),

                "error: pay.p: subscript '*' is left over: the item stands in no table; remove it"},
        Finding{"InterfaceMissing",
                mapped("occurs='3' dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(*)'"),

                "error: pay.p: the mapping has no subscripts of the interface for 1 table; write "
                "'*' in \"subscript\""},
        // A field for each line and cell, and only one of the two tables of the item is open.
        Finding{
            "InterfaceClosed",
            mapped("occurs='3' dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(*)' subscript='2'"),

            "error: pay.p: all occurrences (*) of the item go to occurrence 2 of the "
            "interface; open both or neither"},
        Finding{"InterfaceCrossed",
                mapped("occurs='3' dataType='byte'", "item='REQ.LINE.CELL(1,*)' subscript='*,1'"),

                "error: pay.p: all occurrences (*) of the item go to occurrence 1 of the "
                "interface; open both or neither"},
        Finding{"FieldOfTooManyTables", mapped("occurs='5' dataType='int'", "item='REQ.ID'"),

                "error: pay.p: the field stands in 1 table, the item in 0 open ones; take "
                "\"occurs\" away, or map to the table's items"},
        Finding{
            "FieldWithAFixedPlaceInItsTable",
            mapped("occurs='5' dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(1)' subscript='3'"),
            "", false},
        Finding{"InterfaceOpen",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(1)' subscript='*'"),

                "error: pay.p: subscript '*' is open (*) where the item's is a number; open both "
                "or neither"},
        Finding{
            "InterfaceBeyondTheField",
            mapped("occurs='3' dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(1)' subscript='4'"),

            "error: pay.p: subscript 4 is beyond the 3 occurrences of the field; write a smaller "
            "number or raise \"occurs\""},
        Finding{"InterfaceZero",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(1)' subscript='0'"),

                "error: pay.p: subscript 0 is outside of every table; count from 1, or write *"},
        Finding{"TableIntoOneField",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(*)' subscript='*'"),

                "error: pay.p: all occurrences in 1 table are mapped to a single field; give "
                "\"occurs\" to the field or one around it, or name the occurrence"},
        Finding{
            "TableTooLong",
            mapped("occurs='2' dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(*)' subscript='*'"),

            "warning: pay.p: a table of 3 occurrences is mapped to 2; raise \"occurs\"", false}),
    labelOf<Finding>);

INSTANTIATE_TEST_SUITE_P(
    EntryPoints, LintFindingTest,
    testing::Values(
        Finding{"NoEntryPoint", "<operations><operation name='o'/></operations>",

                "error: o: the operation is bound to no entry point; name one in \"entryPoint\""},
        Finding{"UnknownEntryPoint",
                "<operations><operation name='o' entryPoint='GO'/></operations>",

                "error: o: PAYROLL has no entry point 'GO'; bind the operation to one of the "
                "program's"},
        Finding{"NotHandedOver", mapped("dataType='int'", "item='WS-COUNT'"),

                "error: pay.p: WS-COUNT is nothing that entry point 'PAY' is called with; map to "
                "something within REQ, RC"},
        Finding{"OnlyReturned", mapped("byType='in' dataType='int'", "item='RC'"),

                "warning: pay.p: RC is only returned: nothing goes in; make the parameter \"out\"",
                false}),
    labelOf<Finding>);

INSTANTIATE_TEST_SUITE_P(
    References, LintFindingTest,
    testing::Values(
        Finding{
            "Unknown", parameters("<parameter name='p' ref='X'/>"),
            "error: pay.p: there is no type definition 'X'; correct \"ref\" or add the definition"},
        Finding{
            "Forward",
            "<parameterTypeDefs><parameter name='A' ref='B'/><parameter name='B' "
            "dataType='int'><mappings><mapping "
            "item='REQ.ID'/></mappings></parameter></parameterTypeDefs>",

            "error: type A: type definition 'B' comes only later; move it in front of this one"},
        Finding{"WithWordsOfItsOwn",
                "<parameterTypeDefs><parameter name='A' dataType='int'><mappings><mapping "
                "item='REQ.ID'/></mappings></parameter></parameterTypeDefs>" +
                    parameters("<parameter name='p' ref='A' occurs='2'/>"),

                "warning: pay.p: it refers to 'A': its own occurs and data type do not count; "
                "remove them",
                false},
        Finding{"Itself", "<parameterTypeDefs><parameter name='A' ref='A'/></parameterTypeDefs>",

                "error: type A: type definition 'A' refers to itself; refer to another definition "
                "or spell the fields out"},
        Finding{"FieldToItsOwnDefinition",
                "<parameterTypeDefs><parameter name='A'><field name='f' "
                "ref='A'/></parameter></parameterTypeDefs>",

                "error: type A.f: type definition 'A' refers to itself; refer to another "
                "definition or spell the fields out"},
        Finding{"NotHandedOver",
                "<parameterTypeDefs><parameter name='A' dataType='int'><mappings><mapping "
                "item='WS-COUNT'/></mappings></parameter></parameterTypeDefs>" +
                    parameters("<parameter name='p' ref='A'/>"),

                "error: pay.p: WS-COUNT is nothing that entry point 'PAY' is called with; map to "
                "something within REQ, RC"}),
    labelOf<Finding>);

INSTANTIATE_TEST_SUITE_P(
    Names, LintFindingTest,
    testing::Values(
        Finding{"Operations",
                "<operations><operation name='o' entryPoint='PAY'/><operation name='o' "
                "entryPoint='PAY'/></operations>",

                "error: o: another operation beside it has the same name; rename one of them"},
        Finding{"UnnamedOperation", "<operations><operation entryPoint='PAY'/></operations>",

                "error: (unnamed): the operation has no name; give it one"},
        Finding{
            "Parameters",
            parameters("<parameter name='p' dataType='int'><mappings><mapping "
                       "item='REQ.ID'/></mappings></parameter><parameter name='p' "
                       "dataType='int'><mappings><mapping item='REQ.ID'/></mappings></parameter>"),

            "error: pay.p: another parameter beside it has the same name; rename one of them"},
        Finding{
            "Fields",
            parameters(
                "<parameter name='q'><field name='f' dataType='int'><mappings><mapping "
                "item='REQ.ID'/></mappings></field><field name='f' "
                "dataType='int'><mappings><mapping item='REQ.ID'/></mappings></field></parameter>"),

            "error: pay.q.f: another field beside it has the same name; rename one of them"},
        Finding{"Definitions",
                "<parameterTypeDefs><parameter name='p' dataType='int'><mappings><mapping "
                "item='REQ.ID'/></mappings></parameter><parameter name='p' "
                "dataType='int'><mappings><mapping "
                "item='REQ.ID'/></mappings></parameter></parameterTypeDefs>",

                "error: type p: another type definition beside it has the same name; rename one of "
                "them"}),
    labelOf<Finding>);

INSTANTIATE_TEST_SUITE_P(
    DataTypes, LintFindingTest,
    testing::Values(
        Finding{"Digits", mapped("dataType='short'", "item='REQ.ID'"),
                "error: pay.p: data type 'short' cannot hold ID: it holds 4 digits, the item has "
                "9; use 'int'"},
        Finding{"Scale", mapped("dataType='long'", "item='REQ.LINE.AMOUNT(1)'"),

                "error: pay.p: data type 'long' cannot hold AMOUNT: it holds no decimal places, "
                "the item has 2; use 'BigDecimal'"},
        Finding{"ScaleOfABigInteger", mapped("dataType='BigInteger'", "item='REQ.LINE.AMOUNT(1)'"),

                "error: pay.p: data type 'BigInteger' cannot hold AMOUNT: it holds no decimal "
                "places, the item has 2; use 'BigDecimal'"},
        Finding{"FloatDigits", mapped("dataType='float'", "item='REQ.LINE.AMOUNT(1)'"),

                "error: pay.p: data type 'float' cannot hold AMOUNT: it holds 6 digits, the item "
                "has 9; use 'BigDecimal'"},
        Finding{"Bits", mapped("byType='out' dataType='short'", "item='RC'"),
                "error: pay.p: data type 'short' cannot hold RC: it has 16 bits, the item needs "
                "32; use 'int'"},
        Finding{"Text", mapped("dataType='int'", "item='REQ.TITLE'"),
                "error: pay.p: data type 'int' cannot hold TITLE: it is a number, the item is "
                "alphanumeric; use 'String'"},
        Finding{"Absent", mapped("", "item='REQ.LINE.CELL(1,1)'"),
                "warning: pay.p: it has no data type and reads as 'short'; write \"dataType\"",
                false},
        Finding{"AnythingAsText", mapped("dataType='String'", "item='REQ.ID'"), "", false},
        Finding{"GroupAsBytes", mapped("dataType='byteArray'", "item='REQ'"), "", false}),
    labelOf<Finding>);

TEST_F(LintTest, WithoutADictionaryTheServiceIsLookedAtByItself) {
  write("s.xml", payService(parameters("<parameter name='p' ref='NONE'/>")));
  const test::ToolOutcome outcome = run({"lint", "s.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(
      outcome.out,
      "s.xml: error: service: the dictionary cannot be used: PAY.xml: cannot be read: No such "
      "file or directory; mappings and entry points were not checked\n"
      "s.xml: error: pay.p: there is no type definition 'NONE'; correct \"ref\" or add the "
      "definition\n"
      "s.xml: 2 errors, 0 warnings\n");
}

TEST_F(LintTest, TheDictionaryMayBeNamed) {
  write("elsewhere/OTHER.xml", test::payProgram());
  write("s.xml", payService(mapped("dataType='int'", "item='REQ.ID'")));
  const test::ToolOutcome outcome = run({"lint", "s.xml", "--dictionary", "elsewhere/OTHER.xml"});
  EXPECT_EQ(outcome.out, "s.xml: clean\n");
  EXPECT_EQ(outcome.exitCode, 0);
}

TEST_F(LintTest, TheDictionaryIsLookedForBesideTheService) {
  write("services/s.xml", payService(mapped("dataType='int'", "item='REQ.ID'")));
  write("services/PAY.xml", test::payProgram());
  EXPECT_EQ(run({"lint", "services/s.xml"}).out, "services/s.xml: clean\n");
}

TEST_F(LintTest, AServiceThatIsNoDictionaryIsTold) {
  write("PAY.xml", payService(""));
  write("s.xml", payService(""));
  EXPECT_THAT(run({"lint", "s.xml"}).out,
              HasSubstr("the dictionary cannot be used: PAY.xml: not a data dictionary"));
}

TEST_F(LintTest, TheServicesOwnAttributesAreLookedAt) {
  write("PAY.xml", test::payProgram());
  write("s.xml", test::javaService("implementation='com' programName='OTHER'", operation("")));
  EXPECT_EQ(run({"lint", "s.xml", "--dictionary", "PAY.xml"}).out,
            "s.xml: warning: service: the service has no name; write \"name\"\n"
            "s.xml: error: service: the service names no dictionary; write "
            "\"dataDictFilename\"\n"
            "s.xml: error: service: implementation 'com' is not that of a Java service; correct "
            "\"implementation\"\n"
            "s.xml: warning: service: it names program 'OTHER', the dictionary is of 'PAYROLL'; "
            "correct \"programName\" or \"dataDictFilename\"\n"
            "s.xml: 2 errors, 2 warnings\n");
}

TEST_F(LintTest, ARefusedServiceIsNoFinding) {
  write("s.xml", test::payProgram());
  const test::ToolOutcome outcome = run({"lint", "s.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, testing::IsEmpty());
  EXPECT_THAT(outcome.err, testing::StartsWith("s.xml: error: not a service: "));
}

TEST_F(LintTest, NeedsOneService) {
  EXPECT_EQ(run({"lint"}).exitCode, 2);
  EXPECT_EQ(run({"lint", "a.xml", "b.xml"}).exitCode, 2);
}

}  // namespace

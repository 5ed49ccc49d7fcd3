// Tests of compiler directives: conditions, definitions, formats, options.
#include <gtest/gtest.h>

#include <string>

#include "toolkit_unit/ReadSource.h"
#include "toolkit_unit/ReadingRowTest.h"

namespace {

using as::toolkit::SourceFormat;
using test::ReadingRow;

// A when the condition is true, B otherwise.
ReadingRow condition(const char* name, const std::string& text, bool isTrue,
                     const std::string& findings = "") {
  return {
      name,
      {">>DEFINE FIVE AS 5\n>>DEFINE NAME AS \"ab\"\n>>IF " + text + "\nA\n>>ELSE\nB\n>>END-IF\n"},
      isTrue ? "A" : "B",
      findings};
}

const ReadingRow conditionRows[] = {
    condition("Defined", "FIVE DEFINED", true),
    condition("IsDefined", "five IS DEFINED", true),
    condition("IsSet", "FIVE IS SET", true),
    condition("NotDefined", "FIVE IS NOT DEFINED", false),
    condition("UndefinedIsNotDefined", "SIX NOT DEFINED", true),
    condition("UndefinedIsDefined", "SIX DEFINED", false),
    condition("Equal", "FIVE = 5", true),
    condition("EqualTo", "FIVE IS EQUAL TO 5.0", true),
    condition("NotEqual", "FIVE NOT = 5", false),
    condition("Unequal", "FIVE <> 6", true),
    condition("Less", "FIVE < 10", true),
    condition("LessThan", "FIVE IS LESS THAN 5", false),
    condition("LessOrEqual", "FIVE LESS THAN OR EQUAL TO 5", true),
    condition("LessOrEqualByMark", "FIVE <= 4", false),
    condition("Greater", "FIVE > 4", true),
    condition("GreaterThan", "FIVE IS GREATER THAN 10", false),
    condition("GreaterOrEqual", "FIVE GREATER OR EQUAL 6", false),
    condition("GreaterOrEqualByMark", "FIVE >= +5", true),
    condition("Text", "NAME = 'ab'", true),
    condition("OtherText", "NAME EQUAL \"AB\"", false),
    condition("TextIsGreater", "NAME > \"aa\"", true),
    condition("NegativeNumbers", "-1 < FIVE", true),
    condition("And", "FIVE = 5 AND NAME = \"x\"", false),
    condition("Or", "FIVE = 6 OR NAME = \"ab\"", true),
    condition("AndBeforeOr", "FIVE = 5 OR FIVE = 5 AND FIVE = 6", true),
    condition("Parentheses", "(FIVE = 5 OR FIVE = 5) AND FIVE = 6", false),
    condition("Not", "NOT FIVE = 6", true),
    condition("NotOfParentheses", "NOT (FIVE = 5 AND FIVE = 6)", true),
    condition("NotBeforeAnd", "NOT FIVE = 6 AND FIVE = 5", true),
    condition("Comment", "FIVE = 5 *> x", true),
    condition("FromOutside", "OUTSIDE = 7", true),
    condition("TextFromOutside", "VERSION = '7 8'", true),
    condition("Equals", "FIVE EQUALS 5", true),
    condition("LessOrEqualByAMark", "FIVE LESS THAN OR = 5", true),
    condition("NumberAndOtherText", "FIVE = 'x'", false),
    condition("NumberAndItsText", "FIVE = '5'", true),
    condition("NotTwice", "NOT NOT FIVE = 5", true),
    condition("NeitherOfOr", "FIVE = 6 OR FIVE = 7", false),
    condition("FirstOfAndIsFalse", "FIVE = 6 AND FIVE = 5", false),
    condition("BothOfAnd", "FIVE = 5 AND NAME = 'ab'", true),
    condition("CommasCountForNothing", "FIVE = 5,AND, NAME = 'ab'", true),
    condition("OtherNamesAreNoConditions", "NAME", false, "directive-syntax main:3:1"),
    condition("UndefinedNameAlone", "SIX", false, "undefined-name main:3:1"),
    condition("UndefinedNameInFrontOfOr", "SIX OR FIVE = 5", true, "undefined-name main:3:1"),
    condition("UndefinedOnTheRight", "FIVE = SIX", false, "undefined-name main:3:1"),
    condition("NameThatIsTooLong", std::string(5000, 'A') + " DEFINED", false),
    condition("Undefined", "SIX = 6", false, "undefined-name main:3:1"),
    condition("UndefinedIsNot", "SIX NOT = 6", false, "undefined-name main:3:1"),
    condition("NoComparison", "FIVE", false, "directive-syntax main:3:1"),
    condition("NoOperand", "FIVE =", false, "directive-syntax main:3:1"),
    condition("MarkForAnOperand", "= 5", false, "directive-syntax main:3:1"),
    condition("NoClosingParenthesis", "(FIVE = 5", false, "directive-syntax main:3:1"),
    condition("NoOpeningParenthesis", "FIVE = 5)", false, "directive-syntax main:3:1"),
    condition("OrWithoutEqual", "FIVE LESS OR 5", false, "directive-syntax main:3:1"),
};
AS_READING_ROWS(Conditions, conditionRows);

// What a sum comes to, and what is told of it.
ReadingRow sum(const char* name, const std::string& text, const std::string& result,
               const std::string& findings = "") {
  return {name,
          {">>DEFINE FIVE AS 5\n>>DEFINE X AS " + text + "\n>>IF X DEFINED\n>>IF X = " + result +
           "\nA\n>>END-IF\n>>END-IF\n"},
          findings.empty() ? "A" : "",
          findings};
}

const ReadingRow sumRows[] = {
    sum("ProductsFirst", "FIVE + 2 * 3 - 1", "10"),
    sum("LeftToRight", "FIVE - 2 - 1", "2"),
    sum("Parentheses", "( FIVE + 2 ) * 3", "21"),
    sum("NestedParentheses", "2 * (3 * (FIVE - 1))", "24"),
    sum("WholeNumbers", "FIVE / 2", "2"),
    sum("Zero", "FIVE / 0", "0", "directive-syntax main:2:1"),
    sum("Text", "FIVE + \"a\"", "0", "directive-syntax main:2:1"),
    sum("OpenParenthesis", "( FIVE + 1", "0", "directive-syntax main:2:1"),
    sum("Undefined", "1 + SIX", "0", "undefined-name main:2:1"),
    sum("UndefinedAlone", "SIX", "0", "undefined-name main:2:1"),
    sum("NoOperator", "FIVE X", "0", "directive-syntax main:2:1"),
    sum("NumberWithTwoPoints", "1.2.3", "0", "undefined-name main:2:1"),
    sum("Overflow", "999999999999999 * 2", "0", "directive-syntax main:2:1"),
};
AS_READING_ROWS(Sums, sumRows);

const ReadingRow rows[] = {
    {"Elif",
     {">>DEFINE A 2\n>>IF A = 1\nX\n>>ELIF A = 2\nY\n>>ELIF A = 2\nZ\n>>ELSE\nW\n>>END-IF\nV"},
     "Y V"},
    {"Nested",
     {">>IF A DEFINED\nX\n>>IF B NOT DEFINED\nY\n>>ELSE\nZ\n>>END-IF\n>>ELIF B = "
      "1\n>>ELSE\nV\n>>END-IF\n"},
     "V",
     "undefined-name main:8:1"},
    {"NestedInTrue",
     {">>IF A NOT DEFINED\nX\n>>IF A DEFINED\nY\n>>ELSE\nZ\n>>END-IF\nW\n>>ELSE\nV\n>>END-IF\n"},
     "X Z W"},
    {"NothingElseCountsInWhatIsLeftOut",
     {">>IF A DEFINED\n>>DEFINE B 1\n>>SOURCE FORMAT FIXED\n>>NONSENSE\n\"x\nCOPY "
      "Y.\n>>END-IF\n>>IF B DEFINED\nZ\n>>END-IF\nV"},
     "V"},
    {"ConditionThatDoesNotEnd", {"A\n>>IF B DEFINED\nC\n"}, "A", "directive-syntax main:2:1"},
    {"ElseWithoutIf",
     {">>ELSE\nA\n>>END-IF\n>>END-EVALUATE\n>>WHEN 1\nB"},
     "A B",
     "directive-syntax main:1:1\ndirective-syntax main:3:1\ndirective-syntax "
     "main:4:1\ndirective-syntax main:5:1"},
    {"Evaluate",
     {">>DEFINE A 2\n>>EVALUATE A\n>>WHEN 1\nX\n>>WHEN 2\nY\n>>WHEN 2\nZ\n>>WHEN "
      "OTHER\nW\n>>END-EVALUATE\nV"},
     "Y V"},
    {"EvaluateOther", {">>EVALUATE 5\n>>WHEN 1\nX\n>>WHEN OTHER\nW\n>>END-EVALUATE\n"}, "W"},
    {"EvaluateRange",
     {">>EVALUATE 5\n>>WHEN 1 THRU 4\nX\n>>WHEN 5 THROUGH 7\nW\n>>END-EVALUATE\n"},
     "W"},
    {"EvaluateTrue",
     {">>EVALUATE TRUE\n>>WHEN A DEFINED\nX\n>>WHEN A NOT DEFINED\nW\n>>END-EVALUATE\n"},
     "W"},
    {"EvaluateInWhatIsLeftOut",
     {">>IF A DEFINED\n>>EVALUATE A\n>>WHEN OTHER\nX\n>>END-EVALUATE\n>>END-IF\nV"},
     "V"},
    {"ElifInWhatIsLeftOut",
     {">>IF A DEFINED\n>>IF A NOT DEFINED\nW\n>>ELIF B = 1\nX\n>>ELSE\nY\n>>END-IF\n>>END-IF\nV"},
     "V"},
    {"EndIfOfAnEvaluate",
     {">>EVALUATE 5\n>>END-IF\n>>WHEN 5\nX\n>>END-EVALUATE\n"},
     "X",
     "directive-syntax main:2:1"},
    {"WhenOfAnIf",
     {">>IF A NOT DEFINED\n>>WHEN 1\nX\n>>END-IF\n"},
     "X",
     "directive-syntax main:2:1"},
    {"EvaluateBelowTheRange",
     {">>EVALUATE 5\n>>WHEN 6 THRU 9\nX\n>>WHEN OTHER\nW\n>>END-EVALUATE\n"},
     "W"},
    {"EvaluateOfAnUndefinedName",
     {">>EVALUATE A\n>>WHEN 1\nX\n>>WHEN OTHER\nW\n>>END-EVALUATE\n"},
     "W",
     "undefined-name main:1:1"},
    {"WhenOfUndefinedNames",
     {">>EVALUATE 5\n>>WHEN B\nX\n>>WHEN 1 THRU B\nY\n>>WHEN OTHER\nW\n>>END-EVALUATE\n"},
     "W",
     "undefined-name main:2:1\nundefined-name main:4:1"},
    {"EvaluateThatDoesNotEnd", {">>EVALUATE 5\n"}, "", "directive-syntax main:1:1"},
    {"DefineOff", {">>DEFINE A 1\n>>DEFINE A OFF\n>>IF A DEFINED\nX\n>>END-IF\n"}, ""},
    {"DefineByAName", {">>DEFINE A 1\n>>DEFINE B AS A\n>>IF B = 1\nX\n>>END-IF\n"}, "X"},
    {"DefineByABoolean", {">>DEFINE A B'1'\n>>IF A\nX\n>>END-IF\n"}, "X"},
    {"DefineByAFalseBoolean", {">>DEFINE A AS b\"0\"\n>>IF A\nX\n>>END-IF\n"}, ""},
    {"NamesAreConditions", {">>DEFINE A\n>>DEFINE B 0\n>>IF A AND (NOT B)\nX\n>>END-IF\n"}, "X"},
    {"DefineWithoutAValue", {">>DEFINE A\n>>IF A DEFINED\nX\n>>END-IF\n"}, "X"},
    {"DefineConstant", {">>DEFINE CONSTANT A 1\n>>IF A = 1\nX\n>>END-IF\n"}, "X"},
    {"DefineAgain",
     {">>DEFINE A 1\n>>DEFINE A 1\n>>DEFINE A 2\n>>IF A = 1\nX\n>>END-IF\n"},
     "X",
     "directive-syntax main:3:1"},
    {"DefineOverride", {">>DEFINE A 1\n>>DEFINE A 2 OVERRIDE\n>>IF A = 2\nX\n>>END-IF\n"}, "X"},
    {"DefineParameter",
     {">>DEFINE OUTSIDE OFF\n>>DEFINE OUTSIDE AS PARAMETER\n>>DEFINE A PARAMETER\n>>IF OUTSIDE = 7 "
      "AND A NOT DEFINED\nX\n>>END-IF\n"},
     "X"},
    {"DefineOfNothing",
     {">>DEFINE\n>>DEFINE A 1 2\n"},
     "",
     "directive-syntax main:1:1\ndirective-syntax main:2:1"},
    {"DefineTooLong",
     {">>DEFINE A \"" + std::string(5000, 'x') + "\"\n"},
     "",
     "directive-syntax main:1:1"},
    {"DefineOfANameThatIsTooLong",
     {">>DEFINE " + std::string(5000, 'A') + " 1\n"},
     "",
     "directive-syntax main:1:1"},
    {"DefineByALiteralThatDoesNotEnd", {">>DEFINE A \"ab\n>>IF A = \"ab\"\nX\n>>END-IF\n"}, "X"},
    {"DefineByATextInBooleanQuotes", {">>DEFINE A B'x'\n>>IF A = 'x'\nX\n>>END-IF\n"}, "X"},
    {"DefineWithAPeriod", {">>DEFINE A 1.\n>>IF A = 1\nX\n>>END-IF.\n"}, "X"},
    {"BlankBehindTheMark", {">> IF A DEFINED\nX\n>> END-IF\n"}, ""},
    {"SourceFormat", {"A\n>>SOURCE FORMAT IS FIXED\n123456 B\n123456 >>SOURCE FREE\nC\n"}, "A B C"},
    {"SourceFormatInColumn1OfFixed",
     {">>SOURCE FORMAT IS FREE\nA\n", {}, SourceFormat::fixed},
     "A"},
    {"SourceFormatVariable",
     {">>SOURCE FORMAT IS VARIABLE\n123456 A" + std::string(80, ' ') + "B\n"},
     "A B"},
    {"SourceFormatUnknown", {">>SOURCE FORMAT IS ODD\nA"}, "A", "directive-syntax main:1:1"},
    {"FormatGoesOnInCopybooks",
     {">>SOURCE FREE\nCOPY B.\nA\n", {{"B", "C\n"}}, SourceFormat::fixed},
     "C A"},
    {"FormatEndsWithTheCopybook", {"COPY B.\nA", {{"B", ">>SOURCE FIXED\n123456 C\n"}}}, "C A"},
    {"DefinitionsOutliveTheCopybook",
     {"COPY B.\n>>IF C = 1\nA\n>>END-IF\n", {{"B", ">>DEFINE C 1\n"}}},
     "A"},
    {"DollarSetInColumn7", {"      $SET SOURCEFORMAT\"FREE\"\nA\n", {}, SourceFormat::fixed}, "A"},
    {"DollarSetInParentheses",
     {"$set ans85 sourceformat(free)\nA\n", {}, SourceFormat::fixed},
     "A",
     "compiler-options main:1:1"},
    {"DollarSetFixed", {"$SET SOURCEFORMAT=FIXED\n123456 A\n"}, "A"},
    {"DoubleArrowSet", {">>SET SOURCEFORMAT \"FIXED\"\n123456 A\n"}, "A"},
    {"DollarSetConstant",
     {"$SET CONSTANT A \"x\" CONSTANT B(2)\n$IF A = \"x\" AND B = 2\nC\n$ELSE\nD\n$END\n"},
     "C"},
    {"DollarIfInFixed",
     {"      $IF A DEFINED\n       B\n      $ELSE\n       C\n      $END-IF\n",
      {},
      SourceFormat::fixed},
     "C"},
    {"DollarElif", {"$IF A DEFINED\nB\n$ELSE IF A NOT DEFINED\nC\n$END\n"}, "C"},
    {"DollarOfNoDirective", {"$A B\n"}, "$A B"},
    {"Cards",
     {"       CBL LIB,APOST\n000100 PROCESS TEST\n@OPTIONS X\n       A\n       CBL B\n",
      {},
      SourceFormat::fixed},
     "A CBL B",
     "compiler-options main:1:8\ncompiler-options main:2:8\ncompiler-options main:3:1"},
    {"CardsInWhatIsLeftOut", {">>IF A DEFINED\n@OPTIONS X\n>>END-IF\nB\n"}, "B"},
    {"SeveralOptionsAreToldOnce", {"$SET ANS85 MF\nA\n"}, "A", "compiler-options main:1:1"},
    {"DollarSetConstantByAnUndefinedName",
     {"$SET CONSTANT A B\n$IF A DEFINED\nC\n$END\n"},
     "",
     "undefined-name main:1:1"},
    {"CardInColumn1",
     {"CBL LIB\n       A\n", {}, SourceFormat::fixed},
     "A",
     "compiler-options main:1:1"},
    {"CardsInFree", {"PROCESS LIB\nA\n"}, "A", "compiler-options main:1:1"},
    {"ListingDirectives", {">>PAGE\n>>LISTING OFF\n>>TURN EC-ALL CHECKING OFF\nA"}, "A"},
    {"UnknownDirectivesAreToldOnce",
     {">>ODD 1\n>>odd\n>>ODD 1\n>>EVEN\nA"},
     "A",
     "unknown-directive main:1:1\nunknown-directive main:2:1\nunknown-directive main:4:1"},
    {"EmptyDirective", {">>\nA"}, "A", "unknown-directive main:1:1"},
};
AS_READING_ROWS(DirectiveRows, rows);

// No depth is too deep.
TEST(Directives, ConditionsNestToAnyDepth) {
  std::string text;
  for (int i = 0; i < 100000; i++) text += ">>IF NOT (A DEFINED)\n";
  text += "X\n";
  for (int i = 0; i < 100000; i++) text += ">>END-IF\n";
  EXPECT_EQ(test::wordsOf({text}), "X");
  EXPECT_EQ(test::wordsOf({">>IF " + std::string(200000, '(') + "A NOT DEFINED" +
                           std::string(200000, ')') + "\nX\n>>END-IF\n"}),
            "X");
}

}  // namespace

// Tests of how lines are read: columns, indicators, comments and continuations of each format.
#include <gtest/gtest.h>

#include <string>

#include "toolkit_unit/ReadSource.h"
#include "toolkit_unit/ReadingRowTest.h"

namespace {

using as::toolkit::SourceFormat;
using test::ReadingRow;

constexpr auto fixed = SourceFormat::fixed;
constexpr auto variable = SourceFormat::variable;

// From column 12 to 72, where the literal that it begins with a quote has not ended.
const std::string openToTheMargin = "           \"" + std::string(60, 'a');
const std::string sixty(60, 'a');
// The same with the closing quote in column 72.
const std::string closedAtTheMargin = "           \"" + std::string(59, 'a') + "\"";

const ReadingRow fixedRows[] = {
    {"SequenceNumbersArePassedOver", {"000100 01  A.\nAB/ x* B.\n", {}, fixed}, "01 A . B ."},
    {"CommentsByIndicator", {"      * A.\n      / B.\n000300*C.\n       D.\n", {}, fixed}, "D ."},
    {"FloatingComments",
     {"       A *> B.\n      *> C\n         *> D\n       E\n", {}, fixed},
     "A E"},
    {"CodeEndsInColumn72", {"       A" + std::string(63, ' ') + "BC D\n", {}, fixed}, "A B"},
    {"WideLinesAreToldOnce",
     {"      *" + std::string(90, 'x') + "\n       " + std::string(74, 'A') + "\n       " +
          std::string(74, 'B') + "\n",
      {},
      fixed},
     std::string(65, 'A') + " " + std::string(65, 'B'),
     "text-behind-margin main:2:73"},
    {"NamesOfRecordsAreNotTold",
     {"       " + std::string(73, 'A') + "\n", {}, fixed},
     std::string(65, 'A')},
    {"TextApartFromTheCodeIsNotTold",
     {"       A" + std::string(64, ' ') + std::string(20, 'B') + "\n", {}, fixed},
     "A"},
    {"DebuggingLinesArePassedOver",
     {"       A\n      D B\n      d C\n       D\n", {}, fixed},
     "A D"},
    {"DebuggingLinesCountWithDebuggingMode",
     {"       SOURCE-COMPUTER. X WITH DEBUGGING MODE.\n      D B.\n", {}, fixed},
     "SOURCE-COMPUTER . X WITH DEBUGGING MODE . B ."},
    {"DebuggingModeIsSaidOfTheComputerAlone",
     {"       SOURCE-COMPUTER. X.\n       A DEBUGGING MODE.\n      D B.\n", {}, fixed},
     "SOURCE-COMPUTER . X . A DEBUGGING MODE ."},
    {"ShortLines",
     {"\n1\n123456\n1234567\n       A\n", {}, fixed},
     "A",
     "unknown-indicator main:4:7"},
    {"DollarBeginsDirectivesOfFreeFormat", {"$XFD NAME=B\nA\n"}, "A", "unknown-directive main:1:1"},
    {"DollarBeginsDirectivesOfAnyCompiler",
     {"      $XFD NAME=B\n       A\n", {}, fixed},
     "A",
     "unknown-directive main:1:7"},
    {"DollarBeginsDirectivesThatNobodyKnows",
     {"      $MINE X\n       A\n", {}, fixed},
     "A",
     "unknown-directive main:1:7"},
    {"SmallDollarWord",
     {"      $mine x\n       A\n", {}, fixed},
     "A",
     "unknown-directive main:1:7"},
    {"DollarInFrontOfNoLetter",
     {"      $[\n      ${\n      $_B\n", {}, fixed},
     "[ { _B",
     "unknown-indicator main:1:7\nunknown-indicator main:2:7\nunknown-indicator main:3:7"},
    {"DollarThatBeginsNoWord",
     {"      $1\n      $\n       A\n", {}, fixed},
     "1 A",
     "unknown-indicator main:1:7\nunknown-indicator main:2:7"},
    {"ArrowThatBeginsNoDirective", {"      >A\n", {}, fixed}, "A", "unknown-indicator main:1:7"},
    {"CardBehindCode", {"       A\n      @X\n", {}, fixed}, "A X", "unknown-indicator main:2:7"},
    {"WideCommentsAreNotTold", {"      /" + std::string(90, 'x') + "\n", {}, fixed}, ""},
    {"WideDirectivesAreNotTold", {">>PAGE " + std::string(90, 'x') + "\n", {}, fixed}, ""},
    {"DirectiveBesideUmlauts",
     {"       >>DEFINE A \"\xC3\xA4\"\n\t>>IF A = \"\xC3\xA4\"\n>>IF A = 'a'\n       X\n>>ELSE\n   "
      "    "
      "Y\n>>END-IF\n>>END-IF\n",
      {},
      fixed},
     "Y"},
    {"WideCharactersTakeTwoColumns",
     {"\x93\xFA\x96\x7B\x8C\xEA A\n\x81\x8F\x81\x8F\x81\x8F B\n", {}, fixed, "CP932"},
     "A B"},
    {"GreekAndCyrillicTakeTwoColumns",
     {"\x83\x9F\x83\xBF\x83\xD6 A\n\x84\x40\x84\x91\x84\x70 B\n", {}, fixed, "CP932"},
     "A B"},
    {"NarrowLettersOfJapanTakeOne",
     {"\xB1\xB2\xB3\xDF\xA1\xB6 A\nAB\x93\xFA"
      "CD B\n",
      {},
      fixed,
      "CP932"},
     "A B"},
    {"LettersOfOneByteTakeOne", {"\x7E\x5C\x7E\x5C\x7E\x5C A\n", {}, fixed, "SHIFT_JIS"}, "A"},
    {"WhatIsNoCharacterTakesOne",
     {"\xFF\xFF\xFF\xFF\xFF\xFF A\x93\xFA\n", {}, fixed, "SHIFT_JIS"},
     "A\xE6\x97\xA5"},
    {"UnknownIndicatorIsPassedOver", {"      xA\n", {}, fixed}, "A", "unknown-indicator main:1:7"},
    {"TabsLeadToEveryEighthColumn", {"\tA\n\t\tB\n12345\t C\n      -\tD\n", {}, fixed}, "A B CD"},
    {"TabInFrontOfTheIndicator", {"1\tA\n", {}, fixed}, "A"},
    {"TabsCountUpToColumn72",
     {"\tA" + std::string(7, '\t') + "BCDEFGH" + std::string(60, 'I') + "\n", {}, fixed},
     "A BCDEFGHI"},
    {"LinesThatFitButForTheirTabsAreCode",
     {"\tA" + std::string(7, '\t') + "BCDEFGHIJK\n", {}, fixed},
     "A BCDEFGHIJK"},
    {"LinesDrawnFromColumn1AreComments",
     {"       A\n*----------*\n************\n*=====* B\n*------\n       C\n", {}, fixed},
     "A C"},
    {"StarsInSequenceNumbersAreNot", {"*CH001 A\n", {}, fixed}, "A"},
    {"DirectiveBehindAMarkOfFreeFormat", {"MARK   >>SOURCE FORMAT IS FIXED\nMARK   A\n"}, "A"},
    {"ColumnsAreCharacters",
     {"\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4 A\xC3\xA4" + std::string(62, ' ') + "BC\n",
      {},
      fixed},
     "A\xC3\xA4 B"},
    {"NoLineEndAtTheEnd", {"       A", {}, fixed}, "A"},
    {"WordIsContinued", {"       LONG-\n      -    NAME.\n", {}, fixed}, "LONG-NAME ."},
    {"BlanksInFrontOfAContinuationDoNotCount",
     {"       PIC X(   \n      -    5).\n", {}, fixed},
     "PIC <X(5)> ."},
    {"PeriodIsContinued", {"       1.\n      -5\n", {}, fixed}, "#1.5"},
    {"WordIsContinuedTwice", {"       A\n      -B\n      -  C D\n", {}, fixed}, "ABC D"},
    {"ContinuationOfNothing", {"      -A\n", {}, fixed}, "A"},
    {"BlankContinuation", {"       A\n      -\n       B\n", {}, fixed}, "A B"},
    {"ContinuationBehindCommentsAndBlankLines",
     {"       A\n      * x\n\n      *> y\n      -B\n", {}, fixed},
     "AB"},
    {"LiteralIsContinuedInColumn72",
     {openToTheMargin + "\n      -    \"b\".\n", {}, fixed},
     "\"" + sixty + "b\" ."},
    {"LiteralIsFilledUpToColumn72",
     {"           \"a\n      -    \"b\".\n", {}, fixed},
     "\"a" + std::string(59, ' ') + "b\" ."},
    {"LiteralIsFilledUpToColumn72OfALongerLine",
     {"           \"a" + std::string(59, ' ') + "12345678\n      -    \"b\".\n", {}, fixed},
     "\"a" + std::string(59, ' ') + "b\" ."},
    {"LiteralIsContinuedOverComments",
     {openToTheMargin + "\n      * \"\n\n      -    \"b\".\n", {}, fixed},
     "\"" + sixty + "b\" ."},
    {"LiteralInSingleQuotesIsContinued",
     {"           'a\"\n      -    'b'.\n", {}, fixed},
     "'a\"" + std::string(58, ' ') + "b' ."},
    {"QuoteInColumn72IsHalfOfADoubledOne",
     {closedAtTheMargin + "\n      -    \"\"b\".\n", {}, fixed},
     "\"" + sixty.substr(1) + "\"b\" ."},
    {"QuoteInColumn72IsTheOtherHalfOfOneInFront",
     {closedAtTheMargin + "\n      -    \"b\".\n", {}, fixed},
     "\"" + sixty.substr(1) + "\"b\" ."},
    {"DoubledQuoteUpToColumn72",
     {"           \"" + std::string(58, 'a') + "\"\"\n      -    \"b\".\n", {}, fixed},
     "\"" + std::string(58, 'a') + "\"b\" ."},
    {"ContinuationBehindAClosedLiteral",
     {"       \"a\"\n      -    \"b\".\n", {}, fixed},
     "\"a\" \"b\" ."},
    {"CommentBehindALineThatIsContinued", {"       A *> x\n      -B\n", {}, fixed}, "AB"},
    {"LiteralIsContinuedWithoutAQuote",
     {openToTheMargin + "\n      -    b\".\n", {}, fixed},
     "\"" + sixty + "b\" .",
     "bad-continuation main:2:12"},
    {"LiteralThatIsNotContinued",
     {"       \"a\n       B.\n", {}, fixed},
     "\"a\" B .",
     "unterminated-literal main:1:8"},
    {"LiteralIsContinuedByADash", {"       \"a\"-\n           \"b\".\n", {}, fixed}, "\"ab\" ."},
    {"LibrarianInclude", {"-INC C\n       A\n", {{"C", "       B\n"}}, fixed}, "B A"},
    {"LinesOfAnyLength",
     {"       A\n" + std::string(1000, '1') + "\n       B\n", {}, fixed},
     "A " + std::string(65, '1') + " B",
     "text-behind-margin main:2:73\nunknown-indicator main:2:7"},
};
AS_READING_ROWS(FixedLines, fixedRows);

const ReadingRow freeRows[] = {
    {"CodeFromTheFirstColumnOn", {"A.\n B\n"}, "A . B"},
    {"CodeBehindColumn72", {"A" + std::string(80, ' ') + "B\n"}, "A B"},
    {"Comments", {"A *> B\n*> C\n  *> D\n* E\n/ F\nG\n"}, "A G"},
    {"CommentsHaveNoPlaceInLiterals", {"\"A *> B\"\n"}, "\"A *> B\""},
    {"DebuggingLinesArePassedOver", {"A\n>>D B\nC\n"}, "A C"},
    {"DebuggingLinesCountWithDebuggingMode",
     {"SOURCE-COMPUTER. X DEBUGGING MODE.\n>>D B\n"},
     "SOURCE-COMPUTER . X DEBUGGING MODE . B"},
    {"LiteralIsContinuedByADash", {"\"a\"-\n  \"b\"-\n \"c\".\n"}, "\"abc\" ."},
    {"LiteralIsContinuedBehindADashInColumn1", {"\"a\n-   \"b\".\nC\n- D\n"}, "\"ab\" . C - D"},
    {"OptionsOfEachProgram",
     {"CBL LIST\nA.\nEND PROGRAM A.\n PROCESS LIST\nB.\nCBL C.\n"},
     "A . END PROGRAM A . B . CBL C .",
     "compiler-options main:1:1\ncompiler-options main:4:2"},
    {"LiteralIsContinuedOverComments", {"\"a\"-\n*> x\n\n\"b\".\n"}, "\"ab\" ."},
    {"DoubledQuoteInAContinuedLiteral", {"\"a\"\"\"-\n\"b\".\n"}, "\"a\"b\" ."},
    {"DashBehindALiteralThatIsNotContinued", {"\"a\"-\nB\n"}, "\"a\" - B"},
    {"DashAloneBehindAnOpenLiteral", {"\"a\n-\nB\n"}, "\"a\" - B", "unterminated-literal main:1:1"},
    {"DashInColumn2BehindAnOpenLiteral",
     {"\"a\n - \"b\"\n"},
     "\"a\" - \"b\"",
     "unterminated-literal main:1:1"},
    {"LiteralIsContinuedInItsOwnQuotes", {"\"a\"-\n'b'\n"}, "\"a\" - 'b'"},
    {"EmptyDebuggingLine",
     {"SOURCE-COMPUTER. X DEBUGGING MODE.\n>>D\nA\n"},
     "SOURCE-COMPUTER . X DEBUGGING MODE . A"},
    {"DirectiveBehindTwoWords", {"A B >>PAGE\n"}, "A B > > PAGE"},
    {"DirectiveBehindALongMark", {"MARKMARK>>PAGE\n"}, "MARKMARK > > PAGE"},
    {"DirectiveBehindWhatIsNoMark", {"A+B >>PAGE\n"}, "A + B > > PAGE"},
    {"DirectiveFarBehindAMark", {"MARK       >>PAGE\n"}, "MARK > > PAGE"},
    {"DashWithinALiteral", {"\"a'-\"\nB\n"}, "\"a'-\" B"},
    {"OpenLiteralWithADashAtTheEnd",
     {"\"a'-\n'b'\n"},
     "\"a'-\" 'b'",
     "unterminated-literal main:1:1"},
};
AS_READING_ROWS(FreeLines, freeRows);

const ReadingRow variableRows[] = {
    {"CodeBehindColumn72", {"123456 A" + std::string(80, ' ') + "B\n", {}, variable}, "A B"},
    {"Comments", {"123456*A\n      /B\n", {}, variable}, ""},
    {"WordIsContinued", {"       A\n      -B\n", {}, variable}, "AB"},
    {"LiteralIsContinuedWhereItsLineEnds",
     {"       \"a \n      - \"b\"\n", {}, variable},
     "\"a b\""},
    {"Tabs", {"\tA\tB\n", {}, variable}, "A B"},
    {"TabsOfLongLines", {"\tA" + std::string(80, ' ') + "B\n", {}, variable}, "A B"},
};
AS_READING_ROWS(VariableLines, variableRows);

TEST(SourcePlaces, AreThoseOfTheText) {
  const std::string text =
      "       01  \xC3\xA4  B.\n"
      "\t\tC\tD\n"
      "       LONG\n"
      "      -    ER \"a\n"
      "      - \"b\" E.\n";
  EXPECT_EQ(
      test::readingOf({text, {}, fixed}, true).words,
      "01 at main:1:8; \xC3\xA4 at main:1:12; B at main:1:15; . at main:1:16; C at main:2:17; "
      "D at main:2:25; LONGER at main:3:8; \"a" +
          std::string(56, ' ') + "b\" at main:4:15; E at main:5:13; . at main:5:14;");
  EXPECT_EQ(test::readingOf({"A+B\n"}, true).words, "A at main:1:1; + at main:1:2; B at main:1:3;");
  EXPECT_EQ(test::readingOf({"\tA\n"}, true).words, "A at main:1:9;");
}

}  // namespace

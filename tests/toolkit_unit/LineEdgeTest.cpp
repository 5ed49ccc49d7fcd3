// Tests of lines, words and statements at their edges: what is one column or one mark off.
#include <gtest/gtest.h>

#include <string>

#include "toolkit_unit/ReadSource.h"
#include "toolkit_unit/ReadingRowTest.h"

namespace {

using as::toolkit::SourceFormat;
using test::ReadingRow;

constexpr auto fixed = SourceFormat::fixed;

const std::string blanks(80, ' ');

const ReadingRow markRows[] = {
    {"OfSixCharacters", {"MARK-1  >>ODD\nA\n"}, "A", "unknown-directive main:1:1"},
    {"RightInFrontOfTheDirective", {"MARK-1>>ODD\nA\n"}, "A", "unknown-directive main:1:1"},
    {"OfSevenCharacters", {"MARKS-7 >>ODD\nA\n"}, "MARKS-7 > > ODD A"},
    {"DirectiveTooFarBehind", {"MARK-1   >>ODD\nA\n"}, "MARK-1 > > ODD A"},
    {"OfTwoWords", {"A MARK >>ODD\n"}, "A MARK > > ODD"},
    {"OfOtherCharacters", {"A+1    >>ODD\n"}, "A #+1 > > ODD"},
};
AS_READING_ROWS(MarksOfFreeFormat, markRows);

const ReadingRow indicatorRows[] = {
    {"DollarAndAWord", {"      $XFD B\n       A\n", {}, fixed}, "A", "unknown-directive main:1:7"},
    {"DollarAndAnyWord",
     {"      $VENDOR B\n       A\n", {}, fixed},
     "A",
     "unknown-directive main:1:7"},
    {"DollarAndNoLetter", {"      $1 B\n", {}, fixed}, "1 B", "unknown-indicator main:1:7"},
    {"DollarAlone", {"      $\n       A\n", {}, fixed}, "A", "unknown-indicator main:1:7"},
    {"DollarAndBlanksAndAWord",
     {"      $  XFD B\n       A\n", {}, fixed},
     "A",
     "unknown-directive main:1:7"},
    {"AreaA",
     {"       ID DIVISION.\n       AUTHOR. X.\n           DATA X.\n          SPECIAL-NAMES. A.\n",
      {},
      fixed},
     "ID DIVISION . SPECIAL-NAMES . A ."},
    {"BehindAreaA",
     {"       ID DIVISION.\n       AUTHOR. X.\n           SPECIAL-NAMES. A.\n", {}, fixed},
     "ID DIVISION ."},
};
AS_READING_ROWS(Indicators, indicatorRows);

const ReadingRow wideRows[] = {
    {"OfExactly80Columns",
     {"       " + std::string(73, 'A') + "\n", {}, fixed},
     std::string(65, 'A')},
    {"OfOneMore",
     {"       " + std::string(74, 'A') + "\n", {}, fixed},
     std::string(65, 'A'),
     "text-behind-margin main:1:73"},
    {"BlankInColumn72",
     {"       A" + blanks.substr(0, 64) + std::string(20, 'B') + "\n", {}, fixed},
     "A"},
    {"BlankInColumn73",
     {"       " + std::string(65, 'A') + " " + std::string(20, 'B') + "\n", {}, fixed},
     std::string(65, 'A')},
    {"BlankInColumn72Alone",
     {"       " + std::string(64, 'A') + " " + std::string(20, 'B') + "\n", {}, fixed},
     std::string(64, 'A')},
    {"BlankInColumn71",
     {"       " + std::string(63, 'A') + " C" + std::string(20, 'B') + "\n", {}, fixed},
     std::string(63, 'A') + " C",
     "text-behind-margin main:1:73"},
    {"CommentByAStar", {"      *" + std::string(90, 'A') + "\n", {}, fixed}, ""},
    {"CommentByASlash", {"      /" + std::string(90, 'A') + "\n", {}, fixed}, ""},
};
AS_READING_ROWS(WideLines, wideRows);

// Of a code page where letters of two bytes take two columns: column 73 is left out.
std::string shiftJisLine(const std::string& letters, std::size_t columns) {
  return "       A" + blanks.substr(0, 64 - columns) + letters + "B\n";
}

const ReadingRow columnRows[] = {
    {"OfNarrowLetters",
     {shiftJisLine("\xB1\xB2", 2), {}, fixed, "CP932"},
     "A \xEF\xBD\xB1\xEF\xBD\xB2"},
    {"OfWideLetters", {shiftJisLine("\x93\xFA", 2), {}, fixed, "CP932"}, "A \xE6\x97\xA5"},
};
AS_READING_ROWS(ColumnsOfTwoBytes, columnRows);

const ReadingRow wordRows[] = {
    {"Powers", {"A**B **C X ** 2 A***B"}, "A ** B ** C X ** 2 A ** * B"},
    {"Products", {"A*B * C"}, "A * B * C"},
};
AS_READING_ROWS(WordEdges, wordRows);

const ReadingRow continuedRows[] = {
    {"ByADashInColumn1", {"\"a\n-   \"b\".\n"}, "\"ab\" ."},
    {"NotByADashInColumn2",
     {"\"a\n -   \"b\".\n"},
     "\"a\" - \"b\" .",
     "unterminated-literal main:1:1"},
    {"NotByADashAlone", {"\"a\n-\n\"b\".\n"}, "\"a\" - \"b\" .", "unterminated-literal main:1:1"},
    {"NotByAnInclude",
     {"\"a\n-INC B\n", {{"B", "C"}}},
     "\"aINC B\"",
     "bad-continuation main:2:2\nunterminated-literal main:1:1"},
    {"NotByADirective", {"\"a\n>>PAGE\nB\n"}, "\"a\" B", "unterminated-literal main:1:1"},
    {"OverACommentBehindBlanks", {"\"a\"-\n  *> x\n\"b\".\n"}, "\"ab\" ."},
    {"OverACommentInTheCodeOfFixedFormat", {"       A\n        *> x\n      -B\n", {}, fixed}, "AB"},
    {"AtTheEnd", {"\"a\n"}, "\"a\"", "unterminated-literal main:1:1"},
};
AS_READING_ROWS(ContinuedInFreeFormat, continuedRows);

const ReadingRow copyRows[] = {
    {"NameWithAZeroByteThatIsThere",
     {std::string("COPY \"B\0\". A", 12), {{std::string("B\0", 2), "D"}}},
     "A",
     "control-character main:1:8\ncopybook-not-found main:1:1"},
};
AS_READING_ROWS(CopiedNames, copyRows);

// COPY B with the phrase, where B is the text.
ReadingRow joining(const char* name, const std::string& phrase, const std::string& text,
                   const std::string& words) {
  return {name, {"COPY B " + phrase + ". Z", {{"B", text}}}, words + " Z"};
}

const ReadingRow joinedRows[] = {
    joining("NamesWithoutThePrefixStay", "DISJOINING I JOINING O AS PREFIX",
            "01 I-A. 02 LONG-A PIC X. 02 I PIC X. 02 I- PIC X.",
            "01 O-A . 02 LONG-A PIC <X> . 02 I PIC <X> . 02 I- PIC <X> ."),
    joining("NumbersOfThreeDigitsAreNoLevels", "JOINING O AS PREFIX", "01 A. 100 B. \'02\' C.",
            "01 O-A . 100 B . \'02\' C ."),
    joining("ItemsThatClausesBeginHaveNoNames", "JOINING O AS PREFIX",
            "01 A. 02 PICTURE X. 02 REDEFINES B PIC X. 02 COMP-1. 02 TYPE T. 02 IS GLOBAL.",
            "01 O-A . 02 PICTURE <X> . 02 REDEFINES B PIC <X> . 02 COMP-1 . 02 TYPE T . 02 IS "
            "GLOBAL ."),
    joining("NamesWithoutTheSuffixStay", "DISJOINING I JOINING O AS SUFFIX",
            "01 A-I. 02 A-LONG PIC X. 02 I PIC X.", "01 A-O . 02 A-LONG PIC <X> . 02 I PIC <X> ."),
};
AS_READING_ROWS(JoinedNames, joinedRows);

const ReadingRow dollarRows[] = {
    {"Conditions",
     {"$IF B DEFINED\nC\n$ELIF D DEFINED\nE\n$ELSE-IF F DEFINED\nG\n$ELSE\nA\n$END-IF\n"},
     "A"},
    {"ShortEnd", {"$IF B DEFINED\nC\n$END\nA\n"}, "A"},
    {"Display", {"$DISPLAY B\nA\n"}, "A"},
    {"Region", {"$REGION B\nA\n$END-REGION\n"}, "A"},
    {"Set", {"$SET B\nA\n"}, "A", "compiler-options main:1:1"},
    {"BlankBehindTheDollar", {"$  SET B\nA\n"}, "A", "compiler-options main:1:1"},
    {"LongerWord", {"$SETS B\n$DISPLAYS\n"}, "$SETS B $DISPLAYS"},
};
AS_READING_ROWS(DollarDirectives, dollarRows);

TEST(DirectivesWithoutBearing, ArePassedOver) {
  for (const char* const word : {"CALL-CONVENTION",
                                 "COBOL-WORDS",
                                 "DISPLAY",
                                 "EJECT",
                                 "FLAG-02",
                                 "FLAG-14",
                                 "FLAG-85",
                                 "LEAP-SECOND",
                                 "LISTING",
                                 "PAGE",
                                 "POP",
                                 "PROPAGATE",
                                 "PUSH",
                                 "REGION",
                                 "REPOSITORY",
                                 "SKIP1",
                                 "SKIP2",
                                 "SKIP3",
                                 "TITLE",
                                 "TURN",
                                 "END-REGION",
                                 "REF-MOD-ZERO-LENGTH",
                                 "page"}) {
    const test::Reading reading = test::readingOf({std::string(">>") + word + " B\nA\n"});
    EXPECT_EQ(reading.words, "A") << word;
    EXPECT_EQ(reading.findings, "") << word;
  }
}

// Directives, and what is told of them in full.
TEST(DirectiveFindings, AreToldInFull) {
  struct Row {
    const char* text;
    const char* told;
  };
  for (const Row& row : {
           Row{"CBL LIB\n", "note: main:1:1: the compiler options \"CBL LIB\" are passed over\n"},
           Row{">>ODD B\n",
               "note: main:1:1: the directive \">>ODD B\" is not known and passed over\n"},
           Row{">>IF B = 1\n>>END-IF\n",
               "warning: main:1:1: \"B\" is not defined: what compares with it is not so\n"},
           Row{">>ELSE\n", "error: main:1:1: ELSE stands without an IF\n"},
           Row{">>ELIF 1 = 1\n", "error: main:1:1: ELIF stands without an IF\n"},
           Row{">>END-IF\n", "error: main:1:1: END-IF stands without an IF\n"},
           Row{">>WHEN 1\n", "error: main:1:1: WHEN stands without an EVALUATE\n"},
           Row{">>END-EVALUATE\n", "error: main:1:1: END-EVALUATE stands without an EVALUATE\n"},
           Row{">>EVALUATE 1\n>>ELSE\n>>END-EVALUATE\n",
               "error: main:2:1: ELSE stands without an IF\n"},
           Row{">>IF B DEFINED\n", "error: main:1:1: the IF does not end\n"},
           Row{">>EVALUATE 1\n", "error: main:1:1: the EVALUATE does not end\n"},
           Row{">>DEFINE\n", "error: main:1:1: DEFINE names nothing\n"},
           Row{">>DEFINE A 1 2\n",
               "error: main:1:1: DEFINE takes one literal; \"2\" is not understood\n"},
           Row{">>DEFINE A 1\n>>DEFINE A 2\n",
               "error: main:2:1: \"A\" is defined already, as \"1\"\n"},
           Row{">>SOURCE ODD\n", "error: main:1:1: the source format \"ODD\" is not known\n"},
           Row{"$SET ODD\n", "note: main:1:1: the compiler options \"$SET ODD\" are passed over\n"},
           Row{">>IF B\n>>END-IF\n",
               "warning: main:1:1: \"B\" is not defined: what compares with it is not so\n"},
           Row{">>IF 1 =\n>>END-IF\n", "error: main:1:1: a name or a literal is wanting\n"},
           Row{">>IF = 1\n>>END-IF\n",
               "error: main:1:1: \"=\" stands where a name or a literal is to be\n"},
           Row{">>IF (1 = 1\n>>END-IF\n", "error: main:1:1: a \"(\" has no \")\"\n"},
           Row{">>IF 1 = 1)\n>>END-IF\n", "error: main:1:1: a \")\" has no \"(\"\n"},
           Row{">>IF 1 LESS OR 2\n>>END-IF\n", "error: main:1:1: EQUAL is wanting\n"},
           Row{">>DEFINE A AS 1 / 0\n", "error: main:1:1: a number is divided by zero\n"},
           Row{">>DEFINE A AS 1 + \"B\"\n", "error: main:1:1: \"B\" is no number\n"},
           Row{">>DEFINE A AS ( 1 + 1\n", "error: main:1:1: a \"(\" has no \")\"\n"},
           Row{">>DEFINE A AS 999999999999999 * 2\n", "error: main:1:1: the number is too large\n"},
           Row{"\"B\n",
               "error: main:1:1: the literal \"\"B\" does not end; end it with \", or continue it "
               "on the next line\n"},
           Row{"COPY NONE.\n",
               "error: main:1:1: the copybook \"NONE\" was not found; name its folder\n"},
           Row{"COPY NONE OF LIB.\n",
               "error: main:1:1: the copybook \"NONE\" of the library \"LIB\" was not found; name "
               "its folder\n"},
           Row{"COPY unreadable.\n",
               "error: main:1:1: the copybook \"unreadable\" cannot be read: it is locked\n"},
           Row{"COPY B.\n",
               "error: B:1:1, copied at main:1:1: the copybook copies itself: B copies B\n"},
           Row{"COPY.\n", "error: main:1:1: COPY names no copybook\n"},
           Row{"COPY C OF .\n", "error: main:1:11: COPY names no library behind OF\n"},
           Row{"COPY C",
               "warning: main:1:1: COPY C ends without a period; write a period behind it\n"},
           Row{"COPY C REPLACING ==A== ==B==.\n",
               "error: main:1:24: BY is wanting in front of \"==\"; what follows up to the period "
               "is passed over\n"},
           Row{"COPY C REPLACING BY ==B==.\n",
               "error: main:1:21: BY is wanting in front of \"==\"; what follows up to the period "
               "is passed over\n"},
           Row{"COPY C REPLACING ==== BY ==B==.\n",
               "error: main:1:23: the text to be replaced is empty in front of \"BY\"; what "
               "follows up to the period is passed over\n"},
           Row{"COPY C REPLACING ==A== BY.\n",
               "error: main:1:26: the text behind BY is wanting in front of \".\"; what follows up "
               "to the period is passed over\n"},
           Row{"COPY C REPLACING ==A BY B.\n",
               "error: main:1:18: the pseudo-text does not end; end it with ==\nerror: main:1:26: "
               "BY is wanting; what follows up to the period is passed over\n"},
           Row{"COPY C JOINING A.\n",
               "error: main:1:1: JOINING is followed by neither PREFIX nor SUFFIX\n"},
           Row{"COPY C PREFIXING .\n", "error: main:1:1: PREFIXING is followed by no word\n"},
           Row{"++INCLUDE\n", "error: main:1:1: ++INCLUDE names no copybook\n"},
           Row{"REPLACE OFF A\n",
               "warning: main:1:1: REPLACE OFF ends without a period; write a period behind it\n"},
           Row{"REPLACE LAST ==A== BY ==B==.\n", "error: main:1:14: OFF is wanting behind LAST\n"},
           Row{"REPLACE ==A== BY ==B==\n",
               "warning: main:1:1: the statement ends without a period\n"},
           Row{"EXEC SQL A END-EXEC.\n",
               "note: main:1:1: 1 statement EXEC SQL is passed over, this is the first\n"},
           Row{"EXEC SQL A END-EXEC. EXEC SQL B END-EXEC.\n",
               "note: main:1:1: 2 statements EXEC SQL are passed over, this is the first\n"},
           Row{"EXEC ABCDEFGHI X END-EXEC.\n",
               "note: main:1:1: 1 statement EXEC ABCDEFGH is passed over, this is the first\n"},
           Row{"EXEC SQL A\n",
               "error: main:1:1: the EXEC statement does not end; end it with END-EXEC\n"},
           Row{"BASIS LIB\n",
               "error: main:1:1: BASIS is not supported, and is passed over; import the source "
               "that it makes\n"},
           Row{"01 :T:-A.\n",
               "warning: main:1:5: nothing replaces the tag :T:, which is read as a part of "
               "names\n"},
           Row{"PROCEDURE DIVISION USING A. COPY NONE.\n",
               "warning: main:1:29: the copybook \"NONE\" was not found: entry points in it are "
               "left out; name its folder\n"},
           Row{"SCREEN SECTION. COPY NONE.\n",
               "warning: main:1:17: the copybook \"NONE\" was not found: its section is passed "
               "over; name its folder\n"},
       }) {
    EXPECT_EQ(test::readingOf({row.text, {{"B", "COPY B."}, {"C", "A"}}}).texts, row.told)
        << row.text;
  }
}

TEST(LineFindings, AreToldInFull) {
  struct Row {
    std::string text;
    const char* told;
  };
  for (const Row& row : {
           Row{"      xA\n",
               "warning: main:1:7: \"x\" in column 7 is no indicator, and is passed over; name the "
               "format of the source if it is not fixed\n"},
           Row{"       " + std::string(74, 'A') + "\n",
               "warning: main:1:73: what stands behind column 72 is left out here, and in the "
               "lines behind; name the format of the source if it is not fixed\n"},
           Row{"           \"a\n      -    b\".\n",
               "warning: main:2:12: the literal goes on without a quote of its own kind in front; "
               "begin the continuation with \"\n"},
       }) {
    EXPECT_EQ(test::readingOf({row.text, {}, fixed}).texts, row.told) << row.text;
  }
}

TEST(DollarInColumn7, BeginsADirectiveInFrontOfALetter) {
  for (const char letter : std::string("AZaz")) {
    EXPECT_EQ(test::readingOf({std::string("      $") + letter + "BC\n", {}, fixed}).findings,
              "unknown-directive main:1:7")
        << letter;
  }
  for (const char other : std::string("[`{19")) {
    EXPECT_EQ(test::readingOf({std::string("      $") + other + "BC\n", {}, fixed}).findings,
              "unknown-indicator main:1:7")
        << other;
  }
}

const ReadingRow oddStartRows[] = {
    {"Directive", {">>PAGE X\n       A\n", {}, fixed}, "A"},
    {"DirectiveBehindBlanks", {"  >>PAGE X\n       A\n", {}, fixed}, "A"},
    {"DirectiveBehindCode", {"       A\n  >>PAGE X\n>>PAGE Y\n", {}, fixed}, "A"},
    {"DirectiveInAreaA", {"       A\n       >>PAGE X\n", {}, fixed}, "A"},
    {"Dollar", {"$DISPLAY X\n       A\n", {}, fixed}, "A"},
    {"DollarBehindBlanks", {"  $DISPLAY X\n       A\n", {}, fixed}, "A"},
    {"DollarBehindCode", {"       A\n$DISPLAY X\n  $DISPLAY Y\n", {}, fixed}, "A"},
    {"DollarInAreaA", {"       A\n       $DISPLAY X\n", {}, fixed}, "A"},
    {"Card", {"@X Y Z X Y\n       A\n", {}, fixed}, "A", "compiler-options main:1:1"},
    {"CardBehindBlanks", {"  @X Y Z\n       A\n", {}, fixed}, "A", "compiler-options main:1:3"},
    {"CardInColumn7", {"      @X Y Z\n       A\n", {}, fixed}, "A", "compiler-options main:1:7"},
    {"CardBehindCode", {"       A\n@X Y Z B\n", {}, fixed}, "A B"},
    {"NoCard", {"@\n       A\n", {}, fixed}, "A"},
    {"NoCardInFree", {"@\nA\n"}, "@ A"},
    {"CardInFree", {"@X\nA\n"}, "A", "compiler-options main:1:1"},
    {"CardByItsWord", {"CBL X,Y\n       A\n", {}, fixed}, "A", "compiler-options main:1:1"},
    {"CardByItsWordBehindBlanks",
     {"  PROCESS X\n       A\n", {}, fixed},
     "A",
     "compiler-options main:1:3"},
    {"CardByItsWordBehindCode", {"       A\nCBL X  B\n", {}, fixed}, "A B"},
    {"LongerWord", {"CBLS X B\n", {}, fixed}, "B"},
    {"Include", {"-INC B\n       A\n", {{"B", "       C\n"}}, fixed}, "C A"},
    {"IncludeBehindCode", {"       A\n-INC B\n", {{"B", "       C\n"}}, fixed}, "A C"},
    {"NoIncludeBehindABlank",
     {" -INC B\n       A\n", {{"B", "       C\n"}}, fixed},
     "A",
     "unknown-indicator main:1:7"},
};
AS_READING_ROWS(OddStarts, oddStartRows);

// A line of 72 bytes was meant to be code, whatever its tabs come to.
const ReadingRow tabRows[] = {
    {"Of72Bytes", {"\t" + std::string(71, 'A') + "\n", {}, fixed}, std::string(71, 'A')},
    {"Of73Bytes", {"\t" + std::string(72, 'A') + "\n", {}, fixed}, std::string(64, 'A')},
    {"AcrossColumn72",
     {"       " + std::string(64, 'A') + "\t" + std::string(10, 'B') + "\n", {}, fixed},
     std::string(64, 'A')},
    {"Debugging", {"      D\tB\n      d\tB\n\tA\n", {}, fixed}, "A"},
};
AS_READING_ROWS(TabbedLines, tabRows);

const ReadingRow drawnRows[] = {
    {"OfStars", {"******** A\n", {}, fixed}, ""},
    {"OfDashes", {"*------- A\n", {}, fixed}, ""},
    {"OfEquals", {"*======= A\n", {}, fixed}, ""},
    {"OfDashesUpToTheIndicator", {"*------ A\n", {}, fixed}, ""},
    {"OfDashesInFrontOfTheIndicator", {"*----- A\n", {}, fixed}, "A"},
    {"OfEqualsBehindALetter", {"*A====== A\n", {}, fixed}, "= A", "unknown-indicator main:1:7"},
    {"OfStarsAndDashes", {"**---- A\n", {}, fixed}, "A"},
    {"OfBlanks", {"*       A\n", {}, fixed}, "A"},
    {"OfOtherMarks", {"*++++++A\n", {}, fixed}, "A", "unknown-indicator main:1:7"},
    {"OfSevenColumns", {"*------\n       A\n", {}, fixed}, "A"},
    {"WithoutAStar", {"------ A\n", {}, fixed}, "A"},
};
AS_READING_ROWS(DrawnLines, drawnRows);

}  // namespace

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

// COPY B with the phrase, where B is the text.
ReadingRow joining(const char* name, const std::string& phrase, const std::string& text,
                   const std::string& words) {
  return {name, {"COPY B " + phrase + ". Z", {{"B", text}}}, words + " Z"};
}

const ReadingRow joinedRows[] = {
    joining("NamesWithoutThePrefixStay", "DISJOINING I JOINING O AS PREFIX",
            "01 I-A. 02 LONG-A PIC X. 02 I PIC X. 02 I- PIC X.",
            "01 O-A . 02 LONG-A PIC <X> . 02 I PIC <X> . 02 I- PIC <X> ."),
    joining("NamesWithoutTheSuffixStay", "DISJOINING I JOINING O AS SUFFIX",
            "01 A-I. 02 A-LONG PIC X. 02 I PIC X.", "01 A-O . 02 A-LONG PIC <X> . 02 I PIC <X> ."),
};
AS_READING_ROWS(JoinedNames, joinedRows);

}  // namespace

// Tests of which format sources are taken to be written in.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "toolkit/import/FormatRecognition.h"

namespace {

using as::toolkit::SourceFormat;

struct Row {
  const char* name;
  std::string text;
  SourceFormat format;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

constexpr auto fixed = SourceFormat::fixed;
constexpr auto free = SourceFormat::free;
constexpr auto variable = SourceFormat::variable;
constexpr auto unknown = SourceFormat::recognised;  // Stands for what is taken otherwise.

const std::string star = "      * A\n";

// A line with so many characters of a literal that does not end in front of the margin.
std::string literal(std::size_t size) { return "       A '" + std::string(size, 'x'); }

// A line up to that column.
std::string code(std::size_t columns) { return "       " + std::string(columns - 7, 'A'); }

std::string lines(int count, const std::string& line) {
  std::string text;
  for (int i = 0; i < count; ++i) text += line;
  return text;
}

const Row rows[] = {
    {"Nothing", "", unknown},
    {"BlankLines", "\n   \n            \n", unknown},
    {"CodeFromColumn8On", "       IDENTIFICATION DIVISION.\n           MOVE A TO B.\n", unknown},
    {"CommentByIndicator", "       A.\n      * B\n", fixed},
    {"PageByIndicator", "       A.\n      / B\n", fixed},
    {"CommentByIndicatorAndTab", "\tA.\n      *\tB\n", fixed},
    {"FloatingCommentInColumn7", "      *> B\n", unknown},
    {"SequenceNumbers", "000100 A.\n000200 B.\n", fixed},
    {"OffsetsInFrontOfEntries", " 01 24    05 A-B.\n 25 03       10 C PIC X.\n105 9     05 D.\n",
     fixed},
    {"LevelsInFrontOfNumbers", "01 A.\n 05 9 10 B.\n", free},
    {"NumbersInFrontOfNumbers", " 01 24    05 12 A.\n", free},
    {"NumbersInFrontOfAMark", " 01 24    05 (A).\n", free},
    {"SmallDebuggingLine", "      d A\n", unknown},
    {"DollarInColumn7", "      $IF A\n", unknown},
    {"ArrowsInColumn7", "      >>IF A DEFINED\n", unknown},
    {"NumbersWithSmallDebuggingLines", "000100d A.\n", fixed},
    {"NumbersWithDollars", "000100$XFD A\n", fixed},
    {"NumbersWithContinuations", "000100-A.\n", fixed},
    {"NumbersWithPages", "000100/A.\n", fixed},
    {"ShortStatementCountsAsMuchAsAContinuation", "END\n      -    B\n", unknown},
    {"MoreThanSixDigits", "12345678\n", unknown},
    {"LetterInColumn7AtTheEnd", "ABC   D\n", fixed},
    {"WordBehindALetter", "    A DATE-OF\n", unknown},
    {"ItemCalledDInSmallLetters", "    5 d PIC X.\n", unknown},
    {"WordWithADInColumn7OfText", "RECORDER.\n", free},
    {"LinesFarBehindAreNotLookedAt", lines(4000, "       A.\n") + star, unknown},
    {"LinesNotSoFarBehindAre", lines(3999, "       A.\n") + star, fixed},
    {"SequenceNumbersOnly", "000100\n", fixed},
    {"SequenceNumbersWithComments", "000100*A.\n", fixed},
    {"ChangeMarksWithComments", "CR4711* A.\nCR4711 B\n", fixed},
    {"ChangeMarks", "CR4711 A.\nABC123 B\n", unknown},
    {"Continuation", "           A\n      -    B\n", fixed},
    {"DashBehindAChangeMark", "ABC12X-    B\n", fixed},
    {"DashInFrontOfAWord", "      -XYZ\n", fixed},
    {"Division", "IDENTIFICATION DIVISION.\n", free},
    {"ProgramIdWithADashInColumn8", "PROGRAM-ID. A.\n", free},
    {"DashInColumn7", "ACCEPT-A.\n", free},
    {"Levels", "01 A.\n   05 B PIC X.\n", free},
    {"LevelsWithABlankInColumn7", "01   A PIC X.\n  05 B  PIC X.\n", free},
    {"Verbs", "MOVE A TO B\n", free},
    {"VerbWithABlankInColumn7", "ADD 1  TO B\n", free},
    {"IndentedVerbs", "  IF A\n", free},
    {"CommentInColumn1", "*> A\n", free},
    {"CommentInColumn3", "  *> A\n", free},
    {"LongerLinesInFront", "  WORKING-STORAGE SECTION.\n", free},
    {"IndentedFreeBySix", "      MOVE A TO B\n      ADD 1 TO C\n", free},
    {"MostLinesTell", "000100 A.\n000200 B.\nIDENTIFICATION DIVISION.\n", fixed},
    {"FormatDirectiveEndsTheLook", ">>SOURCE FORMAT IS FREE\n      * A\n", unknown},
    {"DollarDirectiveEndsTheLook", "      $SET SOURCEFORMAT\"FREE\"\n      * A\n", unknown},
    {"OtherDirectivesDoNot", ">>DEFINE A 1\n$SET ANS85\n      * A\n", fixed},
    {"DebuggingLine", "      D A\n", unknown},
    {"WordWithADInColumn7", "    7 DATE-OF PIC X.\n", free},
    {"ItemCalledDOrADebuggingLine", "    5 D PIC X.\n", unknown},
    {"LiteralThatEndsBehindTheMargin", star + literal(60) + " y'.\n       A.\n", variable},
    {"LiteralThatIsContinued", star + literal(60) + " y'.\n      -    'z'.\n", fixed},
    {"LiteralThatEndsNowhere", star + literal(60) + "\n       A.\n", fixed},
    {"TextBehindTheIdentification", star + code(72) + "        A.\n", variable},
    {"TextThroughTheIdentification", star + code(79) + "AAAA\n", variable},
    {"IdentificationAndMore", star + code(72) + "ABCD0010 A.\n", fixed},
    {"PageBehindTheMargin", star + "      / " + std::string(80, 'x') + "\n", fixed},
    {"DollarBehindTheMargin", star + "      $XFD " + std::string(80, 'x') + "\n", fixed},
    {"TabsInALongLine", star + "       A\t" + std::string(80, 'x') + "\n", fixed},
    {"UmlautsInFrontOfTheMargin", star + "       " + lines(40, "\xC3\xA4") + "\n", fixed},
    {"TextFarBehindNothing", star + std::string(85, ' ') + "B\n", variable},
    {"BlanksBehindTheRecord", star + code(72) + std::string(20, ' ') + "\n", fixed},
    {"LiteralInFrontOfAShortLine", star + literal(60) + " y'.\nB\n", variable},
    {"CommentBehindTheMargin", star + "      * " + std::string(80, 'x') + "\n", fixed},
    {"InlineCommentBehindTheMargin", star + "       A. *> it's " + std::string(80, 'x') + "'\n",
     fixed},
    {"UmlautsInALiteralAtTheMargin",
     star + "       A '" + std::string(60, ' ').replace(0, 20, 20, '\xA4').append("' ") + "\n",
     fixed},
    {"RemarkFarBehindASentence", star + "       A." + std::string(75, ' ') + "B\n", fixed},
    {"RemarkFarBehindASentenceUpToTheMargin", star + code(71) + "." + std::string(10, ' ') + "B\n",
     fixed},
    {"BarBehindTheMargin", star + "       A. | it's " + std::string(80, 'x') + "'\n", fixed},
    {"UmlautsAreOneColumn", "\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4* A\n", fixed},
};

class Recognised : public testing::TestWithParam<Row> {};

TEST_P(Recognised, Format) {
  EXPECT_EQ(as::toolkit::recognisedFormat(GetParam().text, unknown), GetParam().format);
}

INSTANTIATE_TEST_SUITE_P(Rows, Recognised, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

struct CopybookRow {
  const char* name;
  std::string text;
  SourceFormat around;
  bool isTold;
  SourceFormat format;
};

void PrintTo(const CopybookRow& row, std::ostream* out) { *out << row.name; }

const std::string either = "           05 A PIC X.\n";
const std::string withoutMargin = literal(60) + " y'.\n       A.\n";

const CopybookRow copybookRows[] = {
    {"GoodInBothIsFreeInFree", either, free, false, free},
    {"GoodInBothIsFixedInFixed", either, fixed, false, fixed},
    {"AWeakSignDecidesNothingInFree", "000100\n" + either, free, false, free},
    {"AWeakSignDecidesNothingInFixed", "ACCEPT-A.\n" + either, fixed, false, fixed},
    {"FixedInFree", star + either, free, false, fixed},
    {"FreeInFixed", "MOVE A TO B\n", fixed, false, free},
    {"FixedInToldFree", star + either, free, true, fixed},
    {"FreeInToldFixed", "MOVE A TO B\n", fixed, true, free},
    {"MixedIsAsAround", star + "MOVE A TO B\n", free, false, free},
    {"MostlyFixedIsAsAround", star + star + "MOVE A TO B\n", free, false, free},
    {"NearlyAllFixed", star + star + star + "MOVE A TO B\n", free, false, fixed},
    {"WithoutAMarginInFixed", withoutMargin, fixed, false, variable},
    {"WithoutAMarginInToldFixed", withoutMargin, fixed, true, fixed},
    {"FreeInVariable", "MOVE A TO B\n", variable, false, free},
    {"ToldVariableStays", star + either, variable, true, variable},
};

class CopybookFormat : public testing::TestWithParam<CopybookRow> {};

TEST_P(CopybookFormat, IsThatAroundUnlessTheTextSaysOtherwise) {
  const CopybookRow& row = GetParam();
  EXPECT_EQ(as::toolkit::copybookFormat(row.text, row.around, row.isTold), row.format);
}

INSTANTIATE_TEST_SUITE_P(Rows, CopybookFormat, testing::ValuesIn(copybookRows),
                         [](const auto& row) { return std::string(row.param.name); });

// What stands in column 7 of a comment is no indicator.
TEST(RecognisedFormat, IsFreeByACommentInFrontOfColumn7) {
  for (const char* const comment : {"*> AB  C\n", "     *>\n", "*>    -A\n"}) {
    EXPECT_EQ(as::toolkit::copybookFormat(comment, fixed, false), free) << comment;
  }
}

TEST(RecognisedFormat, IsFreeByWordsThatBeginALine) {
  for (const std::string word :
       {"id",     "DATA",  "FD",     "sd",     "RD",     "COPY",  "move",  "IF",    "ELSE",
        "exec",   "CALL",  "SET",    "add",    "GO",     "STOP",  "exit",  "OPEN",  "READ",
        "close",  "WRITE", "SORT",   "when",   "END",    "FILE",  "use",   "NEXT",  "GOBACK",
        "return", "CBL",   "SELECT", "author", "ASSIGN", "MERGE", "start", "END-IF"}) {
    // Whatever stands in column 7, unless it belongs to the word.
    for (const char indicator : std::string(word.size() < 6 ? " *-/D" : " ")) {
      const std::string line = word + std::string(6 - word.size(), ' ') + indicator + " A\n";
      EXPECT_EQ(as::toolkit::copybookFormat(line, fixed, false), free) << line;
    }
  }
  for (const std::string other : {"ABC", "IDX", "I", "ENDIF"}) {
    const std::string line = other + std::string(6 - other.size(), ' ') + "  A\n";
    EXPECT_EQ(as::toolkit::copybookFormat(line, fixed, false), fixed) << line;
  }
}

}  // namespace

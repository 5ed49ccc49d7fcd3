// Tests of COPY and of the other statements that name copybooks.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "toolkit/import/ImportLimits.h"
#include "toolkit_unit/ReadSource.h"
#include "toolkit_unit/ReadingRowTest.h"

namespace {

using as::toolkit::SourceFormat;
using test::ReadingRow;
using testing::HasSubstr;

const ReadingRow rows[] = {
    {"Copy", {"A.\nCOPY B.\nC.\n", {{"B", "D. E."}}}, "A . D . E . C ."},
    {"CopyWithinAnEntry", {"01 A copy B. C.\n", {{"B", "PIC X"}}}, "01 A PIC <X> C ."},
    {"TwiceOnALine", {"COPY B. COPY B. C", {{"B", "D"}}}, "D D C"},
    {"QuotedName", {"COPY \"b.cpy\". COPY 'c d'.", {{"b.cpy", "D"}, {"c d", "E"}}}, "D E"},
    {"NameWithAPath", {"COPY x/b.cpy. A", {{"x/b.cpy", "D"}}}, "D A"},
    {"NameWithAForeignPath", {"COPY 'x\\b'. A", {{"x\\b", "D"}}}, "D A"},
    {"Library", {"COPY B OF L. COPY B IN \"M\".", {{"L/B", "D"}, {"M/B", "E"}}}, "D E"},
    {"Suppress", {"COPY B SUPPRESS. COPY B SUPPRESS PRINTING. A", {{"B", "D"}}}, "D D A"},
    {"WithoutAPeriod", {"COPY B\n05 C.", {{"B", "D."}}}, "D . 05 C .", "copy-period main:1:1"},
    {"WithoutAPeriodAtTheEnd", {"COPY B", {{"B", "D."}}}, "D .", "copy-period main:1:1"},
    {"Nested", {"A COPY B. C", {{"B", "D COPY E. F"}, {"E", "G"}}}, "A D G F C"},
    {"MissingInTheProcedureDivision",
     {"PROCEDURE DIVISION USING A. COPY B OF L. DATA DIVISION. COPY C.", {}},
     "PROCEDURE DIVISION USING A . DATA DIVISION .",
     "procedure-copybook main:1:29\ncopybook-not-found main:1:57"},
    {"MissingInTheHeaderOfAProcedureDivision",
     {"PROCEDURE DIVISION COPY B. C.", {}},
     "PROCEDURE DIVISION C .",
     "copybook-not-found main:1:20"},
    {"MissingInASectionThatIsPassedOver",
     {"screen section. COPY B. REPORT SECTION. COPY C. COMMUNICATION SECTION. COPY D. LINKAGE "
      "SECTION. COPY E.",
      {}},
     "screen section . REPORT SECTION . COMMUNICATION SECTION . LINKAGE SECTION .",
     "section-copybook main:1:17\nsection-copybook main:1:41\nsection-copybook main:1:72\n"
     "copybook-not-found main:1:97"},
    {"MissingBehindADataDivisionThatEndsInAScreen",
     {"SCREEN SECTION. ENVIRONMENT DIVISION. COPY B.", {}},
     "SCREEN SECTION . ENVIRONMENT DIVISION .",
     "copybook-not-found main:1:39"},
    {"Missing", {"A COPY B. C", {}}, "A C", "copybook-not-found main:1:3"},
    {"MissingInACopybook",
     {"A COPY B. C", {{"B", "\n COPY D OF E."}}},
     "A C",
     "copybook-not-found B:2:2, copied at main:1:3"},
    {"Unreadable", {"COPY unreadable. A"}, "A", "copybook-unreadable main:1:1"},
    {"CopiesItself",
     {"COPY B. A", {{"B", "C COPY B. D"}}},
     "C D A",
     "copybook-cycle B:1:3, copied at main:1:1"},
    {"CopiesItselfByOthers",
     {"COPY B. A", {{"B", "COPY C."}, {"C", "COPY B."}}},
     "A",
     "copybook-cycle C:1:1, copied at B:1:1, copied at main:1:1"},
    {"NoName", {"COPY. A"}, "COPY . A", "copy-syntax main:1:1"},
    {"NoLibrary", {"COPY B OF . A", {{"B", "D"}}}, "D A", "copy-syntax main:1:11"},
    {"EmptyName", {"COPY \"\". A"}, "A", "copybook-not-found main:1:1"},
    {"NameWithAZeroByte",
     {std::string("COPY \"B\0\". A", 12), {{"B", "D"}}},
     "A",
     "control-character main:1:8\ncopybook-not-found main:1:1"},
    {"LongName",
     {"COPY " + std::string(2000, 'B') + ". A", {{std::string(2000, 'B'), "D"}}},
     "A",
     "copybook-not-found main:1:1"},
    {"NoStatement", {"A-COPY COPY-A \"COPY B\" *> COPY B.\n"}, "A-COPY COPY-A \"COPY B\""},
    {"FormatOfItsOwn",
     {"       COPY B.\n      * x\n       A\n",
      {{"B", "01 C.\n*> x\n05 D PIC X.\n"}},
      SourceFormat::recognised},
     "01 C . 05 D PIC <X> . A"},
    {"FixedInFree",
     {"COPY B.\n*> x\nMOVE A\n", {{"B", "      * x\n000100 C.\n"}}, SourceFormat::recognised},
     "C . MOVE A"},
    {"FormatOfTheSourceWhenItHasNone",
     {">>SOURCE FREE\nCOPY B.\n",
      {{"B", "        A" + std::string(70, ' ') + "B\n"}},
      SourceFormat::recognised},
     "A B"},
    {"EncodingOfItsOwn",
     {"\xC3\xA4 COPY B.", {{"B", "\xE4"}}},
     "\xC3\xA4 \xC3\xA4",
     "source-encoding B, copied at main:1:3"},
    {"LiteralThatDoesNotEnd",
     {"COPY B. A", {{"B", "\"b"}}},
     "\"b\" A",
     "unterminated-literal B:1:1, copied at main:1:1"},
    {"DebuggingModeHoldsInCopybooks",
     {"SOURCE-COMPUTER. X DEBUGGING MODE.\nCOPY B.", {{"B", ">>D A\n"}}},
     "SOURCE-COMPUTER . X DEBUGGING MODE . A"},
    {"PanvaletInclude", {"++INCLUDE B\nA", {{"B", "D"}}}, "D A"},
    {"PanvaletIncludeOfNoName", {"++INCLUDE = B\nA"}, "A", "copy-syntax main:1:1"},
    {"TitleOfNothing", {"TITLE\nA"}, "TITLE A"},
    {"TitleThatIsNone", {"TITLE A"}, "TITLE A"},
    {"CopyThatIsAName", {"COPY = A"}, "COPY = A"},
    {"CopybookCalledResource", {"COPY RESOURCE. A", {{"RESOURCE", "D"}}}, "D A"},
    {"LongLibrary",
     {"COPY B OF " + std::string(2000, 'L') + ". A", {{std::string(2000, 'L') + "/B", "D"}}},
     "A",
     "copybook-not-found main:1:1"},
    {"LibraryWithAZeroByte",
     {std::string("COPY B OF \"L\0\". A", 17), {{"B", "D"}}},
     "A",
     "control-character main:1:13\ncopybook-not-found main:1:1"},
    {"SqlIncludeOfNoName",
     {"EXEC SQL INCLUDE (B) END-EXEC. A", {{"B", "D"}}},
     "A",
     "exec-statement main:1:1"},
    {"ExecOfALiteral", {"EXEC 'x' END-EXEC. A"}, "A", "exec-statement main:1:1"},
    {"PanvaletIncludeOfNothing", {"++INCLUDE\nA"}, "A", "copy-syntax main:1:1"},

    {"Resource", {"COPY RESOURCE \"A.BMP\". B"}, "B"},
    {"ExecWithBars", {"EXEC SQL SELECT A || '|' | B END-EXEC. C"}, "C", "exec-statement main:1:1"},
    {"Exec", {"A. EXEC SQL SELECT 'x' FROM Y END-EXEC. B."}, "A . B .", "exec-statement main:1:4"},
    {"ExecWithinASentence",
     {"IF A EXEC CICS RETURN END-EXEC. B"},
     "IF A . B",
     "exec-statement main:1:6"},
    {"ExecWithoutAPeriod", {"A. EXECUTE SQL X END-EXEC B"}, "A . B", "exec-statement main:1:4"},
    {"ExecWithAnApostrophe",
     {"EXEC SQL -- don't\n X END-EXEC. A\n"},
     "A",
     "exec-statement main:1:1"},
    {"ExecsOfAKindAreToldOnce",
     {"EXEC SQL X END-EXEC. EXEC sql Y END-EXEC. EXEC CICS Z END-EXEC."},
     "",
     "exec-statement main:1:43\nexec-statement main:1:1"},
    {"ExecThatDoesNotEnd", {"A. EXEC SQL X.\nB.\n"}, "A .", "unterminated-text main:1:4"},
    {"DeclareSection",
     {"EXEC SQL BEGIN DECLARE SECTION END-EXEC.\n01 A.\nEXEC SQL END DECLARE SECTION END-EXEC.\n"},
     "01 A .",
     "exec-statement main:1:1"},
    {"SqlInclude", {"A. EXEC SQL INCLUDE B END-EXEC. C", {{"B", "D"}}}, "A . D C"},
    {"SqlIncludeInQuotes", {"EXEC SQL\n INCLUDE 'B'\nEND-EXEC\nC", {{"B", "D"}}}, "D C"},
    {"SqlIncludeMissing", {"EXEC SQL INCLUDE B END-EXEC."}, "", "copybook-not-found main:1:1"},
    {"SqlIncludeOfTheSystem", {"EXEC SQL INCLUDE sqlca END-EXEC."}, "", "system-copybook main:1:1"},
    {"CopybooksOfTheSystem",
     {"COPY DFHAID. COPY CMQV. COPY DFX."},
     "",
     "system-copybook main:1:1\nsystem-copybook main:1:14\ncopybook-not-found main:1:25"},
    {"CopybooksOfTheCompiler",
     {"COPY \"acugui.def\". COPY \"lib/FONTS.DEF\"."},
     "",
     "system-copybook main:1:1\nsystem-copybook main:1:20"},
    {"CopybooksOfTheSystemThatAreFound", {"COPY DFHAID.", {{"DFHAID", "A"}}}, "A"},
};
AS_READING_ROWS(Copies, rows);

// COPY B with the phrase, where B is the text.
ReadingRow joining(const char* name, const std::string& phrase, const std::string& text,
                   const std::string& words, const std::string& findings = "") {
  return {name, {"COPY B " + phrase + ". A", {{"B", text}}}, words + " A", findings};
}

const ReadingRow joiningRows[] = {
    joining("Prefix", "JOINING O AS PREFIX", "01 A PIC X.", "01 O-A PIC <X> ."),
    joining("Suffix", "joining O as suffix", "01 A PIC X.", "01 A-O PIC <X> ."),
    joining("Members", "JOINING O AS PREFIX", "01 A. 03 B PIC X. 88 C VALUE 1.",
            "01 O-A . 03 O-B PIC <X> . 88 O-C VALUE 1 ."),
    joining("References", "JOINING O AS PREFIX", "01 A. 02 B PIC 9. 02 C REDEFINES b PIC X.",
            "01 O-A . 02 O-B PIC <9> . 02 O-C REDEFINES O-b PIC <X> ."),
    joining("ReferencesToWhatComesLater", "JOINING O AS PREFIX", "01 A OCCURS B. 01 B PIC X.",
            "01 O-A OCCURS O-B . 01 O-B PIC <X> ."),
    joining("NamesFromElsewhereStay", "JOINING O AS PREFIX", "01 A OCCURS B.", "01 O-A OCCURS B ."),
    joining("FillerStays", "JOINING O AS PREFIX", "01 FILLER. 02 PIC X. 02 Filler PIC X.",
            "01 FILLER . 02 PIC <X> . 02 Filler PIC <X> ."),
    joining("PicturesStay", "JOINING O AS PREFIX", "01 X PIC IS X(3). 01 A PICTURE A(X).",
            "01 O-X PIC IS <X(3)> . 01 O-A PICTURE <A(X)> ."),
    {"APictureThatTheTextEndsIn",
     {"COPY B JOINING O AS PREFIX. A", {{"B", "01 X PIC"}}},
     "01 O-X PIC <A>"},
    joining("NamesThatBeginClausesElsewhere", "JOINING O AS PREFIX", "01 TYPE PIC X.",
            "01 O-TYPE PIC <X> ."),
    joining("NamesInFrontOfUsages", "JOINING O AS PREFIX", "01 DATE COMP-1.", "01 O-DATE COMP-1 ."),
    joining("NamesInFrontOfFillings", "JOINING O AS PREFIX", "01 DATE IS GLOBAL.",
            "01 O-DATE IS GLOBAL ."),
    joining("NamesInFrontOfTypes", "JOINING O AS PREFIX", "01 DATE TYPE T.", "01 O-DATE TYPE T ."),
    joining("NamesOfGroupsThatBeginClausesElsewhere", "JOINING O AS PREFIX", "01 TYPE. 02 A PIC X.",
            "01 O-TYPE . 02 O-A PIC <X> ."),
    joining("TypesOfEntriesWithoutAName", "JOINING O AS PREFIX", "01 TYPE T. 01 A PIC X.",
            "01 TYPE T . 01 O-A PIC <X> ."),
    joining("LiteralsBehindWordsOfClauses", "JOINING O AS PREFIX", "01 TYPE 'T'. 01 A PIC X.",
            "01 TYPE 'T' . 01 O-A PIC <X> ."),
    joining("EntriesWithoutAName", "JOINING O AS PREFIX", "01 . 02 A PIC X.",
            "01 . 02 O-A PIC <X> ."),
    joining("NumbersThatAreNoLevels", "JOINING O AS PREFIX", "123 X. GO X. 01 A PIC X.",
            "123 X . GO X . 01 O-A PIC <X> ."),
    joining("NoEntries", "JOINING O AS PREFIX", "MOVE A TO B.", "MOVE A TO B ."),
    joining("Disjoining", "DISJOINING I AS PREFIX", "01 I-A. 02 IB PIC X. 02 I- PIC X.",
            "01 A . 02 IB PIC <X> . 02 I- PIC <X> ."),
    joining("DisjoiningSuffix", "DISJOINING I AS SUFFIX", "01 A-i. 02 B PIC X.",
            "01 A . 02 B PIC <X> ."),
    joining("DisjoiningAndJoining", "DISJOINING I JOINING O AS PREFIX", "01 I-A PIC X.",
            "01 O-A PIC <X> ."),
    joining("Prefixing", "PREFIXING O-", "01 A PIC X.", "01 O-A PIC <X> ."),
    joining("Suffixing", "SUFFIXING '-O'", "01 A PIC X.", "01 A-O PIC <X> ."),
    joining("BehindReplacements", "JOINING O AS PREFIX REPLACING ==:T:== BY ==W==",
            "01 :T:-A PIC X.", "01 O-W-A PIC <X> ."),
    joining("InFrontOfJoining", "REPLACING ==:T:== BY ==W== JOINING O AS PREFIX", "01 :T:-A PIC X.",
            "01 O-W-A PIC <X> ."),
    joining("InFrontOfDisjoiningAndJoining",
            "REPLACING ==:T:== BY ==W== DISJOINING I JOINING O AS PREFIX", "01 I-:T:-A PIC X.",
            "01 O-W-A PIC <X> ."),
    joining("InFrontOfSuffixing", "REPLACING I BY N suffixing '-O'", "01 I PIC X.",
            "01 N-O PIC <X> ."),
    joining("WordThatIsCalledJoining", "REPLACING I BY N JOINING BY Z", "01 JOINING PIC X.",
            "01 Z PIC <X> ."),
    joining("JoiningTwice", "JOINING O AS PREFIX REPLACING I BY N JOINING P AS PREFIX",
            "01 I PIC X.", "01 O-N PIC <X> .", "copy-syntax main:1:53"),
    {"JoiningBehindWithoutAPeriod",
     {"COPY B REPLACING X BY Y PREFIXING O-\n05 A", {{"B", "01 X PIC Q."}}},
     "01 O-Y PIC <Q> . 05 A",
     "copy-period main:1:1"},
    joining("NeitherPrefixNorSuffix", "JOINING O", "01 A PIC X.", "01 A PIC <X> .",
            "copy-syntax main:1:1"),
    joining("DisjoiningOther", "DISJOINING I AS PREFIX", "01 XX-A PIC X.", "01 XX-A PIC <X> ."),
    joining("NoWord", "JOINING", "01 A PIC X.", "01 A PIC <X> .", "copy-syntax main:1:1"),
    joining("NoWordToPrefix", "PREFIXING", "01 A PIC X.", "01 A PIC <X> .", "copy-syntax main:1:1"),
    {"NestedCopies",
     {"COPY B JOINING O AS PREFIX. COPY C.", {{"B", "COPY C. 01 B PIC X."}, {"C", "01 A PIC X."}}},
     "01 O-A PIC <X> . 01 O-B PIC <X> . 01 A PIC <X> ."},
};
AS_READING_ROWS(JoinedCopies, joiningRows);

TEST(Copy, TellsTheChainOfACopybookThatCopiesItself) {
  EXPECT_EQ(test::readingOf({"COPY B.", {{"B", "COPY C."}, {"C", "COPY B."}}}).texts,
            "error: C:1:1, copied at B:1:1, copied at main:1:1: the copybook copies itself: "
            "B copies C copies B\n");
}

TEST(Copy, TellsWhatIsMissing) {
  EXPECT_EQ(
      test::readingOf({"COPY B OF L."}).texts,
      "error: main:1:1: the copybook \"B\" of the library \"L\" was not found; name its folder\n");
  EXPECT_EQ(test::readingOf({"COPY unreadable."}).texts,
            "error: main:1:1: the copybook \"unreadable\" cannot be read: it is locked\n");
}

TEST(Copy, PlacesAreThoseOfTheCopybook) {
  EXPECT_EQ(test::readingOf({"COPY B.\nCOPY B.", {{"B", "\n A"}}}, true).words,
            "A at B:2:2, copied at main:1:1; A at B:2:2, copied at main:2:1;");
}

TEST(Copy, AsksOnceForAName) {
  test::MemoryCopybooks copybooks(std::map<std::string, std::string>{{"B", "A"}});
  as::toolkit::SourceMap map;
  as::toolkit::SourceFindings findings;
  as::toolkit::SourceReader reader("COPY B. COPY B. COPY C. COPY C.", "main", {}, &copybooks, map,
                                   findings);
  while (test::nextOf(reader).kind != as::toolkit::TokenKind::end) {
  }
  EXPECT_EQ(copybooks.asked, 2);
}

TEST(Copy, NeedsNoCopybooks) {
  as::toolkit::SourceMap map;
  as::toolkit::SourceFindings findings;
  as::toolkit::SourceReader reader("COPY B. A", "main", {}, nullptr, map, findings);
  EXPECT_EQ(test::nextOf(reader).text, "A");
  EXPECT_EQ(findings.size(), 1u);
}

// Copybooks B0 to Bn, each of which copies the next one so many times.
std::map<std::string, std::string> chain(std::size_t length, std::size_t times) {
  std::map<std::string, std::string> copybooks;
  for (std::size_t i = 0; i < length; i++) {
    std::string text;
    for (std::size_t k = 0; k < times; k++) text += "COPY B" + std::to_string(i + 1) + ". ";
    copybooks["B" + std::to_string(i)] = text;
  }
  copybooks["B" + std::to_string(length)] = "A ";
  return copybooks;
}

TEST(CopyLimits, NestingIsBounded) {
  const std::size_t most = as::toolkit::importLimits::nesting;
  EXPECT_EQ(test::readingOf({"COPY B0.", chain(most - 1, 1)}).words, "A");
  const test::Reading beyond = test::readingOf({"COPY B0. C", chain(most, 1)});
  EXPECT_EQ(beyond.words, "C");
  EXPECT_THAT(beyond.texts, HasSubstr("copybooks nest deeper than 100"));
}

TEST(CopyLimits, KindsOfExecStatementsAreBounded) {
  std::string text;
  for (int i = 0; i < 30; i++) text += "EXEC K" + std::to_string(i) + " X END-EXEC. ";
  const std::string findings = test::readingOf({text + text}).findings;
  EXPECT_EQ(std::count(findings.begin(), findings.end(), '\n') + 1, 20);
}

TEST(CopyLimits, InclusionsAreBounded) {
  test::Source source{"COPY B0. C", chain(15, 2)};
  source.most.inclusions = 100;
  EXPECT_THAT(test::readingOf(source).texts,
              HasSubstr("the source comes to more than 100 copybooks"));
}

TEST(CopyLimits, TextIsBounded) {
  test::Source source{"COPY B0. C", chain(7, 2)};
  source.copybooks["B7"] = std::string(1000, ' ');
  source.most.text = 100000;
  EXPECT_THAT(test::readingOf(source).texts,
              HasSubstr("the source comes to more than 100000 bytes of copybooks"));
}

TEST(CopyLimits, FindingsOfARuleAreBounded) {
  std::string text;
  for (int i = 0; i < 1010; i++) text += "\"a\n";
  const test::Reading reading = test::readingOf({text});
  EXPECT_THAT(
      reading.texts,
      testing::EndsWith("note: main: 10 findings more of the rule \"unterminated-literal\"\n"));
}

}  // namespace

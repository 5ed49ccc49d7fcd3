// Tests of what import tells of sources, word for word.
#include <gtest/gtest.h>

#include <string>

#include "as/toolkit/Import.h"
#include "support/Imports.h"
#include "support/Kept.h"

namespace {

using test::importOf;
using test::ImportRow;

// The texts of what is told, one a line.
std::string textsOf(const as::toolkit::Imported& imported) {
  std::string texts;
  for (const as::toolkit::ImportFinding& finding : imported.findings) {
    texts += (texts.empty() ? "" : "\n") + finding.problem +
             (finding.advice.empty() ? "" : "; " + finding.advice);
  }
  return texts;
}

// Entries.
class ImportEntryTextTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportEntryTextTest, IsToldInFull) {
  EXPECT_EQ(textsOf(importOf(test::programOf(GetParam().source))), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, ImportEntryTextTest,
    testing::Values(
        ImportRow{"01 A PIC X.\nNONSENSE B.\n01 C PIC X.",
                  "NONSENSE begins no section and no entry"},
        ImportRow{"01 A PIC X.\n50 B PIC X.", "50 is no level"},
        ImportRow{"05 A PIC X.", "level 05 stands in no record; nor do those behind it"},
        ImportRow{"01 R.\n10 A PIC X.\n05 B PIC X.",
                  "level 05 of B was not used in its group; those before it have level 10"},
        ImportRow{"01 A PIC X.\n05 B PIC X.", "A has a PICTURE, but members as well"},
        ImportRow{"01 A PIC X\n01 B PIC X.", "there is no period behind the entry of A"},
        ImportRow{"01 A PIC X COLOUR RED.\n01 B PIC X.",
                  "COLOUR in the entry of A begins no clause that is known"},
        ImportRow{"01 A PIC X.\n01 B COLOUR 1.\n01 C COLOUR 2.",
                  "COLOUR in the entry of B begins no clause that is known\nCOLOUR in the entry of "
                  "C begins no clause that is known"},
        ImportRow{"01 A USAGE FANCY.", "FANCY is no type that stands in front"},
        ImportRow{"01 A PIC S9 COMP-6.", "A is COMP-6 and has a sign: taken for COMP-3"},
        ImportRow{"01 A PIC X PIC X.", "A: PICTURE stands there twice"},
        ImportRow{"01 A PIC 9 COMP DISPLAY.",
                  "A: USAGE stands there twice\nA has 2 bytes in dialect ibm and 1 byte in dialect "
                  "gnucobol: the dialect decides, here and elsewhere"},
        ImportRow{"01 A PIC 9 COMP NATIVE.",
                  "A has 2 bytes in dialect ibm and 1 byte in dialect gnucobol: the dialect "
                  "decides, here and elsewhere"},
        ImportRow{"01 A PIC ZZ.Z9.",
                  "ZZ.Z9 has its symbols in an order that other compilers refuse"},
        ImportRow{
            "01 A COMP.\n05 B PIC X.",
            "B: USAGE COMP of its group does not go with its PICTURE: taken for USAGE DISPLAY"},
        ImportRow{"01 A PIC S9 SIGN MIDDLE.", "A: SIGN is neither LEADING nor TRAILING"},
        ImportRow{"01 A PIC 9 BLANK WHEN ONE.", "A: BLANK WHEN is not followed by ZERO"},
        ImportRow{"01 A BASED POINTER.",
                  "BASED of A and others is not held by dictionaries\nA has 4 bytes in dialect ibm "
                  "and 8 bytes in dialect ibm64: the dialect decides, here and elsewhere"},
        ImportRow{"01 A PIC S9(18) COMP SYNC.",
                  "A has a boundary of 4 in dialect ibm and a boundary of 8 in dialect natural: "
                  "the dialect decides, here and elsewhere"},
        ImportRow{"01 A PIC X ANY LENGTH.",
                  "A is of any length: it counts with that of its PICTURE"},
        ImportRow{"01 A ANY LENGTH.",
                  "A is of any length: it counts with that of its PICTURE\nA has no PICTURE: the "
                  "one that follows from its other clauses is X"},
        ImportRow{"01 A VALUE 'ABC'.",
                  "A has no PICTURE: the one that follows from its other clauses is X(3)"},
        ImportRow{"01 A VALUE SPACES.", "A has neither a PICTURE nor members"},
        ImportRow{"01 A PIC U BYTE-LENGTH B.",
                  "A: BYTE-LENGTH is no number that is known\nA is text in UTF-8: held as the "
                  "nearest kind of item"}));

INSTANTIATE_TEST_SUITE_P(
    Items, ImportEntryTextTest,
    testing::Values(
        ImportRow{"01 A PIC X(0).", "X(0) is no PICTURE that can be read"},
        ImportRow{"01 A PIC X(NOWHERE).", "X(NOWHERE) is no PICTURE that can be read"},
        ImportRow{"01 A PIC X COMP-1.", "A has a PICTURE, and USAGE COMP-1 takes none"},
        ImportRow{"01 A PIC S9(5) COMP-1.",
                  "A has a PICTURE with COMP-1: taken for a binary number of two bytes, which it "
                  "is to compilers that know no other COMP-1"},
        ImportRow{"01 A PIC Z9Q.", "Z9Q is no PICTURE that can be read"},
        ImportRow{"01 A SQL TYPE IS CLOB(5).",
                  "A is expanded as the precompiler of Db2 does with SQL TYPE IS CLOB"},
        ImportRow{"01 A SQL TYPE IS CLOB(3G).", "A: SQL TYPE IS CLOB has no length that is known"},
        ImportRow{"01 A PIC X SQL TYPE IS ROWID.",
                  "A: SQL TYPE stands there together with another USAGE or PICTURE"},
        ImportRow{"01 A PIC X(5) VARYING.",
                  "A is expanded as the precompiler of Oracle does with VARYING"},
        ImportRow{
            "01 R COMP-3. 05 A PIC X.",
            "A: USAGE COMP-3 of its group does not go with its PICTURE: taken for USAGE DISPLAY"},
        ImportRow{"01 A FLOAT-DECIMAL-16.",
                  "A is a floating-point item that dictionaries do not know: held as the nearest "
                  "kind of item"},
        ImportRow{"01 R. 05 G SYNC. 10 A PIC X.",
                  "SYNCHRONIZED at the group G counts for nothing in dialect ibm"},
        ImportRow{"01 A PIC 1(8) BIT.",
                  "A is counted in whole bytes, not packed with its neighbours\nA is made of bits: "
                  "held as the nearest kind of item"}));

INSTANTIATE_TEST_SUITE_P(
    Tables, ImportEntryTextTest,
    testing::Values(
        ImportRow{"01 R. 05 A PIC X OCCURS 0.", "A occurs 0 times"},
        ImportRow{"01 R. 05 A PIC X OCCURS -1.", "A occurs -1 times"},
        ImportRow{"01 R. 05 A PIC X OCCURS 5 TO 3 DEPENDING ON B. 05 B PIC 9.",
                  "A occurs at least 5 times, but at most 3"},
        ImportRow{"01 R. 05 A PIC X OCCURS NOWHERE.",
                  "A occurs a number of times that is not known"},
        ImportRow{"01 R. 05 A PIC X OCCURS 9999999999.",
                  "A occurs more often than 2147483647 times"},
        ImportRow{"01 R. 05 A PIC X OCCURS 3 OCCURS 3.", "A: OCCURS stands there twice"},
        ImportRow{"01 R. 05 A PIC X OCCURS 1 TO 5.",
                  "A occurs 1 to 5 times, but depends on nothing"},
        ImportRow{"01 A PIC X OCCURS 5.", "A is a table of records"},
        ImportRow{"01 R. 05 A PIC X OCCURS 1 TO 5 DEPENDING ON N.",
                  "N, which A depends on, is no item of the program"},
        ImportRow{"01 R. 05 A PIC X OCCURS 1 TO 5 DEPENDING ON EIBCALEN.",
                  "EIBCALEN, which A depends on, is an item that CICS brings: the dictionary does "
                  "not name it"},
        ImportRow{"01 R. 05 A PIC X OCCURS 2000000000. 05 B PIC X OCCURS 2000000000.",
                  "B ends behind byte 2147483647"},
        ImportRow{"01 R. 05 A PIC X(2) OCCURS 2000000000.", "A ends behind byte 2147483647"},
        ImportRow{"01 R. 05 G. 10 A PIC X(2) OCCURS 2000000000. 05 B PIC X(2) OCCURS 2000000000.",
                  "A ends behind byte 2147483647"},
        ImportRow{"01 R. 05 G OCCURS 60000. 10 A PIC X(60000).", "G ends behind byte 2147483647"},
        ImportRow{"01 A PIC X(99999999999).", "X(99999999999) is no PICTURE that can be read"}));

INSTANTIATE_TEST_SUITE_P(
    Places, ImportEntryTextTest,
    testing::Values(
        ImportRow{"01 R. 05 A PIC X. 05 B REDEFINES C PIC X.",
                  "C does not stand before B on its level"},
        ImportRow{"01 R. 05 A PIC X. 05 PIC X. 05 B REDEFINES A PIC X.",
                  "B redefines A, but FILLER stands between them"},
        ImportRow{"01 R. 05 A PIC X. 05 B REDEFINES A PIC XX.",
                  "B has 2 bytes and redefines the 1 byte of A; what follows stands behind the "
                  "larger one"},
        ImportRow{"01 R. 05 Z PIC X. 05 A PIC X(4). 05 B REDEFINES A COMP-1 SYNC.",
                  "B is synchronized on 4 bytes, but what it redefines starts at offset 1"},
        ImportRow{"01 R. 05 A PIC X. 05 G. 10 B COMP-1 SYNC.",
                  "the slack bytes of B stand in front of the group G, as dialect ibm has it"},
        ImportRow{"01 R. 05 A PIC X. 66 B RENAMES C.", "C is no item of the record of B"},
        ImportRow{"01 R. 05 A PIC X. 05 B PIC X. 66 C RENAMES B THRU A.",
                  "A ends in front of B, where C starts"},
        ImportRow{"01 R. 05 A PIC X. 66 C.", "C renames nothing"},
        ImportRow{"01 A. 05 B LIKE A.", "A is the group that the item stands in"},
        ImportRow{"01 A PIC X. 01 B LIKE A (N).",
                  "B: LIKE has no length in its parentheses that is known"},
        ImportRow{"01 A PIC X. 01 B LIKE A (-1).",
                  "B: LIKE with another length does not go with what it is like"},
        ImportRow{"01 T TYPEDEF. 05 A TYPE T.", "T is no type that stands in front"},
        ImportRow{"01 A PIC X. 88 C VALUE OR 'B'.",
                  "OR is no value of a condition that is known\nC has no values that are known"},
        ImportRow{"01 T PIC X. 01 A T.",
                  "T in the entry of A begins no clause that is known; if it is a type, its "
                  "TYPEDEF has to stand in front"},
        ImportRow{"01 T TYPEDEF PIC X. 01 A PIC X T.",
                  "T in the entry of A begins no clause that is known"}));

INSTANTIATE_TEST_SUITE_P(
    Values, ImportEntryTextTest,
    testing::Values(
        ImportRow{"78 K VALUE 1 / 0.", "the value of K is not known"},
        ImportRow{"01 A PIC X. 88 C.", "C has no values that are known"},
        ImportRow{
            "01 A PIC X. 88 C VALUE NOWHERE.",
            "NOWHERE is no value of a condition that is known\nC has no values that are known"},
        ImportRow{"88 C VALUE 1.", "C follows no item"},
        ImportRow{"01 A PIC X. 88 C VALUE X'00' X'01'.",
                  "X'00' and others stay as they are written: which characters they are, the "
                  "source does not tell"}));

// Whole sources.
class ImportSourceTextTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportSourceTextTest, IsToldInFull) {
  EXPECT_EQ(textsOf(importOf(GetParam().source)), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportSourceTextTest,
    testing::Values(
        ImportRow{"", "the source holds neither a program nor data description entries"},
        ImportRow{"DISPLAY 'HELLO'.",
                  "the source begins with statements: there is no dictionary of it"},
        ImportRow{"CONFIGURATION SECTION.",
                  "there is no PROGRAM-ID: the entries become the dictionary of a program T\nthe "
                  "source holds neither a program nor data description entries"},
        ImportRow{"PROGRAM-ID. .", "PROGRAM-ID names nothing"},
        ImportRow{"01 A PIC X.",
                  "there is no PROGRAM-ID: the entries become the dictionary of a program T"},
        ImportRow{"PROGRAM-ID. T.\nCLASS-ID. C.\nMETHOD-ID. M.\nEND METHOD M.\nEND CLASS C.",
                  "a class is passed over"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION.\nREPORT SECTION.\nRD R.\n01 L TYPE DETAIL.",
                  "the REPORT SECTION is passed over"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. FILE SECTION. FD F.\n01 A PIC X.",
                  "F has no SELECT entry"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. FILE SECTION.\n01 A PIC X.",
                  "A stands in no file; nor do those behind it"},
        ImportRow{"PROGRAM-ID. T. PROCEDURE DIVISION USING\nA.", "A is no item of the program"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. LINKAGE SECTION.\n01 R. 05 A PIC X.\nPROCEDURE "
                  "DIVISION USING A.",
                  "A is no item of level 01 or 77"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. LINKAGE SECTION.\n01 A PIC X.\nPROCEDURE DIVISION "
                  "USING BY CONTENT OPTIONAL A.",
                  "T takes a parameter BY CONTENT: taken for BY REFERENCE\nOPTIONAL of a parameter "
                  "is not held by dictionaries"},
        ImportRow{"PROGRAM-ID. T. PROCEDURE DIVISION.\nENTRY FAST 'E'.",
                  "FAST is no calling convention of SPECIAL-NAMES"},
        ImportRow{"PROGRAM-ID. T. PROCEDURE DIVISION\nSTART-HERE.",
                  "there is no period behind PROCEDURE DIVISION"},
        ImportRow{"01 :A:-B PIC X.\n01 'C'-D PIC X.\n01 :A:-E PIC X.",
                  "nothing replaces the tag :A:, which is read as a part of names\nthere is no "
                  "PROGRAM-ID: the entries become the dictionary of a program T\nnothing replaces "
                  "the tag 'C', which is read as a part of names"},
        ImportRow{"PROGRAM-ID. T. PROCEDURE DIVISION USING\nDFHEIBLK DFHCOMMAREA.",
                  "DFHEIBLK is what CICS hands over, and is left out"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. LINKAGE SECTION.\n01 DFHCOMMAREA PIC "
                  "X.\nPROCEDURE DIVISION.",
                  "DFHCOMMAREA is what CICS hands over, and is taken as the parameter"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. WORKING-STORAGE SECTION.\n01 A. COPY CMQODV.\n01 "
                  "B PIC X.",
                  "the copybook CMQODV comes with the system; it was not found and is passed "
                  "over\nA has nothing but what a copybook of the system holds, and is left out"},
        ImportRow{
            "PROGRAM-ID. T. DATA DIVISION. WORKING-STORAGE SECTION.\n01 A.\n01 B. COPY CMQODV.",
            "the copybook CMQODV comes with the system; it was not found and is passed over\nA has "
            "neither a PICTURE nor members\nB has nothing but what a copybook of the system holds, "
            "and is left out"},
        ImportRow{"01 A PIC ZZ.ZZZ.ZZ9,99.",
                  "there is no PROGRAM-ID: the entries become the dictionary of a program "
                  "T\nZZ.ZZZ.ZZ9,99 is a PICTURE only where DECIMAL-POINT IS COMMA: so it is read"},
        ImportRow{"DATA DIVISION.",
                  "there is no PROGRAM-ID: the entries become the dictionary of a program T\nthe "
                  "source holds neither a program nor data description entries"},
        ImportRow{"FUNCTION-ID. F.\nPROCEDURE DIVISION.\nEND FUNCTION F.",
                  "a function is passed over\nthe source holds no program: there is no dictionary "
                  "of it"}));

// Each with all that is told of it, compared with what is kept.
TEST(ImportTexts, OfOddSourcesAreAsTheyWere) {
  const std::string entries[] = {"01 A PIC X. 01 B REDEFINES A REDEFINES A PIC X.",
                                 "01 A PIC X ANY NUMBER.",
                                 "01 A PIC X DYNAMIC LENGTH.",
                                 "01 A GROUP-USAGE DISPLAY. 05 B PIC X.",
                                 "01 A PIC 9(4) COMP SYNC EXTERNAL.",
                                 "01 A PIC 9 BLANK WHEN ZERO.",
                                 "01 A BYTE-LENGTH 4 PIC X.",
                                 "01 A IDENTIFIED BY 'F' PIC X.",
                                 "01 A GROUP-USAGE NATIONAL EXTERNAL. 05 B PIC N.",
                                 "01 A PIC. 01 B PIC X.",
                                 "01 A PIC X. 88 VALUE 1.",
                                 "01 R. 05 A PIC X OCCURS UNBOUNDED DEPENDING ON N. 05 N PIC 9.",
                                 "01 R. 05 A PIC X OCCURS 1 TO 5 DEPENDING ON. 05 N PIC 9.",
                                 "01 A. 05 N PIC 9. 01 B. 05 N PIC 9. 01 R. 05 T PIC X OCCURS 1 TO "
                                 "5 DEPENDING ON N.",
                                 "01 A LIKE. 01 B PIC X.",
                                 "01 T TYPEDEF PIC X. 01 A TYPE T TYPE T.",
                                 "01 A PIC X RENAMES B.",
                                 "01 R. 05 A PIC X. 66 B RENAMES A THRU.",
                                 "01 R. 05 A PIC X. 66 B RENAMES.",
                                 "01 A PIC X VALUE X'00'. 88 B VALUE X'0001'.",
                                 "01 A" + std::string(1100, 'B') + " PIC X."};
  const std::string sections[] = {"FILE SECTION. FD. 01 A PIC X.",
                                  "FILE SECTION. FD F\n01 A PIC X.",
                                  "BASED-STORAGE SECTION. 01 A PIC X.",
                                  "ODD SECTION. 01 A PIC X.",
                                  "WORKING-STORAGE SECTION. COPY. 01 A PIC X.",
                                  "WORKING-STORAGE SECTION.\n++INCLUDE\n01 A PIC X.",
                                  "WORKING-STORAGE SECTION. REPLACE == == BY ==B==. 01 A PIC X.",
                                  "WORKING-STORAGE SECTION. REPLACE BY. 01 A PIC X."};
  std::string told;
  const auto tell = [&told](const std::string& name, const std::string& source) {
    told += (name.size() > 80 ? name.substr(0, 80) + "..." : name) + "\n" +
            textsOf(importOf(source)) + "\n\n";
  };
  for (const std::string& text : entries) tell(text, test::programOf(text));
  for (const std::string& text : sections) {
    tell(text, "PROGRAM-ID. T. DATA DIVISION.\n" + text);
  }
  tell("05 A PIC X.", "05 A PIC X.");
  tell("an item of a program around this one",
       "PROGRAM-ID. T. DATA DIVISION. WORKING-STORAGE SECTION. 01 N PIC 9 GLOBAL. PROCEDURE "
       "DIVISION. PROGRAM-ID. U. DATA DIVISION. WORKING-STORAGE SECTION. 01 R. 05 A PIC X OCCURS 1 "
       "TO 3 DEPENDING ON N. END PROGRAM U. END PROGRAM T.");
  test::expectKept("texts/import.txt", told);
}

}  // namespace

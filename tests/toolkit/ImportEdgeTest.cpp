// Tests of import where one thing more or less is another thing: the types of host variables,
// names that many items have, odd pictures, copies of types, and all that is told word for word.
#include <gtest/gtest.h>

#include <string>

#include "as/toolkit/Import.h"
#include "support/Imports.h"
#include "support/Toolkit.h"

namespace {

using test::dictionaryOf;
using test::importOf;
using test::ImportRow;
using test::programOf;

// Entries, and "LINE:COLUMN RULE" of what is told.
class ImportEdgeTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportEdgeTest, IsTold) {
  const auto imported = importOf(programOf(GetParam().source));
  EXPECT_EQ(test::findingsOf(imported, test::kHeadLines), GetParam().expected)
      << test::problemsOf(imported);
}

INSTANTIATE_TEST_SUITE_P(
    HostVariables, ImportEdgeTest,
    testing::Values(ImportRow{"01 A SQL TYPE IS BLOB.", "1:22 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS DBCLOB.", "1:24 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS BINARY.", "1:24 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS CHAR.", "1:22 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS VARBINARY.", "1:27 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS VARCHAR.", "1:25 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS LONG-VARCHAR.", "1:30 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS DATE.", "1:6 host-variable"},
                    ImportRow{"01 A SQL TYPE IS TIMESTAMP(6).", "1:6 host-variable"},
                    ImportRow{"01 A SQL TYPE IS TIMESTAMP().", "1:29 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS BINARY(0).", "1:27 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS BINARY(5.", "1:26 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS CLOB(2M).", "1:6 host-variable"}));

// "N OF G" with a group G that holds none in front of the one that does.
INSTANTIATE_TEST_SUITE_P(
    Names, ImportEdgeTest,
    testing::Values(
        ImportRow{"01 P. 05 N PIC 9. 01 Q. 05 N PIC 9. 01 R. 05 G. 10 X PIC 9. 01 S. 05 G. 10 N "
                  "PIC 9. 01 T. 05 A PIC X OCCURS 1 TO 5 DEPENDING ON N OF G.",
                  ""},
        ImportRow{"01 P. 05 N PIC 9. 01 Q. 05 N PIC 9. 01 R. 05 G. 10 N PIC 9. 01 S. 05 G. 10 N "
                  "PIC 9.\n01 T. 05 A PIC X OCCURS 1 TO 5 DEPENDING ON N OF G.",
                  "2:45 unclear-depending"},
        ImportRow{"01 P. 05 N PIC 9. 01 Q. 05 N PIC 9. 01 R. 05 G. 10 X PIC 9.\n"
                  "01 T. 05 A PIC X OCCURS 1 TO 5 DEPENDING ON N OF G.",
                  "2:45 lost-depending"},
        ImportRow{"01 R. 05 G. 10 H. 15 N PIC 9.\n01 T. 05 A PIC X OCCURS 1 TO 5 DEPENDING ON N OF "
                  "H OF G OF R.",
                  ""},
        ImportRow{"01 R. 05 G. 10 H. 15 N PIC 9.\n01 T. 05 A PIC X OCCURS 1 TO 5 DEPENDING ON N OF "
                  "G OF H.",
                  "2:45 lost-depending"}));

INSTANTIATE_TEST_SUITE_P(Pictures, ImportEdgeTest,
                         testing::Values(ImportRow{"01 A PIC ZZ.ZZ9.Z9.", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC ZZ.Z9.", "1:10 odd-picture"},
                                         ImportRow{"01 A PIC zz.z9.", "1:10 odd-picture"},
                                         ImportRow{"01 A PIC 9.Z.", "1:10 odd-picture"},
                                         ImportRow{"01 A PIC 9.*.", "1:10 odd-picture"},
                                         ImportRow{"01 A PIC 9(5).Z(3).", "1:10 odd-picture"},
                                         ImportRow{"01 A PIC 9(0).Z.", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9().Z.", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9(.Z.", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9.Z(998).", "1:10 odd-picture"},
                                         ImportRow{"01 A PIC 9.Z(999).", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9.Z(0998).", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9.Z,Z9X.", "1:10 bad-picture"}));

INSTANTIATE_TEST_SUITE_P(
    Usages, ImportEdgeTest,
    testing::Values(ImportRow{"01 A POINTER TO X.", "1:1 dialect-decides"},
                    ImportRow{"01 A POINTER-32 TO X.", ""},
                    ImportRow{"01 A PROCEDURE-POINTER TO X.", ""},
                    ImportRow{"01 A FUNCTION-POINTER TO X.", "1:1 dialect-decides"},
                    ImportRow{"01 A INDEX TO X.", "1:12 unknown-clause, 1:1 dialect-decides"}));

// Entries without a period end where something else begins.
INSTANTIATE_TEST_SUITE_P(
    Ends, ImportEdgeTest,
    testing::Values(ImportRow{"01 A PIC X\nLINKAGE SECTION.\n01 B PIC X.", "2:1 no-period"},
                    ImportRow{"01 A PIC X\nPROCEDURE DIVISION.", "2:1 no-period"},
                    ImportRow{"01 A PIC X\n88 B VALUE 'C'.", "2:1 no-period"}));

// Words of usages that may be names.
INSTANTIATE_TEST_SUITE_P(NamesOfUsages, ImportEdgeTest,
                         testing::Values(ImportRow{"01 BIT PIC X.", ""},
                                         ImportRow{"01 OBJECT PIC X.", ""},
                                         ImportRow{"01 BIT COMP-1.", ""},
                                         ImportRow{"01 INDEX COMP-1.", ""},
                                         ImportRow{"01 INDEX PIC X.", "1:1 needless-picture"},
                                         ImportRow{"01 OBJECT COMP-1.", ""}));

INSTANTIATE_TEST_SUITE_P(
    Constants, ImportEdgeTest,
    testing::Values(ImportRow{"78 J VALUE 'AB'. 78 K VALUE J. 01 A PIC X.", ""},
                    ImportRow{"78 K VALUE SPACES. 01 A PIC X.", ""},
                    ImportRow{"78 K VALUE 1.5. 01 A PIC X.", ""},
                    ImportRow{"78 K VALUE SPACES + 1. 01 A PIC X.", "1:12 bad-constant"}));

INSTANTIATE_TEST_SUITE_P(
    Copies, ImportEdgeTest,
    testing::Values(ImportRow{"01 A PIC 9V99. 01 B LIKE A (-1).", ""},
                    ImportRow{"01 A PIC 9V99. 01 B LIKE A (-2).", "1:16 bad-clause"},
                    ImportRow{"01 A PIC 9(3). 01 B LIKE A (-2).", ""},
                    ImportRow{"01 A PIC 9(3). 01 B LIKE A (-3).", "1:16 bad-clause"}));

// Entries, and what is told in full.
class ImportMessageTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportMessageTest, IsToldInFull) {
  const auto imported = importOf(programOf(GetParam().source));
  std::string text;
  for (const as::toolkit::ImportFinding& finding : imported.findings) {
    text += (text.empty() ? "" : "\n") + finding.problem +
            (finding.advice.empty() ? "" : "; " + finding.advice);
  }
  EXPECT_EQ(text, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Items, ImportMessageTest,
    testing::Values(
        ImportRow{"01 A PIC 1(8) BIT.",
                  "A is counted in whole bytes, not packed with its neighbours\nA is made of bits: "
                  "held as the nearest kind of item"},
        ImportRow{"01 A FLOAT-EXTENDED.",
                  "A is a floating-point item that dictionaries do not know: held as the nearest "
                  "kind of item"},
        ImportRow{"01 A FLOAT-DECIMAL-16.",
                  "A is a floating-point item that dictionaries do not know: held as the nearest "
                  "kind of item"},
        ImportRow{"01 A FLOAT-DECIMAL-34.",
                  "A is a floating-point item that dictionaries do not know: held as the nearest "
                  "kind of item"},
        ImportRow{"01 A PIC 9(5) NATIONAL.",
                  "A is a number in national characters: held as the nearest kind of item"},
        ImportRow{"01 A PIC ZZ9 NATIONAL.",
                  "A is a number in national characters: held as the nearest kind of item"},
        ImportRow{"01 A PIC U(5).", "A is text in UTF-8: held as the nearest kind of item"},
        ImportRow{"01 A PIC 1(8).", "A is boolean: held as the nearest kind of item"},
        ImportRow{"01 A PIC S9(5) COMP-1.",
                  "A has a PICTURE with COMP-1: taken for a binary number of two bytes, which it "
                  "is to compilers that know no other COMP-1"},
        ImportRow{"01 A.", "A has neither a PICTURE nor members"},
        ImportRow{"01 A COMP.", "A has no PICTURE, which USAGE COMP needs"},
        ImportRow{"01 A PIC X COMP-2.", "A has a PICTURE, and USAGE COMP-2 takes none"},
        ImportRow{"01 A PIC X COMP-3.", "A: USAGE COMP-3 does not go with its PICTURE"},
        ImportRow{"01 A PIC 9(19) COMP.", "A: USAGE COMP does not hold 19 digits"},
        ImportRow{"01 A PIC 9(39) COMP-3.", "A has 39 digits"},
        ImportRow{
            "01 R COMP-3. 05 A PIC X.",
            "A: USAGE COMP-3 of its group does not go with its PICTURE: taken for USAGE DISPLAY"},
        ImportRow{"01 A PIC 9 SIGN LEADING.", "the SIGN clause of A counts for nothing"},
        ImportRow{"01 A PIC N.", "A has a PICTURE of N and no USAGE: taken for USAGE NATIONAL"},
        ImportRow{"01 A PIC X. 05 B PIC X.", "A has a PICTURE, but members as well"},
        ImportRow{"01 R. 05 G SYNC. 10 A PIC X.",
                  "SYNCHRONIZED at the group G counts for nothing in dialect ibm"},
        ImportRow{"01 A VALUE 'ABC'.",
                  "A has no PICTURE: the one that follows from its other clauses is X(3)"},
        ImportRow{"01 A VALUE 'A'.",
                  "A has no PICTURE: the one that follows from its other clauses is X"},
        ImportRow{"01 A PIC 9 COMP.",
                  "A has 2 bytes in dialect ibm and 1 byte in dialect gnucobol: the dialect "
                  "decides, here and elsewhere"},
        ImportRow{"01 A PIC S9(18) COMP SYNC.",
                  "A has a boundary of 4 in dialect ibm and a boundary of 8 in dialect natural: "
                  "the dialect decides, here and elsewhere"},
        ImportRow{"01 A POINTER.",
                  "A has 4 bytes in dialect ibm and 8 bytes in dialect ibm64: the dialect decides, "
                  "here and elsewhere"}));

INSTANTIATE_TEST_SUITE_P(
    LargeObjects, ImportMessageTest,
    testing::Values(ImportRow{"01 A SQL TYPE IS BINARY LARGE OBJECT(5).",
                              "A is expanded as the precompiler of Db2 does with SQL TYPE IS BLOB"},
                    ImportRow{"01 A SQL TYPE IS CHARACTER LARGE OBJECT(5).",
                              "A is expanded as the precompiler of Db2 does with SQL TYPE IS CLOB"},
                    ImportRow{"01 A SQL TYPE IS CHARACTER VARYING(5).",
                              "A is expanded as the precompiler of Db2 does with SQL TYPE IS "
                              "CHAR-VARYING"},
                    ImportRow{"01 A SQL TYPE IS BINARY VARYING(5).",
                              "A is expanded as the precompiler of Db2 does with SQL TYPE IS "
                              "VARBINARY"},
                    ImportRow{
                        "01 A SQL TYPE IS DBCHAR LARGE OBJECT(5).",
                        "A is expanded as the precompiler of Db2 does with SQL TYPE IS DBCLOB"}));

INSTANTIATE_TEST_SUITE_P(
    Clauses, ImportMessageTest,
    testing::Values(
        ImportRow{"01 A SQL TYPE IS FANCY.", "A: SQL TYPE IS FANCY is not known"},
        ImportRow{"01 A SQL TYPE IS CLOB.", "A: SQL TYPE IS CLOB has no length that is known"},
        ImportRow{"01 A PIC X SQL TYPE IS ROWID.",
                  "A: SQL TYPE stands there together with another USAGE or PICTURE"},
        ImportRow{"01 A SQL TYPE IS ROWID.",
                  "A is expanded as the precompiler of Db2 does with SQL TYPE IS ROWID"},
        ImportRow{"01 A PIC X(5) VARYING.",
                  "A is expanded as the precompiler of Oracle does with VARYING"},
        ImportRow{"01 A OBJECT.", "A: OBJECT is not followed by REFERENCE"},
        ImportRow{"01 A USAGE PICTURE.", "A: PICTURE is no USAGE that is known"},
        ImportRow{"01 A PIC 9 COMP DISPLAY.",
                  "A: USAGE stands there twice\nA has 2 bytes in dialect ibm and 1 byte in dialect "
                  "gnucobol: the dialect decides, here and elsewhere"},
        ImportRow{"01 A PIC 9 DISPLAY DISPLAY.", "A: USAGE stands there twice"},
        ImportRow{"01 A TYPE T.", "T is no type that stands in front"},
        ImportRow{"01 A LIKE B.", "B is no item that stands in front"},
        ImportRow{"01 A. 05 B. 10 C SAME AS A.", "A is the group that the item stands in"},
        ImportRow{"01 A. 05 C PIC X. 01 B LIKE A (1).",
                  "B: LIKE with another length does not go with what it is like"},
        ImportRow{"01 A PIC Q.", "Q is no PICTURE that can be read"},
        ImportRow{"01 A PIC ZZ.Z9.",
                  "ZZ.Z9 has its symbols in an order that other compilers refuse"}));

// The length of an item that is like another, and its digits.
TEST(ImportLike, MakesNumbersOfOtherLengths) {
  const std::string dictionary = dictionaryOf(
      importOf(programOf("01 A PIC S9V99. 01 B LIKE A (-1). 01 C LIKE A (2). 01 D PIC A(2). "
                         "01 E LIKE D (1). 01 F PIC N(2). 01 G LIKE F (1). 01 H PIC 9(2). 01 I "
                         "LIKE H (1). 01 J PIC X. 01 K LIKE J (1).")));
  EXPECT_EQ(test::partsOf(dictionary, "name=\"[BCEGIK]\" picture=\"[^\"]*\""),
            (std::vector<std::string>{"name='B' picture='SV9(2)'", "name='C' picture='S9(3)V9(2)'",
                                      "name='E' picture='A(3)'", "name='G' picture='N(3)'",
                                      "name='I' picture='9(3)'", "name='K' picture='X(2)'"}));
}

// What the item of that name is explained with first.
std::string firstReasonOf(const as::toolkit::Imported& imported, const std::string& item) {
  const auto explained = explainItem(imported.programs.back(), item);
  EXPECT_EQ(explained.size(), 1U) << test::problemsOf(imported);
  return explained.empty() || explained.front().steps.empty()
             ? ""
             : explained.front().steps.front().text;
}

TEST(ImportLike, IsExplainedByWhatAnItemIsLike) {
  const auto imported = importOf(
      programOf("01 A PIC X(4). 01 B LIKE A. 01 T TYPEDEF. 05 C PIC X. 01 D TYPE T. 01 E. 05 F "
                "TYPE T."));
  EXPECT_EQ(firstReasonOf(imported, "A"), "PICTURE X(4): 4 characters");
  EXPECT_EQ(firstReasonOf(imported, "B"), "described like A");
  EXPECT_EQ(firstReasonOf(imported, "D"), "described like T");
  EXPECT_EQ(firstReasonOf(imported, "D.C"), "described like T.C");
  EXPECT_EQ(firstReasonOf(imported, "F"), "described like T");
}

// The entries of another program have no name here.
TEST(ImportLike, IsNotExplainedByATypeOfTheProgramAround) {
  const auto imported =
      importOf(programOf("01 T TYPEDEF GLOBAL. 05 C PIC X.") + "PROCEDURE DIVISION. " +
               programOf("01 D TYPE T.") + "END PROGRAM T. END PROGRAM T.");
  ASSERT_EQ(imported.programs.size(), 2U) << test::problemsOf(imported);
  EXPECT_EQ(firstReasonOf(imported, "D"), "a group: its members take 1 byte");
  EXPECT_EQ(firstReasonOf(imported, "D.C"), "PICTURE X: 1 character");
}

// The items that a type of SQL becomes.
class ImportSqlTypeTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportSqlTypeTest, IsLaidOutAsItsPrecompilerDoes) {
  const std::string source = programOf("01 A SQL TYPE IS " + std::string(GetParam().source) + ".");
  EXPECT_EQ(test::placesOf(dictionaryOf(importOf(source))), GetParam().expected);
}

constexpr const char* textOf5 = "A 0+9, A-LENGTH 0+4, A-DATA 4+5";
constexpr const char* varyingOf5 = "A 0+7, A-LEN 0+2, A-TEXT 2+5";
constexpr const char* file =
    "A 0+267, A-NAME-LENGTH 0+4, A-DATA-LENGTH 4+4, A-FILE-OPTIONS 8+4, A-NAME 12+255";

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportSqlTypeTest,
    testing::Values(
        ImportRow{"BLOB(5)", textOf5}, ImportRow{"CLOB(5)", textOf5},
        ImportRow{"DBCLOB(5)", "A 0+14, A-LENGTH 0+4, A-DATA 4+10"},
        ImportRow{"BINARY LARGE OBJECT(5)", textOf5},
        ImportRow{"CHARACTER LARGE OBJECT(5)", textOf5},
        ImportRow{"DBCHAR LARGE OBJECT(5)", "A 0+14, A-LENGTH 0+4, A-DATA 4+10"},
        ImportRow{"XML AS BLOB(5)", textOf5}, ImportRow{"BLOB-LOCATOR", "A 0+4"},
        ImportRow{"CLOB-LOCATOR", "A 0+4"}, ImportRow{"DBCLOB_LOCATOR", "A 0+4"},
        ImportRow{"RESULT-SET-LOCATOR", "A 0+4"}, ImportRow{"TABLE", "A 0+4"},
        ImportRow{"BLOB-FILE", file}, ImportRow{"CLOB-FILE", file}, ImportRow{"DBCLOB-FILE", file},
        ImportRow{"ROWID", "A 0+42, A-LEN 0+2, A-DATA 2+40"}, ImportRow{"BINARY(5)", "A 0+5"},
        ImportRow{"CHAR(5)", "A 0+5"}, ImportRow{"CHARACTER(5)", "A 0+5"},
        ImportRow{"VARBINARY(5)", varyingOf5}, ImportRow{"BINARY VARYING(5)", varyingOf5},
        ImportRow{"CHAR VARYING(5)", varyingOf5}, ImportRow{"CHARACTER VARYING(5)", varyingOf5},
        ImportRow{"VARCHAR(5)", varyingOf5}, ImportRow{"CHAR-VARYING(5)", varyingOf5},
        ImportRow{"LONG-VARCHAR(5)", varyingOf5}, ImportRow{"LONG-VARBINARY(5)", varyingOf5},
        ImportRow{"DATE", "A 0+10"}, ImportRow{"TIME", "A 0+8"}, ImportRow{"TIMESTAMP", "A 0+26"},
        ImportRow{"BLOB(1K)", "A 0+1028, A-LENGTH 0+4, A-DATA 4+1024"},
        ImportRow{"BLOB(1k)", "A 0+1028, A-LENGTH 0+4, A-DATA 4+1024"},
        ImportRow{"BLOB(2m)", "A 0+2097156, A-LENGTH 0+4, A-DATA 4+2097152"},
        ImportRow{"BLOB(2 M)", "A 0+2097156, A-LENGTH 0+4, A-DATA 4+2097152"}));

TEST(ImportExplanation, TellsOfDigitsThatAreNotStored) {
  const auto imported = importOf(programOf("01 A PIC 9P. 01 B PIC S9(3)V9. 01 C PIC XX."));
  EXPECT_EQ(firstReasonOf(imported, "A"), "PICTURE 9P: 2 digits, 1 not stored, unsigned");
  EXPECT_EQ(firstReasonOf(imported, "B"), "PICTURE S9(3)V9: 4 digits, 1 behind the point, signed");
  EXPECT_EQ(firstReasonOf(imported, "C"), "PICTURE XX: 2 characters");
}

// Slack in front of the first member stands in its group, or in front of it.
TEST(ImportSlack, IsToldWhereItStands) {
  const char* const first = "01 R. 05 A PIC X. 05 G. 10 B COMP-1 SYNC.";
  const char* const second = "01 R. 05 G. 10 A PIC X. 10 B COMP-1 SYNC.";
  for (const std::string dialect : {"ibm", "gnucobol"}) {
    const auto told = importOf(programOf(first), test::freeFormat(dialect));
    ASSERT_EQ(told.findings.size(), 1U) << test::problemsOf(told);
    EXPECT_EQ(told.findings.front().problem,
              "the slack bytes of B stand " +
                  std::string(dialect == "ibm" ? "in front of" : "inside of") +
                  " the group G, as dialect " + dialect + " has it");
    EXPECT_EQ(test::problemsOf(importOf(programOf(second), test::freeFormat(dialect))), "");
  }
}

}  // namespace

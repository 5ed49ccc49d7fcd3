// Tests of what import tells of sources, and where: one rule a row.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <set>
#include <string>

#include "as/toolkit/Import.h"
#include "support/Imports.h"

namespace {

using as::toolkit::Severity;
using test::findingsOf;
using test::freeFormat;
using test::importOf;
using test::ImportRow;
using test::kHeadLines;
using test::programOf;

// Entries, and "LINE:COLUMN RULE" of what is told.
class ImportProblemTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportProblemTest, IsToldAtItsPlace) {
  const auto imported = importOf(programOf(GetParam().source));
  EXPECT_EQ(findingsOf(imported, kHeadLines), GetParam().expected) << test::problemsOf(imported);
  ASSERT_EQ(imported.programs.size(), 1U);
  EXPECT_EQ(imported.programs.front().isRefused(), countOf(imported.findings, Severity::error) > 0);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, ImportProblemTest,
    testing::Values(ImportRow{"01 A PIC X.\nNONSENSE B.\n01 C PIC X.", "2:1 unknown-text"},
                    ImportRow{"01 A PIC X.\n50 B PIC X.", "2:1 unknown-level"},
                    ImportRow{"05 A PIC X.", "1:1 no-record"},
                    ImportRow{"05 A PIC X.\n05 B PIC X.\n01 C. 05 D PIC X.", "1:1 no-record"},
                    ImportRow{"01 R.\n10 A PIC X.\n05 B PIC X.", "3:1 odd-level"},
                    ImportRow{"01 A PIC X.\n05 B PIC X.", "1:1 members-of-item"},
                    ImportRow{"01 A PIC X\n01 B PIC X.", "2:1 no-period"},
                    ImportRow{"01 A PIC X VALUE 'A'\n01 B PIC X.", "2:1 no-period"},
                    ImportRow{"01 A PIC X COLOUR RED.\n01 B PIC X.", "1:12 unknown-clause"},
                    ImportRow{"01 A PIC X.\n01 B COLOUR 1.\n01 C COLOUR 2.",
                              "2:6 unknown-clause, 3:6 unknown-clause"},
                    ImportRow{"01 A USAGE FANCY.", "1:12 lost-type"},
                    ImportRow{"01 A PIC X PIC X.", "1:16 bad-clause"},
                    ImportRow{"01 A PIC 9 COMP DISPLAY.", "1:17 bad-clause, 1:1 dialect-decides"},
                    ImportRow{"01 A PIC 9 BINARY COMP.", "1:19 usage-twice, 1:1 dialect-decides"},
                    ImportRow{"01 A PIC 9 COMP NATIVE.", "1:1 dialect-decides"},
                    ImportRow{"77 FLOAT COMP-1.", ""},
                    ImportRow{"01 A PIC ZZ.Z9.", "1:10 odd-picture"},
                    ImportRow{"01 A COMP.\n05 B PIC X.", "2:1 group-usage"},
                    ImportRow{"01 A PIC S9 SIGN MIDDLE.", "1:13 bad-clause"},
                    ImportRow{"01 A PIC 9 BLANK WHEN ONE.", "1:12 bad-clause"},
                    ImportRow{"01 A BASED POINTER.",
                              "1:12 passed-over-clause, 1:1 dialect-decides"},
                    ImportRow{"01 A PIC 9(9) COMP SYNC.", ""},
                    ImportRow{"01 A PIC S9(18) COMP SYNC.", "1:1 dialect-decides"},
                    ImportRow{"01 A PIC X ANY LENGTH.", "1:12 length-unknown"},
                    ImportRow{"01 A ANY LENGTH.", "1:6 length-unknown, 1:1 implied-picture"},
                    ImportRow{"01 A VALUE 'ABC'.", "1:1 implied-picture"},
                    ImportRow{"01 A VALUE SPACES.", "1:1 no-picture"},
                    ImportRow{"01 G VALUE 'AB'. 05 A PIC X(2).", ""},
                    ImportRow{"01 A PIC U BYTE-LENGTH B.", "1:12 bad-clause, 1:1 other-kind"},
                    ImportRow{"01 A PIC U BYTE-LENGTH 10.", "1:1 other-kind"},
                    ImportRow{"01 A PIC S9(4) COMP-6.\n01 B PIC S9 COMP-6.", "1:1 signed-comp-6"},
                    ImportRow{"01 A COMP-6.\n05 B PIC 9(4).\n05 C PIC S9.", "3:1 signed-comp-6"}));

INSTANTIATE_TEST_SUITE_P(
    Clauses, ImportProblemTest,
    testing::Values(
        ImportRow{"01 R. 05 A PIC X. 05 B REDEFINES A REDEFINES A PIC X.", "1:36 bad-clause"},
        ImportRow{"01 R. 05 A PIC X. 05 B REDEFINES.", "1:33 bad-clause"},
        ImportRow{"01 A ANY PIC X.", "1:6 bad-clause"},
        ImportRow{"01 A PIC U BYTE-LENGTH 0.", "1:12 bad-clause, 1:1 other-kind"},
        ImportRow{"01 A PIC U BYTE-LENGTH 1000000001.", "1:12 bad-clause, 1:1 other-kind"},
        ImportRow{"01 A PIC X SQL.", "1:12 unknown-clause"},
        ImportRow{"01 A USAGE SQL.", "1:6 bad-clause"},
        ImportRow{"01 A GROUP-USAGE DISPLAY. 05 B PIC X.", "1:6 bad-clause"},
        ImportRow{"01 A PIC.", "1:9 bad-clause"}, ImportRow{"01 A PIC SYMBOL.", "1:10 bad-picture"},
        ImportRow{"01 A PIC 'X'.", "1:10 bad-clause"},
        ImportRow{"01 R. 05 A PIC X. 66 B RENAMES.", "1:24 bad-clause"},
        ImportRow{"01 R. 05 A PIC X. 66 B RENAMES A THRU.", "1:24 bad-clause"},
        ImportRow{"01 R. 05 A PIC X. 66 B RENAMES A RENAMES A.", "1:34 bad-clause"},
        ImportRow{"01 R. 05 A PIC X. 05 B RENAMES A.", "1:24 bad-clause"},
        ImportRow{"01 T TYPEDEF PIC X. 01 A TYPE T TYPE T.", "1:38 bad-clause"},
        ImportRow{"01 A USAGE OBJECT.", "1:6 bad-clause"},
        ImportRow{"01 A COMP HANDLE.", "1:11 bad-clause"},
        ImportRow{"01 A PIC 9 COMP USAGE T.", "1:17 bad-clause, 1:1 dialect-decides"},
        ImportRow{"01 A CONSTANT.", "1:1 no-picture"},
        ImportRow{"01 A VALUE X'41'.", "1:1 no-picture"},
        ImportRow{"01 A VARYING.", "1:6 host-variable, 1:1 no-picture"},
        ImportRow{"DATA A.\n01 B PIC X.", "1:1 unknown-text"},
        ImportRow{"PROCEDURE A.\n01 B PIC X.", "1:1 unknown-text"},
        ImportRow{"01 A PIC X.\nEND.\n01 B PIC X.", "2:1 unknown-text"},
        ImportRow{"01 A PIC X.\nEND OF.\n01 B PIC X.", "2:1 unknown-text"},
        ImportRow{"01 A PIC X.\nEND", ""}, ImportRow{"01 A PIC X.\nEND PROGRAM T.", ""}));

INSTANTIATE_TEST_SUITE_P(
    Likes, ImportProblemTest,
    testing::Values(ImportRow{"01 A COMP-1. 01 B LIKE A (1).", "1:14 bad-clause"},
                    ImportRow{"01 A PIC 9(3)P. 01 B LIKE A (1).", "1:17 bad-clause"},
                    ImportRow{"01 A PIC ZZ9. 01 B LIKE A (1).", "1:15 bad-clause"},
                    ImportRow{"01 A PIC 9V99. 01 B LIKE A (-2).", "1:16 bad-clause"},
                    ImportRow{"01 A PIC X(3). 01 B LIKE A (-3).", "1:16 bad-clause"},
                    ImportRow{"01 A PIC X. 01 B LIKE A (1000001).", "1:23 bad-clause"},
                    ImportRow{"01 A PIC X. 01 B LIKE A (-1000001).", "1:23 bad-clause"},
                    ImportRow{"01 A PIC X. 01 B LIKE A (1.", "1:23 bad-clause"},
                    ImportRow{"01 R. 05 G. 10 A PIC X. 05 B LIKE A OF H.", "1:35 lost-type"},
                    ImportRow{"01 T TYPEDEF PIC X COLOUR RED. 01 A TYPE T.", "1:20 unknown-clause"},
                    ImportRow{"01 T TYPEDEF COLOUR RED. 01 A TYPE T.", "1:14 unknown-clause"},
                    ImportRow{"01 T TYPEDEF. 05 A U.", "1:20 unknown-clause"}));

// Where an entry ends though there is no period.
INSTANTIATE_TEST_SUITE_P(
    Ends, ImportProblemTest,
    testing::Values(
        ImportRow{"01 A PIC X VALUE 'A'\nLINKAGE SECTION.\n01 B PIC X.", "2:1 no-period"},
        ImportRow{"01 A PIC X VALUE 'A'\nPROCEDURE DIVISION.", "2:1 no-period"},
        ImportRow{"01 A PIC X\nPROCEDURE DIVISION.", "2:1 no-period"},
        ImportRow{"01 A PIC X VALUE 'A'\n01 B.\n05 C PIC X.", "2:1 no-period"},
        ImportRow{"01 A PIC X EXTERNAL-FORM\n01 B PIC X.", "2:1 no-period"},
        ImportRow{"01 A PIC X PROPERTY NO GET\n01 B PIC X.",
                  "2:1 passed-over-clause, 2:1 no-period"},
        ImportRow{"01 A HANDLE OF FONT\n01 B PIC X.", "2:1 no-period"},
        ImportRow{"01 A USAGE OBJECT REFERENCE\n01 B PIC X.", "2:1 no-period, 1:1 dialect-decides"},
        ImportRow{"78 K VALUE 5\n01 A PIC X(K).", "2:1 no-period"},
        ImportRow{"01 T TYPEDEF PIC X. 01 A TYPE\n01 B PIC X.", "2:1 bad-clause"}));

INSTANTIATE_TEST_SUITE_P(
    SqlTypes, ImportProblemTest,
    testing::Values(ImportRow{"01 A SQL TYPE IS CLOB(0).", "1:25 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS CLOB(0g).", "1:26 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS CLOB(2147483648).", "1:34 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS CLOB(ZK).", "1:23 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS CLOB(9999999999K).", "1:23 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS CLOB(-5K).", "1:23 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS CLOB('5').", "1:23 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS CLOB(2 KB).", "1:25 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS CLOB(5.", "1:24 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS XML.", "1:21 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS TIME('0').", "1:23 bad-clause"},
                    ImportRow{"01 A COMP SQL TYPE IS ROWID.", "1:11 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS ROWID SQL TYPE IS ROWID.",
                              "1:6 host-variable, 1:24 bad-clause"}));

INSTANTIATE_TEST_SUITE_P(
    Items, ImportProblemTest,
    testing::Values(ImportRow{"01 A.", "1:1 no-picture"}, ImportRow{"01 A COMP.", "1:1 no-picture"},
                    ImportRow{"01 A PIC Q.", "1:10 bad-picture"},
                    ImportRow{"01 A PIC X(0).", "1:10 bad-picture"},
                    ImportRow{"01 A PIC X(NOWHERE).", "1:10 bad-picture"},
                    ImportRow{"01 A PIC X COMP-1.", "1:1 needless-picture"},
                    ImportRow{"01 A PIC S9V9 COMP-1.", "1:1 needless-picture"},
                    ImportRow{"01 A PIC S9(5) COMP-1.", "1:1 short-binary"},
                    ImportRow{"01 A PIC Z9Q.", "1:10 bad-picture"},
                    ImportRow{"01 A PIC Q. 01 B PIC Q.", "1:10 bad-picture, 1:22 bad-picture"},
                    ImportRow{"01 A PIC S9(3)P COMP-1.", "1:1 needless-picture"},
                    ImportRow{"01 A VALUE 'AB' COMP.", "1:1 no-picture"},
                    ImportRow{"01 R COMP. 05 A PIC 9(19).", "1:12 bad-usage"},
                    ImportRow{"01 A PIC ZZ9 NATIONAL.", "1:1 other-kind"},
                    ImportRow{"01 A SQL TYPE IS CLOB(5).", "1:6 host-variable"},
                    ImportRow{"01 A SQL TYPE IS CLOB.", "1:22 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS CLOB(3G).", "1:26 bad-clause"},
                    ImportRow{"01 A SQL TYPE IS FANCY.", "1:23 bad-clause"},
                    ImportRow{"01 A PIC X SQL TYPE IS ROWID.", "1:12 bad-clause"},
                    ImportRow{"01 A PIC X(5) VARYING.", "1:15 host-variable"},
                    ImportRow{"01 A PIC X COMP-3.", "1:1 bad-usage"},
                    ImportRow{"01 A PIC 9(19) COMP.", "1:1 bad-usage"},
                    ImportRow{"01 R COMP-3. 05 A PIC X.", "1:14 group-usage"},
                    ImportRow{"01 A PIC 9(39) COMP-3.", "1:1 many-digits"},
                    ImportRow{"01 A PIC 9 SIGN LEADING.", "1:1 useless-sign"},
                    ImportRow{"01 A PIC N.", "1:1 national-by-default"},
                    ImportRow{"01 A FLOAT-DECIMAL-16.", "1:1 other-kind"},
                    ImportRow{"01 R. 05 G SYNC. 10 A PIC X.", "1:7 group-sync"},
                    ImportRow{"01 A PIC 1(8) BIT.", "1:1 bit-storage, 1:1 other-kind"}));

// What some compilers edit with.
INSTANTIATE_TEST_SUITE_P(OddPictures, ImportProblemTest,
                         testing::Values(ImportRow{"01 A PIC zz.z9.", "1:10 odd-picture"},
                                         ImportRow{"01 A PIC *9*.", "1:10 odd-picture"},
                                         ImportRow{"01 A PIC 9Z(2).", "1:10 odd-picture"},
                                         ImportRow{"01 A PIC 9Z(999).", "1:10 odd-picture"},
                                         ImportRow{"01 A PIC 9Z(999)Z.", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9Z(1000).", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9Z(0).", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9Z(K).", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9Z().", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9Z(3.", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9.9.9.", "1:10 bad-picture"},
                                         ImportRow{"01 A PIC 9Z.Z.9.", "1:10 bad-picture"}));

INSTANTIATE_TEST_SUITE_P(
    Tables, ImportProblemTest,
    testing::Values(
        ImportRow{"01 R. 05 A PIC X OCCURS 0.", "1:25 bad-occurs"},
        ImportRow{"01 R. 05 A PIC X OCCURS -1.", "1:25 bad-occurs"},
        ImportRow{"01 R. 05 A PIC X OCCURS 5 TO 3 DEPENDING ON B. 05 B PIC 9.", "1:25 bad-occurs"},
        ImportRow{"01 R. 05 A PIC X OCCURS NOWHERE.", "1:25 bad-occurs"},
        ImportRow{"01 R. 05 A PIC X OCCURS 9999999999.", "1:25 bad-occurs"},
        ImportRow{"01 R. 05 A PIC X OCCURS 1.5.", "1:25 bad-occurs"},
        ImportRow{"01 R. 05 A PIC X OCCURS 1 TO MANY.", "1:25 bad-occurs"},
        ImportRow{"01 R.\n>>DEFINE N AS 'FIVE'\n05 A PIC X OCCURS N.", "3:19 bad-occurs"},
        ImportRow{"01 R. 05 A PIC X OCCURS 1 TO 5 DEPENDING ON.", "1:32 bad-clause"},
        ImportRow{"77 A PIC X OCCURS 5.", "1:12 table-on-top"},
        ImportRow{"01 R. 05 A PIC X OCCURS 3 OCCURS 3.", "1:27 bad-clause"},
        ImportRow{"01 R. 05 A PIC X OCCURS 1 TO 5.", "1:18 no-depending"},
        ImportRow{"01 A PIC X OCCURS 5.", "1:12 table-on-top"},
        ImportRow{"01 R. 05 A PIC X OCCURS 1 TO 5 DEPENDING ON N.", "1:45 lost-depending"},
        ImportRow{"01 R. 05 A PIC X OCCURS 1 TO 5 DEPENDING ON EIBCALEN.", "1:45 system-depending"},
        ImportRow{
            "01 Q. 05 N PIC 9. 01 P. 05 N PIC 9. 01 R.\n05 A PIC X OCCURS 1 TO 5 DEPENDING ON N.",
            "2:39 unclear-depending"},
        ImportRow{"01 R. 05 A PIC X OCCURS 2000000000. 05 B PIC X OCCURS 2000000000.",
                  "1:37 too-large"},
        ImportRow{"01 R. 05 A PIC X(2) OCCURS 2000000000.", "1:7 too-large"},
        ImportRow{"01 R. 05 G OCCURS 60000. 10 A PIC X(60000).", "1:7 too-large"},
        ImportRow{
            "01 R. 05 G OCCURS 2. 10 B COMP-1 SYNC. 10 A PIC XX OCCURS 1073741820. 10 C PIC X.",
            "1:7 too-large"},
        ImportRow{"01 R.\n05 G. 10 N PIC 9. 10 H. 15 N PIC 9.\n"
                  "05 A PIC X OCCURS 1 TO 2 DEPENDING ON N IN G.",
                  "3:39 unclear-depending"},
        ImportRow{"01 A PIC X(99999999999).", "1:10 bad-picture"}));

INSTANTIATE_TEST_SUITE_P(
    Places, ImportProblemTest,
    testing::Values(
        ImportRow{"01 R. 05 A PIC X. 05 B REDEFINES C PIC X.", "1:34 lost-redefined"},
        ImportRow{"01 R. 05 A PIC X. 05 PIC X. 05 B REDEFINES A PIC X.", "1:44 far-redefined"},
        ImportRow{"01 R. 05 A PIC X. 05 B REDEFINES A PIC XX.", "1:19 larger-redefinition"},
        ImportRow{"01 A PIC X. 01 B REDEFINES A PIC XX.", ""},
        ImportRow{"01 R. 05 Z PIC X. 05 A PIC X(4). 05 B REDEFINES A COMP-1 SYNC.",
                  "1:34 off-boundary"},
        ImportRow{"01 R. 05 A PIC X. 05 G. 10 B COMP-1 SYNC.", "1:25 slack-place"},
        ImportRow{"01 R. 05 A PIC X. 66 B RENAMES C.", "1:32 lost-renamed"},
        ImportRow{"01 R. 05 A PIC X. 05 B PIC X. 66 C RENAMES B THRU A.", "1:44 lost-renamed"},
        ImportRow{"01 R. 05 A PIC X. 66 C.", "1:19 bad-clause"},
        ImportRow{"01 R. 05 A PIC X. 05 B REDEFINES X PIC X. 05 C REDEFINES B PIC X.",
                  "1:34 lost-redefined"},
        ImportRow{"01 R. 05 A PIC X. 66 B RENAMES A. 66 C RENAMES B.", "1:48 lost-renamed"},
        ImportRow{"01 R. 05 A PIC X(2) OCCURS 2000000000. 66 B RENAMES A.", "1:7 too-large"},
        ImportRow{"01 R. 05 A. 10 X PIC X(5). 10 Y PIC X. 05 B REDEFINES A. 10 Z PIC X.\n"
                  "66 D RENAMES Y THRU Z.",
                  "2:14 lost-renamed"},
        ImportRow{"01 A TYPE T.", "1:11 lost-type"}, ImportRow{"01 A LIKE B.", "1:11 lost-type"},
        ImportRow{"01 A. 05 B LIKE A.", "1:17 lost-type"},
        ImportRow{"01 A. 05 B. 10 C SAME AS A.", "1:26 lost-type"},
        ImportRow{"01 A PIC X. 01 B LIKE A (N).", "1:23 bad-clause"},
        ImportRow{"01 A PIC X. 01 B LIKE A (-1).", "1:13 bad-clause"},
        ImportRow{"01 A. 05 C PIC X. 01 B LIKE A (1).", "1:19 bad-clause"},
        ImportRow{"01 T TYPEDEF. 05 A TYPE T.", "1:25 lost-type"},
        ImportRow{"01 A PIC X. 88 C VALUE OR 'B'.", "1:24 no-value, 1:16 no-value"},
        ImportRow{"01 T TYPEDEF. 05 A T.", "1:20 lost-type"},
        ImportRow{"01 T PIC X. 01 A T.", "1:18 unknown-clause"},
        ImportRow{"01 T TYPEDEF PIC X. 01 A PIC X T.", "1:32 unknown-clause"},
        ImportRow{"01 A T. 01 T TYPEDEF PIC X.", "1:6 unknown-clause"}));

INSTANTIATE_TEST_SUITE_P(
    Values, ImportProblemTest,
    testing::Values(
        ImportRow{"78 K VALUE 1 / 0.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE NEXT.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE H\"0G\".", "1:12 bad-constant"},
        ImportRow{"01 K CONSTANT FROM NOWHERE.", "1:20 bad-constant"},
        ImportRow{"78 K VALUE 9223372036854775807 + 1.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE ((((1).", "1:12 bad-constant"},
        ImportRow{"78 K VALUE B#102.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE O#8.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE X#-1.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE 9223372036854775807 * 2.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE 0 - 9223372036854775807 - 2.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE LENGTH OF N'AB'.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE Z#1.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE LENGTH OF NOWHERE.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE LENGTH OF 5.", "1:12 bad-constant"},
        ImportRow{"01 R. 05 A PIC X. 78 K VALUE LENGTH OF 5.", "1:30 bad-constant"},
        ImportRow{"01 R. 05 A PIC X. 78 K VALUE LENGTH OF B.", "1:30 bad-constant"},
        ImportRow{"01 R. 05 A PIC X. 78 K VALUE LENGTH OF A OF B.", "1:30 bad-constant"},
        ImportRow{"01 R. 05 A PIC X(2) OCCURS 2000000000. 78 L VALUE LENGTH OF R.",
                  "1:51 bad-constant, 1:7 too-large"},
        ImportRow{"78 K VALUE 'AB'. 01 A PIC X(K).", "1:27 bad-picture"},
        ImportRow{"01 A PIC X. 88 C VALUE 'B' & 5.", "1:28 no-value"},

        ImportRow{"78 K VALUE 1 + 'A'.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE 'A' & 1.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE 1.5 + 1.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE 2 1.5.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE 1).", "1:12 bad-constant"},
        ImportRow{"78 K VALUE 1 + 2).", "1:12 bad-constant"},
        ImportRow{"78 K VALUE H\"FFFFFFFFFFFFFFFFF\".", "1:12 bad-constant"},
        ImportRow{"78 K VALUE 9223372036854775807 + 1 + 1.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE 9223372036854775807 + 1 -1.", "1:12 bad-constant"},
        ImportRow{"78 K VALUE (9223372036854775807 + 1).", "1:12 bad-constant"},
        ImportRow{"78 K VALUE (0 - 9223372036854775807 - 1) / -1.", "1:12 bad-constant"},
        ImportRow{"01 K CONSTANT FROM 'N'.", "1:20 bad-constant"},
        ImportRow{"78 VALUE 5.", "1:10 bad-constant"},
        ImportRow{"01 A PIC X. 88 VALUE 'B'.", "1:16 no-value"},
        ImportRow{"01 A PIC X. 88 C VALUE 'B' THRU NOWHERE.", "1:33 no-value, 1:16 no-value"},
        ImportRow{"01 A PIC X. 88 C VALUE ALL NOWHERE.", "1:24 no-value, 1:16 no-value"},
        ImportRow{"01 A PIC X. 88 C.", "1:16 no-value"},
        ImportRow{"01 A PIC X. 88 C VALUE NOWHERE.", "1:24 no-value, 1:16 no-value"},
        ImportRow{"88 C VALUE 1.", "1:4 no-item"},
        ImportRow{"01 A PIC X. 88 C VALUE X'00' X'01'.", "1:24 coded-literal"}));

// Whole sources.
class ImportSourceProblemTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportSourceProblemTest, IsToldAtItsPlace) {
  const auto imported = importOf(GetParam().source);
  EXPECT_EQ(findingsOf(imported), GetParam().expected) << test::problemsOf(imported);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportSourceProblemTest,
    testing::Values(
        ImportRow{"", "0:0 no-program"}, ImportRow{"NONSENSE 'HELLO'.", "1:17 no-program"},
        ImportRow{"DISPLAY 'HELLO'.", "1:1 statements-alone"},
        ImportRow{"A-100.\nMOVE A TO B.", "1:1 statements-alone"},
        ImportRow{"A-100 SECTION.\nMOVE A TO B.", "1:1 statements-alone"},
        ImportRow{"CONFIGURATION SECTION.", "1:1 copybook, 1:1 no-program"},
        ImportRow{"PROGRAM-ID. .", "1:1 no-program-name"}, ImportRow{"01 A PIC X.", "1:1 copybook"},
        ImportRow{"PROGRAM-ID. T.\nCLASS-ID. C.\nMETHOD-ID. M.\nEND METHOD M.\nEND CLASS C.",
                  "2:1 passed-over-program"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION.\nREPORT SECTION.\nRD R.\n01 L TYPE DETAIL.",
                  "2:1 passed-over-section"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. FILE SECTION. FD F.\n01 A PIC X.",
                  "1:48 no-select"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. FILE SECTION.\n01 A PIC X.", "2:1 no-record"},
        ImportRow{"PROGRAM-ID. T. PROCEDURE DIVISION USING\nA.", "2:1 lost-parameter"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. LINKAGE SECTION.\n01 R. 05 A PIC X.\n"
                  "PROCEDURE DIVISION USING A.",
                  "3:26 parameter-within"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. LINKAGE SECTION.\n01 A PIC X.\n"
                  "PROCEDURE DIVISION USING BY CONTENT OPTIONAL A.",
                  "3:29 content-parameter, 3:37 optional-parameter"},
        ImportRow{"PROGRAM-ID. T. PROCEDURE DIVISION.\nENTRY FAST 'E'.", "2:7 lost-convention"},
        ImportRow{"PROGRAM-ID. T. PROCEDURE DIVISION\nSTART-HERE.", "1:26 no-period"},
        ImportRow{"01 A PIC X.\nEND", "1:1 copybook"},
        ImportRow{"FD F\n01 A PIC X.", "1:1 copybook, 2:1 no-period"},
        ImportRow{"FD F RECORD 01 TO\n80. 01 A PIC X.", "1:1 copybook"},
        ImportRow{"01 :A:-B PIC X.\n01 'C'-D PIC X.\n01 :A:-E PIC X.",
                  "1:5 unreplaced-tag, 1:1 copybook, 2:4 unreplaced-tag"},
        ImportRow{"PROGRAM-ID. T. PROCEDURE DIVISION USING\nDFHEIBLK DFHCOMMAREA.",
                  "2:1 system-parameter"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. LINKAGE SECTION.\n01 DFHCOMMAREA PIC X.\n"
                  "PROCEDURE DIVISION.",
                  "2:1 system-parameter"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. WORKING-STORAGE SECTION.\n01 A. COPY CMQODV.\n"
                  "01 B PIC X.",
                  "2:7 system-copybook, 2:1 system-record"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. WORKING-STORAGE SECTION.\n01 A.\n"
                  "01 B. COPY CMQODV.",
                  "3:7 system-copybook, 2:1 no-picture, 3:1 system-record"},
        ImportRow{"01 A PIC ZZ.ZZZ.ZZ9,99.", "1:1 copybook, 1:10 comma-assumed"},
        ImportRow{"DATA DIVISION.", "1:1 copybook, 1:1 no-program"},
        ImportRow{"SCREEN SECTION.\n01 A.", "1:1 copybook, 1:1 passed-over-section"},
        ImportRow{"REPORT SECTION.\nRD A.", "1:1 copybook, 1:1 passed-over-section"},
        ImportRow{"PROGRAM-ID. T.\nCOMMUNICATION SECTION.\nCD A.", "2:1 passed-over-section"},
        ImportRow{"78 K VALUE NEXT.", "1:1 copybook, 1:12 bad-constant"},
        ImportRow{"01 A PIC Q.", "1:1 copybook, 1:10 bad-picture"},
        ImportRow{"INDEX A.", "1:8 no-program"},
        ImportRow{"PROGRAM-ID. T AS ''.", "1:1 no-program-name"},
        ImportRow{"PROGRAM-ID. T. PROCEDURE DIVISION\nMAIN SECTION.", "1:26 no-period"},
        ImportRow{"PROGRAM-ID. T. SPECIAL-NAMES.\nCALL-CONVENTION 99999999999 IS FAST.\n"
                  "PROCEDURE DIVISION FAST.",
                  "3:20 lost-convention"},
        ImportRow{"PROGRAM-ID. T. SPECIAL-NAMES.\nCALL-CONVENTION -99999999999 IS FAST.\n"
                  "PROCEDURE DIVISION FAST.",
                  "3:20 lost-convention"},
        ImportRow{"PROGRAM-ID. T. SPECIAL-NAMES.\nCALL-CONVENTION EIGHT IS FAST.\n"
                  "PROCEDURE DIVISION FAST.",
                  "3:20 lost-convention"},
        ImportRow{"PROGRAM-ID. T. SPECIAL-NAMES.\nCALL-CONVENTION 8 IS 'FAST'.\n"
                  "PROCEDURE DIVISION FAST.",
                  "3:20 lost-convention"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION.\nBASED-STORAGE SECTION.\n01 A PIC X.",
                  "2:1 passed-over-clause"},
        ImportRow{
            "PROGRAM-ID. T. DATA DIVISION. FILE SECTION.\nFD F\nLINKAGE SECTION.\n01 A PIC X.",
            "2:4 no-select"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. FILE SECTION.\nFD F", "2:4 no-select"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. FILE SECTION.\nFD .\n01 A PIC X.",
                  "2:4 unknown-text"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION. FILE SECTION.\nFD .", "2:4 unknown-text"},
        ImportRow{"PROGRAM-ID. T. DATA DIVISION.\nFANCY SECTION.\n01 A PIC X.", "2:1 unknown-text"},
        ImportRow{"78 A VALUE 1.", "1:1 copybook"}, ImportRow{"SELECT A ASSIGN B.", "1:1 copybook"},
        ImportRow{"FUNCTION-ID. F.\nPROCEDURE DIVISION.\nEND FUNCTION F.",
                  "1:1 passed-over-program, 3:15 nothing-to-import"}));

// A program, one that it contains with a table behind it, and one behind both.
class ImportGlobalTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportGlobalTest, TablesMayDependOnItemsOfProgramsAround) {
  const auto imported = importOf("PROGRAM-ID. A. DATA DIVISION. " + std::string(GetParam().source) +
                                 " 01 R.\n05 T PIC X OCCURS 1 TO 5 DEPENDING ON\nN.");
  EXPECT_EQ(findingsOf(imported), GetParam().expected) << test::problemsOf(imported);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportGlobalTest,
    testing::Values(ImportRow{"WORKING-STORAGE SECTION. 01 N PIC 9 GLOBAL. PROCEDURE DIVISION. "
                              "PROGRAM-ID. B. LINKAGE SECTION.",
                              "3:1 depending-elsewhere"},
                    ImportRow{
                        "WORKING-STORAGE SECTION. 01 G GLOBAL. 05 N PIC 9. PROCEDURE DIVISION. "
                        "PROGRAM-ID. B. PROCEDURE DIVISION. PROGRAM-ID. C. LINKAGE SECTION.",
                        "3:1 depending-elsewhere"},
                    ImportRow{"FILE SECTION. SD F IS GLOBAL. 01 G. 05 N PIC 9. PROCEDURE DIVISION. "
                              "PROGRAM-ID. B. LINKAGE SECTION.",
                              "1:48 no-select, 3:1 depending-elsewhere"},
                    ImportRow{"FILE SECTION. SD F. 01 G. 05 N PIC 9. PROCEDURE DIVISION. "
                              "PROGRAM-ID. B. LINKAGE SECTION.",
                              "1:48 no-select, 3:1 lost-depending"},
                    ImportRow{"WORKING-STORAGE SECTION. 01 N PIC 9. PROCEDURE DIVISION. "
                              "PROGRAM-ID. B. LINKAGE SECTION.",
                              "3:1 lost-depending"},
                    ImportRow{"WORKING-STORAGE SECTION. 01 N PIC 9 GLOBAL. END PROGRAM A. "
                              "PROGRAM-ID. B. DATA DIVISION. LINKAGE SECTION.",
                              "3:1 lost-depending"},
                    ImportRow{"WORKING-STORAGE SECTION. 01 N PIC 9 GLOBAL. PROCEDURE DIVISION. "
                              "PROGRAM-ID. B. LINKAGE SECTION. 01 N PIC 9.",
                              ""}));

// What a note says counts everywhere: it is told once a source.
TEST(ImportNotes, AreToldOnceASource) {
  EXPECT_EQ(findingsOf(importOf(programOf("01 A PIC N.\n01 B PIC N.")), kHeadLines),
            "1:1 national-by-default");
}

TEST(ImportProblems, AreToldWithTheCopiesTheyStandIn) {
  test::ListedCopybooks copybooks(
      test::ListedCopybooks::Texts{{"OUTER", "COPY INNER."}, {"INNER", "01 A PIC Q."}});
  const auto imported =
      as::toolkit::importCobol(programOf("COPY OUTER."), "T.cbl", &copybooks, freeFormat());
  ASSERT_EQ(imported.findings.size(), 1U);
  EXPECT_EQ(textOf(imported.findings.front()),
            "INNER.cpy:1:10: error: Q is no PICTURE that can be read\n"
            "OUTER.cpy:1:1: note: copied here\n"
            "T.cbl:5:1: note: copied here");
}

TEST(ImportProblems, SuggestATypeWhereANameStandsAlone) {
  const auto imported = importOf(programOf("01 A T."));
  ASSERT_EQ(imported.findings.size(), 1U);
  EXPECT_EQ(
      textOf(imported.findings.front()),
      "T.cbl:5:6: error: T in the entry of A begins no clause that is known; if it is a type, "
      "its TYPEDEF has to stand in front");
}

// Those of the words and those of the entries are told one behind the other.
TEST(ImportProblems, OfWordsRefuseTheirProgramAlone) {
  const auto imported = importOf(
      "PROGRAM-ID. A. DATA DIVISION. WORKING-STORAGE SECTION.\nCOPY NOWHERE.\n01 R PIC X.\n"
      "PROCEDURE DIVISION. GOBACK. END PROGRAM A.\nPROGRAM-ID. B.");
  EXPECT_EQ(findingsOf(imported), "2:1 copybook-not-found") << test::problemsOf(imported);
  ASSERT_EQ(imported.programs.size(), 2U);
  EXPECT_TRUE(imported.programs[0].isRefused());
  EXPECT_FALSE(imported.programs[1].isRefused());
}

TEST(ImportProblems, OfContainedProgramsRefuseThemAlone) {
  const auto imported = importOf(
      "PROGRAM-ID. A. PROCEDURE DIVISION. GOBACK. PROGRAM-ID. B. DATA DIVISION. "
      "WORKING-STORAGE SECTION. 01 R PIC Q. END PROGRAM B. END PROGRAM A.");
  ASSERT_EQ(imported.programs.size(), 2U);
  EXPECT_FALSE(imported.programs[0].isRefused());
  EXPECT_TRUE(imported.programs[1].isRefused());
}

TEST(ImportRules, HaveUniqueIds) {
  std::set<std::string> ids;
  for (const as::toolkit::ImportRule& rule : as::toolkit::importRules()) {
    EXPECT_TRUE(ids.insert(rule.id).second) << rule.id;
    EXPECT_STRNE(rule.summary, "");
  }
}

TEST(ImportOptions, DialectsMustBeKnown) {
  EXPECT_THROW(importOf("01 A PIC X.", freeFormat("vax")), std::invalid_argument);
}

TEST(ImportOptions, PointersHaveFourOrEightBytes) {
  auto options = freeFormat();
  options.pointerSize = 5;
  EXPECT_THROW(importOf("01 A PIC X.", options), std::invalid_argument);
}

}  // namespace

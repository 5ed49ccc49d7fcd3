// Tests of where imported items stand: one behaviour a row.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "as/toolkit/Import.h"
#include "support/Imports.h"

namespace {

using test::dictionaryOf;
using test::freeFormat;
using test::importOf;
using test::programOf;

struct LayoutRow {
  const char* dialect;
  const char* entries;
  const char* places;
};

void PrintTo(const LayoutRow& row, std::ostream* out) {
  *out << row.dialect << ": " << row.entries;
}

class ImportLayoutTest : public testing::TestWithParam<LayoutRow> {};

TEST_P(ImportLayoutTest, IsThatOfTheRow) {
  const LayoutRow& row = GetParam();
  const auto imported = importOf(programOf(row.entries), freeFormat(row.dialect));
  EXPECT_EQ(test::placesOf(dictionaryOf(imported)), row.places);
}

INSTANTIATE_TEST_SUITE_P(
    Groups, ImportLayoutTest,
    testing::Values(
        LayoutRow{"ibm", "01 R. 05 A PIC X. 05 B PIC 99.", "R 0+3, A 0+1, B 1+2"},
        LayoutRow{"ibm", "01 R. 05 G. 10 A PIC X. 10 B PIC X. 05 C PIC X.",
                  "R 0+3, G 0+2, A 0+1, B 1+1, C 2+1"},
        LayoutRow{"ibm", "1 R. 2 A. 49 B PIC X. 77 C PIC X.", "R 0+1, A 0+1, B 0+1, C 0+1"},
        LayoutRow{"ibm", "01 R USAGE COMP. 05 A PIC 9. 05 G USAGE COMP-3. 10 B PIC 9(3).",
                  "R 0+4, A 0+2, G 2+2, B 2+2"},
        LayoutRow{"ibm",
                  "01 R SIGN LEADING SEPARATE. 05 A PIC S9. 05 B PIC 9. 05 C PIC S9 TRAILING.",
                  "R 0+4, A 0+2, B 2+1, C 3+1"},
        LayoutRow{"ibm", "01 R GROUP-USAGE NATIONAL. 05 A PIC N. 05 B PIC 9.",
                  "R 0+4, A 0+2, B 2+2"},
        LayoutRow{"ibm", "01 R. 10 A PIC X. 05 B PIC X.", "R 0+2, A 0+1, B 1+1"}));

INSTANTIATE_TEST_SUITE_P(
    Tables, ImportLayoutTest,
    testing::Values(
        LayoutRow{"ibm", "01 R. 05 A PIC 9 OCCURS 3. 05 B PIC X.", "R 0+4, A 0+1*3, B 3+1"},
        LayoutRow{"ibm", "01 R. 05 N PIC 9. 05 T OCCURS 0 TO 5 TIMES DEPENDING ON N. 10 A PIC XX.",
                  "R 0+11, N 0+1, T 1+2*5, A 1+2"},
        LayoutRow{"ibm", "01 R. 05 N PIC 9. 05 A PIC X OCCURS 4 DEPENDING N.",
                  "R 0+5, N 0+1, A 1+1*4"},
        LayoutRow{"ibm",
                  "01 R. 05 T OCCURS 2 INDEXED BY I J ASCENDING KEY IS A B DESCENDING C. "
                  "10 A PIC X OCCURS 3.",
                  "R 0+6, T 0+3*2, A 0+1*3"},
        LayoutRow{"ibm", "01 R. 05 N PIC 9. 05 A PIC X OCCURS 1 TO UNBOUNDED DEPENDING ON N.",
                  "R 0+2, N 0+1, A 1+1*1"},
        LayoutRow{"ibm", "01 R. 05 N PIC 9. 05 A PIC X OCCURS UNBOUNDED DEPENDING ON N.",
                  "R 0+2, N 0+1, A 1+1*1"},
        LayoutRow{"ibm", "01 R. 05 A OCCURS DYNAMIC PIC X.", "R 0+1, A 0+1*1"},
        LayoutRow{"ibm", "01 R. 05 A OCCURS 3 INDEXED BY I ASCENDING KEY B. 10 B PIC XX.",
                  "R 0+6, A 0+2*3, B 0+2"},
        LayoutRow{"ibm", "01 R. 05 A OCCURS 3 DESCENDING B INDEXED I IS GLOBAL. 10 B PIC XX.",
                  "R 0+6, A 0+2*3, B 0+2"},
        LayoutRow{"ibm", "01 R. 05 N PIC 9. 05 A PIC X OCCURS 1 TO 5 INDEXED BY I DEPENDING ON N.",
                  "R 0+6, N 0+1, A 1+1*5"},
        LayoutRow{"ibm", "01 R. 05 A OCCURS DYNAMIC CAPACITY IN C FROM 2 TO 9 INITIALIZED PIC X.",
                  "R 0+2, A 0+1*2"},
        LayoutRow{"ibm",
                  "78 N VALUE 3. 01 M CONSTANT AS N * (2 + 1). 01 R. 05 A PIC X(N) OCCURS N TO M.",
                  "R 0+27, A 0+3*9"}));

INSTANTIATE_TEST_SUITE_P(
    Redefinitions, ImportLayoutTest,
    testing::Values(
        LayoutRow{"ibm",
                  "01 R. 05 A PIC X(4). 05 B REDEFINES A. 10 C PIC XX. 10 D PIC X. 05 E PIC X.",
                  "R 0+5, A 0+4, B 0+3, C 0+2, D 2+1, E 4+1"},
        LayoutRow{"ibm", "01 R. 05 A PIC X(2). 05 B REDEFINES A PIC X(3). 05 E PIC X.",
                  "R 0+4, A 0+2, B 0+3, E 3+1"},
        LayoutRow{
            "ibm",
            "01 R. 05 Z PIC X. 05 A PIC X(2). 05 B REDEFINES A PIC X. 05 C REDEFINES B PIC 9.",
            "R 0+3, Z 0+1, A 1+2, B 1+1, C 1+1"},
        LayoutRow{"ibm", "01 A PIC XX. 01 B REDEFINES A. 05 C PIC X.", "A 0+2, B 0+1, C 0+1"},
        LayoutRow{"ibm", "01 R. 05 A PIC X. 05 PIC X. 05 B REDEFINES A PIC X.",
                  "R 0+2, A 0+1, FILLER 1+1, B 0+1"}));

INSTANTIATE_TEST_SUITE_P(
    Renames, ImportLayoutTest,
    testing::Values(
        LayoutRow{"ibm", "01 R. 05 A PIC X. 05 B PIC XX. 05 C PIC X. 66 D RENAMES B THRU C.",
                  "R 0+4, A 0+1, B 1+2, C 3+1, D 1+3"},
        LayoutRow{"ibm", "01 R. 05 G. 10 A PIC X. 05 H. 10 A PIC XX. 66 D RENAMES A OF H.",
                  "R 0+3, G 0+1, A 0+1, H 1+2, A 1+2, D 1+2"},
        LayoutRow{"ibm", "01 R. 05 A PIC X. 05 B PIC XX. 05 C PIC X. 66 D RENAMES B THROUGH C.",
                  "R 0+4, A 0+1, B 1+2, C 3+1, D 1+3"},
        LayoutRow{"ibm", "01 R. 05 A PIC 9 OCCURS 3. 66 D RENAMES A.", "R 0+3, A 0+1*3, D 0+3"},
        LayoutRow{"ibm", "01 R. 05 A PIC X. 66 D RENAMES A. 05 B PIC X.",
                  "R 0+2, A 0+1, B 1+1, D 0+1"}));

// Longer and shorter than what an item is like.
INSTANTIATE_TEST_SUITE_P(
    Likes, ImportLayoutTest,
    testing::Values(LayoutRow{"ibm", "01 A PIC X(5). 01 B LIKE A (+3). 01 C LIKE A (-2).",
                              "A 0+5, B 0+8, C 0+3"},
                    LayoutRow{"ibm", "01 A PIC S9(5)V99 COMP-3. 01 B LIKE A (4). 01 C LIKE A (-5).",
                              "A 0+4, B 0+6, C 0+2"}));

// What precompilers put in the place of an entry.
INSTANTIATE_TEST_SUITE_P(
    HostVariables, ImportLayoutTest,
    testing::Values(
        LayoutRow{"ibm", "01 A USAGE IS SQL TYPE IS CLOB(10). 01 B PIC X.",
                  "A 0+14, A-LENGTH 0+4, A-DATA 4+10, B 0+1"},
        LayoutRow{"ibm", "01 A SQL TYPE IS BLOB (2 K).", "A 0+2052, A-LENGTH 0+4, A-DATA 4+2048"},
        LayoutRow{"ibm", "01 A SQL TYPE XML AS CLOB 1M.",
                  "A 0+1048580, A-LENGTH 0+4, A-DATA 4+1048576"},
        LayoutRow{"ibm", "01 A SQL CHARACTER LARGE OBJECT(5).", "A 0+9, A-LENGTH 0+4, A-DATA 4+5"},
        LayoutRow{"ibm", "01 A SQL TYPE IS DBCLOB(10).", "A 0+24, A-LENGTH 0+4, A-DATA 4+20"},
        LayoutRow{"ibm", "01 R. 10 A SQL TYPE IS BLOB_LOCATOR. 10 B USAGE SQL TYPE IS ROWID.",
                  "R 0+46, A 0+4, B 4+42, B-LEN 4+2, B-DATA 6+40"},
        LayoutRow{"ibm", "01 A SQL TYPE IS TABLE LIKE T AS LOCATOR.", "A 0+4"},
        LayoutRow{"ibm", "01 A SQL TYPE IS RESULT-SET-LOCATOR VARYING.", "A 0+4"},
        LayoutRow{"ibm", "01 A SQL TYPE IS CLOB-FILE.",
                  "A 0+267, A-NAME-LENGTH 0+4, A-DATA-LENGTH 4+4, A-FILE-OPTIONS 8+4, "
                  "A-NAME 12+255"},
        LayoutRow{"ibm", "01 R. 49 A SQL TYPE IS VARBINARY(9). 49 B SQL TYPE IS BINARY(3).",
                  "R 0+14, A 0+11, A-LEN 0+2, A-TEXT 2+9, B 11+3"},
        LayoutRow{"ibm", "01 R. 05 A OCCURS 2 SQL TYPE IS BINARY VARYING(9).",
                  "R 0+22, A 0+11*2, A-LEN 0+2, A-TEXT 2+9"},
        LayoutRow{"ibm", "01 A SQL TYPE IS TIMESTAMP. 01 SQL PIC X.", "A 0+26, SQL 0+1"},
        LayoutRow{"ibm", "01 A SQL TYPE IS DATE. 01 B SQL TYPE IS TIME.", "A 0+10, B 0+8"},
        LayoutRow{"ibm", "01 A SQL TYPE IS TIMESTAMP(6).", "A 0+26"},
        LayoutRow{"ibm", "78 LENK VALUE 5. 01 A SQL TYPE IS CLOB(LENK).",
                  "A 0+9, A-LENGTH 0+4, A-DATA 4+5"},
        LayoutRow{"ibm", "01 A SQL TYPE IS BINARY LARGE OBJECT(5).",
                  "A 0+9, A-LENGTH 0+4, A-DATA 4+5"},
        LayoutRow{"ibm", "01 A SQL TYPE IS DBCHAR LARGE OBJECT(5).",
                  "A 0+14, A-LENGTH 0+4, A-DATA 4+10"},
        LayoutRow{"ibm", "01 A SQL TYPE IS CHAR LARGE OBJECT(1 k).",
                  "A 0+1028, A-LENGTH 0+4, A-DATA 4+1024"},
        LayoutRow{"ibm", "01 A SQL TYPE IS CHARACTER(5). 01 B SQL TYPE IS CHAR(4).",
                  "A 0+5, B 0+4"},
        LayoutRow{"ibm", "01 A SQL TYPE IS CHAR VARYING(5). 01 B SQL TYPE IS CHARACTER VARYING(5).",
                  "A 0+7, A-LEN 0+2, A-TEXT 2+5, B 0+7, B-LEN 0+2, B-TEXT 2+5"},
        LayoutRow{"ibm", "01 R. 05 SQL TYPE IS CLOB(5).",
                  "R 0+9, FILLER 0+9, FILLER 0+4, FILLER 4+5"},
        LayoutRow{"ibm", "01 A SQL TYPE IS BLOB(1m).",
                  "A 0+1048580, A-LENGTH 0+4, A-DATA 4+1048576"},
        LayoutRow{"ibm", "01 R. 05 A PIC X(5) VARYING. 05 VARYING PIC X.",
                  "R 0+8, A 0+7, A-LEN 0+2, A-ARR 2+5, VARYING 7+1"}));

// The examples of IBM's manual, and the ones of a compiler that puts slack inside of groups.
INSTANTIATE_TEST_SUITE_P(
    Synchronized, ImportLayoutTest,
    testing::Values(
        LayoutRow{"ibm", "01 R. 05 B PIC X(5). 05 C. 10 D PIC XX. 10 E PIC S9(6) COMP SYNC.",
                  "R 0+12, B 0+5, C 5+7, D 5+2, E 8+4"},
        LayoutRow{"ibm", "01 R. 05 M PIC X(5). 05 N PIC XX. 05 O. 10 P PIC S9(6) COMP SYNC.",
                  "R 0+12, M 0+5, N 5+2, O 8+4, P 8+4"},
        LayoutRow{"gnucobol", "01 R. 05 M PIC X(5). 05 N PIC XX. 05 O. 10 P PIC S9(6) COMP SYNC.",
                  "R 0+12, M 0+5, N 5+2, O 7+5, P 8+4"},
        LayoutRow{"ibm",
                  "01 W. 05 A PIC X. 05 T OCCURS 10. 10 B PIC X. 10 C PIC S9(4)V99 COMP SYNC. "
                  "10 D PIC S9(3) COMP SYNC. 10 E PIC X(5).",
                  "W 0+161, A 0+1, T 1+16*10, B 1+1, C 4+4, D 8+2, E 10+5"},
        LayoutRow{
            "ibm",
            "01 R. 05 A PIC X. 05 B COMP-2 SYNC. 05 C PIC X. 05 D PIC S9(18) COMP SYNC RIGHT.",
            "R 0+28, A 0+1, B 8+8, C 16+1, D 20+8"},
        LayoutRow{"natural", "01 R. 05 A PIC X. 05 D PIC S9(18) COMP SYNC LEFT.",
                  "R 0+16, A 0+1, D 8+8"},
        LayoutRow{"ibm", "01 R SYNC. 05 A PIC X. 05 B PIC 9(4) COMP.", "R 0+4, A 0+1, B 2+2"},
        LayoutRow{"gnucobol", "01 R SYNC. 05 A PIC X. 05 B PIC 9(4) COMP.", "R 0+3, A 0+1, B 1+2"},
        LayoutRow{"ibm", "01 R. 05 A PIC X. 05 B PIC X(3) SYNC. 05 C PIC 9(3) COMP-3 SYNC.",
                  "R 0+6, A 0+1, B 1+3, C 4+2"},
        LayoutRow{
            "ibm",
            "01 R. 05 A PIC X. 05 B PIC X(8). 05 C REDEFINES B PIC 9(9) COMP SYNC. 05 D PIC X.",
            "R 0+10, A 0+1, B 1+8, C 1+4, D 9+1"}));

INSTANTIATE_TEST_SUITE_P(
    Types, ImportLayoutTest,
    testing::Values(
        LayoutRow{"ibm",
                  "01 T TYPEDEF. 05 A PIC X. 05 B PIC XX. 01 R. 05 C TYPE T. 05 D TYPE T OCCURS 2.",
                  "R 0+9, C 0+3, A 0+1, B 1+2, D 3+3*2, A 3+1, B 4+2"},
        LayoutRow{"gnucobol", "01 T TYPEDEF PIC S9(5) COMP-3. 01 R. 05 C USAGE IS T. 05 D PIC X.",
                  "R 0+4, C 0+3, D 3+1"},
        LayoutRow{"gnucobol", "01 T PIC 9(5). 01 R COMP. 05 C SAME AS T. 05 D PIC 9(4).",
                  "T 0+5, R 0+7, C 0+5, D 5+2"},
        LayoutRow{"ibm", "01 T TYPEDEF PIC S9(5) COMP-3. 01 R. 05 C TYPE IS T. 05 D PIC X.",
                  "R 0+4, C 0+3, D 3+1"},
        LayoutRow{"ibm", "01 T TYPEDEF. 05 A PIC X. 01 U TYPEDEF. 05 B TYPE T. 01 R TYPE U.",
                  "R 0+1, B 0+1, A 0+1"},
        LayoutRow{"ibm", "01 R. 05 G USAGE COMP-3. 10 A PIC 9(5). 05 B LIKE A. 05 C SAME AS G.",
                  "R 0+9, G 0+3, A 0+3, B 3+3, C 6+3, A 6+3"},
        LayoutRow{"ibm", "01 T TYPEDEF. 05 A PIC X. 05 B PIC XX. 01 R. 05 C T. 05 D OCCURS 2 T.",
                  "R 0+9, C 0+3, A 0+1, B 1+2, D 3+3*2, A 3+1, B 4+2"},
        LayoutRow{"ibm", "01 T IS TYPEDEF PIC X(4). 01 R T.", "R 0+4"},
        LayoutRow{"ibm", "01 A PIC X(4). 01 B LIKE A.", "A 0+4, B 0+4"},
        LayoutRow{"ibm", ">>IF P64 IS SET\n01 A PIC X.\n>>ELSE\n01 B PIC X.\n>>END-IF\n", "B 0+1"},
        LayoutRow{"gnucobol", ">>IF P64 IS SET\n01 A PIC X.\n>>ELSE\n01 B PIC X.\n>>END-IF\n",
                  "A 0+1"},
        LayoutRow{"ibm", "01 A. 66 R RENAMES A. 01 B. 05 C PIC X. 05 D SAME AS A.",
                  "A 0+0, R 0+0, B 0+1, C 0+1, D 1+0"},
        LayoutRow{"ibm", "01 T TYPEDEF. 05 A PIC XX. 05 B REDEFINES A PIC X. 01 R. 05 G TYPE T.",
                  "R 0+2, G 0+2, A 0+2, B 0+1"},
        LayoutRow{"ibm",
                  "01 T TYPEDEF. 05 A PIC XX. 05 B REDEFINES A PIC X. 01 R. 05 C PIC X(4). "
                  "05 D REDEFINES C PIC X. 05 G TYPE T.",
                  "R 0+6, C 0+4, D 0+1, G 4+2, A 4+2, B 4+1"},
        LayoutRow{"ibm", "01 FILLER TYPEDEF PIC X. 01 B PIC X.", "B 0+1"},
        LayoutRow{"ibm", "01 T TYPEDEF PIC 9(4) COMP SYNC. 01 R. 05 A PIC X. 05 B TYPE T.",
                  "R 0+4, A 0+1, B 2+2"},
        LayoutRow{"ibm", "01 T TYPEDEF PIC 9(4) COMP. 01 R. 05 A PIC X. 05 B TYPE T SYNC.",
                  "R 0+4, A 0+1, B 2+2"},
        LayoutRow{"ibm",
                  "01 R. 05 G. 10 A PIC X(5). 05 H. 10 A PIC X(3). "
                  "78 L VALUE LENGTH OF A IN H. 05 B PIC X(L).",
                  "R 0+11, G 0+5, A 0+5, H 5+3, A 5+3, B 8+3"},
        LayoutRow{"ibm",
                  "01 Q. 05 A PIC X(5). 01 R. 05 A PIC X(3). 78 L VALUE LENGTH OF A OF Q. "
                  "01 B PIC X(L).",
                  "Q 0+5, A 0+5, R 0+3, A 0+3, B 0+5"},
        LayoutRow{"ibm", "01 A VALUE 'ABC'. 78 L VALUE LENGTH OF A. 05 B PIC X(L).",
                  "A 0+3, B 0+3"},
        LayoutRow{"ibm", "01 T TYPEDEF PIC X(3). 01 R. 05 TYPE IS T.", "R 0+3, FILLER 0+3"},
        LayoutRow{"ibm", "01 R. 05 TYPE PIC X(3). 05 LIKE IS TYPE.", "R 0+6, TYPE 0+3, FILLER 3+3"},
        LayoutRow{"ibm", "01 A PIC 9(6). . 01 B PIC 9(6)\n.. 01 C PIC 9(6).\n. 01 D PIC 9.",
                  "A 0+6, B 0+6, C 0+6, D 0+1"},
        LayoutRow{"ibm", "01 R GROUP-USAGE IS BIT. 05 A PIC 1(8). 05 B PIC 1(9).",
                  "R 0+3, A 0+1, B 1+2"},
        LayoutRow{"ibm", "01 A PIC 9(6).. 01 B PIC X(6).. 01 C PIC 9(6) .. 01 D PIC 9.",
                  "A 0+7, B 0+6, C 0+6, D 0+1"},
        LayoutRow{"ibm", "01 R. 05 A PIC X(5). 78 L VALUE LENGTH OF R. 05 B PIC X(L).",
                  "R 0+10, A 0+5, B 5+5"},
        LayoutRow{"ibm", "01 Q. 05 A PIC X(5). 78 L VALUE BYTE-LENGTH OF A + 1. 01 B PIC X(L).",
                  "Q 0+5, A 0+5, B 0+6"},
        LayoutRow{"ibm", "78 K VALUE LENGTH OF 'a\xC3\xA4' + 1. 01 A PIC X(K).", "A 0+3"},
        LayoutRow{"ibm", "78 K VALUE LENGTH OF X'A0B1C2'. 01 A PIC X(K).", "A 0+3"},
        LayoutRow{"ibm", "01 K CONSTANT AS LENGTH OF Z'AB'. 01 A PIC X(K).", "A 0+3"}));

INSTANTIATE_TEST_SUITE_P(
    Constants, ImportLayoutTest,
    testing::Values(
        LayoutRow{"ibm", "78 K VALUE 9 - 2. 01 A PIC X(K).", "A 0+7"},
        LayoutRow{"ibm", "78 K VALUE 9 -2. 01 A PIC X(K).", "A 0+7"},
        LayoutRow{"ibm", "78 K VALUE 7 / 2. 01 A PIC X(K).", "A 0+3"},
        LayoutRow{"ibm", "78 K VALUE (2 + 3) * 2 - 1. 01 A PIC X(K).", "A 0+9"},
        LayoutRow{"ibm", "78 K VALUE 2 + 3 * 2. 01 A PIC X(K).", "A 0+8"},
        LayoutRow{"ibm", "78 K VALUE X#1F. 01 A PIC X(K).", "A 0+31"},
        LayoutRow{"ibm", "78 K VALUE H#1f. 01 A PIC X(K).", "A 0+31"},
        LayoutRow{"ibm", "78 K VALUE B#101. 01 A PIC X(K).", "A 0+5"},
        LayoutRow{"ibm", "78 K VALUE O#17. 01 A PIC X(K).", "A 0+15"},
        LayoutRow{"ibm", "78 K VALUE H'1F'. 01 A PIC X(K).", "A 0+31"},
        LayoutRow{"ibm", "78 J VALUE 4. 78 K VALUE J. 01 A PIC X(K).", "A 0+4"},
        LayoutRow{"ibm", "78 K VALUE -6 / -1. 01 A PIC X(K).", "A 0+6"},
        LayoutRow{"ibm", "78 K VALUE ((7)). 01 A PIC X(K).", "A 0+7"},
        LayoutRow{"ibm", "78 K VALUE 2 +3. 01 A PIC X(K).", "A 0+5"},
        LayoutRow{"ibm", "78 K VALUES 5. 01 A PIC X(K).", "A 0+5"},
        LayoutRow{"ibm", "78 K 5. 01 A PIC X(K).", "A 0+5"},
        LayoutRow{"ibm", "01 K CONSTANT IS GLOBAL AS 5. 01 A PIC X(K).", "A 0+5"},
        LayoutRow{"ibm", "CONSTANT SECTION. 01 K CONSTANT 5. LINKAGE SECTION\n01 A PIC X(K).",
                  "A 0+5"},
        LayoutRow{"ibm", ">>DEFINE N AS 5\n01 K CONSTANT FROM N.\n01 A PIC X(K).", "A 0+5"},
        LayoutRow{"ibm", ">>DEFINE N AS 5\n01 R. 05 A PIC X OCCURS N.", "R 0+5, A 0+1*5"},
        LayoutRow{"ibm", "01 R. 05 A PIC X OCCURS 3 VALUES ARE 'A' 'B' FROM (1) TO (3).",
                  "R 0+3, A 0+1*3"}));

TEST(ImportPointers, AreAsLargeAsTold) {
  auto options = freeFormat("ibm");
  options.pointerSize = 8;
  EXPECT_EQ(
      test::placesOf(dictionaryOf(importOf(
          programOf("01 R. 05 A PIC X. 05 B POINTER SYNC. 05 C PROCEDURE-POINTER."), options))),
      "R 0+24, A 0+1, B 8+8, C 16+8");
}

TEST(ImportPointers, AreSmallWhereTold) {
  auto options = freeFormat("gnucobol");
  options.pointerSize = 4;
  EXPECT_EQ(
      test::placesOf(dictionaryOf(importOf(
          programOf("01 R. 05 A PIC X. 05 B POINTER SYNC. 05 C PROCEDURE-POINTER."), options))),
      "R 0+12, A 0+1, B 4+4, C 8+4");
}

// Tables that depend on items are told which, by their names from the record down.
class ImportDependingTest : public testing::TestWithParam<test::ImportRow> {};

TEST_P(ImportDependingTest, NamesTheItemOfTheRow) {
  const std::string dictionary = dictionaryOf(importOf(programOf(GetParam().source)));
  EXPECT_THAT(test::partsOf(dictionary, "odo=\"[^\"]*\""),
              testing::ElementsAre(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportDependingTest,
    testing::Values(
        test::ImportRow{"01 N PIC 9. 01 R. 05 A PIC X OCCURS 1 TO 2 DEPENDING ON N.", "odo='N'"},
        test::ImportRow{"01 R. 05 A PIC X OCCURS 1 TO 2 DEPENDING ON N. 01 N PIC 9.", "odo='N'"},
        test::ImportRow{"01 R. 05 G. 10 N PIC 9. 05 A PIC X OCCURS 1 TO 2 DEPENDING ON n.",
                        "odo='R.G.N'"},
        test::ImportRow{"01 N PIC 9. 01 R. 05 G. 10 N PIC 9. "
                        "05 A PIC X OCCURS 1 TO 2 DEPENDING ON N OF R.",
                        "odo='R.G.N'"},
        test::ImportRow{"01 R. 05 G. 10 G. 15 N PIC 9. 05 N PIC 9. 05 H. 10 N PIC 9. "
                        "05 A PIC X OCCURS 1 TO 2 DEPENDING ON N IN G.",
                        "odo='R.G.G.N'"},
        test::ImportRow{
            "01 Q. 05 N PIC 9. 01 R. 05 N PIC 9. 05 A PIC X OCCURS 1 TO 2 DEPENDING ON N.",
            "odo='R.N'"},
        test::ImportRow{
            "01 Q. 05 N PIC 9. 01 R. 05 N PIC 9. 05 A PIC X OCCURS 1 TO 2 DEPENDING ON N IN Q.",
            "odo='Q.N'"},
        test::ImportRow{
            "01 T TYPEDEF. 05 N PIC 9. 05 A PIC X OCCURS 1 TO 2 DEPENDING ON N. 01 R. 05 G TYPE T.",
            "odo='R.G.N'"}));

}  // namespace

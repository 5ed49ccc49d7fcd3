// Tests of what clauses make of an item in an imported dictionary: one behaviour a row.
#include <gmock/gmock.h>
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

// An entry "01 A CLAUSES." and the element that stands for it.
class ImportItemTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportItemTest, IsTheElementOfTheRow) {
  const std::string source = programOf(std::string("01 A ") + GetParam().source + ".");
  const std::string dictionary = dictionaryOf(importOf(source));
  EXPECT_THAT(test::partsOf(dictionary, "<[a-zA-Z]+ name=\"A\"[^>]*[^/>]"),
              testing::ElementsAre(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Pictures, ImportItemTest,
    testing::Values(
        ImportRow{"PIC X(5)", "<alphanumeric name='A' picture='X(5)' offset='0' length='5'"},
        ImportRow{"PICTURE IS A(3)", "<alphanumeric name='A' picture='A(3)' offset='0' length='3'"},
        ImportRow{"PIC S9(4) COMP-6",
                  "<numeric name='A' picture='S9(4)' usage='comp-3' sign='true' digits='4' "
                  "alignment='0' offset='0' length='3'"},
        ImportRow{"PIC 9(4) COMP-6",
                  "<numeric name='A' picture='9(4)' usage='comp-6' sign='false' digits='4' "
                  "alignment='0' offset='0' length='2'"},
        ImportRow{"PIC XXBXX", "<alphanumeric name='A' picture='XXBXX' offset='0' length='5'"},
        ImportRow{"PIC X(5) JUSTIFIED RIGHT",
                  "<alphanumeric name='A' picture='X(5)' justified='right' offset='0' length='5'"},
        ImportRow{"JUST PIC X",
                  "<alphanumeric name='A' picture='X' justified='right' offset='0' length='1'"},
        ImportRow{"pic x(5)", "<alphanumeric name='A' picture='x(5)' offset='0' length='5'"},
        ImportRow{"PIC N(5) USAGE NATIONAL",
                  "<national name='A' picture='N(5)' usage='unicode' offset='0' length='10'"},
        ImportRow{"PIC N(5)",
                  "<national name='A' picture='N(5)' usage='unicode' offset='0' length='10'"},
        ImportRow{"PIC N(5) DISPLAY",
                  "<national name='A' picture='N(5)' usage='display' offset='0' length='10'"},
        ImportRow{"PIC G(5) DISPLAY-1",
                  "<national name='A' picture='G(5)' usage='display' offset='0' length='10'"},
        ImportRow{"PIC 9(5) NATIONAL",
                  "<national name='A' picture='9(5)' usage='unicode' offset='0' length='10'"},
        ImportRow{"PIC ZZ9.99CR",
                  "<numericEdited name='A' picture='ZZ9.99CR' digits='5' alignment='2' offset='0' "
                  "length='8'"},
        ImportRow{"PIC Z9.Z9",
                  "<numericEdited name='A' picture='Z9.Z9' digits='4' alignment='2' offset='0' "
                  "length='5'"},
        ImportRow{"PIC Z(5) BLANK WHEN ZERO",
                  "<numericEdited name='A' picture='Z(5)' digits='5' alignment='0' "
                  "blankWhenZero='true' offset='0' length='5'"},
        ImportRow{"PIC 9(5)V99 BLANK WHEN ZERO",
                  "<numericEdited name='A' picture='9(5)V99' digits='7' alignment='2' "
                  "blankWhenZero='true' offset='0' length='7'"},
        ImportRow{"PIC +9(3).9(4)E+99",
                  "<numeric name='A' picture='+9(3).9(4)E+99' usage='externalFloat' sign='true' "
                  "digits='7' alignment='4' offset='0' length='13'"},
        ImportRow{"PIC U(5)", "<alphanumeric name='A' picture='U(5)' offset='0' length='20'"},
        ImportRow{"PIC U(5) USAGE UTF-8",
                  "<alphanumeric name='A' picture='U(5)' offset='0' length='20'"},
        ImportRow{"PIC U BYTE-LENGTH 10 USAGE UTF-8",
                  "<alphanumeric name='A' picture='U' offset='0' length='10'"},
        ImportRow{"VALUE 'abc' & \"de\"",
                  "<alphanumeric name='A' picture='X(5)' offset='0' length='5'"},
        ImportRow{"ANY LENGTH", "<alphanumeric name='A' picture='X' offset='0' length='1'"},
        ImportRow{"ANY LENGTH JUSTIFIED",
                  "<alphanumeric name='A' picture='X' justified='right' offset='0' length='1'"},
        ImportRow{"ANY NUMERIC",
                  "<numeric name='A' picture='9' usage='display' sign='false' digits='1' "
                  "alignment='0' offset='0' length='1'"},
        ImportRow{"PIC X IS SPECIAL-NAMES CRT STATUS",
                  "<alphanumeric name='A' picture='X' offset='0' length='1'"},
        ImportRow{"PIC \\\\\\9",
                  "<numericEdited name='A' picture='\\\\\\9' digits='3' alignment='0' offset='0' "
                  "length='4'"},
        ImportRow{"PIC X IS IDENTIFIED BY \"a\"",
                  "<alphanumeric name='A' picture='X' offset='0' length='1'"},
        ImportRow{"PIC 1(8)", "<alphanumeric name='A' picture='1(8)' offset='0' length='8'"}));

INSTANTIATE_TEST_SUITE_P(
    Usages, ImportItemTest,
    testing::Values(ImportRow{"PIC 9(4)",
                              "<numeric name='A' picture='9(4)' usage='display' sign='false' "
                              "digits='4' alignment='0' offset='0' length='4'"},
                    ImportRow{"PIC S9(5)V99 COMP-3",
                              "<numeric name='A' picture='S9(5)V99' usage='comp-3' sign='true' "
                              "digits='7' alignment='2' offset='0' length='4'"},
                    ImportRow{"PACKED-DECIMAL PIC S9(5)V99",
                              "<numeric name='A' picture='S9(5)V99' usage='comp-3' sign='true' "
                              "digits='7' alignment='2' offset='0' length='4'"},
                    ImportRow{"PIC 9(4) PACKED-DECIMAL WITH NO SIGN",
                              "<numeric name='A' picture='9(4)' usage='comp-6' sign='false' "
                              "digits='4' alignment='0' offset='0' length='2'"},
                    ImportRow{"PIC 9(4) USAGE IS COMPUTATIONAL",
                              "<numeric name='A' picture='9(4)' usage='comp' sign='false' "
                              "digits='4' alignment='0' offset='0' length='2'"},
                    ImportRow{"PIC 9(4) BINARY",
                              "<numeric name='A' picture='9(4)' usage='comp' sign='false' "
                              "digits='4' alignment='0' offset='0' length='2'"},
                    ImportRow{"PIC 9(5) COMP-4",
                              "<numeric name='A' picture='9(5)' usage='comp-4' sign='false' "
                              "digits='5' alignment='0' offset='0' length='4'"},
                    ImportRow{"PIC S9(10) COMPUTATIONAL-5",
                              "<numeric name='A' picture='S9(10)' usage='comp-5' sign='true' "
                              "digits='10' alignment='0' offset='0' length='8'"},
                    ImportRow{"PIC X(2) COMP-X",
                              "<numeric name='A' picture='X(2)' usage='comp-x' sign='false' "
                              "digits='5' alignment='0' offset='0' length='2'"},
                    ImportRow{"PIC 9(7) COMP-X",
                              "<numeric name='A' picture='9(7)' usage='comp-x' sign='false' "
                              "digits='7' alignment='0' offset='0' length='3'"},
                    ImportRow{"PIC 9(4) COMP-6",
                              "<numeric name='A' picture='9(4)' usage='comp-6' sign='false' "
                              "digits='4' alignment='0' offset='0' length='2'"},
                    ImportRow{"COMP-1",
                              "<numeric name='A' usage='comp-1' sign='true' offset='0' length='4'"},
                    ImportRow{"USAGE COMP-2",
                              "<numeric name='A' usage='comp-2' sign='true' offset='0' length='8'"},
                    ImportRow{"FLOAT-LONG",
                              "<numeric name='A' usage='comp-2' sign='true' offset='0' length='8'"},
                    ImportRow{"PIC S9(6) COMP-1",
                              "<numeric name='A' usage='comp-5' sign='true' digits='5' "
                              "alignment='0' offset='0' length='2'"},
                    ImportRow{"PIC 9 COMP-1",
                              "<numeric name='A' usage='comp-5' sign='false' digits='5' "
                              "alignment='0' offset='0' length='2'"},
                    ImportRow{"USAGE IS HANDLE OF FONT LARGE-FONT",
                              "<numeric name='A' usage='comp-5' sign='true' digits='10' "
                              "alignment='0' offset='0' length='4'"},
                    ImportRow{"HANDLE",
                              "<numeric name='A' usage='comp-5' sign='true' digits='10' "
                              "alignment='0' offset='0' length='4'"},
                    ImportRow{"BINARY-LONG",
                              "<numeric name='A' usage='comp-5' sign='true' digits='10' "
                              "alignment='0' offset='0' length='4'"},
                    ImportRow{"BINARY-CHAR UNSIGNED",
                              "<numeric name='A' usage='comp-5' sign='false' digits='3' "
                              "alignment='0' offset='0' length='1'"},
                    ImportRow{"UNSIGNED-INT",
                              "<numeric name='A' usage='comp-5' sign='false' digits='10' "
                              "alignment='0' offset='0' length='4'"},
                    ImportRow{"INDEX", "<index name='A' offset='0' length='4'"},
                    ImportRow{"POINTER", "<pointer name='A' offset='0' length='4'"},
                    ImportRow{"USAGE PROCEDURE-POINTER", "<pointer name='A' offset='0' length='8'"},
                    ImportRow{"FUNCTION-POINTER", "<pointer name='A' offset='0' length='4'"},
                    ImportRow{"OBJECT REFERENCE", "<cobolObject name='A' offset='0' length='4'"},
                    ImportRow{"USAGE IS OBJECT REFERENCE FACTORY OF ANY-CLASS ONLY",
                              "<cobolObject name='A' offset='0' length='4'"}));

INSTANTIATE_TEST_SUITE_P(
    Signs, ImportItemTest,
    testing::Values(ImportRow{"PIC S9(4)",
                              "<numeric name='A' picture='S9(4)' usage='display' sign='true' "
                              "digits='4' alignment='0' offset='0' length='4'"},
                    ImportRow{"PIC S9(4) SIGN LEADING",
                              "<numeric name='A' picture='S9(4)' usage='display' sign='li' "
                              "digits='4' alignment='0' offset='0' length='4'"},
                    ImportRow{"PIC S9(4) SIGN IS LEADING SEPARATE CHARACTER",
                              "<numeric name='A' picture='S9(4)' usage='display' sign='ls' "
                              "digits='4' alignment='0' offset='0' length='5'"},
                    ImportRow{"PIC S9(4) TRAILING",
                              "<numeric name='A' picture='S9(4)' usage='display' sign='ti' "
                              "digits='4' alignment='0' offset='0' length='4'"},
                    ImportRow{"TRAILING SEPARATE PIC S9(4)",
                              "<numeric name='A' picture='S9(4)' usage='display' sign='ts' "
                              "digits='4' alignment='0' offset='0' length='5'"},
                    ImportRow{"PIC 9(4) SIGN LEADING SEPARATE",
                              "<numeric name='A' picture='9(4)' usage='display' sign='false' "
                              "digits='4' alignment='0' offset='0' length='4'"}));

// VALUE clauses and others that dictionaries do not hold.
INSTANTIATE_TEST_SUITE_P(
    PassedOver, ImportItemTest,
    testing::Values(ImportRow{"VALUE 'USAGE COMP' PIC X(5)",
                              "<alphanumeric name='A' picture='X(5)' offset='0' length='5'"},
                    ImportRow{"PIC 9(4) VALUE ZERO COMP",
                              "<numeric name='A' picture='9(4)' usage='comp' sign='false' "
                              "digits='4' alignment='0' offset='0' length='2'"},
                    ImportRow{"PIC S9(4) VALUE IS -1",
                              "<numeric name='A' picture='S9(4)' usage='display' sign='true' "
                              "digits='4' alignment='0' offset='0' length='4'"},
                    ImportRow{"PIC X(4) VALUE ALL '*' & 'A'",
                              "<alphanumeric name='A' picture='X(4)' offset='0' length='4'"},
                    ImportRow{"PIC 99 VALUE 77",
                              "<numeric name='A' picture='99' usage='display' sign='false' "
                              "digits='2' alignment='0' offset='0' length='2'"},
                    ImportRow{"IS EXTERNAL AS 'X' PIC X",
                              "<alphanumeric name='A' picture='X' offset='0' length='1'"},
                    ImportRow{"GLOBAL PIC X VOLATILE THREAD-LOCAL",
                              "<alphanumeric name='A' picture='X' offset='0' length='1'"},
                    ImportRow{"PIC X ANY LENGTH",
                              "<alphanumeric name='A' picture='X' offset='0' length='1'"},
                    ImportRow{"PIC X(9) DYNAMIC LENGTH LIMIT IS 40",
                              "<alphanumeric name='A' picture='X(9)' offset='0' length='9'"},
                    ImportRow{"PIC X(6) DATE FORMAT YYXXXX",
                              "<alphanumeric name='A' picture='X(6)' offset='0' length='6'"},
                    ImportRow{"CONSTANT RECORD PIC X",
                              "<alphanumeric name='A' picture='X' offset='0' length='1'"}));

INSTANTIATE_TEST_SUITE_P(
    MorePassedOver, ImportItemTest,
    testing::Values(
        ImportRow{"PIC Z(5) BLANK ZEROS",
                  "<numericEdited name='A' picture='Z(5)' digits='5' alignment='0' "
                  "blankWhenZero='true' offset='0' length='5'"},
        ImportRow{"PIC Z(5) BLANK WHEN ZEROES",
                  "<numericEdited name='A' picture='Z(5)' digits='5' alignment='0' "
                  "blankWhenZero='true' offset='0' length='5'"},
        ImportRow{"EXTERNAL PIC X", "<alphanumeric name='A' picture='X' offset='0' length='1'"},
        ImportRow{"EXTERNAL BY X PIC XX",
                  "<alphanumeric name='A' picture='XX' offset='0' length='2'"},
        ImportRow{"PIC X(9) DYNAMIC LENGTH",
                  "<alphanumeric name='A' picture='X(9)' offset='0' length='9'"},
        ImportRow{"DYNAMIC LENGTH SHORT-TEXT LIMIT 40 PIC X(9)",
                  "<alphanumeric name='A' picture='X(9)' offset='0' length='9'"},
        ImportRow{"PIC X(9) DYNAMIC LENGTH SHORT-TEXT VALUE 'A'",
                  "<alphanumeric name='A' picture='X(9)' offset='0' length='9'"},
        ImportRow{"PIC X ALIGNED", "<alphanumeric name='A' picture='X' offset='0' length='1'"},
        ImportRow{"IS EXTERNAL-FORM PIC X",
                  "<alphanumeric name='A' picture='X' offset='0' length='1'"},
        ImportRow{"PROPERTY WITH NO SET PIC X",
                  "<alphanumeric name='A' picture='X' offset='0' length='1'"},
        ImportRow{"PIC X PROPERTY", "<alphanumeric name='A' picture='X' offset='0' length='1'"},
        ImportRow{"VALUE 'A' IS GLOBAL PIC XX",
                  "<alphanumeric name='A' picture='XX' offset='0' length='2'"},
        ImportRow{"PIC 9 VALUES ARE 1 5 FROM (1) TO (2)",
                  "<numeric name='A' picture='9' usage='display' sign='false' "
                  "digits='1' alignment='0' offset='0' length='1'"},
        ImportRow{"PIC N(2)/N(2)",
                  "<national name='A' picture='N(2)/N(2)' usage='unicode' offset='0' "
                  "length='10'"},
        ImportRow{"PIC G(5)",
                  "<national name='A' picture='G(5)' usage='display' offset='0' "
                  "length='10'"},
        ImportRow{"PIC ZZ9 NATIONAL",
                  "<national name='A' picture='ZZ9' usage='unicode' offset='0' "
                  "length='6'"},
        ImportRow{"PIC 9(4) COMP BLANK WHEN ZERO",
                  "<numeric name='A' picture='9(4)' usage='comp' sign='false' "
                  "digits='4' alignment='0' offset='0' length='2'"},
        ImportRow{"PIC X JUSTIFIED LEFT",
                  "<alphanumeric name='A' picture='X' offset='0' length='1'"},
        ImportRow{"PIC S9(4) COMP-3 SIGNED",
                  "<numeric name='A' picture='S9(4)' usage='comp-3' sign='true' "
                  "digits='4' alignment='0' offset='0' length='3'"},
        ImportRow{"PIC 9(4) COMP-3 NO SIGN",
                  "<numeric name='A' picture='9(4)' usage='comp-6' sign='false' "
                  "digits='4' alignment='0' offset='0' length='2'"},
        ImportRow{"POINTER TO T", "<pointer name='A' offset='0' length='4'"},
        ImportRow{"OBJECT REFERENCE VALUE NULL", "<cobolObject name='A' offset='0' length='4'"},
        ImportRow{"HANDLE OF WINDOW VALUE NULL",
                  "<numeric name='A' usage='comp-5' sign='true' digits='10' "
                  "alignment='0' offset='0' length='4'"},
        ImportRow{"PIC 9(4) COMP-4 COMP",
                  "<numeric name='A' picture='9(4)' usage='comp-4' sign='false' "
                  "digits='4' alignment='0' offset='0' length='2'"},
        ImportRow{"PIC 9(5) USAGE NATIONAL SIGN LEADING",
                  "<national name='A' picture='9(5)' usage='unicode' offset='0' "
                  "length='10'"}));

// Names that are words of clauses,
// too.
class ImportNameTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportNameTest, IsThatOfTheRow) {
  const std::string dictionary =
      dictionaryOf(importOf(programOf(std::string("01 R. 05 ") + GetParam().source + ".")));
  EXPECT_THAT(test::partsOf(dictionary,
                            "name=\"[^\"]*\" "
                            "(picture|offset|usage)"),
              testing::Contains(testing::HasSubstr(GetParam().expected)));
}

INSTANTIATE_TEST_SUITE_P(Rows, ImportNameTest,
                         testing::Values(ImportRow{"FILLER PIC X", "name='FILLER' picture"},
                                         ImportRow{"filler PIC X", "name='FILLER' picture"},
                                         ImportRow{"PIC X", "name='FILLER' picture"},
                                         ImportRow{"COMP-1", "name='FILLER' usage"},
                                         ImportRow{"TYPE PIC X", "name='TYPE' picture"},
                                         ImportRow{"DATE PIC X", "name='DATE' picture"},
                                         ImportRow{"BASED USAGE COMP-1", "name='BASED' usage"},
                                         ImportRow{"LINE PIC X", "name='LINE' picture"},
                                         ImportRow{"Straße PIC X", "name='Straße' picture"},
                                         ImportRow{"DATE COMP-1", "name='DATE' usage"},
                                         ImportRow{"DATE. 10 PIC X", "name='DATE' offset"},
                                         ImportRow{"DATE IS PIC X", "name='DATE' picture"},
                                         ImportRow{"DATE FORMAT YY PIC X", "name='FILLER' picture"},
                                         ImportRow{"IS PIC X", "name='FILLER' picture"},
                                         ImportRow{"BIT PIC X", "name='BIT' picture"},
                                         ImportRow{"OBJECT PIC X", "name='OBJECT' picture"},
                                         ImportRow{"OBJECT COMP-1", "name='OBJECT' usage"},
                                         ImportRow{"OBJECT REFERENCE", "name='FILLER' offset"},
                                         ImportRow{"8-BYTES PIC X", "name='8-BYTES' picture"}));

// What B has of the item or type that it is like: entries and its element.
class ImportLikeTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportLikeTest, IsTheElementOfTheRow) {
  const std::string dictionary = dictionaryOf(importOf(programOf(GetParam().source)));
  EXPECT_THAT(test::partsOf(dictionary, "<[a-zA-Z]+ name=\"B\"[^>]*[^/>]"),
              testing::ElementsAre(GetParam().expected));
}

// A numeric item B that is written out.
#define NUMBER(rest) "<numeric name='B' picture=" rest

INSTANTIATE_TEST_SUITE_P(
    Clauses, ImportLikeTest,
    testing::Values(
        ImportRow{"01 T TYPEDEF PIC X(3) JUST. 01 B TYPE T.",
                  "<alphanumeric name='B' picture='X(3)' justified='right' offset='0' length='3'"},
        ImportRow{"01 T TYPEDEF PIC X(3). 01 B TYPE T JUST.",
                  "<alphanumeric name='B' picture='X(3)' justified='right' offset='0' length='3'"},
        ImportRow{"01 T TYPEDEF PIC 9(3) BLANK ZERO. 01 B TYPE T.",
                  "<numericEdited name='B' picture='9(3)' digits='3' alignment='0' "
                  "blankWhenZero='true' offset='0' length='3'"},
        ImportRow{"01 T TYPEDEF PIC 9(3). 01 B TYPE T BLANK ZERO.",
                  "<numericEdited name='B' picture='9(3)' digits='3' alignment='0' "
                  "blankWhenZero='true' offset='0' length='3'"},
        ImportRow{"01 A PIC X(5). 01 B LIKE A PIC X(3).",
                  "<alphanumeric name='B' picture='X(3)' offset='0' length='3'"},
        ImportRow{"01 T TYPEDEF PIC S9(3). 01 B TYPE T SIGN LEADING SEPARATE.",
                  NUMBER("'S9(3)' usage='display' sign='ls' digits='3' alignment='0' offset='0' "
                         "length='4'")},
        ImportRow{"01 Q. 05 A PIC S9(3) LEADING SEPARATE. 01 B LIKE A.",
                  NUMBER("'S9(3)' usage='display' sign='ls' digits='3' alignment='0' offset='0' "
                         "length='4'")},
        ImportRow{"01 Q SIGN LEADING SEPARATE. 05 A PIC S9(3). 01 B LIKE A.",
                  NUMBER("'S9(3)' usage='display' sign='ls' digits='3' alignment='0' offset='0' "
                         "length='4'")},
        ImportRow{"01 Q SIGN LEADING SEPARATE. 05 A PIC S9(3) TRAILING. 01 B LIKE A.",
                  NUMBER("'S9(3)' usage='display' sign='ti' digits='3' alignment='0' offset='0' "
                         "length='3'")},
        ImportRow{"01 Q. 05 G. 10 A PIC 9(5). 01 B LIKE A.",
                  NUMBER("'9(5)' usage='display' sign='false' digits='5' alignment='0' offset='0' "
                         "length='5'")},
        ImportRow{"01 Q COMP. 05 A PIC 9(5) COMP-3. 01 B LIKE A.",
                  NUMBER("'9(5)' usage='comp-3' sign='false' digits='5' alignment='0' offset='0' "
                         "length='3'")},
        ImportRow{"01 T TYPEDEF PIC 9(4). 01 R COMP-3. 05 B USAGE COMP TYPE T.",
                  NUMBER("'9(4)' usage='comp' sign='false' digits='4' alignment='0' offset='0' "
                         "length='2'")},
        ImportRow{"01 R. 05 G. 10 A PIC X(3). 05 H. 10 A PIC X(5). 05 B LIKE A OF H.",
                  "<alphanumeric name='B' picture='X(5)' offset='8' length='5'"},
        ImportRow{"01 R. 05 G. 10 A PIC X(3). 05 H. 10 A PIC X(5). 05 B SAME AS A OF G OF R.",
                  "<alphanumeric name='B' picture='X(3)' offset='8' length='3'"}));

// Longer and shorter ones.
INSTANTIATE_TEST_SUITE_P(
    Lengths, ImportLikeTest,
    testing::Values(
        ImportRow{"01 A PIC A(3). 01 B LIKE A (2).",
                  "<alphanumeric name='B' picture='A(5)' offset='0' length='5'"},
        ImportRow{"01 A PIC N(3). 01 B LIKE A (2).",
                  "<national name='B' picture='N(5)' usage='unicode' offset='0' length='10'"},
        ImportRow{"01 A PIC 9(5). 01 B LIKE A (1).",
                  NUMBER("'9(6)' usage='display' sign='false' digits='6' alignment='0' offset='0' "
                         "length='6'")},
        ImportRow{"01 A PIC V99. 01 B LIKE A (1).",
                  NUMBER("'9(1)V9(2)' usage='display' sign='false' digits='3' alignment='2' "
                         "offset='0' length='3'")},
        ImportRow{"01 A PIC S9V99. 01 B LIKE A (-1).",
                  NUMBER("'SV9(2)' usage='display' sign='true' digits='2' alignment='2' offset='0' "
                         "length='2'")}));

// Condition names and their values.
class ImportConditionTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportConditionTest, HasTheElementsOfTheRow) {
  const std::string dictionary = dictionaryOf(importOf(programOf(std::string("78 K VALUE 7. "
                                                                             "01 ") +
                                                                 GetParam().source + ".")));
  std::string elements;
  for (const std::string& element : test::partsOf(dictionary,
                                                  "<[a-zA-Z]+(Condition|"
                                                  "Constant|Range)"
                                                  "[^>]*>")) {
    elements += element;
  }
  EXPECT_EQ(elements, GetParam().expected);
}
#define TEXTS(values) "<alphanumericCondition name='C'>" values
#define NUMBERS(values) "<numericCondition name='C'>" values

// Constants of another kind than K.
INSTANTIATE_TEST_SUITE_P(
    Constants, ImportConditionTest,
    testing::Values(
        ImportRow{"Z PIC X. 78 L VALUE 'AB' & 'C'. 01 A PIC X(3). 88 C VALUE L",
                  TEXTS("<alphanumericConstant value='ABC'/>")},
        ImportRow{"Z PIC X. 78 L VALUE SPACES. 01 A PIC X(3). 88 C VALUE L",
                  TEXTS("<alphanumericConstant value='SPACES'/>")},
        ImportRow{"Z PIC X. 78 L VALUE 1.5. 01 A PIC 9V9. 88 C VALUE L",
                  NUMBERS("<numericConstant value='1.5'/>")},
        ImportRow{"Z PIC X. 78 L VALUE 'AB'. 78 M VALUE L. 01 A PIC X(2). 88 C VALUE M",
                  TEXTS("<alphanumericConstant value='AB'/>")},
        ImportRow{"Z PIC X.\n>>DEFINE D AS 'AB'\n01 L CONSTANT FROM D. 01 A PIC X(2). 88 C VALUE L",
                  TEXTS("<alphanumericConstant value='AB'/>")},
        ImportRow{"Z PIC X.\n>>DEFINE D AS 15\n01 L CONSTANT FROM D. 01 A PIC 99. 88 C VALUE L",
                  NUMBERS("<numericConstant value='15'/>")}));

INSTANTIATE_TEST_SUITE_P(
    Words, ImportConditionTest,
    testing::Values(
        ImportRow{"A PIC X. 88 C VALUE ALL ZEROS", TEXTS("<alphanumericConstant value='ZEROS'/>")},
        ImportRow{"A PIC 99. 88 C VALUE X#1F", NUMBERS("<numericConstant value='31'/>")},
        ImportRow{"A PIC X. 88 C VALUES 'B' 'D' IN EBCDIC",
                  TEXTS("<alphanumericConstant value='B'/><alphanumericConstant value='D'/>")},
        ImportRow{"A PIC X. 88 C VALUE IS B'01000001'",
                  TEXTS("<alphanumericConstant value='B'01000001''/>")},
        ImportRow{"A PIC 9(4) COMP-5. 88 C VALUE H'1F'",
                  NUMBERS("<numericConstant value='H'1F''/>")},
        ImportRow{"T TYPEDEF PIC X. 88 B VALUE '1'. 01 U PIC X. 88 D VALUE '4'. 01 A TYPE T. "
                  "88 C VALUE '2'",
                  "<alphanumericCondition name='D'><alphanumericConstant value='4'/>"
                  "<alphanumericCondition name='B'><alphanumericConstant value='1'/>" TEXTS(
                      "<alphanumericConstant value='2'/>")}));

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportConditionTest,
    testing::Values(
        ImportRow{"A PIC X. 88 C VALUE "
                  "'B'",
                  TEXTS("<alphanumericConstant value='B'/>")},
        ImportRow{"A PIC X. 88 C VALUES "
                  "ARE 'B' 'C', \"D\"",
                  TEXTS("<alphanumericConstant value='B'/><alphanumericConstant "
                        "value='C'/><alphanumericConstant value='D'/>")},
        ImportRow{"A PIC X. 88 C VALUE "
                  "'B' OR 'C' THRU 'D' or 'F'",
                  TEXTS("<alphanumericConstant value='B'/><alphanumericRange from='C' to='D'/>"
                        "<alphanumericConstant value='F'/>")},
        ImportRow{"A PIC X. 88 C 'B' "
                  "THRU 'D'",
                  TEXTS("<alphanumericRange from='B' to='D'/>")},
        ImportRow{"A PIC X. 88 C VALUE "
                  "'B' THROUGH 'D' 'F'",
                  TEXTS("<alphanumericRange from='B' to='D'/><alphanumericConstant value='F'/>")},
        ImportRow{
            "A PIC X. 88 C VALUE "
            "SPACES LOW-VALUE",
            TEXTS(
                "<alphanumericConstant value='SPACES'/><alphanumericConstant value='LOW-VALUE'/>")},
        ImportRow{"A PIC X. 88 C VALUE "
                  "ALL 'ab'",
                  TEXTS("<alphanumericConstant value='ALL 'ab''/>")},
        ImportRow{"A PIC X. 88 C VALUE "
                  "X'C1'",
                  TEXTS("<alphanumericConstant value='X'C1''/>")},
        ImportRow{"A PIC N. 88 C VALUE "
                  "N'ä'",
                  TEXTS("<alphanumericConstant value='ä'/>")},
        ImportRow{"A PIC X. 88 C VALUE "
                  "'<&\"'",
                  TEXTS("<alphanumericConstant value='&lt;&amp;&quot;'/>")},
        ImportRow{"A PIC X. 88 C VALUE "
                  "'B' & 'C'",
                  TEXTS("<alphanumericConstant value='BC'/>")},
        ImportRow{"A PIC X. 88 C VALUE "
                  "''",
                  TEXTS("<alphanumericConstant value=''/>")},
        ImportRow{"A PIC X. 88 C VALUE "
                  "'Y' WHEN SET TO FALSE "
                  "IS 'N'",
                  TEXTS("<alphanumericConstant value='Y'/>")},
        ImportRow{"A PIC X. 88 C VALUE "
                  "'Y' FALSE 'N'",
                  TEXTS("<alphanumericConstant value='Y'/>")},
        ImportRow{"A PIC S9V9. 88 C "
                  "VALUE -1.5 THRU +2 3",
                  NUMBERS("<numericRange from='-1.5' to='+2'/><numericConstant value='3'/>")},
        ImportRow{"A PIC 9. 88 C VALUE "
                  "ZERO K",
                  NUMBERS("<numericConstant value='ZERO'/><numericConstant value='7'/>")},
        ImportRow{"A INDEX. 88 C VALUE 1", NUMBERS("<numericConstant value='1'/>")},
        ImportRow{"A. 88 C VALUE 'B'. 05 "
                  "B PIC X",
                  TEXTS("<alphanumericConstant value='B'/>")},
        ImportRow{"A. 05 B PIC X. 66 R "
                  "RENAMES B. 88 C VALUE "
                  "'B'",
                  TEXTS("<alphanumericConstant value='B'/>")}));

// Files, with what SELECT says of
// them.
class ImportFileTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportFileTest, IsTheElementOfTheRow) {
  const std::string source = std::string(
                                 "PROGRAM-ID. T. "
                                 "ENVIRONMENT DIVISION. "
                                 "INPUT-OUTPUT ") +
                             "SECTION. FILE-CONTROL. "
                             "SELECT " +
                             GetParam().source +
                             ". DATA DIVISION. FILE "
                             "SECTION. FD F. 01 R PIC X. "
                             "01 S PIC 99.";
  const std::string dictionary = dictionaryOf(importOf(source));
  EXPECT_THAT(test::partsOf(dictionary, "<fd[^>]*"), testing::ElementsAre(GetParam().expected));
  EXPECT_EQ(test::placesOf(dictionary), "R 0+1, S 0+2");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportFileTest,
    testing::Values(ImportRow{"F ASSIGN X", "<fd name='F'"},
                    ImportRow{"OPTIONAL F ASSIGN X "
                              "SEQUENTIAL",
                              "<fd name='F' organization='sequential'"},
                    ImportRow{"F ASSIGN X "
                              "ORGANIZATION IS "
                              "RECORD SEQUENTIAL",
                              "<fd name='F' organization='sequential'"},
                    ImportRow{"F ASSIGN X "
                              "ORGANIZATION INDEXED "
                              "ACCESS MODE IS "
                              "DYNAMIC RECORD KEY IS "
                              "K",
                              "<fd name='F' accessMode='dynamic' organization='indexed'"},
                    ImportRow{"F ASSIGN X RELATIVE "
                              "KEY IS K ORGANIZATION "
                              "IS RELATIVE ACCESS "
                              "RANDOM",
                              "<fd name='F' accessMode='random' organization='relative'"},
                    ImportRow{"F ASSIGN X RELATIVE "
                              "ACCESS MODE "
                              "SEQUENTIAL",
                              "<fd name='F' accessMode='sequential' organization='relative'"},
                    ImportRow{"F ASSIGN X ORGANISATION INDEXED",
                              "<fd name='F' organization='indexed'"},
                    ImportRow{"F ASSIGN TO LINE ADVANCING FILE X", "<fd name='F'"},
                    ImportRow{"F ASSIGN X RECORD DELIMITER IS Y", "<fd name='F'"},
                    ImportRow{"F ASSIGN X RELATIVE IS K", "<fd name='F'"},
                    ImportRow{"F ASSIGN X SELECT G INDEXED", "<fd name='F'"},
                    ImportRow{"F ASSIGN X LINE "
                              "SEQUENTIAL",
                              "<fd name='F' organization='lineSequential'"},
                    ImportRow{"F ASSIGN X "
                              "ORGANIZATION LINE "
                              "SEQUENTIAL FILE "
                              "STATUS IS S",
                              "<fd name='F' organization='lineSequential'"}));

}  // namespace

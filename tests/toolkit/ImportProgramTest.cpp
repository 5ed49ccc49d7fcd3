// Tests of the programs of a source, their entry points, and whole dictionaries.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "as/toolkit/Import.h"
#include "support/Imports.h"
#include "support/Toolkit.h"

namespace {

using as::toolkit::Imported;
using as::toolkit::ImportedProgram;
using test::dictionaryOf;
using test::freeFormat;
using test::importOf;
using test::ImportRow;

// "NAME[CONVENTION](ITEM HOW, ...)" of each entry point.
std::string entryPointsOf(const std::string& dictionary) {
  static const std::regex element(
      "<entryPoint name=\"([^\"]*)\"(?: callConvention=\"([^\"]*)\")?|"
      "<parameter dataItem=\"([^\"]*)\" byType=\"([^\"]*)\"");
  std::string text;
  for (std::sregex_iterator at(dictionary.begin(), dictionary.end(), element), end; at != end;
       ++at) {
    if ((*at)[1].matched) {
      text += (text.empty() ? "" : "; ") + (*at)[1].str();
      if ((*at)[2].matched) text += "[" + (*at)[2].str() + "]";
    } else {
      text += " " + (*at)[3].str() + "/" + (*at)[4].str();
    }
  }
  return text;
}

// What stands behind the linkage section with A, B, C and D.
class ImportEntryPointTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportEntryPointTest, AreThoseOfTheRow) {
  const std::string source =
      std::string(
          "IDENTIFICATION DIVISION. PROGRAM-ID. T. ENVIRONMENT DIVISION. "
          "CONFIGURATION SECTION. SPECIAL-NAMES. CALL-CONVENTION 8 IS FAST. "
          "DATA DIVISION. LINKAGE SECTION. 01 A PIC X. 01 B PIC X. 77 C PIC X. 01 D PIC X. "
          "PROCEDURE DIVISION") +
      GetParam().source;
  EXPECT_EQ(entryPointsOf(dictionaryOf(importOf(source))), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Headers, ImportEntryPointTest,
    testing::Values(
        ImportRow{".", "T"}, ImportRow{" USING A B C.", "T A/reference B/reference C/reference"},
        ImportRow{" USING a, b.", "T A/reference B/reference"},
        ImportRow{" USING BY VALUE A B BY REFERENCE C.", "T A/value B/value C/reference"},
        ImportRow{" USING VALUE A REFERENCE B.", "T A/value B/reference"},
        ImportRow{" USING BY REFERENCE OPTIONAL A B.", "T A/reference B/reference"},
        ImportRow{" USING BY VALUE UNSIGNED SIZE IS 4 A SIZE AUTO B.", "T A/value B/value"},
        ImportRow{" USING A RETURNING B.", "T A/reference B/returning"},
        ImportRow{" GIVING B.", "T B/returning"}, ImportRow{" CHAINING A.", "T A/reference"},
        ImportRow{" FAST USING A.", "T[8] A/reference"},
        ImportRow{" USING A RAISING EX.", "T A/reference"}));

// CICS hands it to a program whether that says so or not.
class ImportCommareaTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportCommareaTest, IsTheParameterOfAProgramWithoutOthers) {
  EXPECT_EQ(entryPointsOf(dictionaryOf(
                importOf("PROGRAM-ID. T. DATA DIVISION. " + std::string(GetParam().source)))),
            GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Sections, ImportCommareaTest,
    testing::Values(
        ImportRow{"LINKAGE SECTION. 01 A PIC X. 01 dfhcommarea. 05 B PIC X. PROCEDURE DIVISION.",
                  "T dfhcommarea/reference"},
        ImportRow{"LINKAGE SECTION. 01 DFHCOMMAREA PIC X. PROCEDURE DIVISION. P. ENTRY 'E'.",
                  "T DFHCOMMAREA/reference; E"},
        ImportRow{"LINKAGE SECTION. 01 A PIC X. 01 DFHCOMMAREA PIC X. PROCEDURE DIVISION USING A.",
                  "T A/reference"},
        ImportRow{"LINKAGE SECTION. 01 DFHCOMMAREA PIC X. "
                  "PROCEDURE DIVISION USING DFHEIBLK DFHCOMMAREA.",
                  "T DFHCOMMAREA/reference"},
        ImportRow{"WORKING-STORAGE SECTION. 01 DFHCOMMAREA PIC X. PROCEDURE DIVISION.", "T"}));

INSTANTIATE_TEST_SUITE_P(
    Statements, ImportEntryPointTest,
    testing::Values(
        ImportRow{". P. ENTRY 'E' USING A. GOBACK.", "T; E A/reference"},
        ImportRow{". P. ENTRY \"E\" USING BY VALUE A RETURNING B.", "T; E A/value B/returning"},
        ImportRow{". P. ENTRY 'E'. ENTRY 'F'.", "T; E; F"},
        ImportRow{". P. ENTRY FAST 'E' USING A.", "T; E[8] A/reference"},
        ImportRow{". P. IF A = B ENTRY 'E' USING A DISPLAY B END-IF.", "T; E A/reference"},
        ImportRow{". P. ENTRY 'E' USING A MOVE B TO C.", "T; E A/reference"},
        ImportRow{". P. SET X TO ENTRY 'E'.", "T"}, ImportRow{". P. DISPLAY 'ENTRY \"E\"'.", "T"},
        ImportRow{". P. ENTRY ''. ENTRY A.", "T"}, ImportRow{". P. PERFORM ENTRY-POINT.", "T"},
        ImportRow{".\n*> ENTRY 'E'.\nP. GOBACK.", "T"}, ImportRow{". P. ENTRY FOR GO TO 'E'.", "T"},
        ImportRow{". DECLARATIVES. S SECTION. USE AFTER ERROR PROCEDURE ON F. END DECLARATIVES. "
                  "P. ENTRY 'E'.",
                  "T; E"},
        ImportRow{". P. EXEC SQL SELECT 'ENTRY' END-EXEC. ENTRY 'E'.", "T; E"}));

// Sources, and "NAME" of each program with its places.
class ImportProgramsTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportProgramsTest, AreThoseOfTheRow) {
  const Imported imported = importOf(GetParam().source);
  std::string text;
  for (const ImportedProgram& program : imported.programs) {
    text += (text.empty() ? "" : "; ") + program.name + ": " + test::placesOf(program.dictionary);
  }
  EXPECT_EQ(text, GetParam().expected) << test::problemsOf(imported);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportProgramsTest,
    testing::Values(
        ImportRow{"ID DIVISION. PROGRAM-ID. A. DATA DIVISION. WORKING-STORAGE SECTION. 01 X PIC X.",
                  "A: X 0+1"},
        ImportRow{
            "PROGRAM-ID. A IS INITIAL PROGRAM. DATA DIVISION. LOCAL-STORAGE SECTION. 01 X PIC X.",
            "A: X 0+1"},
        ImportRow{"PROGRAM-ID. A. PROCEDURE DIVISION. GOBACK. END PROGRAM A. "
                  "IDENTIFICATION DIVISION. PROGRAM-ID. B. DATA DIVISION. WORKING-STORAGE SECTION. "
                  "01 X PIC X. END PROGRAM B.",
                  "A: ; B: X 0+1"},
        ImportRow{
            "PROGRAM-ID. A. DATA DIVISION. WORKING-STORAGE SECTION. 78 N VALUE 3. 01 X PIC X. "
            "PROCEDURE DIVISION. GOBACK. IDENTIFICATION DIVISION. PROGRAM-ID. B. "
            "DATA DIVISION. WORKING-STORAGE SECTION. 01 Y PIC X(N). PROCEDURE DIVISION. "
            "GOBACK. END PROGRAM B. END PROGRAM A.",
            "A: X 0+1; B: Y 0+3"},
        ImportRow{
            "PROGRAM-ID. A. DATA DIVISION. WORKING-STORAGE SECTION. 01 T TYPEDEF. 05 X PIC X. "
            "88 Y VALUE 'Y'. PROCEDURE DIVISION. GOBACK. PROGRAM-ID. B. DATA DIVISION. "
            "WORKING-STORAGE SECTION. 01 R TYPE T. END PROGRAM B. END PROGRAM A.",
            "A: ; B: R 0+1, X 0+1"},
        ImportRow{
            "PROGRAM-ID. A. DATA DIVISION. WORKING-STORAGE SECTION. 01 T TYPEDEF PIC X(3). "
            "PROCEDURE DIVISION. GOBACK. PROGRAM-ID. B. DATA DIVISION. WORKING-STORAGE SECTION. "
            "01 R T. END PROGRAM B. END PROGRAM A.",
            "A: ; B: R 0+3"},
        ImportRow{"FUNCTION-ID. F. DATA DIVISION. WORKING-STORAGE SECTION. 01 X PIC X. "
                  "PROCEDURE DIVISION. GOBACK. END FUNCTION F. PROGRAM-ID. A.",
                  "A: "},
        ImportRow{"PROGRAM-ID. A. DATA DIVISION. WORKING-STORAGE SECTION. 01 X PIC X. "
                  "IDENTIFICATION DIVISION. PROGRAM-ID. B.",
                  "A: X 0+1; B: "},
        ImportRow{"PROGRAM-ID. A. DATA DIVISION. WORKING-STORAGE SECTION. 01 X PIC X. "
                  "ID DIVISION. PROGRAM-ID. B.",
                  "A: X 0+1; B: "},
        ImportRow{"PROGRAM-ID. A. SPECIAL-NAMES. DECIMAL-POINT IS COMMA. END PROGRAM A. "
                  "PROGRAM-ID. B. DATA DIVISION. WORKING-STORAGE SECTION. 01 X PIC Z,ZZ9.99.",
                  "A: ; B: X 0+8"},
        ImportRow{"PROGRAM-ID. A. DATA DIVISION. WORKING-STORAGE SECTION. 78 N VALUE 3. "
                  "PROCEDURE DIVISION. GOBACK. END PROGRAM A. PROGRAM-ID. B. DATA DIVISION. "
                  "WORKING-STORAGE SECTION. 01 Y PIC X(N).",
                  "A: ; B: "},
        ImportRow{"PROGRAM-ID. A. SPECIAL-NAMES. DECIMAL-POINT IS COMMA. "
                  "PROGRAM-ID. B. SPECIAL-NAMES. DECIMAL-POINT IS COMMA. DATA DIVISION. "
                  "WORKING-STORAGE SECTION. 01 X PIC Z.ZZ9,99.",
                  "A: ; B: X 0+8"},
        ImportRow{"PROGRAM-ID. A. ENVIRONMENT DIVISION. LINKAGE SECTION. 01 X PIC X.", "A: X 0+1"},
        ImportRow{"PROGRAM-ID. A. ENVIRONMENT DIVISION. LOCAL-STORAGE SECTION. 01 X PIC X.",
                  "A: X 0+1"},
        ImportRow{"PROGRAM-ID. A. ENVIRONMENT DIVISION. FILE SECTION. FD F. 01 X PIC X.",
                  "A: X 0+1"},
        ImportRow{"PROGRAM-ID. A. BASED-STORAGE SECTION. 01 X PIC X.", "A: X 0+1"},
        ImportRow{
            "PROGRAM-ID. A. CONSTANT SECTION. 01 N CONSTANT 3. LINKAGE SECTION. 01 X PIC X(N).",
            "A: X 0+3"},
        ImportRow{"PROGRAM-ID. A. INPUT-OUTPUT SECTION. FILE-CONTROL. SELECT F ASSIGN G "
                  "DATA DIVISION. FILE SECTION. FD F. 01 X PIC X.",
                  "A: X 0+1"},
        ImportRow{"PROGRAM-ID. A. FILE SECTION. FD F. 01 X PIC X. FD F. 01 Y PIC XX.",
                  "A: X 0+1, Y 0+2"},
        ImportRow{"PROGRAM-ID A. DATA DIVISION. WORKING-STORAGE SECTION. 01 X PIC X.", "A: X 0+1"},
        ImportRow{"PROGRAM-ID. A DATA DIVISION. WORKING-STORAGE SECTION. 01 X PIC X.", "A: X 0+1"},
        ImportRow{"END PROGRAM A. PROGRAM-ID. B.", "B: "},
        ImportRow{"FUNCTION-ID. F. PROGRAM-ID. A.", "A: "},
        ImportRow{"ENUM-ID. E. END ENUM E. PROGRAM-ID. A.", "A: "},
        ImportRow{
            "CLASS-ID. C. METHOD-ID. M. END CLASS C. END METHOD M. END CLASS C. PROGRAM-ID. A.",
            "A: "},
        ImportRow{"INTERFACE-ID. I. END INTERFACE I. VALUETYPE-ID. V. PROGRAM-ID. A.", "A: "},
        ImportRow{"77 X PIC X.", "T: X 0+1"}, ImportRow{"SD F. 01 X PIC X.", "T: X 0+1"},
        ImportRow{"SELECT F ASSIGN G. SD F. 01 X PIC X.", "T: X 0+1"},
        ImportRow{"INPUT-OUTPUT SECTION. FILE-CONTROL. SELECT F ASSIGN G. FD F. 01 X PIC X.",
                  "T: X 0+1"},
        ImportRow{"ENVIRONMENT DIVISION. FILE-CONTROL. SELECT F ASSIGN G. FILE SECTION. "
                  "FD F. 01 X PIC X.",
                  "T: X 0+1"},
        ImportRow{"DATA DIVISION. WORKING-STORAGE SECTION. 01 X PIC X.", "T: X 0+1"},
        ImportRow{"01 X PIC X. 01 Y PIC XX.", "T: X 0+1, Y 0+2"},
        ImportRow{"05 X PIC X. 05 Y PIC XX.", "T: T 0+3, X 0+1, Y 1+2"},
        ImportRow{"10 X PIC X. 05 Y PIC XX. 01 Z PIC X.", "T: T 0+3, X 0+1, Y 1+2, Z 0+1"},
        ImportRow{"FD F. 01 X PIC X.", "T: X 0+1"},
        ImportRow{"LINKAGE SECTION. 01 X PIC X.", "T: X 0+1"}));

// What SPECIAL-NAMES says of currencies counts in contained programs, too, but for what theirs say.
INSTANTIATE_TEST_SUITE_P(
    Currencies, ImportProgramsTest,
    testing::Values(
        ImportRow{"PROGRAM-ID. A. SPECIAL-NAMES. CURRENCY 'EUR' PICTURE SYMBOL 'E'. "
                  "PROCEDURE DIVISION. PROGRAM-ID. B. PROCEDURE DIVISION. PROGRAM-ID. C. "
                  "LINKAGE SECTION. 01 X PIC EE9.",
                  "A: ; B: ; C: X 0+5"},
        ImportRow{"PROGRAM-ID. A. SPECIAL-NAMES. CURRENCY 'EUR' PICTURE SYMBOL 'E'. "
                  "PROCEDURE DIVISION. PROGRAM-ID. B. SPECIAL-NAMES. CURRENCY 'EURO' "
                  "PICTURE SYMBOL 'E' CURRENCY 'FR' PICTURE SYMBOL 'F'. "
                  "LINKAGE SECTION. 01 X PIC EE9. 01 Y PIC FF9.",
                  "A: ; B: X 0+6, Y 0+4"},
        ImportRow{"PROGRAM-ID. A. SPECIAL-NAMES. CURRENCY '#'. PROCEDURE DIVISION. "
                  "PROGRAM-ID. B. SPECIAL-NAMES. CURRENCY 'FR' PICTURE SYMBOL 'F'. "
                  "LINKAGE SECTION. 01 X PIC ##9. 01 Y PIC FF9.",
                  "A: ; B: X 0+3, Y 0+4"},
        ImportRow{"PROGRAM-ID. A. SPECIAL-NAMES. CURRENCY '#'. END PROGRAM A. "
                  "PROGRAM-ID. B. LINKAGE SECTION. 01 X PIC ##9.",
                  "A: ; B: "}));

TEST(ImportPrograms, HaveConventionsOfProgramsAround) {
  const Imported imported = importOf(
      "PROGRAM-ID. A. SPECIAL-NAMES. CALL-CONVENTION 3 IS C CALL-CONVENTION 8 IS D. "
      "PROCEDURE DIVISION. PROGRAM-ID. B. SPECIAL-NAMES. CALL-CONVENTION 4 IS D. "
      "PROCEDURE DIVISION C. P. ENTRY D 'E'.");
  ASSERT_EQ(imported.programs.size(), 2U);
  EXPECT_EQ(entryPointsOf(imported.programs[1].dictionary), "B[3]; E[4]");
}

// Words that end programs stand elsewhere, too.
INSTANTIATE_TEST_SUITE_P(
    Ends, ImportProgramsTest,
    testing::Values(
        ImportRow{"PROGRAM-ID. A. I-O-CONTROL. RERUN ON C EVERY END OF REEL OF F. "
                  "WORKING-STORAGE SECTION. 01 X PIC X.",
                  "A: X 0+1"},
        ImportRow{"PROGRAM-ID. A. COMMUNICATION SECTION. CD C FOR INPUT QUEUE IS X END KEY IS Y. "
                  "LINKAGE SECTION. 01 X PIC X.",
                  "A: X 0+1"},
        ImportRow{"PROGRAM-ID. A. FILE SECTION. FD F VALUE OF END IS 'X'. 01 X PIC X.", "A: X 0+1"},
        ImportRow{"PROGRAM-ID. A. ENVIRONMENT DIVISION. END PROGRAM A. "
                  "PROGRAM-ID. B. LINKAGE SECTION. 01 X PIC X.",
                  "A: ; B: X 0+1"}));

// A file whose entry has no period.
INSTANTIATE_TEST_SUITE_P(
    FilesWithoutPeriod, ImportProgramsTest,
    testing::Values(
        ImportRow{"FD F LABEL RECORDS STANDARD\n01 X PIC X. 01 Y PIC XX.", "T: X 0+1, Y 0+2"},
        ImportRow{"FD F\n01 X.\n05 Y PIC XX.", "T: X 0+2, Y 0+2"},
        ImportRow{"FD F 01 X PIC X.", "T: X 0+1"},
        ImportRow{"FD F\n01 FILLER PIC X.", "T: FILLER 0+1"},
        ImportRow{"FD F\n01 PIC X.", "T: FILLER 0+1"}, ImportRow{"FD F\n01 X COMP-1.", "T: X 0+4"},
        ImportRow{"FD F RECORD CONTAINS\n01 TO 80. 01 X PIC X.", "T: X 0+1"},
        ImportRow{"FD F RECORD CONTAINS\n01 CHARACTERS. 01 X PIC X.", "T: X 0+1"},
        ImportRow{"FD F BLOCK CONTAINS\n01 RECORDS VALUE OF G IS 'H'. 01 X PIC X.", "T: X 0+1"},
        ImportRow{"FD F LINAGE\n01 LINES. 01 X PIC X.", "T: X 0+1"}));

// Sources, and the values of the conditions in their last program.
class ImportPointTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportPointTest, CountsWhereItIsSaid) {
  const Imported imported = importOf(GetParam().source);
  ASSERT_FALSE(imported.programs.empty());
  EXPECT_THAT(
      test::partsOf(imported.programs.back().dictionary, "numericConstant value=\"[^\"]*\""),
      testing::ElementsAre(GetParam().expected))
      << test::problemsOf(imported);
}

INSTANTIATE_TEST_SUITE_P(
    Commas, ImportPointTest,
    testing::Values(
        ImportRow{"PROGRAM-ID. A. SPECIAL-NAMES. DECIMAL-POINT IS COMMA. LINKAGE SECTION. "
                  "01 X PIC 9V9. 88 Y VALUE 1,5.",
                  "numericConstant value='1.5'"},
        ImportRow{"PROGRAM-ID. A. SPECIAL-NAMES. DECIMAL-POINT IS COMMA. END PROGRAM A. "
                  "PROGRAM-ID. B. LINKAGE SECTION. 01 X PIC 9V9. 88 Y VALUE 1.5.",
                  "numericConstant value='1.5'"},
        ImportRow{"FUNCTION-ID. A. SPECIAL-NAMES. DECIMAL-POINT IS COMMA. END FUNCTION A. "
                  "PROGRAM-ID. B. LINKAGE SECTION. 01 X PIC 9V9. 88 Y VALUE 1.5.",
                  "numericConstant value='1.5'"},
        ImportRow{"CLASS-ID. A. SPECIAL-NAMES. DECIMAL-POINT IS COMMA. END CLASS A. "
                  "PROGRAM-ID. B. LINKAGE SECTION. 01 X PIC 9V9. 88 Y VALUE 1.5.",
                  "numericConstant value='1.5'"},
        ImportRow{"PROGRAM-ID. A. SPECIAL-NAMES. DECIMAL-POINT IS COMMA. PROCEDURE DIVISION. "
                  "PROGRAM-ID. B. LINKAGE SECTION. 01 X PIC 9V9. 88 Y VALUE 1,5.",
                  "numericConstant value='1.5'"},
        ImportRow{"PROGRAM-ID. A. PROCEDURE DIVISION. PROGRAM-ID. B. SPECIAL-NAMES. "
                  "DECIMAL-POINT IS COMMA. END PROGRAM B. END PROGRAM A. "
                  "PROGRAM-ID. C. LINKAGE SECTION. 01 X PIC 9V9. 88 Y VALUE 1.5.",
                  "numericConstant value='1.5'"},
        ImportRow{"PROGRAM-ID. A. SPECIAL-NAMES. DECIMAL-POINT IS COMMA. PROCEDURE DIVISION. "
                  "PROGRAM-ID. B. END PROGRAM B. PROGRAM-ID. C. LINKAGE SECTION. "
                  "01 X PIC 9V9. 88 Y VALUE 1,5.",
                  "numericConstant value='1.5'"}));

// What SPECIAL-NAMES says of pictures: a paragraph with entries behind it.
class ImportSymbolTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportSymbolTest, CountsInPictures) {
  const std::string source = std::string("PROGRAM-ID. T. SPECIAL-NAMES. ") + GetParam().source;
  EXPECT_EQ(test::placesOf(dictionaryOf(importOf(source))), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportSymbolTest,
    testing::Values(
        ImportRow{"CURRENCY SIGN IS '#'. WORKING-STORAGE SECTION. 01 A PIC ##9.", "A 0+3"},
        ImportRow{"CURRENCY '#'. WORKING-STORAGE SECTION. 01 A PIC ##9.", "A 0+3"},
        ImportRow{"CURRENCY 'EUR' PICTURE SYMBOL 'E'. WORKING-STORAGE SECTION. 01 A PIC EE9.",
                  "A 0+5"},
        ImportRow{"CURRENCY 'EUR' WITH PIC SYMBOL 'E'. WORKING-STORAGE SECTION. 01 A PIC EE9.",
                  "A 0+5"},
        ImportRow{"CURRENCY '#' CURRENCY 'EUR' PICTURE SYMBOL 'E'. WORKING-STORAGE SECTION. "
                  "01 A PIC ##9. 01 B PIC EE9.",
                  "A 0+3, B 0+5"},
        ImportRow{"CURRENCY 'EUR' PICTURE SYMBOL E. WORKING-STORAGE SECTION. 01 A PIC $$9.",
                  "A 0+3"},
        ImportRow{"CURRENCY 'EUR'. WORKING-STORAGE SECTION. 01 A PIC $$9.", "A 0+3"},
        ImportRow{"CURRENCY SIGN IS CUR. WORKING-STORAGE SECTION. 01 A PIC $$9.", "A 0+3"},
        ImportRow{"DECIMAL-POINT IS PERIOD. WORKING-STORAGE SECTION. 01 A PIC Z,ZZ9.99.",
                  "A 0+8"}));

// Copybooks are called like their files.
class ImportStemTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportStemTest, IsTheNameOfTheProgram) {
  const Imported imported =
      as::toolkit::importCobol("01 A PIC X.", GetParam().source, nullptr, freeFormat());
  ASSERT_EQ(imported.programs.size(), 1U);
  EXPECT_EQ(imported.programs.front().name, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, ImportStemTest,
                         testing::Values(ImportRow{"A.cpy", "A"}, ImportRow{"lib\\a_b", "a_b"},
                                         ImportRow{"a b.c.cpy", "a-b-c"}, ImportRow{".cpy", "-cpy"},
                                         ImportRow{"lib/", "COPYBOOK"},
                                         ImportRow{"stra\xC3\x9F"
                                                   "e.cpy",
                                                   "stra\xC3\x9F"
                                                   "e"}));

TEST(ImportPrograms, AreNoneOfAnEmptyCopybook) {
  auto options = freeFormat();
  options.isCopybook = true;
  const Imported imported = as::toolkit::importCobol("", "T.cpy", nullptr, options);
  EXPECT_TRUE(imported.programs.empty());
  EXPECT_EQ(test::findingsOf(imported), "0:0 no-program");
}

TEST(ImportPrograms, TellTheCodePageThatWasTold) {
  auto options = freeFormat();
  options.encoding = "ISO-8859-1";
  EXPECT_THAT(dictionaryOf(importOf("PROGRAM-ID. T.", options)),
              testing::HasSubstr("name=\"codePage\" value=\"ISO-8859-1\""));
}

// Whoever nests deeper forgot to end programs: the names of the first ones are not those of the
// last ones.
TEST(ImportPrograms, HaveNamesOfTheProgramsAroundThem) {
  const auto nested = [](int count) {
    std::string source =
        "PROGRAM-ID. A. DATA DIVISION. WORKING-STORAGE SECTION. 78 N VALUE 3.\n"
        "PROCEDURE DIVISION. GOBACK.\n";
    for (int i = 1; i < count; ++i) source += "PROGRAM-ID. B. PROCEDURE DIVISION. GOBACK.\n";
    return source + "PROGRAM-ID. C. DATA DIVISION. WORKING-STORAGE SECTION. 01 X PIC X(N).";
  };
  EXPECT_FALSE(importOf(nested(50)).programs.back().isRefused());
  EXPECT_TRUE(importOf(nested(51)).programs.back().isRefused());
}

TEST(ImportPrograms, AreNamedByLiteralsToo) {
  const Imported imported = importOf("PROGRAM-ID. \"a b\" AS \"c&d\". PROCEDURE DIVISION.");
  ASSERT_EQ(imported.programs.size(), 1U);
  EXPECT_EQ(imported.programs.front().name, "a b");
  EXPECT_EQ(entryPointsOf(imported.programs.front().dictionary), "c&amp;d");
}

TEST(ImportPrograms, AreCalledAsTheirDictionariesCallThem) {
  const Imported imported = importOf("PROGRAM-ID. \"a\x01\xC3\xA4\".");
  ASSERT_EQ(imported.programs.size(), 1U);
  const std::string name = "a\xEF\xBF\xBD\xC3\xA4";
  EXPECT_EQ(imported.programs.front().name, name);
  EXPECT_THAT(imported.programs.front().dictionary, testing::HasSubstr("name=\"" + name + "\""));
}

TEST(ImportPrograms, HaveCopybooksWhereTold) {
  auto options = freeFormat();
  options.isCopybook = true;
  const Imported imported =
      as::toolkit::importCobol("01 A PIC X.", "lib/my.rec.cpy", nullptr, options);
  ASSERT_EQ(imported.programs.size(), 1U);
  EXPECT_EQ(imported.programs.front().name, "my-rec");
  EXPECT_EQ(imported.programs.front().items, 1U);
}

TEST(ImportPrograms, HavePicturesOfTheirDecimalPointAndCurrency) {
  const std::string source =
      "PROGRAM-ID. T. ENVIRONMENT DIVISION. CONFIGURATION SECTION. SPECIAL-NAMES. "
      "DECIMAL-POINT IS COMMA CURRENCY SIGN IS 'EUR' WITH PICTURE SYMBOL 'E'. "
      "DATA DIVISION. WORKING-STORAGE SECTION. 01 A PIC EEE.EE9,99. 01 B PIC 9(4). "
      "88 C VALUE 1,5.";
  const std::string dictionary = dictionaryOf(importOf(source));
  EXPECT_EQ(test::placesOf(dictionary), "A 0+12, B 0+4");
  EXPECT_THAT(dictionary, testing::HasSubstr("digits=\"7\" alignment=\"2\""));
  EXPECT_THAT(dictionary, testing::HasSubstr("<numericConstant value=\"1.5\"/>"));
}

TEST(ImportPrograms, TellTheLinesOfTheFilesThatTheirEntriesStandIn) {
  test::ListedCopybooks copybooks(test::ListedCopybooks::Texts{{"C", "\n\n05 A PIC X."}});
  const Imported imported = as::toolkit::importCobol(test::programOf("01 R.\nCOPY C.\n05 B PIC X."),
                                                     "T.cbl", &copybooks, freeFormat());
  EXPECT_THAT(
      dictionaryOf(imported),
      testing::AllOf(
          testing::HasSubstr("name=\"R\" offset=\"0\" length=\"2\" line=\"5\""),
          testing::HasSubstr("name=\"A\" picture=\"X\" offset=\"0\" length=\"1\" line=\"3\""),
          testing::HasSubstr("name=\"B\" picture=\"X\" offset=\"1\" length=\"1\" line=\"7\"")));
}

TEST(ImportPrograms, HaveTheOptionsForProperties) {
  EXPECT_THAT(
      test::partsOf(dictionaryOf(importOf("PROGRAM-ID. T.", freeFormat("natural"))),
                    "name=\"[^\"]*\" value=\"[^\"]*\""),
      testing::ElementsAre("name='source' value='T.cbl'", "name='sourceFormat' value='free'",
                           "name='dialect' value='natural'", "name='platform' value='64-bit'",
                           "name='binarySizes' value='2-4-8'",
                           "name='syncBoundary' value='size of the item, 8 at most'",
                           "name='pointerSize' value='8'"));
}

// The dictionaries of the examples were written for this dialect.
class ImportExampleTest : public test::ToolkitTest,
                          public testing::WithParamInterface<const char*> {
 protected:
  static std::string contentOf(const std::string& file) {
    const std::ifstream stream(file);
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
  }

  // What the model says of a dictionary but for its properties.
  static nlohmann::json answersOf(nlohmann::json model) {
    model.erase("properties");
    return model;
  }
};

TEST_P(ImportExampleTest, SaysWhatItsDictionarySays) {
  const std::string base = std::string(AS_EXAMPLES_DIR "/") + GetParam();
  as::toolkit::ImportOptions options;
  options.dialect = "natural";
  const Imported imported =
      as::toolkit::importCobol(contentOf(base + ".cbl"), base + ".cbl", nullptr, options);
  for (const as::toolkit::ImportFinding& finding : imported.findings) {
    EXPECT_THAT(finding.rule, testing::AnyOf("dialect-decides", "slack-place")) << textOf(finding);
  }
  write("imported.xml", dictionaryOf(imported));
  EXPECT_EQ(answersOf(jsonOfFile("imported.xml")), answersOf(jsonOfFile(base + ".xml")));
}

INSTANTIATE_TEST_SUITE_P(Programs, ImportExampleTest,
                         testing::Values("DEPINT01", "MOTPREM", "WHSLOTS", "PAYSLIP"));

// Whatever the source, what comes out is a dictionary.
class ImportValidityTest : public test::ToolkitTest,
                           public testing::WithParamInterface<const char*> {};

TEST_P(ImportValidityTest, IsADictionary) {
  write("T.xml", dictionaryOf(importOf(GetParam())));
  EXPECT_NE(reader().readDictionary("T.xml"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportValidityTest,
    testing::Values(
        "PROGRAM-ID. T.", "PROGRAM-ID. '<&>'.",
        "01 A PIC X. 88 B VALUE '\x01\x1B' '\xEF\xBF\xBF' '\t'.",
        "01 T TYPEDEF. 05 A PIC 9. 05 B PIC X OCCURS 1 TO 3 DEPENDING ON A. 66 C RENAMES A.\n"
        "01 R TYPE T. 88 D VALUE 'A' THRU 'B' 'C'. 05 E PIC ZZ9 BLANK ZERO. 05 F INDEX. "
        "05 G OBJECT REFERENCE. 05 H POINTER. 05 I PIC N. 05 J PIC S9 SIGN LEADING SEPARATE. "
        "05 K REDEFINES J PIC X. 05 L COMP-1 SYNC. 66 M RENAMES E THRU F.",
        "FD F. 01 A PIC X. FD G. SD H. 01 B PIC X. LINKAGE SECTION. 01 C PIC X JUST."));

// How the places of items came about.
class ImportExplanationTest : public testing::TestWithParam<ImportRow> {};

TEST_P(ImportExplanationTest, IsThatOfTheRow) {
  const Imported imported =
      importOf(test::programOf("01 R USAGE COMP.\n05 A PIC X(3) DISPLAY.\n05 G OCCURS 1 TO 3\n"
                               "DEPENDING ON N.\n10 B PIC S9(7)V99 SYNC.\n10 C PIC X DISPLAY.\n"
                               "05 D REDEFINES A.\n10 E PIC S9(3) DISPLAY LEADING SEPARATE.\n"
                               "66 F RENAMES A THRU G.\n77 N PIC 9.\n01 Q.\n05 A PIC X."));
  ASSERT_EQ(imported.programs.size(), 1U);
  std::string text;
  for (const auto& item : explainItem(imported.programs.front(), GetParam().source)) {
    text += textOf(item) + "\n";
  }
  EXPECT_EQ(text, GetParam().expected) << test::problemsOf(imported);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportExplanationTest,
    testing::Values(
        ImportRow{"R.A",
                  "R.A: bytes 0 to 2\n"
                  "  T.cbl:6: PICTURE X(3): 3 characters\n"
                  "  T.cbl:6: USAGE DISPLAY\n"
                  "  T.cbl:6: 3 bytes as DISPLAY in dialect ibm\n"
                  "  T.cbl:5: first in R, which starts at offset 0\n"
                  "  T.cbl:6: offset 0\n"},
        ImportRow{"b",
                  "R.G.B: bytes 4 to 7\n"
                  "  T.cbl:9: PICTURE S9(7)V99: 9 digits, 2 behind the point, signed\n"
                  "  T.cbl:5: USAGE COMP of the group R\n"
                  "  T.cbl:9: 4 bytes as COMP in dialect ibm\n"
                  "  T.cbl:7: first in G, which starts at offset 4\n"
                  "  T.cbl:9: SYNCHRONIZED: stands on a multiple of 4 without slack\n"
                  "  T.cbl:9: offset 4\n"},
        ImportRow{"G",
                  "R.G: bytes 4 to 11\n"
                  "  T.cbl:7: a group: its members take 5 bytes\n"
                  "  T.cbl:7: 3 bytes of slack behind the last member bring each occurrence to "
                  "a multiple of 4\n"
                  "  T.cbl:6: follows A, which ends at offset 3\n"
                  "  T.cbl:7: 1 byte of slack before it bring it to a multiple of 4\n"
                  "  T.cbl:7: offset 4\n"
                  "  T.cbl:7: occurs 1 to 3 times: 24 bytes, depending on N\n"},
        ImportRow{"E",
                  "R.D.E: bytes 0 to 3\n"
                  "  T.cbl:12: PICTURE S9(3): 3 digits, signed\n"
                  "  T.cbl:12: USAGE DISPLAY\n"
                  "  T.cbl:12: SIGN SEPARATE: a character of its own\n"
                  "  T.cbl:12: 4 bytes as DISPLAY in dialect ibm\n"
                  "  T.cbl:11: first in D, which starts at offset 0\n"
                  "  T.cbl:12: offset 0\n"},
        ImportRow{"R.F",
                  "R.F: bytes 0 to 27\n"
                  "  T.cbl:6: starts where A starts, at offset 0\n"
                  "  T.cbl:7: ends where G ends: 28 bytes\n"},
        ImportRow{"NOWHERE", ""}));

// Entries from line 5 on, an item, and how its place came about.
struct ReasonRow {
  const char* entries;
  const char* item;
  const char* explanation;
};

void PrintTo(const ReasonRow& row, std::ostream* out) { *out << row.entries; }

class ImportReasonTest : public testing::TestWithParam<ReasonRow> {};

TEST_P(ImportReasonTest, IsThatOfTheRow) {
  const Imported imported = importOf(test::programOf(GetParam().entries));
  ASSERT_EQ(imported.programs.size(), 1U);
  std::string text;
  for (const auto& item : explainItem(imported.programs.front(), GetParam().item)) {
    text += textOf(item) + "\n";
  }
  EXPECT_EQ(text, GetParam().explanation) << test::problemsOf(imported);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImportReasonTest,
    testing::Values(ReasonRow{"01 T TYPEDEF.\n05 A PIC X(2).\n01 R TYPE T.", "R.A",
                              "R.A: bytes 0 to 1\n"
                              "  T.cbl:6: described like T.A\n"
                              "  T.cbl:6: PICTURE X(2): 2 characters\n"
                              "  T.cbl:6: 2 bytes as DISPLAY in dialect ibm\n"
                              "  T.cbl:7: first in R, which starts at offset 0\n"
                              "  T.cbl:6: offset 0\n"},
                    ReasonRow{"01 A PIC X(2).\n01 B LIKE A.", "B",
                              "B: bytes 0 to 1\n"
                              "  T.cbl:5: described like A\n"
                              "  T.cbl:6: PICTURE X(2): 2 characters\n"
                              "  T.cbl:6: 2 bytes as DISPLAY in dialect ibm\n"
                              "  T.cbl:6: a record: starts at offset 0\n"
                              "  T.cbl:6: offset 0\n"},
                    ReasonRow{"01 A PIC 9(3)P(2).", "A",
                              "A: bytes 0 to 2\n"
                              "  T.cbl:5: PICTURE 9(3)P(2): 5 digits, 2 not stored, unsigned\n"
                              "  T.cbl:5: 3 bytes as DISPLAY in dialect ibm\n"
                              "  T.cbl:5: a record: starts at offset 0\n"
                              "  T.cbl:5: offset 0\n"},
                    ReasonRow{"01 R.\n05 A PIC 9(4) COMP SYNC.", "A",
                              "R.A: bytes 0 to 1\n"
                              "  T.cbl:6: PICTURE 9(4): 4 digits, unsigned\n"
                              "  T.cbl:6: USAGE COMP\n"
                              "  T.cbl:6: 2 bytes as COMP in dialect ibm\n"
                              "  T.cbl:5: first in R, which starts at offset 0\n"
                              "  T.cbl:6: SYNCHRONIZED: stands on a multiple of 2 without slack\n"
                              "  T.cbl:6: offset 0\n"},
                    ReasonRow{"01 A INDEX.", "a",
                              "A: bytes 0 to 3\n"
                              "  T.cbl:5: USAGE INDEX\n"
                              "  T.cbl:5: 4 bytes as INDEX in dialect ibm\n"
                              "  T.cbl:5: a record: starts at offset 0\n"
                              "  T.cbl:5: offset 0\n"},
                    ReasonRow{"01 A PIC +9.9E+99 DISPLAY.", "A",
                              "A: bytes 0 to 7\n"
                              "  T.cbl:5: PICTURE +9.9E+99: 2 digits, 1 behind the point, signed\n"
                              "  T.cbl:5: 8 bytes in dialect ibm\n"
                              "  T.cbl:5: a record: starts at offset 0\n"
                              "  T.cbl:5: offset 0\n"},
                    ReasonRow{"01 R SIGN TRAILING SEPARATE.\n05 A PIC S9.", "A",
                              "R.A: bytes 0 to 1\n"
                              "  T.cbl:6: PICTURE S9: 1 digit, signed\n"
                              "  T.cbl:5: SIGN SEPARATE: a character of its own\n"
                              "  T.cbl:6: 2 bytes as DISPLAY in dialect ibm\n"
                              "  T.cbl:5: first in R, which starts at offset 0\n"
                              "  T.cbl:6: offset 0\n"},
                    ReasonRow{"01 G.\n05 A PIC X.", "G",
                              "G: bytes 0 to 0\n"
                              "  T.cbl:5: a group: its members take 1 byte\n"
                              "  T.cbl:5: a record: starts at offset 0\n"
                              "  T.cbl:5: offset 0\n"},
                    ReasonRow{
                        "01 R.\n05 A PIC X(4).\n05 B REDEFINES A PIC X SYNC.\n05 C OCCURS 3 PIC X.",
                        "R.C",
                        "R.C: bytes 4 to 4\n"
                        "  T.cbl:8: PICTURE X: 1 character\n"
                        "  T.cbl:8: 1 byte as DISPLAY in dialect ibm\n"
                        "  T.cbl:6: follows A, which ends at offset 4\n"
                        "  T.cbl:8: offset 4\n"
                        "  T.cbl:8: occurs 3 times: 3 bytes\n"},
                    ReasonRow{"01 R.\n05 A PIC X(4).\n05 B REDEFINES A PIC X SYNC.", "R.B",
                              "R.B: bytes 0 to 0\n"
                              "  T.cbl:7: PICTURE X: 1 character\n"
                              "  T.cbl:7: 1 byte as DISPLAY in dialect ibm\n"
                              "  T.cbl:6: redefines A: starts where that starts\n"
                              "  T.cbl:7: offset 0\n"},
                    ReasonRow{"01 R.\n05 A PIC X.\n05 B PIC X.", "Q.B", ""},
                    ReasonRow{"01 A PIC Q.", "A", ""}));

TEST(ImportReasons, AreNoneWithoutAProgram) {
  EXPECT_TRUE(explainItem(ImportedProgram(), "A").empty());
  ImportedProgram program;
  program.dictionary = "<dictionary/>";
  EXPECT_TRUE(explainItem(program, "A").empty());
}

TEST(ImportReasons, TellOfItemsWithoutBytes) {
  as::toolkit::ItemExplanation explanation;
  explanation.item = "R.A";
  explanation.steps = {{{"T.cbl", 3, 0}, "offset 0"}};
  EXPECT_EQ(textOf(explanation), "R.A: no bytes\n  T.cbl:3: offset 0");
}

}  // namespace

// Tests of what the entries of a source may repeat and look at again: each use counts, and what is
// beyond the limit is told.
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "as/toolkit/Storage.h"
#include "toolkit/import/EntryBudget.h"
#include "toolkit/import/ProgramReader.h"
#include "toolkit/import/SourceReader.h"

namespace {

using as::toolkit::CobolProgram;
using as::toolkit::EntryBudget;
using as::toolkit::EntryProblems;
using as::toolkit::EntryRule;
using as::toolkit::ProgramReader;

using Programs = std::vector<std::unique_ptr<CobolProgram>>;

struct Read {
  Programs programs;
  std::size_t tooMuch = 0;  // Findings of that rule.
};

Read readWithin(const std::string& source, const EntryBudget::Most& most = {}) {
  as::toolkit::SourceMap map;
  as::toolkit::SourceFindings findings;
  as::toolkit::SourceOptions options;
  options.format = as::toolkit::SourceFormat::free;
  options.definitions = {{"OUTSIDE", "ABCD"}};
  as::toolkit::SourceReader words(source, "main", options, nullptr, map, findings);
  Read read;
  EntryProblems problems(
      [&read](EntryRule rule, const as::toolkit::SourcePlace&, const std::string&) {
        if (rule == EntryRule::tooMuch) ++read.tooMuch;
      });
  read.programs = ProgramReader(words, *as::toolkit::findDialect("ibm"),
                                ProgramReader::Form::automatic, "main", problems, most)
                      .read();
  return read;
}

struct Row {
  const char* name;
  const char* source;
  std::size_t EntryBudget::Most::*limit;
  std::size_t used;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class EntryBudgetTest : public testing::TestWithParam<Row> {};

TEST_P(EntryBudgetTest, IsUsedUpToItsLimit) {
  EntryBudget::Most most;
  most.*GetParam().limit = GetParam().used;
  EXPECT_EQ(readWithin(GetParam().source, most).tooMuch, 0U);
  most.*GetParam().limit = GetParam().used - 1;
  EXPECT_GT(readWithin(GetParam().source, most).tooMuch, 0U);
}

constexpr auto copies = &EntryBudget::Most::copies;
constexpr auto text = &EntryBudget::Most::text;
constexpr auto searches = &EntryBudget::Most::searches;

const Row rows[] = {
    {"Entries", "01 T TYPEDEF. 05 A PIC X. 05 B PIC X. 01 R TYPE T. 01 S TYPE T.", copies, 6},
    {"Items", "01 A PIC X. 01 B LIKE A. 01 C SAME AS A.", copies, 2},
    {"Conditions", "01 A PIC X. 88 C VALUE 1. 88 D VALUE 2. 01 B LIKE A.", copies, 5},
    {"ConditionsOfCopies", "01 A PIC X. 88 C VALUE 1. 01 B LIKE A. 88 D VALUE 2. 01 E LIKE B.",
     copies, 8},
    {"Values", "01 A PIC X. 88 C VALUE 1 2 3 THRU 4. 01 B LIKE A.", copies, 5},
    {"EntriesOfOtherPrograms",
     "PROGRAM-ID. P. DATA DIVISION. WORKING-STORAGE SECTION. 01 T TYPEDEF. 05 A PIC X. "
     "88 C VALUE 1. PROCEDURE DIVISION. PROGRAM-ID. Q. LINKAGE SECTION. 01 R TYPE T. "
     "END PROGRAM Q. PROGRAM-ID. S. LINKAGE SECTION. 01 R TYPE T.",
     copies, 8},
    {"Names", "01 ABC COMP-1. 01 B LIKE ABC.", text, 3},
    {"NamesOfMembers", "01 A. 05 ABC COMP-1. 01 B LIKE A.", text, 4},
    {"Pictures", "01 A PIC X(10). 01 B LIKE A.", text, 6},
    {"NamesOfConditions", "01 A PIC X. 88 CDE VALUE 12 34 THRU 56. 01 B LIKE A.", text, 11},
    {"Redefinitions", "01 A. 05 B COMP-1. 05 C REDEFINES B COMP-1. 01 D LIKE A.", text, 4},
    {"Tables", "01 A. 05 N PIC 9. 05 T COMP-1 OCCURS 1 TO 2 DEPENDING ON N OF A.", text, 3},
    {"CopiedTables", "01 A. 05 N PIC 9. 05 T COMP-1 OCCURS 1 TO 2 DEPENDING ON N. 01 B LIKE A.",
     text, 11},
    {"Constants", "78 C VALUE 'ABCD'. 01 A PIC X. 88 D VALUE C. 88 E VALUE C THRU C.", text, 12},
    {"ConstantsOfConstants", "78 C VALUE 'ABCD'. 78 D VALUE C. 01 A PIC X.", text, 4},
    {"Definitions", "01 C CONSTANT FROM OUTSIDE. 01 A PIC X.", text, 4},
    {"LengthsOfGroups", "01 R. 05 A PIC X. 78 C VALUE LENGTH OF R. 78 D VALUE LENGTH OF R.",
     searches, 4},
    {"QualifiedNames",
     "01 R. 05 G. 10 A PIC X. 05 G. 10 A PIC X. 05 B LIKE A OF G. 05 C LIKE A OF G.", searches, 2},
    {"QualifiedNamesInFurtherEntries",
     "01 R. 05 G. 10 A PIC X. 05 B LIKE A OF G. 05 G. 10 A PIC X. 05 C LIKE A OF G.", searches, 2},
    // The group, and what stands in it.
    {"QualifiedNamesInARareGroup",
     "01 R. 05 F. 10 A PIC X. 05 G. 10 A PIC X. 05 H. 10 A PIC X. 05 B LIKE A OF G.", searches, 2},
};
INSTANTIATE_TEST_SUITE_P(All, EntryBudgetTest, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(EntryBudget, LengthsOfItemsCostNoSearch) {
  EntryBudget::Most most;
  most.searches = 0;
  const Read read =
      readWithin("01 R USAGE COMP-3. 05 A PIC S9(5) OCCURS 3. 78 C VALUE LENGTH OF A.", most);
  EXPECT_EQ(read.tooMuch, 0U);
  ASSERT_EQ(read.programs.size(), 1U);
  ASSERT_EQ(read.programs.front()->constants.size(), 1U);
  EXPECT_EQ(read.programs.front()->constants.begin()->second.number, 9);
}

TEST(EntryBudget, IsWhatAnImportKeepsTo) {
  const EntryBudget::Most most;
  EXPECT_EQ(most.copies, as::toolkit::importLimits::repeatedEntries);
  EXPECT_EQ(most.text, as::toolkit::importLimits::repeatedText);
  EXPECT_EQ(most.searches, as::toolkit::importLimits::openSearches);
}

TEST(EntryBudget, RefusesTheProgramThatIsBeyond) {
  EntryBudget::Most most;
  most.copies = 2;
  const std::string items = "DATA DIVISION. LINKAGE SECTION. 01 A PIC X. 01 B LIKE A. ";
  const Read read = readWithin("PROGRAM-ID. P. " + items + "END PROGRAM P. PROGRAM-ID. Q. " +
                                   items + "END PROGRAM Q. PROGRAM-ID. R. " + items,
                               most);
  ASSERT_EQ(read.programs.size(), 3U);
  EXPECT_FALSE(read.programs[0]->isRefused);
  EXPECT_FALSE(read.programs[1]->isRefused);
  EXPECT_TRUE(read.programs[2]->isRefused);
}

// Which of several is meant: the last one in front of LIKE, whatever stands around it.
struct LikeRow {
  const char* source;
  int length;
};

void PrintTo(const LikeRow& row, std::ostream* out) { *out << row.source; }

class OpenRecordTest : public testing::TestWithParam<LikeRow> {};

TEST_P(OpenRecordTest, HasTheItemThatIsMeant) {
  const Read read = readWithin(std::string("01 R. ") + GetParam().source);
  ASSERT_EQ(read.programs.size(), 1U);
  EXPECT_FALSE(read.programs.front()->isRefused);
  EXPECT_EQ(read.programs.front()->entries.back().length, GetParam().length);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OpenRecordTest,
    testing::Values(
        LikeRow{"05 A PIC X. 05 A PIC XX. 05 B LIKE A.", 2},
        LikeRow{"05 G. 10 A PIC X. 05 H. 10 A PIC XX. 05 A PIC X(3). 05 B LIKE A OF G.", 1},
        LikeRow{"05 G. 10 A PIC X. 05 H. 10 A PIC XX. 05 A PIC X(3). 05 B LIKE A OF H.", 2},
        LikeRow{"05 G. 10 A PIC X. 05 G. 10 A PIC XX. 05 A PIC X(3). 05 B LIKE A OF G.", 2},
        LikeRow{"05 G. 10 A PIC X. 10 A PIC XX. 05 A PIC X(3). 05 B LIKE A IN G IN R.", 2},
        LikeRow{"05 G. 10 A PIC X. 10 G. 15 A PIC XX. 05 A PIC X(3). 05 A PIC X(4). "
                "05 B LIKE A OF G OF G.",
                2},
        LikeRow{"05 G. 10 A PIC X. 10 B LIKE A OF G. 10 A PIC XX. 10 C LIKE A OF G.", 2},
        LikeRow{"05 G. 10 A PIC X. 05 B LIKE A OF G. 05 A PIC X(3). 05 A PIC X(4). 05 G. "
                "10 A PIC XX. 05 A PIC X(5). 05 C LIKE A OF G.",
                2},
        LikeRow{"05 T. 10 A PIC X. 10 H. 15 A PIC XX. 05 U LIKE T. 05 A PIC X(3). "
                "05 B LIKE A OF H OF U.",
                2}));

// A record that is laid out while it is open is laid out again, its items not made again.
TEST(OpenRecords, ImplyPicturesOnce) {
  std::string source = "01 R. ";
  for (int i = 0; i < 20; i++) source += "05 A VALUE 'AB'. 78 C VALUE LENGTH OF R. ";
  const Read read = readWithin(source);
  ASSERT_EQ(read.programs.size(), 1U);
  EXPECT_EQ(read.programs.front()->pictures.size(), 20U);
}

// What SPECIAL-NAMES says, contained programs look for where it is said.
TEST(ContainedPrograms, HoldNothingOfThoseAround) {
  const Read read = readWithin(
      "PROGRAM-ID. P. SPECIAL-NAMES. CURRENCY '#' CURRENCY '#' CALL-CONVENTION 3 IS C. "
      "PROCEDURE DIVISION. PROGRAM-ID. Q. LINKAGE SECTION. 01 A PIC ##9.");
  ASSERT_EQ(read.programs.size(), 2U);
  EXPECT_EQ(read.programs[0]->currencies.size(), 1U);
  EXPECT_TRUE(read.programs[1]->currencies.empty());
  EXPECT_TRUE(read.programs[1]->conventions.empty());
  EXPECT_FALSE(read.programs[1]->isRefused);
}

}  // namespace

// Tests of sources that are no ordinary ones: whatever they hold, an import ends, with messages
// that have places, and what it takes is bounded.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "as/toolkit/Import.h"
#include "support/Imports.h"

namespace {

using as::toolkit::Imported;
using as::toolkit::ImportFinding;
using as::toolkit::Severity;

std::string contentOf(const std::filesystem::path& file) {
  const std::ifstream stream(file);
  std::ostringstream content;
  content << stream.rdbuf();
  return content.str();
}

std::vector<std::filesystem::path> examples() {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(AS_EXAMPLES_DIR)) {
    if (entry.path().extension() == ".cbl") files.push_back(entry.path());
  }
  return files;
}

// Every program has a dictionary or an error, and every finding a place in the source.
void expectToBeTold(const Imported& imported) {
  for (const ImportFinding& finding : imported.findings) {
    ASSERT_EQ(finding.location.file, "T.cbl") << finding.problem;
    ASSERT_FALSE(finding.problem.empty());
  }
  bool isRefused = imported.programs.empty();
  for (const auto& program : imported.programs) isRefused = isRefused || program.isRefused();
  const bool isTold = !imported.findings.empty();
  ASSERT_TRUE(isTold || !isRefused);
}

// As many truncations as the time of a test allows: a prime number of bytes apart, so that they end
// in all columns. The variable AS_TRUNCATION_STEP of the environment says otherwise; 1 tries all.
std::size_t truncationStep() {
  const char* const step = std::getenv("AS_TRUNCATION_STEP");  // NOLINT(concurrency-mt-unsafe)
  return step == nullptr ? 101 : std::stoul(step);
}

TEST(HostileImport, TruncationsOfExamplesAreTold) {
  const std::vector<std::filesystem::path> files = examples();
  ASSERT_FALSE(files.empty());
  const std::size_t step = truncationStep();
  for (const std::filesystem::path& file : files) {
    const std::string whole = contentOf(file);
    for (std::size_t size = 0; size < whole.size(); size += step) {
      SCOPED_TRACE(file.filename().string() + " of " + std::to_string(size) + " bytes");
      expectToBeTold(as::toolkit::importCobol(whole.substr(0, size), "T.cbl"));
    }
  }
}

TEST(HostileImport, RandomBytesAreTold) {
  std::mt19937 random(4711);  // NOLINT(cert-msc51-cpp): the same every time
  std::uniform_int_distribution<int> bytes(0, 255);
  for (int i = 0; i < 200; i++) {
    std::string text(static_cast<std::size_t>(i) * 7, ' ');
    for (char& byte : text) byte = static_cast<char>(bytes(random));
    SCOPED_TRACE(i);
    expectToBeTold(as::toolkit::importCobol(text, "T.cbl"));
  }
}

// Bytes of an example that are other ones.
TEST(HostileImport, DamagedExamplesAreTold) {
  std::mt19937 random(4712);  // NOLINT(cert-msc51-cpp): the same every time
  for (const std::filesystem::path& file : examples()) {
    const std::string whole = contentOf(file);
    std::uniform_int_distribution<std::size_t> places(0, whole.size() - 1);
    std::uniform_int_distribution<int> bytes(0, 255);
    for (int i = 0; i < 50; i++) {
      std::string text = whole;
      for (int j = 0; j < 20; j++) text[places(random)] = static_cast<char>(bytes(random));
      SCOPED_TRACE(file.filename().string() + " " + std::to_string(i));
      expectToBeTold(as::toolkit::importCobol(text, "T.cbl"));
    }
  }
}

constexpr std::size_t megabyte = 1U << 20U;

TEST(HostileImport, NamesOfAMegabyteAreTold) {
  const std::string name(megabyte, 'A');
  const Imported imported = test::importOf(test::programOf("01 " + name + " PIC X."));
  EXPECT_EQ(test::findingsOf(imported, test::kHeadLines), "1:4 source-limit");
  EXPECT_LT(test::problemsOf(imported).size(), 200U);
  EXPECT_TRUE(imported.programs.front().isRefused());
}

TEST(HostileImport, MessagesDoNotRepeatNamesOfAMegabyte) {
  const std::string name(megabyte, 'A');
  std::size_t told = 0;
  for (const ImportFinding& finding :
       test::importOf(test::programOf("01 R PIC X. COPY " + name + ".\n01 S PIC " + name + "."))
           .findings) {
    told += finding.problem.size();
  }
  EXPECT_LT(told, 3 * megabyte);
}

TEST(HostileImport, MessagesDoNotRepeatLongNames) {
  std::string entries = "01 R.\n05 " + std::string(megabyte / 4, 'A') + " PIC X.\n05 B PIC X.\n";
  for (int i = 0; i < 900; i++) {
    entries += "05 C REDEFINES " + std::string(1500, 'A') + " PIC XX.\n";
  }
  const Imported imported = test::importOf(test::programOf(entries));
  EXPECT_GT(imported.findings.size(), 900U);
  EXPECT_LT(test::problemsOf(imported).size(), 6 * megabyte);
}

// A dictionary would repeat them a million times.
std::string conditionsRepeated(const std::string& behindEach) {
  std::string entries = "01 G.\n05 A PIC X.\n";
  for (int i = 0; i < 1001; i++) entries += "88 C VALUE 1.\n";
  for (int i = 0; i < 501; i++) entries += "05 B LIKE A.\n" + behindEach;
  return test::programOf(entries);
}

TEST(HostileImport, ConditionsThatLikeRepeatsAreBounded) {
  for (const char* const behindEach : {"", "88 D VALUE 1.\n"}) {
    const Imported imported = test::importOf(conditionsRepeated(behindEach));
    EXPECT_TRUE(imported.programs.front().isRefused());
    EXPECT_THAT(test::problemsOf(imported), testing::HasSubstr("are repeated by TYPE and LIKE"));
  }
}

TEST(HostileImport, ValuesThatLikeRepeatsAreBounded) {
  std::string entries = "01 G.\n05 A PIC X.\n88 C VALUE";
  for (int i = 0; i < 1001; i++) entries += " 1";
  entries += ".\n";
  for (int i = 0; i < 1000; i++) entries += "05 B LIKE A.\n";
  const Imported imported = test::importOf(test::programOf(entries));
  EXPECT_THAT(test::problemsOf(imported), testing::HasSubstr("are repeated by TYPE and LIKE"));
}

TEST(HostileImport, ConstantsInConditionsAreBounded) {
  std::string entries = "78 C VALUE '" + std::string(megabyte, 'A') + "'.\n01 A PIC X.\n";
  for (int i = 0; i < 70; i++) entries += "88 D VALUE C.\n";
  const Imported imported = test::importOf(test::programOf(entries));
  EXPECT_THAT(test::problemsOf(imported),
              testing::HasSubstr("bytes of names and values are repeated"));
}

TEST(HostileImport, LengthsOfItemsOfAnOpenRecordAreKnown) {
  std::string entries = "01 R.\n";
  for (int i = 0; i < 6500; i++)
    entries += "05 A" + std::to_string(i) + " PIC X.\n" + "78 C VALUE LENGTH OF A" +
               std::to_string(i) + ".\n";
  EXPECT_EQ(test::problemsOf(test::importOf(test::programOf(entries))), "");
}

TEST(HostileImport, ItemsOfAnOpenRecordAreFound) {
  std::string entries = "01 R.\n05 A PIC X.\n";
  for (int i = 0; i < 6500; i++) entries += "05 B LIKE A.\n";
  EXPECT_EQ(test::problemsOf(test::importOf(test::programOf(entries))), "");
}

TEST(HostileImport, FindingsOfARuleAreToldUpToAThousand) {
  std::string entries;
  for (int i = 0; i < 1003; i++) entries += "01 A.\n";
  const Imported imported = test::importOf(test::programOf(entries));
  EXPECT_EQ(imported.findings.size(), 1001U);
  EXPECT_EQ(countOf(imported.findings, Severity::error), 1000U);
  EXPECT_EQ(imported.findings.back().problem, "3 findings more of the rule \"no-picture\"");
  EXPECT_EQ(imported.findings.back().rule, "more-findings");
  EXPECT_TRUE(imported.programs.front().isRefused());
}

TEST(HostileImport, AThousandFindingsOfARuleAreAll) {
  std::string entries;
  for (int i = 0; i < 1000; i++) entries += "01 A.\n";
  EXPECT_EQ(test::importOf(test::programOf(entries)).findings.size(), 1000U);
}

TEST(HostileImport, ManyEntriesAreHeld) {
  constexpr int count = 20000;
  std::string entries = "01 R.\n";
  for (int i = 0; i < count; i++) entries += "05 A PIC X.\n";
  const Imported imported = test::importOf(test::programOf(entries));
  ASSERT_EQ(imported.programs.size(), 1U);
  EXPECT_EQ(imported.programs.front().items, static_cast<std::size_t>(count) + 1);
}

TEST(HostileImport, GroupsThatNestTooDeepAreTold) {
  std::string entries = "01 T0 TYPEDEF. 05 A PIC X.\n";
  for (int i = 1; i < 130; i++) {
    const std::string before = std::to_string(i - 1);
    entries += "01 T" + std::to_string(i) + " TYPEDEF. 05 A TYPE T" + before + ".\n";
  }
  const Imported imported = test::importOf(test::programOf(entries + "01 R TYPE T129."));
  EXPECT_THAT(test::problemsOf(imported), testing::HasSubstr("the types in A nest too deep"));
}

TEST(HostileImport, CopybooksThatDoubleAreBounded) {
  test::ListedCopybooks::Texts texts;
  for (int i = 0; i < 40; i++) {
    const std::string next = "C" + std::to_string(i + 1);
    texts["C" + std::to_string(i)] = "COPY " + next + ".\nCOPY " + next + ".\n";
  }
  texts["C40"] = "05 A PIC X.\n";
  test::ListedCopybooks copybooks(texts);
  const Imported imported = as::toolkit::importCobol(test::programOf("01 R.\nCOPY C0."), "T.cbl",
                                                     &copybooks, test::freeFormat());
  EXPECT_TRUE(imported.programs.front().isRefused());
  EXPECT_GT(countOf(imported.findings, Severity::error), 0U);
}

}  // namespace

// Tests that the limits of import stand where clients read of them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <ostream>
#include <string>

#include "support/TempDirectory.h"
#include "toolkit/import/ImportBudget.h"
#include "toolkit/import/ImportLimits.h"

namespace {

namespace importLimits = as::toolkit::importLimits;

struct Row {
  const char* name;
  std::size_t number;
  const char* counts;
  const char* reason;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
#define AS_IMPORT_LIMIT(name, number, counts, reason) {#name, number, counts, reason},
#include "toolkit/import/ImportLimits.def"
};

constexpr const char* heading = "\n## The limits of import\n";

std::string policy() {
  const std::string text = test::contentOf(AS_SCHEMA_DIR "/../SECURITY.md");
  const std::size_t begin = text.find(heading);
  return begin == std::string::npos ? ""
                                    : text.substr(begin, text.find("\n## ", begin + 1) - begin);
}

std::string withSeparators(std::size_t number) {
  std::string text = std::to_string(number);
  for (auto at = static_cast<int>(text.size()) - 3; at > 0; at -= 3) {
    text.insert(static_cast<std::size_t>(at), ",");
  }
  return text;
}

class ImportLimits : public testing::TestWithParam<Row> {};

TEST_P(ImportLimits, StandInTheSecurityPolicy) {
  const Row& row = GetParam();
  EXPECT_THAT(policy(),
              testing::HasSubstr(std::string("\n| ") + row.counts + " | " +
                                 withSeparators(row.number) + " | " + row.reason + " |\n"));
}

INSTANTIATE_TEST_SUITE_P(All, ImportLimits, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

// A row that no limit stands for any more.
TEST(ImportLimitsTable, IsAllThatThePolicyHolds) {
  const std::string text = policy();
  std::size_t lines = 0;
  for (auto at = text.find("\n| "); at != std::string::npos; at = text.find("\n| ", at + 1))
    ++lines;
  EXPECT_EQ(lines, std::size(rows) + 1);
}

TEST(ImportLimitsTable, IsWhatAnImportKeepsTo) {
  const as::toolkit::ImportBudget::Most most;
  EXPECT_EQ(most.inclusions, importLimits::inclusions);
  EXPECT_EQ(most.text, importLimits::copiedText);
  EXPECT_EQ(most.comparisons, importLimits::comparisons);
}

}  // namespace

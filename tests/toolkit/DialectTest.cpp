// Tests of what users are told of the dialects.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "as/toolkit/Storage.h"

namespace {

TEST(DialectSummaries, TellWhatTheDialectsAre) {
  std::vector<std::string> summaries;
  for (const as::toolkit::Dialect& dialect : as::toolkit::dialects()) {
    summaries.emplace_back(dialect.summary);
  }
  EXPECT_THAT(summaries,
              testing::ElementsAre(
                  "IBM mainframe, 31-bit addresses", "IBM mainframe, 64-bit addresses",
                  "IBM mainframe sizes and natural boundaries on a 64-bit platform",
                  "GnuCOBOL as it comes, on a 64-bit platform",
                  "binary items in as few bytes as their digits need, on a 64-bit platform"));
}

// Of the mainframe there is a dialect for either size; others stay what they are.
TEST(DialectAddresses, AreAsLargeAsTold) {
  const struct {
    const char* word;
    int bytes;
    const char* becomes;
  } rows[] = {{"ibm", 4, "ibm"},          {"ibm", 8, "ibm64"},       {"ibm64", 4, "ibm"},
              {"ibm64", 8, "ibm64"},      {"natural", 4, "natural"}, {"natural", 8, "natural"},
              {"gnucobol", 4, "gnucobol"}};
  for (const auto& row : rows) {
    const as::toolkit::Dialect dialect =
        withAddresses(*as::toolkit::findDialect(row.word), row.bytes);
    EXPECT_STREQ(dialect.word, row.becomes) << row.word << row.bytes;
    EXPECT_EQ(dialect.pointer, row.bytes) << row.word << row.bytes;
  }
  EXPECT_EQ(as::toolkit::findDialect("vax"), nullptr);
}

}  // namespace

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

}  // namespace

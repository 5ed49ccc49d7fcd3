// Runs the rows of a table of sources.
#ifndef TOOLKIT_UNIT_READINGROWTEST_H_
#define TOOLKIT_UNIT_READINGROWTEST_H_

#include <gtest/gtest.h>

#include "toolkit_unit/ReadSource.h"

#define AS_READING_ROWS(suite, rows)                                  \
  class suite : public testing::TestWithParam<test::ReadingRow> {};   \
  TEST_P(suite, IsRead) {                                             \
    const test::Reading reading = test::readingOf(GetParam().source); \
    EXPECT_EQ(reading.words, GetParam().words);                       \
    EXPECT_EQ(reading.findings, GetParam().findings);                 \
  }                                                                   \
  INSTANTIATE_TEST_SUITE_P(Rows, suite, testing::ValuesIn(rows),      \
                           [](const auto& row) { return std::string(row.param.name); })

#endif  // TOOLKIT_UNIT_READINGROWTEST_H_

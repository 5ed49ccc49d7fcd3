// Parse requests in a process of their own, which a failed assertion or a crash would end.
#ifndef TESTS_SUPPORT_OWNPROCESS_H_
#define TESTS_SUPPORT_OWNPROCESS_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace test {

// Writes what the request came to, its message and the line of that, and ends the process.
template <class Outcome>
[[noreturn]] void tellAndExit(const Outcome& outcome) {
  std::cerr << outcome.result << ": " << outcome.text << " in line " << outcome.message.getLineNum()
            << std::endl;
  std::_Exit(static_cast<int>(outcome.result));
}

}  // namespace test

// Expects that the request, an expression that gives an Outcome, comes to Result::expected, and
// that what it tells matches.
#define EXPECT_RESULT_IN_OWN_PROCESS(expected, request, told) \
  EXPECT_EXIT(test::tellAndExit(request),                     \
              testing::ExitedWithCode(static_cast<int>(test::Result::expected)), told)

// What becomes of the request, be it told as it may.
#define EXPECT_RESULT_WITHOUT_ABORT(expected, request) \
  EXPECT_RESULT_IN_OWN_PROCESS(expected, request, "")

#endif  // TESTS_SUPPORT_OWNPROCESS_H_

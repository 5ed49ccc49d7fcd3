// Tests with parameters whose rows carry their names.
#ifndef TESTS_SUPPORT_CASES_H_
#define TESTS_SUPPORT_CASES_H_

#include <gtest/gtest.h>

#include <string>

namespace test {

// The name of a test with parameters.
template <class Case>
std::string labelOf(const testing::TestParamInfo<Case>& info) {
  return info.param.label;
}

}  // namespace test

#endif  // TESTS_SUPPORT_CASES_H_

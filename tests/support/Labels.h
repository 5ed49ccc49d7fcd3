// The names of tests with parameters.
#ifndef TESTS_SUPPORT_LABELS_H_
#define TESTS_SUPPORT_LABELS_H_

#include <gtest/gtest.h>

#include <string>

namespace test {

// For parameters that have a `label`.
template <class Case>
std::string labelOf(const testing::TestParamInfo<Case>& info) {
  return info.param.label;
}

}  // namespace test

#endif  // TESTS_SUPPORT_LABELS_H_

#include "Report.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace fuzz {

namespace {

// In the form of libFuzzer's own figures.
struct ModelCount {
  ~ModelCount() { std::fprintf(stderr, "stat::number_of_models:          %zu\n", models); }
  std::size_t models = 0;
};

}  // namespace

void countModel() {
  static ModelCount count;
  count.models++;
}

void requireSame(const std::string& expected, const std::string& actual) {
  if (actual == expected) return;
  std::istringstream left(expected);
  std::istringstream right(actual);
  std::string leftLine;
  std::string rightLine;
  std::size_t line = 0;
  do {
    line++;
    if (!std::getline(left, leftLine)) leftLine = "nothing more";
    if (!std::getline(right, rightLine)) rightLine = "nothing more";
  } while (leftLine == rightLine);
  std::fprintf(stderr, "line %zu: expected\n%s\ngot\n%s\n", line, leftLine.c_str(),
               rightLine.c_str());
  std::abort();
}

}  // namespace fuzz

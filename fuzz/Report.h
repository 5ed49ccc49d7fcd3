// What targets tell besides what libFuzzer does.
#ifndef FUZZ_REPORT_H_
#define FUZZ_REPORT_H_

#include <string>

namespace fuzz {

// The input of this execution has given a model. Called once an execution; the number is printed
// when the process exits.
void countModel();

// Ends the process, with the first line that differs, when the texts are not the same.
void requireSame(const std::string& expected, const std::string& actual);

}  // namespace fuzz

#endif  // FUZZ_REPORT_H_

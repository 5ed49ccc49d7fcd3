// Other programs that measure what a process can be measured for once only.
#ifndef BENCH_PROGRAM_H_
#define BENCH_PROGRAM_H_

#include <string>
#include <vector>

namespace bench {

// The numbers that the program prints. Throws when it fails or prints none. The arguments hold no
// quotation marks.
std::vector<double> numbersOf(const std::vector<std::string>& command);

}  // namespace bench

#endif  // BENCH_PROGRAM_H_

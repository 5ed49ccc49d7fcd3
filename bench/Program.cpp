#include "Program.h"

#include <cstdio>
#include <stdexcept>

namespace bench {

std::vector<double> numbersOf(const std::vector<std::string>& command) {
  std::string line;
  for (const std::string& word : command) line += "'" + word + "' ";
  std::FILE* const output = ::popen(line.c_str(), "r");
  if (output == nullptr) throw std::runtime_error("popen: " + line);
  std::vector<double> numbers;
  double number = 0;
  while (std::fscanf(output, "%lf", &number) == 1) numbers.push_back(number);
  if (::pclose(output) != 0 || numbers.empty()) throw std::runtime_error("failed: " + line);
  return numbers;
}

}  // namespace bench

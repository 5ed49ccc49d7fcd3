#include "toolkit/text/Names.h"

namespace as::toolkit {

std::string Names::unique(const std::string& name) {
  const auto [base, isFree] = used_.try_emplace(name, firstNumber);
  if (isFree) return name;
  // References stay good when others are added.
  int& number = base->second;
  for (;;) {
    std::string result = name + "-" + std::to_string(number++);
    if (used_.try_emplace(result, firstNumber).second) return result;
  }
}

}  // namespace as::toolkit

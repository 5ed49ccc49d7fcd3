#include "toolkit/text/Names.h"

namespace as::toolkit {

std::string Names::unique(const std::string& name) {
  std::string result = name;
  for (int number = 2; !used_.insert(result).second; ++number) {
    result = name + "-" + std::to_string(number);
  }
  return result;
}

}  // namespace as::toolkit

#include "cli/CommandTable.h"

namespace cli {

const std::vector<ExitCode>& exitCodes() {
  static const std::vector<ExitCode> all = {
#define AS_EXIT_CODE(name, number, text) {number, text},
#include "cli/ExitCodes.def"
  };
  return all;
}

}  // namespace cli

#include "toolkit/io/OutputCheck.h"

#include <filesystem>
#include <system_error>

#include "as/toolkit/DocumentReader.h"

namespace as::toolkit {

void checkOutput(const std::string& output, const std::string& input, const char* what) {
  std::error_code ignored;
  // Where output goes past a file, to a terminal or /dev/null, nothing is lost.
  if (!std::filesystem::is_regular_file(output, ignored)) return;
  if (!std::filesystem::equivalent(output, input, ignored)) return;
  throw RefusedDocument({output, 0, 0, std::string("this is the ") + what, "name another file"});
}

}  // namespace as::toolkit

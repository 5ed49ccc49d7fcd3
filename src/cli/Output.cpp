#include "cli/Output.h"

#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace cli {

namespace {

std::string_view variable(const char* name) {
  // One thread, and nothing here changes the environment.
  const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
  return value == nullptr ? "" : value;
}

}  // namespace

void Output::declare(Arguments& arguments) {
  arguments.flag("-q,--quiet", isQuiet_, "Say only what is wrong");
  arguments.option("--color", color_, {"auto", "always", "never"},
                   "Colours; auto unless told: on a terminal, unless NO_COLOR is set");
}

bool Output::isColored() const {
  if (color_ != "auto") return color_ == "always";
  return ::isatty(STDOUT_FILENO) != 0 && variable("NO_COLOR").empty() && variable("TERM") != "dumb";
}

}  // namespace cli

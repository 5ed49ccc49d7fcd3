#include "toolkit/findings/Findings.h"

#include <ostream>

#include "toolkit/text/Text.h"

namespace {

std::string count(int number, const char* what) {
  return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

}  // namespace

Findings::Findings(std::ostream& out, const std::string& file)
    : out_(out), file_(printable(file)) {}

void Findings::error(const std::string& where, const std::string& problem,
                     const std::string& advice) {
  ++errors_;
  print("error", where, problem + "; " + advice);
}

void Findings::warning(const std::string& where, const std::string& problem,
                       const std::string& advice) {
  ++warnings_;
  print("warning", where, problem + "; " + advice);
}

void Findings::note(const std::string& where, const std::string& text) {
  print("note", where, text);
}

void Findings::print(const char* severity, const std::string& where, const std::string& text) {
  out_ << file_ << ": " << severity << ": " << printable(where + ": " + text) << "\n";
}

void Findings::printSummary() {
  out_ << file_ << ": ";
  if (errors_ == 0 && warnings_ == 0) {
    out_ << "clean\n";
  } else {
    out_ << count(errors_, "error") << ", " << count(warnings_, "warning") << "\n";
  }
}

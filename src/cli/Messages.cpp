#include "cli/Messages.h"

#include <cerrno>
#include <iostream>
#include <string>
#include <system_error>

#include "as/toolkit/Text.h"

namespace cli {

std::string joined(const std::vector<std::string>& words, const char* between) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : between) + word;
  return text;
}

// std::cerr is tied to std::cout: both keep their order where they go to the same place.

void printError(std::string_view text) {
  std::cerr << toolName << ": error: " << as::toolkit::printable(text) << "\n";
}

void printRefusal(const as::toolkit::Refusal& refusal) {
  std::cerr << as::toolkit::printable(refusal.file);
  if (refusal.line > 0) std::cerr << ":" << refusal.line << ":" << refusal.column;
  std::cerr << ": error: " << as::toolkit::printable(refusal.text) << "\n";
  if (!refusal.hint.empty()) std::cerr << "hint: " << as::toolkit::printable(refusal.hint) << "\n";
}

bool flushOutput() {
  errno = 0;
  std::cout.flush();
  if (std::cout) return true;
  std::string text = "the output could not be written";
  // The reason is known only when it was this flush that failed.
  if (errno != 0) text += ": " + std::generic_category().message(errno);
  printError(text);
  return false;
}

}  // namespace cli

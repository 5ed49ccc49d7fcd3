// agentservices lint: finds what is broken in a service.
#include "as/toolkit/Lint.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iomanip>
#include <iostream>

#include "as/toolkit/Text.h"
#include "cli/Command.h"

namespace cli {

namespace {

// ID  SEVERITY  SUMMARY, a line each.
void printRules() {
  int idWidth = 0;
  int wordWidth = 0;
  for (const toolkit::LintRule& rule : toolkit::lintRules()) {
    idWidth = std::max(idWidth, static_cast<int>(std::strlen(rule.id)));
    wordWidth = std::max(wordWidth, static_cast<int>(std::strlen(wordOf(rule.severity))));
  }
  for (const toolkit::LintRule& rule : toolkit::lintRules()) {
    std::cout << std::left << std::setw(idWidth) << rule.id << "  " << std::setw(wordWidth)
              << wordOf(rule.severity) << "  " << rule.summary << "\n";
  }
}

class Lint : public Command {
 public:
  Lint() : Command("lint", "Find what is broken in a service") {}

  void declare(Arguments& arguments) override {
    arguments.required("SERVICE", file_, "The service");
    arguments.option(
        "--dictionary", dictionary_, "FILE",
        "The data dictionary of the program, in place of the one that the service names");
    arguments.insteadOf(
        {"SERVICE"}, "--rules", rules_,
        "Print what is looked for, with the names of the rules, and look at nothing");
  }

  int run(const std::optional<std::string>& schemas) override {
    if (rules_) {
      printRules();
      return exitFine;
    }
    return withReader(schemas, [this](const toolkit::DocumentReader& reader) {
      const toolkit::Findings findings = toolkit::lintFile(reader, file_, dictionary_);
      printFindings(file_, findings);
      const std::size_t errors = countOf(findings, toolkit::Severity::error);
      const std::size_t warnings = countOf(findings, toolkit::Severity::warning);
      std::cout << toolkit::printable(file_) << ": ";
      if (errors == 0 && warnings == 0) {
        std::cout << "clean\n";
      } else {
        std::cout << toolkit::count(errors, "error") << ", " << toolkit::count(warnings, "warning")
                  << "\n";
      }
      return errors == 0 ? exitFine : exitRefused;
    });
  }

 private:
  std::string file_;
  std::optional<std::string> dictionary_;
  bool rules_ = false;
};

}  // namespace

std::unique_ptr<Command> lintCommand() { return std::make_unique<Lint>(); }

}  // namespace cli

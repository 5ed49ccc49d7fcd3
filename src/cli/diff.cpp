// agentservices diff: tells what changed between two documents, and whether that breaks callers.
#include "as/toolkit/Diff.h"

#include <fstream>
#include <iostream>
#include <iterator>

#include "as/CASException.h"
#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/Messages.h"
#include "cli/SchemaDirectory.h"

namespace cli {

namespace {

// KIND  breaks  TEXT: WHY, a line each.
void printKinds() {
  for (const toolkit::ChangeKind& kind : toolkit::changeKinds()) {
    std::cout << kind.id << "\n  " << (kind.breaks ? "breaks callers: " : "breaks nobody: ")
              << kind.text << "; " << kind.why << "\n";
  }
}

class DiffCommand : public Command {
 public:
  DiffCommand() : Command("diff", "Tell what changed between two dictionaries or services") {}

  std::vector<Example> examples() const override {
    return {
        {"diff old/MOTPREM.xml MOTPREM.xml", "what became of a program"},
        {"diff old.xml new.xml --service quotes.xml", "and which mappings of a service it touches"},
        {"diff old.xml new.xml --allow condition-added", "take what is meant for granted"},
        {"diff --kinds", "which changes there are, and why they break callers"}};
  }

  void declare(Arguments& arguments) override {
    arguments.required("OLD", old_, "A dictionary or a service");
    arguments.required("NEW", new_, "Another one of the same kind");
    arguments.list("--service", services_, "FILE,...",
                   "Services for the program of OLD: what becomes of their mappings");
    arguments.list("--allow", rules_, "KIND[:PLACE],...",
                   "Changes that are meant, at that place and below it; * for every kind");
    arguments.list("--allow-file", ruleFiles_, "FILE,...",
                   "The same from files, one a line; # begins a remark");
    arguments.option("--format", format_, {"text", "json"}, "How to print; text unless told");
    arguments.insteadOf({"OLD", "NEW"}, "--kinds", kinds_,
                        "Print the kinds of changes and why they break callers");
  }

  // Breaking callers is an answer, so whatever prevents one has another exit code.
  int run(const std::optional<std::string>& schemas) override {
    if (kinds_) {
      printKinds();
      return exitFine;
    }
    int answer = exitUsage;
    const int code = withReader(schemas, [&](const toolkit::DocumentReader& reader) {
      answer = compare(reader);
      return exitFine;
    });
    return code == exitFine ? answer : exitUsage;
  }

 private:
  int compare(const toolkit::DocumentReader& reader) {
    if (!readRules()) return exitUsage;
    toolkit::Diff diff = toolkit::diffFiles(reader, old_, new_, services_);
    for (const std::string& rule : rules_) {
      if (toolkit::allow(diff, rule)) continue;
      printError("there is no kind of change '" + rule.substr(0, rule.find(':')) +
                 "'; --kinds lists them");
      return exitUsage;
    }
    if (format_ == "json") {
      toolkit::renderJson(std::cout, diff);
    } else {
      toolkit::renderText(std::cout, diff);
    }
    return toolkit::breaksCallers(diff) ? exitRefused : exitFine;
  }

  bool readRules() {
    for (const std::string& file : ruleFiles_) {
      std::ifstream in(file, std::ios::binary);
      const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
      if (!in.is_open()) {
        printError("the rules in '" + file + "' cannot be read");
        return false;
      }
      const std::vector<std::string> rules = toolkit::allowRulesIn(text);
      rules_.insert(rules_.end(), rules.begin(), rules.end());
    }
    return true;
  }

  std::string old_;
  std::string new_;
  std::vector<std::string> services_;
  std::vector<std::string> rules_;
  std::vector<std::string> ruleFiles_;
  std::string format_ = "text";
  bool kinds_ = false;
};

}  // namespace

std::unique_ptr<Command> diffCommand() { return std::make_unique<DiffCommand>(); }

}  // namespace cli

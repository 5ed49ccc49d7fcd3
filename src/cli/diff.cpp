// agentservices diff: tells what changed between two documents or folders of them, and whether that
// breaks callers.
#include "as/toolkit/Diff.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <set>

#include "as/CASException.h"
#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/Messages.h"
#include "cli/Parcel.h"
#include "cli/Progress.h"
#include "cli/TextFile.h"
#include "cli/Workers.h"

namespace cli {

namespace {

// KIND  breaks  TEXT: WHY, a line each.
void printKinds() {
  for (const toolkit::ChangeKind& kind : toolkit::changeKinds()) {
    std::cout << kind.id << "\n  " << (kind.breaks ? "breaks callers: " : "breaks nobody: ")
              << kind.text << "; " << kind.why << "\n";
  }
}

std::vector<std::string> kindIds() {
  std::vector<std::string> ids;
  for (const toolkit::ChangeKind& kind : toolkit::changeKinds()) ids.emplace_back(kind.id);
  return ids;
}

// False, with a message, when it is about no kind of change.
bool isRule(const std::string& rule) {
  const std::string kind = rule.substr(0, rule.find(':'));
  if (kind == "*" || toolkit::findChangeKind(kind) != nullptr) return true;
  const std::string near = toolkit::nearestName(kind, kindIds());
  printError("there is no kind of change '" + kind + "'; " +
             (near.empty() ? "--kinds lists them" : "did you mean '" + near + "'?"));
  return false;
}

class DiffCommand : public Command {
 public:
  DiffCommand() : Command("diff", "Tell what changed between two dictionaries or services") {}

  std::vector<Example> examples() const override {
    return {
        {"diff old/MOTPREM.xml MOTPREM.xml", "what became of a program"},
        {"diff old.xml new.xml --service quotes.xml", "and which mappings of a service it touches"},
        {"diff old.xml new.xml --allow condition-added", "take what is meant for granted"},
        {"diff --jobs 4 old new", "the documents of two folders, by their names"},
        {"diff --kinds", "which changes there are, and why they break callers"}};
  }

  // Breaking callers is an answer, so whatever prevents one has another exit code.
  std::vector<ExitCode> ownExitCodes() const override {
    return {{exitFine, "nothing breaks callers"},
            {exitRefused, "something breaks callers"},
            {exitUsage, "wrong usage, a document was refused, or the output failed"}};
  }
  int failureCode() const override { return exitUsage; }

  void declare(Arguments& arguments) override {
    arguments.required("OLD", old_, "A dictionary or a service, a folder of them, or -");
    arguments.required("NEW", new_, "Another one of the same kind; a folder, if OLD is one");
    arguments.list("--service", services_, "FILE,...",
                   "Services for the program of OLD: what becomes of their mappings");
    arguments.list("--allow", rules_, "KIND[:PLACE],...",
                   "Changes that are meant, at that place and below it; * for every kind");
    arguments.offer(kindIds());
    arguments.list("--allow-file", ruleFiles_, "FILE,...",
                   "The same from files, one a line; # begins a remark");
    arguments.option("--format", format_, {"text", "json"}, "How to print; text unless told");
    arguments.option("--jobs", jobs_, "Compare folders in so many processes; 1 unless told");
    arguments.flag("-q,--quiet", isQuiet_, "Print nothing but what is wrong; the exit code tells");
    arguments.insteadOf({"OLD", "NEW"}, "--kinds", kinds_,
                        "Print the kinds of changes and why they break callers");
  }

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
    return code == exitFine ? answer : failureCode();
  }

 private:
  int compare(const toolkit::DocumentReader& reader) {
    if (!readRules()) return exitUsage;
    std::error_code ignored;
    const bool isOldFolder = std::filesystem::is_directory(old_, ignored);
    if (isOldFolder != std::filesystem::is_directory(new_, ignored)) {
      printError("a folder is compared with a folder: " + (isOldFolder ? new_ : old_) + " is none");
      return exitUsage;
    }
    if (isOldFolder) return compareFolders(reader);
    if (old_ == "-" && new_ == "-") {
      printError("standard input gives one document: name OLD or NEW");
      return exitUsage;
    }
    toolkit::Diff diff = toolkit::diffDocuments(reader, sourceOf(old_), sourceOf(new_), services_);
    accept(diff);
    print(diff);
    return toolkit::breaksCallers(diff) ? exitRefused : exitFine;
  }

  // Of one or of many.
  template <class Result>
  void print(const Result& result) const {
    if (isQuiet_) return;
    if (format_ == "json") {
      toolkit::renderJson(std::cout, result);
    } else {
      toolkit::renderText(std::cout, result);
    }
  }

  static toolkit::DocumentSource sourceOf(const std::string& name) {
    return name == "-" ? toolkit::documentFrom(STDIN_FILENO, name) : toolkit::DocumentSource{name};
  }

  // Pairs that cannot be compared are told; the others are compared all the same.
  int compareFolders(const toolkit::DocumentReader& reader) {
    const std::vector<toolkit::DocumentPair> pairs = toolkit::pairsIn(old_, new_);
    if (pairs.empty()) {
      printError("there are no documents *.xml in " + old_ + " and " + new_);
      return failureCode();
    }
    const std::vector<toolkit::ServiceOfProgram> services =
        toolkit::servicesWithPrograms(reader, services_);
    std::vector<toolkit::DocumentDiff> diffs;
    bool isComplete = true;
    const Progress progress(pairs.size(), isQuiet_);
    workThrough(
        pairs.size(), jobs_, [&](std::size_t i) { return comparePair(reader, pairs[i], services); },
        [&](std::size_t i, const WorkOutcome& outcome) {
          progress.clear();
          OpenedParcel parcel(outcome.results);
          if (outcome.isFine) {
            diffs.push_back({pairs[i].name, parcel.diff()});
          } else {
            isComplete = false;
            printRefusal(
                outcome.results.empty()
                    ? toolkit::Refusal{pairs[i].name, 0, 0, "the work at it came to no end", ""}
                    : parcel.refusal());
          }
          progress.show(i + 1);
        });
    print(diffs);
    if (!isComplete || !haveCounted(diffs)) return exitUsage;
    const bool breaks =
        std::any_of(diffs.begin(), diffs.end(), [](const toolkit::DocumentDiff& document) {
          return toolkit::breaksCallers(document.diff);
        });
    return breaks ? exitRefused : exitFine;
  }

  // False, with messages, when nothing was compared for one of the services.
  bool haveCounted(const std::vector<toolkit::DocumentDiff>& diffs) const {
    std::set<std::string> counted;
    for (const toolkit::DocumentDiff& document : diffs) {
      counted.insert(document.diff.services.begin(), document.diff.services.end());
    }
    bool haveAll = true;
    for (const std::string& service : services_) {
      if (counted.contains(service)) continue;
      printError("the program of " + service + " has no dictionary in " + old_);
      haveAll = false;
    }
    return haveAll;
  }

  WorkOutcome comparePair(const toolkit::DocumentReader& reader, const toolkit::DocumentPair& pair,
                          const std::vector<toolkit::ServiceOfProgram>& services) const {
    Parcel parcel;
    try {
      toolkit::Diff diff = toolkit::diffPair(reader, pair, services);
      accept(diff);
      parcel.put(diff);
      return {true, "", parcel.take()};
    } catch (const toolkit::RefusedDocument& refused) {
      parcel.put(refused.refusal());
      return {false, "", parcel.take()};
    }
  }

  void accept(toolkit::Diff& diff) const {
    for (const std::string& rule : rules_) toolkit::allow(diff, rule);
  }

  bool readRules() {
    for (const std::string& file : ruleFiles_) {
      const std::vector<std::string> rules = toolkit::allowRulesIn(textOfFile(file));
      rules_.insert(rules_.end(), rules.begin(), rules.end());
    }
    return std::all_of(rules_.begin(), rules_.end(), isRule);
  }

  std::string old_;
  std::string new_;
  std::vector<std::string> services_;
  std::vector<std::string> rules_;
  std::vector<std::string> ruleFiles_;
  std::string format_ = "text";
  std::size_t jobs_ = 1;
  bool isQuiet_ = false;
  bool kinds_ = false;
};

}  // namespace

std::unique_ptr<Command> diffCommand() { return std::make_unique<DiffCommand>(); }

}  // namespace cli

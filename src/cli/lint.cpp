// agentservices lint: finds what is broken in services.
#include "as/toolkit/Lint.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iomanip>
#include <iostream>
#include <memory>
#include <utility>

#include "as/toolkit/Baseline.h"
#include "as/toolkit/Files.h"
#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/FindingsReport.h"
#include "cli/Inputs.h"
#include "cli/Messages.h"

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

std::vector<toolkit::RuleDescription> ruleDescriptions() {
  std::vector<toolkit::RuleDescription> all;
  for (const toolkit::LintRule& rule : toolkit::lintRules()) {
    const std::string id = rule.id;
    std::string help = "Wanted: ";
    help += rule.summary;
    help += ". Where this is not meant, switch the rule off: for a run with --rule ";
    help += id;
    help += "=off, for an element by a comment in front of it, <!-- lint: off ";
    help += id;
    help += " -->.";
    all.push_back({id, rule.severity, rule.summary, std::move(help)});
  }
  return all;
}

// What was found in one service, or in several.
struct Tally {
  std::size_t documents = 0;
  std::size_t refused = 0;
  std::size_t passedOver = 0;
  std::size_t errors = 0;
  std::size_t warnings = 0;
  std::size_t known = 0;  // Findings of the baseline.

  void add(const Tally& other) {
    documents += other.documents;
    refused += other.refused;
    passedOver += other.passedOver;
    errors += other.errors;
    warnings += other.warnings;
    known += other.known;
  }

  bool isClean() const { return errors == 0 && warnings == 0; }
  bool isFine() const { return errors == 0 && refused == 0; }
};

// "1 error, 2 warnings", "clean"; and what else there is to tell.
std::string textOf(const Tally& tally) {
  std::string text = tally.isClean() && tally.refused == 0
                         ? "clean"
                         : toolkit::count(tally.errors, "error") + ", " +
                               toolkit::count(tally.warnings, "warning");
  if (tally.known > 0) text += ", " + std::to_string(tally.known) + " known";
  if (tally.refused > 0) text += ", " + std::to_string(tally.refused) + " refused";
  if (tally.passedOver > 0) text += ", " + std::to_string(tally.passedOver) + " no services";
  return text;
}

class Lint : public Command {
 public:
  Lint() : Command("lint", "Find what is broken in services") {}

  std::vector<Example> examples() const override {
    return {{"lint quotes.xml", "look at a service with the dictionary that it names"},
            {"lint --recursive --jobs 4 services", "look at all services in a folder"},
            {"lint --format sarif -r . > lint.sarif", "for code review and continuous integration"},
            {"lint --write-baseline known.json -r .", "begin with what there is, and from then on"},
            {"lint --baseline known.json -r .", "tell only what is new"},
            {"lint --rule narrow-data-type=off,same-name=warning quotes.xml", "judge otherwise"}};
  }

  void declare(Arguments& arguments) override {
    inputs_.declare(arguments, "SERVICE");
    arguments.option(
        "--dictionary", options_.dictionary, "FILE",
        "The data dictionary of the program, in place of the one that the services name");
    arguments.list("--rule", settings_, "ID=WORD,...",
                   "What is to become of a rule's findings: off, note, warning or error");
    arguments.option("--baseline", baseline_, "FILE", "Do not tell the findings in this file");
    arguments.option("--write-baseline", writtenBaseline_, "FILE",
                     "Write the findings to this file, for --baseline, and tell none");
    report_.declare(arguments);
    output_.declare(arguments);
    arguments.insteadOf(
        {"SERVICE"}, "--rules", rules_,
        "Print what is looked for, with the names of the rules, and look at nothing");
  }

  int run(const std::optional<std::string>& schemas) override {
    if (rules_) {
      printRules();
      return exitFine;
    }
    if (!readSettings()) return exitUsage;
    return withReader(schemas,
                      [this](const toolkit::DocumentReader& reader) { return lint(reader); });
  }

 private:
  // False, with a message, when one of them says nothing.
  bool readSettings() {
    for (const std::string& text : settings_) {
      const std::size_t equals = std::min(text.find('='), text.size());
      const std::string id = text.substr(0, equals);
      const toolkit::RuleSetting* const setting =
          toolkit::findRuleSetting(text.substr(std::min(equals + 1, text.size())));
      if (toolkit::findLintRule(id) == nullptr) {
        const std::string near = toolkit::nearestLintRule(id);
        printError("--rule: there is no rule '" + id + "'" +
                   (near.empty() ? "; lint --rules lists them" : "; did you mean '" + near + "'?"));
        return false;
      }
      if (setting == nullptr) {
        printError("--rule: write " + id + "=off, =note, =warning or =error");
        return false;
      }
      options_.rules.insert_or_assign(id, *setting);
    }
    return true;
  }

  int lint(const toolkit::DocumentReader& reader) {
    if (baseline_) {
      known_ = std::make_unique<toolkit::Baseline>(*baseline_);
      known_->read();
    }
    if (writtenBaseline_) written_ = std::make_unique<toolkit::Baseline>(*writtenBaseline_);
    const bool isFound = inputs_.find();
    report_.begin(output_, ruleDescriptions());
    Tally all;
    inputs_.workThrough(
        output_, [&](const Input& input, Parcel& parcel) { look(reader, input, parcel); },
        {[&](const Input& input, OpenedParcel& parcel) { all.add(tell(input, parcel)); },
         [&](const Input&, const toolkit::Refusal& refusal) {
           ++all.documents;
           ++all.refused;
           report_.add(refusal);
         },
         [&] { ++all.passedOver; }});
    report_.end();
    if (report_.isText() && !output_.isQuiet()) summarise(all);
    if (!writtenBaseline_) return all.isFine() && isFound ? exitFine : exitRefused;
    written_->write();
    return all.refused == 0 && isFound ? exitFine : exitRefused;
  }

  void look(const toolkit::DocumentReader& reader, const Input& input, Parcel& parcel) const {
    const toolkit::Findings findings = toolkit::lintDocument(reader, input.source, options_);
    parcel.put(findings.size());
    for (const toolkit::Finding& finding : findings) parcel.put(finding);
  }

  Tally tell(const Input& input, OpenedParcel& parcel) {
    const std::string& file = input.source.name;
    Tally tally;
    tally.documents = 1;
    for (std::size_t left = parcel.number(); left > 0; --left) tell(file, parcel.finding(), tally);
    if (known_) left_ += known_->left(file);
    if (report_.isText() && !output_.isQuiet()) {
      std::cout << toolkit::printable(file) << ": " << textOf(tally) << "\n";
    }
    return tally;
  }

  void tell(const std::string& file, const toolkit::Finding& finding, Tally& tally) {
    const bool isKnown = known_ && known_->take(file, finding);
    if (written_) written_->add(file, finding);
    if (isKnown || written_) {
      ++tally.known;
      return;
    }
    if (finding.severity == toolkit::Severity::error) ++tally.errors;
    if (finding.severity == toolkit::Severity::warning) ++tally.warnings;
    report_.add(file, finding);
  }

  // Behind the lines of several services.
  void summarise(const Tally& all) const {
    if (inputs_.areSeveral()) {
      std::cout << toolkit::count(all.documents, "service") << ": " << textOf(all) << "\n";
    }
    if (left_ > 0) {
      std::cout << toolkit::printable(*baseline_) << ": " << toolkit::count(left_, "finding")
                << " of it not found any more; write it anew\n";
    }
  }

  Inputs inputs_;
  toolkit::LintOptions options_;
  std::vector<std::string> settings_;
  std::optional<std::string> baseline_;
  std::optional<std::string> writtenBaseline_;
  FindingsReport report_;
  Output output_;
  bool rules_ = false;
  std::unique_ptr<toolkit::Baseline> known_;
  std::size_t left_ = 0;  // Findings of the baseline that its documents here have no more.
  std::unique_ptr<toolkit::Baseline> written_;
};

}  // namespace

std::unique_ptr<Command> lintCommand() { return std::make_unique<Lint>(); }

}  // namespace cli

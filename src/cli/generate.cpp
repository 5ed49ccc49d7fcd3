// agentservices generate: makes what callers of a service need.
#include "as/toolkit/Generate.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <set>

#include "as/toolkit/Files.h"
#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/Inputs.h"
#include "cli/Messages.h"
#include "cli/Output.h"
#include "cli/TextFile.h"

namespace cli {

namespace {

// KIND  SUMMARY, and below it the flavours and the options.
void printKinds() {
  int width = 0;
  for (const toolkit::GeneratorKind& kind : toolkit::generatorKinds()) {
    width = std::max(width, static_cast<int>(std::strlen(kind.word)));
  }
  const std::string margin(static_cast<std::size_t>(width) + 2, ' ');
  for (const toolkit::GeneratorKind& kind : toolkit::generatorKinds()) {
    std::cout << std::left << std::setw(width) << kind.word << "  " << kind.summary << "\n"
              << margin << "of services:";
    for (const char* const flavour : kind.flavours) std::cout << ' ' << flavour;
    std::cout << (kind.takesDictionaries ? "; of dictionaries\n" : "\n");
    for (const toolkit::GeneratorOption& option : kind.options) {
      std::cout << margin << "--set " << option.name << "="
                << (*option.values == '\0' ? "TEXT" : option.values) << ": " << option.summary
                << "\n";
    }
  }
}

class Generate : public Command {
 public:
  Generate() : Command("generate", "Make schemas and interfaces for callers of a service") {}

  std::vector<Example> examples() const override {
    return {{"generate --kinds", "what can be made, and the options of each"},
            {"generate wsdl quotes.xml -o quotes.wsdl", "the interface of a Web service"},
            {"generate openapi quotes.xml -o quotes.json", "the same for callers by HTTP and JSON"},
            {"generate xsd MOTPREM.xml --record LK-REQUEST -o request.xsd", "a record's data"},
            {"generate java -r services -o callers", "of those of a folder, a folder each"}};
  }

  void declare(Arguments& arguments) override {
    arguments.required("KIND", kind_, "What to make; --kinds lists the kinds");
    offerGeneratorKinds(arguments);
    inputs_.declare(arguments, "SERVICE");
    arguments.requiredOption("-o,--output", target_,
                             "The file to write, or the folder, in it one for each of several "
                             "services; files that hold the same already are left alone");
    arguments.option(
        "--dictionary", dictionary_, "FILE",
        "The data dictionary of the program, in place of the one that the service names");
    arguments.option("--record", record_, "RECORD",
                     "Of a dictionary: the record to make something of; all unless told");
    arguments.option("--names", names_, "FILE",
                     "Names to use in place of those that are made: KEY = NAME, one a line");
    arguments.list("--set", values_, "OPTION=VALUE,...", "Options of the kind");
    arguments.flag("-v,--verbose", isVerbose_,
                   "Tell of every name that the language wants changed");
    output_.declare(arguments);
    arguments.insteadOf({"KIND", "SERVICE", "--output"}, "--kinds", kinds_,
                        "Print the kinds with their options, and make nothing");
  }

  int run(const std::optional<std::string>& schemas) override {
    if (kinds_) {
      printKinds();
      return exitFine;
    }
    const toolkit::GeneratorKind* const kind = toolkit::findGeneratorKind(kind_);
    if (kind == nullptr) return wrong(noGeneratorKind(kind_));
    for (const std::string& value : values_) {
      const std::size_t sign = value.find('=');
      if (sign == std::string::npos) return wrong("--set takes OPTION=VALUE, not '" + value + "'");
      options_.values[value.substr(0, sign)] = value.substr(sign + 1);
    }
    const std::string problem = toolkit::wrongOption(*kind, options_);
    if (!problem.empty()) return wrong(problem);
    if (record_) options_.record = *record_;
    return withReader(schemas, [&](const toolkit::DocumentReader& reader) {
      if (names_) {
        options_.names = toolkit::readChosenNames(textOfFile(*names_), *names_);
        options_.namesFile = *names_;
      }
      return make(reader, *kind);
    });
  }

 private:
  static int wrong(const std::string& text) {
    printError(toolkit::printable(text));
    return exitUsage;
  }

  int make(const toolkit::DocumentReader& reader, const toolkit::GeneratorKind& kind) {
    bool isFine = inputs_.find();
    const std::vector<std::string> targets = targetsOfInputs();
    if (targets.size() != inputs_.all().size()) return exitRefused;
    const auto work = [&](const Input& input, Parcel& parcel) {
      const auto number = static_cast<std::size_t>(&input - inputs_.all().data());
      const toolkit::GeneratedOutput made = toolkit::generateFiles(
          reader, kind, input.source, targets[number], options_, dictionary_);
      passOverOtherFlavours(input, made.findings);
      parcel.put(made.findings.size());
      for (const toolkit::Finding& finding : made.findings) parcel.put(finding);
      parcel.put(made.files.size());
      for (const std::string& file : made.files) {
        parcel.put(file);
        parcel.put(std::count(made.written.begin(), made.written.end(), file) > 0 ? 1 : 0);
      }
    };
    inputs_.workThrough(
        output_, work,
        {[&](const Input& input, OpenedParcel& parcel) { isFine = tell(input, parcel) && isFine; },
         [&](const Input&, const toolkit::Refusal& refusal) {
           printRefusal(refusal);
           isFine = false;
         },
         [] {}});
    return isFine ? exitFine : exitRefused;
  }

  // What is made of one of several services goes to a folder that is called like its document.
  // Empty, after a message, when two would be called the same.
  std::vector<std::string> targetsOfInputs() const {
    std::vector<std::string> targets = inputs_.targetsIn(target_);
    if (targets.size() == 1 && targets.front() == target_) return targets;
    std::set<std::string> taken;
    for (std::string& target : targets) {
      target = std::filesystem::path(target).replace_extension().string() + "/";
      if (taken.insert(target).second) continue;
      printError("two documents would be written to " + target);
      return {};
    }
    return targets;
  }

  // A search finds services of all flavours.
  static void passOverOtherFlavours(const Input& input, const toolkit::Findings& findings) {
    for (const toolkit::Finding& finding : findings) {
      if (!input.isSearched || finding.rule != "other-flavour") continue;
      throw toolkit::RefusedDocument({input.source.name, 0, 0, finding.problem, "", true});
    }
  }

  // Names of COBOL are none of most languages: a few are told, the others counted.
  toolkit::Findings told(const toolkit::Findings& findings) const {
    constexpr std::size_t mostNames = 3;
    toolkit::Findings result;
    std::size_t names = 0;
    for (const toolkit::Finding& finding : findings) {
      if (output_.isQuiet() && finding.severity == toolkit::Severity::note) continue;
      const bool isName = finding.rule == "changed-name" && !isVerbose_;
      if (!isName || ++names <= mostNames) result.push_back(finding);
    }
    if (names > mostNames) {
      toolkit::Finding rest;
      rest.severity = toolkit::Severity::note;
      rest.problem = toolkit::count(names - mostNames, "more name") +
                     " changed so; --verbose tells them, --names chooses others";
      result.push_back(rest);
    }
    return result;
  }

  // Whether something was made.
  bool tell(const Input& input, OpenedParcel& parcel) const {
    const std::string& name = input.source.name;
    toolkit::Findings findings;
    for (std::size_t left = parcel.number(); left > 0; --left) {
      findings.push_back(parcel.finding());
    }
    printFindings(name, told(findings));
    if (countOf(findings, toolkit::Severity::error) > 0) {
      std::cout << toolkit::printable(name) << ": nothing is made of it\n";
      return false;
    }
    for (std::size_t left = parcel.number(); left > 0; --left) {
      const std::string file = parcel.text();
      const bool isWritten = parcel.number() > 0;
      if (output_.isQuiet()) continue;
      std::cout << toolkit::printable(file) << ": " << (isWritten ? "written" : "as it was")
                << "\n";
    }
    return true;
  }

  std::string kind_;
  Inputs inputs_;
  std::string target_;
  Output output_;
  std::optional<std::string> dictionary_;
  std::optional<std::string> record_;
  std::optional<std::string> names_;
  std::vector<std::string> values_;
  bool isVerbose_ = false;
  bool kinds_ = false;
  toolkit::GenerateOptions options_;
};

}  // namespace

std::unique_ptr<Command> generateCommand() { return std::make_unique<Generate>(); }

}  // namespace cli

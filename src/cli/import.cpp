// agentservices import: makes data dictionaries from COBOL sources.
#include "as/toolkit/Import.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <set>
#include <system_error>

#include "as/toolkit/Files.h"
#include "as/toolkit/Storage.h"
#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/FindingsReport.h"
#include "cli/Folder.h"
#include "cli/Messages.h"
#include "cli/Parcel.h"
#include "cli/Progress.h"
#include "cli/Workers.h"

namespace cli {

namespace {

namespace fs = std::filesystem;

std::vector<toolkit::RuleDescription> ruleDescriptions() {
  std::vector<toolkit::RuleDescription> all;
  for (const toolkit::ImportRule& rule : toolkit::importRules()) {
    all.push_back({rule.id, rule.severity, rule.summary, ""});
  }
  return all;
}

class Import : public Command {
 public:
  Import() : Command("import", "Make data dictionaries from COBOL sources") {}

  std::vector<Example> examples() const override {
    return {{"import MOTPREM.cbl -o MOTPREM.xml", "make a dictionary of a source"},
            {"import -I copybooks --jobs 4 sources -o dictionaries", "make those of a folder"},
            {"import --messages sarif sources -o dictionaries > import.sarif",
             "tell what is found to code review and continuous integration"},
            {"import MOTPREM.cbl -o MOTPREM.xml --explain LK-PREMIUM",
             "tell how the size and place of an item came about"}};
  }

  void declare(Arguments& arguments) override {
    arguments.required("FILE", files_,
                       "The sources: files, folders with files *.cbl, *.cob ..., or - for one from "
                       "standard input");
    arguments.option("-o,--output", output_,
                     "The dictionary of one FILE, the folder of those of several; may be left out "
                     "with --explain");
    arguments.list("-I,--include", folders_, "DIR,...",
                   "Folders to look for copybooks in, before the source's own");
    arguments.option("--format", format_, {"auto", "fixed", "free", "variable"},
                     "How the lines are laid out; auto unless told");
    arguments.option("--dialect", options_.dialect, dialectWords(),
                     "The compiler whose sizes and boundaries count; ibm unless told");
    arguments.option("--pointer-size", pointerSize_, {"4", "8"},
                     "The bytes of a POINTER; the dialect's unless told");
    arguments.option("--encoding", options_.encoding,
                     "The code page of the sources; told from their text unless given");
    arguments.flag("--copybook", options_.isCopybook,
                   "Read the sources as copybooks, each a program of its own name");
    arguments.option("--explain", explained_, "ITEM",
                     "Print how size and place of an item came about");
    report_.declare(arguments, "--messages");
    arguments.flag("-r,--recursive", isRecursive_,
                   "As of other commands; folders are searched with all below them anyhow");
    arguments.option("--jobs", jobs_, "Work in so many processes; 1 unless told");
    arguments.flag("-q,--quiet", isQuiet_, "Say only what is wrong");
  }

  int run(const std::optional<std::string>&) override {
    if (output_.empty() && !explained_) {
      printError("--output is required, unless an item is to be explained");
      return exitUsage;
    }
    if (explained_ && !report_.isText()) {
      printError("--explain prints what is no message: leave out --messages");
      return exitUsage;
    }
    if (const int wrong = findTasks(); wrong != exitFine) return wrong;
    options_.format = formatOf(format_);
    options_.pointerSize = pointerSize_.empty() ? 0 : pointerSize_ == "4" ? 4 : 8;
    std::size_t refused = 0;
    report_.beginBesideResults(isQuiet_, ruleDescriptions());
    const Progress progress(tasks_.size(), isQuiet_);
    workThrough(
        tasks_.size(), jobs_, [this](std::size_t task) { return import(tasks_[task]); },
        [&](std::size_t task, const WorkOutcome& outcome) {
          progress.clear();
          if (!tell(task, outcome) || !outcome.isFine) ++refused;
          progress.show(task + 1);
        });
    report_.end();
    if (isFolder_ && !isQuiet_ && report_.isText()) {
      std::cout << toolkit::count(tasks_.size(), "source") << ", " << refused
                << " of them with errors\n";
    }
    return refused == 0 ? exitFine : exitRefused;
  }

 private:
  struct Task {
    toolkit::DocumentSource source;
    std::string output;
  };

  static std::vector<std::string> dialectWords() {
    std::vector<std::string> words;
    for (const toolkit::Dialect& dialect : toolkit::dialects()) words.emplace_back(dialect.word);
    return words;
  }

  static toolkit::SourceFormat formatOf(const std::string& word) {
    if (word == "fixed") return toolkit::SourceFormat::fixed;
    if (word == "free") return toolkit::SourceFormat::free;
    if (word == "variable") return toolkit::SourceFormat::variable;
    return toolkit::SourceFormat::recognised;
  }

  // One FILE that is no folder goes to the file OUT; everything else to the folder OUT.
  int findTasks() {
    std::error_code failure;
    try {
      if (files_.size() == 1 && !fs::is_directory(files_.front(), failure)) {
        const bool isStream = files_.front() == "-";
        tasks_.push_back({isStream ? toolkit::documentFrom(STDIN_FILENO, "-")
                                   : toolkit::DocumentSource{files_.front()},
                          output_});
        return exitFine;
      }
      isFolder_ = true;
      for (const std::string& file : files_) {
        if (!fs::is_directory(file, failure)) {
          addTask(fs::path(file).parent_path(), fs::path(file).filename());
          continue;
        }
        for (const std::string& source : toolkit::cobolSourcesIn(file)) addTask(file, source);
      }
    } catch (const toolkit::RefusedDocument& refused) {
      printRefusal(refused.refusal());
      return exitRefused;
    }
    if (tasks_.empty()) {
      printError("there are no sources *.cbl, *.cob, *.cobol or *.pco in " + joined(files_, ", "));
      return exitRefused;
    }
    return areOutputsApart() ? exitFine : exitRefused;
  }

  // False, after a message, when two sources would be written to one dictionary.
  bool areOutputsApart() const {
    std::set<fs::path> taken;
    for (const Task& task : tasks_) {
      if (task.output.empty() || taken.insert(fs::path(task.output).lexically_normal()).second) {
        continue;
      }
      printError("two documents would be written to " + task.output);
      return false;
    }
    return true;
  }

  void addTask(const fs::path& folder, const fs::path& source) {
    fs::path target = fs::path(output_) / source;
    target.replace_extension(".xml");
    tasks_.push_back(
        {{(folder / source).string()}, output_.empty() ? std::string() : target.string()});
  }

  // The outcome's results are a parcel: how many were refused, and the refusals; how many findings
  // there are, and these; what is explained; what else is the matter; and how many files were
  // written, and their names.
  WorkOutcome import(const Task& task) const {
    WorkOutcome outcome;
    Parcel parcel;
    try {
      if (isFolder_) makeFolder(fs::path(task.output).parent_path());
      const toolkit::ImportedFile made =
          toolkit::importCobolFile(task.source, task.output, folders_, options_);
      const toolkit::Imported& imported = made.imported;
      outcome.isFine = countOf(imported.findings, toolkit::Severity::error) == 0;
      parcel.put(std::size_t{0});
      parcel.put(imported.findings.size());
      for (const toolkit::ImportFinding& finding : imported.findings) parcel.put(told(finding));
      const std::string explanation = explained_ ? explanationOf(imported) : std::string();
      parcel.put(explanation);
      const bool isLost = explained_ && explanation.empty();
      outcome.isFine = outcome.isFine && !isLost;
      parcel.put(isLost ? "there is no item " + *explained_ : std::string());
      parcel.put(made.written.size());
      for (const std::string& file : made.written) parcel.put(file);
    } catch (const toolkit::RefusedDocument& refused) {
      parcel.put(std::size_t{1});
      parcel.put(refused.refusal());
    } catch (const toolkit::FileError& failure) {
      parcel.put(std::size_t{0});
      parcel.put(std::size_t{0});
      parcel.put(std::string());
      parcel.put(std::string(failure.what()));
      parcel.put(std::size_t{0});
    }
    outcome.results = parcel.take();
    return outcome;
  }

  static toolkit::FileFinding told(const toolkit::ImportFinding& finding) {
    return {finding.location.file,
            {finding.rule, finding.severity, "", finding.problem, finding.advice,
             finding.location.line, finding.location.column},
            finding.copiedAt};
  }

  std::string explanationOf(const toolkit::Imported& imported) const {
    std::string text;
    for (const toolkit::ImportedProgram& program : imported.programs) {
      for (const toolkit::ItemExplanation& item : explainItem(program, *explained_)) {
        text += lines(textOf(item));
      }
    }
    return text;
  }

  // Lines stay lines; other control characters are shown.
  static std::string lines(const std::string& text) {
    std::string result;
    for (std::size_t from = 0; from <= text.size();) {
      const std::size_t to = std::min(text.find('\n', from), text.size());
      result += toolkit::printable(text.substr(from, to - from)) + "\n";
      from = to + 1;
    }
    return result;
  }

  // False when something is the matter that the work at it by itself could not see.
  bool tell(std::size_t task, const WorkOutcome& outcome) {
    if (outcome.results.empty()) {
      toolkit::Refusal refusal;
      refusal.file = tasks_[task].source.name;
      refusal.text = "the import came to no end";
      report_.add(refusal);
      return false;
    }
    OpenedParcel parcel(outcome.results);
    if (parcel.number() > 0) {
      report_.add(parcel.refusal());
      return false;
    }
    for (std::size_t left = parcel.number(); left > 0; --left) report_.add(parcel.fileFinding());
    std::cout << parcel.text();
    const std::string trouble = parcel.text();
    if (!trouble.empty()) printError(trouble);
    bool isFine = true;
    for (std::size_t left = parcel.number(); left > 0; --left) {
      const std::string file = parcel.text();
      if (written_.insert(fs::path(file).lexically_normal()).second) continue;
      printError("two programs were written to " + file);
      isFine = false;
    }
    return isFine;
  }

  std::vector<std::string> files_;
  std::string output_;  // Empty: nothing is written.
  std::vector<std::string> folders_;
  std::string format_ = "auto";
  std::string pointerSize_;
  std::optional<std::string> explained_;
  std::size_t jobs_ = 1;
  bool isRecursive_ = false;
  bool isQuiet_ = false;
  toolkit::ImportOptions options_;
  FindingsReport report_;
  std::vector<Task> tasks_;
  bool isFolder_ = false;       // Whether the output is one.
  std::set<fs::path> written_;  // So far.
};

}  // namespace

std::unique_ptr<Command> importCommand() { return std::make_unique<Import>(); }

}  // namespace cli

#include "cli/Inputs.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include "as/toolkit/Files.h"
#include "cli/FileNumber.h"
#include "cli/Messages.h"
#include "cli/Progress.h"
#include "cli/Workers.h"

namespace cli {

namespace {

using as::toolkit::Refusal;

// How the work at a document ended.
enum class Ending : std::size_t { lost, done, refused };

WorkOutcome packed(const Inputs::Work& work, const Input& input) {
  const auto refused = [](const Refusal& refusal) {
    Parcel parcel;
    parcel.put(static_cast<std::size_t>(Ending::refused));
    parcel.put(refusal);
    return WorkOutcome{false, "", parcel.take()};
  };
  try {
    Parcel parcel;
    parcel.put(static_cast<std::size_t>(Ending::done));
    work(input, parcel);
    return {true, "", parcel.take()};
  } catch (const as::toolkit::RefusedDocument& failure) {
    return refused(failure.refusal());
  } catch (const as::toolkit::FileError& failure) {
    return refused({toolName, 0, 0, failure.what(), ""});
  }
}

void tell(const Input& input, const WorkOutcome& outcome, const Inputs::Tellers& tellers) {
  OpenedParcel parcel(outcome.results);
  switch (static_cast<Ending>(parcel.number())) {
    case Ending::done:
      return tellers.done(input, parcel);
    case Ending::refused: {
      const Refusal refusal = withFolderHint(parcel.refusal(), input);
      if (input.isSearched && refusal.isOfAnotherKind) return tellers.passedOver();
      return tellers.refused(input, refusal);
    }
    default:
      tellers.refused(input, {input.source.name, 0, 0, "the work at it came to no end", ""});
  }
}

// Which of the inputs a file is, whatever it is called.
class FileNumbers {
 public:
  explicit FileNumbers(const std::vector<Input>& inputs) {
    for (const Input& input : inputs) {
      if (const auto number = fileNumberOf(input.source.name)) inputs_.emplace(*number, &input);
    }
  }

  // The first one; null when it is none.
  const Input* find(const std::string& file) const {
    const auto number = fileNumberOf(file);
    if (!number) return nullptr;
    const auto found = inputs_.find(*number);
    return found == inputs_.end() ? nullptr : found->second;
  }

 private:
  std::map<FileNumber, const Input*> inputs_;
};

}  // namespace

Refusal withFolderHint(Refusal refusal, const Input& input) {
  std::error_code ignored;
  if (refusal.hint.empty() && std::filesystem::is_directory(input.source.name, ignored)) {
    refusal.hint = "search it with --recursive";
  }
  return refusal;
}

void Inputs::declareNames(Arguments& arguments, const char* name) {
  arguments.required(name, names_, "Files, folders with --recursive, - for standard input");
  arguments.flag("-r,--recursive", isRecursive_, "Search folders for documents *.xml");
}

void Inputs::declare(Arguments& arguments, const char* name) {
  declareNames(arguments, name);
  arguments.option("--jobs", jobs_, "Work in so many processes; 1 unless told");
}

bool Inputs::find() {
  bool isFine = true;
  for (const std::string& name : names_) isFine = add(name) && isFine;
  if (isFine && inputs_.empty()) {
    printError("there are no documents *.xml in " + joined(names_, ", "));
    return false;
  }
  return isFine;
}

bool Inputs::add(const std::string& name) {
  if (name == "-") {
    const bool isRead = std::any_of(inputs_.begin(), inputs_.end(), [](const Input& input) {
      return input.source.text.has_value();
    });
    // It gives nothing a second time.
    if (isRead) return true;
    try {
      inputs_.push_back({as::toolkit::documentFrom(STDIN_FILENO, name), false, name});
    } catch (const as::toolkit::RefusedDocument& refused) {
      printRefusal(refused.refusal());
      return false;
    }
    return true;
  }
  std::error_code ignored;
  if (!isRecursive_ || !std::filesystem::is_directory(name, ignored)) {
    inputs_.push_back({{name}, false, std::filesystem::path(name).filename().string()});
    return true;
  }
  const as::toolkit::FoundFiles found = as::toolkit::filesIn(name, {".xml"});
  for (const std::string& file : found.files) {
    inputs_.push_back({{(std::filesystem::path(name) / file).string()}, true, file});
  }
  for (const Refusal& refusal : found.refusals) printRefusal(refusal);
  return found.refusals.empty();
}

void Inputs::holdPipes() {
  for (Input& input : inputs_) {
    std::error_code ignored;
    if (input.source.text || !std::filesystem::is_fifo(input.source.name, ignored)) continue;
    const int pipe = ::open(input.source.name.c_str(), O_RDONLY | O_CLOEXEC);
    if (pipe < 0) continue;
    try {
      input.source = as::toolkit::documentFrom(pipe, input.source.name);
    } catch (const as::toolkit::RefusedDocument&) {  // NOLINT(bugprone-empty-catch)
      // It is told when its turn comes.
    }
    ::close(pipe);
  }
}

void Inputs::workThrough(const Output& output, const Work& work, const Tellers& tellers) const {
  const Progress progress(inputs_.size(), output.isQuiet());
  cli::workThrough(
      inputs_.size(), jobs_, [&](std::size_t i) { return packed(work, inputs_[i]); },
      [&](std::size_t i, const WorkOutcome& outcome) {
        progress.clear();
        tell(inputs_[i], outcome, tellers);
        progress.show(i + 1);
      });
}

std::vector<std::string> Inputs::targetsIn(const std::string& output) const {
  if (inputs_.size() == 1 && !inputs_.front().isSearched) return {output};
  std::vector<std::string> targets;
  std::set<std::string> taken;
  const FileNumbers files(inputs_);
  for (const Input& input : inputs_) {
    targets.push_back((std::filesystem::path(output) / input.place).string());
    if (!taken.insert(targets.back()).second) {
      printError("two documents would be written to " + targets.back());
      return {};
    }
    const Input* const other = files.find(targets.back());
    if (other == nullptr || other == files.find(input.source.name)) continue;
    printError("what is made of " + input.source.name + " would take the place of " +
               other->source.name + ", which is to be read");
    return {};
  }
  return targets;
}

}  // namespace cli

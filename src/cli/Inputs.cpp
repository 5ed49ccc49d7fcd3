#include "cli/Inputs.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "as/toolkit/Files.h"
#include "cli/Messages.h"
#include "cli/Progress.h"

namespace cli {

void Inputs::declare(Arguments& arguments, const char* name) {
  arguments.required(name, names_, "Files, folders with --recursive, - for standard input");
  arguments.flag("-r,--recursive", isRecursive_, "Search folders for documents *.xml");
  arguments.option("--jobs", jobs_, "Work in so many processes; 1 unless told");
}

bool Inputs::find() {
  bool isFine = true;
  for (const std::string& name : names_) isFine = add(name) && isFine;
  if (isFine && inputs_.empty()) {
    printError("there are no documents *.xml");
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
      inputs_.push_back({as::toolkit::documentFrom(STDIN_FILENO, name)});
    } catch (const as::toolkit::RefusedDocument& refused) {
      printRefusal(refused.refusal());
      return false;
    }
    return true;
  }
  std::error_code ignored;
  if (!isRecursive_ || !std::filesystem::is_directory(name, ignored)) {
    inputs_.push_back({{name}});
    return true;
  }
  const as::toolkit::FoundFiles found = as::toolkit::filesIn(name, {".xml"});
  for (const std::string& file : found.files) {
    inputs_.push_back({{(std::filesystem::path(name) / file).string()}, true});
  }
  for (const as::toolkit::Refusal& refusal : found.refusals) printRefusal(refusal);
  return found.refusals.empty();
}

void Inputs::workThrough(const Output& output, const std::function<WorkOutcome(const Input&)>& work,
                         const std::function<void(const Input&, const WorkOutcome&)>& done) const {
  const Progress progress(inputs_.size(), output.isQuiet());
  cli::workThrough(
      inputs_.size(), jobs_, [&](std::size_t i) { return work(inputs_[i]); },
      [&](std::size_t i, const WorkOutcome& outcome) {
        progress.clear();
        done(inputs_[i], outcome);
        progress.show(i + 1);
      });
}

}  // namespace cli

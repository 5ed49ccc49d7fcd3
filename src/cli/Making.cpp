#include "cli/Making.h"

#include <filesystem>
#include <iostream>
#include <map>

#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/FileNumber.h"
#include "cli/Folder.h"
#include "cli/Messages.h"

namespace cli {

void Making::declareOutput(Arguments& arguments) {
  arguments.requiredOption("-o,--output", target_,
                           "The file to write, of several documents the folder; a file that is "
                           "there is replaced when the new one is complete");
  output_.declare(arguments);
}

int Making::run(const std::optional<std::string>& schemas, const Make& make, const Need& need) {
  return withReader(
      schemas, [&](const toolkit::DocumentReader& reader) { return makeAll(reader, make, need); });
}

int Making::makeAll(const toolkit::DocumentReader& reader, const Make& make, const Need& need) {
  bool isFine = inputs_.find();
  const std::vector<std::string> targets = inputs_.targetsIn(target_);
  if (targets.size() != inputs_.all().size()) return exitRefused;
  if (need && !sparesWhatIsNeeded(reader, targets, need)) return exitRefused;
  const bool isFolder = inputs_.areSeveral() || (targets.size() == 1 && targets[0] != target_);
  const auto targetOf = [&](const Input& input) {
    return targets[static_cast<std::size_t>(&input - inputs_.all().data())];
  };
  const auto work = [&](const Input& input, Parcel& parcel) {
    const std::string target = targetOf(input);
    if (isFolder) makeFolder(std::filesystem::path(target).parent_path());
    const Made made = make(reader, input, target);
    parcel.put(made.notes.size());
    for (const toolkit::Finding& note : made.notes) parcel.put(note);
    parcel.put(made.text);
  };
  inputs_.workThrough(
      output_, work,
      {[&](const Input& input, OpenedParcel& parcel) { tell(targetOf(input), parcel); },
       [&](const Input&, const toolkit::Refusal& refusal) {
         printRefusal(refusal);
         isFine = false;
       },
       [] {}});
  return isFine ? exitFine : exitRefused;
}

bool Making::sparesWhatIsNeeded(const toolkit::DocumentReader& reader,
                                const std::vector<std::string>& targets, const Need& need) {
  // What one document needs itself is told with it.
  if (!inputs_.areSeveral()) return true;
  std::map<FileNumber, std::size_t> replaced;  // With the number of the input that is made of.
  for (std::size_t i = 0; i < targets.size(); i++) {
    if (const auto number = fileNumberOf(targets[i])) replaced.emplace(*number, i);
  }
  if (replaced.empty()) return true;
  inputs_.holdPipes();
  for (const Input& input : inputs_.all()) {
    std::string needed;
    try {
      needed = need(reader, input);
    } catch (const toolkit::RefusedDocument&) {  // NOLINT(bugprone-empty-catch)
      // It is told when its turn comes.
    }
    const auto number = fileNumberOf(needed);
    if (!number) continue;
    const auto found = replaced.find(*number);
    if (found == replaced.end()) continue;
    const Input& other = inputs_.all()[found->second];
    if (&other == &input) continue;
    printError("what is made of " + other.source.name + " would take the place of " + needed +
               ", which " + input.source.name + " names");
    return false;
  }
  return true;
}

void Making::tell(const std::string& target, OpenedParcel& parcel) const {
  if (output_.isQuiet()) return;
  toolkit::Findings notes;
  for (std::size_t left = parcel.number(); left > 0; --left) notes.push_back(parcel.finding());
  printFindings(target, notes);
  std::cout << toolkit::printable(target) << ": " << toolkit::printable(parcel.text()) << "\n";
}

}  // namespace cli

#include "cli/Making.h"

#include <filesystem>
#include <iostream>
#include <vector>

#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/Folder.h"
#include "cli/Messages.h"

namespace cli {

void Making::declareOutput(Arguments& arguments) {
  arguments.requiredOption("-o,--output", target_,
                           "The file to write, of several documents the folder; a file that is "
                           "there is replaced when the new one is complete");
  output_.declare(arguments);
}

int Making::run(const std::optional<std::string>& schemas, const Make& make) {
  return withReader(schemas,
                    [&](const toolkit::DocumentReader& reader) { return makeAll(reader, make); });
}

int Making::makeAll(const toolkit::DocumentReader& reader, const Make& make) {
  bool isFine = inputs_.find();
  const std::vector<std::string> targets = inputs_.targetsIn(target_);
  if (targets.size() != inputs_.all().size()) return exitRefused;
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

void Making::tell(const std::string& target, OpenedParcel& parcel) const {
  if (output_.isQuiet()) return;
  toolkit::Findings notes;
  for (std::size_t left = parcel.number(); left > 0; --left) notes.push_back(parcel.finding());
  printFindings(target, notes);
  std::cout << toolkit::printable(target) << ": " << toolkit::printable(parcel.text()) << "\n";
}

}  // namespace cli

#include "as/toolkit/Make.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

#include "as/IEntryPoint.h"
#include "as/toolkit/Files.h"
#include "toolkit/findings/Report.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/io/OutputCheck.h"
#include "toolkit/io/ServiceText.h"
#include "toolkit/make/ServiceMaker.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/walk/TreeWalk.h"

namespace as::toolkit {

namespace {

std::vector<std::string> entryPointsOf(as::IProgram& program) {
  std::vector<std::string> names;
  forEachMember<as::IEntryPoint>(program.getEntryPoints(), [&](as::IEntryPoint& entryPoint) {
    names.push_back(entryPoint.getName());
  });
  return names;
}

// Throws RefusedDocument for a name that is no entry point's.
void checkEntryPoints(as::IProgram& program, const std::string& dictionary,
                      const std::vector<std::string>& names) {
  const std::vector<std::string> unknown = unknownEntryPoints(program, names);
  if (unknown.empty()) return;
  const std::vector<std::string> known = entryPointsOf(program);
  std::string hint = known.empty() ? "the program has none" : "the program has";
  for (const std::string& name : known) hint += (&name == known.data() ? " " : ", ") + name;
  throw RefusedDocument(
      {dictionary, 0, 0, "there is no entry point " + quote(unknown.front()), hint});
}

}  // namespace

std::vector<std::string> unknownEntryPoints(as::IProgram& program,
                                            const std::vector<std::string>& names) {
  const std::vector<std::string> all = entryPointsOf(program);
  const std::unordered_set<std::string> known(all.begin(), all.end());
  std::vector<std::string> unknown;
  std::copy_if(names.begin(), names.end(), std::back_inserter(unknown),
               [&known](const std::string& name) { return !known.contains(name); });
  return unknown;
}

MadeService makeService(std::unique_ptr<as::IProgram> program, const Flavour& flavour,
                        const MakeOptions& options) {
  const FlavourProfile& profile = profileOf(flavour);
  const std::string name = options.name.empty() ? program->getName() : options.name;
  MadeService made;
  made.service = profile.newService(std::move(program));
  made.service->setName(name.c_str());
  fillService(made, profile, options.entryPoints);
  if (made.operations == 0) {
    Report(made.notes)
        .note("no-entry-points", "service",
              "the program has no entry points: there are no operations");
  }
  return made;
}

MadeService makeServiceFile(const DocumentReader& reader, const std::string& dictionary,
                            const std::string& output, const Flavour& flavour,
                            const MakeOptions& options) {
  checkOutput(output, dictionary, "dictionary");
  std::unique_ptr<as::IProgram> program = reader.readDictionary(dictionary);
  checkEntryPoints(*program, dictionary, options.entryPoints);
  MadeService made = makeService(std::move(program), flavour, options);
  made.service->setDDFilename(nameSeenFrom(output, dictionary).c_str());
  writeService(*made.service, output);
  return made;
}

}  // namespace as::toolkit

// Finds what REDEFINES and RENAMES name: items that share their places with others.
#ifndef TOOLKIT_IMPORT_SHAREDPLACES_H_
#define TOOLKIT_IMPORT_SHAREDPLACES_H_

#include <cstddef>
#include <map>
#include <utility>

#include "toolkit/import/EntryFinder.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/ProgramEntries.h"

namespace as::toolkit {

class SharedPlaces {
 public:
  // Both must outlive it.
  SharedPlaces(CobolProgram& program, EntryFinder& finder) : program_(program), finder_(finder) {}

  // Other records are in front of the ones that follow: those of a section or file.
  void enter() { lastOriginal_ = none; }

  // Finds what the redefinitions in a record, which is the last one, redefine.
  void findOriginals(Index record, EntryProblems& problems);

  // RENAMES entries of a record whose items have their places are what they rename.
  void findRenamed(Index record, EntryProblems& problems);

  // A record that is complete may be redefined.
  void keep(Index record);

 private:
  DataEntry& at(Index entry) { return program_.entries[static_cast<std::size_t>(entry)]; }
  Index size() const { return static_cast<Index>(program_.entries.size()); }

  CobolProgram& program_;
  EntryFinder& finder_;
  std::map<std::pair<DataSection, Index>, Index> recordsByName_;
  Index lastOriginal_ = none;  // The last record that is no redefinition.
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_SHAREDPLACES_H_

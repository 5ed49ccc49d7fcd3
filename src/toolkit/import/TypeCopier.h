// Gives entries what the types that they are of have, and what the items have that they are like.
#ifndef TOOLKIT_IMPORT_TYPECOPIER_H_
#define TOOLKIT_IMPORT_TYPECOPIER_H_

#include <cstddef>
#include <string>

#include "toolkit/import/EntryBudget.h"
#include "toolkit/import/EntryFinder.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/OpenRecord.h"
#include "toolkit/import/ProgramEntries.h"

namespace as::toolkit {

class TypeCopier {
 public:
  // What a dictionary can hold is read again, and so are its groups.
  static constexpr int mostDepth = 120;
  static constexpr std::size_t mostEntries = 2'000'000;

  // All must outlive it.
  TypeCopier(CobolProgram& program, EntryFinder& finder, OpenRecord& open, EntryBudget& budget,
             EntryProblems& problems)
      : program_(program), finder_(finder), open_(open), budget_(budget), problems_(problems) {}

  // Gives the last entry of the program, which has a type and stands so deep in `record`, what that
  // has, by itself or by its groups. Whether redefinitions came with it.
  bool putTypeIn(Index target, Index record, int depth);

 private:
  DataEntry& at(Index entry) { return program_.entries[static_cast<std::size_t>(entry)]; }
  Index size() const { return static_cast<Index>(program_.entries.size()); }

  Index sourceOf(const NameReference& reference, Index record, const CobolProgram** from);
  // Whether the entry stands in that group.
  bool isBelow(Index entry, Index group);
  bool isInGroupWithUsage(Index entry);
  bool mayRepeat(const CobolProgram& from, const DataEntry& entry, const SourcePlace& place);
  DataEntry brought(const CobolProgram& from, Index source);
  static void takeDescription(const DataEntry& type, DataEntry& entry);
  void lengthen(DataEntry& entry);
  bool mayStand(int depth, const std::string& name, const SourcePlace& place);
  bool copyMembers(const CobolProgram& from, Index source, Index target, int depth);

  CobolProgram& program_;
  EntryFinder& finder_;
  OpenRecord& open_;
  EntryBudget& budget_;
  EntryProblems& problems_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_TYPECOPIER_H_

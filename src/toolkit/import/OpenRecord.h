// Finds the entries of the record that is being built by their names.
#ifndef TOOLKIT_IMPORT_OPENRECORD_H_
#define TOOLKIT_IMPORT_OPENRECORD_H_

#include <cstddef>
#include <map>
#include <unordered_map>
#include <vector>

#include "toolkit/import/EntryBudget.h"
#include "toolkit/import/EntryFinder.h"
#include "toolkit/import/ProgramEntries.h"

namespace as::toolkit {

class OpenRecord {
 public:
  // Those of one name and its qualifiers.
  struct Found {
    Index first = none;
    Index last = none;
  };

  // All must outlive it.
  OpenRecord(const CobolProgram& program, const EntryFinder& finder, EntryBudget& budget)
      : program_(program), finder_(finder), budget_(budget) {}

  // The record starts with that entry.
  void begin(Index record);

  // Among the entries in front of `end`, which is no smaller than the last time. What was looked at
  // for the same names is not looked at again; nothing is found when that becomes too much.
  Found find(const std::vector<NameReference::Name>& names, Index end, const SourcePlace& place);

 private:
  using Entries = std::vector<Index>;

  struct Known {
    Found found;
    std::size_t lookedAt = 0;
  };

  const Entries* entriesOf(Index nameId) const;
  // Whether the entry stands in that group.
  bool isBelow(Index entry, Index group) const;
  std::size_t lookAt(const std::vector<NameReference::Name>& names, const Entries& wanted,
                     const Entries& groups, Known& known) const;

  const CobolProgram& program_;
  const EntryFinder& finder_;
  EntryBudget& budget_;
  Index next_ = 0;  // The first one that is not in byName_.
  std::unordered_map<Index, Entries> byName_;
  std::map<std::vector<Index>, Known> known_;  // By the numbers of the names.
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_OPENRECORD_H_

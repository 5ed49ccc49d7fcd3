// Finds the entries of a program by their names.
#ifndef TOOLKIT_IMPORT_ENTRYFINDER_H_
#define TOOLKIT_IMPORT_ENTRYFINDER_H_

#include <map>
#include <unordered_map>
#include <utility>
#include <vector>

#include "toolkit/import/ProgramEntries.h"

namespace as::toolkit {

class EntryFinder {
 public:
  struct Range {
    Index begin = 0;
    Index end = 0;
  };
  struct Found {
    Index entry = none;
    bool isUnclear = false;  // There is another one.
  };

  explicit EntryFinder(const CobolProgram& program) : program_(program) {}

  // Entries are added in their order.
  void add(Index entry);

  // The first entry of that name and qualifiers among those of the range, which begins with a
  // record. Costs of all searches
  // together stay far from the product of searches and entries: the rarest name is looked for, and
  // its answer is kept.
  Found find(const std::vector<NameReference::Name>& names, Range range);

  // Whether the entry, which may not be added yet, stands in groups of the names behind the first.
  bool isQualified(Index entry, const std::vector<NameReference::Name>& names) const;

 private:
  using Entries = std::vector<Index>;

  const Entries* entriesOf(Index nameId) const;
  Found search(const std::vector<NameReference::Name>& names, Range range) const;

  const CobolProgram& program_;
  std::unordered_map<Index, Entries> byName_;
  // Answers by the numbers of the names and the range.
  std::map<std::vector<Index>, Found> known_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_ENTRYFINDER_H_

// Finds the places of the items of a record.
#ifndef TOOLKIT_IMPORT_RECORDLAYOUT_H_
#define TOOLKIT_IMPORT_RECORDLAYOUT_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "as/toolkit/Storage.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/ProgramEntries.h"

namespace as::toolkit {

class RecordLayout {
 public:
  RecordLayout(const Dialect& dialect, CobolProgram& program, EntryProblems& problems)
      : dialect_(dialect), program_(program), problems_(problems) {}

  // Gives the items of the record their offsets, groups their lengths, and both their slack bytes.
  // REQUIRES: elementary items have their lengths and boundaries, redefinitions their originals.
  // False, after an error was told, when the record is too large.
  bool place(Index record);

 private:
  bool placeItem(Index index, std::int64_t start);
  bool placeMembers(Index index);
  void tellSlackPlace(const DataEntry& item, const DataEntry& group, const char* where);
  void lookAtRedefinition(const DataEntry& item);
  DataEntry& at(Index entry) { return program_.entries[static_cast<std::size_t>(entry)]; }
  const DataEntry& at(Index entry) const {
    return program_.entries[static_cast<std::size_t>(entry)];
  }

  const Dialect& dialect_;
  CobolProgram& program_;
  EntryProblems& problems_;
};

// The elementary item which starts where the group starts; the innermost group, if that holds
// nothing but RENAMES.
inline Index leadingItem(const std::vector<DataEntry>& entries, Index item) {
  const auto at = [&entries](Index entry) -> const DataEntry& {
    return entries[static_cast<std::size_t>(entry)];
  };
  while (at(item).hasMembers && item + 1 < at(item).end) ++item;
  return item;
}

// The bytes that all occurrences of an item take.
inline std::int64_t extentOf(const DataEntry& item) {
  return std::int64_t{item.length} * (item.maxOccurs > 1 ? item.maxOccurs : 1);
}

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_RECORDLAYOUT_H_

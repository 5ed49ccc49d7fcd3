// Builds the records of a program out of its entries: nests them by their levels, has types put in,
// and has their places found when a record is complete.
#ifndef TOOLKIT_IMPORT_RECORDBUILDER_H_
#define TOOLKIT_IMPORT_RECORDBUILDER_H_

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "as/toolkit/Storage.h"
#include "toolkit/import/EntryBudget.h"
#include "toolkit/import/EntryFinder.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/OpenRecord.h"
#include "toolkit/import/PassedCopybooks.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/SharedPlaces.h"
#include "toolkit/import/TypeCopier.h"

namespace as::toolkit {

class RecordBuilder {
 public:
  // All must outlive it.
  RecordBuilder(const Dialect& dialect, CobolProgram& program, EntryProblems& problems,
                EntryBudget& budget, PassedCopybooks& passed)
      : dialect_(dialect),
        program_(program),
        problems_(problems),
        budget_(budget),
        passed_(passed),
        finder_(program),
        openRecord_(program, finder_, budget),
        types_(program, finder_, openRecord_, budget, problems),
        places_(program, finder_) {}

  // The sections that follow.
  void enter(DataSection section);
  // The file whose records follow; null behind the file section.
  void enterFile(FileEntry* file);

  // Adds an entry of level 01 to 49 or 77, or a RENAMES entry. False when it stands in no record.
  bool add(DataEntry entry);

  // The entry that a condition belongs to: the last one; null when there is none.
  DataEntry* conditionHolder();

  // Ends the record that is open.
  void closeRecord();

  // Finds the items that tables depend on, when all records are there.
  void finish();

  // The size of an item, of a record that is complete or still open.
  std::optional<std::int64_t> lengthOf(const NameReference& reference);

  // The item of that name in a complete record; none when there is none.
  EntryFinder::Found find(const std::vector<NameReference::Name>& names);

 private:
  struct Open {
    int level;
    Index entry;
  };

  DataEntry& at(Index entry) { return program_.entries[static_cast<std::size_t>(entry)]; }
  Index size() const { return static_cast<Index>(program_.entries.size()); }

  void nest(DataEntry& entry);
  void link();
  void placeRecord(EntryProblems& problems);
  std::optional<std::int64_t> lengthInOpenRecord(const NameReference& reference);
  void keepRecord();
  bool isFilledBySystem(const DataEntry& record);
  static bool isOfCics(const NameReference& reference);
  bool isOfOuter(const NameReference& reference) const;
  void findDepending(DataEntry& entry);

  const Dialect& dialect_;
  CobolProgram& program_;
  EntryProblems& problems_;
  EntryBudget& budget_;
  PassedCopybooks& passed_;
  EntryFinder finder_;
  OpenRecord openRecord_;
  TypeCopier types_;
  SharedPlaces places_;

  DataSection section_ = DataSection::workingStorage;
  FileEntry* file_ = nullptr;

  Index record_ = none;
  Index last_ = none;  // The last entry that was added, before those of its type.
  std::vector<Open> open_;
  std::vector<DataEntry> renamings_;
  SourcePlace behind_;  // Where the entry behind the record stands, while that is closed.
  bool isRenamingLast_ = false;
  bool hasRedefinitions_ = false;
  bool isOverfull_ = false;
  bool isLostTold_ = false;  // That entries stand in no record, since the last one.
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_RECORDBUILDER_H_

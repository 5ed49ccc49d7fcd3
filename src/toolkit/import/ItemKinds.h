// Finds out what the items of a record are: what groups hand down, and the size of elementary
// items.
#ifndef TOOLKIT_IMPORT_ITEMKINDS_H_
#define TOOLKIT_IMPORT_ITEMKINDS_H_

#include "as/toolkit/Storage.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/ProgramEntries.h"

namespace as::toolkit {

class ItemKinds {
 public:
  ItemKinds(const Dialect& dialect, CobolProgram& program, EntryProblems& problems)
      : dialect_(dialect), program_(program), problems_(problems) {}

  // Fills in what follows from the clauses of an entry. REQUIRES: its group was looked at.
  void lookAt(Index index);

 private:
  void handDown(Index index, DataEntry& entry);
  void lookAtGroup(const DataEntry& entry);
  void lookAtItem(DataEntry& entry);
  void implyPicture(DataEntry& entry);
  void lookAtSign(DataEntry& entry, const Picture& picture);
  bool hasKnownSize(DataEntry& entry, const Picture* picture);
  void compareDialects(const DataEntry& entry, const Picture* picture);
  ItemElement elementOf(const DataEntry& entry, const Picture* picture);

  const Dialect& dialect_;
  CobolProgram& program_;
  EntryProblems& problems_;
};

// The picture of an entry; null when it has none, or none that can be read.
const Picture* pictureOf(const CobolProgram& program, const DataEntry& entry);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_ITEMKINDS_H_

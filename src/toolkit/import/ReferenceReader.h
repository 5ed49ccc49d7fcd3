// Reads the clauses that name another entry: REDEFINES, RENAMES, TYPE, LIKE and SAME AS.
#ifndef TOOLKIT_IMPORT_REFERENCEREADER_H_
#define TOOLKIT_IMPORT_REFERENCEREADER_H_

#include "toolkit/import/ConstantReader.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

// Each answers whether the clause was understood; what was not is told.
class ReferenceReader {
 public:
  ReferenceReader(WordReader& words, CobolProgram& program, ConstantReader& constants,
                  EntryProblems& problems)
      : words_(words), program_(program), constants_(constants), problems_(problems) {}

  // From REDEFINES or LIKE on, or from the name on.
  bool read(DataEntry& entry, NameReference::Kind kind);
  bool readRenames(DataEntry& entry);

  // Whether a TYPEDEF of that name stands in front, in this program or one around it.
  bool isType(Index name) const;

 private:
  bool readLikeChange(DataEntry& entry);

  WordReader& words_;
  CobolProgram& program_;
  ConstantReader& constants_;
  EntryProblems& problems_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_REFERENCEREADER_H_

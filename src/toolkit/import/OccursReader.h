// Reads OCCURS clauses.
#ifndef TOOLKIT_IMPORT_OCCURSREADER_H_
#define TOOLKIT_IMPORT_OCCURSREADER_H_

#include "toolkit/import/ConstantReader.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

class OccursReader {
 public:
  OccursReader(WordReader& words, CobolProgram& program, ConstantReader& constants,
               EntryProblems& problems)
      : words_(words), program_(program), constants_(constants), problems_(problems) {}

  // Takes the clause, whose first word comes next, into the entry; false when an error was told.
  bool read(DataEntry& entry);

 private:
  void readDynamic(DataEntry& entry);
  bool readOccurrences(DataEntry& entry);
  bool readPhrases(DataEntry& entry);
  void skipNames();
  bool bad(EntryRule rule, const SourcePlace& place, const std::string& text);

  WordReader& words_;
  CobolProgram& program_;
  ConstantReader& constants_;
  EntryProblems& problems_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_OCCURSREADER_H_

// Reads the clauses of a data description entry.
#ifndef TOOLKIT_IMPORT_CLAUSEREADER_H_
#define TOOLKIT_IMPORT_CLAUSEREADER_H_

#include <string>
#include <vector>

#include "toolkit/import/ConstantReader.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/HostVariables.h"
#include "toolkit/import/OccursReader.h"
#include "toolkit/import/PictureTable.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/ReferenceReader.h"
#include "toolkit/import/UsageReader.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

class ClauseReader {
 public:
  ClauseReader(WordReader& words, CobolProgram& program, NameTable& names,
               ConstantReader& constants, EntryProblems& problems)
      : words_(words),
        names_(names),
        constants_(constants),
        problems_(problems),
        pictures_(program, constants, problems),
        occurs_(words, program, constants, problems),
        hostVariables_(words, names, constants, pictures_, problems),
        references_(words, program, constants, problems),
        usages_(words, references_, hostVariables_, problems) {}

  // The name that follows the level number, if there is one.
  void readName(DataEntry& entry);

  // Reads what comes up to the period, or to what cannot be of this entry. What is not understood
  // is told once, and the rest passed over.
  void readClauses(DataEntry& entry);

  // The members that a precompiler gives the entry whose clauses were read.
  std::vector<DataEntry> takeMembers(DataEntry& entry) { return hostVariables_.takeMembers(entry); }

  // Ends an entry: takes its period, or tells that there is none.
  void endEntry(const DataEntry& entry);

 private:
  bool readClause(DataEntry& entry);
  bool readPicture(DataEntry& entry);
  bool isPointOfPicture(const std::string& text, const SourcePlace& place);
  bool readSign(DataEntry& entry);
  bool passOver(const DataEntry& entry, const char* what);
  void readValue(DataEntry& entry);

  WordReader& words_;
  NameTable& names_;
  ConstantReader& constants_;
  EntryProblems& problems_;
  PictureTable pictures_;
  OccursReader occurs_;
  HostVariables hostVariables_;
  ReferenceReader references_;
  UsageReader usages_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_CLAUSEREADER_H_

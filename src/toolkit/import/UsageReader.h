// Reads USAGE clauses.
#ifndef TOOLKIT_IMPORT_USAGEREADER_H_
#define TOOLKIT_IMPORT_USAGEREADER_H_

#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/HostVariables.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/ReferenceReader.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

// Each answers whether the clause was understood; what was not is told.
class UsageReader {
 public:
  UsageReader(WordReader& words, ReferenceReader& references, HostVariables& hostVariables,
              EntryProblems& problems)
      : words_(words),
        references_(references),
        hostVariables_(hostVariables),
        problems_(problems) {}

  // From USAGE on, or from the word for one on.
  bool read(DataEntry& entry);
  bool readHandle(DataEntry& entry);

 private:
  bool readAgain(const DataEntry& entry, const SourcePlace& place);
  void readPhrases(DataEntry& entry);

  WordReader& words_;
  ReferenceReader& references_;
  HostVariables& hostVariables_;
  EntryProblems& problems_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_USAGEREADER_H_

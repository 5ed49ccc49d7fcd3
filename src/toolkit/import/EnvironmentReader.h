// Reads what a dictionary needs of an environment division: SPECIAL-NAMES and SELECT.
#ifndef TOOLKIT_IMPORT_ENVIRONMENTREADER_H_
#define TOOLKIT_IMPORT_ENVIRONMENTREADER_H_

#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/NameTable.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

class EnvironmentReader {
 public:
  EnvironmentReader(WordReader& words, CobolProgram& program, NameTable& names)
      : words_(words), program_(program), names_(names) {}

  // Reads up to the data division, or to whatever else stands behind this one.
  void read();

 private:
  bool isAtEnd();
  bool isAtEntry();
  void readCurrency();
  void readConvention();
  void readSelect();
  bool readOrganization(FileEntry& file);
  void readAccess(FileEntry& file);

  WordReader& words_;
  CobolProgram& program_;
  NameTable& names_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_ENVIRONMENTREADER_H_

// Reads what a dictionary needs of a procedure division: its header, and ENTRY statements.
#ifndef TOOLKIT_IMPORT_PROCEDUREREADER_H_
#define TOOLKIT_IMPORT_PROCEDUREREADER_H_

#include <optional>
#include <string>

#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/NameTable.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

class ProcedureReader {
 public:
  ProcedureReader(WordReader& words, CobolProgram& program, NameTable& names,
                  EntryProblems& problems)
      : words_(words), program_(program), names_(names), problems_(problems) {}

  // Reads the header, whose words come next, of a program that is called by that name.
  void readHeader(const std::string& name);

  // Passes over statements up to the end of the program, or the beginning of another one.
  void readStatements();

 private:
  std::optional<int> findConvention(Index name) const;
  void readConvention(EntryPointEntry& entryPoint);
  void readParameters(EntryPointEntry& entryPoint);
  void readParameter(EntryPointEntry& entryPoint, HandedOver how);
  void readEntry();
  bool isAtParametersEnd();
  bool isAtProgramEnd();

  WordReader& words_;
  CobolProgram& program_;
  NameTable& names_;
  EntryProblems& problems_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_PROCEDUREREADER_H_

// Reads the programs of a source, contained ones too, or the entries of a copybook.
#ifndef TOOLKIT_IMPORT_PROGRAMREADER_H_
#define TOOLKIT_IMPORT_PROGRAMREADER_H_

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "as/toolkit/Storage.h"
#include "toolkit/import/EntryBudget.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/NameTable.h"
#include "toolkit/import/PassedCopybooks.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/RecordBuilder.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

class ProgramReader {
 public:
  enum class Form { automatic, copybook };

  // `stem` names a copybook's program, and its record where it has none.
  ProgramReader(TokenSource& source, const Dialect& dialect, Form form, std::string stem,
                EntryProblems& problems, const EntryBudget::Most& most = {})
      : words_(source),
        dialect_(dialect),
        form_(form),
        stem_(std::move(stem)),
        problems_(problems),
        budget_(most, problems),
        passed_(source) {}

  // The programs in the order in which they begin.
  std::vector<std::unique_ptr<CobolProgram>> read();

 private:
  bool holdsStatements();
  bool isCopybook();
  void readCopybook();
  void readProgramId();
  void readDivisions();
  // `errors` are those told when the program began: more refuse it.
  void readBody(CobolProgram& program, const std::string& entryName, std::size_t errors);
  void readEnd();
  void passOver(const char* what);
  void takeCommarea(CobolProgram& program);
  bool holdsNothing(const CobolProgram& program) const;
  void findParameters(CobolProgram& program, RecordBuilder& records);
  CobolProgram& begin(std::string name, const SourcePlace& place);

  WordReader words_;
  const Dialect& dialect_;
  Form form_;
  std::string stem_;
  EntryProblems& problems_;
  EntryBudget budget_;
  PassedCopybooks passed_;
  NameTable names_;
  std::vector<std::unique_ptr<CobolProgram>> programs_;
  std::vector<CobolProgram*> open_;  // Those that are not ended, the innermost last.
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_PROGRAMREADER_H_

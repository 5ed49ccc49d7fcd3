// Reads the data division of a program: its sections, files and entries.
#ifndef TOOLKIT_IMPORT_DATADIVISIONREADER_H_
#define TOOLKIT_IMPORT_DATADIVISIONREADER_H_

#include <string>
#include <unordered_map>

#include "toolkit/import/ClauseReader.h"
#include "toolkit/import/ConditionReader.h"
#include "toolkit/import/ConstantReader.h"
#include "toolkit/import/EntryBudget.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/NameTable.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/RecordBuilder.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

class DataDivisionReader {
 public:
  DataDivisionReader(WordReader& words, CobolProgram& program, NameTable& names,
                     RecordBuilder& records, EntryBudget& budget, EntryProblems& problems);

  // Reads up to the procedure division, or to where the program ends. `recordName` is what a record
  // is called that a first entry below level 01 gets; empty when there is to be none.
  void read(const std::string& recordName = "");

 private:
  bool isAtSection();
  bool isAtEnd();
  bool isAtRecord();
  void readSection();
  void readFile();
  void readEntry(const std::string& recordName);
  void readConstant(const DataEntry& entry, bool isLevel78);
  void skipSection();
  bool isConstant();

  WordReader& words_;
  CobolProgram& program_;
  NameTable& names_;
  RecordBuilder& records_;
  EntryProblems& problems_;
  ConstantReader constants_;
  ClauseReader clauses_;
  ConditionReader conditions_;
  std::unordered_map<Index, std::size_t> files_;  // By name id.
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_DATADIVISIONREADER_H_

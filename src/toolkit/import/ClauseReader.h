// Reads the clauses of a data description entry.
#ifndef TOOLKIT_IMPORT_CLAUSEREADER_H_
#define TOOLKIT_IMPORT_CLAUSEREADER_H_

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "toolkit/import/ConstantReader.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

class ClauseReader {
 public:
  ClauseReader(WordReader& words, CobolProgram& program, NameTable& names,
               ConstantReader& constants, EntryProblems& problems)
      : words_(words),
        program_(program),
        names_(names),
        constants_(constants),
        problems_(problems) {}

  // The name that follows the level number, if there is one.
  void readName(DataEntry& entry);

  // Reads what comes up to the period, or to what cannot be of this entry. What is not understood
  // is told once, and the rest passed over.
  void readClauses(DataEntry& entry);

  // Ends an entry: takes its period, or tells that there is none.
  void endEntry(const DataEntry& entry);

  // Whether what comes next begins another entry, section or division.
  bool isAtNextEntry();

 private:
  bool readClause(DataEntry& entry);
  bool readUsage(DataEntry& entry);
  void readUsagePhrases(DataEntry& entry);
  bool readPicture(DataEntry& entry);
  bool readSign(DataEntry& entry);
  bool readOccurs(DataEntry& entry);
  bool readOccurrences(DataEntry& entry);
  bool readOccursPhrases(DataEntry& entry);
  bool readReference(DataEntry& entry, NameReference::Kind kind);
  bool readRenames(DataEntry& entry);
  bool passOver(DataEntry& entry, const char* what);
  void skipNames();
  void skipValue();
  bool bad(DataEntry& entry, const SourcePlace& place, const std::string& text);
  bool isClause(const Word& word) const;

  Index pictureOf(const std::string& written, const SourcePlace& place);
  std::string withConstants(const std::string& picture) const;

  WordReader& words_;
  CobolProgram& program_;
  NameTable& names_;
  ConstantReader& constants_;
  EntryProblems& problems_;
  std::unordered_map<std::string, Index> pictures_;
};

// The number of a level; negative when the word is no number of two digits at most.
int levelOf(const Word& word);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_CLAUSEREADER_H_

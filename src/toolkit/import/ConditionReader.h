// Reads level 88 entries.
#ifndef TOOLKIT_IMPORT_CONDITIONREADER_H_
#define TOOLKIT_IMPORT_CONDITIONREADER_H_

#include <optional>
#include <string>

#include "toolkit/import/ConstantReader.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

class ConditionReader {
 public:
  ConditionReader(WordReader& words, CobolProgram& program, const ConstantReader& constants,
                  EntryProblems& problems)
      : words_(words), program_(program), constants_(constants), problems_(problems) {}

  // Reads what follows the level number, up to the period. `item` is the one that the condition is
  // of; null when there is none.
  void read(DataEntry* item);

 private:
  void readValues();
  std::optional<std::string> takeValue();
  std::string takeLiteral();

  WordReader& words_;
  CobolProgram& program_;
  const ConstantReader& constants_;
  EntryProblems& problems_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_CONDITIONREADER_H_

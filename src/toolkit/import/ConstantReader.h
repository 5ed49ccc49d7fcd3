// Reads what the values of constants are made of: numbers, literals, other constants, and sums.
#ifndef TOOLKIT_IMPORT_CONSTANTREADER_H_
#define TOOLKIT_IMPORT_CONSTANTREADER_H_

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/import/EntryBudget.h"
#include "toolkit/import/NameTable.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

class ConstantReader {
 public:
  // The size in bytes of the item of that name; nothing when there is none.
  using LengthOf = std::function<std::optional<std::int64_t>(const NameReference&)>;

  ConstantReader(WordReader& words, const CobolProgram& program, NameTable& names,
                 EntryBudget& budget, LengthOf lengthOf)
      : words_(words),
        program_(program),
        names_(names),
        budget_(budget),
        lengthOf_(std::move(lengthOf)) {}

  // The constant of that name, of the program or of one that contains it.
  const ConstantEntry* find(const std::string& name) const;

  // The text of the constant of that name, as a value that repeats it. Nothing when there is none,
  // or after it was told that too much is repeated.
  std::optional<std::string> textOf(const Token& name) const;

  // The whole number that comes next: its digits, or the name of a constant. Nothing is taken when
  // there is none.
  std::optional<std::int64_t> takeInteger();

  // What comes up to the end of the entry. Nothing when that cannot be worked out.
  std::optional<ConstantEntry> takeValue();

  // What a directive defined under the name that comes next. Nothing when none did.
  std::optional<ConstantEntry> takeDefinition();

  // A name with what qualifies it. Nothing is taken when no name comes next.
  std::vector<NameReference::Name> takeName();

 private:
  std::optional<std::int64_t> takeOperand();
  std::optional<std::int64_t> takeSum();

  WordReader& words_;
  const CobolProgram& program_;
  NameTable& names_;
  EntryBudget& budget_;
  LengthOf lengthOf_;
};

// The whole number of that text: digits with a sign or without one.
std::optional<std::int64_t> readInteger(const std::string& text);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_CONSTANTREADER_H_

// Writes a program's entries as the text of a data dictionary.
#ifndef TOOLKIT_IMPORT_DICTIONARYTEXT_H_
#define TOOLKIT_IMPORT_DICTIONARYTEXT_H_

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/ProgramEntries.h"

namespace as::toolkit {

using DictionaryProperties = std::vector<std::pair<std::string, std::string>>;

// Valid for the schema of dictionaries. REQUIRES: no errors were told of the program.
std::string dictionaryText(const CobolProgram& program, const DictionaryProperties& properties,
                           EntryProblems& problems);

// The name of an item in a dictionary, dotted from the record down.
std::string pathOf(const CobolProgram& program, Index entry);

// How many items a dictionary holds.
std::size_t itemsOf(const CobolProgram& program);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_DICTIONARYTEXT_H_

// Names in the entries of a program.
#ifndef TOOLKIT_IMPORT_ENTRYNAMES_H_
#define TOOLKIT_IMPORT_ENTRYNAMES_H_

#include <string>
#include <vector>

#include "toolkit/import/ProgramEntries.h"

namespace as::toolkit {

// What REDEFINES or RENAMES names; null when there is none of that kind.
const NameReference* referenceOf(const CobolProgram& program, const DataEntry& entry,
                                 NameReference::Kind kind);

// "A OF B"
std::string textOf(const std::vector<NameReference::Name>& names);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_ENTRYNAMES_H_

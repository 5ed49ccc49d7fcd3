// Prints a data dictionary as a tree for reading.
#ifndef TOOLKIT_RENDER_DICTIONARYPRINTER_H_
#define TOOLKIT_RENDER_DICTIONARYPRINTER_H_

#include <iosfwd>

namespace as {
class IProgram;
}

// Sections come in the order of the document; those without members are left out. Names and
// clauses of the program's own are in its letters, everything that this tool adds is in small
// letters, section titles aside.
void printDictionary(std::ostream& out, as::IProgram& program);

#endif  // TOOLKIT_RENDER_DICTIONARYPRINTER_H_

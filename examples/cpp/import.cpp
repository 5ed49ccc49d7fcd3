// Makes a dictionary of a COBOL source, tells what was found in it, and why an item stands where it
// stands.
// usage: import SOURCE OUTPUT ITEM
#include <as/toolkit/Toolkit.h>

#include <iostream>

namespace toolkit = as::toolkit;

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  try {
    // Copybooks are looked for in these folders and beside the source.
    const toolkit::ImportedFile file = toolkit::importCobolFile(argv[1], argv[2], {"copybooks"});
    for (const toolkit::ImportFinding& finding : file.imported.findings) {
      std::cout << textOf(finding) << '\n';
    }
    for (const toolkit::ImportedProgram& program : file.imported.programs) {
      std::cout << program.name << ": "
                << (program.isRefused() ? "not understood" : toolkit::count(program.items, "item"))
                << '\n';
      for (const toolkit::ItemExplanation& why : toolkit::explainItem(program, argv[3])) {
        std::cout << textOf(why);
      }
    }
    return toolkit::countOf(file.imported.findings, toolkit::Severity::error) == 0 ? 0 : 1;
  } catch (const std::runtime_error& problem) {  // A file that cannot be read or written.
    std::cerr << problem.what() << '\n';
    return 1;
  }
}

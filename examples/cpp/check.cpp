// Makes a service of a dictionary, looks for what is broken in it, and carries it over to another
// flavour: what the command agentservices does, in a program.
// usage: check SCHEMAS DICTIONARY OUTPUT
#include <as/toolkit/Toolkit.h>

#include <iostream>
#include <string>

namespace toolkit = as::toolkit;

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  const std::string output = argv[3];
  try {
    const toolkit::DocumentReader reader(argv[1]);
    const toolkit::MadeService made =
        toolkit::makeServiceFile(reader, argv[2], output, *toolkit::findFlavour("java"));
    std::cout << toolkit::count(static_cast<std::size_t>(made.operations), "operation") << ", "
              << toolkit::count(static_cast<std::size_t>(made.mappings), "mapping") << '\n';

    const toolkit::Findings findings = toolkit::lintFile(reader, output);
    for (const toolkit::Finding& finding : findings) {
      std::cout << toolkit::printable(textOf(finding)) << '\n';
    }
    std::cout << toolkit::count(countOf(findings, toolkit::Severity::error), "error") << '\n';

    const toolkit::ConvertedService web = toolkit::convertServiceFile(
        reader, output, output + ".ws.xml", *toolkit::findFlavour("ws"));
    std::cout << "now of flavour " << toolkit::flavourOf(*web.service).name << ", "
              << toolkit::count(web.notes.size(), "note") << '\n';
  } catch (const toolkit::RefusedDocument& problem) {
    std::cerr << problem.what() << '\n';
    if (!problem.refusal().hint.empty()) std::cerr << problem.refusal().hint << '\n';
    return 1;
  } catch (const toolkit::FileError& problem) {
    std::cerr << problem.what() << '\n';
    return 1;
  }
}

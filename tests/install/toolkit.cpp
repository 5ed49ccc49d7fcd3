// A client of the installed toolkit: reads, looks at, makes, carries over and shows services.
#include "as/toolkit/Toolkit.h"

#include <iostream>
#include <sstream>
#include <string>

namespace toolkit = as::toolkit;

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const std::string schemas = argv[1];
  const std::string examples = argv[2];
  const std::string folder = argv[3];
  try {
    const toolkit::DocumentReader reader(schemas);
    const std::string dictionary = examples + "/MOTPREM.xml";
    const std::string web = folder + "/web.xml";
    const std::string java = folder + "/java.xml";

    const toolkit::MadeService made =
        toolkit::makeServiceFile(reader, dictionary, web, *toolkit::findFlavour("ws"));
    std::cout << "made " << made.operations << " operations, " << made.mappings << " mappings\n";

    const toolkit::ConvertedService converted =
        toolkit::convertServiceFile(reader, web, java, *toolkit::findFlavour("java"));
    std::cout << "converted from " << converted.from->name << " to "
              << toolkit::flavourOf(*converted.service).name << "\n";

    const toolkit::Findings findings = toolkit::lintFile(reader, java);
    for (const toolkit::Finding& finding : findings) {
      std::cout << toolkit::printable(textOf(finding)) << "\n";
    }
    std::cout << toolkit::count(countOf(findings, toolkit::Severity::error), "error") << ", of "
              << toolkit::lintRules().size() << " rules\n";

    const toolkit::ServiceDocument shown = reader.readServiceWithProgram(java);
    std::ostringstream tree;
    std::ostringstream json;
    toolkit::renderText(tree, *shown.service);
    toolkit::renderJson(json, *shown.service);
    std::cout << tree.str().substr(0, tree.str().find('\n')) << ", program "
              << shown.service->getProgram()->getName() << ", JSON of "
              << (json.str().size() > tree.str().size() ? "more" : "less") << "\n";

    toolkit::writeService(*shown.service, folder + "/copy.xml");
    reader.readDictionary(java);
  } catch (const toolkit::RefusedDocument& refused) {
    // The last step: a service is no dictionary.
    std::cout << "refused: " << refused.refusal().text.substr(0, 21) << "\n";
    return 0;
  }
  return 1;
}

#include "cli/Command.h"

#include <iostream>

#include "as/CASException.h"
#include "as/toolkit/Text.h"
#include "cli/Messages.h"
#include "cli/SchemaDirectory.h"

namespace cli {

int withReader(const std::optional<std::string>& schemas,
               const std::function<int(const toolkit::DocumentReader&)>& work) {
  std::string directory;
  try {
    directory = findSchemaDirectory(schemas);
  } catch (const SchemaDirectoryMissing& missing) {
    printError(missing.what());
    return exitUsage;
  }
  try {
    return work(toolkit::DocumentReader(directory));
  } catch (const toolkit::RefusedDocument& refused) {
    printRefusal(refused.refusal());
  } catch (const as::CASException& failure) {
    // The library itself does not run.
    printError(failure.getErrorText());
  }
  return exitRefused;
}

void printFindings(const std::string& file, const toolkit::Findings& findings) {
  for (const toolkit::Finding& finding : findings) {
    std::cout << toolkit::printable(file) << ": " << toolkit::printable(textOf(finding)) << "\n";
  }
}

// May stand before the command as well as behind it.
void addSchemasOption(CLI::App& app, std::optional<std::string>& schemas) {
  app.add_option("--schemas", schemas, "The directory of the schema files, vorcobol.xsd among them")
      ->type_name("DIR");
}

void addFlavourOption(CLI::App& app, std::string& word) {
  std::vector<std::string> words;
  for (const toolkit::Flavour& flavour : toolkit::flavours()) words.emplace_back(flavour.word);
  app.add_option("--flavour", word, "The service's flavour")
      ->required()
      ->check(CLI::IsMember(words));
}

void addOutputOption(CLI::App& app, std::string& file) {
  app.add_option("-o,--output", file,
                 "The file to write; one that is there is replaced when the new one is complete")
      ->required();
}

}  // namespace cli

#include "cli/Command.h"

#include <iostream>

#include "as/CASException.h"
#include "as/toolkit/FindingsWriter.h"
#include "as/toolkit/Generate.h"
#include "as/toolkit/Text.h"
#include "cli/Messages.h"
#include "cli/SchemaDirectory.h"

namespace cli {

namespace {

std::vector<std::string> generatorWords() {
  std::vector<std::string> words;
  for (const toolkit::GeneratorKind& kind : toolkit::generatorKinds()) {
    words.emplace_back(kind.word);
  }
  return words;
}

}  // namespace

const std::vector<ExitCode>& exitCodes() {
  static const std::vector<ExitCode> all = {
#define AS_EXIT_CODE(name, number, text) {number, text},
#include "cli/ExitCodes.def"
  };
  return all;
}

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
  const auto writer = toolkit::findFindingsFormat("text")->makeWriter(std::cout, {});
  for (const toolkit::Finding& finding : findings) writer->add({file, finding});
  writer->end();
}

// May stand before the command as well as behind it.
void addSchemasOption(Arguments& arguments, std::optional<std::string>& schemas) {
  arguments.option("--schemas", schemas, "DIR",
                   "The directory of the schema files, vorcobol.xsd among them");
}

void addFlavourOption(Arguments& arguments, std::string& word) {
  std::vector<std::string> words;
  for (const toolkit::Flavour& flavour : toolkit::flavours()) words.emplace_back(flavour.word);
  arguments.requiredOption("--flavour", word, words, "The service's flavour");
}

void offerGeneratorKinds(Arguments& arguments) { arguments.offer(generatorWords()); }

std::string noGeneratorKind(const std::string& word) {
  const std::string near = toolkit::nearestName(word, generatorWords());
  return "there is no kind '" + word + "'; " +
         (near.empty() ? "generate --kinds lists them" : "did you mean '" + near + "'?");
}

}  // namespace cli

#include "Commands.h"

#include <iostream>
#include <memory>

#include "DictionaryJson.h"
#include "DictionaryPrinter.h"
#include "DocumentReader.h"
#include "Messages.h"
#include "SchemaDirectory.h"
#include "Text.h"
#include "as/CASException.h"
#include "as/IProgram.h"

namespace {

// Runs `command` with a reader for the schema directory in use.
template <class Command>
int withReader(const std::optional<std::string>& schemas, const Command& command) {
  std::string directory;
  try {
    directory = findSchemaDirectory(schemas);
  } catch (const SchemaDirectoryMissing& missing) {
    printError(missing.what());
    return exitUsage;
  }
  try {
    return command(DocumentReader(directory));
  } catch (const as::CASException& failure) {
    // The library itself does not run.
    printError(failure.getErrorText());
    return exitRefused;
  }
}

}  // namespace

int runShow(const std::string& file, ShowFormat format, const std::optional<std::string>& schemas) {
  return withReader(schemas, [&](const DocumentReader& reader) {
    std::unique_ptr<as::IProgram> program;
    try {
      program = reader.readDictionary(file);
    } catch (const Refusal& refusal) {
      printRefusal(refusal);
      return exitRefused;
    }
    if (format == ShowFormat::json) {
      writeDictionaryJson(std::cout, *program);
    } else {
      printDictionary(std::cout, *program);
    }
    return exitFine;
  });
}

int runValidate(const std::vector<std::string>& files, const std::optional<std::string>& schemas) {
  return withReader(schemas, [&](const DocumentReader& reader) {
    int exitCode = exitFine;
    for (const std::string& file : files) {
      try {
        reader.readDictionary(file);
        std::cout << printable(file) << ": ok\n";
      } catch (const Refusal& refusal) {
        printRefusal(refusal);
        exitCode = exitRefused;
      }
    }
    return exitCode;
  });
}

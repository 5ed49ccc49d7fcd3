#include "Commands.h"

#include <iostream>
#include <memory>

#include "DictionaryJson.h"
#include "DictionaryPrinter.h"
#include "DocumentReader.h"
#include "Findings.h"
#include "Lint.h"
#include "Messages.h"
#include "SchemaDirectory.h"
#include "ServiceJson.h"
#include "ServicePrinter.h"
#include "Text.h"
#include "as/CASException.h"
#include "as/IProgram.h"
#include "as/IService.h"

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

// `refusal` in one line.
std::string asText(const Refusal& refusal) {
  std::string text = refusal.file;
  if (refusal.line > 0) {
    text += ":" + std::to_string(refusal.line) + ":" + std::to_string(refusal.column);
  }
  return text + ": " + refusal.text;
}

std::unique_ptr<as::IService> withOwnProgram(const DocumentReader& reader, as::IService& service,
                                             const std::string& file) {
  const std::string dictionary = service.getDDFilename();
  if (dictionary.empty()) {
    throw Refusal{file, 0, 0, "the service names no dictionary",
                  "write attribute dataDictFilename, or leave --program out"};
  }
  std::unique_ptr<as::IService> complete =
      reader.withProgram(service, file, besideFile(file, dictionary));
  complete->setDDFilename(dictionary.c_str());
  return complete;
}

void show(const DocumentReader& reader, const std::string& file, const ShowOptions& options) {
  Document document = reader.read(file);
  const bool json = options.format == ShowFormat::json;
  if (document.dictionary) {
    (json ? writeDictionaryJson : printDictionary)(std::cout, *document.dictionary);
    return;
  }
  if (options.withProgram) {
    document.service = withOwnProgram(reader, *document.service, file);
  }
  (json ? writeServiceJson : printService)(std::cout, *document.service);
}

// The service with its program; a null one, after a finding, when the dictionary is refused.
std::unique_ptr<as::IService> withProgram(const DocumentReader& reader, as::IService& service,
                                          const std::string& file, const std::string& dictionary,
                                          Findings& findings) {
  try {
    return reader.withProgram(service, file, dictionary);
  } catch (const Refusal& refusal) {
    findings.error("service", "the dictionary cannot be used: " + asText(refusal),
                   "mappings and entry points were not checked");
    return nullptr;
  }
}

}  // namespace

int runShow(const std::string& file, const ShowOptions& options,
            const std::optional<std::string>& schemas) {
  return withReader(schemas, [&](const DocumentReader& reader) {
    try {
      show(reader, file, options);
    } catch (const Refusal& refusal) {
      printRefusal(refusal);
      return exitRefused;
    }
    return exitFine;
  });
}

int runValidate(const std::vector<std::string>& files, const std::optional<std::string>& schemas) {
  return withReader(schemas, [&](const DocumentReader& reader) {
    int exitCode = exitFine;
    for (const std::string& file : files) {
      try {
        reader.read(file);
        std::cout << printable(file) << ": ok\n";
      } catch (const Refusal& refusal) {
        printRefusal(refusal);
        exitCode = exitRefused;
      }
    }
    return exitCode;
  });
}

int runLint(const std::string& file, const std::optional<std::string>& dictionary,
            const std::optional<std::string>& schemas) {
  return withReader(schemas, [&](const DocumentReader& reader) {
    std::unique_ptr<as::IService> service;
    try {
      service = reader.readService(file);
    } catch (const Refusal& refusal) {
      printRefusal(refusal);
      return exitRefused;
    }
    Findings findings(std::cout, file);
    lintService(*service, findings);
    const std::string program = service->getAttributeValue("programName");
    const std::string named = service->getDDFilename();
    std::unique_ptr<as::IService> complete;
    if (dictionary || !named.empty()) {
      complete = withProgram(reader, *service, file,
                             dictionary ? *dictionary : besideFile(file, named), findings);
    }
    if (complete) {
      const std::string actual = complete->getProgram()->getName();
      if (!program.empty() && program != actual) {
        findings.warning(
            "service", "it names program '" + program + "', the dictionary is of '" + actual + "'",
            R"(correct "programName" or "dataDictFilename")");
      }
    }
    lintMembers(complete ? *complete : *service, findings);
    findings.printSummary();
    return findings.errors() == 0 ? exitFine : exitRefused;
  });
}

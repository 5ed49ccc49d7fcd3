#include "cli/Commands.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "as/CASException.h"
#include "as/CAgentServicesFactory.h"
#include "as/IEntryPoint.h"
#include "as/IProgram.h"
#include "as/IService.h"
#include "cli/Messages.h"
#include "cli/SchemaDirectory.h"
#include "toolkit/convert/Conversion.h"
#include "toolkit/findings/Findings.h"
#include "toolkit/flavour/Flavour.h"
#include "toolkit/io/DocumentReader.h"
#include "toolkit/io/FileReplacement.h"
#include "toolkit/lint/Lint.h"
#include "toolkit/make/ServiceMaker.h"
#include "toolkit/render/DictionaryJson.h"
#include "toolkit/render/DictionaryPrinter.h"
#include "toolkit/render/ServiceJson.h"
#include "toolkit/render/ServicePrinter.h"
#include "toolkit/text/Text.h"
#include "toolkit/walk/ItemIndex.h"

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

// Throws Refusal for a name that is no entry point's.
void checkEntryPoints(as::IProgram& program, const std::string& dictionary,
                      const std::vector<std::string>& names) {
  std::vector<std::string> known;
  forEachMember<as::IEntryPoint>(program.getEntryPoints(), [&](as::IEntryPoint& entryPoint) {
    known.push_back(entryPoint.getName());
  });
  for (const std::string& name : names) {
    if (std::find(known.begin(), known.end(), name) != known.end()) continue;
    std::string hint = known.empty() ? "the program has none" : "the program has";
    for (const std::string& other : known) hint += (other == known.front() ? " " : ", ") + other;
    throw Refusal{dictionary, 0, 0, "there is no entry point '" + name + "'", hint};
  }
}

// Throws Refusal when the output would take the place of the dictionary that it is made from.
void checkOutput(const std::string& output, const std::string& dictionary) {
  std::error_code ignored;
  if (!std::filesystem::equivalent(output, dictionary, ignored)) return;
  throw Refusal{output, 0, 0, "this is the dictionary", "name another file behind -o"};
}

// The document of `service`. Throws Refusal, about `file`, when XML cannot hold it.
std::string textOf(as::IService& service, const std::string& file) {
  try {
    return as::CAgentServicesFactory::SerializeToString(&service);
  } catch (const as::CASException&) {
    throw Refusal{file, 0, 0,
                  "the service cannot be written as XML: its elements nest too deep, or a name "
                  "holds control characters",
                  ""};
  }
}

void makeNew(const DocumentReader& reader, const std::string& dictionary, const std::string& file,
             const NewOptions& options) {
  checkOutput(file, dictionary);
  const Flavour& flavour = *findFlavour(options.flavour);
  std::unique_ptr<as::IProgram> program = reader.readDictionary(dictionary);
  checkEntryPoints(*program, dictionary, options.entryPoints);
  const std::string name = options.name.empty() ? program->getName() : options.name;
  const std::unique_ptr<as::IService> service = flavour.newService(std::move(program));
  service->setName(name.c_str());
  service->setDDFilename(nameSeenFrom(file, dictionary).c_str());
  Findings notes(std::cout, file);
  const ServiceSize size = fillService(*service, flavour, options.entryPoints, notes);
  if (size.operations == 0) {
    notes.note("service", "the program has no entry points: there are no operations");
  }
  replaceFile(file, textOf(*service, file));
  std::cout << printable(file) << ": " << flavour.name() << " service, operations "
            << size.operations << ", mapped items " << size.mappings << "\n";
}

void convert(const DocumentReader& reader, const std::string& file, const std::string& output,
             const Flavour& flavour) {
  std::unique_ptr<as::IService> service = reader.readService(file);
  const Flavour& old = flavourOf(*service);
  Findings notes(std::cout, output);
  const std::string named = service->getDDFilename();
  const std::string dictionary = named.empty() ? "" : besideFile(file, named);
  checkOutput(output, dictionary);
  std::unique_ptr<as::IProgram> program;
  std::optional<ItemIndex> items;
  try {
    if (!named.empty()) program = reader.readDictionary(dictionary);
    if (program) items.emplace(*program);
  } catch (const Refusal& refusal) {
    notes.note("service", "the dictionary cannot be used, data types go by their names alone: " +
                              asText(refusal));
  }
  if (!named.empty() && std::filesystem::path(named).is_relative()) {
    service->setDDFilename(nameSeenFrom(output, dictionary).c_str());
  }
  const std::string text =
      convertDocument(textOf(*service, file), old, flavour, items ? &*items : nullptr, notes);
  service = reader.readServiceText(text, output);
  forEachMember<as::IOperation>(service->getOperations(), [&](as::IOperation& operation) {
    flavour.complete(*service, operation);
  });
  replaceFile(output, textOf(*service, output));
  std::cout << printable(output) << ": " << old.name() << " service made a " << flavour.name()
            << " service\n";
}

// Runs `command`, which writes a file, and tells why it could not.
template <class Command>
int withOutput(const Command& command) {
  try {
    command();
  } catch (const Refusal& refusal) {
    printRefusal(refusal);
    return exitRefused;
  } catch (const std::runtime_error& failure) {
    printError(failure.what());
    return exitRefused;
  }
  return exitFine;
}

}  // namespace

int runNew(const std::string& dictionary, const std::string& service, const NewOptions& options,
           const std::optional<std::string>& schemas) {
  return withReader(schemas, [&](const DocumentReader& reader) {
    return withOutput([&] { makeNew(reader, dictionary, service, options); });
  });
}

int runConvert(const std::string& file, const std::string& output, const std::string& flavour,
               const std::optional<std::string>& schemas) {
  return withReader(schemas, [&](const DocumentReader& reader) {
    return withOutput([&] { convert(reader, file, output, *findFlavour(flavour)); });
  });
}

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

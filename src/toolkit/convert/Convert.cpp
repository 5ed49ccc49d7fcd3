#include "as/toolkit/Convert.h"

#include <filesystem>
#include <optional>

#include "as/toolkit/Files.h"
#include "toolkit/convert/Conversion.h"
#include "toolkit/findings/Report.h"
#include "toolkit/io/OutputCheck.h"
#include "toolkit/io/ServiceText.h"

namespace as::toolkit {

namespace {

// `service`, of a document that messages call `file`, for a file that they call `output`. Its
// program's items are null when they are unknown.
std::unique_ptr<as::IService> converted(const DocumentReader& reader, as::IService& service,
                                        const std::string& file, const std::string& output,
                                        const FlavourProfile& to, const ItemIndex* items,
                                        Findings& notes) {
  const std::string document =
      convertDocument(documentOf(service, file), profileOf(service), to, items, notes);
  std::unique_ptr<as::IService> result = reader.readServiceText(document, output);
  forEachMember<as::IOperation>(
      result->getOperations(), [&](as::IOperation& operation) { to.complete(*result, operation); });
  return result;
}

}  // namespace

ConvertedService convertService(const DocumentReader& reader, as::IService& service,
                                const std::string& file, const Flavour& to, as::IProgram* program) {
  std::optional<ItemIndex> items;
  if (program != nullptr) items.emplace(*program);
  ConvertedService result;
  result.from = &flavourOf(service);
  result.service = converted(reader, service, file, file, profileOf(to), items ? &*items : nullptr,
                             result.notes);
  return result;
}

ConvertedService convertServiceFile(const DocumentReader& reader, const std::string& file,
                                    const std::string& output, const Flavour& to) {
  return convertServiceFile(reader, DocumentSource{file}, output, to);
}

ConvertedService convertServiceFile(const DocumentReader& reader, const DocumentSource& source,
                                    const std::string& output, const Flavour& to) {
  const std::string& file = source.name;
  const std::unique_ptr<as::IService> service = reader.readService(source);
  ConvertedService result;
  result.from = &flavourOf(*service);
  const std::string named = service->getDDFilename();
  std::unique_ptr<as::IProgram> program;
  std::optional<ItemIndex> items;
  if (!named.empty()) {
    const std::string dictionary = besideFile(file, named);
    checkOutput(output, dictionary, "dictionary");
    try {
      program = reader.readDictionary(dictionary);
      items.emplace(*program);
    } catch (const RefusedDocument& refused) {
      Report(result.notes)
          .note("unknown-program", "service",
                "the dictionary cannot be used, data types go by their names alone: " +
                    textOf(refused.refusal()));
    }
    if (std::filesystem::path(named).is_relative()) {
      service->setDDFilename(nameSeenFrom(output, dictionary).c_str());
    }
  }
  result.service = converted(reader, *service, file, output, profileOf(to),
                             items ? &*items : nullptr, result.notes);
  writeService(*result.service, output);
  return result;
}

}  // namespace as::toolkit

// Compares the documents of two folders.
#include <filesystem>
#include <map>
#include <utility>

#include "as/toolkit/Diff.h"
#include "as/toolkit/Files.h"
#include "toolkit/diff/ChangeList.h"

namespace as::toolkit {

namespace {

std::vector<std::string> documentsIn(const std::string& folder) {
  FoundFiles found = filesIn(folder, {".xml"});
  if (!found.refusals.empty()) throw RefusedDocument(found.refusals.front());
  return std::move(found.files);
}

std::vector<std::string> servicesFor(const Document& document,
                                     const std::vector<ServiceOfProgram>& services) {
  std::vector<std::string> own;
  if (!document.dictionary) return own;
  const std::string program = document.dictionary->getName();
  for (const ServiceOfProgram& service : services) {
    if (service.program == program) own.push_back(service.file);
  }
  return own;
}

}  // namespace

std::vector<DocumentPair> pairsIn(const std::string& before, const std::string& after) {
  const auto fileIn = [](const std::string& folder, const std::string& name) {
    return (std::filesystem::path(folder) / name).string();
  };
  std::map<std::string, DocumentPair> pairs;
  for (const std::string& name : documentsIn(before)) {
    pairs[name] = {name, fileIn(before, name), ""};
  }
  for (const std::string& name : documentsIn(after)) {
    DocumentPair& pair = pairs[name];
    pair.name = name;
    pair.after = fileIn(after, name);
  }
  std::vector<DocumentPair> all;
  all.reserve(pairs.size());
  for (auto& [name, pair] : pairs) all.push_back(std::move(pair));
  return all;
}

std::vector<ServiceOfProgram> servicesWithPrograms(const DocumentReader& reader,
                                                   const std::vector<std::string>& files) {
  std::vector<ServiceOfProgram> services;
  services.reserve(files.size());
  for (const std::string& file : files) {
    services.push_back({file, reader.readService(file)->getAttributeValue("programName")});
  }
  return services;
}

Diff diffPair(const DocumentReader& reader, const DocumentPair& pair,
              const std::vector<ServiceOfProgram>& services) {
  if (!pair.before.empty() && !pair.after.empty()) {
    std::vector<std::string> own;
    if (!services.empty()) own = servicesFor(reader.read(pair.before), services);
    Diff result = diffFiles(reader, pair.before, pair.after, own);
    result.services = std::move(own);
    return result;
  }
  const bool isRemoved = pair.after.empty();
  const Document document = reader.read(isRemoved ? pair.before : pair.after);
  ChangeList changes;
  if (isRemoved) {
    changes.add("document-removed", {pair.name, ""});
  } else {
    changes.add("document-added", {"", pair.name});
  }
  Diff result;
  result.isOfServices = document.service != nullptr;
  result.changes = changes.take();
  if (isRemoved) result.services = servicesFor(document, services);
  return result;
}

}  // namespace as::toolkit

// Compares the documents of two folders.
#include <algorithm>
#include <filesystem>
#include <map>

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

std::vector<std::string> servicesFor(const DocumentReader& reader, const std::string& dictionary,
                                     const std::vector<std::string>& services) {
  if (services.empty()) return {};
  const Document document = reader.read(dictionary);
  std::vector<std::string> own;
  if (!document.dictionary) return own;
  const std::string program = document.dictionary->getName();
  std::copy_if(services.begin(), services.end(), std::back_inserter(own),
               [&](const std::string& file) {
                 return reader.readService(file)->getAttributeValue("programName") == program;
               });
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

Diff diffPair(const DocumentReader& reader, const DocumentPair& pair,
              const std::vector<std::string>& services) {
  if (!pair.before.empty() && !pair.after.empty()) {
    return diffFiles(reader, pair.before, pair.after, servicesFor(reader, pair.before, services));
  }
  const bool isRemoved = pair.after.empty();
  const Document document = reader.read(isRemoved ? pair.before : pair.after);
  ChangeList changes;
  if (isRemoved) {
    changes.add("document-removed", {pair.name, ""});
  } else {
    changes.add("document-added", {"", pair.name});
  }
  return {document.service != nullptr, changes.take()};
}

}  // namespace as::toolkit

#include "as/toolkit/Diff.h"

#include <algorithm>
#include <memory>

#include "as/toolkit/Files.h"
#include "toolkit/diff/DictionaryDiff.h"
#include "toolkit/diff/ServiceDiff.h"
#include "toolkit/io/HeldSource.h"

namespace as::toolkit {

namespace {

bool isAtOrBelow(const std::string& place, const std::string& around) {
  if (place.compare(0, around.size(), around) != 0) return false;
  return place.size() == around.size() || place[around.size()] == '.' ||
         place[around.size()] == ' ';
}

}  // namespace

Diff diff(as::IProgram& before, as::IProgram& after) {
  const DictionaryFacts olds(before);
  const DictionaryFacts news(after);
  return {false, DictionaryDiff(olds, news).take()};
}

Diff diff(as::IService& before, as::IService& after) {
  return {true, ServiceDiff(ServiceFacts(before), ServiceFacts(after)).take()};
}

Diff diffFiles(const DocumentReader& reader, const std::string& before, const std::string& after,
               const std::vector<std::string>& services) {
  return diffDocuments(reader, DocumentSource{before}, DocumentSource{after}, services);
}

Diff diffDocuments(const DocumentReader& reader, const DocumentSource& before,
                   const DocumentSource& after, const std::vector<std::string>& services) {
  // Dictionaries are read again for their conditions.
  const HeldSource oldSource(before);
  const HeldSource newSource(after);
  const Document old = reader.read(oldSource.get());
  const Document added = reader.read(newSource.get());
  if ((old.dictionary == nullptr) != (added.dictionary == nullptr)) {
    const bool isDictionary = added.dictionary != nullptr;
    throw RefusedDocument({after.name, 0, 0,
                           std::string("is a ") + (isDictionary ? "dictionary" : "service") +
                               ", which cannot be compared with a " +
                               (isDictionary ? "service" : "dictionary"),
                           "name two documents of one kind"});
  }
  if (old.service) {
    if (!services.empty()) {
      throw RefusedDocument({before.name, 0, 0, "is a service",
                             "name two dictionaries to learn what becomes of services"});
    }
    return diff(*old.service, *added.service);
  }
  const DictionaryFacts olds(*old.dictionary, oldSource.get());
  const DictionaryFacts news(*added.dictionary, newSource.get());
  DictionaryDiff result(olds, news);
  for (const std::string& service : services) {
    result.compareService(*reader.readService(service), service);
  }
  return {false, result.take()};
}

bool allow(Diff& diff, const std::string& rule) {
  const std::size_t colon = rule.find(':');
  const std::string kind = rule.substr(0, colon);
  const std::string place = colon == std::string::npos ? "" : rule.substr(colon + 1);
  if (kind != "*" && findChangeKind(kind) == nullptr) return false;
  for (Change& change : diff.changes) {
    const bool isOfKind = kind == "*" || change.kind == kind;
    const bool isThere = colon == std::string::npos || isAtOrBelow(change.oldPlace, place) ||
                         isAtOrBelow(change.newPlace, place);
    // What follows in services is theirs to accept.
    const bool follows =
        change.cause && change.service.empty() && diff.changes[*change.cause].isAllowed;
    if ((isOfKind && isThere) || follows) change.isAllowed = true;
  }
  return true;
}

std::vector<std::string> allowRulesIn(const std::string& text) {
  std::vector<std::string> rules;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    std::string line = text.substr(from, end - from);
    from = end + 1;
    // No name has a blank in front of such a character.
    for (const char* const remark : {" #", "\t#"})
      line.resize(std::min(line.find(remark), line.size()));
    const std::size_t start = line.find_first_not_of(" \t\r");
    if (start == std::string::npos || line[start] == '#') continue;
    rules.push_back(line.substr(start, line.find_last_not_of(" \t\r") - start + 1));
  }
  return rules;
}

bool breaksCallers(const Diff& diff) {
  return std::any_of(diff.changes.begin(), diff.changes.end(), [&](const Change& change) {
    // A cause has what follows from it; by itself it may break nobody.
    return change.breaks && !change.isAllowed;
  });
}

}  // namespace as::toolkit

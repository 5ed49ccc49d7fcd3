#include "toolkit/generate/Generator.h"

#include <algorithm>
#include <unordered_set>

#include "as/toolkit/Version.h"
#include "toolkit/generate/CodeText.h"
#include "toolkit/generate/FacetLookup.h"
#include "toolkit/generate/NameCharacters.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

Generator::~Generator() = default;

std::string Job::option(std::string_view name) const {
  const auto chosen = options.values.find(name);
  if (chosen != options.values.end()) return chosen->second;
  for (const GeneratorOption& known : kind.options) {
    if (name != known.name) continue;
    const std::string_view values = known.values;
    return std::string(values.substr(0, values.find('|')));
  }
  return "";
}

std::vector<const Operation*> Job::wantedOperations() const {
  const std::string wanted = option("operation");
  std::vector<const Operation*> operations;
  for (const Operation& operation : model.operations) {
    if (wanted.empty() || operation.name == wanted) operations.push_back(&operation);
  }
  if (operations.empty() && !wanted.empty()) {
    refuse("no-operation", "service", "there is no operation '" + wanted + "'", "name another one");
  }
  return operations;
}

void Job::note(const char* rule, const std::string& place, const std::string& text) const {
  out.findings.push_back({rule, Severity::note, place, text, ""});
}

void Job::warn(const char* rule, const std::string& place, const std::string& text,
               const std::string& advice) const {
  out.findings.push_back({rule, Severity::warning, place, text, advice});
}

void Job::refuse(const char* rule, const std::string& place, const std::string& text,
                 const std::string& advice) const {
  out.findings.push_back({rule, Severity::error, place, text, advice});
}

void Job::tellValues(const TypeTable& types) const {
  const bool withConditions = isChosen("conditions", "enumerations");
  const TypeLookup lookup(types);
  const FacetLookup facets(model);
  std::unordered_set<std::size_t> told;
  forEachField(model, [&](const Field& field, const auto& placeOf) {
    if (field.reference != none || field.structure != none) return;
    if (lookup.rowFor(field) == nullptr) {
      warn("no-type", placeOf(),
           "there is no type for " +
               (field.dataType.empty() ? std::string("it") : quote(field.dataType)) +
               ": it may hold anything",
           "give it fields, or a data type of a value");
    }
    if (!withConditions || !facets.hasOtherConditions(field)) return;
    if (!told.insert(field.item).second) return;
    note("other-conditions", placeOf(),
         "conditions of " + model.items[field.item].name +
             " are ranges or no values of its type: they are told in words");
  });
}

std::string Job::banner() const {
  return std::string("Made by AgentServices ") + toolkitVersion() + " from " +
         commentText(model.source);
}

std::string Job::fileStem() const {
  constexpr std::size_t longest = 100;
  std::string stem;
  for (const char32_t character : charactersOf(model.name)) {
    const bool isFine = isAsciiLetter(character) || isDigit(character) || character == U'_' ||
                        ((character == U'-' || character == U'.') && !stem.empty());
    stem += isFine ? static_cast<char>(character) : '_';
  }
  if (stem.size() <= longest) return stem.empty() ? "service" : stem;
  return stem.substr(0, longest) + "-" + digitsOfText(model.name);
}

}  // namespace as::toolkit::gen

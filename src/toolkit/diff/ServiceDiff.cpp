#include "toolkit/diff/ServiceDiff.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>

#include "as/IParameter.h"
#include "toolkit/diff/DictionaryDiff.h"
#include "toolkit/diff/NameMatch.h"
#include "toolkit/text/ShownPlace.h"
#include "toolkit/text/Words.h"

namespace as::toolkit {

namespace {

std::string orNone(const std::string& text) { return text.empty() ? "none" : text; }

// The kind of change of each attribute that a flavour adds.
const char* kindOfAttribute(std::string_view attribute) {
  struct Row {
    std::string_view attribute;
    const char* kind;
  };
  static constexpr Row rows[] = {
      {"style", "style-changed"},
      {"use", "use-changed"},
      {"inputUse", "use-changed"},
      {"outputUse", "use-changed"},
      {"namespace", "namespace-changed"},
      {"inputNamespace", "namespace-changed"},
      {"outputNamespace", "namespace-changed"},
      {"elementForm", "form-changed"},
      {"attributeForm", "form-changed"},
      {"byType", "direction-changed"},
      {"transactionType", "transaction-changed"},
      {"returnParameter", "return-parameter-changed"},
  };
  for (const Row& row : rows) {
    if (row.attribute == attribute) return row.kind;
  }
  return "attribute-changed";
}

// What a renamed field has kept: all but its name.
bool isRenamedField(const FieldFacts& before, const FieldFacts& after) {
  const bool isAlike = before.type == after.type && before.occurs == after.occurs &&
                       before.direction == after.direction && before.reference == after.reference &&
                       before.mappings == after.mappings;
  return isAlike &&
         std::equal(before.members.begin(), before.members.end(), after.members.begin(),
                    after.members.end(), [](const FieldFacts& left, const FieldFacts& right) {
                      return left.name == right.name;
                    });
}

bool isRenamedOperation(const OperationFacts& before, const OperationFacts& after) {
  return before.entryPoint == after.entryPoint && before.hidden == after.hidden &&
         std::equal(before.parameters.begin(), before.parameters.end(), after.parameters.begin(),
                    after.parameters.end(), [](const FieldFacts& left, const FieldFacts& right) {
                      return left.name == right.name && left.type == right.type &&
                             left.direction == right.direction;
                    });
}

std::string describe(const FieldFacts& field) {
  std::vector<std::string> words;
  for (const std::string& word : {field.direction, field.type}) {
    if (!word.empty()) words.push_back(word);
  }
  if (!field.reference.empty()) words.push_back("like " + field.reference);
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

// What an absent one reads as.
std::string directionOf(const FieldFacts& field) {
  return field.direction.empty() ? directionWord(as::IParameter::BY_IO) : field.direction;
}

std::string referenceOf(const FieldFacts& field) {
  if (field.reference.empty()) return "none";
  return field.reference + (field.isReferenceFound ? "" : " (not found)");
}

std::string joined(const std::vector<std::string>& texts) {
  std::string text;
  for (const std::string& part : texts) text += (text.empty() ? "" : ", ") + part;
  return text;
}

std::string firstName(const MessageFacts& message) {
  return message.parameters.empty() ? "" : message.parameters.front().name;
}

// Messages have no names: they are known by their first parameter, and then by their order.
std::vector<std::size_t> messagePartners(const std::vector<MessageFacts>& before,
                                         const std::vector<MessageFacts>& after) {
  std::vector<std::size_t> partners = matchNamesOf(before, after, [](const MessageFacts& message) {
    return std::string(message.kind) + " " + firstName(message);
  });
  std::vector<std::size_t> olds;
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (partners[i] == noPartner) olds.push_back(i);
  }
  const std::vector<std::size_t> news = withoutPartner(partners, after.size());
  std::vector<std::string> oldKinds;
  std::vector<std::string> newKinds;
  oldKinds.reserve(olds.size());
  newKinds.reserve(news.size());
  for (const std::size_t i : olds) oldKinds.emplace_back(before[i].kind);
  for (const std::size_t j : news) newKinds.emplace_back(after[j].kind);
  const std::vector<std::size_t> left = matchNamesOf(
      oldKinds, newKinds, [](const std::string& kind) -> const std::string& { return kind; });
  for (std::size_t i = 0; i < olds.size(); ++i) {
    if (left[i] != noPartner) partners[olds[i]] = news[left[i]];
  }
  return partners;
}

}  // namespace

ServiceDiff::ServiceDiff(const ServiceFacts& before, const ServiceFacts& after) {
  compareService(before, after);
  compareProperties(changes_, before.properties, after.properties);
  compareFields({"type ", "type "}, "", Level::definition, before.definitions, after.definitions);
  compareOperations(before.operations, after.operations);
}

void ServiceDiff::compareService(const ServiceFacts& before, const ServiceFacts& after) {
  const Place place = {"service", "service"};
  changes_.addIfDifferent("service-renamed", place, before.name, after.name);
  changes_.addIfDifferent("flavour-changed", place, before.flavour, after.flavour);
  changes_.addIfDifferent("program-changed", place, orNone(before.program), orNone(after.program));
  changes_.addIfDifferent("dictionary-changed", place, orNone(before.dictionary),
                          orNone(after.dictionary));
  changes_.addIfDifferent("exit-program-changed", place, orNone(before.exitProgram),
                          orNone(after.exitProgram));
}

void ServiceDiff::compareOperations(const std::vector<OperationFacts>& before,
                                    const std::vector<OperationFacts>& after) {
  const std::vector<std::size_t> partners = matchByName(before, after, isRenamedOperation);
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (partners[i] == noPartner) {
      changes_.add("operation-removed", {before[i].name, ""});
    } else {
      compareOperation(before[i], after[partners[i]]);
    }
  }
  for (const std::size_t added : withoutPartner(partners, after.size())) {
    changes_.add("operation-added", {"", after[added].name});
  }
}

void ServiceDiff::compareOperation(const OperationFacts& before, const OperationFacts& after) {
  const Place place = {shownPlace({before.name}), shownPlace({after.name})};
  changes_.addIfDifferent("operation-renamed", place, before.name, after.name);
  changes_.addIfDifferent("operation-rebound", place, orNone(before.entryPoint),
                          orNone(after.entryPoint));
  changes_.addIfDifferent("exit-points-changed", place, std::to_string(before.exitPoints),
                          std::to_string(after.exitPoints));
  compareAttributes(place, before.attributes, after.attributes);
  compareHidden(place, before.hidden, after.hidden);
  compareFields(place, ".", Level::parameter, before.parameters, after.parameters);
  compareMessages(place, before.messages, after.messages);
}

void ServiceDiff::compareHidden(const Place& place, const Hidden& before, const Hidden& after) {
  std::multimap<std::string, std::string> left(after.begin(), after.end());
  for (const auto& [item, value] : before) {
    const auto found = left.find(item);
    const Place at = {shownPlace({place.before, " (hidden) ", item}),
                      shownPlace({place.after, " (hidden) ", item})};
    if (found == left.end()) {
      changes_.add("hidden-parameter-removed", {at.before, ""}, value, "");
      continue;
    }
    changes_.addIfDifferent("hidden-value-changed", at, value, found->second);
    left.erase(found);
  }
  for (const auto& [item, value] : left) {
    changes_.add("hidden-parameter-added", {"", shownPlace({place.after, " (hidden) ", item})}, "",
                 value);
  }
}

void ServiceDiff::compareMessages(const Place& place, const std::vector<MessageFacts>& before,
                                  const std::vector<MessageFacts>& after) {
  const std::vector<std::size_t> partners = messagePartners(before, after);
  const auto placeOf = [](const std::string& around, const MessageFacts& message) {
    const std::string name = firstName(message);
    return around + " " + message.kind + (name.empty() ? "" : " of " + name);
  };
  for (std::size_t i = 0; i < before.size(); ++i) {
    const std::string old = placeOf(place.before, before[i]);
    if (partners[i] == noPartner) {
      changes_.add(before[i].kind == "fault" ? "fault-removed" : "header-removed", {old, ""});
      continue;
    }
    const MessageFacts& partner = after[partners[i]];
    const Place at = {old, placeOf(place.after, partner)};
    compareAttributes(at, before[i].attributes, partner.attributes);
    const Place inside = {place.before + " " + before[i].kind, place.after + " " + partner.kind};
    compareFields(inside, ".", Level::parameter, before[i].parameters, partner.parameters);
  }
  for (const std::size_t j : withoutPartner(partners, after.size())) {
    changes_.add(after[j].kind == "fault" ? "fault-added" : "header-added",
                 {"", placeOf(place.after, after[j])});
  }
}

void ServiceDiff::compareAttributes(const Place& place, const std::vector<AttributeFacts>& before,
                                    const std::vector<AttributeFacts>& after) {
  for (const AttributeFacts& attribute : before) {
    const auto found = std::find_if(
        after.begin(), after.end(),
        [&](const AttributeFacts& candidate) { return candidate.name == attribute.name; });
    if (found == after.end()) continue;  // Another flavour, which is told by itself.
    const Place at = {place.before + " " + attribute.name, place.after + " " + attribute.name};
    changes_.addIfDifferent(kindOfAttribute(attribute.name), at, orNone(attribute.value),
                            orNone(found->value));
  }
}

void ServiceDiff::compareFields(const Place& place, const char* separator, Level level,
                                const std::vector<FieldFacts>& before,
                                const std::vector<FieldFacts>& after) {
  struct Kinds {
    const char* added;
    const char* removed;
    const char* renamed;
    const char* reordered;  // Null where the order is of no account.
  };
  static constexpr Kinds kinds[] = {
      {"type-definition-added", "type-definition-removed", "type-definition-renamed", nullptr},
      {"parameter-added", "parameter-removed", "parameter-renamed", "parameter-reordered"},
      {"field-added", "field-removed", "field-renamed", "field-reordered"},
      {"field-added", "field-removed", "field-renamed", nullptr},
  };
  const Kinds& kind = kinds[static_cast<std::size_t>(level)];
  const std::vector<std::size_t> partners = matchByName(before, after, isRenamedField);
  const std::vector<bool> keeps = keepingOrder(partners);
  for (std::size_t i = 0; i < before.size(); ++i) {
    const std::string old = shownPlace({place.before, separator, before[i].name});
    if (partners[i] == noPartner) {
      changes_.add(kind.removed, {old, ""}, describe(before[i]), "");
      continue;
    }
    const FieldFacts& partner = after[partners[i]];
    const Place at = {old, shownPlace({place.after, separator, partner.name})};
    changes_.addIfDifferent(kind.renamed, at, before[i].name, partner.name);
    if (!keeps[i] && kind.reordered != nullptr) {
      changes_.add(kind.reordered, at, std::to_string(i + 1), std::to_string(partners[i] + 1));
    }
    compareField(at, before[i], partner);
  }
  for (const std::size_t added : withoutPartner(partners, after.size())) {
    changes_.add(kind.added, {"", shownPlace({place.after, separator, after[added].name})}, "",
                 describe(after[added]));
  }
}

void ServiceDiff::compareField(const Place& place, const FieldFacts& before,
                               const FieldFacts& after) {
  changes_.addIfDifferent("direction-changed", place, directionOf(before), directionOf(after));
  if (before.reference != after.reference || before.isReferenceFound != after.isReferenceFound) {
    // What comes from the definition is compared where it stands.
    changes_.add("reference-changed", place, referenceOf(before), referenceOf(after));
    return;
  }
  changes_.addIfDifferent("type-changed", place, orNone(before.type), orNone(after.type));
  changes_.addIfDifferent("occurs-changed", place, std::to_string(before.occurs),
                          std::to_string(after.occurs));
  compareAttributes(place, before.attributes, after.attributes);
  compareMappings(place, before.mappings, after.mappings);
  compareFields(place, ".@", Level::attribute, before.fieldAttributes, after.fieldAttributes);
  compareFields(place, ".", Level::field, before.members, after.members);
}

void ServiceDiff::compareMappings(const Place& place, const std::vector<std::string>& before,
                                  const std::vector<std::string>& after) {
  const auto without = [](std::vector<std::string> all, const std::vector<std::string>& others) {
    std::vector<std::string> left;
    std::map<std::string, std::size_t> times;
    for (const std::string& other : others) ++times[other];
    for (std::string& text : all) {
      std::size_t& count = times[text];
      if (count == 0) {
        left.push_back(std::move(text));
      } else {
        --count;
      }
    }
    return left;
  };
  const std::vector<std::string> gone = without(before, after);
  const std::vector<std::string> come = without(after, before);
  if (gone.empty() && come.empty()) return;
  if (gone.empty()) {
    changes_.add("mapping-added", place, "", joined(come));
  } else if (come.empty()) {
    changes_.add("mapping-removed", place, joined(gone), "");
  } else {
    changes_.add("mapping-redirected", place, joined(gone), joined(come));
  }
}

}  // namespace as::toolkit

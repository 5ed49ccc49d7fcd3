#include "toolkit/generate/JsonMembers.h"

#include <utility>

#include "toolkit/generate/JsonTypes.h"

namespace as::toolkit::gen {

namespace {

bool isAnyCharacter(char32_t /*character*/) { return true; }

// Members of objects are called as they are.
const NameRule& memberRule() {
  static const NameRule rule = [] {
    NameRule made{"JSON", isAnyCharacter, isAnyCharacter};
    made.mostCharacters = static_cast<std::size_t>(-1);
    return made;
  }();
  return rule;
}

}  // namespace

JsonMembers::JsonMembers(const Job& job)
    : model_(job.model), names_(job.namesBy(memberRule())), values_(job.model.types.size()) {
  const TypeLookup types(jsonTypes());
  for (const Type& type : model_.types) {
    if (type.isDeclared) keepValue(type.self, types);
    for (const Field& field : type.fields) keepValue(field, types);
  }
  for (const Operation& operation : model_.operations) {
    for (const Field& parameter : operation.parameters) keepValue(parameter, types);
    for (const Message& message : operation.messages) {
      for (const Field& parameter : message.parameters) keepValue(parameter, types);
    }
  }
  typeNames_.reserve(model_.types.size());
  for (std::size_t i = 0; i < model_.types.size(); ++i) {
    typeNames_.push_back(namesOf(membersOf(i), Spot(model_, model_.types[i])));
  }
}

// That of a structure that has a value beside its field attributes.
void JsonMembers::keepValue(const Field& field, const TypeLookup& types) {
  if (field.structure == none || field.reference != none || field.dataType.empty()) return;
  if (!model_.types[field.structure].fields.empty() || types.rowFor(field) == nullptr) return;
  Field value = field;
  value.name = "value";
  value.structure = none;
  value.occurs = 0;
  value.least = 1;
  values_[field.structure] = std::move(value);
}

std::vector<const Field*> JsonMembers::membersOf(std::size_t type) const {
  const Type& structure = model_.types[type];
  std::vector<const Field*> members;
  members.reserve(structure.fields.size() + structure.attributes.size() + 1);
  for (const Field& field : structure.fields) members.push_back(&field);
  for (const Field& field : structure.attributes) members.push_back(&field);
  if (values_[type]) members.push_back(&*values_[type]);
  return members;
}

std::vector<std::string> JsonMembers::namesOf(const std::vector<const Field*>& fields,
                                              const Spot& place) {
  return names_.namesIn(fieldWishes(fields, place));
}

}  // namespace as::toolkit::gen

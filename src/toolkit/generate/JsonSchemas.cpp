#include "toolkit/generate/JsonSchemas.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "toolkit/generate/Facets.h"
#include "toolkit/generate/JsonText.h"

namespace as::toolkit::gen {

namespace {

using Kind = Capacity::Kind;

// Types that are strings to JSON. Compared by their addresses and texts alike.
constexpr std::string_view integerText = "string of digits";
constexpr std::string_view decimalText = "string of a decimal number";
constexpr std::string_view bytesText = "string in base 64";
constexpr std::string_view dateText = "string of a date-time";
constexpr std::string_view xmlDocument = "string of XML";
constexpr std::string_view anything = "anything";

bool isDefinitionCharacter(char32_t character) {
  return isAsciiLetter(character) || isDigit(character) || character == U'-' || character == U'.' ||
         character == U'_';
}

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

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += (text.empty() ? "" : "\n") + line;
  return text;
}

// Of digits that are known to be some.
long long numberOf(const std::string& digits) { return std::strtoll(digits.c_str(), nullptr, 10); }

}  // namespace

const TypeTable& jsonTypes() {
  // Numbers are doubles to many readers, which hold 53 bits.
  static const TypeTable table = {
      {"integer", {Kind::integer, 15, 53}},
      {integerText.data(), {Kind::decimal, 0, 0, true, 0}},
      {decimalText.data(), {Kind::decimal}},
      {"number", {Kind::floating, 15}},
      {"string", {Kind::text}},
      {bytesText.data(), {Kind::bytes}},
      {dateText.data(), {Kind::open}, "date"},
      {anything.data(), {Kind::open}, "object"},
      {xmlDocument.data(), {Kind::open}, "XML"},
  };
  return table;
}

const NameRule& jsonNames() {
  static const NameRule rule = {"JSON Schema", isDefinitionCharacter, isDefinitionCharacter};
  return rule;
}

JsonSchemas::JsonSchemas(const Job& job, std::string definitions)
    : job_(job),
      definitionNames_(job.namesBy(jsonNames())),
      memberNames_(job.namesBy(memberRule())),
      samples_(job.model),
      types_(jsonTypes()),
      prefix_(std::move(definitions)),
      withConditions_(job.isChosen("conditions", "enumerations")),
      values_(job.model.types.size()) {
  const ServiceModel& model = job.model;
  // Structures that have a value beside their field attributes.
  const auto keepValue = [&](const Field& field) {
    if (field.structure == none || field.reference != none || field.dataType.empty()) return;
    if (!model.types[field.structure].fields.empty() || types_.rowFor(field) == nullptr) {
      return;
    }
    Field value = field;
    value.name = "value";
    value.structure = none;
    value.occurs = 0;
    value.least = 1;
    values_[field.structure] = std::move(value);
  };
  for (const Type& type : model.types) {
    if (type.isDeclared) keepValue(type.self);
    for (const Field& field : type.fields) keepValue(field);
  }
  for (const Operation& operation : model.operations) {
    for (const Field& parameter : operation.parameters) keepValue(parameter);
    for (const Message& message : operation.messages) {
      for (const Field& parameter : message.parameters) keepValue(parameter);
    }
  }
  for (std::size_t i = 0; i < model.types.size(); ++i) {
    const std::vector<const Field*> members = membersOf(i);
    typeMembers_.push_back(namesOf(members, members.empty() ? "" : model.placeOf(model.types[i])));
  }
}

std::vector<const Field*> JsonSchemas::membersOf(std::size_t type) const {
  std::vector<const Field*> members;
  for (const Field& field : job_.model.types[type].fields) members.push_back(&field);
  for (const Field& field : job_.model.types[type].attributes) members.push_back(&field);
  if (values_[type]) members.push_back(&*values_[type]);
  return members;
}

std::vector<std::string> JsonSchemas::namesOf(const std::vector<const Field*>& fields,
                                              const std::string& place) {
  std::vector<NameWish> wishes;
  wishes.reserve(fields.size());
  for (const Field* const field : fields) {
    wishes.push_back({field->name, place + "." + field->name});
  }
  return memberNames_.namesIn(wishes);
}

std::size_t JsonSchemas::addObject(const NameWish& wish, const std::vector<Field>& members,
                                   bool goIn, bool comeOut, const std::string& place) {
  std::vector<const Field*> all;
  all.reserve(members.size());
  for (const Field& field : members) all.push_back(&field);
  const std::vector<std::string> names = namesOf(all, place);
  Definition definition{wish, nullptr};
  for (std::size_t i = 0; i < all.size(); ++i) {
    const Direction direction = all[i]->direction;
    if (!(goIn && goesIn(direction)) && !(comeOut && comesOut(direction))) continue;
    definition.members.push_back(all[i]);
    definition.names.push_back(names[i]);
  }
  definitions_.push_back(std::move(definition));
  return definitions_.size() - 1;
}

std::size_t JsonSchemas::addValue(const NameWish& wish, const Field& field) {
  definitions_.push_back({wish, &field});
  return definitions_.size() - 1;
}

JsonSchemas::Json JsonSchemas::complete() {
  std::vector<NameWish> wishes = typeWishes(job_.model);
  const std::size_t types = wishes.size();
  for (const Definition& definition : definitions_) wishes.push_back(definition.wish);
  std::vector<std::string> names = definitionNames_.namesIn(wishes);
  for (std::size_t i = 0; i < definitions_.size(); ++i) definitions_[i].name = names[types + i];
  names.resize(types);
  typeNames_ = std::move(names);
  Json all = objectFor(types + definitions_.size());
  for (std::size_t i = 0; i < types; ++i) append(all, typeNames_[i], schemaOfType(i));
  for (const Definition& definition : definitions_) {
    append(all, definition.name,
           definition.value == nullptr ? objectOf(definition.members, definition.names)
                                       : schemaOf(*definition.value));
  }
  return all;
}

JsonSchemas::Json JsonSchemas::referenceTo(std::size_t definition) const {
  return {{"$ref", prefix_ + definitions_[definition].name}};
}

JsonSchemas::Json JsonSchemas::schemaOfType(std::size_t number) const {
  const Type& type = job_.model.types[number];
  if (type.isDeclared && type.self.structure != number) {
    Field self = type.self;
    self.occurs = 0;
    return schemaOfOne(self);
  }
  return objectOf(membersOf(number), typeMembers_[number]);
}

JsonSchemas::Json JsonSchemas::objectOf(const std::vector<const Field*>& members,
                                        const std::vector<std::string>& names) const {
  Json properties = objectFor(members.size());
  Json required = Json::array();
  for (std::size_t i = 0; i < members.size(); ++i) {
    append(properties, names[i], schemaOf(*members[i]));
    if (members[i]->least > 0) required.push_back(names[i]);
  }
  Json object = objectFor(4);
  append(object, "type", "object");
  append(object, "properties", std::move(properties));
  if (!required.empty()) append(object, "required", std::move(required));
  append(object, "additionalProperties", false);
  return object;
}

JsonSchemas::Json JsonSchemas::schemaOf(const Field& field) const {
  const std::string about = joined(linesAbout(job_.model, field));
  Json schema;
  if (field.isTable()) {
    schema = objectFor(5);
    append(schema, "type", "array");
    append(schema, "items", schemaOfOne(field));
    append(schema, "minItems", field.least);
    append(schema, "maxItems", field.occurs);
  } else {
    schema = schemaOfOne(field);
  }
  if (!about.empty()) schema["description"] = about;
  return schema;
}

JsonSchemas::Json JsonSchemas::schemaOfOne(const Field& field) const {
  const std::size_t own = field.reference != none ? field.reference : field.structure;
  if (own == none) return schemaOfValue(field);
  Json schema = objectFor(2);
  append(schema, "$ref", prefix_ + typeNames_[own]);
  return schema;
}

JsonSchemas::Json JsonSchemas::schemaOfValue(const Field& field) const {
  const TypeRow* const row = types_.rowFor(field);
  if (row == nullptr || row->type == anything) return Json::object();
  const std::string_view type = row->type;
  const Facets facets = facetsOf(job_.model, field, withConditions_);
  Json schema = objectFor(5);
  append(schema, "type", type.starts_with("string") ? "string" : row->type);
  if (type == "integer") {
    if (!facets.least.empty()) schema["minimum"] = numberOf(facets.least);
    if (!facets.most.empty()) schema["maximum"] = numberOf(facets.most);
  } else if (type == integerText || type == decimalText) {
    const bool isSigned = facets.least.empty() || facets.least.front() == '-';
    const int digits =
        facets.totalDigits > 0 ? facets.totalDigits : static_cast<int>(facets.most.size());
    schema["pattern"] =
        "^" + numeralPattern(digits, type == integerText ? 0 : facets.fractionDigits, isSigned) +
        "$";
  } else if (type == bytesText) {
    schema["contentEncoding"] = "base64";
    if (facets.longest >= 0) schema["maxLength"] = (facets.longest + 2) / 3 * 4;
  } else if (type == dateText) {
    schema["format"] = "date-time";
  } else if (type == xmlDocument) {
    schema["contentMediaType"] = "application/xml";
  } else if (type == "string") {
    if (facets.longest >= 0) schema["maxLength"] = facets.longest;
    if (!facets.pattern.empty()) schema["pattern"] = "^" + facets.pattern + "$";
  }
  if (facets.values.empty()) return schema;
  Json values = Json::array();
  for (const std::string& value : facets.values) {
    values.push_back(type == "integer" ? Json(numberOf(value)) : Json(value));
  }
  schema["enum"] = std::move(values);
  return schema;
}

std::optional<JsonSchemas::Json> JsonSchemas::sampleOf(std::size_t number, std::size_t most) {
  const Definition& definition = definitions_[number];
  std::size_t count = 0;
  const auto add = [&](const Field& field) {
    count = std::min(count + samples_.countOf(field, most + 1), most + 1);
  };
  if (definition.value != nullptr) add(*definition.value);
  for (const Field* const member : definition.members) add(*member);
  if (count > most) return std::nullopt;
  return definition.value == nullptr ? sampleOfObject(definition.members, definition.names)
                                     : sampleOf(*definition.value);
}

JsonSchemas::Json JsonSchemas::sampleOf(const Field& field) const {
  if (!field.isTable()) return sampleOfOne(field);
  Json array = Json::array();
  const std::size_t times = SampleMaker::occurrencesOf(field);
  for (std::size_t i = 0; i < times; ++i) array.push_back(sampleOfOne(field));
  return array;
}

JsonSchemas::Json JsonSchemas::sampleOfOne(const Field& field) const {
  if (field.structure == none) return sampleOfValue(field);
  return sampleOfObject(membersOf(field.structure), typeMembers_[field.structure]);
}

JsonSchemas::Json JsonSchemas::sampleOfObject(const std::vector<const Field*>& members,
                                              const std::vector<std::string>& names) const {
  Json object = objectFor(members.size());
  for (std::size_t i = 0; i < members.size(); ++i) {
    if (SampleMaker::occurrencesOf(*members[i]) > 0) {
      append(object, names[i], sampleOf(*members[i]));
    }
  }
  return object;
}

JsonSchemas::Json JsonSchemas::sampleOfValue(const Field& field) const {
  const TypeRow* const row = types_.rowFor(field);
  const std::string_view type = row == nullptr ? anything : row->type;
  const std::string value = samples_.valueOf(field);
  if (type == "integer") return numberOf(value);
  if (type == "number") return std::strtod(value.c_str(), nullptr);
  return value;
}

}  // namespace as::toolkit::gen

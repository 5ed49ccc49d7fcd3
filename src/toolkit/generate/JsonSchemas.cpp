#include "toolkit/generate/JsonSchemas.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "toolkit/generate/JsonTypes.h"

namespace as::toolkit::gen {

namespace {

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += (text.empty() ? "" : "\n") + line;
  return text;
}

// Of digits that are known to be some.
long long numberOf(const std::string& digits) { return std::strtoll(digits.c_str(), nullptr, 10); }

}  // namespace

JsonSchemas::JsonSchemas(const Job& job, std::string definitions)
    : job_(job),
      names_(job.namesBy(jsonNames())),
      members_(job),
      samples_(job.model, members_),
      types_(jsonTypes()),
      facets_(job.model),
      prefix_(std::move(definitions)),
      withConditions_(job.isChosen("conditions", "enumerations")) {}

std::size_t JsonSchemas::addObject(const NameWish& wish, const std::vector<Field>& members,
                                   bool goIn, bool comeOut, const std::string& place) {
  std::vector<const Field*> all;
  all.reserve(members.size());
  for (const Field& field : members) all.push_back(&field);
  const std::vector<std::string> names = members_.namesOf(all, place);
  Definition definition{wish};
  for (std::size_t i = 0; i < all.size(); ++i) {
    const Direction direction = all[i]->direction;
    if (!(goIn && goesIn(direction)) && !(comeOut && comesOut(direction))) continue;
    definition.members.push_back(all[i]);
    definition.names.push_back(names[i]);
  }
  definitions_.push_back(std::move(definition));
  return definitions_.size() - 1;
}

void JsonSchemas::complete() {
  std::vector<NameWish> wishes = typeWishes(job_.model);
  const std::size_t types = wishes.size();
  for (const Definition& definition : definitions_) wishes.push_back(definition.wish);
  std::vector<std::string> names = names_.namesIn(wishes);
  for (std::size_t i = 0; i < definitions_.size(); ++i) definitions_[i].name = names[types + i];
  names.resize(types);
  typeNames_ = std::move(names);
}

void JsonSchemas::writeTo(JsonText& text) const {
  for (std::size_t i = 0; i < typeNames_.size(); ++i) text.member(typeNames_[i], schemaOfType(i));
  for (const Definition& definition : definitions_) {
    text.member(definition.name, objectOf(definition.members, definition.names));
  }
}

JsonSchemas::Json JsonSchemas::referenceTo(std::size_t definition) const {
  Json reference = objectFor(1);
  append(reference, "$ref", prefix_ + definitions_[definition].name);
  return reference;
}

JsonSchemas::Json JsonSchemas::schemaOfType(std::size_t number) const {
  const Type& type = job_.model.types[number];
  if (type.isDeclared && type.self.structure != number) {
    Field self = type.self;
    self.occurs = 0;
    return schemaOfOne(self);
  }
  return objectOf(members_.membersOf(number), members_.namesOf(number));
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
  if (!about.empty()) append(schema, "description", about);
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
  const Facets facets = facets_.facetsOf(field, withConditions_);
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
  if (!facets.hasValues()) return schema;
  Json values = Json::array();
  for (const std::string& value : *facets.onlyValues) {
    values.push_back(type == "integer" ? Json(numberOf(value)) : Json(value));
  }
  schema["enum"] = std::move(values);
  return schema;
}

std::optional<JsonSchemas::Json> JsonSchemas::sampleOf(std::size_t number, std::size_t most) {
  const Definition& definition = definitions_[number];
  std::size_t count = 0;
  for (const Field* const member : definition.members) {
    count = std::min(count + samples_.countOf(*member, most + 1), most + 1);
  }
  if (count > most) return std::nullopt;
  return samples_.sampleOfObject(definition.members, definition.names);
}

}  // namespace as::toolkit::gen

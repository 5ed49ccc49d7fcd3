#include "toolkit/generate/FieldReader.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "as/ICOMParameter.h"
#include "as/IList.h"
#include "as/IWSField.h"
#include "as/toolkit/Flavours.h"
#include "toolkit/walk/FieldWalk.h"
#include "toolkit/walk/Subscripts.h"

namespace as::toolkit::gen {

Direction directionOf(int code) {
  if (code == as::IParameter::BY_IN) return Direction::in;
  return code == as::IParameter::BY_OUT ? Direction::out : Direction::both;
}

namespace {

Form formOf(int code) {
  if (code == as::IWSField::FORM_QUALIFIED) return Form::qualified;
  return code == as::IWSField::FORM_UNQUALIFIED ? Form::unqualified : Form::unsaid;
}

int lengthOf(as::IList* list) { return list == nullptr ? 0 : list->getLength(); }

}  // namespace

FieldReader::FieldReader(as::IService& service, ServiceModel& model,
                         std::shared_ptr<const ItemIndex> index)
    : profile_(profileOf(service)),
      isWeb_(std::string_view(profile_.flavour().word) == "ws"),
      isCom_(std::string_view(profile_.flavour().word) == "com"),
      model_(model),
      facts_(model.items) {
  if (index) finder_.emplace(std::move(index));
}

void FieldReader::addDefinition(as::IParameter& definition, std::size_t number) {
  definitions_.emplace(&definition, number);
}

void FieldReader::readDefinition(as::IParameter& definition) {
  const std::size_t number = definitions_.at(&definition);
  Way way;
  Field self;
  way.root = &self;
  readTree(definition, way, number);
  model_.types[number].self = std::move(self);
}

std::vector<Field> FieldReader::readParameters(as::IList* list, std::size_t operation,
                                               const std::string& message) {
  std::vector<Field> parameters;
  parameters.reserve(static_cast<std::size_t>(lengthOf(list)));
  forEachMember<as::IField>(list, [&](as::IField& parameter) {
    Field read;
    Way way{operation, message, {}, &read};
    readTree(parameter, way, none);
    parameters.push_back(std::move(read));
  });
  return parameters;
}

// A parameter, or the definition of that number, with all its fields, into way.root.
void FieldReader::readTree(as::IField& root, Way& way, std::size_t definition) {
  struct Level {
    std::size_t structure;
    std::size_t tables;
  };
  *way.root = readMember(root);
  if (way.root->isTable()) way.tables.push_back({none, 0, false});
  const bool isOpen = open(root, *way.root, way, definition, none);
  readMappings(root, way, {none, 0, false});
  if (!isOpen) return;
  std::vector<Level> levels = {{way.root->structure, way.tables.size()}};
  readAttributes(root, way, levels.back().structure);
  walkFields(
      root.getChildren(),
      [&](as::IField& field, std::size_t) {
        const Level& around = levels.back();
        const std::size_t structure = around.structure;
        way.tables.resize(around.tables);
        const std::size_t member = model_.types[structure].fields.size();
        Field read = readMember(field);
        if (read.isTable()) way.tables.push_back({structure, member, false});
        const bool hasParts = open(field, read, way, none, structure);
        const std::size_t own = read.structure;
        model_.types[structure].fields.push_back(std::move(read));
        readMappings(field, way, {structure, member, false});
        if (hasParts) readAttributes(field, way, own);
        levels.push_back({own, way.tables.size()});
      },
      [&](as::IField&) { levels.pop_back(); });
}

// What a field says of itself, and of the definition at the end of its references.
Field FieldReader::readMember(as::IField& field) {
  Field read;
  read.name = field.getName();
  read.occurs = field.getOccurs();
  if (auto* const parameter = as::interface_cast<as::IParameter>(&field)) {
    read.direction = directionOf(parameter->getByType());
    const auto found = definitions_.find(parameter->getReferenceType());
    if (found != definitions_.end()) read.reference = found->second;
  }
  if (read.reference == none && !referenceOf(field).empty()) model_.isWhole = false;
  if (const std::optional<int> code = profile_.dataTypeOf(field)) {
    if (const DataType* const type = profile_.findDataType(*code)) {
      read.dataType = type->word;
      read.capacity = type->capacity;
    }
  }
  // No flavour has what another one adds: to ask each field for it would take its time.
  if (auto* const web = isWeb_ ? as::interface_cast<as::IWSField>(&field) : nullptr) {
    read.namespaceUri = web->getNamespace();
    read.elementForm = formOf(web->getElementForm());
    read.attributeForm = formOf(web->getAttributeForm());
  }
  auto* const com = isCom_ ? as::interface_cast<as::ICOMParameter>(&field) : nullptr;
  read.isReturned = com != nullptr && com->isReturnParameter();
  return read;
}

// Gives a field that has parts of its own a structure; false when it has none.
bool FieldReader::open(as::IField& field, Field& read, const Way& way, std::size_t definition,
                       std::size_t owner) {
  if (read.reference != none) return false;
  as::IList* const attributes = profile_.attributesOf(field);
  const bool hasAttributes = attributes != nullptr && attributes->getLength() > 0;
  if (!hasAttributes && !field.hasChildren()) return false;
  read.structure = definition == none ? model_.types.size() : definition;
  if (definition != none) return true;
  Type& type = model_.types.emplace_back();
  type.fields.reserve(static_cast<std::size_t>(lengthOf(field.getChildren())));
  type.name = read.name;
  type.owner = owner;
  type.operation = way.operation;
  type.message = way.message;
  if (owner != none) {
    type.operation = model_.types[owner].operation;
    type.message = model_.types[owner].message;
  }
  return true;
}

void FieldReader::readAttributes(as::IField& field, Way& way, std::size_t structure) {
  const std::size_t tables = way.tables.size();
  forEachMember<as::IField>(profile_.attributesOf(field), [&](as::IField& attribute) {
    const std::size_t member = model_.types[structure].attributes.size();
    Field read = readMember(attribute);
    if (read.isTable()) way.tables.push_back({structure, member, true});
    model_.types[structure].attributes.push_back(std::move(read));
    readMappings(attribute, way, {structure, member, true});
    way.tables.resize(tables);
  });
}

Field& FieldReader::at(const TablePlace& place, Field& root) {
  if (place.type == none) return root;
  Type& type = model_.types[place.type];
  return place.isAttribute ? type.attributes[place.member] : type.fields[place.member];
}

void FieldReader::readMappings(as::IField& field, const Way& way, const TablePlace& place) {
  // Those of a reference stand where it leads.
  if (at(place, *way.root).reference != none) return;
  const bool hasParts = field.hasChildren();
  forEachMember<as::IMapping>(field.getMappings(), [&](as::IMapping& mapping) {
    Mapping read = readMapping(mapping);
    if (read.item != none) {
      if (!hasParts) joinItem(at(place, *way.root), read.item);
      readTables(mapping, read.text, model_.items[read.item], way);
    }
    at(place, *way.root).mappings.push_back(std::move(read));
  });
}

// The item of all mappings of a field, as long as they are alike.
void FieldReader::joinItem(Field& field, std::size_t item) const {
  const bool isFirst = std::none_of(field.mappings.begin(), field.mappings.end(),
                                    [](const Mapping& other) { return other.item != none; });
  if (isFirst) {
    field.item = item;
  } else if (field.item != none && !model_.items[field.item].isLike(model_.items[item])) {
    field.item = none;
  }
}

Mapping FieldReader::readMapping(as::IMapping& mapping) {
  using Source = Mapping::Source;
  Mapping read;
  read.text = mapping.getRawMapping();
  switch (mapping.getType()) {
    case as::IMapping::MAP_COMMAND_LINE:
      read.source = Source::commandLine;
      return read;
    case as::IMapping::MAP_RETURN_CODE:
      read.source = Source::returnCode;
      return read;
    case as::IMapping::MAP_STDIN:
      read.source = Source::standardInput;
      return read;
    case as::IMapping::MAP_STDOUT:
      read.source = Source::standardOutput;
      return read;
    default:
      break;
  }
  as::IDataItem* const item =
      finder_ ? finder_->find(std::string_view(read.text).substr(0, read.text.find('('))) : nullptr;
  if (item != nullptr) {
    read.source = Source::item;
    read.item = facts_.numberOf(*item);
  }
  return read;
}

// Open subscripts of an item belong to the tables that the field stands in, from the innermost
// out. What two fields of one table say in different ways is said of none.
void FieldReader::readTables(as::IMapping& mapping, const std::string& text, const Item& item,
                             const Way& way) {
  const Item::Table* table = item.table.get();
  if (table == nullptr) return;
  const std::vector<int> inner = dataItemSubscripts(mapping, text);
  const std::vector<int> outer = interfaceSubscripts(mapping);
  if (inner.size() != table->number) return;
  std::size_t place = way.tables.size();
  for (std::size_t i = outer.size(); i > 0 && place > 0; --i) {
    --place;
    if (outer[i - 1] != everyOccurrence) continue;
    while (table != nullptr && inner[table->number - 1] != everyOccurrence) {
      table = table->around.get();
    }
    if (table == nullptr) return;
    tell(at(way.tables[place], *way.root), *table);
    table = table->around.get();
  }
}

void FieldReader::tell(Field& field, const Item::Table& table) {
  if (field.isTold) {
    if (field.dependingOn != table.dependingOn) field.dependingOn.clear();
    field.least = std::min({field.least, table.least, field.occurs});
    return;
  }
  field.isTold = true;
  field.dependingOn = table.dependingOn;
  field.least = std::min(table.least, field.occurs);
}

}  // namespace as::toolkit::gen

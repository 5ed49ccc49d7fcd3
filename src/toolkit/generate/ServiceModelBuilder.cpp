// A service as generators see it.
#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "as/ICOMParameter.h"
#include "as/IList.h"
#include "as/IMapping.h"
#include "as/IOperation.h"
#include "as/IParameter.h"
#include "as/IProperty.h"
#include "as/IWSField.h"
#include "as/IWSOperation.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/flavour/WebParts.h"
#include "toolkit/generate/ItemFacts.h"
#include "toolkit/generate/ModelBuilder.h"
#include "toolkit/walk/FieldWalk.h"
#include "toolkit/walk/ItemIndex.h"
#include "toolkit/walk/Subscripts.h"

namespace as::toolkit::gen {

namespace {

Direction directionOf(int code) {
  if (code == as::IParameter::BY_IN) return Direction::in;
  return code == as::IParameter::BY_OUT ? Direction::out : Direction::both;
}

Form formOf(int code) {
  if (code == as::IWSField::FORM_QUALIFIED) return Form::qualified;
  return code == as::IWSField::FORM_UNQUALIFIED ? Form::unqualified : Form::unsaid;
}

Operation::Style styleOf(int code) {
  if (code == as::IWSOperation::STYLE_RPC) return Operation::Style::rpc;
  return code == as::IWSOperation::STYLE_DOCUMENT ? Operation::Style::document
                                                  : Operation::Style::unsaid;
}

class Builder {
 public:
  Builder(as::IService& service, as::IProgram* program, std::shared_ptr<const ItemIndex> index)
      : service_(service),
        profile_(profileOf(service)),
        facts_(model_.items),
        index_(std::move(index)) {
    if (program != nullptr && !index_) index_ = std::make_shared<const ItemIndex>(*program);
    model_.name = service.getName();
    model_.program =
        program == nullptr ? service.getAttributeValue("programName") : program->getName();
    model_.flavour = &flavourOf(service);
  }

  ServiceModel build() {
    forEachMember<as::IProperty>(service_.getProperties(), [this](as::IProperty& property) {
      model_.properties.push_back({property.getName(), property.getValue()});
    });
    // All of them have their numbers before fields refer to them.
    as::IList* const definitions = service_.getParameterTypeDefs();
    forEachMember<as::IParameter>(definitions, [this](as::IParameter& definition) {
      definitions_.emplace(&definition, model_.types.size());
      model_.types.emplace_back().name = definition.getName();
      model_.types.back().isDeclared = true;
    });
    forEachMember<as::IParameter>(definitions, [this](as::IParameter& definition) {
      readDefinition(definition, definitions_.at(&definition));
    });
    forEachMember<as::IOperation>(service_.getOperations(),
                                  [this](as::IOperation& operation) { readOperation(operation); });
    completeReferences();
    return std::move(model_);
  }

 private:
  // A table on the way to a field: where its facts go once a mapping tells them.
  struct TablePlace {
    std::size_t type;  // The structure that the field is a member of; none for a parameter.
    std::size_t member;
    bool isAttribute;
  };
  // What a parameter or definition is read into, with the way to the field at hand.
  struct Way {
    std::size_t operation = none;
    std::string message;
    std::vector<TablePlace> tables;
    Field* root = nullptr;
  };

  void readDefinition(as::IParameter& definition, std::size_t number) {
    Way way;
    Field self;
    way.root = &self;
    readTree(definition, way, number);
    model_.types[number].self = std::move(self);
  }

  void readOperation(as::IOperation& operation) {
    const std::size_t number = model_.operations.size();
    Operation read;
    read.name = operation.getName();
    read.entryPoint = operation.getAttributeValue("entryPoint");
    read.exitPoints = operation.getExitPoints();
    if (auto* const web = as::interface_cast<as::IWSOperation>(&operation)) {
      read.style = styleOf(web->getStyle());
      read.isInputEncoded = web->getInputUse() == as::IWSOperation::USE_ENCODED;
      read.isOutputEncoded = web->getOutputUse() == as::IWSOperation::USE_ENCODED;
      read.inputNamespace = web->getInputNamespace();
      read.outputNamespace = web->getOutputNamespace();
    }
    for (const Trait& trait : profile_.traitsOf(operation)) {
      if (trait.key == "transactionType") read.transactionType = trait.text;
    }
    read.parameters = readParameters(operation.getParameters(), number, "");
    std::unordered_map<std::string, std::size_t> numbers;
    for (const as::toolkit::Message& message : profile_.messagesOf(operation)) {
      Message part;
      part.kind = message.kind;
      part.number = ++numbers[part.kind];
      part.direction = directionOf(message.direction);
      for (const Trait& trait : message.traits) {
        if (trait.key == "namespace") part.namespaceUri = trait.text;
        if (trait.key == "use") part.isEncoded = trait.code == as::IWSOperation::USE_ENCODED;
      }
      part.parameters =
          readParameters(message.parameters, number, part.kind + " " + std::to_string(part.number));
      read.messages.push_back(std::move(part));
    }
    model_.operations.push_back(std::move(read));
  }

  std::vector<Field> readParameters(as::IList* list, std::size_t operation,
                                    const std::string& message) {
    std::vector<Field> parameters;
    forEachMember<as::IField>(list, [&](as::IField& parameter) {
      Field read;
      Way way{operation, message, {}, &read};
      readTree(parameter, way, none);
      parameters.push_back(std::move(read));
    });
    return parameters;
  }

  // A parameter, or the definition of that number, with all its fields, into way.root.
  void readTree(as::IField& root, Way& way, std::size_t definition) {
    struct Level {
      std::size_t structure;
      std::size_t tables;
    };
    *way.root = readMember(root);
    if (way.root->isTable()) way.tables.push_back({none, 0, false});
    const bool isOpen = open(root, *way.root, way, definition, none);
    readMappings(root, way, none, 0, false);
    if (!isOpen) return;
    std::vector<Level> levels = {{way.root->structure, way.tables.size()}};
    readAttributes(root, way, levels.back().structure);
    walkFields(
        root.getChildren(),
        [&](as::IField& field, std::size_t) {
          const Level& around = levels.back();
          const std::size_t structure = around.structure;
          way.tables.resize(around.tables);
          if (structure == none) {
            levels.push_back({none, around.tables});
            return;
          }
          const std::size_t member = model_.types[structure].fields.size();
          Field read = readMember(field);
          if (read.isTable()) way.tables.push_back({structure, member, false});
          const bool hasParts = open(field, read, way, none, structure);
          const std::size_t own = read.structure;
          model_.types[structure].fields.push_back(std::move(read));
          readMappings(field, way, structure, member, false);
          if (hasParts) readAttributes(field, way, own);
          levels.push_back({hasParts ? own : none, way.tables.size()});
        },
        [&](as::IField&) { levels.pop_back(); });
  }

  // What a field says of itself, and of the definition at the end of its references.
  Field readMember(as::IField& field) {
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
    if (auto* const web = as::interface_cast<as::IWSField>(&field)) {
      read.namespaceUri = web->getNamespace();
      read.elementForm = formOf(web->getElementForm());
      read.attributeForm = formOf(web->getAttributeForm());
    }
    auto* const com = as::interface_cast<as::ICOMParameter>(&field);
    read.isReturned = com != nullptr && com->isReturnParameter();
    return read;
  }

  // Gives a field that has parts of its own a structure; false when it has none.
  bool open(as::IField& field, Field& read, const Way& way, std::size_t definition,
            std::size_t owner) {
    if (read.reference != none) return false;
    as::IList* const attributes = profile_.attributesOf(field);
    const bool hasAttributes = attributes != nullptr && attributes->getLength() > 0;
    if (!hasAttributes && !field.hasChildren()) return false;
    read.structure = definition == none ? model_.types.size() : definition;
    if (definition != none) return true;
    Type& type = model_.types.emplace_back();
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

  void readAttributes(as::IField& field, Way& way, std::size_t structure) {
    const std::size_t tables = way.tables.size();
    forEachMember<as::IField>(profile_.attributesOf(field), [&](as::IField& attribute) {
      const std::size_t member = model_.types[structure].attributes.size();
      Field read = readMember(attribute);
      if (read.isTable()) way.tables.push_back({structure, member, true});
      model_.types[structure].attributes.push_back(std::move(read));
      readMappings(attribute, way, structure, member, true);
      way.tables.resize(tables);
    });
  }

  Field& at(const TablePlace& place, Field& root) {
    if (place.type == none) return root;
    Type& type = model_.types[place.type];
    return place.isAttribute ? type.attributes[place.member] : type.fields[place.member];
  }

  void readMappings(as::IField& field, const Way& way, std::size_t structure, std::size_t member,
                    bool isAttribute) {
    if (!referenceOf(field).empty()) return;
    const bool hasParts = field.hasChildren();
    forEachMember<as::IMapping>(field.getMappings(), [&](as::IMapping& mapping) {
      Mapping read = readMapping(mapping);
      Field& target = at({structure, member, isAttribute}, *way.root);
      if (read.item != none) {
        if (!hasParts) joinItem(target, read.item);
        readTables(mapping, read.text, model_.items[read.item], way);
      }
      at({structure, member, isAttribute}, *way.root).mappings.push_back(std::move(read));
    });
  }

  // The item of all mappings of a field, as long as they are alike.
  void joinItem(Field& field, std::size_t item) const {
    const bool isFirst = std::none_of(field.mappings.begin(), field.mappings.end(),
                                      [](const Mapping& other) { return other.item != none; });
    if (isFirst) {
      field.item = item;
    } else if (field.item != none && !model_.items[field.item].isLike(model_.items[item])) {
      field.item = none;
    }
  }

  Mapping readMapping(as::IMapping& mapping) {
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
        index_ ? index_->find(std::string_view(read.text).substr(0, read.text.find('('))) : nullptr;
    if (item != nullptr) {
      read.source = Source::item;
      read.item = facts_.numberOf(*item);
    }
    return read;
  }

  // Open subscripts of an item belong to the tables that the field stands in, from the innermost
  // out. What two fields of one table say in different ways is said of none.
  void readTables(as::IMapping& mapping, const std::string& text, const Item& item,
                  const Way& way) {
    const std::vector<int> inner = dataItemSubscripts(mapping, text);
    const std::vector<int> outer = interfaceSubscripts(mapping);
    if (inner.size() != item.tables.size()) return;
    std::size_t table = inner.size();
    std::size_t place = way.tables.size();
    for (std::size_t i = outer.size(); i > 0 && place > 0; --i) {
      --place;
      if (outer[i - 1] != everyOccurrence) continue;
      while (table > 0 && inner[table - 1] != everyOccurrence) --table;
      if (table == 0) return;
      tell(at(way.tables[place], *way.root), item.tables[--table]);
    }
  }

  static void tell(Field& field, const Item::Table& table) {
    if (field.isTold) {
      if (field.dependingOn != table.dependingOn) field.dependingOn.clear();
      field.least = std::min({field.least, table.least, field.occurs});
      return;
    }
    field.isTold = true;
    field.dependingOn = table.dependingOn;
    field.least = std::min(table.least, field.occurs);
  }

  // What fields have of the definitions they refer to, which are complete only now.
  void completeReferences() {
    for (Type& type : model_.types) {
      if (type.isDeclared) complete(type.self);
      for (Field& field : type.fields) complete(field);
      for (Field& attribute : type.attributes) complete(attribute);
    }
    for (Operation& operation : model_.operations) {
      for (Field& parameter : operation.parameters) complete(parameter);
      for (Message& message : operation.messages) {
        for (Field& parameter : message.parameters) complete(parameter);
      }
    }
    markRecursiveTypes();
  }

  // Definitions stand in front of those that refer to them, so the way to the end is made of
  // complete ones. One inside itself refers to what is being completed: that is its end.
  void complete(Field& field) {
    if (field.reference == none) {
      if (field.isTable() && !field.isTold) field.least = field.occurs;
      return;
    }
    const Field& nearest = model_.types[field.reference].self;
    std::size_t end = field.reference;
    for (std::size_t hops = 0; hops < model_.types.size(); ++hops) {
      const std::size_t next = model_.types[end].self.reference;
      if (next == none) break;
      end = next;
    }
    const Field& last = model_.types[end].self;
    field.structure = last.structure;
    field.mappings = last.mappings;
    field.item = last.item;
    field.dependingOn = nearest.dependingOn;
    field.least = nearest.isTable() ? (nearest.isTold ? nearest.least : nearest.occurs) : 1;
  }

  // A structure that stands in itself ends only where a field of its kind is left out.
  void markRecursiveTypes() {
    std::vector<std::size_t> declared(model_.types.size(), none);
    for (std::size_t i = 0; i < model_.types.size(); ++i) {
      const std::size_t owner = model_.types[i].owner;
      declared[i] = owner == none ? (model_.types[i].isDeclared ? i : none) : declared[owner];
    }
    for (std::size_t i = 0; i < model_.types.size(); ++i) {
      for (Field& field : model_.types[i].fields) {
        if (field.reference == none || declared[i] != field.reference) continue;
        // References lead to definitions in front, or to the one around: no other ways round.
        model_.types[field.reference].isRecursive = true;
        field.least = 0;
      }
    }
  }

  as::IService& service_;
  const FlavourProfile& profile_;
  ServiceModel model_;
  ItemFacts facts_;
  std::shared_ptr<const ItemIndex> index_;
  std::unordered_map<as::IParameter*, std::size_t> definitions_;
};

}  // namespace

ServiceModel modelOf(as::IService& service, as::IProgram* program,
                     std::shared_ptr<const ItemIndex> index) {
  return Builder(service, program, std::move(index)).build();
}

}  // namespace as::toolkit::gen

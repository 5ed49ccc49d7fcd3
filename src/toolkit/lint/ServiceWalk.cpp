#include "toolkit/lint/ServiceWalk.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "as/IGroup.h"
#include "as/IHiddenParameter.h"
#include "as/IList.h"
#include "as/IMapping.h"
#include "as/IOperation.h"
#include "as/IParameter.h"
#include "as/IProgram.h"
#include "as/IService.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/lint/ProgramFacts.h"
#include "toolkit/lint/Rules.h"
#include "toolkit/lint/TypeStorage.h"
#include "toolkit/text/NearNames.h"
#include "toolkit/walk/FieldWalk.h"
#include "toolkit/walk/Subscripts.h"

namespace as::toolkit {

namespace {

// What holds for a parameter or type definition with everything below it.
struct Tree {
  Direction direction;
  const CallInterface* interface = nullptr;  // Null when unknown, and in a type definition.
  std::optional<std::size_t> definition;     // Its number; none in an operation.
};

// A field on the way from its parameter. What it points at must outlive it.
struct FieldPlace {
  as::IField& field;
  Place place;
  std::size_t tables;  // How many it stands in, itself included.
};

// The tables that an item stands in, itself included, outermost first.
std::vector<as::IDataItem*> tablesAround(as::IDataItem& item) {
  std::vector<as::IDataItem*> tables;
  for (as::IDataItem* at = &item; at != nullptr; at = at->getParent()) {
    if (at->getMaxOccurs() != 0) tables.push_back(at);
  }
  std::reverse(tables.begin(), tables.end());
  return tables;
}

class ServiceWalk {
 public:
  ServiceWalk(as::IService& service, as::IProgram* program, LintReport& report)
      : service_(service), report_(report), profile_(profileOf(service)) {
    if (program != nullptr) program_.emplace(*program);
    forEachMember<as::IParameter>(service.getParameterTypeDefs(), [this](as::IParameter& type) {
      const std::size_t number = typeStorage_.addDefinition();
      definitions_.emplace(&type, number);
      // References lead to the first of a name; the last one is the one that comes too late.
      const std::string name = type.getName();
      if (!lastOfName_.contains(name)) typeNames_.add(name);
      lastOfName_[name] = number;
    });
  }

  // Answers how items are found, if any was looked for.
  std::shared_ptr<const ItemIndex> run() {
    static const Place types("type ");
    as::IList* const definitions = service_.getParameterTypeDefs();
    lookAtNames<as::IParameter>(definitions, "type definition", types, "");
    std::size_t number = 0;
    forEachMember<as::IParameter>(definitions, [&](as::IParameter& definition) {
      const Place place(nameOrUnnamed(definition.getName()), types, definition);
      lookAtTree(definition, place, {{as::IParameter::BY_IO, ""}, nullptr, number++});
    });
    static const Place nowhere("");
    lookAtNames<as::IOperation>(service_.getOperations(), "operation", nowhere, "");
    forEachMember<as::IOperation>(service_.getOperations(), [this](as::IOperation& operation) {
      lookAtOperation(operation);
    });
    return program_ ? program_->index() : nullptr;
  }

 private:
  // At the members of a list, which stand behind `separator` at `place`.
  template <class Member>
  void lookAtNames(as::IList* members, const char* kind, const Place& place,
                   const std::string& separator) {
    std::unordered_set<std::string> names;
    forEachMember<Member>(members, [&](Member& member) {
      const std::string name = member.getName();
      const bool isTaken = !names.insert(name).second;
      const Place at(separator + nameOrUnnamed(name), place, member);
      look(MemberSubject{at, kind, name, isTaken}, report_);
    });
  }

  void lookAtOperation(as::IOperation& operation) {
    const Place place(nameOrUnnamed(operation.getName()), operation);
    const std::string entryPoint = operation.getAttributeValue("entryPoint");
    const CallInterface* const interface =
        program_ && !entryPoint.empty() ? program_->interfaceOf(entryPoint) : nullptr;
    look(OperationSubject{place, entryPoint, program(), interface}, report_);
    for (const Trait& trait : profile_.traitsOf(operation)) {
      if (!trait.code || trait.text.empty()) continue;
      const std::string written = operation.getAttributeValue(trait.attribute.c_str());
      look(WordSubject{place, trait.attribute, written, trait.text, profile_}, report_);
    }
    profile_.lint(operation, place, report_);
    lookAtHiddenParameters(operation, place, interface);
    lookAtParameters(operation.getParameters(), place, interface);
    std::map<std::string, int> numbers;
    for (const Message& message : profile_.messagesOf(operation)) {
      const std::string number = std::to_string(++numbers[message.kind]);
      const Place at(std::string(", ") + message.kind + " " + number, place, *message.element);
      lookAtParameters(message.parameters, at, interface, &message);
    }
  }

  void lookAtHiddenParameters(as::IOperation& operation, const Place& operationPlace,
                              const CallInterface* interface) {
    int number = 0;
    forEachMember<as::IHiddenParameter>(operation.getHiddenParameters(), [&](as::IHiddenParameter&
                                                                                 hidden) {
      const Place place(", hidden parameter " + std::to_string(++number), operationPlace, hidden);
      as::IDataItem* item = nullptr;
      if (const std::optional<MappingSubject> mapping = subjectOf(hidden, place)) {
        look(*mapping, report_);
        item = reachedBy(*mapping);
      }
      if (item != nullptr) {
        lookAtStorage(*program_->recordOf(*item), place, {as::IParameter::BY_IN, ""}, interface);
      }
      look(HiddenSubject{place, hidden.getValue(), item}, report_);
    });
  }

  static Direction directionOf(as::IField& field) {
    auto* const parameter = as::interface_cast<as::IParameter>(&field);
    return {parameter == nullptr ? as::IParameter::BY_IO : parameter->getByType(), "parameter"};
  }

  static Direction directionOf(const Message& message) {
    const bool isChosen =
        std::any_of(message.traits.begin(), message.traits.end(),
                    [](const Trait& trait) { return trait.attribute == "byType"; });
    return {message.direction, isChosen ? message.kind : ""};
  }

  // Those of an operation, or of a message.
  void lookAtParameters(as::IList* parameters, const Place& place, const CallInterface* interface,
                        const Message* message = nullptr) {
    lookAtNames<as::IField>(parameters, "parameter", place, ".");
    forEachMember<as::IField>(parameters, [&](as::IField& field) {
      const Direction direction = message == nullptr ? directionOf(field) : directionOf(*message);
      const Place at("." + nameOrUnnamed(field.getName()), place, field);
      lookAtTree(field, at, {direction, interface, std::nullopt});
    });
  }

  // The place of a field that has so many tables around it: those of the field before it that it
  // stands in.
  FieldPlace placeOf(as::IField& field, Place place, std::size_t tablesAround) {
    fieldTables_.resize(tablesAround);
    const int occurs = field.getOccurs();
    if (occurs > 1) fieldTables_.push_back(occurs);
    return {field, std::move(place), fieldTables_.size()};
  }

  FieldPlace placeBelow(as::IField& field, const FieldPlace& around) {
    return placeOf(field, Place("." + nameOrUnnamed(field.getName()), around.place, field),
                   around.tables);
  }

  // At a parameter or definition with all its fields.
  void lookAtTree(as::IField& root, const Place& place, const Tree& tree) {
    if (lookAtReference(root, place, tree)) return;
    std::deque<FieldPlace> way = {placeOf(root, place, 0)};
    lookAtField(way.back(), tree);
    walkFields(
        root.getChildren(),
        [&](as::IField& field, std::size_t) {
          way.push_back(placeBelow(field, way.back()));
          if (!lookAtReference(field, way.back().place, tree)) lookAtField(way.back(), tree);
        },
        [&way](as::IField&) { way.pop_back(); });
  }

  // At what is no reference, without its fields. What stands inside a field attribute is not looked
  // at: nothing comes of it.
  void lookAtField(const FieldPlace& at, const Tree& tree, bool isAttribute = false) {
    as::IField& field = at.field;
    const bool isLeaf = !field.hasChildren();
    if (!isLeaf && !isAttribute) {
      lookAtNames<as::IField>(field.getChildren(), "field", at.place, ".");
    }
    const DataType* const type = isLeaf || hasDataType(field) ? lookAtDataType(at) : nullptr;
    as::IList* const attributes = profile_.attributesOf(field);
    const bool hasAttributes = attributes != nullptr && attributes->getLength() > 0;
    look(FieldSubject{at.place, field, isLeaf && !hasAttributes, isAttribute}, report_);
    lookAtMappings(at, isLeaf ? type : nullptr, tree);
    if (!hasAttributes || isAttribute) return;
    lookAtNames<as::IField>(attributes, "field attribute", at.place, ".");
    forEachMember<as::IField>(attributes, [&](as::IField& attribute) {
      const FieldPlace below = placeBelow(attribute, at);
      if (!lookAtReference(attribute, below.place, tree)) {
        lookAtField(below, tree, true);
      } else if (hasParts(attribute)) {
        look(FieldSubject{below.place, attribute, false, true}, report_);
      }
    });
  }

  // Of its own, or of the definition that it refers to.
  bool hasParts(as::IField& field) const {
    as::IList* const attributes = profile_.attributesOf(field);
    return field.hasChildren() || (attributes != nullptr && attributes->getLength() > 0);
  }

  static bool hasDataType(as::IField& field) {
    return !field.getAttributeValue("dataType").empty();
  }

  // Answers the type; null when there is none.
  const DataType* lookAtDataType(const FieldPlace& at) {
    const std::optional<int> code = profile_.dataTypeOf(at.field);
    if (!code) return nullptr;
    static const std::string attribute = "dataType";
    const DataType* const read = profile_.findDataType(*code);
    const std::string written = at.field.getAttributeValue(attribute.c_str());
    look(DataTypeSubject{at.place, written, read, profile_}, report_);
    if (read != nullptr) {
      look(WordSubject{at.place, attribute, written, read->word, profile_}, report_);
    }
    return read;
  }

  void lookAtMappings(const FieldPlace& at, const DataType* type, const Tree& tree) {
    as::IList* const mappings = at.field.getMappings();
    if (mappings->getLength() == 0) return;
    forEachMember<as::IMapping>(mappings, [&](as::IMapping& mapping) {
      // It has no name of its own, but a place in the text.
      const Place place("", at.place, mapping);
      std::optional<MappingSubject> subject = subjectOf(mapping, place);
      if (!subject) return;
      subject->profile = &profile_;
      subject->type = type;
      subject->fieldTables = tree.definition ? nullptr : &fieldTables_;
      look(*subject, report_);
      as::IDataItem* const item = reachedBy(*subject);
      if (item == nullptr) return;
      as::IDataItem* const record = program_->recordOf(*item);
      if (tree.definition) {
        typeStorage_.addRecord(*tree.definition, *record);
      } else {
        lookAtStorage(*record, place, tree.direction, tree.interface);
      }
    });
  }

  // Nothing for a mapping to anything else than a data item.
  std::optional<MappingSubject> subjectOf(as::IMapping& mapping, const Place& place) {
    if (mapping.getType() != as::IMapping::MAP_DATA_ITEM) return std::nullopt;
    const std::string text = mapping.getRawMapping();
    const std::size_t parenthesis = text.find('(');
    const std::string outerText = mapping.getAttributeValue("subscript");
    std::vector<int> inner = dataItemSubscripts(mapping, text);
    std::vector<int> outer = interfaceSubscripts(mapping, outerText);
    const bool isInnerReadable = parenthesis == std::string::npos || !inner.empty();
    const bool isOuterReadable = outerText.empty() || !outer.empty();
    as::IDataItem* const item = program_ && !text.empty() ? program_->find(text) : nullptr;
    MappingSubject subject{place,
                           text,
                           text.substr(0, parenthesis),
                           outerText,
                           std::move(inner),
                           std::move(outer),
                           isInnerReadable,
                           isOuterReadable,
                           program(),
                           item};
    if (item != nullptr) subject.tables = tablesAround(*item);
    return subject;
  }

  // The item whose storage the mapping leads to; null when there is none.
  static as::IDataItem* reachedBy(const MappingSubject& mapping) {
    return mapping.isInnerReadable ? mapping.item : nullptr;
  }

  void lookAtStorage(as::IDataItem& record, const Place& place, const Direction& direction,
                     const CallInterface* interface) {
    if (!isKnown(interface)) return;
    look(StorageSubject{place, *program_, record, *interface, direction}, report_);
  }

  static bool isKnown(const CallInterface* interface) {
    return interface != nullptr && interface->lost.empty();
  }

  // False when the field is none.
  bool lookAtReference(as::IField& field, const Place& place, const Tree& tree) {
    const std::string type = referenceOf(field);
    if (type.empty()) return false;
    auto* const parameter = as::interface_cast<as::IParameter>(&field);
    as::IParameter* const target = parameter == nullptr ? nullptr : parameter->getReferenceType();
    const auto found = definitions_.find(target);
    const bool isDefinition = found != definitions_.end();
    const ReferenceSubject::Leads leads = target == nullptr ? leadOf(type, tree)
                                          : isDefinition && found->second == tree.definition
                                              ? ReferenceSubject::Leads::toItself
                                              : ReferenceSubject::Leads::toAnEarlierOne;
    look(ReferenceSubject{place, field, type, target != nullptr, leads,
                          leads == ReferenceSubject::Leads::nowhere ? typeMeant(type) : ""},
         report_);
    if (!isDefinition) return true;
    if (tree.definition) {
      typeStorage_.addReference(*tree.definition, found->second);
    } else if (isKnown(tree.interface)) {
      lookAtStorageOf(found->second, place, tree);
    }
    return true;
  }

  // Why the model does not follow a reference to a definition of that name.
  ReferenceSubject::Leads leadOf(const std::string& type, const Tree& tree) const {
    const auto last = lastOfName_.find(type);
    if (last == lastOfName_.end()) return ReferenceSubject::Leads::nowhere;
    return last->second == tree.definition ? ReferenceSubject::Leads::toItself
                                           : ReferenceSubject::Leads::toALaterOne;
  }

  // The definition of nearly that name; empty when there is none.
  std::string typeMeant(const std::string& type) {
    const std::optional<std::size_t> nearest = typeNames_.nearestTo(type);
    return nearest ? typeNames_[*nearest] : "";
  }

  // At all storage of a type definition, as that of what refers to it.
  void lookAtStorageOf(std::size_t definition, const Place& place, const Tree& tree) {
    const auto isWrong = [&](as::IDataItem& record) {
      LintReport trial = report_.emptyOne();
      look(StorageSubject{place, *program_, record, *tree.interface, tree.direction}, trial);
      return !trial.findings().empty();
    };
    const TypeStorage::WrongOnes wrong =
        typeStorage_.wrongOnes(definition, *tree.interface, tree.direction.byType, isWrong);
    for (as::IDataItem* const record : wrong.told) {
      const bool hasMore = wrong.areMore && record == wrong.told.back();
      look(StorageSubject{place, *program_, *record, *tree.interface, tree.direction, hasMore},
           report_);
    }
  }

  ProgramFacts* program() { return program_ ? &*program_ : nullptr; }

  as::IService& service_;
  LintReport& report_;
  const FlavourProfile& profile_;
  std::optional<ProgramFacts> program_;
  std::unordered_map<as::IParameter*, std::size_t> definitions_;  // By their numbers.
  std::unordered_map<std::string, std::size_t> lastOfName_;
  NearNames typeNames_;
  TypeStorage typeStorage_;
  // The occurrences of the tables that the field at hand stands in, itself included, outermost
  // first.
  std::vector<int> fieldTables_;
};

}  // namespace

std::shared_ptr<const ItemIndex> lintMembers(as::IService& service, as::IProgram* program,
                                             LintReport& report) {
  return ServiceWalk(service, program, report).run();
}

}  // namespace as::toolkit

#include "as/toolkit/Lint.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "as/IDataItem.h"
#include "as/IEntryPoint.h"
#include "as/IGroup.h"
#include "as/IHiddenParameter.h"
#include "as/ILinkageItem.h"
#include "as/IList.h"
#include "as/IMapping.h"
#include "as/INumeric.h"
#include "as/IOperation.h"
#include "as/IParameter.h"
#include "as/IProgram.h"
#include "as/IService.h"
#include "toolkit/findings/Report.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/text/Words.h"
#include "toolkit/walk/FieldWalk.h"
#include "toolkit/walk/ItemWalk.h"
#include "toolkit/walk/Subscripts.h"

namespace as::toolkit {

namespace {

std::string nameOr(const std::string& name, const char* otherwise) {
  return name.empty() ? otherwise : name;
}

// The tables that an item stands in, itself included, the outermost first.
std::vector<as::IDataItem*> tablesAround(as::IDataItem& item) {
  std::vector<as::IDataItem*> tables;
  for (as::IDataItem* at = &item; at != nullptr; at = at->getParent()) {
    if (at->getMaxOccurs() != 0) tables.push_back(at);
  }
  std::reverse(tables.begin(), tables.end());
  return tables;
}

// "(*,*)" without the parentheses.
std::string allOf(std::size_t tables) {
  std::string text = "*";
  for (std::size_t i = 1; i < tables; ++i) text += ",*";
  return text;
}

std::size_t openOnes(const std::vector<int>& subscripts) {
  return static_cast<std::size_t>(
      std::count(subscripts.begin(), subscripts.end(), everyOccurrence));
}

// What the checks ask of the dictionary, answered without going through it again.
class Dictionary {
 public:
  explicit Dictionary(as::IProgram& program) : program_(program) {
    as::IDataItem* last = nullptr;
    forEachMember<as::IDataItem>(program.getDataItems(), [&](as::IDataItem& item) {
      // The same storage under another name is the same record.
      if (last == nullptr || !(item.isRedefined() || item.isRenamed())) last = &item;
      storage_.emplace(&item, last);
    });
  }

  std::string name() const { return program_.getName(); }

  // The record whose storage `item` lies in.
  as::IDataItem* storageOf(as::IDataItem& item) const {
    as::IDataItem* record = &item;
    while (as::IGroup* const parent = record->getParent()) record = parent;
    const auto found = storage_.find(record);
    return found == storage_.end() ? record : found->second;
  }

  // The first item of that name, wherever it stands; null when there is none.
  as::IDataItem* firstOfName(const std::string& name) {
    if (!indexed_) {
      walkItems(
          program_.getDataItems(),
          [this](as::IDataItem& item, std::size_t) { byName_.emplace(item.getName(), &item); },
          [](as::IDataItem&) {});
      indexed_ = true;
    }
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : found->second;
  }

  // What a caller of `entryPoint` hands over.
  struct Interface {
    std::map<as::IDataItem*, int> records;  // With how they are handed over.
    std::vector<std::string> names;
    std::vector<std::string> lost;  // Names that no record has.
  };
  const Interface& interfaceOf(as::IEntryPoint& entryPoint) {
    const auto [found, isNew] = interfaces_.try_emplace(&entryPoint);
    Interface& result = found->second;
    if (!isNew) return result;
    forEachMember<as::ILinkageItem>(&entryPoint, [&](as::ILinkageItem& parameter) {
      const std::string name = parameter.getAttributeValue("dataItem");
      as::IDataItem* const item = parameter.getDataItem();
      if (item == nullptr) {
        result.lost.push_back(name);
        return;
      }
      result.names.push_back(name);
      result.records.emplace(storageOf(*item), parameter.getByType());
    });
    return result;
  }

 private:
  as::IProgram& program_;
  std::unordered_map<as::IDataItem*, as::IDataItem*> storage_;
  std::unordered_map<std::string, as::IDataItem*> byName_;
  bool indexed_ = false;
  std::unordered_map<as::IEntryPoint*, Interface> interfaces_;
};

// A type definition and the storage that it maps to, references followed.
struct Definition {
  std::size_t index = 0;
  std::set<as::IDataItem*> records;
};

class MemberLint {
 public:
  MemberLint(as::IService& service, Findings& findings)
      : service_(service), list_(findings), findings_(findings), flavour_(profileOf(service)) {
    if (as::IProgram* const program = service.getProgram()) dictionary_.emplace(*program);
  }

  void run() {
    std::size_t index = 0;
    forEachMember<as::IParameter>(service_.getParameterTypeDefs(), [&](as::IParameter& parameter) {
      // The first of a name is the one that is referred to; it is the last one added otherwise.
      lastOfName_[parameter.getName()] = index;
      definitions_[&parameter].index = index++;
    });
    checkNames<as::IParameter>(service_.getParameterTypeDefs(), "type definition", "type ");
    forEachMember<as::IParameter>(service_.getParameterTypeDefs(), [&](as::IParameter& parameter) {
      base_ = "type ";
      definition_ = &definitions_[&parameter];
      checkTree(parameter);
    });
    definition_ = nullptr;
    checkNames<as::IOperation>(service_.getOperations(), "operation", "");
    forEachMember<as::IOperation>(service_.getOperations(),
                                  [&](as::IOperation& operation) { check(operation); });
  }

 private:
  // Reports members of one list that have no name or that of another member.
  template <class Member>
  void checkNames(as::IList* members, const std::string& what, const std::string& place) {
    std::unordered_set<std::string> names;
    forEachMember<Member>(members, [&](Member& member) {
      const std::string name = member.getName();
      const std::string where = place + nameOr(name, "(unnamed)");
      if (name.empty()) {
        findings_.error("unnamed-member", where, "the " + what + " has no name", "give it one");
      } else if (!names.insert(name).second) {
        findings_.error("same-name", where, "another " + what + " beside it has the same name",
                        "rename one of them");
      }
    });
  }

  void check(as::IOperation& operation) {
    const std::string name = nameOr(operation.getName(), "(unnamed)");
    interface_ = nullptr;
    checkEntryPoint(operation, name);
    for (const Trait& trait : flavour_.traitsOf(operation)) {
      if (!trait.code || trait.text.empty()) continue;
      checkWord(name, trait.attribute, operation.getAttributeValue(trait.attribute.c_str()),
                trait.text);
    }
    flavour_.lint(operation, name, list_);
    int number = 0;
    forEachMember<as::IHiddenParameter>(
        operation.getHiddenParameters(), [&](as::IHiddenParameter& hidden) {
          checkHidden(hidden, name + ", hidden parameter " + std::to_string(++number));
        });
    checkParameters(operation.getParameters(), name + ".");
    std::map<std::string, int> numbers;
    for (const Message& message : flavour_.messagesOf(operation)) {
      std::string place = name;
      place.append(", ").append(message.kind).append(" ");
      place.append(std::to_string(++numbers[message.kind])).append(".");
      checkParameters(message.parameters, place);
    }
  }

  void checkParameters(as::IList* parameters, const std::string& place) {
    checkNames<as::IField>(parameters, "parameter", place);
    forEachMember<as::IField>(parameters, [&](as::IField& parameter) {
      base_ = place;
      checkTree(parameter);
    });
  }

  void checkEntryPoint(as::IOperation& operation, const std::string& where) {
    const std::string name = operation.getAttributeValue("entryPoint");
    if (name.empty()) {
      findings_.error("unbound-operation", where, "the operation is bound to no entry point",
                      "name one in \"entryPoint\"");
      return;
    }
    if (!dictionary_) return;
    as::IEntryPoint* const entryPoint = operation.getEntryPoint();
    if (entryPoint == nullptr) {
      findings_.error("lost-entry-point", where,
                      dictionary_->name() + " has no entry point " + quote(name),
                      "bind the operation to one of the program's");
      return;
    }
    interface_ = &dictionary_->interfaceOf(*entryPoint);
    entryPointName_ = name;
    for (const std::string& lost : interface_->lost) {
      findings_.error("lost-linkage-record", where,
                      "entry point " + quote(name) + " is called with " + quote(lost) +
                          ", which is no record of the dictionary",
                      "make the dictionary anew");
    }
  }

  void checkWord(const std::string& where, const std::string& attribute, const std::string& written,
                 const std::string& word) {
    if (written.empty() || written == word) return;
    if (flavour_.findDataType(written) != nullptr) {
      findings_.warning("word-by-alias", where,
                        attribute + " " + quote(written) + " reads as " + quote(word),
                        "write " + quote(word));
      return;
    }
    findings_.error("unknown-word", where,
                    attribute + " " + quote(written) + " is unknown and reads as " + quote(word),
                    "use a word of " + flavour_.name() + " services");
  }

  void checkHidden(as::IHiddenParameter& hidden, const std::string& where) {
    as::IDataItem* const item = checkMapping(hidden, where);
    if (item != nullptr) checkStorage(*dictionary_->storageOf(*item), where, as::IParameter::BY_IN);
    const std::string value = hidden.getValue();
    if (value.empty()) {
      findings_.warning("no-hidden-value", where, "it has no value", "give it one");
    } else if (as::interface_cast<as::INumeric>(item) != nullptr && !isNumeral(value)) {
      findings_.error("hidden-value-no-number", where,
                      "value " + quote(value) + " is no number, " + item->getName() + " is",
                      "write a number");
    }
  }

  // A parameter or definition with all its fields.
  void checkTree(as::IField& root) {
    way_.clear();
    auto* const parameter = as::interface_cast<as::IParameter>(&root);
    direction_ = parameter == nullptr ? as::IParameter::BY_IO : parameter->getByType();
    walkRoot(root, [this](as::IField& field) { check(field); });
  }

  // Visits `root` and everything below it, with way_ leading to the field visited.
  template <class Visit>
  void walkRoot(as::IField& root, const Visit& visit) {
    way_.push_back(&root);
    visit(root);
    if (!referenceOf(root).empty()) return;
    walkFields(
        root.getChildren(),
        [&](as::IField& field, std::size_t) {
          way_.push_back(&field);
          visit(field);
        },
        [this](as::IField&) { way_.pop_back(); });
  }

  // The place of the field visited.
  std::string where() const {
    std::string place = base_;
    for (as::IField* const field : way_) {
      if (field != way_.front()) place += ".";
      place += nameOr(field->getName(), "(unnamed)");
    }
    return place;
  }

  void check(as::IField& field) {
    const std::string reference = referenceOf(field);
    if (!reference.empty()) {
      checkReference(field, reference);
      return;
    }
    const bool isLeaf = !field.hasChildren();
    if (!isLeaf) checkNames<as::IField>(field.getChildren(), "field", where() + ".");
    if (isLeaf || !field.getAttributeValue("dataType").empty()) checkTypeWord(field);
    as::IList* const attributes = flavour_.attributesOf(field);
    const bool hasAttributes = attributes != nullptr && attributes->getLength() > 0;
    if (isLeaf && !hasAttributes && field.getMappings()->getLength() == 0) {
      findings_.warning("unmapped-field", where(), "it is mapped to no data item",
                        "add a mapping or remove it");
    }
    forEachMember<as::IMapping>(field.getMappings(), [&](as::IMapping& mapping) {
      as::IDataItem* const item = checkMapping(mapping, where());
      if (item == nullptr) return;
      checkInterfaceTables(mapping, *item);
      if (isLeaf) checkType(field, *item);
      as::IDataItem* const storage = dictionary_->storageOf(*item);
      if (definition_ != nullptr) {
        definition_->records.insert(storage);
      } else {
        checkStorage(*storage, where(), direction_);
      }
    });
    if (!hasAttributes) return;
    checkNames<as::IField>(attributes, "field attribute", where() + ".");
    forEachMember<as::IField>(attributes, [this](as::IField& attribute) {
      way_.push_back(&attribute);
      check(attribute);
      way_.pop_back();
    });
  }

  void checkReference(as::IField& field, const std::string& name) {
    auto* const parameter = as::interface_cast<as::IParameter>(&field);
    as::IParameter* const target = parameter == nullptr ? nullptr : parameter->getReferenceType();
    if (target == nullptr) {
      reportLostReference(name);
      return;
    }
    if (!(field.getAttributeValue("occurs") + field.getAttributeValue("dataType")).empty()) {
      findings_.warning(
          "ignored-beside-reference", where(),
          "it refers to " + quote(name) + ": its own occurs and data type do not count",
          "remove them");
    }
    const auto found = definitions_.find(target);
    if (found == definitions_.end()) return;
    const Definition& referred = found->second;
    if (&referred == definition_) {
      reportRecursion(name);
    } else if (definition_ != nullptr) {
      definition_->records.insert(referred.records.begin(), referred.records.end());
    } else {
      for (as::IDataItem* const record : referred.records) {
        checkStorage(*record, where(), direction_);
      }
    }
  }

  void reportRecursion(const std::string& name) {
    findings_.error("recursive-type", where(),
                    "type definition " + quote(name) + " refers to itself",
                    "refer to another definition or spell the fields out");
  }

  void reportLostReference(const std::string& name) {
    const auto last = lastOfName_.find(name);
    if (last == lastOfName_.end()) {
      findings_.error("lost-type", where(), "there is no type definition " + quote(name),
                      "correct \"ref\" or add the definition");
    } else if (definition_ != nullptr && last->second == definition_->index) {
      reportRecursion(name);
    } else {
      findings_.error("late-type", where(), "type definition " + quote(name) + " comes only later",
                      "move it in front of this one");
    }
  }

  // Everything that is about one mapping alone. The item that it leads to; null when there is none.
  as::IDataItem* checkMapping(as::IMapping& mapping, const std::string& where) {
    if (mapping.getType() != as::IMapping::MAP_DATA_ITEM) return nullptr;
    const std::string text = mapping.getRawMapping();
    if (text.empty()) {
      findings_.error("empty-mapping", where, "the mapping names no data item",
                      "name one in \"item\"");
      return nullptr;
    }
    const std::vector<int> inner = dataItemSubscripts(mapping);
    const std::vector<int> outer = interfaceSubscripts(mapping);
    const bool hasInner = text.find('(') != std::string::npos;
    const std::string outerText = mapping.getAttributeValue("subscript");
    const bool badInner = hasInner && inner.empty();
    const bool badOuter = !outerText.empty() && outer.empty();
    if (badInner) {
      findings_.error("unreadable-subscripts", where,
                      "the subscripts of " + quote(text) + " cannot be read",
                      "write numbers or * with commas between, as in ITEM(1,*)");
    }
    if (badOuter) {
      findings_.error("unreadable-subscripts", where,
                      "subscript " + quote(outerText) + " cannot be read",
                      "write numbers or * with commas between, as in 1,*");
    }
    if (!dictionary_) return nullptr;
    as::IDataItem* const item = mapping.getDataItem();
    if (item == nullptr) {
      reportLostItem(text, where);
      return nullptr;
    }
    const std::vector<as::IDataItem*> tables = tablesAround(*item);
    if (badInner) return nullptr;
    const bool innerFits =
        checkInnerSubscripts(text.substr(0, text.find('(')), inner, tables, where);
    if (innerFits && !badOuter) checkOuterSubscripts(outerText, outer, inner, where);
    return item;
  }

  void reportLostItem(const std::string& text, const std::string& where) {
    std::string path = text.substr(0, text.find('('));
    std::string advice = "correct the name";
    if (path[0] == '$') {
      advice = "use $command_line, $return_code, $stdin or $stdout";
    } else if (as::IDataItem* const other =
                   dictionary_->firstOfName(path.substr(path.rfind('.') + 1))) {
      advice = "did you mean " + quote(dottedPath(*other)) + "?";
    }
    findings_.error("lost-data-item", where,
                    dictionary_->name() + " has no data item " + quote(path), advice);
  }

  // False when something was wrong.
  bool checkInnerSubscripts(const std::string& path, const std::vector<int>& subscripts,
                            const std::vector<as::IDataItem*>& tables, const std::string& where) {
    if (subscripts.size() != tables.size()) {
      findings_.error("subscript-count", where,
                      quote(path) + " has " + count(subscripts.size(), "subscript") +
                          " but stands in " + count(tables.size(), "table"),
                      tables.empty() ? "write " + quote(path)
                                     : "write " + quote(path + "(" + allOf(tables.size()) + ")") +
                                           " or the occurrences meant");
      return false;
    }
    for (std::size_t i = 0; i < tables.size(); ++i) {
      const int most = tables[i]->getMaxOccurs();
      if (subscripts[i] == everyOccurrence || (subscripts[i] >= 1 && subscripts[i] <= most)) {
        continue;
      }
      findings_.error("subscript-range", where,
                      "subscript " + std::to_string(subscripts[i]) + " of " + quote(path) +
                          " is outside of " + tables[i]->getName() + ", which occurs " +
                          std::to_string(most) + " times",
                      "write a number from 1 to " + std::to_string(most) + ", or *");
    }
    return true;
  }

  // `outer` has one subscript for each of `inner`, or one for each * among them: single occurrences
  // need no place in the interface.
  void checkOuterSubscripts(const std::string& text, const std::vector<int>& outer,
                            const std::vector<int>& inner, const std::string& where) {
    const std::size_t open = openOnes(inner);
    if (outer.size() != inner.size() && outer.size() != open) {
      const std::string problem =
          inner.empty() ? "subscript " + quote(text) + " is left over: the item stands in no table"
          : outer.empty()
              ? "the mapping has no subscripts of the interface for " + count(inner.size(), "table")
              : "subscript " + quote(text) + " has " + count(outer.size(), "subscript") + " for " +
                    count(inner.size(), "table");
      findings_.error("interface-subscript-count", where, problem,
                      inner.empty() ? "remove it"
                                    : "write " + quote(allOf(inner.size())) + " in \"subscript\"");
      return;
    }
    if (openOnes(outer) > open) {
      findings_.error("interface-subscript-open", where,
                      "subscript " + quote(text) + " is open (*) where the item's is a number",
                      "open both or neither");
    }
    // Each open subscript of the item belongs to an open one of the interface.
    std::size_t at = 0;
    for (const int subscript : inner) {
      const bool isCounted = outer.size() == inner.size() || subscript == everyOccurrence;
      if (!isCounted) continue;
      const int other = outer[at++];
      if (subscript != everyOccurrence || other == everyOccurrence) continue;
      findings_.error("interface-subscript-open", where,
                      "all occurrences (*) of the item go to occurrence " + std::to_string(other) +
                          " of the interface",
                      "open both or neither");
      return;
    }
    for (const int subscript : outer) {
      if (subscript == everyOccurrence || subscript >= 1) continue;
      findings_.error("interface-subscript-range", where,
                      "subscript " + std::to_string(subscript) + " is outside of every table",
                      "count from 1, or write *");
    }
  }

  // Compares the tables that the mapping runs through with those that the field stands in. A
  // definition's fields may stand in more, wherever it is referred to.
  void checkInterfaceTables(as::IMapping& mapping, as::IDataItem& item) {
    if (definition_ != nullptr) return;
    const std::vector<int> inner = dataItemSubscripts(mapping);
    const std::vector<as::IDataItem*> tables = tablesAround(item);
    if (inner.size() != tables.size()) return;
    std::vector<int> occurs;
    for (as::IField* const field : way_) {
      if (field->getOccurs() > 1) occurs.push_back(field->getOccurs());
    }
    const std::vector<int> outer = interfaceSubscripts(mapping);
    for (std::size_t i = 0; outer.size() == occurs.size() && i < outer.size(); ++i) {
      if (outer[i] <= occurs[i]) continue;
      findings_.error("interface-subscript-range", where(),
                      "subscript " + std::to_string(outer[i]) + " is beyond the " +
                          std::to_string(occurs[i]) + " occurrences of the field",
                      "write a smaller number or raise \"occurs\"");
    }
    std::vector<int> open;
    for (std::size_t i = 0; i < tables.size(); ++i) {
      // A table of one occurrence needs no table on the other side.
      if (inner[i] == everyOccurrence && tables[i]->getMaxOccurs() > 1) {
        open.push_back(tables[i]->getMaxOccurs());
      }
    }
    const auto fixed = static_cast<std::size_t>(std::count_if(
        outer.begin(), outer.end(), [](int subscript) { return subscript != everyOccurrence; }));
    if (occurs.size() > open.size() + fixed) {
      findings_.error("too-many-field-tables", where(),
                      "the field stands in " + count(occurs.size(), "table") + ", the item in " +
                          count(open.size(), "open one"),
                      "take \"occurs\" away, or map to the table's items");
    } else if (occurs.size() < open.size()) {
      findings_.error("too-few-field-tables", where(),
                      "all occurrences in " + count(open.size(), "table") + " are mapped to " +
                          (occurs.empty() ? std::string("a single field")
                                          : count(occurs.size(), "table") + " of fields"),
                      "give \"occurs\" to the field or one around it, or name the occurrence");
    } else if (occurs.size() == open.size()) {
      for (std::size_t i = 0; i < open.size(); ++i) {
        if (occurs[i] >= open[i]) continue;
        findings_.warning("small-field-table", where(),
                          "a table of " + std::to_string(open[i]) + " occurrences is mapped to " +
                              std::to_string(occurs[i]),
                          "raise \"occurs\"");
      }
    }
  }

  // Whether what is mapped to `storage` reaches the program, and comes back.
  void checkStorage(as::IDataItem& storage, const std::string& where, int direction) {
    if (interface_ == nullptr || !interface_->lost.empty()) return;
    const auto record = interface_->records.find(&storage);
    if (record == interface_->records.end()) {
      std::string names;
      for (const std::string& name : interface_->names) names += (names.empty() ? "" : ", ") + name;
      findings_.error(
          "unreachable-storage", where,
          storage.getName() + " is nothing that entry point " + quote(entryPointName_) +
              " is called with",
          names.empty() ? "it takes no parameters" : "map to something within " + names);
    } else if (record->second == as::ILinkageItem::BY_VALUE &&
               direction == as::IParameter::BY_OUT) {
      findings_.warning("nothing-comes-back", where,
                        storage.getName() + " is handed over by value: nothing comes back",
                        "make the parameter \"in\"");
    } else if (record->second == as::ILinkageItem::BY_RETURNING &&
               direction == as::IParameter::BY_IN) {
      findings_.warning("nothing-goes-in", where,
                        storage.getName() + " is only returned: nothing goes in",
                        "make the parameter \"out\"");
    }
  }

  void checkTypeWord(as::IField& field) {
    const std::optional<int> type = flavour_.dataTypeOf(field);
    if (!type) return;
    const DataType* const known = flavour_.findDataType(*type);
    const std::string written = field.getAttributeValue("dataType");
    if (known == nullptr && written.empty()) {
      findings_.error("no-data-type", where(), "it has no data type", "write \"dataType\"");
    } else if (known == nullptr) {
      findings_.error("unknown-data-type", where(), "data type " + quote(written) + " is unknown",
                      "use a word of " + flavour_.name() + " services");
    } else if (written.empty()) {
      findings_.warning("default-data-type", where(),
                        "it has no data type and reads as " + quote(known->word),
                        "write \"dataType\"");
    } else {
      checkWord(where(), "dataType", written, known->word);
    }
  }

  void checkType(as::IField& field, as::IDataItem& item) {
    const std::optional<int> code = flavour_.dataTypeOf(field);
    const DataType* const type = code ? flavour_.findDataType(*code) : nullptr;
    if (type == nullptr) return;
    const std::string problem = misfit(type->capacity, item);
    if (problem.empty()) return;
    const DataType* const better = flavour_.bestTypeFor(item);
    findings_.error(
        "narrow-data-type", where(),
        "data type " + quote(type->word) + " cannot hold " + item.getName() + ": it " + problem,
        better == nullptr ? "map to another item" : "use " + quote(better->word));
  }

  as::IService& service_;
  Findings& list_;
  Report findings_;
  const FlavourProfile& flavour_;
  std::optional<Dictionary> dictionary_;
  std::unordered_map<as::IParameter*, Definition> definitions_;
  std::unordered_map<std::string, std::size_t> lastOfName_;

  // Where the check is: the names in front of way_, the way from the parameter or definition to the
  // field, and what holds for all of it.
  std::string base_;
  std::vector<as::IField*> way_;
  int direction_ = as::IParameter::BY_IO;
  Definition* definition_ = nullptr;                  // Null in an operation.
  const Dictionary::Interface* interface_ = nullptr;  // Null when unknown.
  std::string entryPointName_;
};

// The service's own attributes, as the document has them.
void lintService(as::IService& service, Findings& list) {
  const FlavourProfile& flavour = profileOf(service);
  Report findings(list);
  if (service.getName().empty()) {
    findings.warning("unnamed-service", "service", "the service has no name", "write \"name\"");
  }
  if (service.getDDFilename().empty()) {
    findings.error("no-dictionary", "service", "the service names no dictionary",
                   "write \"dataDictFilename\"");
  }
  if (service.getImplementation() != flavour.flavour().implementation && flavour.owns(service)) {
    findings.error("wrong-implementation", "service",
                   "implementation " + quote(service.getAttributeValue("implementation")) +
                       " is not that of a " + flavour.name() + " service",
                   "correct \"implementation\"");
  }
}

void lintMembers(as::IService& service, Findings& findings) { MemberLint(service, findings).run(); }

}  // namespace

const std::vector<LintRule>& lintRules() {
  static const std::vector<LintRule> rules = {
      {"unnamed-service", Severity::warning, "a service has a name"},
      {"no-dictionary", Severity::error, "a service names its dictionary"},
      {"wrong-implementation", Severity::error,
       "the implementation is that of the document's namespace"},
      {"unusable-dictionary", Severity::error, "the dictionary can be read"},
      {"other-program", Severity::warning, "the dictionary is that of the service's program"},
      {"unnamed-member", Severity::error,
       "operations, parameters, fields and type definitions have names"},
      {"same-name", Severity::error, "no two members of a list have the same name"},
      {"unbound-operation", Severity::error, "an operation is bound to an entry point"},
      {"lost-entry-point", Severity::error, "the program has the entry point of an operation"},
      {"lost-linkage-record", Severity::error,
       "what an entry point is called with is in the dictionary"},
      {"word-by-alias", Severity::warning, "a word is written as it reads"},
      {"unknown-word", Severity::error, "a word is one that the flavour knows"},
      {"no-style", Severity::error, "an operation of a Web service has a style"},
      {"no-use", Severity::error,
       "an operation of a Web service, a header and a fault have their uses"},
      {"encoded-document", Severity::error, "with style document all uses are literal"},
      {"no-operation-namespace", Severity::error, "with style rpc an operation has its namespaces"},
      {"no-element-namespace", Severity::error, "with style document a parameter has a namespace"},
      {"empty-message", Severity::error, "a header or fault has parameters"},
      {"no-message-namespace", Severity::error, "a header or fault has a namespace"},
      {"no-hidden-value", Severity::warning, "a hidden parameter has a value"},
      {"hidden-value-no-number", Severity::error, "the value for a numeric item is a number"},
      {"unmapped-field", Severity::warning, "an elementary field is mapped"},
      {"ignored-beside-reference", Severity::warning,
       "a parameter that refers to a type definition has no occurs and data type of its own"},
      {"recursive-type", Severity::error, "a type definition does not refer to itself"},
      {"lost-type", Severity::error, "there is the type definition that a parameter refers to"},
      {"late-type", Severity::error, "a type definition stands in front of those that refer to it"},
      {"empty-mapping", Severity::error, "a mapping names a data item"},
      {"unreadable-subscripts", Severity::error, "subscripts are numbers or *"},
      {"lost-data-item", Severity::error, "a mapping leads to a data item"},
      {"subscript-count", Severity::error, "an item has a subscript for each of its tables"},
      {"subscript-range", Severity::error, "a subscript is within its table"},
      {"interface-subscript-count", Severity::error,
       "a mapping has a subscript of the interface for each table"},
      {"interface-subscript-open", Severity::error, "open subscripts (*) stand on both sides"},
      {"interface-subscript-range", Severity::error,
       "a subscript of the interface is within the field's occurrences"},
      {"too-many-field-tables", Severity::error, "a field stands in no more tables than its item"},
      {"too-few-field-tables", Severity::error, "a field stands in as many tables as its item"},
      {"small-field-table", Severity::warning, "a field occurs as often as its item"},
      {"unreachable-storage", Severity::error, "what is mapped is handed over to the entry point"},
      {"nothing-comes-back", Severity::warning, "what is handed over by value is no output"},
      {"nothing-goes-in", Severity::warning, "what is only returned is no input"},
      {"no-data-type", Severity::error, "a field has a data type"},
      {"unknown-data-type", Severity::error, "a data type is one that the flavour knows"},
      {"default-data-type", Severity::warning, "a data type is written"},
      {"narrow-data-type", Severity::error, "a data type holds the item"},
  };
  return rules;
}

Findings lint(as::IService& service) {
  Findings findings;
  lintService(service, findings);
  lintMembers(service, findings);
  return findings;
}

Findings lintFile(const DocumentReader& reader, const std::string& file,
                  const std::optional<std::string>& dictionary) {
  const std::unique_ptr<as::IService> service = reader.readService(file);
  Findings findings;
  lintService(*service, findings);
  ServiceDocument complete;
  if (dictionary || !service->getDDFilename().empty()) {
    try {
      complete = reader.withProgram(*service, file, ProgramChoice{dictionary});
    } catch (const RefusedDocument& refused) {
      Report(findings).error("unusable-dictionary", "service",
                             "the dictionary cannot be used: " + textOf(refused.refusal()),
                             "mappings and entry points were not checked");
    }
  }
  if (complete.service) {
    const std::string actual = complete.service->getProgram()->getName();
    if (!complete.programName.empty() && complete.programName != actual) {
      Report(findings).warning("other-program", "service",
                               "it names program " + quote(complete.programName) +
                                   ", the dictionary is of " + quote(actual),
                               R"(correct "programName" or "dataDictFilename")");
    }
  }
  lintMembers(complete.service ? *complete.service : *service, findings);
  return findings;
}

}  // namespace as::toolkit

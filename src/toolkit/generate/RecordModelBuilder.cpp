// The records of a dictionary as generators see them.
#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "as/IFD.h"
#include "as/IGroup.h"
#include "as/IList.h"
#include "as/IProperty.h"
#include "toolkit/findings/Report.h"
#include "toolkit/generate/ItemFacts.h"
#include "toolkit/generate/ModelBuilder.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/text/Words.h"
#include "toolkit/walk/ItemWalk.h"

namespace as::toolkit::gen {

namespace {

bool isUnnamed(as::IDataItem& item) {
  const std::string name = item.getName();
  return name.empty() || name == "FILLER";
}

class RecordBuilder {
 public:
  RecordBuilder(as::IProgram& program, const std::string& record, Findings& findings)
      : program_(program), wanted_(record), notes_(findings), facts_(model_.items) {}

  ServiceModel build() {
    model_.name = program_.getName();
    model_.program = model_.name;
    forEachMember<as::IProperty>(program_.getProperties(), [this](as::IProperty& property) {
      model_.properties.push_back({property.getName(), property.getValue()});
    });
    forEachMember<as::IFD>(program_.getFileSection(),
                           [this](as::IFD& file) { readRecords(file.getDataItems()); });
    readRecords(program_.getDataItems());
    return std::move(model_);
  }

 private:
  void readRecords(as::IList* records) {
    forEachMember<as::IDataItem>(records, [this](as::IDataItem& record) {
      if (record.isRenamed() || isUnnamed(record)) return;
      if (!wanted_.empty() && record.getName() != wanted_) return;
      readRecord(record);
    });
  }

  void readRecord(as::IDataItem& record) {
    const std::size_t number = model_.types.size();
    Type& type = model_.types.emplace_back();
    type.name = record.getName();
    type.isDeclared = true;
    Field self = fieldOf(record);
    auto* const group = as::interface_cast<as::IGroup>(&record);
    if (group != nullptr) self.structure = number;
    type.self = std::move(self);
    if (group != nullptr) readMembers(*group, number);
  }

  // What stands in a structure that is left out, or is none, goes nowhere, or to the one around.
  void readMembers(as::IGroup& record, std::size_t number) {
    std::vector<std::size_t> around = {number};
    walkItems(
        record.getChildren(),
        [&](as::IDataItem& item, std::size_t) {
          const std::size_t owner = around.back();
          around.push_back(owner == none ? none : add(item, owner));
        },
        [&](as::IDataItem&) { around.pop_back(); });
  }

  // Answers the structure that the item's members belong to.
  std::size_t add(as::IDataItem& item, std::size_t owner) {
    if (item.isRenamed() || item.isRedefined()) {
      notes_.note(item.isRenamed() ? "renamed-item" : "redefined-item", shortPathOf(item),
                  std::string("it ") + (item.isRenamed() ? "renames" : "redefines") +
                      " other items, which are there already: left out");
      return none;
    }
    auto* const group = as::interface_cast<as::IGroup>(&item);
    if (isUnnamed(item) && (group == nullptr || item.getMaxOccurs() == 0)) {
      return group == nullptr ? none : owner;
    }
    Field field = fieldOf(item);
    std::size_t structure = none;
    if (group != nullptr) {
      structure = model_.types.size();
      field.structure = structure;
      Type& type = model_.types.emplace_back();
      type.name = field.name;
      type.owner = owner;
    }
    model_.types[owner].fields.push_back(std::move(field));
    return structure;
  }

  Field fieldOf(as::IDataItem& item) {
    Field field;
    field.name = item.getName();
    const std::size_t number = facts_.numberOf(item);
    const Item& facts = model_.items[number];
    field.item = number;
    field.capacity = facts.capacity;
    field.mappings.push_back({Mapping::Source::item, facts.path, number});
    if (item.getMaxOccurs() > 0) {
      const Item::Table& table = *facts.table;
      field.occurs = table.most;
      field.least = std::min(table.least, table.most);
      field.dependingOn = table.dependingOn;
    }
    return field;
  }

  as::IProgram& program_;
  const std::string& wanted_;
  Report notes_;
  ServiceModel model_;
  ItemFacts facts_;
};

}  // namespace

ServiceModel modelOf(as::IProgram& program, const std::string& record, Findings& findings) {
  return RecordBuilder(program, record, findings).build();
}

}  // namespace as::toolkit::gen

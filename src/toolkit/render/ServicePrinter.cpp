#include <cstddef>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "as/IHiddenParameter.h"
#include "as/IList.h"
#include "as/IMapping.h"
#include "as/IOperation.h"
#include "as/IParameter.h"
#include "as/IService.h"
#include "as/toolkit/Render.h"
#include "as/toolkit/Text.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/render/ItemSummary.h"
#include "toolkit/render/PrinterParts.h"
#include "toolkit/text/TextTable.h"
#include "toolkit/text/Words.h"
#include "toolkit/walk/FieldWalk.h"

namespace as::toolkit {

namespace {

using Row = TextTable::Row;

// The columns of parameters and fields. Hidden parameters and second mappings fill the last ones.
TextTable fieldTable() {
  return TextTable({{"name", false},
                    {"direction", false},
                    {"occurs", true},
                    {"type", false},
                    {"mapped to", false},
                    {"subscripts", false},
                    {"data item", false},
                    {"clauses", false}});
}

class ServicePrinter {
 public:
  ServicePrinter(std::ostream& out, as::IService& service)
      : out_(out), service_(service), flavour_(profileOf(service)), table_(fieldTable()) {}

  void print() {
    out_ << "SERVICE " << printable(service_.getName()) << "\n";
    printHeader();
    printProperties(out_, service_.getProperties());
    // All tables share one layout, so that their columns stand below each other.
    const auto measure = [this](const Row& row) { table_.measure(row); };
    forEachFieldRow(service_.getParameterTypeDefs(), measure);
    forEachMember<as::IOperation>(service_.getOperations(), [&](as::IOperation& operation) {
      forEachRow(operation, measure);
    });
    const auto printRow = [this](const Row& row) { table_.print(out_, row); };
    if (service_.getParameterTypeDefs()->getLength() > 0) {
      out_ << "\nTYPE DEFINITIONS\n\n";
      table_.printHeader(out_);
      forEachFieldRow(service_.getParameterTypeDefs(), printRow);
    }
    if (service_.getOperations()->getLength() == 0) return;
    out_ << "\nOPERATIONS\n";
    forEachMember<as::IOperation>(service_.getOperations(), [&](as::IOperation& operation) {
      printHeader(operation);
      const bool isEmpty = operation.getParameters()->getLength() == 0 &&
                           operation.getHiddenParameters()->getLength() == 0 &&
                           flavour_.messagesOf(operation).empty();
      if (isEmpty) return;
      out_ << "\n";
      table_.printHeader(out_);
      forEachRow(operation, printRow);
    });
  }

 private:
  void printHeader() {
    const std::vector<std::pair<const char*, std::string>> lines = {
        {"flavour       ", flavour_.flavour().implementation == service_.getImplementation()
                               ? flavour_.name()
                               : implementationWord(service_.getImplementation())},
        {"program       ", service_.getAttributeValue("programName")},
        {"dictionary    ", service_.getDDFilename()},
        {"exit program  ", service_.getExitProgramName()},
    };
    out_ << "\n";
    for (const auto& [title, text] : lines) {
      if (!text.empty()) out_ << "  " << title << printable(text) << "\n";
    }
  }

  void printHeader(as::IOperation& operation) {
    Clauses clauses;
    const std::string entryPoint = operation.getAttributeValue("entryPoint");
    if (!entryPoint.empty()) {
      const bool lost = hasProgram() && operation.getEntryPoint() == nullptr;
      clauses.add("entry point " + printable(entryPoint) + (lost ? " (not found)" : ""));
    }
    if (!operation.getAttributeValue("exitPoints").empty()) {
      clauses.add("exit points " + std::to_string(operation.getExitPoints()));
    }
    addTraits(clauses, operation, flavour_.traitsOf(operation));
    out_ << "\n  " << printable(operation.getName());
    if (!clauses.text().empty()) out_ << "  " << clauses.text();
    out_ << "\n";
  }

  // Those that the document tells.
  static void addTraits(Clauses& clauses, as::IElement& element, const std::vector<Trait>& traits) {
    for (const Trait& trait : traits) {
      if (element.getAttributeValue(trait.attribute.c_str()).empty()) continue;
      clauses.add(trait.attribute + " " + (trait.text.empty() ? "unknown" : printable(trait.text)));
    }
  }

  bool hasProgram() { return service_.getProgram() != nullptr; }

  // Calls take(Row) for each row of the operation's table.
  template <class Take>
  void forEachRow(as::IOperation& operation, const Take& take) {
    forEachMember<as::IHiddenParameter>(operation.getHiddenParameters(),
                                        [&](as::IHiddenParameter& hidden) {
                                          Row row;
                                          row.cells = {"(hidden)", "", "", ""};
                                          addMapping(row, hidden);
                                          const std::string value = hidden.getValue();
                                          if (!hidden.getAttributeValue("value").empty())
                                            row.rest = "value " + printable(value);
                                          take(row);
                                        });
    forEachFieldRow(operation.getParameters(), take);
    for (const Message& message : flavour_.messagesOf(operation)) {
      Row row;
      row.cells = {std::string("(") + message.kind + ")", "", "", "", "", "", ""};
      Clauses clauses;
      addTraits(clauses, *message.element, message.traits);
      row.rest = clauses.text();
      take(row);
      forEachFieldRow(message.parameters, take, 1);
    }
  }

  // The fields of a message stand `inset` deeper than the message.
  template <class Take>
  void forEachFieldRow(as::IList* fields, const Take& take, std::size_t inset = 0) {
    walkFields(
        fields,
        [&](as::IField& field, std::size_t depth) {
          takeRows(field, indented(depth + inset, printable(field.getName())), take);
          forEachAttributeRow(field, take, depth + inset + 1);
        },
        [](as::IField&) {});
  }

  // The field attributes of a field, each with what it may hold all the same.
  template <class Take>
  void forEachAttributeRow(as::IField& field, const Take& take, std::size_t depth) {
    if (!referenceOf(field).empty()) return;
    forEachMember<as::IField>(flavour_.attributesOf(field), [&](as::IField& attribute) {
      takeRows(attribute, indented(depth, "@" + printable(attribute.getName())), take);
      forEachAttributeRow(attribute, take, depth + 1);
      if (referenceOf(attribute).empty()) {
        forEachFieldRow(attribute.getChildren(), take, depth + 1);
      }
    });
  }

  // The rows of one field, which is called `name`.
  template <class Take>
  void takeRows(as::IField& field, const std::string& name, const Take& take) {
    Row row = fieldRow(field, name);
    bool isFirst = true;
    if (referenceOf(field).empty()) {
      forEachMember<as::IMapping>(field.getMappings(), [&](as::IMapping& mapping) {
        if (!isFirst) {
          row.cells = {"", "", "", ""};
          row.rest.clear();
        }
        isFirst = false;
        addMapping(row, mapping);
        take(row);
      });
    }
    if (!isFirst) return;
    row.cells.resize(7);
    take(row);
  }

  // Without its mappings.
  Row fieldRow(as::IField& field, const std::string& name) {
    Row row;
    row.cells = {name, "", "", ""};
    auto* const parameter = as::interface_cast<as::IParameter>(&field);
    if (parameter != nullptr && !field.getAttributeValue("byType").empty()) {
      row.cells[1] = directionWord(parameter->getByType());
    }
    const std::string reference = referenceOf(field);
    if (!reference.empty()) {
      const bool lost = parameter == nullptr || parameter->getReferenceType() == nullptr;
      row.rest = "like " + printable(reference) + (lost ? " (not found)" : "");
      return row;
    }
    if (field.getOccurs() != 0) row.cells[2] = std::to_string(field.getOccurs());
    const std::optional<int> type = flavour_.dataTypeOf(field);
    if (type && !field.getAttributeValue("dataType").empty()) {
      const DataType* const known = flavour_.findDataType(*type);
      row.cells[3] = known == nullptr ? "unknown" : known->word;
    }
    Clauses clauses;
    addTraits(clauses, field, flavour_.traitsOf(field));
    row.rest = clauses.text();
    return row;
  }

  void addMapping(Row& row, as::IMapping& mapping) {
    row.cells.push_back(printable(mapping.getRawMapping()));
    row.cells.push_back(printable(mapping.getAttributeValue("subscript")));
    row.cells.push_back(resolved(mapping));
  }

  std::string resolved(as::IMapping& mapping) {
    if (!hasProgram()) return "";
    if (mapping.getType() != as::IMapping::MAP_DATA_ITEM) return mappingTypeWord(mapping.getType());
    as::IDataItem* const item = mapping.getDataItem();
    return item == nullptr ? "(not found)" : printable(itemSummary(*item));
  }

  std::ostream& out_;
  as::IService& service_;
  const FlavourProfile& flavour_;
  TextTable table_;
};

}  // namespace

void renderText(std::ostream& out, as::IService& service) { ServicePrinter(out, service).print(); }

}  // namespace as::toolkit

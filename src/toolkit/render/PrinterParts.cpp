#include "toolkit/render/PrinterParts.h"

#include <ostream>

#include "as/IProperty.h"
#include "as/toolkit/Text.h"
#include "toolkit/text/TextTable.h"
#include "toolkit/walk/TreeWalk.h"

namespace as::toolkit {

std::string indented(std::size_t depth, const std::string& text) {
  return std::string(2 * depth, ' ') + text;
}

void Clauses::add(const std::string& clause) {
  if (!text_.empty()) text_ += ", ";
  text_ += clause;
}

void Clauses::addIf(bool condition, const char* clause) {
  if (condition) add(clause);
}

void printProperties(std::ostream& out, as::IList* properties) {
  if (properties->getLength() == 0) return;
  TextTable table({{"name", false}, {"value", false}});
  const auto forEachRow = [&](auto take) {
    forEachMember<as::IProperty>(properties, [&](as::IProperty& property) {
      take(TextTable::Row{{printable(property.getName())}, printable(property.getValue())});
    });
  };
  forEachRow([&](const TextTable::Row& row) { table.measure(row); });
  out << "\nPROPERTIES\n\n";
  forEachRow([&](const TextTable::Row& row) { table.print(out, row); });
}

}  // namespace as::toolkit

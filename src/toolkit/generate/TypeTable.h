// Which type of a target language holds what: one table for each kind of output, in which the first
// row that loses nothing is taken.
#ifndef TOOLKIT_GENERATE_TYPETABLE_H_
#define TOOLKIT_GENERATE_TYPETABLE_H_

#include <string>
#include <vector>

#include "toolkit/generate/ServiceModel.h"

namespace as::toolkit::gen {

struct TypeRow {
  const char* type;   // The target's name for it.
  Capacity capacity;  // What it holds. Of kind open, with a word, for that word of a flavour alone.
  const char* word = "";  // "date", "object", "XML"
};

using TypeTable = std::vector<TypeRow>;

// The row for a field that has a value; null when none holds it.
const TypeRow* rowFor(const TypeTable& table, const Field& field);

// Whether the row's type holds all that the item does.
bool holds(const TypeRow& row, const Item& item);

// The table as documentation shows it, a line a row: what is held, and by which type.
std::string textOf(const TypeTable& table);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_TYPETABLE_H_

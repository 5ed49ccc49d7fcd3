// Which type of a target language holds what: one table for each kind of output, in which the first
// row that loses nothing is taken.
#ifndef TOOLKIT_GENERATE_TYPETABLE_H_
#define TOOLKIT_GENERATE_TYPETABLE_H_

#include <string>
#include <unordered_map>
#include <vector>

#include "toolkit/generate/ServiceModel.h"

namespace as::toolkit::gen {

struct TypeRow {
  const char* type = "";  // The target's name for it.
  Capacity capacity;  // What it holds. Of kind open, with a word, for that word of a flavour alone.
  const char* word = "";  // "date", "object", "XML"
};

using TypeTable = std::vector<TypeRow>;

// The row for a field that has a value; null when none holds it.
const TypeRow* rowFor(const TypeTable& table, const Field& field);

// The same for many fields: data types of flavours are looked up once.
class TypeLookup {
 public:
  // The table must outlive it.
  explicit TypeLookup(const TypeTable& table) : table_(table) {}

  const TypeRow* rowFor(const Field& field) const;

 private:
  const TypeTable& table_;
  mutable std::unordered_map<std::string, const TypeRow*> rows_;  // By the words of data types.
};

// The rows of the table as documentation shows it: what is held, and by which type.
std::string textOf(const TypeTable& table);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_TYPETABLE_H_

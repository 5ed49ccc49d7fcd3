#include "toolkit/generate/TypeTable.h"

#include <algorithm>

namespace as::toolkit::gen {

namespace {

using Kind = Capacity::Kind;

std::string wordsOf(const TypeRow& row) {
  const Capacity& capacity = row.capacity;
  const std::string digits = std::to_string(capacity.digits);
  switch (capacity.kind) {
    case Kind::integer:
      return "integers of " + std::to_string(capacity.bits) + " bits, " +
             (capacity.isSigned ? "signed" : "unsigned");
    case Kind::floating:
      return "floating-point numbers of " + digits + " digits";
    case Kind::decimal:
      return (capacity.digits == 0 ? std::string("decimal numbers")
                                   : "decimal numbers of " + digits + " digits") +
             (capacity.whole == 0
                  ? ""
                  : " of " + std::to_string(capacity.whole) + " digits before the point") +
             (capacity.places == 0  ? ", integers only"
              : capacity.places < 0 ? ""
                                    : ", " + std::to_string(capacity.places) + " behind it");
    case Kind::text:
      return "text";
    case Kind::bytes:
      return "bytes";
    default:
      return std::string("what is of data type `") + row.word + "`";
  }
}

}  // namespace

const TypeRow* rowFor(const TypeTable& table, const Field& field) {
  const auto found = std::find_if(table.begin(), table.end(), [&field](const TypeRow& row) {
    if (field.capacity.kind == Kind::open) {
      return row.capacity.kind == Kind::open && field.dataType == row.word;
    }
    // Decimal numbers are exact, floating-point ones are not, though each might hold the other.
    if ((row.capacity.kind == Kind::floating) != (field.capacity.kind == Kind::floating)) {
      return false;
    }
    return row.capacity.kind != Kind::open && contains(row.capacity, field.capacity);
  });
  return found == table.end() ? nullptr : &*found;
}

const TypeRow* TypeLookup::rowFor(const Field& field) const {
  if (field.dataType.empty()) return gen::rowFor(table_, field);
  const auto [found, isNew] = rows_.try_emplace(field.dataType);
  if (isNew) found->second = gen::rowFor(table_, field);
  return found->second;
}

std::string textOf(const TypeTable& table) {
  std::string text;
  for (const TypeRow& row : table) {
    text += "| " + wordsOf(row) + " | `" + row.type + "` |\n";
  }
  return text;
}

}  // namespace as::toolkit::gen

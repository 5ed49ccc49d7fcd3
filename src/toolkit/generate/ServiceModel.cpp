#include "toolkit/generate/ServiceModel.h"

#include <algorithm>

namespace as::toolkit::gen {

namespace {

const std::string& orUnnamed(const std::string& name) {
  static const std::string unnamed = "(unnamed)";
  return name.empty() ? unnamed : name;
}

}  // namespace

bool Item::isLike(const Item& other) const {
  return kind == other.kind && digits == other.digits && scale == other.scale &&
         isSigned == other.isSigned && bits == other.bits &&
         floatingDigits == other.floatingDigits && characters == other.characters &&
         bytes == other.bytes;
}

std::string ServiceModel::placeOf(const Operation& operation) const {
  return orUnnamed(operation.name);
}

std::string ServiceModel::placeOf(const Operation& operation, const Message& message) const {
  return placeOf(operation) + ", " + message.kind + " " + std::to_string(message.number);
}

std::string ServiceModel::placeOf(const Type& type) const {
  std::vector<const std::string*> names;
  const Type* at = &type;
  for (; at->owner != none; at = &types[at->owner]) names.push_back(&orUnnamed(at->name));
  names.push_back(&orUnnamed(at->name));
  std::string place;
  if (at->operation == none) {
    place = "type ";
  } else {
    place = placeOf(operations[at->operation]);
    if (!at->message.empty()) place += ", " + at->message;
    place += '.';
  }
  std::reverse(names.begin(), names.end());
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) place += '.';
    place += *names[i];
  }
  return place;
}

}  // namespace as::toolkit::gen

#include "toolkit/generate/ServiceModel.h"

#include <algorithm>
#include <string_view>

#include "toolkit/generate/ShortPath.h"

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
  return shortName(orUnnamed(operation.name));
}

std::string ServiceModel::placeOf(const Operation& operation, const Message& message) const {
  return placeOf(operation) + ", " + message.kind + " " + std::to_string(message.number);
}

std::string ServiceModel::pathOf(const Type& type) const {
  std::vector<std::string_view> names;
  const Type* at = &type;
  for (; at->owner != none; at = &types[at->owner]) names.push_back(orUnnamed(at->name));
  names.push_back(orUnnamed(at->name));
  std::reverse(names.begin(), names.end());
  if (at->operation == none) return shortPath(names);
  std::string path = placeOf(operations[at->operation]);
  if (!at->message.empty()) path += ", " + at->message;
  return path + "." + shortPath(names);
}

std::string ServiceModel::placeOf(const Type& type) const {
  const Type* at = &type;
  while (at->owner != none) at = &types[at->owner];
  return (at->operation == none ? "type " : "") + pathOf(type);
}

}  // namespace as::toolkit::gen

#include "toolkit/flavour/Flavour.h"

#include <algorithm>

#include "as/IDataItem.h"

namespace {

// In the order in which they are asked whether a service is theirs: a .NET service may come as a
// document of the Web services' namespace.
const std::vector<const Flavour*>& flavours() {
  static const std::vector<const Flavour*> all = {&dotNetFlavour(), &webFlavour(), &javaFlavour(),
                                                  &comFlavour()};
  return all;
}

template <class Matches>
const DataType* findType(const std::vector<DataType>& types, const Matches& matches) {
  const auto found = std::find_if(types.begin(), types.end(), matches);
  return found == types.end() ? nullptr : &*found;
}

// Whether the type can be given to an item without asking anybody.
bool isPlain(const DataType& type) {
  return type.capacity.kind != Capacity::Kind::group && type.capacity.kind != Capacity::Kind::open;
}

}  // namespace

Flavour::~Flavour() = default;

std::vector<Trait> Flavour::traitsOf(as::IOperation& /*operation*/) const { return {}; }
std::vector<Trait> Flavour::traitsOf(as::IField& /*field*/) const { return {}; }
std::vector<Message> Flavour::messagesOf(as::IOperation& /*operation*/) const { return {}; }
as::IList* Flavour::attributesOf(as::IField& /*field*/) const { return nullptr; }
void Flavour::lint(as::IOperation& /*operation*/, const std::string& /*where*/,
                   Findings& /*findings*/) const {}
void Flavour::complete(as::IService& /*service*/, as::IOperation& /*operation*/) const {}
void Flavour::markReturned(as::IField& /*field*/) const {}
const DataType* Flavour::groupType(bool /*repeats*/) const { return nullptr; }

const DataType* Flavour::findDataType(int code) const {
  return findType(dataTypes(), [code](const DataType& type) { return type.code == code; });
}

const DataType* Flavour::findDataType(const std::string& word) const {
  return findType(dataTypes(), [&word](const DataType& type) { return type.word == word; });
}

const DataType* Flavour::bestTypeFor(as::IDataItem& item) const {
  // Edited numbers hold blanks, currency signs and the like.
  const bool isText = item.getDataType() == as::IDataItem::TYPE_NUMERIC_EDITED;
  const bool isFloat = isFloating(item);
  const bool isOpen = !isOfKnownSize(item);
  const DataType* best = nullptr;
  for (const DataType& type : dataTypes()) {
    const Capacity::Kind kind = type.capacity.kind;
    if (!isPlain(type) || (isText && kind != Capacity::Kind::text)) continue;
    if (isOpen && kind != Capacity::Kind::text && !isUnlimited(type.capacity)) continue;
    if (!misfit(type.capacity, item).empty()) continue;
    if (best == nullptr) best = &type;
    // Decimals hold floating-point numbers, but those are what the item means.
    const bool isDecimal = best->capacity.kind == Capacity::Kind::decimal;
    if (isDecimal && isFloat && kind == Capacity::Kind::floating) best = &type;
  }
  return best;
}

const DataType* Flavour::bestTypeFor(const Capacity& capacity) const {
  // What a user makes of an open type another cannot know.
  if (capacity.kind == Capacity::Kind::open) return nullptr;
  const auto fits = [&](const DataType& type) { return contains(type.capacity, capacity); };
  const DataType* const alike = findType(dataTypes(), [&](const DataType& type) {
    return type.capacity.kind == capacity.kind && fits(type);
  });
  // Integers are held by what is smallest, whatever its kind; floating-point numbers by their like.
  const bool isFloat = capacity.kind == Capacity::Kind::floating;
  return isFloat && alike != nullptr ? alike : findType(dataTypes(), fits);
}

const Flavour& flavourOf(as::IService& service) {
  for (const Flavour* const flavour : flavours()) {
    if (flavour->owns(service)) return *flavour;
  }
  // An empty service of one of the flavours that have no class of their own for it.
  const Flavour* const named = findFlavour(service.getAttributeValue("implementation"));
  return named == nullptr ? javaFlavour() : *named;
}

const Flavour* findFlavour(const std::string& word) {
  for (const Flavour* const flavour : flavours()) {
    if (flavour->word() == word) return flavour;
  }
  return nullptr;
}

std::vector<std::string> flavourWords() {
  std::vector<std::string> words;
  for (const Flavour* const flavour : flavours()) words.emplace_back(flavour->word());
  std::sort(words.begin(), words.end());
  return words;
}

as::IParameter* firstParameterOf(as::IService& service) {
  as::IParameter* first = nullptr;
  const auto lookIn = [&first](as::IList* list) {
    forEachMember<as::IParameter>(list, [&first](as::IParameter& parameter) {
      if (first == nullptr) first = &parameter;
    });
  };
  lookIn(service.getParameterTypeDefs());
  forEachMember<as::IOperation>(service.getOperations(), [&](as::IOperation& operation) {
    if (first == nullptr) lookIn(operation.getParameters());
  });
  return first;
}

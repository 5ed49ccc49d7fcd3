#include "toolkit/flavour/FlavourProfile.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "as/CASException.h"
#include "as/CAgentServicesFactory.h"
#include "as/IDataItem.h"
#include "toolkit/flavour/Profiles.h"
#include "toolkit/io/ParserMemory.h"
#include "toolkit/io/XmlDocument.h"

namespace as::toolkit {

namespace {

// In the order of the table.
const std::vector<const FlavourProfile*>& profiles() {
  static const std::vector<const FlavourProfile*> all = {
#define AS_PROFILE(name) &name(),
#include "toolkit/flavour/Profiles.def"
  };
  return all;
}

const FlavourProfile* findProfile(std::string_view word) {
  for (const FlavourProfile* const profile : profiles()) {
    if (profile->flavour().word == word) return profile;
  }
  return nullptr;
}

template <class Matches>
const DataType* findType(const std::vector<DataType>& types, const Matches& matches) {
  const auto found = std::find_if(types.begin(), types.end(), matches);
  return found == types.end() ? nullptr : &*found;
}

// The namespace that the service's document is in. The model does not tell it, and "xmlns" alone is
// another's where the root has a prefix: what is written tells.
std::string namespaceOf(as::IService& service) {
  std::string document;
  try {
    document = as::CAgentServicesFactory::SerializeToString(&service);
  } catch (const as::CASException&) {
    return service.getAttributeValue("xmlns");
  }
  return withBadAlloc([&] { return XmlDocument(document).root().declaredNamespace(); });
}

// Whether the type can be given to an item without asking anybody.
bool isPlain(const DataType& type) {
  return type.capacity.kind != Capacity::Kind::group && type.capacity.kind != Capacity::Kind::open;
}

}  // namespace

FlavourProfile::~FlavourProfile() = default;

std::vector<Trait> FlavourProfile::traitsOf(as::IOperation& /*operation*/) const { return {}; }
std::vector<Trait> FlavourProfile::traitsOf(as::IField& /*field*/) const { return {}; }
std::vector<Message> FlavourProfile::messagesOf(as::IOperation& /*operation*/) const { return {}; }
as::IList* FlavourProfile::attributesOf(as::IField& /*field*/) const { return nullptr; }
void FlavourProfile::lint(as::IOperation& /*operation*/, const Place& /*place*/,
                          LintReport& /*report*/) const {}
void FlavourProfile::complete(as::IService& /*service*/, as::IOperation& /*operation*/) const {}
void FlavourProfile::markReturned(as::IField& /*field*/) const {}
const DataType* FlavourProfile::groupType(bool /*repeats*/) const { return nullptr; }

const DataType* FlavourProfile::typeReadAs(const std::string& word) const {
  return word.empty() ? defaultType() : findDataType(word);
}

const DataType* FlavourProfile::findDataType(int code) const {
  return findType(dataTypes(), [code](const DataType& type) { return type.code == code; });
}

const DataType* FlavourProfile::findDataType(const std::string& word) const {
  return findType(dataTypes(), [&word](const DataType& type) { return type.word == word; });
}

const DataType* FlavourProfile::bestTypeFor(as::IDataItem& item) const {
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

const DataType* FlavourProfile::bestTypeFor(const Capacity& capacity) const {
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

const FlavourProfile& profileOf(as::IService& service) {
  for (const FlavourProfile* const profile : profiles()) {
    if (profile->owns(service)) return *profile;
  }
  // An empty service of one of the flavours that have no class of their own for it.
  const FlavourProfile* const named = findProfileOfDocuments(namespaceOf(service));
  return named == nullptr ? *profiles().back() : *named;
}

const FlavourProfile& profileOf(const Flavour& flavour) {
  const FlavourProfile* const found = findProfile(flavour.word);
  if (found == nullptr) {
    throw std::invalid_argument(std::string("there is no flavour '") + flavour.word + "'");
  }
  return *found;
}

const FlavourProfile* findProfileOfDocuments(const std::string& namespaceURI) {
  for (const FlavourProfile* const profile : profiles()) {
    if (profile->flavour().documents.uri == namespaceURI) return profile;
  }
  return nullptr;
}

bool isGroupWord(const std::string& word) {
  return std::any_of(profiles().begin(), profiles().end(), [&word](const FlavourProfile* profile) {
    const DataType* const type = profile->findDataType(word);
    return type != nullptr && type->capacity.kind == Capacity::Kind::group;
  });
}

const std::vector<Flavour>& flavours() {
  static const std::vector<Flavour> all = [] {
    std::vector<Flavour> rows;
    for (const FlavourProfile* const profile : profiles()) rows.push_back(profile->flavour());
    std::sort(rows.begin(), rows.end(), [](const Flavour& left, const Flavour& right) {
      return std::string_view(left.word) < right.word;
    });
    return rows;
  }();
  return all;
}

const Flavour* findFlavour(const std::string& word) {
  for (const Flavour& flavour : flavours()) {
    if (flavour.word == word) return &flavour;
  }
  return nullptr;
}

const Flavour& flavourOf(as::IService& service) {
  return *findFlavour(profileOf(service).flavour().word);
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

}  // namespace as::toolkit

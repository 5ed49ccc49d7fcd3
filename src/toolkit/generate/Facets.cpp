#include "toolkit/generate/Facets.h"

#include <algorithm>
#include <cstddef>

#include "toolkit/generate/ShortPath.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

using CapacityKind = Capacity::Kind;

// No item has more digits, or more zeros beside them; documents may say so.
constexpr int mostDigits = 1000;
// So many mappings, values and conditions are told of one field, and so many bytes about its
// conditions: an item may have any number of fields.
constexpr std::size_t mostTold = 30;
constexpr std::size_t mostAboutConditions = 4000;
constexpr const char* andMore = "...";

bool isOfUse(int digits, int scale) {
  return digits > 0 && digits <= mostDigits && scale >= -mostDigits && scale <= mostDigits;
}

void limitNumber(const Capacity& capacity, const Item* item, Facets& facets) {
  using Kind = Item::Kind;
  if (item != nullptr && item->bits > 0) {
    limitBits(item->bits, item->isSigned, facets);
    facets.fractionDigits = 0;
    return;
  }
  if (item != nullptr && (item->kind == Kind::number || item->kind == Kind::numberEdited) &&
      item->digits > 0) {
    return limitDigits(item->digits, item->scale, item->isSigned, facets);
  }
  if (item != nullptr && (item->kind == Kind::pointer || item->kind == Kind::index)) {
    facets.fractionDigits = 0;
    return;
  }
  if (capacity.kind == CapacityKind::integer) {
    limitBits(capacity.bits, capacity.isSigned, facets);
    facets.fractionDigits = 0;
    return;
  }
  const int places = std::max(capacity.places, 0);
  const int digits = capacity.digits > 0  ? capacity.digits
                     : capacity.whole > 0 ? capacity.whole + places
                                          : 0;
  facets.fractionDigits = capacity.places;
  if (digits > 0) facets.totalDigits = digits;
  if (digits > 0 && capacity.places >= 0) limitDigits(digits, places, capacity.isSigned, facets);
}

void limitText(const Item* item, Facets& facets) {
  using Kind = Item::Kind;
  if (item == nullptr) return;
  switch (item->kind) {
    case Kind::text:
    case Kind::textEdited:
    case Kind::national:
    case Kind::numberEdited:
      if (item->characters > 0) facets.longest = item->characters;
      return;
    case Kind::group:
      if (item->bytes > 0) facets.longest = item->bytes;
      return;
    case Kind::number:
      if (item->floatingDigits == 0 && isOfUse(item->digits, item->scale)) {
        const int digits = item->scale < 0 ? item->digits - item->scale : item->digits;
        facets.pattern = numeralPattern(digits, std::max(item->scale, 0), item->isSigned);
      }
      return;
    default:
      return;
  }
}

std::string lineAbout(const Condition& condition) {
  std::string line = shortName(condition.name) + ":";
  for (std::size_t i = 0; i < condition.values.size(); ++i) {
    const ConditionValue& value = condition.values[i];
    line += i == 0 ? " " : ", ";
    if (i == mostTold || line.size() > mostAboutConditions) return line + andMore;
    line += quote(shortName(value.from));
    if (value.isRange) line += " to " + quote(shortName(value.to));
  }
  return line;
}

}  // namespace

bool isExact(const Capacity& capacity) {
  return capacity.kind == CapacityKind::integer || capacity.kind == CapacityKind::decimal;
}

void limitBits(int bits, bool isSigned, Facets& facets) {
  using Wide = unsigned long long;
  constexpr int widest = 64;
  if (bits <= 0 || bits > widest) return;
  const int value = isSigned ? bits - 1 : bits;
  const Wide most = value == widest ? ~Wide{0} : (Wide{1} << static_cast<unsigned>(value)) - 1;
  facets.most = std::to_string(most);
  facets.least = isSigned ? "-" + std::to_string(most + 1) : "0";
}

void limitDigits(int digits, int scale, bool isSigned, Facets& facets) {
  if (!isOfUse(digits, scale)) return;
  const int fraction = std::max(scale, 0);
  facets.totalDigits = std::max(scale < 0 ? digits - scale : digits, fraction);
  facets.fractionDigits = fraction;
  facets.most = ninesOf(facets.totalDigits, fraction);
  facets.least = isSigned ? "-" + facets.most : "0";
}

std::string ninesOf(int digits, int fraction) {
  const int whole = digits - fraction;
  std::string text =
      whole > 0 ? std::string(static_cast<std::size_t>(whole), '9') : std::string("0");
  if (fraction > 0) text.append(".").append(static_cast<std::size_t>(fraction), '9');
  return text;
}

std::string numeralPattern(int digits, int fraction, bool isSigned) {
  std::string pattern = isSigned ? "-?" : "";
  const int whole = digits - std::max(fraction, 0);
  if (digits == 0) {
    pattern += "[0-9]+";
  } else if (whole > 0) {
    pattern += "[0-9]{1," + std::to_string(whole) + "}";
  } else {
    pattern += "0?";
  }
  if (fraction < 0) pattern += "([.][0-9]+)?";
  if (fraction > 0) pattern += "([.][0-9]{1," + std::to_string(fraction) + "})?";
  return pattern;
}

Facets facetsOf(const ServiceModel& model, const Field& field) {
  Facets facets;
  const Item* const item = model.itemOf(field);
  const Capacity& capacity = field.capacity;
  if (isExact(capacity)) {
    limitNumber(capacity, item, facets);
  } else if (capacity.kind == CapacityKind::text) {
    limitText(item, facets);
  } else if (capacity.kind == CapacityKind::bytes && item != nullptr && item->bytes > 0) {
    facets.longest = item->bytes;
  }
  return facets;
}

std::vector<std::string> linesAbout(const ServiceModel& model, const Field& field) {
  std::vector<std::string> lines;
  for (const Mapping& mapping : field.mappings) {
    std::string line = mapping.text;
    if (mapping.item != none) {
      const Item& item = model.items[mapping.item];
      if (!item.picture.empty()) line += ", PIC " + shortName(item.picture);
      if (!item.usage.empty()) line += ", " + item.usage;
    }
    lines.push_back(std::move(line));
    if (lines.size() == mostTold) break;
  }
  if (!field.dependingOn.empty()) {
    lines.push_back("occurs " + std::to_string(field.least) + " to " +
                    std::to_string(field.occurs) + " times, depending on " + field.dependingOn);
  } else if (field.isTable()) {
    lines.push_back("occurs " + std::to_string(field.occurs) + " times");
  }
  for (std::string& line : linesAboutConditions(model, field)) lines.push_back(std::move(line));
  return lines;
}

std::vector<std::string> linesAboutConditions(const ServiceModel& model, const Field& field) {
  std::vector<std::string> lines;
  const Item* const item = model.itemOf(field);
  if (item == nullptr) return lines;
  std::size_t told = 0;
  for (const Condition& condition : item->conditions) {
    if (lines.size() == mostTold || told > mostAboutConditions) {
      lines.emplace_back(andMore);
      break;
    }
    lines.push_back(lineAbout(condition));
    told += lines.back().size();
  }
  return lines;
}

}  // namespace as::toolkit::gen

#include "toolkit/generate/Facets.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "as/toolkit/Storage.h"
#include "as/toolkit/Text.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

using CapacityKind = Capacity::Kind;

// No item has more digits; documents may say so.
constexpr int mostDigits = 1000;
// So many values and conditions are told of one field.
constexpr std::size_t mostTold = 30;

bool isExact(const Capacity& capacity) {
  return capacity.kind == CapacityKind::integer || capacity.kind == CapacityKind::decimal;
}

// The least and greatest of so many bits, 64 at most.
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
  if (digits <= 0 || digits > mostDigits || std::abs(scale) > mostDigits) return;
  const int fraction = std::max(scale, 0);
  facets.totalDigits = std::max(scale < 0 ? digits - scale : digits, fraction);
  facets.fractionDigits = fraction;
  facets.most = ninesOf(facets.totalDigits, fraction);
  facets.least = isSigned ? "-" + facets.most : "0";
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
      if (item->floatingDigits == 0 && item->digits > 0 && item->digits <= mostDigits) {
        const int digits = item->scale < 0 ? item->digits - item->scale : item->digits;
        facets.pattern = numeralPattern(digits, std::max(item->scale, 0), item->isSigned);
      }
      return;
    default:
      return;
  }
}

// The numeral in the manner of XML Schema; nothing for what is none.
std::optional<std::string> numeralOf(std::string_view text) {
  if (text.empty()) return std::nullopt;
  std::string result;
  if (text.front() == '-') result = "-";
  if (text.front() == '-' || text.front() == '+') text.remove_prefix(1);
  const std::size_t point = text.find('.');
  std::string_view whole = text.substr(0, point);
  std::string_view fraction =
      point == std::string_view::npos ? std::string_view() : text.substr(point + 1);
  const auto isNumber = [](std::string_view part) {
    return part.find_first_not_of("0123456789") == std::string_view::npos;
  };
  if ((whole.empty() && fraction.empty()) || !isNumber(whole) || !isNumber(fraction)) {
    return std::nullopt;
  }
  while (whole.size() > 1 && whole.front() == '0') whole.remove_prefix(1);
  while (!fraction.empty() && fraction.back() == '0') fraction.remove_suffix(1);
  result += whole.empty() ? std::string_view("0") : whole;
  if (!fraction.empty()) result.append(".").append(fraction);
  return result;
}

// Whether an item of these limits can have that value: programs may have conditions that are never
// true.
bool fits(std::string_view numeral, const Facets& facets) {
  std::string_view limit = facets.most;
  if (numeral.front() == '-') {
    if (!facets.least.empty() && facets.least.front() != '-') return false;
    limit = std::string_view(facets.least).substr(facets.least.empty() ? 0 : 1);
    numeral.remove_prefix(1);
  }
  const std::size_t point = std::min(numeral.find('.'), numeral.size());
  const std::string_view whole = numeral.substr(0, numeral.front() == '0' ? 0 : point);
  const std::size_t behind = numeral.size() - std::min(point + 1, numeral.size());
  const int fraction = std::max(facets.fractionDigits, 0);
  if (facets.fractionDigits >= 0 && behind > static_cast<std::size_t>(fraction)) return false;
  if (facets.totalDigits > 0) {
    return whole.size() <= static_cast<std::size_t>(facets.totalDigits - fraction);
  }
  // The limit of so many bits.
  return limit.empty() || std::pair(whole.size(), whole) <= std::pair(limit.size(), limit);
}

bool isWord(std::string_view text) {
  static constexpr std::string_view words[] = {
      "SPACE",      "SPACES",      "ZERO",      "ZEROS",      "ZEROES", "QUOTE", "QUOTES",
      "HIGH-VALUE", "HIGH-VALUES", "LOW-VALUE", "LOW-VALUES", "NULL",   "NULLS", "ALL"};
  return std::find(std::begin(words), std::end(words), text) != std::end(words);
}

// A value of a condition as one of the field; nothing for one that is none.
std::optional<std::string> valueOf(const ConditionValue& value, const Capacity& capacity,
                                   const Facets& facets) {
  if (value.isRange || isWord(value.from)) return std::nullopt;
  if (isExact(capacity) || !facets.pattern.empty()) {
    std::optional<std::string> numeral = numeralOf(value.from);
    if (numeral && !fits(*numeral, facets)) return std::nullopt;
    return numeral;
  }
  if (capacity.kind != CapacityKind::text) return std::nullopt;
  std::string text = value.from;
  if (facets.longest >= 0 && characterCount(text) > static_cast<std::size_t>(facets.longest)) {
    return std::nullopt;
  }
  // Blanks at the end are of no account to COBOL.
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

std::vector<std::string> valuesOf(const Item& item, const Capacity& capacity,
                                  const Facets& facets) {
  std::vector<std::string> values;
  Facets limits = facets;
  // Those of a number that is a text to callers.
  if (!facets.pattern.empty()) limitDigits(item.digits, item.scale, item.isSigned, limits);
  // What has no limits of its own (an address) has those of its type.
  if (limits.most.empty() && capacity.kind == CapacityKind::integer) {
    limitBits(capacity.bits, capacity.isSigned, limits);
  }
  for (const Condition& condition : item.conditions) {
    for (const ConditionValue& value : condition.values) {
      std::optional<std::string> read = valueOf(value, capacity, limits);
      if (!read) return {};
      if (std::find(values.begin(), values.end(), *read) == values.end()) {
        values.push_back(std::move(*read));
      }
    }
  }
  return values;
}

}  // namespace

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

Facets facetsOf(const ServiceModel& model, const Field& field, bool withConditions) {
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
  if (withConditions && item != nullptr) facets.values = valuesOf(*item, capacity, facets);
  return facets;
}

bool hasOtherConditions(const ServiceModel& model, const Field& field) {
  const Item* const item = model.itemOf(field);
  return item != nullptr && !item->conditions.empty() &&
         facetsOf(model, field, true).values.empty();
}

std::vector<std::string> linesAbout(const ServiceModel& model, const Field& field) {
  std::vector<std::string> lines;
  for (const Mapping& mapping : field.mappings) {
    std::string line = mapping.text;
    if (mapping.item != none) {
      const Item& item = model.items[mapping.item];
      if (!item.picture.empty()) line += ", PIC " + item.picture;
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
  const Item* const item = model.itemOf(field);
  if (item == nullptr) return lines;
  for (std::size_t i = 0; i < std::min(item->conditions.size(), mostTold); ++i) {
    const Condition& condition = item->conditions[i];
    std::string line = condition.name + ":";
    for (std::size_t k = 0; k < std::min(condition.values.size(), mostTold); ++k) {
      const ConditionValue& value = condition.values[k];
      line += (k == 0 ? " " : ", ") + quote(value.from);
      if (value.isRange) line += " to " + quote(value.to);
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace as::toolkit::gen

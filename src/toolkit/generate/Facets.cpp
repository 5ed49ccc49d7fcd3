#include "toolkit/generate/Facets.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

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

// The numeral of an integer with the point so many digits further in front: 12.34 of 1234, 0.01 of
// 1. Zeros follow where the number is less than 0.
std::string shifted(const std::string& numeral, int scale) {
  const std::string sign = numeral.starts_with('-') ? "-" : "";
  std::string digits = numeral.substr(sign.size());
  if (scale <= 0) return sign + digits.append(static_cast<std::size_t>(-scale), '0');
  const auto fraction = static_cast<std::size_t>(scale);
  if (digits.size() <= fraction) digits.insert(0, fraction + 1 - digits.size(), '0');
  return sign + digits.insert(digits.size() - fraction, ".");
}

void limitByItem(const Item& item, Facets& facets) {
  using Kind = Item::Kind;
  const bool isNumber = item.kind == Kind::number || item.kind == Kind::numberEdited;
  if (item.bits > 0 && item.scale == 0) {
    limitBits(item.bits, item.isSigned, facets);
  } else if (isNumber && item.digits > 0) {
    limitDigits(item.digits, item.scale, item.isSigned, facets);
    Facets bits;
    limitBits(item.bits, item.isSigned, bits);
    if (bits.most.empty() || facets.most.empty()) return;
    facets.least = item.isSigned ? shifted(bits.least, item.scale) : "0";
    facets.most = shifted(bits.most, item.scale);
  }
}

// The numeral with no more digits behind the point.
std::string cut(std::string numeral, int places) {
  const std::size_t point = numeral.find('.');
  if (point == std::string::npos) return numeral;
  const std::size_t kept = places == 0 ? 0 : static_cast<std::size_t>(places) + 1;
  numeral.resize(std::min(numeral.size(), point + kept));
  return numeral.find_first_of("123456789") == std::string::npos ? "0" : numeral;
}

void cutPlaces(int places, Facets& facets) {
  if (facets.fractionDigits <= places) return;
  facets.totalDigits = std::max(facets.totalDigits - (facets.fractionDigits - places), 1);
  facets.fractionDigits = places;
  facets.least = cut(std::move(facets.least), places);
  facets.most = cut(std::move(facets.most), places);
}

void cutToBits(const Capacity& capacity, Facets& facets) {
  Facets bits;
  limitBits(capacity.bits, capacity.isSigned, bits);
  if (bits.most.empty()) return;
  if (isMore(facets.most, bits.most)) {
    facets.most = bits.most;
    facets.totalDigits = 0;
  }
  const std::string_view least = facets.least;
  if (capacity.isSigned && least.starts_with('-') &&
      isMore(least.substr(1), std::string_view(bits.least).substr(1))) {
    facets.least = bits.least;
    facets.totalDigits = 0;
  }
}

// Limits of an item to what a field of that capacity holds of it, which may be less where lint was
// asked not to tell.
void narrow(const Capacity& capacity, Facets& facets) {
  const bool isInteger = capacity.kind == CapacityKind::integer;
  if (isInteger) facets.fractionDigits = std::max(facets.fractionDigits, 0);
  if (isInteger || capacity.places >= 0) cutPlaces(isInteger ? 0 : capacity.places, facets);
  const std::size_t whole = std::min(facets.most.find('.'), facets.most.size());
  if (!isInteger && capacity.whole > 0 && whole > static_cast<std::size_t>(capacity.whole)) {
    const int fraction = std::max(facets.fractionDigits, 0);
    limitDigits(capacity.whole + fraction, fraction, facets.least.front() == '-', facets);
  }
  if (isInteger) cutToBits(capacity, facets);
  if (!capacity.isSigned) facets.least = "0";
}

void limitNumber(const Capacity& capacity, const Item* item, Facets& facets) {
  if (item != nullptr) limitByItem(*item, facets);
  if (!facets.most.empty()) return narrow(capacity, facets);
  if (capacity.kind == CapacityKind::integer) {
    limitBits(capacity.bits, capacity.isSigned, facets);
  }
  const bool isAddress =
      item != nullptr && (item->kind == Item::Kind::pointer || item->kind == Item::Kind::index);
  if (capacity.kind == CapacityKind::integer || isAddress) {
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
        Facets limits;
        limitDigits(item->digits, item->scale, item->isSigned, limits);
        facets.pattern = numeralPattern(limits.totalDigits, limits.fractionDigits, item->isSigned);
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
  facets.fractionDigits = 0;
  facets.most = std::to_string(most);
  facets.least = isSigned ? "-" + std::to_string(most + 1) : "0";
}

void limitDigits(int digits, int scale, bool isSigned, Facets& facets) {
  if (!isOfUse(digits, scale)) return;
  const int fraction = std::max(scale, 0);
  facets.totalDigits = std::max(scale < 0 ? digits - scale : digits, fraction);
  facets.fractionDigits = fraction;
  facets.most = shifted(std::string(static_cast<std::size_t>(digits), '9'), scale);
  facets.least = isSigned ? "-" + facets.most : "0";
}

bool isMore(std::string_view left, std::string_view right) {
  const auto partsOf = [](std::string_view numeral) {
    const std::size_t point = std::min(numeral.find('.'), numeral.size());
    return std::tuple(point, numeral.substr(0, point),
                      numeral.substr(std::min(point + 1, numeral.size())));
  };
  return partsOf(left) > partsOf(right);
}

std::string numeralPattern(int digits, int fraction, bool isSigned) {
  std::string pattern = isSigned ? "-?" : "";
  const int whole = digits - std::max(fraction, 0);
  if (digits > 0 && whole <= 0) {
    // There is a digit in any numeral.
    return pattern + "(0|0?[.][0-9]{1," + std::to_string(fraction) + "})";
  }
  if (digits == 0) {
    pattern += "[0-9]+";
  } else {
    pattern += "[0-9]{1," + std::to_string(whole) + "}";
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

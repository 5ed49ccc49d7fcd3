#include "toolkit/generate/FacetLookup.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

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
  return result == "-0" ? "0" : result;
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
  if (facets.totalDigits > 0 &&
      whole.size() > static_cast<std::size_t>(facets.totalDigits - fraction)) {
    return false;
  }
  return limit.empty() || !isMore(numeral, limit);
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
  if (capacity.kind != Capacity::Kind::text) return std::nullopt;
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
  std::unordered_set<std::string> seen;
  Facets limits = facets;
  // Those of a number that is a text to callers.
  if (!facets.pattern.empty()) limitDigits(item.digits, item.scale, item.isSigned, limits);
  for (const Condition& condition : item.conditions) {
    for (const ConditionValue& value : condition.values) {
      std::optional<std::string> read = valueOf(value, capacity, limits);
      if (!read) return {};
      if (seen.insert(*read).second) values.push_back(std::move(*read));
    }
  }
  return values;
}

}  // namespace

Facets FacetLookup::facetsOf(const Field& field, bool withConditions) const {
  Facets facets = gen::facetsOf(model_, field);
  const Item* const item = model_.itemOf(field);
  if (!withConditions || item == nullptr || item->conditions.empty()) return facets;
  const Capacity& of = field.capacity;
  const auto [known, isNew] = values_.try_emplace(
      {field.item, of.kind, of.digits, of.bits, of.isSigned, of.places, of.whole});
  if (isNew) {
    known->second = std::make_shared<const std::vector<std::string>>(valuesOf(*item, of, facets));
  }
  facets.onlyValues = known->second;
  return facets;
}

bool FacetLookup::hasOtherConditions(const Field& field) const {
  const Item* const item = model_.itemOf(field);
  return item != nullptr && !item->conditions.empty() && !facetsOf(field, true).hasValues();
}

}  // namespace as::toolkit::gen

#include "toolkit/generate/SampleMaker.h"

#include <algorithm>

#include "toolkit/generate/Facets.h"

namespace as::toolkit::gen {

namespace {

using Kind = Capacity::Kind;

constexpr int longestText = 20;

// 1234567890123...
std::string digits(int count, int from = 1) {
  std::string text;
  for (int i = 0; i < count; ++i) text += static_cast<char>('0' + (from + i) % 10);
  return text;
}

// 1234567.89
std::string numeral(int total, int fraction) {
  const int whole = total - fraction;
  std::string text = whole > 0 ? digits(whole) : "0";
  if (fraction > 0) text += "." + digits(fraction, whole + 1);
  return text;
}

std::string numberOf(const Facets& facets) {
  if (facets.totalDigits > 0)
    return numeral(facets.totalDigits, std::max(facets.fractionDigits, 0));
  if (facets.most.empty()) return facets.fractionDigits == 0 ? "12345" : "123.45";
  // The limit of so many bits, with a first digit less by one.
  std::string text = facets.most;
  if (text.front() == '1' && text.size() > 1) return text.substr(1, text.size() - 2) + "0";
  --text.front();
  return text.size() > 1 && text.front() == '0' ? text.substr(1) : text;
}

std::string textOf(int longest) {
  std::string text;
  for (int i = 0; i < std::min(longest, longestText); ++i) text += static_cast<char>('A' + i);
  return text;
}

// 1, 2, 3 in base 64.
std::string bytesOf(int longest) {
  if (longest == 1) return "AQ==";
  return longest == 2 ? "AQI=" : "AQID";
}

}  // namespace

SampleMaker::SampleMaker(const ServiceModel& model) : model_(model) {
  for (const Type& type : model.types) {
    readCounter(type.self);
    for (const Field& field : type.fields) readCounter(field);
  }
  for (const Operation& operation : model.operations) {
    for (const Field& parameter : operation.parameters) readCounter(parameter);
  }
}

void SampleMaker::readCounter(const Field& field) {
  if (!field.dependingOn.empty()) counters_.emplace(field.dependingOn, occurrencesOf(field));
}

std::string SampleMaker::valueOf(const Field& field) const {
  const Item* const item = model_.itemOf(field);
  if (item != nullptr && item->kind == Item::Kind::number) {
    const auto counter = counters_.find(item->path);
    if (counter != counters_.end()) return std::to_string(counter->second);
  }
  const Facets facets = facetsOf(model_, field, true);
  if (!facets.values.empty()) return facets.values.front();
  switch (field.capacity.kind) {
    case Kind::integer:
    case Kind::decimal:
      return numberOf(facets);
    case Kind::floating:
      return "1.5";
    case Kind::text:
      if (!facets.pattern.empty()) {
        return numeral(item->scale < 0 ? item->digits - item->scale : item->digits,
                       std::max(item->scale, 0));
      }
      return facets.longest < 0 ? "text" : textOf(facets.longest);
    case Kind::bytes:
      return bytesOf(facets.longest);
    default:
      return field.dataType == "date" ? "2001-02-03T04:05:06Z" : "";
  }
}

std::size_t SampleMaker::occurrencesOf(const Field& field) {
  if (!field.isTable()) return field.least == 0 ? 0 : 1;
  return static_cast<std::size_t>(std::max(field.least, 1));
}

std::size_t SampleMaker::countOf(const Field& field, std::size_t most) {
  counts_.resize(model_.types.size());
  const std::size_t one = field.structure == none ? 1 : countOfType(field.structure, most);
  const std::size_t times = occurrencesOf(field);
  if (times != 0 && one > most / times) return most;
  return std::min(one * times, most);
}

std::size_t SampleMaker::countOfType(std::size_t type, std::size_t most) {
  if (counts_[type]) return std::min(*counts_[type], most);
  // One that stands in itself is there no more than it must.
  counts_[type] = 0;
  std::size_t sum = 1 + model_.types[type].attributes.size();
  for (const Field& field : model_.types[type].fields) {
    sum = std::min(sum + countOf(field, most), most);
  }
  counts_[type] = sum;
  return sum;
}

}  // namespace as::toolkit::gen

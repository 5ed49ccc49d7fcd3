#include "toolkit/generate/SampleMaker.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace as::toolkit::gen {

namespace {

using Kind = Capacity::Kind;

constexpr int longestText = 20;
// Samples are made, and read, recursively. COBOL knows 49 levels.
constexpr std::size_t mostLevels = 200;
constexpr std::size_t tooMany = std::numeric_limits<std::size_t>::max();

// 1234567890123...
std::string digits(int count, int from = 1) {
  std::string text;
  for (int i = 0; i < count; ++i) text += static_cast<char>('0' + (from + i) % 10);
  return text;
}

std::string zeros(int count) {
  std::string text(static_cast<std::size_t>(count), '0');
  return text;
}

// 12345.67; 0.0012 of two digits with a scale of 4, and 1200 with one of -2.
std::string numeral(int total, int scale) {
  if (scale <= 0) return digits(total) + zeros(-scale);
  const int whole = std::max(total - scale, 0);
  return (whole > 0 ? digits(whole) : "0") + "." + zeros(std::max(scale - total, 0)) +
         digits(std::min(total, scale), whole + 1);
}

// Of what facetsOf() says of a field with that item, or none.
std::string numberOf(const Facets& facets, const Item* item) {
  using ItemKind = Item::Kind;
  if (facets.most == "0") return "0";
  if (facets.totalDigits > 0) {
    // The field may hold less of it.
    Facets all;
    if (item != nullptr) limitDigits(item->digits, item->scale, item->isSigned, all);
    const bool isOfItem =
        item != nullptr &&
        (item->kind == ItemKind::number || item->kind == ItemKind::numberEdited) &&
        all.totalDigits == facets.totalDigits;
    return isOfItem ? numeral(item->digits, item->scale)
                    : numeral(facets.totalDigits, std::max(facets.fractionDigits, 0));
  }
  if (facets.most.empty()) return facets.fractionDigits == 0 ? "12345" : "123.45";
  // The limit of so many bits, with a first digit less by one.
  std::string text = facets.most;
  if (text.front() == '1' && text.size() > 1) return text.substr(1, text.size() - 2) + "0";
  --text.front();
  return text.size() > 1 && text.front() == '0' ? text.substr(1) : text;
}

// The item may have digits behind the point that an integer has no room for.
std::string wholeOf(const std::string& numeral) { return numeral.substr(0, numeral.find('.')); }

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

SampleMaker::SampleMaker(const ServiceModel& model) : model_(model), facets_(model) {
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
  const Facets facets = facets_.facetsOf(field, true);
  if (facets.hasValues()) return facets.onlyValues->front();
  switch (field.capacity.kind) {
    case Kind::integer:
      return wholeOf(numberOf(facets, item));
    case Kind::decimal:
      return numberOf(facets, item);
    case Kind::floating:
      return "1.5";
    case Kind::text:
      if (!facets.pattern.empty()) return numeral(item->digits, item->scale);
      return facets.longest < 0 ? "text" : textOf(facets.longest);
    case Kind::bytes:
      return bytesOf(facets.longest);
    default:
      return field.dataType == "date" ? "2001-02-03T04:05:06Z" : "";
  }
}

std::size_t SampleMaker::occurrencesOf(const Field& field) {
  if (field.isInItself) return 0;
  if (!field.isTable()) return field.least == 0 ? 0 : 1;
  return static_cast<std::size_t>(std::max(field.least, 1));
}

std::size_t SampleMaker::countOf(const Field& field, std::size_t most) {
  sizes_.resize(model_.types.size());
  if (field.structure != none) measure(field.structure);
  return std::min(valuesOf(field), most);
}

// The type, and those in it. A vector in place of recursion: chains of definitions are long.
void SampleMaker::measure(std::size_t type) {
  struct Step {
    std::size_t type;
    std::size_t next = 0;
  };
  std::vector<Step> way;
  const auto enter = [&](std::size_t at) {
    if (sizes_[at]) return;
    sizes_[at] = Size{};
    way.push_back({at});
  };
  enter(type);
  while (!way.empty()) {
    Step& step = way.back();
    const Type& at = model_.types[step.type];
    if (step.next < at.fields.size()) {
      // The step may move: it is not used behind this.
      const Field& field = at.fields[step.next++];
      if (field.structure != none) enter(field.structure);
      continue;
    }
    sizes_[step.type] = sizeOf(at);
    way.pop_back();
  }
}

// Of one whose type is measured.
std::size_t SampleMaker::valuesOf(const Field& field) const {
  const std::size_t one = field.structure == none ? 1 : sizes_[field.structure]->values;
  const std::size_t times = occurrencesOf(field);
  return times != 0 && one > tooMany / times ? tooMany : one * times;
}

// Of one in which all types are measured.
SampleMaker::Size SampleMaker::sizeOf(const Type& type) const {
  Size size{1 + type.attributes.size(), 1};
  for (const Field& field : type.fields) {
    size.values += std::min(valuesOf(field), tooMany - size.values);
    if (field.structure == none || occurrencesOf(field) == 0) continue;
    size.levels = std::max(size.levels, sizes_[field.structure]->levels + 1);
  }
  if (size.levels > mostLevels) size.values = tooMany;
  return size;
}

}  // namespace as::toolkit::gen

// Rules about the tables of a mapping on both sides: those that its item stands in, and those that
// its field stands in.
#include <algorithm>
#include <optional>

#include "toolkit/lint/Rules.h"
#include "toolkit/lint/SubscriptText.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/walk/Subscripts.h"

namespace as::toolkit {

namespace {

std::size_t openAmong(const std::vector<int>& subscripts) {
  return static_cast<std::size_t>(
      std::count(subscripts.begin(), subscripts.end(), everyOccurrence));
}

// The occurrence of the interface that an open subscript of the item belongs to; none when every
// one belongs to an open one.
std::optional<int> closedOccurrence(const MappingSubject& subject) {
  std::size_t at = 0;
  for (const int subscript : subject.inner) {
    const bool isOpen = subscript == everyOccurrence;
    const bool isCounted = isOpen || subject.outer.size() == subject.inner.size();
    if (!isCounted) continue;
    const int other = subject.outer[at++];
    if (isOpen && other != everyOccurrence) return other;
  }
  return std::nullopt;
}

// The occurrences of those of the item's tables that the mapping runs through. A table of one
// occurrence needs no table on the other side.
std::vector<int> openTables(const MappingSubject& subject) {
  std::vector<int> open;
  for (std::size_t i = 0; i < subject.tables.size(); ++i) {
    const int occurs = subject.tables[i]->getMaxOccurs();
    if (subject.inner[i] == everyOccurrence && occurs > 1) open.push_back(occurs);
  }
  return open;
}

// Whether the tables of field and item can be compared.
bool isComparable(const MappingSubject& subject) {
  return subject.fieldTables != nullptr && subject.fits();
}

}  // namespace

std::size_t MappingSubject::openOnes() const { return openAmong(inner); }

bool MappingSubject::fitsInterface() const {
  return fits() && isOuterReadable && (outer.size() == inner.size() || outer.size() == openOnes());
}

namespace rules {

void interfaceSubscriptCount(const MappingSubject& subject, const Tell& tell) {
  if (!subject.fits() || !subject.isOuterReadable || subject.fitsInterface()) return;
  const std::size_t tables = subject.tables.size();
  if (tables == 0) {
    tell("subscript " + quote(subject.outerText) + " is left over: the item stands in no table",
         "remove it");
    return;
  }
  tell(subject.outer.empty()
           ? "the mapping has no subscripts of the interface for " + count(tables, "table")
           : "subscript " + quote(subject.outerText) + " has " +
                 count(subject.outer.size(), "subscript") + " for " + count(tables, "table"),
       "write " + quote(openSubscripts(tables)) + R"( in "subscript")");
}

void interfaceSubscriptOpen(const MappingSubject& subject, const Tell& tell) {
  if (!subject.fitsInterface()) return;
  if (openAmong(subject.outer) > subject.openOnes()) {
    tell("subscript " + quote(subject.outerText) + " is open (*) where the item's is a number",
         "open both or neither");
  }
  if (const std::optional<int> closed = closedOccurrence(subject)) {
    tell("all occurrences (*) of the item go to occurrence " + std::to_string(*closed) +
             " of the interface",
         "open both or neither");
  }
}

void interfaceSubscriptRange(const MappingSubject& subject, const Tell& tell) {
  if (subject.fitsInterface() && !closedOccurrence(subject)) {
    for (const int subscript : subject.outer) {
      if (subscript == everyOccurrence || subscript >= 1) continue;
      tell("subscript " + std::to_string(subscript) + " is outside of every table",
           "count from 1, or write *");
    }
  }
  if (!isComparable(subject) || subject.outer.size() != subject.fieldTables->size()) return;
  for (std::size_t i = 0; i < subject.outer.size(); ++i) {
    const int occurs = (*subject.fieldTables)[i];
    if (subject.outer[i] <= occurs) continue;
    tell("subscript " + std::to_string(subject.outer[i]) + " is beyond the " +
             std::to_string(occurs) + " occurrences of the field",
         R"(write a smaller number or raise "occurs")");
  }
}

void tooManyFieldTables(const MappingSubject& subject, const Tell& tell) {
  if (!isComparable(subject)) return;
  const std::size_t fields = subject.fieldTables->size();
  const std::size_t open = openTables(subject).size();
  const std::size_t fixed = subject.outer.size() - openAmong(subject.outer);
  if (fields <= open + fixed) return;
  tell("the field stands in " + count(fields, "table") + ", the item in " + count(open, "open one"),
       R"(take "occurs" away, or map to the table's items)");
}

void tooFewFieldTables(const MappingSubject& subject, const Tell& tell) {
  if (!isComparable(subject)) return;
  const std::size_t fields = subject.fieldTables->size();
  const std::size_t open = openTables(subject).size();
  if (fields >= open) return;
  tell("all occurrences in " + count(open, "table") + " are mapped to " +
           (fields == 0 ? std::string("a single field") : count(fields, "table") + " of fields"),
       R"(give "occurs" to the field or one around it, or name the occurrence)");
}

void smallFieldTable(const MappingSubject& subject, const Tell& tell) {
  if (!isComparable(subject)) return;
  const std::vector<int>& fields = *subject.fieldTables;
  const std::vector<int> open = openTables(subject);
  if (fields.size() != open.size()) return;
  for (std::size_t i = 0; i < open.size(); ++i) {
    if (fields[i] >= open[i]) continue;
    tell("a table of " + std::to_string(open[i]) + " occurrences is mapped to " +
             std::to_string(fields[i]),
         R"(raise "occurs")");
  }
}

}  // namespace rules

}  // namespace as::toolkit

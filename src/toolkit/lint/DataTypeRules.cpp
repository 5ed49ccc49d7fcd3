// Rules about the data types of parameters and fields.
#include "toolkit/lint/Rules.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::rules {

void noDataType(const DataTypeSubject& subject, const Tell& tell) {
  if (subject.read != nullptr || !subject.written.empty()) return;
  tell("it has no data type", R"(write "dataType")");
}

void unknownDataType(const DataTypeSubject& subject, const Tell& tell) {
  if (subject.read != nullptr || subject.written.empty()) return;
  tell("data type " + quote(subject.written) + " is unknown",
       "use a word of " + subject.profile.name() + " services");
}

void defaultDataType(const DataTypeSubject& subject, const Tell& tell) {
  if (subject.read == nullptr || !subject.written.empty()) return;
  tell("it has no data type and reads as " + quote(subject.read->word), R"(write "dataType")");
}

void narrowDataType(const MappingSubject& subject, const Tell& tell) {
  if (subject.type == nullptr || subject.item == nullptr || !subject.isInnerReadable) return;
  const std::string problem = misfit(subject.type->capacity, *subject.item);
  if (problem.empty()) return;
  const DataType* const better = subject.profile->bestTypeFor(*subject.item);
  tell("data type " + quote(subject.type->word) + " cannot hold " + subject.item->getName() +
           ": it " + problem,
       better == nullptr ? "map to another item" : "use " + quote(better->word));
}

}  // namespace as::toolkit::rules

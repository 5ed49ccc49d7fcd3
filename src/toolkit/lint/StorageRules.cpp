// Rules about whether what is mapped reaches the program, and comes back.
#include <string>

#include "as/ILinkageItem.h"
#include "as/IParameter.h"
#include "toolkit/lint/Rules.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::rules {

namespace {

// Whether the record is handed over that way.
bool isHandedOver(const StorageSubject& subject, int byType) {
  const auto found = subject.interface.records.find(&subject.record);
  return found != subject.interface.records.end() && found->second == byType;
}

const std::string& recordName(const StorageSubject& subject) {
  return subject.program.nameOf(subject.record);
}

// What is told of the record itself and of others for which it stands.
std::string withOthers(const StorageSubject& subject, const std::string& problem) {
  return subject.hasMore ? problem + " (and there are others)" : problem;
}

std::string makeIt(const Direction& direction, const char* word) {
  if (direction.owner.empty()) return "map to another record";
  return "make the " + std::string(direction.owner) + " " + word;
}

}  // namespace

void unreachableStorage(const StorageSubject& subject, const Tell& tell) {
  if (subject.interface.records.contains(&subject.record)) return;
  const std::string& names = subject.interface.names;
  tell(withOthers(subject, recordName(subject) + " is nothing that entry point " +
                               quote(subject.interface.entryPoint) + " is called with"),
       names.empty() ? "it takes no parameters" : "map to something within " + names);
}

void nothingComesBack(const StorageSubject& subject, const Tell& tell) {
  if (subject.direction.byType != as::IParameter::BY_OUT) return;
  if (!isHandedOver(subject, as::ILinkageItem::BY_VALUE)) return;
  tell(withOthers(subject, recordName(subject) + " is handed over by value: nothing comes back"),
       makeIt(subject.direction, "\"in\""));
}

void nothingGoesIn(const StorageSubject& subject, const Tell& tell) {
  if (subject.direction.byType != as::IParameter::BY_IN) return;
  if (!isHandedOver(subject, as::ILinkageItem::BY_RETURNING)) return;
  tell(withOthers(subject, recordName(subject) + " is only returned: nothing goes in"),
       makeIt(subject.direction, "\"out\""));
}

}  // namespace as::toolkit::rules

// Rules about whether what is mapped reaches the program, and comes back.
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

// What is told of the record itself and of others for which it stands.
std::string withOthers(const StorageSubject& subject, const std::string& problem) {
  return subject.hasMore ? problem + " (and there are others)" : problem;
}

}  // namespace

void unreachableStorage(const StorageSubject& subject, const Tell& tell) {
  if (subject.interface.records.contains(&subject.record)) return;
  const std::vector<std::string>& names = subject.interface.names;
  tell(withOthers(subject, subject.record.getName() + " is nothing that entry point " +
                               quote(subject.interface.entryPoint) + " is called with"),
       names.empty() ? "it takes no parameters" : "map to something within " + firstOf(names));
}

void nothingComesBack(const StorageSubject& subject, const Tell& tell) {
  if (subject.direction != as::IParameter::BY_OUT) return;
  if (!isHandedOver(subject, as::ILinkageItem::BY_VALUE)) return;
  tell(withOthers(subject,
                  subject.record.getName() + " is handed over by value: nothing comes back"),
       R"(make the parameter "in")");
}

void nothingGoesIn(const StorageSubject& subject, const Tell& tell) {
  if (subject.direction != as::IParameter::BY_IN) return;
  if (!isHandedOver(subject, as::ILinkageItem::BY_RETURNING)) return;
  tell(withOthers(subject, subject.record.getName() + " is only returned: nothing goes in"),
       R"(make the parameter "out")");
}

}  // namespace as::toolkit::rules

// Rules about the entry points that operations are bound to.
#include "toolkit/lint/Rules.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::rules {

void unboundOperation(const OperationSubject& subject, const Tell& tell) {
  if (!subject.entryPoint.empty()) return;
  tell("the operation is bound to no entry point", R"(name one in "entryPoint")");
}

void lostEntryPoint(const OperationSubject& subject, const Tell& tell) {
  if (subject.entryPoint.empty()) return;
  if (subject.program == nullptr || subject.interface != nullptr) return;
  tell(subject.program->name() + " has no entry point " + quote(subject.entryPoint),
       "bind the operation to one of the program's");
}

void lostLinkageRecord(const OperationSubject& subject, const Tell& tell) {
  if (subject.interface == nullptr) return;
  for (const std::string& lost : subject.interface->lost) {
    tell("entry point " + quote(subject.entryPoint) + " is called with " + quote(lost) +
             ", which is no record of the dictionary",
         "make the dictionary anew");
  }
}

}  // namespace as::toolkit::rules

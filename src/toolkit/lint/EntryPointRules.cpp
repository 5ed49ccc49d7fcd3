// Rules about the entry points that operations are bound to.
#include <algorithm>
#include <cstddef>

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
  const std::string meant = subject.program->entryPointMeant(subject.entryPoint);
  tell(subject.program->name() + " has no entry point " + quote(subject.entryPoint),
       meant.empty() ? "bind the operation to one of the program's" : didYouMean(meant));
}

void lostLinkageRecord(const OperationSubject& subject, const Tell& tell) {
  if (subject.interface == nullptr) return;
  // Any number of operations may be bound to the entry point: each tells the first names.
  const std::vector<std::string>& lost = subject.interface->lost;
  const std::size_t told = std::min(lost.size(), mostTold);
  for (std::size_t i = 0; i < told; ++i) {
    const std::size_t others = i + 1 == told ? lost.size() - told : 0;
    tell("entry point " + quote(subject.entryPoint) + " is called with " + quote(lost[i]) +
             (others == 0
                  ? ", which is no record of the dictionary"
                  : " and " + count(others, "other") + " that are no records of the dictionary"),
         "make the dictionary anew");
  }
}

}  // namespace as::toolkit::rules

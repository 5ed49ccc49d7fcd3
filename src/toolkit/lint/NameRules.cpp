// Rules about the names of operations, parameters, fields and type definitions.
#include "toolkit/lint/Rules.h"

namespace as::toolkit::rules {

void unnamedMember(const MemberSubject& subject, const Tell& tell) {
  if (!subject.name.empty()) return;
  tell(std::string("the ") + subject.kind + " has no name", "give it one");
}

void sameName(const MemberSubject& subject, const Tell& tell) {
  if (subject.name.empty() || !subject.isTaken) return;
  tell(std::string("another ") + subject.kind + " beside it has the same name",
       "rename one of them");
}

}  // namespace as::toolkit::rules

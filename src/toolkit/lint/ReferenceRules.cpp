// Rules about references to type definitions.
#include "toolkit/lint/Rules.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::rules {

using Leads = ReferenceSubject::Leads;

void ignoredBesideReference(const ReferenceSubject& subject, const Tell& tell) {
  if (!subject.isFollowed) return;
  as::IField& field = subject.field;
  if (field.getAttributeValue("occurs").empty() && field.getAttributeValue("dataType").empty()) {
    return;
  }
  tell("it refers to " + quote(subject.type) + ": its own occurs and data type do not count",
       "remove them");
}

void recursiveType(const ReferenceSubject& subject, const Tell& tell) {
  if (subject.leads != Leads::toItself) return;
  tell("type definition " + quote(subject.type) + " refers to itself",
       "refer to another definition or spell the fields out");
}

void lostType(const ReferenceSubject& subject, const Tell& tell) {
  if (subject.leads != Leads::nowhere) return;
  tell(
      "there is no type definition " + quote(subject.type),
      subject.meant.empty() ? R"(correct "ref" or add the definition)" : didYouMean(subject.meant));
}

void lateType(const ReferenceSubject& subject, const Tell& tell) {
  if (subject.leads != Leads::toALaterOne) return;
  tell("type definition " + quote(subject.type) + " comes only later",
       "move it in front of this one");
}

}  // namespace as::toolkit::rules

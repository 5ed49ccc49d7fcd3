// Rules about the values of hidden parameters.
#include "as/INumeric.h"
#include "toolkit/lint/Rules.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::rules {

void noHiddenValue(const HiddenSubject& subject, const Tell& tell) {
  if (subject.value.empty()) tell("it has no value", "give it one");
}

void hiddenValueNoNumber(const HiddenSubject& subject, const Tell& tell) {
  if (subject.value.empty() || isNumeral(subject.value)) return;
  if (as::interface_cast<as::INumeric>(subject.item) == nullptr) return;
  tell("value " + quote(subject.value) + " is no number, " + subject.item->getName() + " is",
       "write a number");
}

}  // namespace as::toolkit::rules

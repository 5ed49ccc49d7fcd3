// Rules about the values of hidden parameters.
#include <cstddef>
#include <string_view>

#include "as/INumeric.h"
#include "toolkit/lint/Rules.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::rules {

namespace {

// Floating-point literals among them: "1.5E-3".
bool isNumber(std::string_view text) {
  const std::size_t exponent = text.find_first_of("Ee");
  if (exponent == std::string_view::npos) return isNumeral(text);
  return isNumeral(text.substr(0, exponent)) && isNumeral(text.substr(exponent + 1));
}

}  // namespace

void noHiddenValue(const HiddenSubject& subject, const Tell& tell) {
  if (subject.value.empty()) tell("it has no value", "give it one");
}

void hiddenValueNoNumber(const HiddenSubject& subject, const Tell& tell) {
  if (subject.value.empty() || isNumber(subject.value)) return;
  if (as::interface_cast<as::INumeric>(subject.item) == nullptr) return;
  tell("value " + quote(subject.value) + " is no number, " + subject.item->getName() + " is",
       "write a number");
}

}  // namespace as::toolkit::rules

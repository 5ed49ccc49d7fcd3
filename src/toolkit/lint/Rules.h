// The rules of lint as functions, and how all that are about a subject look at it.
#ifndef TOOLKIT_LINT_RULES_H_
#define TOOLKIT_LINT_RULES_H_

#include <string>
#include <type_traits>

#include "as/toolkit/Lint.h"
#include "toolkit/lint/LintReport.h"
#include "toolkit/lint/Subjects.h"

namespace as::toolkit {

// Tells what a rule has found at a place.
class Tell {
 public:
  Tell(const LintRule& rule, const Place& place, LintReport& report)
      : rule_(rule), place_(place), report_(report) {}

  void operator()(const std::string& problem, const std::string& advice) const {
    report_.add(rule_, place_, problem, advice);
  }

 private:
  const LintRule& rule_;
  const Place& place_;
  LintReport& report_;
};

namespace rules {

#define AS_LINT_RULE(function, Subject, id, severity, summary) \
  void function(const Subject& subject, const Tell& tell);
#include "toolkit/lint/Rules.def"

}  // namespace rules

// What the row of a rule says of it.
namespace rows {

#define AS_LINT_RULE(function, Subject, id, severity, summary) \
  inline constexpr LintRule function{id, Severity::severity, summary};
#include "toolkit/lint/Rules.def"

}  // namespace rows

// Has the rules about such subjects look at `subject`.
template <class T>
void look(const T& subject, LintReport& report) {
#define AS_LINT_RULE(function, Subject, id, severity, summary)             \
  if constexpr (std::is_same_v<T, Subject>) {                              \
    rules::function(subject, Tell(rows::function, subject.place, report)); \
  }
#include "toolkit/lint/Rules.def"
}

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_RULES_H_

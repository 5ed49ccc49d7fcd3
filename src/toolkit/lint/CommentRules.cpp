// Rules about the comments that lint is told something by.
#include "toolkit/lint/Rules.h"

namespace as::toolkit::rules {

void lintComment(const CommentSubject& subject, const Tell& tell) {
  tell(subject.problem, subject.advice);
}

}  // namespace as::toolkit::rules

// Rules about words in attributes that the flavour has lists of words for.
#include "toolkit/lint/Rules.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::rules {

namespace {

bool readsAsWritten(const WordSubject& subject) {
  return subject.written.empty() || subject.written == subject.read;
}

// Whether the word is known by another one.
bool isAlias(const WordSubject& subject) {
  return subject.profile.findDataType(subject.written) != nullptr;
}

}  // namespace

void wordByAlias(const WordSubject& subject, const Tell& tell) {
  if (readsAsWritten(subject) || !isAlias(subject)) return;
  tell(subject.attribute + " " + quote(subject.written) + " reads as " + quote(subject.read),
       "write " + quote(subject.read));
}

void unknownWord(const WordSubject& subject, const Tell& tell) {
  if (readsAsWritten(subject) || isAlias(subject)) return;
  tell(subject.attribute + " " + quote(subject.written) + " is unknown and reads as " +
           quote(subject.read),
       "use a word of " + subject.profile.name() + " services");
}

}  // namespace as::toolkit::rules

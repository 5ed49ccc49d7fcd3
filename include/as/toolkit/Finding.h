// What a check, a generator or a conversion has to tell about a document.
#ifndef AS_TOOLKIT_FINDING_H_
#define AS_TOOLKIT_FINDING_H_

#include <cstddef>
#include <string>
#include <vector>

#include "as/Export.h"

namespace as::toolkit {

// How bad something is.
enum class Severity {
  error,    // The document does not do what it says.
  warning,  // It does, but hardly what its author means.
  note,     // Nothing is wrong, but the user should know.
};

// "error", "warning" or "note".
AS_EXPORT const char* wordOf(Severity severity);

// A value; all text is UTF-8 and may hold whatever the document holds, control characters too.
struct Finding {
  // The stable id of the rule that found it ("lost-data-item"); see lintRules() for those of lint.
  // Ids do not change from one version to the next; texts may.
  std::string rule;
  Severity severity = Severity::error;  // The rule's, unless the user wants another.
  // Where it is in the terms of the document ("quote.serial", "type Address.street", "service").
  std::string place;
  // What is the matter, without a full stop.
  std::string problem;
  // What to do about it; empty for notes, of which nothing follows.
  std::string advice;
  // Where that is in the document's text: line and column counted from 1, columns in characters (a
  // tab is one); 0 when it is not known.
  int line = 0;
  int column = 0;
};

// In the order in which they were found, which is that of the document.
using Findings = std::vector<Finding>;

// "error: PLACE: PROBLEM; ADVICE"; what is empty is left out with its separator.
AS_EXPORT std::string textOf(const Finding& finding);

// How many of them are of that severity.
AS_EXPORT std::size_t countOf(const Findings& findings, Severity severity);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_FINDING_H_

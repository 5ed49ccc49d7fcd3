#include "as/toolkit/Finding.h"

#include <algorithm>

namespace as::toolkit {

const char* wordOf(Severity severity) {
  switch (severity) {
    case Severity::error:
      return "error";
    case Severity::warning:
      return "warning";
    default:
      return "note";
  }
}

std::string textOf(const Finding& finding) {
  std::string text = wordOf(finding.severity);
  if (!finding.place.empty()) text.append(": ").append(finding.place);
  text.append(": ").append(finding.problem);
  if (!finding.advice.empty()) text.append("; ").append(finding.advice);
  return text;
}

std::size_t countOf(const Findings& findings, Severity severity) {
  return static_cast<std::size_t>(
      std::count_if(findings.begin(), findings.end(),
                    [severity](const Finding& finding) { return finding.severity == severity; }));
}

}  // namespace as::toolkit

// Collects what the rules of lint find: where it stands, and what is to become of it.
#ifndef TOOLKIT_LINT_LINTREPORT_H_
#define TOOLKIT_LINT_LINTREPORT_H_

#include <cstddef>
#include <string>

#include "as/toolkit/Finding.h"
#include "as/toolkit/Lint.h"
#include "toolkit/lint/LintedText.h"
#include "toolkit/lint/Place.h"

namespace as::toolkit {

// What a report goes by; whatever it points at must outlive the report. Each may be null.
struct LintFrame {
  LintedText* text = nullptr;              // Where things stand; what the document says of rules.
  const RuleSettings* settings = nullptr;  // What the caller says of them.
};

class LintReport {
 public:
  explicit LintReport(const LintFrame& frame = {}) : frame_(frame) {}

  // Another one that goes by the same, for trying.
  LintReport emptyOne() const { return LintReport(frame_); }

  void add(const LintRule& rule, const Place& place, const std::string& problem,
           const std::string& advice);

  Findings& findings() { return findings_; }

 private:
  // What becomes of a finding in that element, if anything else than the rule says.
  const RuleSetting* settingFor(const LintRule& rule, std::size_t element) const;

  LintFrame frame_;
  Findings findings_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_LINTREPORT_H_

#include "toolkit/import/EntryProblems.h"

#include "toolkit/import/ImportLimits.h"

namespace as::toolkit {

namespace {

constexpr EntryRuleRow rows[] = {
#define AS_ENTRY_RULE(name, id, severity, summary) {id, Severity::severity, summary},
#include "toolkit/import/EntryRules.def"
#undef AS_ENTRY_RULE
};

}  // namespace

const EntryRuleRow& rowOf(EntryRule rule) { return rows[static_cast<std::size_t>(rule)]; }

void EntryProblems::tell(EntryRule rule, const SourcePlace& place, const std::string& text) {
  const Severity severity = rowOf(rule).severity;
  const auto at = static_cast<std::size_t>(rule);
  if (severity == Severity::note && counts_[at] > 0) return;
  ++counts_[at];
  if (severity == Severity::error) ++errors_;
  if (counts_[at] <= importLimits::findings) sink_(rule, place, text);
}

void EntryProblems::finish(SourceReport& report) const {
  for (std::size_t i = 0; i < ruleCount; ++i) {
    if (counts_[i] > importLimits::findings) report.addMore(counts_[i], rows[i].id);
  }
}

}  // namespace as::toolkit

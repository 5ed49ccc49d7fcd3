#include "toolkit/import/EntryProblems.h"

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
  if (severity == Severity::note && noted_[at]) return;
  noted_[at] = true;
  if (severity == Severity::error) ++errors_;
  sink_(rule, place, text);
}

}  // namespace as::toolkit

// What the reader of entries has to tell of a source.
#ifndef TOOLKIT_IMPORT_ENTRYPROBLEMS_H_
#define TOOLKIT_IMPORT_ENTRYPROBLEMS_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "as/toolkit/Finding.h"
#include "toolkit/import/SourceReport.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

enum class EntryRule : std::uint8_t {
#define AS_ENTRY_RULE(name, id, severity, summary) name,
#include "toolkit/import/EntryRules.def"
#undef AS_ENTRY_RULE
};

struct EntryRuleRow {
  const char* id;
  Severity severity;
  const char* summary;
};

// The row of a rule. Text of static duration.
const EntryRuleRow& rowOf(EntryRule rule);

// Hands on what is told. Notes are told once a source for each rule, for what compilers do is the
// same everywhere in it.
class EntryProblems {
 public:
  using Sink = std::function<void(EntryRule, const SourcePlace&, const std::string&)>;

  explicit EntryProblems(Sink sink) : sink_(std::move(sink)) {}

  // Findings of a rule beyond the limit are counted, not handed on.
  void tell(EntryRule rule, const SourcePlace& place, const std::string& text);

  // To be called once, when all is told: adds how many were not handed on.
  void finish(SourceReport& report) const;

  // Tells of a clause in the entry of that name; false, for who could not read it.
  bool badClause(const std::string& name, const SourcePlace& place, const std::string& text) {
    tell(EntryRule::badClause, place, name + ": " + text);
    return false;
  }

  // Whether a note of that rule was told already.
  bool wasNoted(EntryRule rule) const { return counts_[static_cast<std::size_t>(rule)] > 0; }

  // How many errors were told, those of the words included.
  std::size_t errors() const { return errors_ + (otherErrors_ ? otherErrors_() : 0); }

  // Has errors counted that others tell of the same source.
  void countAlso(std::function<std::size_t()> errors) { otherErrors_ = std::move(errors); }

 private:
  static constexpr std::size_t ruleCount = 0
#define AS_ENTRY_RULE(name, id, severity, summary) +1
#include "toolkit/import/EntryRules.def"
#undef AS_ENTRY_RULE
      ;

  Sink sink_;
  std::function<std::size_t()> otherErrors_;
  std::array<std::size_t, ruleCount> counts_{};
  std::size_t errors_ = 0;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_ENTRYPROBLEMS_H_

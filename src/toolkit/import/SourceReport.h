// Tells what is found in a source, each finding with its place.
#ifndef TOOLKIT_IMPORT_SOURCEREPORT_H_
#define TOOLKIT_IMPORT_SOURCEREPORT_H_

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "as/toolkit/Finding.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

// The rules of reading a source; their ids and severities are in SourceRules.def.
enum class SourceRule {
#define AS_SOURCE_RULE(name, id, severity, summary) name,
#include "toolkit/import/SourceRules.def"
};

struct SourceFinding {
  const char* rule = "";  // Of static duration.
  Severity severity = Severity::error;
  SourcePlace place;
  std::string problem;
  std::string advice;
};

// In the order in which they were found.
using SourceFindings = std::vector<SourceFinding>;

// Adds findings to the end of a list, which must outlive it.
class SourceReport {
 public:
  explicit SourceReport(SourceFindings& findings) : findings_(findings) {}

  // Findings of a rule beyond the limit are counted, not told.
  void add(SourceRule rule, const SourcePlace& place, const std::string& problem,
           const std::string& advice = "");

  // Tells how many of so many findings of a rule were not told.
  void addMore(std::size_t findings, const char* rule);

  // To be called once, when all is read: tells how many were not told.
  void finish();

 private:
  static constexpr std::size_t ruleCount = 0
#define AS_SOURCE_RULE(name, id, severity, summary) +1
#include "toolkit/import/SourceRules.def"
      ;

  SourceFindings& findings_;
  std::array<std::size_t, ruleCount> counts_{};
};

// `text` from the source as messages show it: in quotes, and its beginning only when it is long.
std::string quoted(std::string_view text);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_SOURCEREPORT_H_

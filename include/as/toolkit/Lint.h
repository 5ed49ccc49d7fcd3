// Finds what is well-formed but broken in a service.
#ifndef AS_TOOLKIT_LINT_H_
#define AS_TOOLKIT_LINT_H_

#include <optional>
#include <string>
#include <vector>

#include "as/Export.h"
#include "as/IService.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Finding.h"

namespace as::toolkit {

// A rule of lint. Text of static duration.
struct LintRule {
  const char* id;       // As in Finding::rule: "lost-data-item".
  Severity severity;    // What its findings are.
  const char* summary;  // One line: what the rule wants ("a mapping leads to a data item").
};

// All rules, in the order in which they are documented; ids are unique.
AS_EXPORT const std::vector<LintRule>& lintRules();

// Looks at the service alone, or with its program when it has one. Mappings, hidden parameters and
// entry points are followed into the program only in the latter case. The model is not changed.
AS_EXPORT Findings lint(as::IService& service);

// Reads the service in `file` and looks at it with the program of `dictionary`, or else with the
// one that it names, and at what the document says of that program. A dictionary that is refused is
// a finding, and the service is looked at without it. Throws RefusedDocument about the service.
AS_EXPORT Findings lintFile(const DocumentReader& reader, const std::string& file,
                            const std::optional<std::string>& dictionary = std::nullopt);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_LINT_H_

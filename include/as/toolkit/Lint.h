// Finds what is well-formed but broken in a service.
#ifndef AS_TOOLKIT_LINT_H_
#define AS_TOOLKIT_LINT_H_

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
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

// The one of that id; null when there is none.
AS_EXPORT const LintRule* findLintRule(std::string_view id);

// The id that is nearly `id`; empty when none is.
AS_EXPORT std::string nearestLintRule(const std::string& id);

// What is to become of a rule's findings.
struct RuleSetting {
  const char* word = "";             // "off", "note", "warning" or "error".
  std::optional<Severity> severity;  // Nothing: they are not told.
};

// All there are.
AS_EXPORT const std::vector<RuleSetting>& ruleSettings();

// The one of that word; null when there is none.
AS_EXPORT const RuleSetting* findRuleSetting(std::string_view word);

// By the ids of rules; those that are not named are as they are.
using RuleSettings = std::map<std::string, RuleSetting, std::less<>>;

// How services are looked at.
struct LintOptions {
  // The dictionary to use in place of the one that the service names.
  std::optional<std::string> dictionary;
  // What is to become of findings; empty for what the rules say.
  RuleSettings rules;
};

// Looks at the service alone, or with its program when it has one. Mappings, hidden parameters and
// entry points are followed into the program only in the latter case. The model is not changed.
// Findings tell no lines: the model knows none.
AS_EXPORT Findings lint(as::IService& service);

// Reads a service and looks at it with the program of `options.dictionary`, or else with the one
// that it names, and at what the document says of that program. A dictionary that is refused is a
// finding, and the service is looked at without it. Findings tell the lines and columns of the
// elements that they are about. Throws RefusedDocument about the service.
//
// A comment in the document, "<!-- lint: off lost-data-item narrow-data-type -->", says what is to
// become of the findings of rules, in a word of ruleSettings(), at the element that follows beside
// it and everything in that; in front of the root it holds for the whole document. It counts for
// more than options.rules. What such a comment says wrong is a finding of rule "lint-comment".
AS_EXPORT Findings lintDocument(const DocumentReader& reader, const DocumentSource& source,
                                const LintOptions& options = {});

// The same of the service in `file`.
AS_EXPORT Findings lintFile(const DocumentReader& reader, const std::string& file,
                            const std::optional<std::string>& dictionary = std::nullopt);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_LINT_H_

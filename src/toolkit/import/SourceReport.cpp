#include "toolkit/import/SourceReport.h"

#include "as/toolkit/Text.h"
#include "toolkit/import/ImportLimits.h"
#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

namespace {

struct Rule {
  const char* id;
  Severity severity;
};

constexpr Rule rules[] = {
#define AS_SOURCE_RULE(name, id, severity, summary) {id, Severity::severity},
#include "toolkit/import/SourceRules.def"
};

}  // namespace

void SourceReport::add(SourceRule rule, const SourcePlace& place, const std::string& problem,
                       const std::string& advice) {
  const auto number = static_cast<std::size_t>(rule);
  counts_[number]++;
  if (counts_[number] > importLimits::findings) return;
  findings_.push_back({rules[number].id, rules[number].severity, place, problem, advice});
}

void SourceReport::finish() {
  for (std::size_t i = 0; i < counts_.size(); i++) {
    if (counts_[i] > importLimits::findings) addMore(counts_[i], rules[i].id);
  }
}

void SourceReport::addMore(std::size_t findings, const char* rule) {
  add(SourceRule::more, {},
      count(findings - importLimits::findings, "finding") + " more of the rule \"" + rule + "\"");
}

std::string quoted(std::string_view text) {
  constexpr std::size_t most = 60;
  const std::string_view shown = beginningOf(text, most);
  std::string result = "\"";
  result += shown;
  if (shown.size() < text.size()) result += "...";
  return result + '"';
}

}  // namespace as::toolkit

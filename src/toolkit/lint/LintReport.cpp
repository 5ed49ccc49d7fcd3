#include "toolkit/lint/LintReport.h"

namespace as::toolkit {

void LintReport::add(const LintRule& rule, const Place& place, const std::string& problem,
                     const std::string& advice) {
  const as::IElement* const object = place.object();
  const bool isInDocument = frame_.text != nullptr && object != nullptr;
  const std::size_t element =
      isInDocument ? frame_.text->outline().elementOf(*object) : place.elementAround();
  const RuleSetting* const setting = settingFor(rule, element);
  if (setting != nullptr && !setting->severity) return;
  const Severity severity = setting != nullptr ? *setting->severity : rule.severity;
  const TextPlace& at = !isInDocument || element == DocumentOutline::none
                            ? place.inText()
                            : frame_.text->outline().document().elements()[element].place;
  findings_.push_back({rule.id, severity, place.text(), problem, advice, at.line, at.column});
}

const RuleSetting* LintReport::settingFor(const LintRule& rule, std::size_t element) const {
  // The document's own word is the nearer one.
  const LintComments* const comments = frame_.text == nullptr ? nullptr : frame_.text->comments();
  if (comments != nullptr && element != DocumentOutline::none) {
    if (const RuleSetting* const said = comments->find(rule.id, element)) return said;
  }
  if (frame_.settings == nullptr) return nullptr;
  const auto found = frame_.settings->find(rule.id);
  return found == frame_.settings->end() ? nullptr : &found->second;
}

}  // namespace as::toolkit

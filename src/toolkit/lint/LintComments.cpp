#include "toolkit/lint/LintComments.h"

#include <algorithm>
#include <utility>

#include "toolkit/text/Phrases.h"

namespace as::toolkit {

namespace {

constexpr std::string_view mark = "lint:";
constexpr std::string_view blanks = " \t\r\n,";

// Takes the next word off the start of `text`; empty when there is none.
std::string_view takeWord(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  const std::string_view word = text.substr(0, text.find_first_of(blanks));
  text.remove_prefix(word.size());
  return word;
}

std::string wordList() {
  std::string list;
  for (const RuleSetting& setting : ruleSettings()) {
    if (!list.empty()) list += ", ";
    list += setting.word;
  }
  return list;
}

}  // namespace

bool LintComments::mayBeIn(std::string_view text) {
  return text.find(mark) != std::string_view::npos;
}

LintComments::LintComments(const DocumentOutline& outline) : outline_(outline) {
  for (const DocumentOutline::Comment& comment : outline.comments()) {
    std::string_view text = comment.text;
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    if (text.substr(0, mark.size()) == mark) read(comment, text.substr(mark.size()));
  }
}

void LintComments::addMistake(const DocumentOutline::Comment& comment, std::string problem,
                              std::string advice) {
  constexpr std::size_t root = 0;
  const std::size_t around = comment.parent == DocumentOutline::none ? root : comment.parent;
  mistakes_.push_back({comment.place, around, std::move(problem), std::move(advice)});
}

void LintComments::read(const DocumentOutline::Comment& comment, std::string_view words) {
  const std::string first(takeWord(words));
  // "lint: error: ..." quotes what lint says: words for people.
  if (!first.empty() && first.back() == ':') return;
  const RuleSetting* const setting = findRuleSetting(first);
  if (setting == nullptr) {
    addMistake(
        comment,
        first.empty() ? "it says nothing" : quote(first) + " is nothing that can be said of rules",
        "begin with one of " + wordList());
    return;
  }
  const std::vector<DocumentOutline::Element>& elements = outline_.elements();
  if (comment.next >= elements.size() || elements[comment.next].parent != comment.parent) {
    addMistake(comment, "no element follows it, for which it could hold",
               "move it in front of the element that it is about");
    return;
  }
  std::string rule(takeWord(words));
  if (rule.empty()) {
    addMistake(comment, "it names no rule", "write rules behind " + quote(first));
  }
  for (; !rule.empty(); rule = takeWord(words)) switchRule(comment, *setting, rule);
}

void LintComments::switchRule(const DocumentOutline::Comment& comment, const RuleSetting& setting,
                              const std::string& rule) {
  if (findLintRule(rule) == nullptr) {
    const std::string near = nearestLintRule(rule);
    addMistake(comment, "there is no rule " + quote(rule),
               near.empty() ? "correct the name" : didYouMean(near));
    return;
  }
  settings_[comment.next].insert_or_assign(rule, setting);
}

const RuleSetting* LintComments::find(std::string_view rule, std::size_t element) const {
  if (settings_.empty()) return nullptr;
  for (; element != DocumentOutline::none; element = outline_.elements()[element].parent) {
    const auto said = settings_.find(element);
    if (said == settings_.end()) continue;
    const auto found = said->second.find(rule);
    if (found != said->second.end()) return &found->second;
  }
  return nullptr;
}

}  // namespace as::toolkit

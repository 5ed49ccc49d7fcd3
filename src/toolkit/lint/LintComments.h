// What comments in a document say to lint: "<!-- lint: off lost-data-item -->".
#ifndef TOOLKIT_LINT_LINTCOMMENTS_H_
#define TOOLKIT_LINT_LINTCOMMENTS_H_

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "as/toolkit/Lint.h"
#include "toolkit/outline/DocumentOutline.h"

namespace as::toolkit {

// A comment holds for the element that follows it beside it, with everything in that; one in front
// of the root for the whole document. Of several the innermost counts, then the last.
class LintComments {
 public:
  // What is wrong with a comment.
  struct Mistake {
    TextPlace place;
    std::size_t around;  // The element that it stands in; the root for one beside that.
    std::string problem;
    std::string advice;
  };

  // False only when the text of a document in UTF-8 has no comments to lint.
  static bool mayBeIn(std::string_view text);

  explicit LintComments(const DocumentOutline& outline);

  const std::vector<Mistake>& mistakes() const { return mistakes_; }

  // What they say of a rule at that element; null when they say nothing.
  const RuleSetting* find(std::string_view rule, std::size_t element) const;

 private:
  void read(const DocumentOutline::Comment& comment, std::string_view words);
  void addMistake(const DocumentOutline::Comment& comment, std::string problem, std::string advice);
  void switchRule(const DocumentOutline::Comment& comment, const RuleSetting& setting,
                  const std::string& rule);

  const DocumentOutline& outline_;
  std::unordered_map<std::size_t, std::map<std::string, RuleSetting, std::less<>>> settings_;
  std::vector<Mistake> mistakes_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_LINTCOMMENTS_H_

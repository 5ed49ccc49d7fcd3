// The text of a document that lint looks at: where things stand in it, and what its comments say.
#ifndef TOOLKIT_LINT_LINTEDTEXT_H_
#define TOOLKIT_LINT_LINTEDTEXT_H_

#include <optional>
#include <string>

#include "as/IService.h"
#include "toolkit/lint/LintComments.h"
#include "toolkit/outline/DocumentOutline.h"
#include "toolkit/outline/ServiceOutline.h"

namespace as::toolkit {

// Most services are clean and have no comments to lint. Of those nobody asks where anything stands,
// so the text is gone through only when somebody does.
class LintedText {
 public:
  // `bytes` are those that `service` was read from, which must outlive this.
  LintedText(as::IService& service, std::string bytes);
  LintedText(const LintedText&) = delete;
  LintedText& operator=(const LintedText&) = delete;

  const ServiceOutline& outline();
  // Null when there are none to lint.
  const LintComments* comments();

 private:
  const DocumentOutline& document();

  as::IService& service_;
  std::string text_;  // Until the document is made of it.
  bool hasComments_;
  std::optional<DocumentOutline> document_;
  std::optional<ServiceOutline> outline_;
  std::optional<LintComments> comments_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_LINTEDTEXT_H_

#include "toolkit/lint/LintedText.h"

#include <utility>

#include "toolkit/outline/DocumentEncoding.h"

namespace as::toolkit {

LintedText::LintedText(as::IService& service, std::string bytes)
    : service_(service),
      text_(documentInUtf8(std::move(bytes)).value_or("")),
      hasComments_(LintComments::mayBeIn(text_)) {}

const DocumentOutline& LintedText::document() {
  if (!document_) document_.emplace(std::move(text_));
  return *document_;
}

const ServiceOutline& LintedText::outline() {
  if (!outline_) outline_.emplace(service_, document());
  return *outline_;
}

const LintComments* LintedText::comments() {
  if (!hasComments_) return nullptr;
  if (!comments_) comments_.emplace(document());
  return &*comments_;
}

}  // namespace as::toolkit

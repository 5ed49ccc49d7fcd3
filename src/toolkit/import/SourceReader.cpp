#include "toolkit/import/SourceReader.h"

#include <utility>

#include "toolkit/import/CopyExpander.h"
#include "toolkit/import/ImportBudget.h"
#include "toolkit/import/ReplaceStage.h"
#include "toolkit/import/SourceReport.h"
#include "toolkit/import/TagWords.h"
#include "toolkit/import/TextArena.h"
#include "toolkit/import/TokenReader.h"

namespace as::toolkit {

class SourceReader::Impl {
 public:
  Impl(std::string bytes, const std::string& name, SourceOptions options,
       CopybookProvider* copybooks, SourceMap& map, SourceFindings& findings)
      : options_(std::move(options)),
        report_(findings),
        budget_(options_.most, report_),
        expander_(options_, copybooks, map, arena_, budget_, report_),
        replaced_(expander_, arena_, budget_, report_),
        tags_(replaced_, report_),
        tokens_(tags_, arena_, report_) {
    expander_.open(std::move(bytes), name);
  }

  void read(Token& token) {
    tokens_.read(token);
    if (tokens_.hasDebuggingMode() && !debugging_) {
      debugging_ = true;
      expander_.setDebugging();
    }
    if (token.kind == TokenKind::end && !finished_) {
      finished_ = true;
      expander_.finish();
      report_.finish();
    }
  }

  SourceFormat format() const { return expander_.format(); }
  const CopyExpander& expander() const { return expander_; }
  bool decimalPointIsComma() const { return tokens_.decimalPointIsComma(); }

 private:
  const SourceOptions options_;
  TextArena arena_;
  SourceReport report_;
  ImportBudget budget_;
  CopyExpander expander_;
  ReplaceStage replaced_;
  TagWords tags_;
  TokenReader tokens_;
  bool debugging_ = false;
  bool finished_ = false;
};

SourceReader::SourceReader(std::string bytes, const std::string& name, const SourceOptions& options,
                           CopybookProvider* copybooks, SourceMap& map, SourceFindings& findings)
    : impl_(std::make_unique<Impl>(std::move(bytes), name, options, copybooks, map, findings)) {}

SourceReader::~SourceReader() = default;

void SourceReader::read(Token& token) { impl_->read(token); }

std::optional<TokenSource::Definition> SourceReader::definition(const std::string& name) const {
  const DirectiveValue* const value = impl_->expander().findDefinition(name);
  if (value == nullptr) return std::nullopt;
  return Definition{value->text, value->isNumber};
}

const std::vector<SourcePlace>& SourceReader::passedCopybooks() const {
  return impl_->expander().passedCopybooks();
}

SourceFormat SourceReader::format() const { return impl_->format(); }

bool SourceReader::decimalPointIsComma() const { return impl_->decimalPointIsComma(); }

}  // namespace as::toolkit

// Findings as lines for people.
#include <ostream>
#include <string>

#include "as/toolkit/Text.h"
#include "toolkit/findings/Formats.h"

namespace as::toolkit {

namespace {

const char* colorOf(Severity severity) {
  switch (severity) {
    case Severity::error:
      return "\x1B[1;31m";
    case Severity::warning:
      return "\x1B[1;33m";
    default:
      return "\x1B[1;36m";
  }
}

class TextWriter : public FindingsWriter {
 public:
  TextWriter(std::ostream& out, bool isColored) : out_(out), isColored_(isColored) {}

  void add(const FileFinding& told) override {
    const Finding& finding = told.finding;
    place({told.file, finding.line, finding.column});
    const std::string word = wordOf(finding.severity);
    if (isColored_) {
      out_ << colorOf(finding.severity) << word << "\x1B[0m";
    } else {
      out_ << word;
    }
    out_ << printable(textOf(finding).substr(word.size())) << '\n';
    for (const SourceLocation& location : told.copiedAt) {
      place(location);
      out_ << "note: copied here\n";
    }
  }

  void end() override {}

 private:
  void place(const SourceLocation& location) {
    out_ << printable(location.file);
    if (location.line > 0) out_ << ':' << location.line << ':' << location.column;
    out_ << ": ";
  }

  std::ostream& out_;
  bool isColored_;
};

}  // namespace

std::unique_ptr<FindingsWriter> makeTextWriter(std::ostream& out, const FindingsOptions& options) {
  return std::make_unique<TextWriter>(out, options.isColored);
}

}  // namespace as::toolkit

// Findings as one object of JSON.
#include <array>
#include <cstddef>
#include <ostream>

#include "toolkit/findings/Formats.h"
#include "toolkit/render/JsonWriter.h"

namespace as::toolkit {

namespace {

class JsonFindings : public FindingsWriter {
 public:
  JsonFindings(std::ostream& out, const FindingsOptions& options) : json_(out) {
    json_.beginObject();
    json_.member("tool", options.tool);
    json_.member("version", options.version);
    json_.key("findings");
    json_.beginArray();
  }

  void add(const FileFinding& told) override {
    const Finding& finding = told.finding;
    ++counts_.at(static_cast<std::size_t>(finding.severity));
    json_.beginObject();
    json_.member("rule", finding.rule);
    json_.member("severity", wordOf(finding.severity));
    location({told.file, finding.line, finding.column});
    json_.member("place", finding.place);
    json_.member("problem", finding.problem);
    json_.member("advice", finding.advice);
    if (!told.copiedAt.empty()) {
      json_.key("copiedAt");
      json_.beginArray();
      for (const SourceLocation& at : told.copiedAt) {
        json_.beginObject();
        location(at);
        json_.end();
      }
      json_.end();
    }
    json_.end();
  }

  void end() override {
    json_.end();
    json_.member("errors", counts_[static_cast<std::size_t>(Severity::error)]);
    json_.member("warnings", counts_[static_cast<std::size_t>(Severity::warning)]);
    json_.member("notes", counts_[static_cast<std::size_t>(Severity::note)]);
    json_.end();
  }

 private:
  void location(const SourceLocation& at) {
    json_.member("file", at.file);
    json_.member("line", at.line);
    json_.member("column", at.column);
  }

  JsonWriter json_;
  std::array<std::size_t, 3> counts_{};  // By severity.
};

}  // namespace

std::unique_ptr<FindingsWriter> makeJsonWriter(std::ostream& out, const FindingsOptions& options) {
  return std::make_unique<JsonFindings>(out, options);
}

}  // namespace as::toolkit

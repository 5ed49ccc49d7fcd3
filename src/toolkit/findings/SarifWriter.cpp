// Findings as a log of SARIF 2.1.0, the exchange format of OASIS for results of static analysis.
#include <cstddef>
#include <ostream>
#include <string>
#include <unordered_map>

#include "toolkit/findings/Formats.h"
#include "toolkit/render/JsonWriter.h"

namespace as::toolkit {

namespace {

class SarifWriter : public FindingsWriter {
 public:
  SarifWriter(std::ostream& out, const FindingsOptions& options) : json_(out) {
    json_.beginObject();
    json_.member("$schema", "https://json.schemastore.org/sarif-2.1.0.json");
    json_.member("version", "2.1.0");
    json_.key("runs");
    json_.beginArray();
    json_.beginObject();
    tool(options);
    // Columns count characters, not units of some encoding.
    json_.member("columnKind", "unicodeCodePoints");
    json_.key("results");
    json_.beginArray();
  }

  void add(const FileFinding& told) override {
    const Finding& finding = told.finding;
    json_.beginObject();
    json_.member("ruleId", finding.rule);
    const auto rule = rules_.find(finding.rule);
    if (rule != rules_.end()) json_.member("ruleIndex", rule->second);
    json_.member("level", wordOf(finding.severity));
    message(messageOf(finding));
    json_.key("locations");
    json_.beginArray();
    json_.beginObject();
    physical({told.file, finding.line, finding.column});
    if (!finding.place.empty()) logical(finding.place);
    json_.end();
    json_.end();
    if (!told.copiedAt.empty()) related(told.copiedAt);
    // What stays when lines move: for who wants to know the finding again.
    json_.key("partialFingerprints");
    json_.beginObject();
    json_.member("place/v1", finding.rule + " " + finding.place);
    json_.end();
    json_.end();
  }

  void end() override {
    for (int level = 0; level < 4; ++level) json_.end();  // results, run, runs, log
  }

 private:
  void tool(const FindingsOptions& options) {
    json_.key("tool");
    json_.beginObject();
    json_.key("driver");
    json_.beginObject();
    json_.member("name", options.tool);
    json_.member("version", options.version);
    json_.key("rules");
    json_.beginArray();
    for (const RuleDescription& rule : options.rules) {
      if (rules_.try_emplace(rule.id, rules_.size()).second) describe(rule);
    }
    json_.end();
    json_.end();
    json_.end();
  }

  void describe(const RuleDescription& rule) {
    json_.beginObject();
    json_.member("id", rule.id);
    text("shortDescription", rule.summary);
    if (!rule.help.empty()) text("help", rule.help);
    json_.key("defaultConfiguration");
    json_.beginObject();
    json_.member("level", wordOf(rule.severity));
    json_.end();
    json_.end();
  }

  static std::string messageOf(const Finding& finding) {
    std::string words = finding.place;
    if (!words.empty()) words += ": ";
    words += finding.problem;
    if (!finding.advice.empty()) words += "; " + finding.advice;
    return words;
  }

  void text(const char* key, const std::string& text) {
    json_.key(key);
    json_.beginObject();
    json_.member("text", text);
    json_.end();
  }

  void message(const std::string& words) { text("message", words); }

  void physical(const SourceLocation& at) {
    json_.key("physicalLocation");
    json_.beginObject();
    json_.key("artifactLocation");
    json_.beginObject();
    json_.member("uri", uriOf(at.file));
    json_.end();
    if (at.line > 0) {
      json_.key("region");
      json_.beginObject();
      json_.member("startLine", at.line);
      if (at.column > 0) json_.member("startColumn", at.column);
      json_.end();
    }
    json_.end();
  }

  void logical(const std::string& place) {
    json_.key("logicalLocations");
    json_.beginArray();
    json_.beginObject();
    json_.member("fullyQualifiedName", place);
    json_.end();
    json_.end();
  }

  void related(const std::vector<SourceLocation>& places) {
    json_.key("relatedLocations");
    json_.beginArray();
    for (const SourceLocation& at : places) {
      json_.beginObject();
      physical(at);
      message("copied here");
      json_.end();
    }
    json_.end();
  }

  JsonWriter json_;
  std::unordered_map<std::string, std::size_t> rules_;  // The index of each id.
};

}  // namespace

std::unique_ptr<FindingsWriter> makeSarifWriter(std::ostream& out, const FindingsOptions& options) {
  return std::make_unique<SarifWriter>(out, options);
}

}  // namespace as::toolkit

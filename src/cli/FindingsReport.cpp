#include "cli/FindingsReport.h"

#include <iostream>
#include <utility>

#include "cli/Messages.h"

namespace cli {

namespace {

using as::toolkit::Severity;

constexpr char refusedDocument[] = "refused-document";

}  // namespace

void FindingsReport::declare(Arguments& arguments, const char* option) {
  std::vector<std::string> words;
  for (const as::toolkit::FindingsFormat& format : as::toolkit::findingsFormats()) {
    words.emplace_back(format.word);
  }
  arguments.option(option, format_, words, "How findings are told; text unless told");
}

void FindingsReport::begin(const Output& output, std::vector<as::toolkit::RuleDescription> rules) {
  isQuiet_ = output.isQuiet();
  begin(std::cout, output.isColored(), std::move(rules));
}

void FindingsReport::beginBesideResults(bool isQuiet,
                                        std::vector<as::toolkit::RuleDescription> rules) {
  isQuiet_ = isQuiet;
  begin(isText() ? std::cerr : std::cout, false, std::move(rules));
}

void FindingsReport::begin(std::ostream& out, bool isColored,
                           std::vector<as::toolkit::RuleDescription> rules) {
  rules.push_back({refusedDocument, Severity::error, "a document can be read and is valid",
                   "What the message tells has to be mended before anything else is looked at."});
  writer_ = as::toolkit::findFindingsFormat(format_)->makeWriter(
      out, {"agentservices", AS_TOOL_VERSION, std::move(rules), isColored});
}

void FindingsReport::add(const as::toolkit::FileFinding& finding) {
  if (isQuiet_ && finding.finding.severity == Severity::note) return;
  writer_->add(finding);
}

void FindingsReport::add(const as::toolkit::Refusal& refusal) {
  printRefusal(refusal);
  if (isText()) return;
  writer_->add({refusal.file,
                {refusedDocument, Severity::error, "", refusal.text, refusal.hint, refusal.line,
                 refusal.column}});
}

void FindingsReport::end() { writer_->end(); }

}  // namespace cli

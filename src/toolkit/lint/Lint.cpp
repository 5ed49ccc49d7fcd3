#include "as/toolkit/Lint.h"

#include <memory>
#include <utility>

#include "as/IProgram.h"
#include "as/IService.h"
#include "as/toolkit/Text.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/io/Bytes.h"
#include "toolkit/io/HeldSource.h"
#include "toolkit/lint/LintReport.h"
#include "toolkit/lint/LintedService.h"
#include "toolkit/lint/LintedText.h"
#include "toolkit/lint/Rules.h"
#include "toolkit/lint/ServiceWalk.h"

namespace as::toolkit {

namespace {

void lookAtService(as::IService& service, LintReport& report) {
  const Place place("service", service);
  look(ServiceSubject{place, service, profileOf(service)}, report);
}

void lookAtComments(LintedText& text, LintReport& report) {
  const LintComments* const comments = text.comments();
  if (comments == nullptr) return;
  for (const LintComments::Mistake& mistake : comments->mistakes()) {
    const Place place("comment", mistake.place, mistake.around);
    look(CommentSubject{place, mistake.problem, mistake.advice}, report);
  }
}

// At the dictionary that the service is to be looked at with. Null when there is none.
std::shared_ptr<as::IProgram> lookAtDictionary(const DocumentReader& reader, as::IService& service,
                                               const std::string& file,
                                               const std::optional<std::string>& dictionary,
                                               LintReport& report) {
  if (!dictionary && service.getDDFilename().empty()) return nullptr;
  const Place place("service", service);
  try {
    std::shared_ptr<as::IProgram> program =
        reader.programOf(service, file, ProgramChoice{dictionary});
    look(DictionarySubject{place, nullptr, service.getAttributeValue("programName"),
                           program->getName()},
         report);
    return program;
  } catch (const RefusedDocument& refused) {
    look(DictionarySubject{place, &refused.refusal(), ""}, report);
  }
  return nullptr;
}

// The bytes that `source` was read from; empty when they cannot be had again.
std::string bytesOf(const DocumentSource& source) {
  if (source.text) return *source.text;
  std::string bytes;
  return readRegularFile(source.name, bytes) ? bytes : "";
}

}  // namespace

const std::vector<LintRule>& lintRules() {
  static const std::vector<LintRule> all = {
#define AS_LINT_RULE(function, Subject, id, severity, summary) rows::function,
#include "toolkit/lint/Rules.def"
  };
  return all;
}

const LintRule* findLintRule(std::string_view id) {
  for (const LintRule& rule : lintRules()) {
    if (id == rule.id) return &rule;
  }
  return nullptr;
}

std::string nearestLintRule(const std::string& id) {
  std::vector<std::string> ids;
  for (const LintRule& rule : lintRules()) ids.emplace_back(rule.id);
  return nearestName(id, ids);
}

const std::vector<RuleSetting>& ruleSettings() {
  static const std::vector<RuleSetting> all = {{"off", std::nullopt},
                                               {wordOf(Severity::note), Severity::note},
                                               {wordOf(Severity::warning), Severity::warning},
                                               {wordOf(Severity::error), Severity::error}};
  return all;
}

const RuleSetting* findRuleSetting(std::string_view word) {
  for (const RuleSetting& setting : ruleSettings()) {
    if (word == setting.word) return &setting;
  }
  return nullptr;
}

Findings lint(as::IService& service) { return lintWith(service, service.getProgram()).findings; }

LintedService lintWith(as::IService& service, as::IProgram* program) {
  LintReport report;
  lookAtService(service, report);
  LintedService linted;
  linted.index = lintMembers(service, program, report);
  linted.findings = std::move(report.findings());
  return linted;
}

LintedService lintRead(const DocumentReader& reader, as::IService& service,
                       const DocumentSource& source, const LintOptions& options) {
  LintedText text(service, bytesOf(source));
  LintReport report({&text, &options.rules});
  lookAtService(service, report);
  LintedService linted;
  linted.program = lookAtDictionary(reader, service, source.name, options.dictionary, report);
  lookAtComments(text, report);
  linted.index = lintMembers(service, linted.program.get(), report);
  linted.findings = std::move(report.findings());
  return linted;
}

Findings lintDocument(const DocumentReader& reader, const DocumentSource& source,
                      const LintOptions& options) {
  const HeldSource held(source);
  const std::unique_ptr<as::IService> service = reader.readService(held.get());
  return lintRead(reader, *service, held.get(), options).findings;
}

Findings lintFile(const DocumentReader& reader, const std::string& file,
                  const std::optional<std::string>& dictionary) {
  return lintDocument(reader, {file}, {dictionary, {}});
}

}  // namespace as::toolkit

#include "as/toolkit/Lint.h"

#include "as/IProgram.h"
#include "as/IService.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/lint/LintedService.h"
#include "toolkit/lint/Rules.h"
#include "toolkit/lint/ServiceWalk.h"

namespace as::toolkit {

namespace {

const Place& servicePlace() {
  static const Place place("service");
  return place;
}

void lookAtService(as::IService& service, Findings& findings) {
  look(ServiceSubject{servicePlace(), service, profileOf(service)}, findings);
}

}  // namespace

const std::vector<LintRule>& lintRules() {
  static const std::vector<LintRule> all = {
#define AS_LINT_RULE(function, Subject, id, severity, summary) rows::function,
#include "toolkit/lint/Rules.def"
  };
  return all;
}

Findings lint(as::IService& service) { return lintWith(service, service.getProgram()); }

Findings lintWith(as::IService& service, as::IProgram* program) {
  Findings findings;
  lookAtService(service, findings);
  lintMembers(service, program, findings);
  return findings;
}

LintedService lintRead(const DocumentReader& reader, as::IService& service, const std::string& file,
                       const std::optional<std::string>& dictionary) {
  LintedService linted;
  lookAtService(service, linted.findings);
  if (dictionary || !service.getDDFilename().empty()) {
    try {
      linted.program = reader.programOf(service, file, ProgramChoice{dictionary});
      look(DictionarySubject{servicePlace(), nullptr, service.getAttributeValue("programName"),
                             linted.program->getName()},
           linted.findings);
    } catch (const RefusedDocument& refused) {
      look(DictionarySubject{servicePlace(), &refused.refusal(), ""}, linted.findings);
    }
  }
  lintMembers(service, linted.program.get(), linted.findings);
  return linted;
}

Findings lintFile(const DocumentReader& reader, const std::string& file,
                  const std::optional<std::string>& dictionary) {
  const std::unique_ptr<as::IService> service = reader.readService(file);
  return lintRead(reader, *service, file, dictionary).findings;
}

}  // namespace as::toolkit

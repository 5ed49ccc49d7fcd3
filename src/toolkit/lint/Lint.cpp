#include "as/toolkit/Lint.h"

#include "as/IProgram.h"
#include "as/IService.h"
#include "toolkit/flavour/FlavourProfile.h"
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

Findings lint(as::IService& service) {
  Findings findings;
  lookAtService(service, findings);
  lintMembers(service, service.getProgram(), findings);
  return findings;
}

Findings lintFile(const DocumentReader& reader, const std::string& file,
                  const std::optional<std::string>& dictionary) {
  const std::unique_ptr<as::IService> service = reader.readService(file);
  Findings findings;
  lookAtService(*service, findings);
  std::shared_ptr<as::IProgram> program;
  if (dictionary || !service->getDDFilename().empty()) {
    try {
      program = reader.programOf(*service, file, ProgramChoice{dictionary});
      look(DictionarySubject{servicePlace(), nullptr, service->getAttributeValue("programName"),
                             program->getName()},
           findings);
    } catch (const RefusedDocument& refused) {
      look(DictionarySubject{servicePlace(), &refused.refusal(), ""}, findings);
    }
  }
  lintMembers(*service, program.get(), findings);
  return findings;
}

}  // namespace as::toolkit

#include "as/toolkit/Lint.h"

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
  lintMembers(service, findings);
  return findings;
}

Findings lintFile(const DocumentReader& reader, const std::string& file,
                  const std::optional<std::string>& dictionary) {
  const std::unique_ptr<as::IService> service = reader.readService(file);
  Findings findings;
  lookAtService(*service, findings);
  ServiceDocument complete;
  if (dictionary || !service->getDDFilename().empty()) {
    try {
      complete = reader.withProgram(*service, file, ProgramChoice{dictionary});
      look(DictionarySubject{servicePlace(), nullptr, complete.programName,
                             complete.service->getProgram()->getName()},
           findings);
    } catch (const RefusedDocument& refused) {
      look(DictionarySubject{servicePlace(), &refused.refusal(), ""}, findings);
    }
  }
  lintMembers(complete.service ? *complete.service : *service, findings);
  return findings;
}

}  // namespace as::toolkit

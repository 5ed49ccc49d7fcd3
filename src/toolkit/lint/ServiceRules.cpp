// Rules about a service's own attributes and its dictionary.
#include "as/toolkit/DocumentReader.h"
#include "toolkit/lint/Rules.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::rules {

void unnamedService(const ServiceSubject& subject, const Tell& tell) {
  if (subject.service.getName().empty()) tell("the service has no name", R"(write "name")");
}

void noDictionary(const ServiceSubject& subject, const Tell& tell) {
  if (!subject.service.getDDFilename().empty()) return;
  tell("the service names no dictionary", R"(write "dataDictFilename")");
}

void wrongImplementation(const ServiceSubject& subject, const Tell& tell) {
  const FlavourProfile& profile = subject.profile;
  if (subject.service.getImplementation() == profile.flavour().implementation) return;
  tell("implementation " + quote(subject.service.getAttributeValue("implementation")) +
           " is not that of a " + profile.name() + " service",
       R"(correct "implementation")");
}

void unusableDictionary(const DictionarySubject& subject, const Tell& tell) {
  if (subject.refusal == nullptr) return;
  tell("the dictionary cannot be used: " + textOf(*subject.refusal),
       "mappings and entry points were not checked");
}

void otherProgram(const DictionarySubject& subject, const Tell& tell) {
  if (subject.refusal != nullptr || subject.programName.empty()) return;
  if (subject.programName == subject.dictionaryName) return;
  tell("it names program " + quote(subject.programName) + ", the dictionary is of " +
           quote(subject.dictionaryName),
       R"(correct "programName" or "dataDictFilename")");
}

}  // namespace as::toolkit::rules

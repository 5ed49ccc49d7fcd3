// The identity records that are registered.
#ifndef TESTS_SUPPORT_RECORDS_H_
#define TESTS_SUPPORT_RECORDS_H_

#include <map>
#include <string>

#include "as/AgentServices.h"

namespace test {

using Records = std::map<std::string, const RTTITypeinfo*>;

// Adds the record and all that are derived from it, by name.
inline void collectRecords(const RTTITypeinfo& record, Records& records) {
  records.emplace(record.name == nullptr ? "(no name)" : record.name, &record);
  for (int i = 0; i < record.derivedCount; i++) collectRecords(*record.derived[i], records);
}

// Those of the classes without a base, and all that are derived from them.
inline Records records() {
  Records found;
  for (const RTTITypeinfo* root : {&as::IAgentServices::RTTI_obj, &as::IElement::RTTI_obj,
                                   &as::CAgentServicesFactory::RTTI_obj}) {
    collectRecords(*root, found);
  }
  return found;
}

}  // namespace test

#endif  // TESTS_SUPPORT_RECORDS_H_

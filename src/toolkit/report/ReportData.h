// What the pages of a report are told of the documents, as JSON.
#ifndef TOOLKIT_REPORT_REPORTDATA_H_
#define TOOLKIT_REPORT_REPORTDATA_H_

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "as/toolkit/Finding.h"
#include "toolkit/facts/DictionaryFacts.h"
#include "toolkit/facts/ItemPaths.h"
#include "toolkit/facts/ServiceFacts.h"
#include "toolkit/report/ReportSource.h"

namespace as::toolkit {

// Keys are short: there are as many items as there are. site/model.js tells what they stand for.
nlohmann::ordered_json dataOf(const DictionaryFacts& facts, const SourceLineCheck& lines);

// `paths` are those of the service's dictionary; null when there is none.
nlohmann::ordered_json dataOf(const ServiceFacts& facts, const ItemPaths* paths,
                              const Findings& findings);

// All names for the search: [kind, place in the document, name, what it stands in].
nlohmann::ordered_json namesOf(const DictionaryFacts& facts);
nlohmann::ordered_json namesOf(const ServiceFacts& facts);

// A script that hands `data` over to the pages: plain ASCII, whatever it holds.
std::string scriptOf(const std::string& id, const nlohmann::ordered_json& data);

}  // namespace as::toolkit

#endif  // TOOLKIT_REPORT_REPORTDATA_H_

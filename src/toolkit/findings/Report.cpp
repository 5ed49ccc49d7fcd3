#include "toolkit/findings/Report.h"

namespace as::toolkit {

void Report::error(const char* rule, const std::string& place, const std::string& problem,
                   const std::string& advice) {
  findings_.push_back({rule, Severity::error, place, problem, advice});
}

void Report::warning(const char* rule, const std::string& place, const std::string& problem,
                     const std::string& advice) {
  findings_.push_back({rule, Severity::warning, place, problem, advice});
}

void Report::note(const char* rule, const std::string& place, const std::string& text) {
  findings_.push_back({rule, Severity::note, place, text, ""});
}

}  // namespace as::toolkit

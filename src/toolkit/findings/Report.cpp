#include "toolkit/findings/Report.h"

namespace as::toolkit {

void Report::note(const char* rule, const std::string& place, const std::string& text) {
  findings_.push_back({rule, Severity::note, place, text, ""});
}

}  // namespace as::toolkit

#include "toolkit/findings/Report.h"

namespace as::toolkit {

void Report::note(const char* rule, const std::string& place, const std::string& text) {
  findings_.push_back({rule, Severity::note, place, text, "", 0, 0});
}

}  // namespace as::toolkit

// Collects notes where they are made.
#ifndef TOOLKIT_FINDINGS_REPORT_H_
#define TOOLKIT_FINDINGS_REPORT_H_

#include <string>

#include "as/toolkit/Finding.h"

namespace as::toolkit {

// Adds findings to the end of a list, which must outlive it.
class Report {
 public:
  explicit Report(Findings& findings) : findings_(findings) {}

  void note(const char* rule, const std::string& place, const std::string& text);

 private:
  Findings& findings_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_FINDINGS_REPORT_H_

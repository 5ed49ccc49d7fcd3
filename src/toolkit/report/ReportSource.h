// The sources of programs for looking at.
#ifndef TOOLKIT_REPORT_REPORTSOURCE_H_
#define TOOLKIT_REPORT_REPORTSOURCE_H_

#include <optional>
#include <string>
#include <vector>

#include "toolkit/facts/DictionaryFacts.h"

namespace as::toolkit {

struct ReportSource {
  std::string name;
  std::vector<std::string> lines;  // UTF-8; other bytes count as those of ISO 8859-1.
};

// The source named `name`, without the folders in that name, in the first of `folders` that has it.
// Only regular files of a size that a browser can do with.
std::optional<ReportSource> findSource(const std::string& name,
                                       const std::vector<std::string>& folders);

// Whether the line that a dictionary tells of an item is that of the source: the line of an item
// from a copybook is the copybook's.
class SourceLineCheck {
 public:
  explicit SourceLineCheck(const ReportSource* source) : source_(source) {}
  bool isOf(const ItemFacts& item) const;

 private:
  const ReportSource* source_;  // Null for none.
};

}  // namespace as::toolkit

#endif  // TOOLKIT_REPORT_REPORTSOURCE_H_

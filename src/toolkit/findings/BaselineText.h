// Reads what a baseline's file holds.
#ifndef TOOLKIT_FINDINGS_BASELINETEXT_H_
#define TOOLKIT_FINDINGS_BASELINETEXT_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace as::toolkit {

// What the file calls itself, with the version of what is in it.
inline constexpr char baselineKind[] = "agentservices lint baseline 1";

struct BaselineRow {
  std::string file;
  std::string rule;
  std::string place;
  std::size_t count = 1;
};

// Nothing for a text that is no baseline; of one that is, what is no row is passed over.
std::optional<std::vector<BaselineRow>> rowsIn(const std::string& text);

}  // namespace as::toolkit

#endif  // TOOLKIT_FINDINGS_BASELINETEXT_H_

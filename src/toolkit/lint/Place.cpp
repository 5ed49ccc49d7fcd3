#include "toolkit/lint/Place.h"

#include <vector>

namespace as::toolkit {

std::string Place::text() const {
  std::vector<const Place*> way;
  for (const Place* at = this; at != nullptr; at = at->around_) way.push_back(at);
  std::string text;
  for (auto at = way.rbegin(); at != way.rend(); ++at) text += (*at)->step_;
  return text;
}

std::string nameOrUnnamed(const std::string& name) { return name.empty() ? "(unnamed)" : name; }

}  // namespace as::toolkit

#include "toolkit/lint/Place.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "toolkit/text/ShownPlace.h"

namespace as::toolkit {

std::string Place::text() const {
  std::vector<std::string_view> way;
  for (const Place* at = this; at != nullptr; at = at->around_) way.emplace_back(at->step_);
  std::reverse(way.begin(), way.end());
  return shownPlace(way);
}

const as::IElement* Place::object() const {
  const Place* at = this;
  while (at->object_ == nullptr && at->around_ != nullptr) at = at->around_;
  return at->object_;
}

std::string nameOrUnnamed(const std::string& name) { return name.empty() ? "(unnamed)" : name; }

}  // namespace as::toolkit

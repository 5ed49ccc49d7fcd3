#include "toolkit/lint/Place.h"

#include <deque>

namespace as::toolkit {

std::string Place::text() const {
  std::deque<const Place*> way;
  for (const Place* at = this; at != nullptr; at = at->around_) way.push_front(at);
  std::string text;
  for (const Place* const at : way) text += at->step_;
  return text;
}

std::string nameOrUnnamed(const std::string& name) { return name.empty() ? "(unnamed)" : name; }

}  // namespace as::toolkit

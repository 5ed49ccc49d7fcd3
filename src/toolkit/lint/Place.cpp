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

const as::IElement* Place::object() const {
  const Place* at = this;
  while (at->object_ == nullptr && at->around_ != nullptr) at = at->around_;
  return at->object_;
}

std::string nameOrUnnamed(const std::string& name) { return name.empty() ? "(unnamed)" : name; }

}  // namespace as::toolkit

// Where something stands in a service.
#ifndef TOOLKIT_LINT_PLACE_H_
#define TOOLKIT_LINT_PLACE_H_

#include <string>
#include <utility>

namespace as::toolkit {

// A step behind the place around it, which must outlive this one. Becomes text only when something
// is to be told there.
class Place {
 public:
  explicit Place(std::string step) : step_(std::move(step)) {}
  Place(std::string step, const Place& around) : step_(std::move(step)), around_(&around) {}

  // In the terms of the document: "quote.serial", "type Address.street".
  std::string text() const;

 private:
  std::string step_;
  const Place* around_ = nullptr;
};

// What stands in a place for a missing name.
std::string nameOrUnnamed(const std::string& name);

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_PLACE_H_

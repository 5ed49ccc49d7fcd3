// Where something stands in a service.
#ifndef TOOLKIT_LINT_PLACE_H_
#define TOOLKIT_LINT_PLACE_H_

#include <cstddef>
#include <string>
#include <utility>

#include "as/IElement.h"
#include "toolkit/outline/DocumentOutline.h"
#include "toolkit/outline/TextPlace.h"

namespace as::toolkit {

// A step behind the place around it, which must outlive this one, as must the object of the model
// that stands there. Becomes text only when something is to be told there.
class Place {
 public:
  explicit Place(std::string step) : step_(std::move(step)) {}
  Place(std::string step, const as::IElement& object) : step_(std::move(step)), object_(&object) {}
  // Something in the text of an element, which goes by its number.
  Place(std::string step, const TextPlace& at, std::size_t element)
      : step_(std::move(step)), at_(at), element_(element) {}
  Place(std::string step, const Place& around) : step_(std::move(step)), around_(&around) {}
  Place(std::string step, const Place& around, const as::IElement& object)
      : step_(std::move(step)), around_(&around), object_(&object) {}

  // In the terms of the document: "quote.serial", "type Address.street". As shownPlace() has it.
  std::string text() const;

  // The object there, or else the next one around it; null when there is none.
  const as::IElement* object() const;

  // Where that is in the text, for a place that no object stands at; lines from 0 for others.
  const TextPlace& inText() const { return at_; }
  // The element that such a place is in; DocumentOutline::none for others.
  std::size_t elementAround() const { return element_; }

 private:
  std::string step_;
  const Place* around_ = nullptr;
  const as::IElement* object_ = nullptr;
  TextPlace at_;
  std::size_t element_ = DocumentOutline::none;
};

// What stands in a place for a missing name.
std::string nameOrUnnamed(const std::string& name);

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_PLACE_H_

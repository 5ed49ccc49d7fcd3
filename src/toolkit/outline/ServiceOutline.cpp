#include "toolkit/outline/ServiceOutline.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "as/IHiddenParameter.h"
#include "as/IMapping.h"
#include "as/IParameter.h"
#include "toolkit/walk/FieldWalk.h"
#include "toolkit/walk/TreeWalk.h"

namespace as::toolkit {

namespace {

// Calls visit(member, element) for the members of a list and their elements, the children of that
// name of the element `around`.
template <class Member, class Visit>
void forEachPair(const DocumentOutline& outline, as::IList* list, std::size_t around,
                 std::string_view name, const Visit& visit) {
  const std::vector<std::size_t> children = outline.childrenOf(around, name);
  if (list == nullptr || static_cast<std::size_t>(list->getLength()) != children.size()) return;
  std::size_t next = 0;
  forEachMember<Member>(list, [&](Member& member) { visit(member, children[next++]); });
}

}  // namespace

ServiceOutline::ServiceOutline(as::IService& service, const DocumentOutline& outline)
    : outline_(outline), profile_(profileOf(service)) {
  if (outline.elements().empty() || outline.elements().front().name != "service") return;
  constexpr std::size_t root = 0;
  elements_.emplace(&service, root);
  addParameters(service.getParameterTypeDefs(), outline.childOf(root, "parameterTypeDefs"));
  forEachPair<as::IOperation>(
      outline, service.getOperations(), outline.childOf(root, "operations"), "operation",
      [this](as::IOperation& operation, std::size_t at) { addOperation(operation, at); });
}

std::size_t ServiceOutline::elementOf(const as::IElement& object) const {
  const auto found = elements_.find(&object);
  return found == elements_.end() ? DocumentOutline::none : found->second;
}

void ServiceOutline::addOperation(as::IOperation& operation, std::size_t element) {
  elements_.emplace(&operation, element);
  forEachPair<as::IHiddenParameter>(
      outline_, operation.getHiddenParameters(), outline_.childOf(element, "hiddenParameters"),
      "hiddenParameter",
      [this](as::IHiddenParameter& hidden, std::size_t at) { elements_.emplace(&hidden, at); });
  addParameters(operation.getParameters(), outline_.childOf(element, "parameters"));
  addMessages(operation, element);
}

// Headers and faults: elements of their kinds, in any order.
void ServiceOutline::addMessages(as::IOperation& operation, std::size_t element) {
  std::map<std::string_view, std::vector<std::size_t>> left;
  for (const char* const kind : {"header", "fault"}) {
    std::vector<std::size_t> children = outline_.childrenOf(element, kind);
    left.emplace(kind, std::vector<std::size_t>(children.rbegin(), children.rend()));
  }
  for (const Message& message : profile_.messagesOf(operation)) {
    std::vector<std::size_t>& kind = left[message.kind];
    if (kind.empty()) return;
    elements_.emplace(message.element, kind.back());
    addParameters(message.parameters, outline_.childOf(kind.back(), "parameters"));
    kind.pop_back();
  }
}

void ServiceOutline::addParameters(as::IList* parameters, std::size_t around) {
  forEachPair<as::IField>(
      outline_, parameters, around, "parameter",
      [this](as::IField& parameter, std::size_t at) { addFields(parameter, at); });
}

// A parameter with everything below it; a reference to a type definition has nothing of its own.
void ServiceOutline::addFields(as::IField& parameter, std::size_t element) {
  std::vector<std::pair<as::IField*, std::size_t>> waiting = {{&parameter, element}};
  while (!waiting.empty()) {
    const auto [field, at] = waiting.back();
    waiting.pop_back();
    elements_.emplace(field, at);
    if (!referenceOf(*field).empty()) continue;
    addMappings(*field, at);
    const auto wait = [&waiting](as::IField& inner, std::size_t of) {
      waiting.emplace_back(&inner, of);
    };
    forEachPair<as::IField>(outline_, field->getChildren(), at, "field", wait);
    forEachPair<as::IField>(outline_, profile_.attributesOf(*field), at, "fieldAttribute", wait);
  }
}

void ServiceOutline::addMappings(as::IField& field, std::size_t element) {
  forEachPair<as::IMapping>(
      outline_, field.getMappings(), outline_.childOf(element, "mappings"), "mapping",
      [this](as::IMapping& mapping, std::size_t at) { elements_.emplace(&mapping, at); });
}

}  // namespace as::toolkit

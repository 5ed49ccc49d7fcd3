#include "toolkit/generate/References.h"

#include <cstddef>
#include <vector>

namespace as::toolkit::gen {

namespace {

// The last type on the way from each along references: for most of them themselves. Ways that lead
// round end somewhere on the round: at a definition that refers to itself, there.
std::vector<std::size_t> endsOfReferences(const ServiceModel& model) {
  std::vector<std::size_t> ends(model.types.size(), none);
  std::vector<bool> isOnWay(model.types.size(), false);
  std::vector<std::size_t> way;
  for (std::size_t start = 0; start < model.types.size(); ++start) {
    std::size_t at = start;
    while (ends[at] == none && !isOnWay[at]) {
      way.push_back(at);
      isOnWay[at] = true;
      const std::size_t next = model.types[at].self.reference;
      if (next != none) at = next;
    }
    const std::size_t end = ends[at] == none ? at : ends[at];
    for (const std::size_t type : way) ends[type] = end;
    way.clear();
  }
  return ends;
}

class Completion {
 public:
  explicit Completion(const ServiceModel& model) : model_(model), ends_(endsOfReferences(model)) {}

  // Definitions stand in front of those that refer to them, so what they lead to is complete. One
  // inside itself refers to what is being completed: that is its end.
  void complete(Field& field) const {
    if (field.reference == none) {
      if (field.isTable() && !field.isTold) field.least = field.occurs;
      return;
    }
    const Field& nearest = model_.types[field.reference].self;
    const Field& last = model_.types[ends_[field.reference]].self;
    field.structure = last.structure;
    field.mappings = last.mappings;
    field.item = last.item;
    field.dependingOn = nearest.dependingOn;
    field.least = nearest.isTable() ? (nearest.isTold ? nearest.least : nearest.occurs) : 1;
  }

  void complete(std::vector<Field>& fields) const {
    for (Field& field : fields) complete(field);
  }

 private:
  const ServiceModel& model_;
  std::vector<std::size_t> ends_;
};

// A structure that stands in itself ends only where a field of its kind is left out.
void markRecursiveTypes(ServiceModel& model) {
  std::vector<std::size_t> declared(model.types.size(), none);
  for (std::size_t i = 0; i < model.types.size(); ++i) {
    const std::size_t owner = model.types[i].owner;
    declared[i] = owner == none ? (model.types[i].isDeclared ? i : none) : declared[owner];
  }
  for (std::size_t i = 0; i < model.types.size(); ++i) {
    for (Field& field : model.types[i].fields) {
      if (field.reference == none || declared[i] != field.reference) continue;
      // References lead to definitions in front, or to the one around: no other ways round.
      model.types[field.reference].isRecursive = true;
      field.least = 0;
      field.isInItself = true;
    }
  }
}

}  // namespace

void completeReferences(ServiceModel& model) {
  const Completion completion(model);
  for (Type& type : model.types) {
    if (type.isDeclared) completion.complete(type.self);
    completion.complete(type.fields);
    completion.complete(type.attributes);
  }
  for (Operation& operation : model.operations) {
    completion.complete(operation.parameters);
    for (Message& message : operation.messages) completion.complete(message.parameters);
  }
  markRecursiveTypes(model);
}

}  // namespace as::toolkit::gen

#include "toolkit/generate/MessagePlan.h"

namespace as::toolkit::gen {

NameWish requestWish(const ServiceModel& model, const Operation& operation) {
  return {operation.name, model.placeOf(operation)};
}

NameWish answerWish(const ServiceModel& model, const Operation& operation) {
  return {operation.name + "Response", model.placeOf(operation) + " answer", true};
}

NameWish faultWish(const ServiceModel& model, const Operation& operation, const Message& fault) {
  const std::string number = fault.number == 1 ? "" : std::to_string(fault.number);
  return {operation.name + "Fault" + number, model.placeOf(operation, fault), true};
}

SchemaSet::Members requestMembers(const ServiceModel& model, const Operation& operation) {
  return {operation.parameters, model.placeOf(operation), true, false,
          operation.style == Operation::Style::rpc};
}

SchemaSet::Members answerMembers(const ServiceModel& model, const Operation& operation) {
  return {operation.parameters, model.placeOf(operation), false, true,
          operation.style == Operation::Style::rpc};
}

SchemaSet::Members membersOf(const ServiceModel& model, const Operation& operation,
                             const Message& message) {
  return {message.parameters, model.placeOf(operation, message)};
}

}  // namespace as::toolkit::gen

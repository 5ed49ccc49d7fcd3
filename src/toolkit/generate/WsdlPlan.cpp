#include "toolkit/generate/WsdlPlan.h"

#include <utility>

#include "toolkit/generate/MessagePlan.h"
#include "toolkit/generate/ShortPath.h"

namespace as::toolkit::gen {

namespace {

// Whether types have field attributes, or one does that stands in them: in their order. From those
// that have some to what they stand in, as chains of type definitions have any length.
std::vector<bool> typesWithAttributes(const ServiceModel& model) {
  std::vector<std::vector<std::size_t>> around(model.types.size());
  std::vector<std::size_t> waiting;
  for (std::size_t i = 0; i < model.types.size(); ++i) {
    if (!model.types[i].attributes.empty()) waiting.push_back(i);
    for (const Field& field : model.types[i].fields) {
      if (field.structure != none) around[field.structure].push_back(i);
    }
  }
  std::vector<bool> have(model.types.size(), false);
  while (!waiting.empty()) {
    const std::size_t type = waiting.back();
    waiting.pop_back();
    if (have[type]) continue;
    have[type] = true;
    waiting.insert(waiting.end(), around[type].begin(), around[type].end());
  }
  return have;
}

}  // namespace

WsdlPlan::WsdlPlan(const Job& job, SchemaSet& schemas)
    : job_(job), model_(job.model), schemas_(schemas) {
  for (const Operation& operation : model_.operations) plan(operation);
}

void WsdlPlan::plan(const Operation& operation) {
  WsdlOperation planned{operation};
  planned.request = planMessage(planned, requestMembers(model_, operation),
                                requestWish(model_, operation), operation.inputNamespace);
  planned.answer = planMessage(planned, answerMembers(model_, operation),
                               answerWish(model_, operation), operation.outputNamespace);
  for (const Message& message : operation.messages) {
    planned.messages.push_back({message, planMessage(operation, message)});
  }
  if (planned.isRpc() && (operation.isInputEncoded || operation.isOutputEncoded)) {
    tellAttributes(operation);
  }
  operations_.push_back(std::move(planned));
}

// A request or an answer: one element with all parameters in it, or a part for each of them.
std::size_t WsdlPlan::planMessage(const WsdlOperation& planned, const SchemaSet::Members& members,
                                  const NameWish& element, const std::string& uri) {
  // Messages are called as the elements of the bodies: some readers take one name for the other.
  WsdlMessage message{{element.name, element.place, true}};
  if (!planned.isRpc()) {
    message.parts.push_back({"parameters", schemas_.addWrapper(uri, element, members)});
  } else {
    const std::vector<std::string> names = schemas_.memberNames(members);
    const std::vector<const Field*> fields = members.chosen();
    for (std::size_t i = 0; i < fields.size(); ++i) {
      message.parts.push_back({names[i], {}, typeOf(planned.operation, *fields[i])});
    }
  }
  messages_.push_back(std::move(message));
  return messages_.size() - 1;
}

// The same parameter has one type in the request and in the answer.
SchemaSet::Handle WsdlPlan::typeOf(const Operation& operation, const Field& field) {
  const auto known = types_.find(&field);
  if (known != types_.end()) return known->second;
  const NameWish wish{
      shortName(operation.name) + "." + field.name + (field.isTable() ? ".list" : ""),
      Spot(model_.placeOf(operation)).of(field.name).with(" type"), true};
  return types_[&field] = schemas_.addType(field, wish);
}

// A header or fault.
std::size_t WsdlPlan::planMessage(const Operation& operation, const Message& message) {
  const std::string place = model_.placeOf(operation, message);
  const std::string& uri =
      message.namespaceUri.empty() ? schemas_.targetNamespace() : message.namespaceUri;
  const SchemaSet::Members members = membersOf(model_, operation, message);
  const bool isFault = message.kind == "fault";
  WsdlMessage planned{{operation.name + (isFault ? "Fault" : "Header") +
                           (message.number == 1 ? "" : std::to_string(message.number)),
                       place + " message", true}};
  if (message.isEncoded) tellEncoded(place, message.kind);
  if (isFault && message.isEncoded) {
    NameWish wish = faultWish(model_, operation, message);
    planned.parts.push_back({"fault", {}, schemas_.addGroup(wish, members)});
  } else if (isFault) {
    planned.parts.push_back(
        {"fault", schemas_.addWrapper(uri, faultWish(model_, operation, message), members)});
  } else {
    planHeader(operation, message, members, uri, planned);
  }
  messages_.push_back(std::move(planned));
  return messages_.size() - 1;
}

// A part for each parameter: each is a block of the header.
void WsdlPlan::planHeader(const Operation& operation, const Message& message,
                          const SchemaSet::Members& members, const std::string& uri,
                          WsdlMessage& planned) {
  const std::vector<std::string> names = schemas_.memberNames(members);
  const std::vector<const Field*> fields = members.chosen();
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const Spot place = members.place.of(fields[i]->name);
    if (message.isEncoded) {
      planned.parts.push_back({names[i], {}, typeOf(operation, *fields[i])});
      continue;
    }
    if (fields[i]->isTable()) {
      job_.warn("repeated-header", place.text(),
                "a header has one block of a name: that it occurs " +
                    std::to_string(fields[i]->occurs) + " times is not said",
                "put it into a structure");
    }
    const std::string& own = fields[i]->namespaceUri.empty() ? uri : fields[i]->namespaceUri;
    planned.parts.push_back({names[i], schemas_.addElement(own, *fields[i], place)});
  }
}

void WsdlPlan::tellEncoded(const std::string& place, const std::string& kind) const {
  job_.warn(kind == "fault" ? "encoded-fault" : "encoded-header", place,
            "it is encoded: WSDL tells its type, but of no element that it travels in, and most "
            "readers want one",
            "make its use literal");
}

// What is encoded has no attributes.
void WsdlPlan::tellAttributes(const Operation& operation) {
  if (haveAttributes_.empty()) haveAttributes_ = typesWithAttributes(model_);
  for (const Field& parameter : operation.parameters) {
    if (parameter.structure == none || !haveAttributes_[parameter.structure]) continue;
    job_.warn("encoded-attribute", Spot(model_.placeOf(operation)).of(parameter.name).text(),
              "it has field attributes, which SOAP's encoding does not know: the schema has them "
              "all the same",
              "make them fields, or the use literal");
  }
}

void WsdlPlan::giveNames() {
  std::vector<NameWish> wishes;
  for (const WsdlMessage& message : messages_) wishes.push_back(message.wish);
  std::vector<std::string> names = schemas_.names().namesIn(wishes);
  for (std::size_t i = 0; i < names.size(); ++i) messages_[i].name = names[i];
  wishes.clear();
  for (const Operation& operation : model_.operations) {
    wishes.push_back(requestWish(model_, operation));
  }
  names = schemas_.names().namesIn(wishes);
  for (std::size_t i = 0; i < names.size(); ++i) operations_[i].name = names[i];
  name_ = schemas_.names().namesIn({{model_.name, "service"}}).front();
}

}  // namespace as::toolkit::gen

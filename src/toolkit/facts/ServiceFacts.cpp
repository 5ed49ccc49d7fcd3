#include "toolkit/facts/ServiceFacts.h"

#include "as/IHiddenParameter.h"
#include "as/IMapping.h"
#include "as/IOperation.h"
#include "as/IParameter.h"
#include "as/IProperty.h"
#include "toolkit/text/Words.h"
#include "toolkit/walk/FieldWalk.h"

namespace as::toolkit {

namespace {

std::vector<AttributeFacts> attributesOf(const std::vector<Trait>& traits) {
  std::vector<AttributeFacts> attributes;
  attributes.reserve(traits.size());
  for (const Trait& trait : traits) attributes.push_back({trait.attribute, trait.text});
  return attributes;
}

std::string mappingText(as::IMapping& mapping) {
  const std::string subscripts = mapping.getAttributeValue("subscript");
  return mapping.getRawMapping() + (subscripts.empty() ? "" : " as " + subscripts);
}

class Reader {
 public:
  explicit Reader(const FlavourProfile& flavour) : flavour_(flavour) {}

  std::vector<FieldFacts> fieldsOf(as::IList* list) const {
    std::vector<FieldFacts> fields;
    forEachMember<as::IField>(list, [&](as::IField& field) { fields.push_back(factsOf(field)); });
    return fields;
  }

  OperationFacts factsOf(as::IOperation& operation) const {
    OperationFacts facts;
    facts.name = operation.getName();
    facts.entryPoint = operation.getAttributeValue("entryPoint");
    facts.exitPoints = operation.getExitPoints();
    facts.attributes = attributesOf(flavour_.traitsOf(operation));
    forEachMember<as::IHiddenParameter>(
        operation.getHiddenParameters(), [&](as::IHiddenParameter& hidden) {
          facts.hidden.emplace_back(mappingText(hidden), hidden.getValue());
        });
    facts.parameters = fieldsOf(operation.getParameters());
    for (const Message& message : flavour_.messagesOf(operation)) {
      facts.messages.push_back(
          {message.kind, attributesOf(message.traits), fieldsOf(message.parameters)});
    }
    return facts;
  }

 private:
  FieldFacts factsOf(as::IField& field) const {
    FieldFacts facts;
    facts.name = field.getName();
    auto* const parameter = as::interface_cast<as::IParameter>(&field);
    if (parameter != nullptr && !field.getAttributeValue("byType").empty()) {
      facts.direction = directionWord(parameter->getByType());
    }
    facts.reference = referenceOf(field);
    if (!facts.reference.empty()) {
      facts.isReferenceFound = parameter != nullptr && parameter->getReferenceType() != nullptr;
      return facts;
    }
    facts.occurs = field.getOccurs();
    facts.attributes = attributesOf(flavour_.traitsOf(field));
    facts.hasDataType = !field.getAttributeValue("dataType").empty();
    if (const std::optional<int> type = flavour_.dataTypeOf(field)) {
      const DataType* const known = flavour_.findDataType(*type);
      facts.type = known == nullptr ? field.getAttributeValue("dataType") : known->word;
    }
    forEachMember<as::IMapping>(field.getMappings(), [&](as::IMapping& mapping) {
      facts.mappings.push_back(mappingText(mapping));
    });
    facts.members = fieldsOf(field.getChildren());
    // What an absent type stands for is that of a value.
    if (!facts.members.empty() && !facts.hasDataType) facts.type.clear();
    facts.fieldAttributes = fieldsOf(flavour_.attributesOf(field));
    return facts;
  }

  const FlavourProfile& flavour_;
};

}  // namespace

ServiceFacts::ServiceFacts(as::IService& service)
    : name(service.getName()),
      program(service.getAttributeValue("programName")),
      dictionary(service.getDDFilename()),
      exitProgram(service.getExitProgramName()) {
  const FlavourProfile& profile = profileOf(service);
  flavour = profile.name();
  forEachMember<as::IProperty>(service.getProperties(), [this](as::IProperty& property) {
    properties.emplace_back(property.getName(), property.getValue());
  });
  const Reader reader(profile);
  definitions = reader.fieldsOf(service.getParameterTypeDefs());
  forEachMember<as::IOperation>(service.getOperations(), [&](as::IOperation& operation) {
    operations.push_back(reader.factsOf(operation));
  });
}

}  // namespace as::toolkit

// A service as generators see it.
#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>

#include "as/IList.h"
#include "as/IOperation.h"
#include "as/IParameter.h"
#include "as/IProperty.h"
#include "as/IWSOperation.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/generate/FieldReader.h"
#include "toolkit/generate/ModelBuilder.h"
#include "toolkit/generate/References.h"
#include "toolkit/walk/ItemIndex.h"

namespace as::toolkit::gen {

namespace {

Operation::Style styleOf(int code) {
  if (code == as::IWSOperation::STYLE_RPC) return Operation::Style::rpc;
  return code == as::IWSOperation::STYLE_DOCUMENT ? Operation::Style::document
                                                  : Operation::Style::unsaid;
}

class Builder {
 public:
  Builder(as::IService& service, as::IProgram* program, std::shared_ptr<const ItemIndex> index)
      : service_(service),
        profile_(profileOf(service)),
        fields_(service, model_,
                program == nullptr || index ? std::move(index)
                                            : std::make_shared<const ItemIndex>(*program)) {
    model_.name = service.getName();
    model_.program =
        program == nullptr ? service.getAttributeValue("programName") : program->getName();
    model_.flavour = &flavourOf(service);
  }

  ServiceModel build() {
    forEachMember<as::IProperty>(service_.getProperties(), [this](as::IProperty& property) {
      model_.properties.push_back({property.getName(), property.getValue()});
    });
    // All of them have their numbers before fields refer to them.
    as::IList* const definitions = service_.getParameterTypeDefs();
    forEachMember<as::IParameter>(definitions, [this](as::IParameter& definition) {
      fields_.addDefinition(definition, model_.types.size());
      model_.types.emplace_back().name = definition.getName();
      model_.types.back().isDeclared = true;
    });
    forEachMember<as::IParameter>(
        definitions, [this](as::IParameter& definition) { fields_.readDefinition(definition); });
    forEachMember<as::IOperation>(service_.getOperations(),
                                  [this](as::IOperation& operation) { readOperation(operation); });
    completeReferences(model_);
    return std::move(model_);
  }

 private:
  void readOperation(as::IOperation& operation) {
    const std::size_t number = model_.operations.size();
    Operation read;
    read.name = operation.getName();
    read.entryPoint = operation.getAttributeValue("entryPoint");
    read.exitPoints = operation.getExitPoints();
    if (auto* const web = as::interface_cast<as::IWSOperation>(&operation)) {
      read.style = styleOf(web->getStyle());
      read.isInputEncoded = web->getInputUse() == as::IWSOperation::USE_ENCODED;
      read.isOutputEncoded = web->getOutputUse() == as::IWSOperation::USE_ENCODED;
      read.inputNamespace = web->getInputNamespace();
      read.outputNamespace = web->getOutputNamespace();
    }
    for (const Trait& trait : profile_.traitsOf(operation)) {
      if (trait.key == "transactionType") read.transactionType = trait.text;
    }
    read.parameters = fields_.readParameters(operation.getParameters(), number, "");
    std::unordered_map<std::string, std::size_t> numbers;
    for (const as::toolkit::Message& message : profile_.messagesOf(operation)) {
      Message part;
      part.kind = message.kind;
      part.number = ++numbers[part.kind];
      part.direction = directionOf(message.direction);
      for (const Trait& trait : message.traits) {
        if (trait.key == "namespace") part.namespaceUri = trait.text;
        if (trait.key == "use") part.isEncoded = trait.code == as::IWSOperation::USE_ENCODED;
      }
      part.parameters = fields_.readParameters(message.parameters, number,
                                               part.kind + " " + std::to_string(part.number));
      read.messages.push_back(std::move(part));
    }
    model_.operations.push_back(std::move(read));
  }

  as::IService& service_;
  const FlavourProfile& profile_;
  ServiceModel model_;
  FieldReader fields_;
};

}  // namespace

ServiceModel modelOf(as::IService& service, as::IProgram* program,
                     std::shared_ptr<const ItemIndex> index) {
  return Builder(service, program, std::move(index)).build();
}

}  // namespace as::toolkit::gen

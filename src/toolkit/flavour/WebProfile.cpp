// Web services: how operations travel in SOAP, their headers and faults, and the XML Schema view of
// parameters and fields.
#include <utility>

#include "as/CAgentServicesFactory.h"
#include "as/IWSFault.h"
#include "as/IWSHeader.h"
#include "as/IWSOperation.h"
#include "as/IWSParameter.h"
#include "as/IWebService.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/flavour/Profiles.h"
#include "toolkit/flavour/WebParts.h"
#include "toolkit/lint/WebWalk.h"

namespace as::toolkit {

namespace {

using Kind = Capacity::Kind;
using Web = as::IWSField;
using Operation = as::IWSOperation;

class WebProfile : public FlavourProfile {
 public:
  WebProfile() : FlavourProfile({"ws", "Web", as::IService::TYPE_WS, as::namespaces::ws}) {}

  const Additions& additions() const override {
    static const Additions additions = {
        {"style", "inputUse", "outputUse", "inputNamespace", "outputNamespace"},
        {"namespace", "elementForm", "attributeForm"},
        {"header", "fault"},
        {"fieldAttribute"}};
    return additions;
  }

  bool owns(as::IService& service) const override {
    return as::interface_cast<as::IWebService>(&service) != nullptr;
  }

  std::vector<Trait> traitsOf(as::IOperation& operation) const override {
    auto* const web = as::interface_cast<Operation>(&operation);
    if (web == nullptr) return {};
    return {styleTrait("style", web->getStyle()), useTrait("inputUse", web->getInputUse()),
            useTrait("outputUse", web->getOutputUse()),
            textTrait("inputNamespace", web->getInputNamespace()),
            textTrait("outputNamespace", web->getOutputNamespace())};
  }

  std::vector<Trait> traitsOf(as::IField& field) const override {
    auto* const web = as::interface_cast<Web>(&field);
    if (web == nullptr) return {};
    return {textTrait("namespace", web->getNamespace()),
            formTrait("elementForm", web->getElementForm()),
            formTrait("attributeForm", web->getAttributeForm())};
  }

  std::vector<Message> messagesOf(as::IOperation& operation) const override {
    return webMessagesOf(operation);
  }
  as::IList* attributesOf(as::IField& field) const override { return webAttributesOf(field); }

  const std::vector<DataType>& dataTypes() const override { return types_; }

  std::optional<int> dataTypeOf(as::IField& field) const override {
    auto* const web = as::interface_cast<Web>(&field);
    return web == nullptr ? std::nullopt : std::optional<int>(web->getType());
  }

  const DataType* defaultType() const override { return nullptr; }

  void lint(as::IOperation& operation, const Place& place, LintReport& report) const override {
    if (auto* const web = as::interface_cast<Operation>(&operation)) {
      lintWebOperation(*web, place, report);
    }
  }

  std::unique_ptr<as::IService> newService(std::unique_ptr<as::IProgram> program) const override {
    return newServiceOf(as::CAgentServicesFactory::NewWebService, std::move(program));
  }

  // What is missing of style, uses and namespaces.
  void complete(as::IService& service, as::IOperation& operation) const override {
    auto* const web = as::interface_cast<Operation>(&operation);
    if (web == nullptr) return;
    if (web->getStyle() == unknownCode) web->setStyle(Operation::STYLE_DOCUMENT);
    if (web->getInputUse() == unknownCode) web->setInputUse(Operation::USE_LITERAL);
    if (web->getOutputUse() == unknownCode) web->setOutputUse(Operation::USE_LITERAL);
    const std::string uri = "urn:agentservices:" + service.getAttributeValue("programName");
    if (web->getInputNamespace().empty()) web->setInputNamespace(uri.c_str());
    if (web->getOutputNamespace().empty()) web->setOutputNamespace(uri.c_str());
  }

  void setDataType(as::IField& field, const DataType& type) const override {
    if (auto* const web = as::interface_cast<Web>(&field)) {
      web->setType(static_cast<Web::TYPE>(type.code));
    }
  }

  const DataType* groupType(bool repeats) const override {
    return repeats ? findDataType(Web::WS_ARRAY) : nullptr;
  }

 private:
  const std::vector<DataType> types_ = {
      {Web::WS_BYTE, "byte", integerOf(8)},
      {Web::WS_UNSIGNED_BYTE, "unsignedByte", integerOf(8, false)},
      {Web::WS_SHORT, "short", integerOf(16)},
      {Web::WS_UNSIGNED_SHORT, "unsignedShort", integerOf(16, false)},
      {Web::WS_INT, "int", integerOf(32)},
      {Web::WS_UNSIGNED_INT, "unsignedInt", integerOf(32, false)},
      {Web::WS_LONG, "long", integerOf(64)},
      {Web::WS_UNSIGNED_LONG, "unsignedLong", integerOf(64, false)},
      {Web::WS_INTEGER, "integer", {Kind::decimal, 0, 0, true, 0}},
      {Web::WS_DECIMAL, "decimal", {Kind::decimal}},
      {Web::WS_FLOAT, "float", {Kind::floating, 6}},
      {Web::WS_DOUBLE, "double", {Kind::floating, 15}},
      {Web::WS_STRING, "string", {Kind::text}},
      {Web::WS_ARRAY, "Array", {Kind::group}},
      {Web::WS_XML, "XML", {Kind::open}},
  };
};

}  // namespace

const FlavourProfile& webProfile() {
  static const WebProfile profile;
  return profile;
}

}  // namespace as::toolkit

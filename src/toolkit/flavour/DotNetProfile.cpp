// .NET services: the data types of parameters and fields.
#include <utility>

#include "as/CAgentServicesFactory.h"
#include "as/IDotNET.h"
#include "as/IDotNETParameter.h"
#include "as/IWebService.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/flavour/Profiles.h"
#include "toolkit/flavour/WebParts.h"

namespace as::toolkit {

namespace {

using Kind = Capacity::Kind;
using Net = as::IDotNETField;

class DotNetProfile : public FlavourProfile {
 public:
  DotNetProfile()
      : FlavourProfile({"dotnet", ".NET", as::IService::TYPE_DOTNET, as::namespaces::dotnet}) {}

  const Additions& additions() const override {
    static const Additions additions;
    return additions;
  }

  // New .NET services stand in the namespace of Web services and are read back as such; their
  // "implementation" tells them apart.
  bool owns(as::IService& service) const override {
    return as::interface_cast<as::IDotNET>(&service) != nullptr ||
           (as::interface_cast<as::IWebService>(&service) != nullptr &&
            service.getImplementation() == flavour().implementation);
  }

  // What one in the namespace of Web services may hold beside.
  std::vector<Message> messagesOf(as::IOperation& operation) const override {
    return webMessagesOf(operation);
  }
  as::IList* attributesOf(as::IField& field) const override { return webAttributesOf(field); }

  const std::vector<DataType>& dataTypes() const override { return types_; }

  std::optional<int> dataTypeOf(as::IField& field) const override {
    if (auto* const net = as::interface_cast<Net>(&field)) return net->getType();
    // One that was read back as a Web service's: the same rules, applied to the text. Definitions
    // that refer to each other end nowhere.
    as::IElement* source = &field;
    for (int hop = 0; hop < longestChain; ++hop) {
      auto* const parameter = as::interface_cast<as::IParameter>(source);
      as::IParameter* const next = parameter == nullptr ? nullptr : parameter->getReferenceType();
      if (next == nullptr) break;
      source = next;
    }
    const DataType* const type = findDataType(source->getAttributeValue("dataType"));
    return type == nullptr ? Net::NET_BYTE : type->code;
  }

  const DataType* defaultType() const override { return findDataType(Net::NET_BYTE); }

  std::unique_ptr<as::IService> newService(std::unique_ptr<as::IProgram> program) const override {
    return newServiceOf(as::CAgentServicesFactory::NewDotNETService, std::move(program));
  }

  void setDataType(as::IField& field, const DataType& type) const override {
    if (auto* const net = as::interface_cast<Net>(&field)) {
      net->setType(static_cast<Net::TYPE>(type.code));
    }
  }

 private:
  static constexpr int longestChain = 100;

  const std::vector<DataType> types_ = {
      {Net::NET_BYTE, "Byte", integerOf(8, false)},
      {Net::NET_SBYTE, "SByte", integerOf(8)},
      {Net::NET_INT16, "Int16", integerOf(16)},
      {Net::NET_UINT16, "UInt16", integerOf(16, false)},
      {Net::NET_INT32, "Int32", integerOf(32)},
      {Net::NET_UINT32, "UInt32", integerOf(32, false)},
      {Net::NET_INT64, "Int64", integerOf(64)},
      {Net::NET_UINT64, "UInt64", integerOf(64, false)},
      {Net::NET_DECIMAL, "Decimal", {Kind::decimal, 28}},
      {Net::NET_SINGLE, "Single", {Kind::floating, 6}},
      {Net::NET_DOUBLE, "Double", {Kind::floating, 15}},
      {Net::NET_STRING, "String", {Kind::text}},
  };
};

}  // namespace

const FlavourProfile& dotNetProfile() {
  static const DotNetProfile profile;
  return profile;
}

}  // namespace as::toolkit

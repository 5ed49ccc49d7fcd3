// Java services: the transaction types of operations and the data types of parameters and fields.
#include <utility>

#include "as/CAgentServicesFactory.h"
#include "as/IJavaOperation.h"
#include "as/IJavaParameter.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/flavour/Profiles.h"

namespace as::toolkit {

namespace {

using Kind = Capacity::Kind;
using Java = as::IJavaField;

std::string transactionWord(int type) {
  switch (type) {
    case as::IJavaOperation::TRANS_NOT_SUPPORTED:
      return "notSupported";
    case as::IJavaOperation::TRANS_MANDATORY:
      return "mandatory";
    case as::IJavaOperation::TRANS_REQUIRES:
      return "requires";
    case as::IJavaOperation::TRANS_REQUIRES_NEW:
      return "requiresNew";
    case as::IJavaOperation::TRANS_SUPPORTS:
      return "supports";
    default:
      return "never";
  }
}

class JavaProfile : public FlavourProfile {
 public:
  JavaProfile() : FlavourProfile({"java", "Java", as::IService::TYPE_JAVA, as::namespaces::java}) {}

  const Additions& additions() const override {
    static const Additions additions = {{"transactionType"}, {}, {}, {}};
    return additions;
  }

  bool owns(as::IService& service) const override {
    as::IElement* const operation = service.getOperations()->getItem(0);
    return as::interface_cast<as::IJavaOperation>(operation) != nullptr ||
           as::interface_cast<as::IJavaField>(firstParameterOf(service)) != nullptr;
  }

  std::vector<Trait> traitsOf(as::IOperation& operation) const override {
    auto* const java = as::interface_cast<as::IJavaOperation>(&operation);
    if (java == nullptr) return {};
    const int type = java->getTransactionType();
    return {{"transactionType", "transactionType", type, transactionWord(type)}};
  }
  using FlavourProfile::traitsOf;

  const std::vector<DataType>& dataTypes() const override { return types_; }

  std::optional<int> dataTypeOf(as::IField& field) const override {
    auto* const java = as::interface_cast<as::IJavaField>(&field);
    return java == nullptr ? std::nullopt : std::optional<int>(java->getType());
  }

  const DataType* defaultType() const override { return findDataType(Java::JAVA_SHORT); }

  std::unique_ptr<as::IService> newService(std::unique_ptr<as::IProgram> program) const override {
    return newServiceOf(as::CAgentServicesFactory::NewJavaService, std::move(program));
  }

  void complete(as::IService& /*service*/, as::IOperation& operation) const override {
    auto* const java = as::interface_cast<as::IJavaOperation>(&operation);
    if (java == nullptr || !operation.getAttributeValue("transactionType").empty()) return;
    java->setTransactionType(as::IJavaOperation::TRANS_REQUIRES);
  }

  void setDataType(as::IField& field, const DataType& type) const override {
    if (auto* const java = as::interface_cast<as::IJavaField>(&field)) {
      java->setType(static_cast<Java::TYPE>(type.code));
    }
  }

 private:
  // Integers, small ones first: what holds an item is found by going from the first on.
  const std::vector<DataType> types_ = {
      {Java::JAVA_BYTE, "byte", integerOf(8)},
      {Java::JAVA_SHORT, "short", integerOf(16)},
      {Java::JAVA_INT, "int", integerOf(32)},
      {Java::JAVA_LONG, "long", integerOf(64)},
      {Java::JAVA_BIG_INTEGER, "BigInteger", {Kind::decimal, 0, 0, true, 0}},
      {Java::JAVA_BIG_DECIMAL, "BigDecimal", {Kind::decimal}},
      {Java::JAVA_FLOAT, "float", {Kind::floating, 6}},
      {Java::JAVA_DOUBLE, "double", {Kind::floating, 15}},
      {Java::JAVA_STRING, "String", {Kind::text}},
      {Java::JAVA_BYTE_ARRAY, "byteArray", {Kind::bytes}},
  };
};

}  // namespace

const FlavourProfile& javaProfile() {
  static const JavaProfile profile;
  return profile;
}

}  // namespace as::toolkit

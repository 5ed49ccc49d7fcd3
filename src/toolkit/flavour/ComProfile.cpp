// COM services: the data types of parameters and fields, and the parameter that is the result.
#include <utility>

#include "as/CAgentServicesFactory.h"
#include "as/ICOMParameter.h"
#include "as/IDotNET.h"
#include "as/IJavaOperation.h"
#include "as/IWebService.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/flavour/Profiles.h"

namespace as::toolkit {

namespace {

using Kind = Capacity::Kind;
using Com = as::ICOMField;

class ComProfile : public FlavourProfile {
 public:
  ComProfile() : FlavourProfile({"com", "COM", as::IService::TYPE_COM, as::namespaces::com}) {}

  const Additions& additions() const override {
    static const Additions additions = {{}, {"returnParameter"}, {}, {}};
    return additions;
  }

  bool owns(as::IService& service) const override {
    if (as::IParameter* const parameter = firstParameterOf(service)) {
      return as::interface_cast<Com>(parameter) != nullptr;
    }
    // Services and operations are plain ones: they are what those of the others are not.
    as::IElement* const operation = service.getOperations()->getItem(0);
    return operation != nullptr && as::interface_cast<as::IWebService>(&service) == nullptr &&
           as::interface_cast<as::IDotNET>(&service) == nullptr &&
           as::interface_cast<as::IJavaOperation>(operation) == nullptr;
  }

  std::vector<Trait> traitsOf(as::IField& field) const override {
    auto* const com = as::interface_cast<as::ICOMParameter>(&field);
    if (com == nullptr) return {};
    const bool isReturned = com->isReturnParameter();
    return {{"returnParameter", "returnParameter", isReturned ? 1 : 0, isReturned ? "yes" : "no"}};
  }
  using FlavourProfile::traitsOf;

  const std::vector<DataType>& dataTypes() const override { return types_; }

  std::optional<int> dataTypeOf(as::IField& field) const override {
    auto* const com = as::interface_cast<Com>(&field);
    return com == nullptr ? std::nullopt : std::optional<int>(com->getType());
  }

  const DataType* defaultType() const override { return findDataType(Com::COM_OBJECT); }

  // "object" is written for objects, but it reads as any other unknown word: as text.
  const DataType* typeReadAs(const std::string& word) const override {
    return FlavourProfile::typeReadAs(word == "object" ? "string" : word);
  }

  std::unique_ptr<as::IService> newService(std::unique_ptr<as::IProgram> program) const override {
    return newServiceOf(as::CAgentServicesFactory::NewCOMService, std::move(program));
  }

  void setDataType(as::IField& field, const DataType& type) const override {
    if (auto* const com = as::interface_cast<Com>(&field)) {
      com->setType(static_cast<Com::TYPE>(type.code));
    }
  }

  void markReturned(as::IField& field) const override {
    if (auto* const com = as::interface_cast<as::ICOMParameter>(&field)) {
      com->setReturnParameter(true);
    }
  }

 private:
  // A byte has no sign, an int and a long are of one size, and a currency is a whole number of
  // 64 bits that counts ten-thousandths.
  const std::vector<DataType> types_ = {
      {Com::COM_BYTE, "byte", integerOf(8, false)},
      {Com::COM_SHORT, "short", integerOf(16)},
      {Com::COM_INT, "int", integerOf(32)},
      {Com::COM_LONG, "long", integerOf(32)},
      {Com::COM_CURRENCY, "currency", {Kind::decimal, 0, 0, true, 4, 14}},
      {Com::COM_FLOAT, "float", {Kind::floating, 6}},
      {Com::COM_DOUBLE, "double", {Kind::floating, 15}},
      {Com::COM_STRING, "string", {Kind::text}},
      {Com::COM_DATE, "date", {Kind::open}},
      {Com::COM_OBJECT, "object", {Kind::open}},
  };
};

}  // namespace

const FlavourProfile& comProfile() {
  static const ComProfile profile;
  return profile;
}

}  // namespace as::toolkit

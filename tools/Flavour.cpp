#include "Flavour.h"

#include <algorithm>

#include "Words.h"

namespace {

class PlainFlavour : public Flavour {
 public:
  std::string name() const override { return "plain"; }
  int implementation() const override { return as::IService::TYPE_WS; }
  bool owns(as::IService& /*service*/) const override { return true; }
  std::vector<FlavourCode> operationCodes(as::IOperation& /*operation*/) const override {
    return {};
  }
  const std::vector<DataType>& dataTypes() const override { return none_; }
  std::optional<int> dataTypeOf(as::IField& /*field*/) const override { return std::nullopt; }

 private:
  std::vector<DataType> none_;
};

}  // namespace

Flavour::~Flavour() = default;

const DataType* Flavour::findDataType(int code) const {
  const std::vector<DataType>& types = dataTypes();
  const auto found = std::find_if(types.begin(), types.end(),
                                  [code](const DataType& type) { return type.code == code; });
  return found == types.end() ? nullptr : &*found;
}

const DataType* Flavour::bestTypeFor(as::IDataItem& item) const {
  const DataType* best = nullptr;
  for (const DataType& type : dataTypes()) {
    if (!misfit(type.capacity, item).empty()) continue;
    if (best == nullptr) best = &type;
    // Decimals hold floating-point numbers, but those are what the item means.
    const bool isDecimal = best->capacity.kind == Capacity::Kind::decimal;
    if (isDecimal && isFloating(item) && type.capacity.kind == Capacity::Kind::floating) {
      best = &type;
    }
  }
  return best;
}

const Flavour& flavourOf(as::IService& service) {
  static const PlainFlavour plain;
  for (const Flavour* flavour : {&javaFlavour()}) {
    if (flavour->owns(service)) return *flavour;
  }
  return plain;
}

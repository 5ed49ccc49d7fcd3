#include "toolkit/generate/ShapeHashes.h"

#include <functional>
#include <string>

namespace as::toolkit::gen {

namespace {

class Hash {
 public:
  template <class Value>
  void add(const Value& value) {
    // Most numbers are small: they are spread, and what was added in front is moved.
    constexpr std::size_t spread = 0x9E3779B9U;
    value_ ^= std::hash<Value>()(value) + spread + (value_ << 6U) + (value_ >> 2U);
  }

  std::size_t value() const { return value_; }

 private:
  std::size_t value_ = 0;
};

// What Item::isLike() compares.
void add(const Item& item, Hash& hash) {
  hash.add(item.kind);
  hash.add(item.isSigned);
  for (const int number :
       {item.digits, item.scale, item.bits, item.floatingDigits, item.characters, item.bytes}) {
    hash.add(number);
  }
}

}  // namespace

// What stands in a type comes behind it.
ShapeHashes::ShapeHashes(const ServiceModel& model) : model_(model), types_(model.types.size()) {
  for (std::size_t i = types_.size(); i > 0; --i) types_[i - 1] = of(model.types[i - 1]);
}

// What areOfOneShape() compares.
std::size_t ShapeHashes::of(const Field& field) const {
  Hash hash;
  hash.add(field.reference);
  if (field.reference != none) return hash.value();
  hash.add(field.dataType);
  hash.add(field.elementForm);
  hash.add(field.attributeForm);
  const Item* const item = model_.itemOf(field);
  if (item != nullptr) add(*item, hash);
  if (field.structure != none) hash.add(types_[field.structure]);
  return hash.value();
}

std::size_t ShapeHashes::of(const Type& type) const {
  Hash hash;
  for (const std::vector<Field>* const fields : {&type.fields, &type.attributes}) {
    hash.add(fields->size());
    for (const Field& field : *fields) {
      hash.add(field.name);
      hash.add(field.occurs);
      hash.add(field.least);
      hash.add(of(field));
    }
  }
  return hash.value();
}

}  // namespace as::toolkit::gen

#include "Capacity.h"

#include <cstdlib>

#include "Words.h"
#include "as/INumeric.h"
#include "as/INumericEdited.h"

namespace {

using Kind = Capacity::Kind;

// What is to be held of a number.
struct Number {
  int digits = 0;  // 0 when unknown.
  int fraction = 0;
  int bits = 0;  // Of a binary item that uses its bytes to the full; 0 for others.
  bool isSigned = false;
  int floatingBytes = 0;  // Of a floating-point number; 0 for others.
};

Number numberIn(as::INumeric& item) {
  Number number;
  number.digits = item.getDigits();
  number.fraction = item.getAlignment();
  number.isSigned = item.getSign() != as::INumeric::SIGN_NONE;
  const int usage = item.getUsage();
  if (usage == as::INumeric::USAGE_COMP_1) {
    number.floatingBytes = 4;
  } else if (usage == as::INumeric::USAGE_COMP_2 || usage == as::INumeric::USAGE_EXTERNAL_FLOAT) {
    number.floatingBytes = 8;
  } else if (usage == as::INumeric::USAGE_COMP_5 || usage == as::INumeric::USAGE_COMP_X) {
    // These are not cut to the digits of their picture.
    number.bits = 8 * item.getLength();
  }
  return number;
}

std::string count(int number, const char* what) {
  return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

std::string misfit(const Capacity& capacity, const Number& number) {
  if (number.floatingBytes > 0) {
    const bool exact = capacity.kind == Kind::decimal && capacity.hasFraction;
    if (exact) return "";
    if (capacity.kind != Kind::floating) return "holds no floating-point numbers";
    return number.floatingBytes > 4 && capacity.digits < 15 ? "is too short for a double" : "";
  }
  const bool isInteger =
      capacity.kind == Kind::integer || (capacity.kind == Kind::decimal && !capacity.hasFraction);
  if (isInteger && number.fraction > 0) {
    return "holds no decimal places, the item has " + std::to_string(number.fraction);
  }
  if (number.isSigned && !capacity.isSigned) return "holds no negative numbers, the item does";
  if (capacity.kind == Kind::integer && capacity.bits > 0 && number.bits > 0) {
    // An unsigned number needs a bit more where one goes to the sign.
    const int needed = number.bits + (capacity.isSigned && !number.isSigned ? 1 : 0);
    if (needed <= capacity.bits) return "";
    return "has " + count(capacity.bits, "bit") + ", the item needs " + std::to_string(needed);
  }
  // Digits behind the last one that is kept count as zeros.
  const int digits = number.fraction < 0 ? number.digits - number.fraction : number.digits;
  if (capacity.digits == 0 || digits <= capacity.digits) return "";
  return "holds " + count(capacity.digits, "digit") + ", the item has " + std::to_string(digits);
}

}  // namespace

std::string misfit(const Capacity& capacity, as::IDataItem& item) {
  if (capacity.kind == Kind::bytes) return "";
  const int type = item.getDataType();
  if (capacity.kind == Kind::text) {
    const bool opaque = type == as::IDataItem::TYPE_POINTER || type == as::IDataItem::TYPE_OBJECT;
    return opaque ? "is text, the item is " + dataTypeWord(type) : "";
  }
  if (auto* const numeric = as::interface_cast<as::INumeric>(&item)) {
    return misfit(capacity, numberIn(*numeric));
  }
  if (auto* const edited = as::interface_cast<as::INumericEdited>(&item)) {
    Number number;
    number.digits = edited->getDigits();
    // No accessor tells it. An absent one reads as 0.
    number.fraction =
        static_cast<int>(std::strtol(item.getAttributeValue("alignment").c_str(), nullptr, 10));
    return misfit(capacity, number);
  }
  if (type == as::IDataItem::TYPE_POINTER || type == as::IDataItem::TYPE_INDEX) {
    const int bits = 8 * item.getLength();
    if (capacity.kind == Kind::decimal ||
        (capacity.kind == Kind::integer && bits <= capacity.bits)) {
      return "";
    }
    return "is too small for an item of " + count(bits, "bit");
  }
  return "is a number, the item is " + dataTypeWord(type);
}

bool isFloating(as::IDataItem& item) {
  auto* const numeric = as::interface_cast<as::INumeric>(&item);
  return numeric != nullptr && numberIn(*numeric).floatingBytes > 0;
}

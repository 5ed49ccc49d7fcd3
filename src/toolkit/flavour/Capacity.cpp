#include "toolkit/flavour/Capacity.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <optional>

#include "as/INumeric.h"
#include "as/INumericEdited.h"
#include "as/toolkit/Storage.h"
#include "toolkit/storage/AnyPicture.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/text/Words.h"

namespace as::toolkit {

namespace {

using Kind = Capacity::Kind;

// What is to be held of a number.
struct Number {
  int digits = 0;  // 0 when unknown.
  int fraction = 0;
  int bits = 0;  // Of a binary item that uses its bytes to the full; 0 for others.
  bool isSigned = false;
  int floatingDigits = 0;  // Of a floating-point number: those that are never lost; 0 for others.
};

// Keeps sums of such numbers within an int; documents may hold any.
int limited(int number) {
  constexpr int most = 1'000'000'000;
  return std::clamp(number, -most, most);
}

Number numberIn(as::INumeric& item) {
  const Usage usage = usageOf(item).value_or(Usage::display);
  const int bytes = item.getLength();
  Number number;
  number.digits = limited(item.getDigits());
  number.fraction = limited(item.getAlignment());
  number.isSigned = item.getSign() != as::INumeric::SIGN_NONE;
  if (isFloating(usage)) {
    // Programs calculate with external ones as with the longer of the others.
    number.floatingDigits = digitsIn(usage == Usage::externalFloat ? Usage::comp2 : usage, bytes);
    return number;
  }
  const bool usesAllBits = isOfAllBits(usage);
  // Of most numbers the document says all there is.
  if (!usesAllBits && (number.digits != 0 || bytes <= 0)) return number;
  // Digits that the bytes do not hold.
  const std::optional<Picture> picture = readAnyPicture(item.getPicture());
  const int scaling = picture ? picture->scaling : 0;
  number.digits = limited(digitsIn(usage, bytes)) + scaling;
  if (usesAllBits && scaling == 0) number.bits = limited(bitsOf(bytes));
  return number;
}

std::string misfit(const Capacity& capacity, const Number& number) {
  if (number.floatingDigits > 0) {
    if (isUnlimited(capacity)) return "";
    if (capacity.kind != Kind::floating) return "holds no floating-point numbers";
    if (capacity.digits < number.floatingDigits) return "is too short for a double";
    if (number.digits <= capacity.digits) return "";
    return "holds " + count(static_cast<std::size_t>(capacity.digits), "digit") +
           ", the item has " + std::to_string(number.digits);
  }
  const int places = capacity.kind == Kind::integer ? 0 : capacity.places;
  if (places >= 0 && number.fraction > places) {
    return "holds " + (places == 0 ? "no" : std::to_string(places)) +
           " decimal places, the item has " + std::to_string(number.fraction);
  }
  if (number.isSigned && !capacity.isSigned) return "holds no negative numbers, the item does";
  if (capacity.kind == Kind::integer && capacity.bits > 0 && number.bits > 0) {
    // An unsigned number needs a bit more where one goes to the sign.
    const int needed = number.bits + (capacity.isSigned && !number.isSigned ? 1 : 0);
    if (needed <= capacity.bits) return "";
    return "has " + count(static_cast<std::size_t>(capacity.bits), "bit") + ", the item needs " +
           std::to_string(needed);
  }
  // Digits behind the last one that is kept count as zeros.
  int digits = number.fraction < 0 ? number.digits - number.fraction : number.digits;
  if (number.bits > 0) digits = std::max(digits, digitsOf(number.bits));
  const int whole = digits - std::max(number.fraction, 0);
  if (capacity.whole > 0 && whole > capacity.whole) {
    return "holds " + count(static_cast<std::size_t>(capacity.whole), "digit") +
           " before the decimal point, the item has " + std::to_string(whole);
  }
  if (capacity.digits == 0 || digits <= capacity.digits) return "";
  return "holds " + count(static_cast<std::size_t>(capacity.digits), "digit") + ", the item has " +
         std::to_string(digits);
}

}  // namespace

bool isObject(as::IDataItem& item) { return usageOf(item) == Usage::objectReference; }

std::string kindOf(as::IDataItem& item) {
  return isObject(item) ? "an object reference" : dataTypeWord(item.getDataType());
}

std::string misfit(const Capacity& capacity, as::IDataItem& item) {
  if (capacity.kind == Kind::open) return "";
  if (isObject(item)) return "is a value, the item is " + kindOf(item);
  if (capacity.kind == Kind::bytes) return "";
  const int type = item.getDataType();
  if (capacity.kind == Kind::group) {
    return type == as::IDataItem::TYPE_GROUP ? "" : "is for groups, the item is " + kindOf(item);
  }
  if (capacity.kind == Kind::text) {
    return type == as::IDataItem::TYPE_POINTER ? "is text, the item is " + kindOf(item) : "";
  }
  if (auto* const numeric = as::interface_cast<as::INumeric>(&item)) {
    return misfit(capacity, numberIn(*numeric));
  }
  if (auto* const edited = as::interface_cast<as::INumericEdited>(&item)) {
    const std::optional<Picture> picture = readAnyPicture(item.getPicture());
    Number number;
    number.digits = limited(edited->getDigits());
    number.isSigned = picture && picture->isSigned;
    // No accessor tells it. An absent one reads as 0.
    number.fraction = limited(
        static_cast<int>(std::strtol(item.getAttributeValue("alignment").c_str(), nullptr, 10)));
    return misfit(capacity, number);
  }
  if (type == as::IDataItem::TYPE_POINTER || type == as::IDataItem::TYPE_INDEX) {
    Number number;
    number.bits = limited(bitsOf(item.getLength()));
    if (misfit(capacity, number).empty()) return "";
    return "is too small for an item of " + count(static_cast<std::size_t>(number.bits), "bit");
  }
  return "is a number, the item is " + kindOf(item);
}

Capacity integerOf(int bits, bool isSigned) {
  // Not all numbers of as many digits as the greatest one has fit in.
  return {Kind::integer, digitsOf(isSigned ? bits - 1 : bits) - 1, bits, isSigned};
}

bool isOfKnownSize(as::IDataItem& item) {
  const int type = item.getDataType();
  if (type == as::IDataItem::TYPE_POINTER || type == as::IDataItem::TYPE_INDEX) {
    return item.getLength() > 0;
  }
  auto* const numeric = as::interface_cast<as::INumeric>(&item);
  if (numeric == nullptr) return true;
  const Number number = numberIn(*numeric);
  return number.floatingDigits > 0 || number.digits > 0 || number.bits > 0;
}

bool isFloating(as::IDataItem& item) {
  const std::optional<Usage> usage = usageOf(item);
  return usage && isFloating(*usage);
}

bool isUnlimited(const Capacity& capacity) {
  return capacity.kind == Kind::decimal && capacity.digits == 0 && capacity.whole == 0 &&
         capacity.places < 0;
}

bool contains(const Capacity& larger, const Capacity& smaller) {
  const auto isNumber = [](const Capacity& capacity) {
    return capacity.kind == Kind::integer || capacity.kind == Kind::floating ||
           capacity.kind == Kind::decimal;
  };
  if (!isNumber(larger) || !isNumber(smaller)) return larger.kind == smaller.kind;
  if (smaller.kind == Kind::floating) {
    return larger.kind == Kind::floating ? larger.digits >= smaller.digits : isUnlimited(larger);
  }
  Number number;
  number.isSigned = smaller.isSigned;
  if (smaller.kind == Kind::integer) {
    const bool isEndless = smaller.bits == 0 && smaller.digits == 0;
    const bool holdsAll =
        larger.kind == Kind::integer
            ? larger.bits == 0
            : larger.kind == Kind::decimal && larger.digits == 0 && larger.whole == 0;
    if (isEndless && !holdsAll) return false;
    number.bits = smaller.bits;
    return misfit(larger, number).empty();
  }
  const int places = std::max(smaller.places, 0);
  number.digits = smaller.digits == 0 ? smaller.whole + places : smaller.digits;
  number.fraction = places;
  const bool endless = smaller.digits == 0 && smaller.whole == 0;
  if (endless && (larger.kind != Kind::decimal || larger.digits > 0 || larger.whole > 0)) {
    return false;
  }
  if (smaller.places < 0 && (larger.kind != Kind::decimal || larger.places >= 0)) return false;
  return misfit(larger, number).empty();
}

}  // namespace as::toolkit

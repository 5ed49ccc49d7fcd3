#include "toolkit/flavour/Capacity.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

#include "as/IAlphanumeric.h"
#include "as/INumeric.h"
#include "as/INumericEdited.h"
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
  int floatingBytes = 0;  // Of a floating-point number; 0 for others.
};

// The decimal digits of the largest number of so many bits.
int digitsOf(int bits) { return static_cast<int>(std::ceil(bits * std::log10(2.0))); }

// How many P a picture has: digits that the item's bytes do not hold.
int scalingPositions(const std::string& picture) {
  int positions = 0;
  for (std::size_t at = 0; (at = picture.find('P', at)) != std::string::npos; ++at) {
    const bool isRepeated = at + 1 < picture.size() && picture[at + 1] == '(';
    positions +=
        isRepeated ? static_cast<int>(std::strtol(picture.c_str() + at + 2, nullptr, 10)) : 1;
  }
  return positions;
}

// The most digits that fit into the bytes of an item of that usage.
int digitsIn(int usage, int bytes) {
  switch (usage) {
    case as::INumeric::USAGE_DISPLAY:
      return bytes;
    case as::INumeric::USAGE_COMP_3:
      return bytes == 0 ? 0 : 2 * bytes - 1;
    case as::INumeric::USAGE_COMP_6:
      return 2 * bytes;
    default:
      return digitsOf(8 * bytes);
  }
}

Number numberIn(as::INumeric& item) {
  Number number;
  number.digits = item.getDigits();
  number.fraction = item.getAlignment();
  number.isSigned = item.getSign() != as::INumeric::SIGN_NONE;
  const int usage = item.getUsage();
  if (usage == as::INumeric::USAGE_COMP_1) {
    number.floatingBytes = 4;
    return number;
  }
  if (usage == as::INumeric::USAGE_COMP_2 || usage == as::INumeric::USAGE_EXTERNAL_FLOAT) {
    number.floatingBytes = 8;
    return number;
  }
  const int scaling = scalingPositions(item.getPicture());
  const int most = digitsIn(usage, item.getLength()) + scaling;
  if (usage == as::INumeric::USAGE_COMP_5 || usage == as::INumeric::USAGE_COMP_X) {
    // These are not cut to the digits of their picture.
    number.digits = most;
    if (scaling == 0) number.bits = 8 * item.getLength();
  } else if (number.digits == 0 && item.getLength() > 0) {
    number.digits = most;
  }
  return number;
}

std::string misfit(const Capacity& capacity, const Number& number) {
  if (number.floatingBytes > 0) {
    if (isUnlimited(capacity)) return "";
    if (capacity.kind != Kind::floating) return "holds no floating-point numbers";
    if (number.floatingBytes > 4 && capacity.digits < 15) return "is too short for a double";
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

bool isObject(as::IDataItem& item) {
  return item.getDataType() == as::IDataItem::TYPE_ALPHANUMERIC &&
         as::interface_cast<as::IAlphanumeric>(&item) == nullptr;
}

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
    Number number;
    number.digits = edited->getDigits();
    const std::string picture = item.getPicture();
    number.isSigned = picture.find_first_of("+-") != std::string::npos ||
                      picture.find("CR") != std::string::npos ||
                      picture.find("DB") != std::string::npos;
    // No accessor tells it. An absent one reads as 0.
    number.fraction =
        static_cast<int>(std::strtol(item.getAttributeValue("alignment").c_str(), nullptr, 10));
    return misfit(capacity, number);
  }
  if (type == as::IDataItem::TYPE_POINTER || type == as::IDataItem::TYPE_INDEX) {
    Number number;
    number.bits = 8 * item.getLength();
    if (misfit(capacity, number).empty()) return "";
    return "is too small for an item of " + count(static_cast<std::size_t>(number.bits), "bit");
  }
  return "is a number, the item is " + kindOf(item);
}

bool isOfKnownSize(as::IDataItem& item) {
  const int type = item.getDataType();
  if (type == as::IDataItem::TYPE_POINTER || type == as::IDataItem::TYPE_INDEX) {
    return item.getLength() > 0;
  }
  auto* const numeric = as::interface_cast<as::INumeric>(&item);
  if (numeric == nullptr) return true;
  const Number number = numberIn(*numeric);
  return number.floatingBytes > 0 || number.digits > 0 || number.bits > 0;
}

bool isFloating(as::IDataItem& item) {
  auto* const numeric = as::interface_cast<as::INumeric>(&item);
  return numeric != nullptr && numberIn(*numeric).floatingBytes > 0;
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

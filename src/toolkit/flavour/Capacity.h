// What a data type of a service can hold, and whether a COBOL item fits into it.
#ifndef TOOLKIT_FLAVOUR_CAPACITY_H_
#define TOOLKIT_FLAVOUR_CAPACITY_H_

#include <string>

namespace as {
class IDataItem;
}

namespace as::toolkit {

struct Capacity {
  // A group type is for groups only. An open type holds what its user makes of it: dates, objects.
  enum class Kind { integer, floating, decimal, text, bytes, group, open };

  Kind kind = Kind::open;
  // Of numbers: all numbers of this many decimal digits can be held; 0 for any number of digits.
  int digits = 0;
  // Of integers: the size in bits, the sign's included; 0 for any size.
  int bits = 0;
  bool isSigned = true;
  // Of decimals: the most digits behind the decimal point, -1 for any number of them.
  int places = -1;
  // Of decimals: the most digits in front of the decimal point, 0 for any number of them.
  int whole = 0;
};

// Of an integer of so many bits, the sign's included.
Capacity integerOf(int bits, bool isSigned = true);

// Why `item` cannot be held without loss, to follow the type's name ("holds 4 digits, the item has
// 9"); empty when it can, and when the dictionary tells too little to say.
std::string misfit(const Capacity& capacity, as::IDataItem& item);

// Whether every number can be held.
bool isUnlimited(const Capacity& capacity);

// Whether a type of capacity `larger` holds all that one of capacity `smaller` can hold.
bool contains(const Capacity& larger, const Capacity& smaller);

// Whether `item` is an object reference. Its data type is that of an alphanumeric item, but it has
// no such interface.
bool isObject(as::IDataItem& item);

// What `item` is, to follow "the item is".
std::string kindOf(as::IDataItem& item);

// Whether the dictionary tells how large the numbers in `item` may be; true for what is no number.
bool isOfKnownSize(as::IDataItem& item);

// Whether `item` is a floating-point number.
bool isFloating(as::IDataItem& item);

}  // namespace as::toolkit

#endif  // TOOLKIT_FLAVOUR_CAPACITY_H_

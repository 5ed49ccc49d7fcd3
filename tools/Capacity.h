// What a data type of a service can hold, and whether a COBOL item fits into it.
#ifndef TOOLS_CAPACITY_H_
#define TOOLS_CAPACITY_H_

#include <string>

namespace as {
class IDataItem;
}

struct Capacity {
  enum class Kind { integer, floating, decimal, text, bytes };

  Kind kind;
  // Of numbers: all numbers of this many decimal digits can be held; 0 for any number of digits.
  int digits = 0;
  // Of integers: the size in bits, the sign's included; 0 for any size.
  int bits = 0;
  bool isSigned = true;
  // Of decimals: whether there may be digits behind the decimal point.
  bool hasFraction = true;
};

// Why `item` cannot be held without loss, to follow the type's name ("holds 4 digits, the item has
// 9"); empty when it can, and when the dictionary tells too little to say.
std::string misfit(const Capacity& capacity, as::IDataItem& item);

// Whether `item` is a floating-point number.
bool isFloating(as::IDataItem& item);

#endif  // TOOLS_CAPACITY_H_

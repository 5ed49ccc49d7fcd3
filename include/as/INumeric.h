// A numeric item.
#ifndef AS_INUMERIC_H_
#define AS_INUMERIC_H_

#include "as/IDataItem.h"

namespace as {

class AS_EXPORT INumeric : virtual public IDataItem {
 public:
  // What getUsage() answers.
  enum USAGE : int {
    USAGE_COMP = 0,
    USAGE_COMP_X = 1,
    USAGE_COMP_1 = 2,
    USAGE_COMP_2 = 3,
    USAGE_COMP_3 = 4,
    USAGE_COMP_4 = 5,
    USAGE_COMP_5 = 6,
    USAGE_COMP_6 = 7,
    USAGE_EXTERNAL_FLOAT = 8,
    USAGE_DISPLAY = 9,
  };

  // What getSign() answers.
  enum SIGN : int {
    SIGN_LEADING = 0,
    SIGN_LEADING_SEPARATE = 1,
    SIGN_TRAILING = 2,
    SIGN_TRAILING_SEPARATE = 3,
    SIGN_SIGNED = 4,
    SIGN_NONE = 5,
  };

  ~INumeric() override;
  AS_RTTI(INumeric)

  // Attribute "usage", one of USAGE; USAGE_DISPLAY when absent or of no other known text.
  virtual int getUsage() = 0;

  // Attribute "sign", one of SIGN; SIGN_NONE when absent or of no other known text.
  virtual int getSign() = 0;

  // Attribute "digits": how many digits the item holds.
  virtual int getDigits() = 0;

  // Attribute "alignment": how many of the digits stand after the decimal point.
  virtual int getAlignment() = 0;
};

}  // namespace as

#endif  // AS_INUMERIC_H_

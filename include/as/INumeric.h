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

  // Attribute "usage", one of USAGE, by "comp", "comp-x", "comp-1" to "comp-6" and "externalFloat";
  // USAGE_DISPLAY for any other text ("display"), also when absent.
  virtual int getUsage() = 0;

  // Attribute "sign", one of SIGN: SIGN_LEADING for "li", SIGN_LEADING_SEPARATE for "ls",
  // SIGN_TRAILING for "ti", SIGN_TRAILING_SEPARATE for "ts", and SIGN_SIGNED for "true" (signed,
  // where the usage keeps the sign); SIGN_NONE for any other text ("false"), also when absent.
  virtual int getSign() = 0;

  // Attribute "digits": how many digits the item holds; 0 when absent, as for COMP-1 and COMP-2.
  virtual int getDigits() = 0;

  // Attribute "alignment": how many of the digits stand after the decimal point; 0 when absent.
  virtual int getAlignment() = 0;
};

}  // namespace as

#endif  // AS_INUMERIC_H_

// A numeric edited item: digits laid out for print by its PICTURE.
#ifndef AS_INUMERICEDITED_H_
#define AS_INUMERICEDITED_H_

#include "as/IDataItem.h"

namespace as {

// How many digits stand after the decimal point has no operation here: it is the number in
// getAttributeValue("alignment"), none when that is empty.
class AS_EXPORT INumericEdited : virtual public IDataItem {
 public:
  ~INumericEdited() override;
  AS_RTTI(INumericEdited)

  // Attribute "digits": how many digits the item shows; 0 when absent.
  virtual int getDigits() = 0;

  // Attribute "blankWhenZero": the value zero is shown as blanks; false when absent.
  virtual bool isBlankWhenZero() = 0;
};

}  // namespace as

#endif  // AS_INUMERICEDITED_H_

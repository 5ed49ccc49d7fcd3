// An alphanumeric item.
#ifndef AS_IALPHANUMERIC_H_
#define AS_IALPHANUMERIC_H_

#include "as/IDataItem.h"

namespace as {

class AS_EXPORT IAlphanumeric : virtual public IDataItem {
 public:
  // What getJustification() answers.
  enum JUSTIFICATION : int {
    JUSTIFIED_LEFT = 0,
    JUSTIFIED_RIGHT = 1,
  };

  ~IAlphanumeric() override;
  AS_RTTI(IAlphanumeric)

  // Attribute "justified": JUSTIFIED_RIGHT for "right", else JUSTIFIED_LEFT, also when absent.
  virtual int getJustification() = 0;
};

}  // namespace as

#endif  // AS_IALPHANUMERIC_H_

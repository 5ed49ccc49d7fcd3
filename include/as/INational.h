// A national item: text in a wide character set.
#ifndef AS_INATIONAL_H_
#define AS_INATIONAL_H_

#include "as/IDataItem.h"

namespace as {

class AS_EXPORT INational : virtual public IDataItem {
 public:
  // What getUsage() answers.
  enum USAGE : int {
    USAGE_DISPLAY = 0,
    USAGE_UNICODE = 1,
  };

  ~INational() override;
  AS_RTTI(INational)

  // Attribute "usage": USAGE_UNICODE for "unicode", else USAGE_DISPLAY, also when absent.
  virtual int getUsage() = 0;
};

}  // namespace as

#endif  // AS_INATIONAL_H_

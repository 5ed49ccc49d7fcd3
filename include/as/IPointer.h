// A pointer item (USAGE POINTER).
#ifndef AS_IPOINTER_H_
#define AS_IPOINTER_H_

#include "as/IDataItem.h"

namespace as {

// Has no operations of its own. Pointer items are told by getDataType(); no object of the model
// casts to this interface yet.
class AS_EXPORT IPointer : virtual public IDataItem {
 public:
  ~IPointer() override;
  AS_RTTI(IPointer)
};

}  // namespace as

#endif  // AS_IPOINTER_H_

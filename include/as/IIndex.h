// An index item (USAGE INDEX).
#ifndef AS_IINDEX_H_
#define AS_IINDEX_H_

#include "as/IDataItem.h"

namespace as {

// Has no operations of its own. Index items are told by getDataType(); no object of the model
// casts to this interface yet.
class AS_EXPORT IIndex : virtual public IDataItem {
 public:
  ~IIndex() override;
  AS_RTTI(IIndex)
};

}  // namespace as

#endif  // AS_IINDEX_H_

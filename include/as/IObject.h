// An object reference (USAGE OBJECT REFERENCE).
#ifndef AS_IOBJECT_H_
#define AS_IOBJECT_H_

#include "as/IDataItem.h"

namespace as {

// Has no operations of its own. No object of the model casts to this interface yet: an object
// reference is told from an alphanumeric item, whose data type it answers, by casting to
// as::IAlphanumeric, which it does not do.
class AS_EXPORT IObject : virtual public IDataItem {
 public:
  ~IObject() override;
  AS_RTTI(IObject)
};

}  // namespace as

#endif  // AS_IOBJECT_H_

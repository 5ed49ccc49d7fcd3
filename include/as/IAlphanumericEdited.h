// An alphanumeric edited item. Dictionaries hold none: a document with an "alphanumericEdited"
// element is refused.
#ifndef AS_IALPHANUMERICEDITED_H_
#define AS_IALPHANUMERICEDITED_H_

#include "as/IDataItem.h"

namespace as {

// Has no operations of its own. No object of the model casts to this interface.
class AS_EXPORT IAlphanumericEdited : virtual public IDataItem {
 public:
  ~IAlphanumericEdited() override;
  AS_RTTI(IAlphanumericEdited)
};

}  // namespace as

#endif  // AS_IALPHANUMERICEDITED_H_

// A value in a COM service: a parameter or a field.
#ifndef AS_ICOMFIELD_H_
#define AS_ICOMFIELD_H_

#include "as/IField.h"

namespace as {

class AS_EXPORT ICOMField : virtual public IField {
 public:
  // The data type.
  enum TYPE : int {
    COM_BYTE = 0,
    COM_SHORT = 1,
    COM_INT = 2,
    COM_LONG = 3,
    COM_FLOAT = 4,
    COM_DOUBLE = 5,
    COM_CURRENCY = 6,
    COM_STRING = 7,
    COM_DATE = 8,
    COM_OBJECT = 9,
  };

  ~ICOMField() override;
  AS_RTTI(ICOMField)

  // Attribute "dataType", one of TYPE, of the definition at the end of the chain when there is a
  // reference (see as::IField). The text is the type's name in small letters ("currency").
  // COM_OBJECT when absent or empty, COM_STRING for every other text. The text "object" is not
  // recognised: it reads as COM_STRING.
  virtual TYPE getType() = 0;

  // Writes attribute "dataType" of the element itself, reference or not; "string" for a value that
  // is no enumerator. COM_OBJECT writes "object", so that getType() answers COM_STRING then.
  virtual void setType(TYPE type) = 0;
};

}  // namespace as

#endif  // AS_ICOMFIELD_H_

// A value in a Java service: a parameter or a field.
#ifndef AS_IJAVAFIELD_H_
#define AS_IJAVAFIELD_H_

#include "as/IField.h"

namespace as {

class AS_EXPORT IJavaField : virtual public IField {
 public:
  // The data type.
  enum TYPE : int {
    JAVA_BYTE = 0,
    JAVA_SHORT = 1,
    JAVA_INT = 2,
    JAVA_LONG = 3,
    JAVA_FLOAT = 4,
    JAVA_DOUBLE = 5,
    JAVA_BIG_DECIMAL = 6,
    JAVA_STRING = 7,
    JAVA_BYTE_ARRAY = 8,
    JAVA_BIG_INTEGER = 9,
  };

  ~IJavaField() override;
  AS_RTTI(IJavaField)

  // Attribute "dataType", one of TYPE, of the definition at the end of the chain when there is a
  // reference (see as::IField). The text is Java's own name of the type ("short", "BigDecimal",
  // "String"), "byteArray" for JAVA_BYTE_ARRAY; letter case counts. JAVA_SHORT when absent or of
  // any other text.
  virtual TYPE getType() = 0;

  // Writes attribute "dataType" of the element itself, reference or not; a value that is no
  // enumerator writes nothing.
  virtual void setType(TYPE type) = 0;
};

}  // namespace as

#endif  // AS_IJAVAFIELD_H_

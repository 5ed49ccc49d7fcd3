// A value in a .NET service: a parameter or a field.
#ifndef AS_IDOTNETFIELD_H_
#define AS_IDOTNETFIELD_H_

#include <string>

#include "as/IField.h"

namespace as {

class AS_EXPORT IDotNETField : virtual public IField {
 public:
  // The data type: value types of the .NET framework.
  enum TYPE : int {
    NET_BYTE = 0,
    NET_SBYTE = 1,
    NET_INT16 = 2,
    NET_INT32 = 3,
    NET_INT64 = 4,
    NET_UINT16 = 5,
    NET_UINT32 = 6,
    NET_UINT64 = 7,
    NET_SINGLE = 8,
    NET_DOUBLE = 9,
    NET_DECIMAL = 10,
    NET_STRING = 11,
  };

  ~IDotNETField() override;
  AS_RTTI(IDotNETField)

  // Attribute "dataType", one of TYPE, of the definition at the end of the chain when there is a
  // reference (see as::IField). The text is the framework's own name of the type ("SByte",
  // "UInt16"); letter case counts. NET_BYTE when absent or of any other text.
  virtual TYPE getType() = 0;

  // The framework's name of getType(); never empty.
  virtual std::string getTypeToString() = 0;

  // Writes attribute "dataType" of the element itself, reference or not.
  // REQUIRES: `type` is an enumerator. Else the process is aborted.
  virtual void setType(TYPE type) = 0;
};

}  // namespace as

#endif  // AS_IDOTNETFIELD_H_

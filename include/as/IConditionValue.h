// One value of a condition name (level 88): a constant or a range THRU.
#ifndef AS_ICONDITIONVALUE_H_
#define AS_ICONDITIONVALUE_H_

#include "as/IElement.h"

namespace as {

// The texts are the document's own; nothing is converted or checked, be the condition numeric or
// alphanumeric.
class AS_EXPORT IConditionValue : virtual public IElement {
 public:
  // What getType() answers.
  enum TYPE : int {
    TYPE_CONSTANT = 0,
    TYPE_RANGE = 1,
  };

  ~IConditionValue() override;
  AS_RTTI(IConditionValue)

  // TYPE_CONSTANT for a single value, else TYPE_RANGE.
  virtual int getType() = 0;

  // The single value (attribute "value"); empty for a range.
  virtual std::string getConstant() = 0;

  // The first value of a range (attribute "from"); empty for a constant.
  virtual std::string getFrom() = 0;

  // The last value of a range (attribute "to"); empty for a constant.
  virtual std::string getTo() = 0;
};

}  // namespace as

#endif  // AS_ICONDITIONVALUE_H_

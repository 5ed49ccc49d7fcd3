// A condition name (level 88): the list of the values for which it is true.
#ifndef AS_ICONDITION_H_
#define AS_ICONDITION_H_

#include "as/IList.h"

namespace as {

// The members are as::IConditionValue objects, in document order.
class AS_EXPORT ICondition : virtual public IList {
 public:
  ~ICondition() override;
  AS_RTTI(ICondition)

  // Attribute "name"; empty when absent.
  virtual std::string getName() = 0;
};

}  // namespace as

#endif  // AS_ICONDITION_H_

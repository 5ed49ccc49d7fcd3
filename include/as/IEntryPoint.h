// A place where the program can be called: the list of the parameters it takes.
#ifndef AS_IENTRYPOINT_H_
#define AS_IENTRYPOINT_H_

#include "as/IList.h"

namespace as {

// The members are as::ILinkageItem objects, in the order of the call; the list is empty for an
// entry point without parameters.
class AS_EXPORT IEntryPoint : virtual public IList {
 public:
  ~IEntryPoint() override;
  AS_RTTI(IEntryPoint)

  // Attribute "name"; empty when absent.
  virtual std::string getName() = 0;

  // Attribute "callConvention": the number of the calling convention, handed through as it stands;
  // 0 when absent or no number.
  virtual int getCallConv() = 0;
};

}  // namespace as

#endif  // AS_IENTRYPOINT_H_

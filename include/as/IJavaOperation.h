// An operation of a Java service, with its container transaction attribute.
#ifndef AS_IJAVAOPERATION_H_
#define AS_IJAVAOPERATION_H_

#include "as/IOperation.h"

namespace as {

class AS_EXPORT IJavaOperation : virtual public IOperation {
 public:
  // How the operation takes part in transactions of the container.
  enum TRANS_TYPE : int {
    TRANS_NOT_SUPPORTED = 0,
    TRANS_MANDATORY = 1,
    TRANS_NEVER = 2,
    TRANS_REQUIRES = 3,
    TRANS_REQUIRES_NEW = 4,
    TRANS_SUPPORTS = 5,
  };

  ~IJavaOperation() override;
  AS_RTTI(IJavaOperation)

  // Attribute "transactionType", one of TRANS_TYPE, by "notSupported", "mandatory", "never",
  // "requires", "requiresNew" and "supports"; letter case counts. TRANS_NEVER when absent or of
  // any other text.
  virtual TRANS_TYPE getTransactionType() = 0;

  // Writes attribute "transactionType"; "never" for a value that is no enumerator.
  virtual void setTransactionType(TRANS_TYPE type) = 0;
};

}  // namespace as

#endif  // AS_IJAVAOPERATION_H_

// An operation of a Java service: adds the container's transaction attribute.
#ifndef JAVA_JAVAOPERATIONIMPL_H_
#define JAVA_JAVAOPERATIONIMPL_H_

#include "as/IJavaOperation.h"
#include "service/OperationImpl.h"

class CJavaOperationImpl : virtual public as::IJavaOperation, virtual public COperationImpl {
 public:
  explicit CJavaOperationImpl(xercesc::DOMElement* element)
      : CElementImpl(element), COperationImpl(element) {}
  AS_IDENTITY(CJavaOperationImpl)

  TRANS_TYPE getTransactionType() override;
  void setTransactionType(TRANS_TYPE type) override;
};

#endif  // JAVA_JAVAOPERATIONIMPL_H_

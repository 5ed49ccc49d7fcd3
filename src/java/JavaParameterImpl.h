// A parameter or field of a Java service: adds the Java data type.
#ifndef JAVA_JAVAPARAMETERIMPL_H_
#define JAVA_JAVAPARAMETERIMPL_H_

#include "as/IJavaParameter.h"
#include "service/ParameterImpl.h"

class CJavaParameterImpl : virtual public as::IJavaParameter, virtual public CParameterImpl {
 public:
  explicit CJavaParameterImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CParameterImpl(element) {}
  AS_IDENTITY(CJavaParameterImpl)

  TYPE getType() override;
  void setType(TYPE type) override;
};

#endif  // JAVA_JAVAPARAMETERIMPL_H_

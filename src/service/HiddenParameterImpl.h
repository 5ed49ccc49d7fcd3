// A mapping outside the signature that feeds a fixed value: a "hiddenParameter" element.
#ifndef SERVICE_HIDDENPARAMETERIMPL_H_
#define SERVICE_HIDDENPARAMETERIMPL_H_

#include "as/IHiddenParameter.h"
#include "service/MappingImpl.h"

class CHiddenParameterImpl : virtual public as::IHiddenParameter, virtual public CMappingImpl {
 public:
  explicit CHiddenParameterImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CMappingImpl(element) {}
  AS_IDENTITY(CHiddenParameterImpl)

  std::string getValue() override;
  void setValue(const char* value) override;
};

#endif  // SERVICE_HIDDENPARAMETERIMPL_H_

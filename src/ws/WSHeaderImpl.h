// A SOAP header of an operation: a "header" element.
#ifndef WS_WSHEADERIMPL_H_
#define WS_WSHEADERIMPL_H_

#include "as/IWSHeader.h"
#include "ws/WSMessagePart.h"

class CWSHeaderImpl : public WSMessagePart<as::IWSHeader> {
 public:
  explicit CWSHeaderImpl(xercesc::DOMElement* element)
      : CElementImpl(element), WSMessagePart(element) {}
  AS_IDENTITY(CWSHeaderImpl)

  BY_TYPE getByType() override;
  void setByType(BY_TYPE byType) override;

  // "in" and "out" for BY_IN and BY_OUT, "io" for everything else.
  static const XMLCh* ByTypeToString(BY_TYPE byType);
};

#endif  // WS_WSHEADERIMPL_H_

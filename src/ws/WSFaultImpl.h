// A SOAP fault of an operation: a "fault" element.
#ifndef WS_WSFAULTIMPL_H_
#define WS_WSFAULTIMPL_H_

#include "as/IWSFault.h"
#include "ws/WSMessagePart.h"

class CWSFaultImpl : public WSMessagePart<as::IWSFault> {
 public:
  explicit CWSFaultImpl(xercesc::DOMElement* element)
      : CElementImpl(element), WSMessagePart(element) {}
  AS_IDENTITY(CWSFaultImpl)
};

#endif  // WS_WSFAULTIMPL_H_

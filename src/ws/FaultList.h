// The SOAP faults of an operation.
#ifndef WS_FAULTLIST_H_
#define WS_FAULTLIST_H_

#include "ws/WSSVocabulary.h"
#include "xml/LocalNameFilter.h"
#include "xml/UnboundList.h"

class CFaultNodeFilter : public LocalNameFilter<WSS::fault> {
 public:
  static CFaultNodeFilter filter;
};

class CFaultList : public UnboundList<CFaultNodeFilter> {
 public:
  // Shows the children of `element`, which stays bound to its own wrapper.
  explicit CFaultList(xercesc::DOMElement* element);
  ~CFaultList() override;
  AS_IDENTITY(CFaultList)
};

#endif  // WS_FAULTLIST_H_

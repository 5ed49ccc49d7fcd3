// The SOAP faults of an operation.
#ifndef WS_FAULTLIST_H_
#define WS_FAULTLIST_H_

#include "ws/WSSVocabulary.h"
#include "xml/LocalNameFilter.h"
#include "xml/UnboundList.h"

class CFaultNodeFilter : public NamedNodeFilter<CFaultNodeFilter, WSS::fault> {};

class CFaultList : public UnboundList<CFaultNodeFilter> {
 public:
  using UnboundList::UnboundList;
  AS_IDENTITY(CFaultList)
};

#endif  // WS_FAULTLIST_H_

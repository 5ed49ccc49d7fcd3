// The SOAP headers of an operation.
#ifndef WS_HEADERLIST_H_
#define WS_HEADERLIST_H_

#include "ws/WSSVocabulary.h"
#include "xml/LocalNameFilter.h"
#include "xml/UnboundList.h"

class CHeaderNodeFilter : public NamedNodeFilter<CHeaderNodeFilter, WSS::header> {};

class CHeaderList : public UnboundList<CHeaderNodeFilter> {
 public:
  using UnboundList::UnboundList;
  AS_IDENTITY(CHeaderList)
};

#endif  // WS_HEADERLIST_H_

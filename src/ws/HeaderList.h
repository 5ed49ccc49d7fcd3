// The SOAP headers of an operation.
#ifndef WS_HEADERLIST_H_
#define WS_HEADERLIST_H_

#include "ws/WSSVocabulary.h"
#include "xml/LocalNameFilter.h"
#include "xml/UnboundList.h"

class CHeaderNodeFilter : public LocalNameFilter<WSS::header> {
 public:
  static CHeaderNodeFilter filter;
};

class CHeaderList : public UnboundList<CHeaderNodeFilter> {
 public:
  // Shows the children of `element`, which stays bound to its own wrapper.
  explicit CHeaderList(xercesc::DOMElement* element);
  ~CHeaderList() override;
  AS_IDENTITY(CHeaderList)
};

#endif  // WS_HEADERLIST_H_

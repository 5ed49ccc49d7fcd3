// The values that a parameter or field carries as XML attributes.
#ifndef WS_FIELDATTRIBUTELIST_H_
#define WS_FIELDATTRIBUTELIST_H_

#include "ws/WSSVocabulary.h"
#include "xml/LocalNameFilter.h"
#include "xml/UnboundList.h"

class CFieldAttributeNodeFilter : public LocalNameFilter<WSS::fieldAttribute> {
 public:
  static CFieldAttributeNodeFilter filter;
};

class CFieldAttributeList : public UnboundList<CFieldAttributeNodeFilter> {
 public:
  // Shows the children of `element`, which stays bound to its own wrapper.
  explicit CFieldAttributeList(xercesc::DOMElement* element);
  ~CFieldAttributeList() override;
  AS_IDENTITY(CFieldAttributeList)
};

#endif  // WS_FIELDATTRIBUTELIST_H_

// The values that a parameter or field carries as XML attributes.
#ifndef WS_FIELDATTRIBUTELIST_H_
#define WS_FIELDATTRIBUTELIST_H_

#include "ws/WSSVocabulary.h"
#include "xml/LocalNameFilter.h"
#include "xml/UnboundList.h"

class CFieldAttributeNodeFilter
    : public NamedNodeFilter<CFieldAttributeNodeFilter, WSS::fieldAttribute> {};

class CFieldAttributeList : public UnboundList<CFieldAttributeNodeFilter> {
 public:
  using UnboundList::UnboundList;
  AS_IDENTITY(CFieldAttributeList)
};

#endif  // WS_FIELDATTRIBUTELIST_H_

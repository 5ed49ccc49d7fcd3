// The fields of a parameter or field.
#ifndef SERVICE_FIELDLIST_H_
#define SERVICE_FIELDLIST_H_

#include "service/SSVocabulary.h"
#include "xml/LocalNameFilter.h"
#include "xml/UnboundList.h"

class CFieldNodeFilter : public NamedNodeFilter<CFieldNodeFilter, SS::field> {};

class CFieldList : public UnboundList<CFieldNodeFilter> {
 public:
  using UnboundList::UnboundList;
  AS_IDENTITY(CFieldList)
};

#endif  // SERVICE_FIELDLIST_H_

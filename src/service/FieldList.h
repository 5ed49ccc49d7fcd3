// The fields of a parameter or field.
#ifndef SERVICE_FIELDLIST_H_
#define SERVICE_FIELDLIST_H_

#include "service/SSVocabulary.h"
#include "xml/List.h"
#include "xml/LocalNameFilter.h"

class CFieldNodeFilter : public LocalNameFilter<SS::field> {
 public:
  static CFieldNodeFilter filter;
};

class CFieldList : virtual public CList {
 public:
  explicit CFieldList(xercesc::DOMElement* element);
  ~CFieldList() override;
  AS_IDENTITY(CFieldList)
};

#endif  // SERVICE_FIELDLIST_H_

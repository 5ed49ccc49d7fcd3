// The conditions of a data item.
#ifndef COBOL_CONDITIONLIST_H_
#define COBOL_CONDITIONLIST_H_

#include "cobol/DDVocabulary.h"
#include "xml/List.h"
#include "xml/LocalNameFilter.h"

// Leaves alphanumeric conditions out: they are wrapped, but no data item lists them.
class CConditionNodeFilter : public LocalNameFilter<DD::numericCondition> {
 public:
  static CConditionNodeFilter filter;
};

class CConditionList : virtual public as::IList, virtual public CList {
 public:
  explicit CConditionList(xercesc::DOMElement* element);
  ~CConditionList() override;
  AS_IDENTITY(CConditionList)
};

#endif  // COBOL_CONDITIONLIST_H_

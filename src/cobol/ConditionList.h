// The conditions of a data item.
#ifndef COBOL_CONDITIONLIST_H_
#define COBOL_CONDITIONLIST_H_

#include "cobol/DDVocabulary.h"
#include "xml/LocalNameFilter.h"
#include "xml/UnboundList.h"

// Leaves alphanumeric conditions out: they are wrapped, but no data item lists them.
class CConditionNodeFilter : public NamedNodeFilter<CConditionNodeFilter, DD::numericCondition> {};

class CConditionList : virtual public as::IList, public UnboundList<CConditionNodeFilter> {
 public:
  using UnboundList::UnboundList;
  AS_IDENTITY(CConditionList)
};

#endif  // COBOL_CONDITIONLIST_H_

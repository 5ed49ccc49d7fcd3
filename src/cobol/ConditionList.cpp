#include "cobol/ConditionList.h"

AS_DEFINE_IDENTITY2(CConditionList, as::IList, CList)

CConditionNodeFilter CConditionNodeFilter::filter;

CConditionList::CConditionList(xercesc::DOMElement* element)
    : CElementImpl(element), CList(element) {
  setFilter(&CConditionNodeFilter::filter);
}

CConditionList::~CConditionList() = default;

#include "service/FieldList.h"

AS_DEFINE_IDENTITY1(CFieldList, CList)

CFieldNodeFilter CFieldNodeFilter::filter;

CFieldList::CFieldList(xercesc::DOMElement* element) : CElementImpl(element), CList(element) {
  setFilter(&CFieldNodeFilter::filter);
}

CFieldList::~CFieldList() = default;

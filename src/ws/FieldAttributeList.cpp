#include "ws/FieldAttributeList.h"

AS_DEFINE_IDENTITY1(CFieldAttributeList, CList)

CFieldAttributeNodeFilter CFieldAttributeNodeFilter::filter;

CFieldAttributeList::CFieldAttributeList(xercesc::DOMElement* element)
    : CElementImpl(nullptr), CList(nullptr), UnboundList(element) {}

CFieldAttributeList::~CFieldAttributeList() = default;

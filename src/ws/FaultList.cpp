#include "ws/FaultList.h"

AS_DEFINE_IDENTITY1(CFaultList, CList)

CFaultNodeFilter CFaultNodeFilter::filter;

CFaultList::CFaultList(xercesc::DOMElement* element)
    : CElementImpl(nullptr), CList(nullptr), UnboundList(element) {}

CFaultList::~CFaultList() = default;

#include "ws/HeaderList.h"

AS_DEFINE_IDENTITY1(CHeaderList, CList)

CHeaderNodeFilter CHeaderNodeFilter::filter;

CHeaderList::CHeaderList(xercesc::DOMElement* element)
    : CElementImpl(nullptr), CList(nullptr), UnboundList(element) {}

CHeaderList::~CHeaderList() = default;

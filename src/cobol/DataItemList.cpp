#include "cobol/DataItemList.h"

#include "cobol/DataItemImpl.h"
#include "xml/Assertion.h"

AS_DEFINE_IDENTITY2(CDataItemList, as::IList, CList)

CDataItemList::CDataItemList(xercesc::DOMElement* element, CGroupImpl* group)
    : CElementImpl(group == nullptr ? element : nullptr), group_(group) {
  pointAt(element);
  setFilter(&CDataItemNodeFilter::filter);
}

void CDataItemList::onAddChild(CElementImpl* child) {
  auto* const pDataItem = as::interface_cast<CDataItemImpl>(child);
  AS_ASSERT(pDataItem, "DataItemImpl");
  pDataItem->setParent(group_);
}

#include "cobol/GroupImpl.h"

AS_DEFINE_IDENTITY2(CGroupImpl, as::IGroup, CDataItemImpl)

as::IList* CGroupImpl::getChildren() { return &children_; }

void CGroupImpl::collectChildren() {
  CDataItemImpl::collectChildren();
  children_.addChildrenOf(*this);
}

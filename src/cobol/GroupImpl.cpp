#include "cobol/GroupImpl.h"

#include "cobol/DDVocabulary.h"

AS_DEFINE_IDENTITY2(CGroupImpl, as::IGroup, CDataItemImpl)

CGroupImpl::CGroupImpl(xercesc::DOMElement* element)
    : CElementImpl(element), CDataItemImpl(element), children_(element, this) {}

CGroupImpl::~CGroupImpl() = default;

as::IList* CGroupImpl::getChildren() { return &children_; }

void CGroupImpl::collectChildren() {
  CDataItemImpl::collectChildren();
  children_.setFilter(&CDataItemNodeFilter::filter);
  children_.addChildren();
}

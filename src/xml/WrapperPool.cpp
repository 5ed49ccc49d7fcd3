#include "xml/WrapperPool.h"

#include <utility>

WrapperPool::~WrapperPool() {
  while (newest_ != nullptr) {
    CElementImpl* const wrapper = std::exchange(newest_, newest_->madeBefore_);
    wrapper->~CElementImpl();
  }
}

void WrapperPool::take(CElementImpl* wrapper) noexcept {
  wrapper->madeBefore_ = newest_;
  newest_ = wrapper;
}

void WrapperPool::close(CElementImpl& parent) noexcept {
  if (&parent != newest_) parent.madeBefore_ = newest_;
  const xercesc::DOMElement* const first = parent.element_->getFirstElementChild();
  CElementImpl* before = parent.madeBefore_;
  for (bool isPast = first == nullptr; !isPast; before = before->beforeSubtree_) {
    if (before == nullptr || !before->knowsChildren()) return;
    isPast = before->element_ == first;
  }
  parent.beforeSubtree_ = before;
}

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

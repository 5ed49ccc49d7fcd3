// Tests of the pool that the wrappers of a document live in.
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <vector>

#include "cobol/ConditionValueImpl.h"
#include "support/Dom.h"
#include "xml/WrapperPool.h"

namespace {

using xercesc::DOMElement;

// Counts how many were made and how often each was destroyed.
template <std::size_t Size>
struct Counted : virtual CElementImpl {
  Counted(DOMElement* element, std::vector<int>* destroyed)
      : CElementImpl(element), destroyed_(destroyed), number_(destroyed->size()) {
    destroyed_->push_back(0);
  }
  ~Counted() override { (*destroyed_)[number_]++; }

 private:
  std::vector<int>* destroyed_;
  std::size_t number_;
  std::array<std::byte, Size> weight_ = {};
};

TEST(WrapperPool, BindsWhatItMakes) {
  test::Dom dom("<r/>");
  WrapperPool pool;
  CElementImpl* const made = pool.make<CElementImpl>(dom.root());
  EXPECT_EQ(made->getElement(), dom.root());
  EXPECT_EQ(CElementImpl::wrapperOf(dom.root()), made);
}

TEST(WrapperPool, DestroysEachWrapperOnce) {
  test::Dom dom("<r><a/></r>");
  std::vector<int> destroyed;
  auto pool = std::make_unique<WrapperPool>();
  for (int i = 0; i < 1000; i++) {
    pool->make<Counted<1>>(dom.root(), &destroyed);
    pool->make<Counted<100>>(dom.find(u"a"), &destroyed);
    pool->make<Counted<5000>>(nullptr, &destroyed);
  }
  EXPECT_EQ(destroyed, std::vector<int>(3000, 0));
  pool.reset();
  EXPECT_EQ(destroyed, std::vector<int>(3000, 1));
}

TEST(WrapperPool, LooksAtNoElementInTheEnd) {
  auto dom = std::make_unique<test::Dom>("<r/>");
  std::vector<int> destroyed;
  auto pool = std::make_unique<WrapperPool>();
  pool->make<Counted<1>>(dom->root(), &destroyed);
  dom.reset();
  pool.reset();
  EXPECT_EQ(destroyed, std::vector<int>{1});
}

TEST(WrapperPool, PlacesWrappersAsTheirClassesNeedIt) {
  struct alignas(64) Wide : CElementImpl {
    using CElementImpl::CElementImpl;
  };
  WrapperPool pool;
  for (int i = 0; i < 10; i++) {
    pool.make<CElementImpl>(nullptr);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(pool.make<Wide>(nullptr)) % 64, 0u);
  }
}

// A condition's value tells of its being a wrapper only when asked.
TEST(WrapperPool, TakesWrappersThatHideBeingSuch) {
  test::Dom dom("<numericConstant value='1'/>");
  WrapperPool pool;
  EXPECT_EQ(pool.make<CConditionValueImpl>(dom.root())->getConstant(), "1");
}

TEST(WrapperPool, KnowsNothingOfAWrapperThatCouldNotBeMade) {
  struct Refusing : CElementImpl {
    explicit Refusing(DOMElement* /*element*/) : CElementImpl(nullptr) {
      throw std::runtime_error("refused");
    }
  };
  test::Dom dom("<r/>");
  std::vector<int> destroyed;
  auto pool = std::make_unique<WrapperPool>();
  pool->make<Counted<1>>(nullptr, &destroyed);
  EXPECT_THROW(pool->make<Refusing>(dom.root()), std::runtime_error);
  pool->make<Counted<1>>(nullptr, &destroyed);
  pool.reset();
  EXPECT_EQ(destroyed, (std::vector<int>{1, 1}));
}

}  // namespace

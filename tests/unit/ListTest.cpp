// Tests of the lists and their filters.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "cobol/ConditionImpl.h"
#include "cobol/ConditionList.h"
#include "cobol/DataItemImpl.h"
#include "cobol/DataItemList.h"
#include "cobol/GroupImpl.h"
#include "cobol/NumericImpl.h"
#include "support/Dom.h"
#include "xml/List.h"
#include "xml/WrapperPool.h"

namespace {

using xercesc::DOMElement;
using xercesc::DOMNodeFilter;

// A wrapper that counts itself, bound to its element.
struct Counted : CElementImpl {
  explicit Counted(DOMElement* element) : CElementImpl(element) { alive++; }
  ~Counted() override { alive--; }
  void collectChildren() override { collected++; }
  int collected = 0;
  static int alive;
};
int Counted::alive = 0;

// Wraps every element child of `parent` by a Counted in `pool`.
std::vector<Counted*> wrapChildren(WrapperPool& pool, DOMElement* parent) {
  std::vector<Counted*> wrappers;
  for (DOMElement* child = parent->getFirstElementChild(); child != nullptr;
       child = child->getNextElementSibling()) {
    wrappers.push_back(pool.make<Counted>(child));
  }
  return wrappers;
}

// A list that writes down what it is told.
struct Recording : CList {
  explicit Recording(DOMElement* element) : CElementImpl(element), CList(element) {}
  void onAddChild(CElementImpl* child) override { added.push_back(child); }
  std::vector<CElementImpl*> added;
};

TEST(List, EmptyListIsEmpty) {
  EXPECT_EQ(CList::emptyList.getLength(), 0);
  EXPECT_EQ(CList::emptyList.getItem(0), nullptr);
  EXPECT_EQ(CList::emptyList.getElement(), nullptr);
}

TEST(List, AbsentListsAreTheEmptyOne) {
  test::Dom dom("<r/>");
  CList list(dom.root());
  EXPECT_EQ(CList::orEmpty(nullptr), static_cast<as::IList*>(&CList::emptyList));
  EXPECT_EQ(CList::orEmpty(&list), static_cast<as::IList*>(&list));
}

TEST(List, HoldsEveryChildElementInOrder) {
  test::Dom dom("<r>t<a/><!-- c --><b/><a/></r>");
  WrapperPool pool;
  const std::vector<Counted*> wrappers = wrapChildren(pool, dom.root());
  CList list(dom.root());
  EXPECT_EQ(list.getLength(), 0) << "not filled yet";
  list.collectChildren();
  ASSERT_EQ(list.getLength(), 3);
  for (int i = 0; i < 3; i++) {
    EXPECT_EQ(list.getItem(i), static_cast<as::IElement*>(wrappers[static_cast<std::size_t>(i)]));
    EXPECT_EQ(list.getElement(i), wrappers[static_cast<std::size_t>(i)]);
    EXPECT_EQ(list.getNode(i), wrappers[static_cast<std::size_t>(i)]->getElement());
  }
}

TEST(List, AnIndexOutOfRangeGivesNull) {
  test::Dom dom("<r><a/></r>");
  WrapperPool pool;
  wrapChildren(pool, dom.root());
  CList list(dom.root());
  list.addChildren();
  for (const int index : {-1, 1, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(list.getItem(index), nullptr) << index;
  }
}

TEST(List, TellsEachMemberAndHasItCollect) {
  test::Dom dom("<r><a/><b/></r>");
  WrapperPool pool;
  const std::vector<Counted*> wrappers = wrapChildren(pool, dom.root());
  Recording list(dom.root());
  list.addChildren();
  EXPECT_EQ(list.added, (std::vector<CElementImpl*>{wrappers[0], wrappers[1]}));
  EXPECT_EQ(wrappers[0]->collected, 1);
  EXPECT_EQ(wrappers[1]->collected, 1);
}

TEST(List, LeavesItsMembersToTheirPool) {
  test::Dom dom("<r><a/><b/></r>");
  auto pool = std::make_unique<WrapperPool>();
  wrapChildren(*pool, dom.root());
  auto list = std::make_unique<CList>(dom.root());
  list->addChildren();
  EXPECT_EQ(Counted::alive, 2);
  list.reset();
  EXPECT_EQ(Counted::alive, 2);
  pool.reset();
  EXPECT_EQ(Counted::alive, 0);
}

TEST(List, FillingAgainAppendsEveryMemberAgain) {
  test::Dom dom("<r><a/><b/></r>");
  WrapperPool pool;
  wrapChildren(pool, dom.root());
  CList list(dom.root());
  list.addChildren();
  list.addChildren();
  EXPECT_EQ(list.getLength(), 4);
  EXPECT_EQ(list.getItem(0), list.getItem(2));
}

TEST(List, AddChildAppendsToElementAndList) {
  test::Dom dom("<r><a/></r>");
  WrapperPool pool;
  wrapChildren(pool, dom.root());
  Recording list(dom.root());
  list.addChildren();
  DOMElement* const added = dom.document()->createElementNS(nullptr, u"b");
  auto* const wrapper = pool.make<Counted>(added);
  list.added.clear();
  list.addChild(added);
  EXPECT_EQ(list.getLength(), 2);
  EXPECT_EQ(list.getElement(1), wrapper);
  EXPECT_EQ(dom.root()->getLastElementChild(), added);
  EXPECT_TRUE(list.added.empty()) << "onAddChild is not called";
  EXPECT_EQ(wrapper->collected, 0) << "nor is the child collected";
}

// An element cannot become a child of what stands below it.
TEST(List, AddChildLeavesTheListAsItWasWhenTheElementDoesNotTakeTheChild) {
  test::Dom dom("<r><a><b/></a></r>");
  WrapperPool pool;
  wrapChildren(pool, dom.find(u"a"));
  wrapChildren(pool, dom.root());
  CList list(dom.find(u"b"));
  EXPECT_THROW(list.addChild(dom.root()), xercesc::DOMException);
  EXPECT_EQ(list.getLength(), 0);
  EXPECT_EQ(dom.find(u"b")->getFirstChild(), nullptr);
}

TEST(DataItemNodeFilter, AcceptsTheKindsThatListsHold) {
  const struct {
    const char* name;
    bool accepted;
  } rows[] = {
      {"numeric", true},
      {"alphanumeric", true},
      {"group", true},
      {"numericEdited", true},
      {"pointer", true},
      {"national", true},
      {"cobolObject", true},
      {"index", true},
      {"alphanumericEdited", false},
      {"object", false},
      {"numericCondition", false},
      {"Group", false},
      {"program", false},
  };
  for (const auto& row : rows) {
    test::Dom dom("<" + std::string(row.name) + " xmlns='urn:any'>t</" + row.name + ">");
    EXPECT_EQ(CDataItemNodeFilter::filter.acceptNode(dom.root()),
              row.accepted ? DOMNodeFilter::FILTER_ACCEPT : DOMNodeFilter::FILTER_REJECT)
        << row.name;
    EXPECT_EQ(CDataItemNodeFilter::filter.acceptNode(dom.root()->getFirstChild()),
              DOMNodeFilter::FILTER_REJECT);
  }
}

TEST(ConditionNodeFilter, AcceptsNumericConditionsOnly) {
  const struct {
    const char* name;
    bool accepted;
  } rows[] = {{"numericCondition", true},
              {"alphanumericCondition", false},
              {"numeric", false},
              {"numericConstant", false}};
  for (const auto& row : rows) {
    test::Dom dom("<" + std::string(row.name) + ">t</" + row.name + ">");
    EXPECT_EQ(CConditionNodeFilter::filter.acceptNode(dom.root()),
              row.accepted ? DOMNodeFilter::FILTER_ACCEPT : DOMNodeFilter::FILTER_REJECT)
        << row.name;
    EXPECT_EQ(CConditionNodeFilter::filter.acceptNode(dom.root()->getFirstChild()),
              DOMNodeFilter::FILTER_REJECT);
  }
}

TEST(DataItemList, LeavesAlphanumericEditedItemsOut) {
  test::Dom dom("<dataItems><alphanumeric/><alphanumericEdited/><numeric/></dataItems>");
  CDataItemImpl first(dom.find(u"alphanumeric"));
  const CDataItemImpl unlisted(dom.find(u"alphanumericEdited"));
  CNumericImpl last(dom.find(u"numeric"));
  CDataItemList list(dom.root(), nullptr);
  list.addChildren();
  ASSERT_EQ(list.getLength(), 2);
  EXPECT_EQ(as::interface_cast<CDataItemImpl>(list.getItem(0)), &first);
  EXPECT_EQ(as::interface_cast<CNumericImpl>(list.getItem(1)), &last);
}

TEST(DataItemList, MakesItsGroupTheParent) {
  test::Dom dom("<r><group><numeric/></group><alphanumeric/></r>");
  CNumericImpl numeric(dom.find(u"numeric"));
  CGroupImpl group(dom.find(u"group"));
  group.collectChildren();
  EXPECT_EQ(numeric.getParent(), static_cast<as::IGroup*>(&group));
  CDataItemImpl alone(dom.find(u"alphanumeric"));
  alone.setParent(&group);
  CDataItemList list(dom.find(u"alphanumeric"), nullptr);
  list.onAddChild(&alone);
  EXPECT_EQ(alone.getParent(), nullptr) << "a list of no group clears it";
}

TEST(DataItemListDeathTest, RefusesAnythingButADataItem) {
  test::Dom dom("<dataItems><numeric/></dataItems>");
  const Counted wrong(dom.find(u"numeric"));
  CDataItemList list(dom.root(), nullptr);
  EXPECT_DEATH(list.addChildren(), "DataItemImpl:.*Assertion `pDataItem' failed");
}

TEST(DataItemList, OfAGroupLeavesTheElementToTheGroup) {
  test::Dom dom("<group/>");
  CGroupImpl group(dom.root());
  EXPECT_EQ(CElementImpl::wrapperOf(dom.root()), static_cast<CElementImpl*>(&group));
}

TEST(DataItemList, OfNoGroupIsTheWrapperOfItsElement) {
  test::Dom dom("<dataItems/>");
  CDataItemList list(dom.root(), nullptr);
  EXPECT_EQ(CElementImpl::wrapperOf(dom.root()), static_cast<CElementImpl*>(&list));
}

TEST(ConditionList, LeavesAlphanumericConditionsOut) {
  test::Dom dom("<numeric><numericCondition/><alphanumericCondition/></numeric>");
  const CConditionImpl listed(dom.find(u"numericCondition"));
  const CConditionImpl unlisted(dom.find(u"alphanumericCondition"));
  CNumericImpl item(dom.root());
  item.collectChildren();
  EXPECT_EQ(item.getConditions()->getLength(), 1);
}

}  // namespace

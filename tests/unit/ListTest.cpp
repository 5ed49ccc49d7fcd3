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

// Wraps every element child of `parent` by a Counted.
std::vector<Counted*> wrapChildren(DOMElement* parent) {
  std::vector<Counted*> wrappers;
  for (DOMElement* child = parent->getFirstElementChild(); child != nullptr;
       child = child->getNextElementSibling()) {
    wrappers.push_back(new Counted(child));
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
  const std::vector<Counted*> wrappers = wrapChildren(dom.root());
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
  wrapChildren(dom.root());
  CList list(dom.root());
  list.addChildren();
  for (const int index : {-1, 1, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(list.getItem(index), nullptr) << index;
  }
}

TEST(List, TellsEachMemberAndHasItCollect) {
  test::Dom dom("<r><a/><b/></r>");
  const std::vector<Counted*> wrappers = wrapChildren(dom.root());
  Recording list(dom.root());
  list.addChildren();
  EXPECT_EQ(list.added, (std::vector<CElementImpl*>{wrappers[0], wrappers[1]}));
  EXPECT_EQ(wrappers[0]->collected, 1);
  EXPECT_EQ(wrappers[1]->collected, 1);
}

TEST(List, OwnsItsMembers) {
  test::Dom dom("<r><a/><b/></r>");
  wrapChildren(dom.root());
  auto list = std::make_unique<CList>(dom.root());
  list->addChildren();
  EXPECT_TRUE(list->getElement(0)->isOwned());
  EXPECT_EQ(Counted::alive, 2);
  list.reset();
  EXPECT_EQ(Counted::alive, 0);
}

TEST(List, FillingAgainAppendsEveryMemberAgain) {
  test::Dom dom("<r><a/><b/></r>");
  wrapChildren(dom.root());
  auto list = std::make_unique<CList>(dom.root());
  list->addChildren();
  list->addChildren();
  EXPECT_EQ(list->getLength(), 4);
  EXPECT_EQ(list->getItem(0), list->getItem(2));
  list.reset();
  EXPECT_EQ(Counted::alive, 0) << "each is released once";
}

TEST(List, AddChildAppendsToElementAndList) {
  test::Dom dom("<r><a/></r>");
  wrapChildren(dom.root());
  Recording list(dom.root());
  list.addChildren();
  DOMElement* const added = dom.document()->createElementNS(nullptr, u"b");
  auto* const wrapper = new Counted(added);
  list.added.clear();
  list.addChild(added);
  EXPECT_EQ(list.getLength(), 2);
  EXPECT_EQ(list.getElement(1), wrapper);
  EXPECT_EQ(dom.root()->getLastElementChild(), added);
  EXPECT_TRUE(wrapper->isOwned());
  EXPECT_TRUE(list.added.empty()) << "onAddChild is not called";
  EXPECT_EQ(wrapper->collected, 0) << "nor is the child collected";
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

// Binds a new data item once more when it is complete, as builders do.
template <class Item>
Item* newItem(DOMElement* element) {
  auto* const item = new Item(element);
  CElementImpl::bind(element, as::interface_cast<CElementImpl>(item));
  return item;
}

TEST(DataItemList, LeavesAlphanumericEditedItemsOut) {
  test::Dom dom("<dataItems><alphanumeric/><alphanumericEdited/><numeric/></dataItems>");
  auto* const first = newItem<CDataItemImpl>(dom.find(u"alphanumeric"));
  const std::unique_ptr<CDataItemImpl> unlisted(
      newItem<CDataItemImpl>(dom.find(u"alphanumericEdited")));
  auto* const last = newItem<CNumericImpl>(dom.find(u"numeric"));
  CDataItemList list(dom.root(), nullptr);
  list.addChildren();
  ASSERT_EQ(list.getLength(), 2);
  EXPECT_EQ(as::interface_cast<CDataItemImpl>(list.getItem(0)), first);
  EXPECT_EQ(as::interface_cast<CNumericImpl>(list.getItem(1)), last);
  EXPECT_FALSE(unlisted->isOwned());
}

TEST(DataItemList, MakesItsGroupTheParent) {
  test::Dom dom("<r><group><numeric/></group><alphanumeric/></r>");
  auto* const numeric = newItem<CNumericImpl>(dom.find(u"numeric"));
  const std::unique_ptr<CGroupImpl> group(newItem<CGroupImpl>(dom.find(u"group")));
  group->collectChildren();
  EXPECT_EQ(numeric->getParent(), static_cast<as::IGroup*>(group.get()));
  auto* const alone = newItem<CDataItemImpl>(dom.find(u"alphanumeric"));
  alone->setParent(group.get());
  CDataItemList list(dom.find(u"alphanumeric"), nullptr);
  list.onAddChild(as::interface_cast<CElementImpl>(alone));
  EXPECT_EQ(alone->getParent(), nullptr) << "a list of no group clears it";
  delete alone;
}

TEST(DataItemListDeathTest, RefusesAnythingButADataItem) {
  test::Dom dom("<dataItems><numeric/></dataItems>");
  const Counted wrong(dom.find(u"numeric"));
  CDataItemList list(dom.root(), nullptr);
  EXPECT_DEATH(list.addChildren(), "DataItemImpl:.*Assertion `pDataItem' failed");
}

TEST(DataItemList, EmbeddedListsRebindTheirOwnersElement) {
  test::Dom dom("<group/>");
  CGroupImpl group(dom.root());
  EXPECT_NE(CElementImpl::wrapperOf(dom.root()), static_cast<CElementImpl*>(&group))
      << "which is why builders bind once more";
}

TEST(ConditionList, LeavesAlphanumericConditionsOut) {
  test::Dom dom("<numeric><numericCondition/><alphanumericCondition/></numeric>");
  newItem<CConditionImpl>(dom.find(u"numericCondition"));
  const std::unique_ptr<CConditionImpl> unlisted(
      newItem<CConditionImpl>(dom.find(u"alphanumericCondition")));
  const std::unique_ptr<CNumericImpl> item(newItem<CNumericImpl>(dom.root()));
  item->collectChildren();
  EXPECT_EQ(item->getConditions()->getLength(), 1);
}

}  // namespace

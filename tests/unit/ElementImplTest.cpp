// Tests of the element wrapper.
#include <gtest/gtest.h>

#include <string>

#include "support/Dom.h"
#include "xml/ElementChildren.h"
#include "xml/ElementImpl.h"
#include "xml/LocalNameFilter.h"
#include "xml/Vocabulary.h"

namespace {

using xercesc::DOMElement;
using xercesc::DOMNode;

TEST(ElementImpl, BindsItselfToItsElement) {
  test::Dom dom("<r/>");
  CElementImpl wrapper(dom.root());
  EXPECT_EQ(dom.root()->getUserData(u"ASAPI"), &wrapper);
  EXPECT_EQ(CElementImpl::wrapperOf(dom.root()), &wrapper);
  EXPECT_EQ(wrapper.getElement(), dom.root());
}

TEST(ElementImpl, TheLastWrapperWins) {
  test::Dom dom("<r/>");
  CElementImpl first(dom.root());
  CElementImpl second(dom.root());
  EXPECT_EQ(CElementImpl::wrapperOf(dom.root()), &second);
}

TEST(ElementImpl, DestructorLeavesTheBinding) {
  test::Dom dom("<r/>");
  auto wrapper = std::make_unique<CElementImpl>(dom.root());
  const void* const before = wrapper.get();
  wrapper.reset();
  EXPECT_EQ(dom.root()->getUserData(APIDATA_KEY), before);
}

TEST(ElementImpl, MayWrapNothing) {
  CElementImpl wrapper(nullptr);
  EXPECT_EQ(wrapper.getElement(), nullptr);
  EXPECT_EQ(wrapper.getAttributeValue("x"), "");
  EXPECT_EQ(wrapper.getNamedChild(u"x"), nullptr);
}

TEST(ElementImpl, UserDataIsTheClients) {
  test::Dom dom("<r/>");
  CElementImpl wrapper(dom.root());
  EXPECT_EQ(wrapper.getUserData(), nullptr);
  int mine = 0;
  wrapper.setUserData(&mine);
  EXPECT_EQ(wrapper.getUserData(), &mine);
  EXPECT_EQ(dom.root()->getUserData(APIDATA_KEY), &wrapper) << "not the DOM's user data";
  wrapper.setUserData(nullptr);
  EXPECT_EQ(wrapper.getUserData(), nullptr);
}

TEST(ElementImpl, ReadsAttributes) {
  test::Dom dom("<r a='1' e='' \xC3\xA9='\xE2\x82\xAC' x:p='q' xmlns:x='urn:x'/>");
  CElementImpl wrapper(dom.root());
  EXPECT_EQ(wrapper.getAttributeValue("a"), "1");
  EXPECT_EQ(wrapper.getAttributeValue("e"), "");
  EXPECT_EQ(wrapper.getAttributeValue("x"), "");
  EXPECT_EQ(wrapper.getAttributeValue("A"), "");
  EXPECT_EQ(wrapper.getAttributeValue("\xC3\xA9"), "\xE2\x82\xAC");
  EXPECT_EQ(wrapper.getAttributeValue("x:p"), "q");
  EXPECT_EQ(wrapper.getAttributeValue(""), "");
  EXPECT_EQ(wrapper.getAttributeValue(nullptr), "");
  EXPECT_EQ(wrapper.getAttributeValue("\xFF"), "");
}

TEST(ElementImpl, FindsTheFirstChildOfAName) {
  test::Dom dom("<r>text<!-- c --><a n='1'/><b><c/></b><a n='2'/></r>");
  DOMNode* const found = CElementImpl::getNamedChild(dom.root(), u"a");
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(test::narrow(static_cast<DOMElement*>(found)->getAttribute(u"n")), "1");
  EXPECT_EQ(CElementImpl::getNamedChild(dom.root(), u"A"), nullptr);
  EXPECT_EQ(CElementImpl::getNamedChild(dom.root(), u"c"), nullptr) << "children only";
  EXPECT_EQ(CElementImpl::getNamedChild(nullptr, u"a"), nullptr);
}

TEST(ElementImpl, FindsAChildInAnotherNamespace) {
  test::Dom dom("<r xmlns='urn:r'><x:a xmlns:x='urn:x'/></r>");
  EXPECT_EQ(CElementImpl::getNamedChild(dom.root(), u"a"), dom.find(u"a"));
}

TEST(ElementImpl, NamedChildIsTheWrapper) {
  test::Dom dom("<r><a/><b/></r>");
  CElementImpl root(dom.root());
  CElementImpl child(dom.find(u"a"));
  EXPECT_EQ(root.getNamedChild(u"a"), &child);
  EXPECT_EQ(root.getNamedChild(u"b"), nullptr) << "carries no wrapper";
  EXPECT_EQ(root.getNamedChild(u"c"), nullptr);
}

TEST(ElementImpl, NamedParentIsNeverFound) {
  test::Dom dom("<r><a><b/></a></r>");
  CElementImpl root(dom.root());
  CElementImpl inner(dom.find(u"b"));
  EXPECT_EQ(inner.getNamedParent(u"a"), nullptr);
  EXPECT_EQ(inner.getNamedParent(u"r"), nullptr);
  EXPECT_EQ(CElementImpl::getNamedParent(dom.find(u"b"), u"a"), nullptr);
  EXPECT_EQ(CElementImpl::getNamedParent(nullptr, u"a"), nullptr);
}

TEST(ElementImpl, RootIsReachedThroughTheDocument) {
  test::Dom dom("<r><a/></r>");
  CElementImpl root(dom.root());
  EXPECT_EQ(CElementImpl::rootOf(dom.find(u"a")), nullptr);
  CElementImpl::bind(dom.document(), &root);
  EXPECT_EQ(CElementImpl::rootOf(dom.find(u"a")), &root);
  EXPECT_EQ(CElementImpl::rootOf(nullptr), nullptr);
}

std::string namesIn(const DOMNode* node, const xercesc::DOMNodeFilter* filter) {
  std::string names;
  ElementChildren children(node, filter);
  while (const DOMElement* const child = children.next()) {
    names += test::narrow(child->getLocalName()) + " ";
  }
  EXPECT_EQ(children.next(), nullptr) << "stays at the end";
  return names;
}

constexpr XMLCh a[] = u"a";
constexpr XMLCh b[] = u"b";

TEST(ElementChildren, StepsThroughElementsOnly) {
  test::Dom dom("<r> <a><x/></a><!-- c -->t<?pi?><b/><![CDATA[d]]><c/></r>");
  EXPECT_EQ(namesIn(dom.root(), nullptr), "a b c ");
  EXPECT_EQ(namesIn(dom.find(u"c"), nullptr), "");
  EXPECT_EQ(namesIn(dom.document(), nullptr), "r ");
}

TEST(ElementChildren, LooksThroughEntityReferences) {
  test::Dom dom("<!DOCTYPE r [<!ENTITY e '<a/>t<b/>'><!ENTITY n '&e;<c/>'>]><r>&n;<d/>&e;</r>");
  EXPECT_EQ(namesIn(dom.root(), nullptr), "a b c d a b ");
}

TEST(ElementChildren, FilterRejectsEntityReferencesWithAllBelow) {
  test::Dom dom("<!DOCTYPE r [<!ENTITY e '<a/>'>]><r><b/>&e;<b/></r>");
  const LocalNameFilter<a, b> filter;
  EXPECT_EQ(namesIn(dom.root(), &filter), "b b ");
}

TEST(ElementChildren, FilterRejectsElementsWithAllBelow) {
  test::Dom dom("<r><a/><x><a/></x><b/></r>");
  const LocalNameFilter<a, b> filter;
  EXPECT_EQ(namesIn(dom.root(), &filter), "a b ");
}

// What the parser's own walker does with the same documents.
TEST(ElementChildren, YieldsWhatATreeWalkerYields) {
  const LocalNameFilter<a, b> filter;
  for (const char* text :
       {"<r/>", "<r><a/><b/></r>", "<r>t<a><b/></a>t<x><a/></x><b/>t</r>",
        "<r><x><y><a/></y></x></r>", "<!DOCTYPE r [<!ENTITY e '<a/>t'>]><r>&e;<x/>&e;<b/></r>"}) {
    test::Dom dom(text);
    for (xercesc::DOMNodeFilter* const with :
         {static_cast<xercesc::DOMNodeFilter*>(nullptr),
          const_cast<xercesc::DOMNodeFilter*>(
              static_cast<const xercesc::DOMNodeFilter*>(&filter))}) {
      std::string expected;
      auto* const walker = dom.document()->createTreeWalker(
          dom.root(), xercesc::DOMNodeFilter::SHOW_ELEMENT, with, true);
      for (DOMNode* node = walker->firstChild(); node != nullptr; node = walker->nextSibling()) {
        expected += test::narrow(node->getLocalName()) + " ";
      }
      EXPECT_EQ(namesIn(dom.root(), with), expected) << text;
    }
  }
}

TEST(ElementChildren, ALongRunOfOtherNodesTakesNoStack) {
  std::string text = "<r>";
  for (int i = 0; i < 200000; i++) text += "<!---->";
  test::Dom dom(text + "<a/></r>");
  const LocalNameFilter<a> filter;
  EXPECT_EQ(namesIn(dom.root(), nullptr), "a ");
  EXPECT_EQ(namesIn(dom.root(), &filter), "a ");
}

TEST(LocalNameFilter, AcceptsTheNamesInAnyNamespaceAndRejectsTheRest) {
  test::Dom dom("<a xmlns='urn:x'>t<c/></a>");
  const LocalNameFilter<a, b> filter;
  EXPECT_EQ(filter.acceptNode(dom.root()), xercesc::DOMNodeFilter::FILTER_ACCEPT);
  EXPECT_EQ(filter.acceptNode(dom.find(u"c")), xercesc::DOMNodeFilter::FILTER_REJECT);
  EXPECT_EQ(filter.acceptNode(dom.root()->getFirstChild()), xercesc::DOMNodeFilter::FILTER_REJECT);
  EXPECT_EQ(filter.acceptNode(dom.document()), xercesc::DOMNodeFilter::FILTER_REJECT);
}

}  // namespace

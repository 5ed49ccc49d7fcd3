// Tests of the dictionary builder and of what every handler has in common.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "as/CASInvalidNamespaceException.h"
#include "as/IDataItem.h"
#include "cobol/AlphanumericImpl.h"
#include "cobol/ConditionImpl.h"
#include "cobol/ConditionValueImpl.h"
#include "cobol/DataItemList.h"
#include "cobol/EntryPointImpl.h"
#include "cobol/FDImpl.h"
#include "cobol/GroupImpl.h"
#include "cobol/LinkageItemImpl.h"
#include "cobol/NationalImpl.h"
#include "cobol/NumericEditedImpl.h"
#include "cobol/NumericImpl.h"
#include "cobol/PropertyImpl.h"
#include "cobol/VorDDHandler.h"
#include "frame/DelegatingHandler.h"
#include "support/Dom.h"
#include "support/Wrappers.h"
#include "xml/Vocabulary.h"

namespace {

constexpr char ns[] = "http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd";

using test::buildWrappers;
using test::classAt;

TEST(VorDDHandler, WrapsEachElementByItsLocalName) {
  const struct {
    const char* element;
    const char* wrapper;
  } rows[] = {
      {"properties", "CList"},
      {"property", "CPropertyImpl"},
      {"fileSection", "CList"},
      {"fd", "CFDImpl"},
      {"dataItems", "CDataItemList"},
      {"entryPoints", "CList"},
      {"group", "CGroupImpl"},
      {"numeric", "CNumericImpl"},
      {"alphanumeric", "CAlphanumericImpl"},
      {"numericEdited", "CNumericEditedImpl"},
      {"pointer", "CDataItemImpl"},
      {"national", "CNationalImpl"},
      {"cobolObject", "CDataItemImpl"},
      {"index", "CDataItemImpl"},
      {"numericCondition", "CConditionImpl"},
      {"alphanumericCondition", "CConditionImpl"},
      {"numericRange", "CConditionValueImpl"},
      {"numericConstant", "CConditionValueImpl"},
      {"alphanumericRange", "CConditionValueImpl"},
      {"alphanumericConstant", "CConditionValueImpl"},
      {"entryPoint", "CEntryPointImpl"},
      {"parameter", "CLinkageItemImpl"},
      {"program", "CProgramImpl"},
  };
  for (const auto& row : rows) {
    for (const char* prefix : {"", "x:"}) {
      test::Dom dom("<" + std::string(prefix) + row.element + " xmlns:x='urn:any'/>");
      CVorDDHandler handler;
      EXPECT_TRUE(handler.takes(dom.root())) << row.element;
      handler.newElement(dom.root());
      EXPECT_EQ(classAt(dom.root()), row.wrapper) << row.element;
      EXPECT_EQ(dom.root()->getUserData(u"ASAPI"),
                as::interface_cast<CElementImpl>(CElementImpl::wrapperOf(dom.root())))
          << "bound as the wrapper, not as an embedded list";
    }
  }
}

TEST(VorDDHandlerDeathTest, AnUnknownElementEndsTheProcess) {
  for (const char* name :
       {"alphanumericEdited", "nullConditionValue", "object", "service", "Program", "programs"}) {
    test::Dom dom("<" + std::string(name) + "/>");
    EXPECT_FALSE(CVorDDHandler().takes(dom.root())) << name;
    EXPECT_DEATH(CVorDDHandler().newElement(dom.root()),
                 "VorDDHandler:.*CVorDDHandler::newElement.*Assertion `false' failed")
        << name;
  }
}

TEST(VorDDHandler, AcceptsTheDictionaryNamespaceOnly) {
  CVorDDHandler handler;
  test::Dom right("<anything xmlns='" + std::string(ns) + "'/>");
  EXPECT_NO_THROW(handler.startDocument(right.root()));
  for (const char* other : {"", " xmlns='urn:x'",
                            " xmlns='http://agentservices.example/schema/cobol/v2.0/VORCOBOL.XSD'",
                            " xmlns='http://agentservices.example/schema/java/v2.0/vorjava.xsd'"}) {
    test::Dom dom("<program" + std::string(other) + "/>");
    EXPECT_THROW(handler.startDocument(dom.root()), as::CASInvalidNamespaceException) << other;
  }
}

TEST(VorDDHandler, CompletesTheModel) {
  test::Dom dom(
      "<program name='P'><dataItems><group name='G'><numeric name='N'/></group></dataItems>"
      "</program>");
  CVorDDHandler handler;
  buildWrappers(handler, dom.root());
  EXPECT_EQ(handler.getProgram(), nullptr);
  EXPECT_EQ(CElementImpl::wrapperOf(dom.document()), nullptr);
  handler.endParse(dom.document());
  ASSERT_NE(handler.getProgram(), nullptr);
  EXPECT_EQ(CElementImpl::wrapperOf(dom.document()),
            static_cast<CElementImpl*>(handler.getProgram()));
  EXPECT_EQ(handler.getProgram()->getDataItems()->getLength(), 1);
  const std::unique_ptr<CProgramImpl> program = handler.takeProgram();
  EXPECT_EQ(handler.getProgram(), nullptr) << "it is the caller's now";
}

TEST(VorDDHandler, ListsOfAProgramAreEmptyBeforeTheyAreCollected) {
  test::Dom dom("<program><dataItems><numeric name='N'/></dataItems></program>");
  CVorDDHandler handler;
  buildWrappers(handler, dom.root());
  auto* const program = as::interface_cast<as::IProgram>(CElementImpl::wrapperOf(dom.root()));
  ASSERT_NE(program, nullptr);
  EXPECT_EQ(program->getDataItems(), static_cast<as::IList*>(&CList::emptyList));
}

TEST(VorDDHandler, EveryElementCarriesItsWrapperAfterwards) {
  test::Dom dom(
      "<program><properties><property/></properties><fileSection><fd><dataItems><pointer/>"
      "</dataItems></fd></fileSection><dataItems><group><numeric><numericCondition>"
      "<numericRange/></numericCondition></numeric></group></dataItems><entryPoints><entryPoint>"
      "<parameter/></entryPoint></entryPoints></program>");
  CVorDDHandler handler;
  buildWrappers(handler, dom.root());
  handler.endParse(dom.document());
  const auto program = handler.takeProgram();
  auto* const all = dom.document()->getElementsByTagName(u"*");
  ASSERT_EQ(all->getLength(), 15u);
  for (XMLSize_t i = 0; i < all->getLength(); i++) {
    auto* const element = static_cast<xercesc::DOMElement*>(all->item(i));
    CElementImpl* const wrapper = CElementImpl::wrapperOf(element);
    ASSERT_NE(wrapper, nullptr) << test::narrow(element->getLocalName());
    EXPECT_EQ(wrapper->getElement(), element);
  }
}

TEST(VorDDHandler, ARootThatIsNoProgramGivesNone) {
  test::Dom dom("<dataItems><numeric/></dataItems>");
  CVorDDHandler handler;
  buildWrappers(handler, dom.root());
  handler.endParse(dom.document());
  EXPECT_EQ(handler.getProgram(), nullptr);
  EXPECT_EQ(handler.takeProgram(), nullptr);
}

// Those that no list collects, too: an alphanumeric condition, its value, a second list of data
// items, its item.
TEST(VorDDHandler, EveryWrapperGoesWithTheProgram) {
  test::Dom dom(
      "<program><dataItems><numeric><alphanumericCondition><alphanumericConstant/>"
      "</alphanumericCondition></numeric></dataItems><dataItems><index/></dataItems></program>");
  std::unique_ptr<CProgramImpl> program;
  {
    CVorDDHandler handler;
    buildWrappers(handler, dom.root());
    handler.endParse(dom.document());
    program = handler.takeProgram();
  }
  EXPECT_EQ(classAt(dom.find(u"alphanumericConstant")), "CConditionValueImpl")
      << "the handler has taken none along";
  EXPECT_EQ(classAt(dom.find(u"index")), "CDataItemImpl");
}

TEST(DelegatingHandler, RefusesEveryNamespaceOfNoFlavour) {
  for (const char* other :
       {"", " xmlns='urn:x'",
        " xmlns='http://agentservices.example/schema/service/v2.0/vorservice.xsd'",
        " xmlns='http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd'"}) {
    test::Dom dom("<service" + std::string(other) + "/>");
    CDelegatingHandler handler;
    EXPECT_THROW(handler.startDocument(dom.root()), as::CASInvalidNamespaceException) << other;
    EXPECT_EQ(CElementImpl::wrapperOf(dom.root()), nullptr);
  }
}

TEST(DelegatingHandler, IgnoresEverythingWithoutARoot) {
  test::Dom dom("<service/>");
  CDelegatingHandler handler;
  EXPECT_TRUE(handler.takes(dom.root()));
  handler.startElement(dom.root());
  handler.newElement(dom.root());
  handler.endParse(dom.document());
  EXPECT_EQ(handler.getService(), nullptr);
  EXPECT_EQ(CElementImpl::wrapperOf(dom.root()), nullptr);
  EXPECT_EQ(CElementImpl::wrapperOf(dom.document()), nullptr);
}

}  // namespace

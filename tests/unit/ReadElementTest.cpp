// Tests of the elements of documents that are read: the DOM may do with them what it does with its
// own, and user data are what they are elsewhere.
#include <gtest/gtest.h>

#include <string>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>

#include "as/Globals.h"
#include "support/Dom.h"
#include "xml/DocumentPointer.h"
#include "xml/ReadElement.h"

namespace {

using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::DOMUserDataHandler;

// Counts what it is told.
class Handler : public DOMUserDataHandler {
 public:
  void handle(DOMOperationType /*operation*/, const XMLCh* /*key*/, void* /*data*/,
              const DOMNode* /*from*/, DOMNode* /*to*/) override {
    calls++;
  }
  int calls = 0;
};

class ReadElementTest : public testing::Test {
 protected:
  ReadElement* make() {
    auto* const made =
        new (&impl()) ReadElement(document_.get(), u"urn:a", u"p", u"name", u"p:name");
    document_->getDocumentElement()->appendChild(made);
    return made;
  }

  xercesc::DOMDocument* document() { return document_.get(); }

  // What user data point at.
  int one_ = 1;
  int two_ = 2;

 private:
  xercesc::DOMDocumentImpl& impl() { return static_cast<xercesc::DOMDocumentImpl&>(*document_); }

  DocumentPointer document_{
      xercesc::DOMImplementationRegistry::getDOMImplementation(u"Core")->createDocument(
          nullptr, u"root", nullptr)};
};

TEST_F(ReadElementTest, HasTheNameThatItWasMadeWith) {
  const DOMElement* const element = make();
  EXPECT_EQ(test::narrow(element->getNamespaceURI()), "urn:a");
  EXPECT_EQ(test::narrow(element->getPrefix()), "p");
  EXPECT_EQ(test::narrow(element->getLocalName()), "name");
  EXPECT_EQ(test::narrow(element->getNodeName()), "p:name");
}

TEST_F(ReadElementTest, HasNoUserDataAtFirst) {
  EXPECT_EQ(make()->getUserData(APIDATA_KEY), nullptr);
}

TEST_F(ReadElementTest, KeepsAWrapperUnderItsKey) {
  DOMNode* const element = make();
  EXPECT_EQ(element->setUserData(APIDATA_KEY, &one_, nullptr), nullptr);
  EXPECT_EQ(element->getUserData(APIDATA_KEY), &one_);
}

TEST_F(ReadElementTest, KnowsTheKeyByItsText) {
  DOMNode* const element = make();
  const std::basic_string<XMLCh> key = APIDATA_KEY;
  element->setUserData(key.c_str(), &one_, nullptr);
  EXPECT_EQ(element->getUserData(APIDATA_KEY), &one_);
  EXPECT_EQ(element->getUserData(key.c_str()), &one_);
}

TEST_F(ReadElementTest, AnswersWhatWasThereBefore) {
  DOMNode* const element = make();
  element->setUserData(APIDATA_KEY, &one_, nullptr);
  EXPECT_EQ(element->setUserData(APIDATA_KEY, &two_, nullptr), &one_);
  EXPECT_EQ(element->getUserData(APIDATA_KEY), &two_);
}

TEST_F(ReadElementTest, NullTakesItAway) {
  DOMNode* const element = make();
  element->setUserData(APIDATA_KEY, &one_, nullptr);
  EXPECT_EQ(element->setUserData(APIDATA_KEY, nullptr, nullptr), &one_);
  EXPECT_EQ(element->getUserData(APIDATA_KEY), nullptr);
}

TEST_F(ReadElementTest, OtherKeysAreTheDoms) {
  DOMNode* const element = make();
  element->setUserData(APIDATA_KEY, &one_, nullptr);
  EXPECT_EQ(element->setUserData(u"other", &two_, nullptr), nullptr);
  EXPECT_EQ(element->getUserData(u"other"), &two_);
  EXPECT_EQ(element->getUserData(APIDATA_KEY), &one_);
}

TEST_F(ReadElementTest, AHandlerUnderTheKeyIsCalled) {
  DOMNode* const element = make();
  Handler handler;
  element->setUserData(APIDATA_KEY, &one_, nullptr);
  EXPECT_EQ(element->setUserData(APIDATA_KEY, &two_, &handler), &one_);
  EXPECT_EQ(element->getUserData(APIDATA_KEY), &two_);
  element->cloneNode(false)->release();
  EXPECT_EQ(handler.calls, 1);
  EXPECT_EQ(element->setUserData(APIDATA_KEY, &one_, nullptr), &two_);
  EXPECT_EQ(element->getUserData(APIDATA_KEY), &one_);
  element->setUserData(APIDATA_KEY, nullptr, nullptr);
  EXPECT_EQ(element->getUserData(APIDATA_KEY), nullptr);
}

TEST_F(ReadElementTest, ACloneHasNoUserData) {
  DOMNode* const element = make();
  element->setUserData(APIDATA_KEY, &one_, nullptr);
  DOMNode* const clone = element->cloneNode(true);
  EXPECT_EQ(clone->getUserData(APIDATA_KEY), nullptr);
  EXPECT_EQ(test::narrow(clone->getNodeName()), "p:name");
  EXPECT_TRUE(clone->isEqualNode(element));
  clone->release();
}

TEST_F(ReadElementTest, RenamedItKeepsItsUserData) {
  DOMNode* const element = make();
  element->setUserData(APIDATA_KEY, &one_, nullptr);
  EXPECT_EQ(document()->renameNode(element, u"urn:b", u"q:other"), element);
  EXPECT_EQ(element->getUserData(APIDATA_KEY), &one_);
  EXPECT_EQ(test::narrow(element->getNamespaceURI()), "urn:b");
}

TEST_F(ReadElementTest, ReleasedItsPlaceIsFreeForTheDomsOwn) {
  DOMNode* const element = make();
  element->setUserData(APIDATA_KEY, &one_, nullptr);
  document()->getDocumentElement()->removeChild(element)->release();
  DOMElement* const next = document()->createElementNS(u"urn:c", u"next");
  EXPECT_EQ(next->getUserData(APIDATA_KEY), nullptr);
  EXPECT_EQ(test::narrow(next->getNodeName()), "next");
}

}  // namespace

// Tests of the attributes of documents that are read: the DOM may do with them what it does with
// its own.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>

#include "support/Dom.h"
#include "xml/DocumentPointer.h"
#include "xml/ReadAttribute.h"

namespace {

using xercesc::DOMAttr;
using xercesc::DOMNode;

class ReadAttributeTest : public testing::Test {
 protected:
  ReadAttribute* make(const XMLCh* value) {
    auto* const made = new (&impl(), xercesc::DOMMemoryManager::ATTR_NS_OBJECT)
        ReadAttribute(document_.get(), nullptr, nullptr, u"name", u"name");
    element()->setAttributeNodeNS(made);
    if (value != nullptr) made->setValueFast(value);
    return made;
  }

  xercesc::DOMElement* element() { return document_->getDocumentElement(); }

 private:
  xercesc::DOMDocumentImpl& impl() { return static_cast<xercesc::DOMDocumentImpl&>(*document_); }

  DocumentPointer document_{
      xercesc::DOMImplementationRegistry::getDOMImplementation(u"Core")->createDocument(
          nullptr, u"root", nullptr)};
};

TEST_F(ReadAttributeTest, HoldsOneTextWithTheValue) {
  const DOMAttr* const attribute = make(u"value");
  EXPECT_EQ(test::narrow(attribute->getValue()), "value");
  const DOMNode* const text = attribute->getFirstChild();
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->getNodeType(), DOMNode::TEXT_NODE);
  EXPECT_EQ(test::narrow(text->getNodeValue()), "value");
  EXPECT_EQ(text->getParentNode(), attribute);
  EXPECT_EQ(text->getPreviousSibling(), nullptr);
  EXPECT_EQ(text->getNextSibling(), nullptr);
  EXPECT_EQ(attribute->getLastChild(), text);
  EXPECT_EQ(attribute->getChildNodes()->getLength(), 1U);
  EXPECT_TRUE(attribute->getSpecified());
}

TEST_F(ReadAttributeTest, WithoutAValueHoldsNoText) {
  DOMAttr* const attribute = make(nullptr);
  EXPECT_EQ(attribute->getFirstChild(), nullptr);
  static_cast<ReadAttribute*>(attribute)->setValueFast(nullptr);
  EXPECT_EQ(attribute->getFirstChild(), nullptr);
  EXPECT_EQ(test::narrow(attribute->getValue()), "");
}

TEST_F(ReadAttributeTest, ASecondValueIsAppended) {
  ReadAttribute* const attribute = make(u"one");
  attribute->setValueFast(u"two");
  EXPECT_EQ(test::narrow(attribute->getValue()), "onetwo");
  EXPECT_EQ(attribute->getFirstChild()->getNextSibling(), attribute->getLastChild());
}

TEST_F(ReadAttributeTest, TakesAnotherValue) {
  DOMAttr* const attribute = make(u"one");
  attribute->setValue(u"another");
  EXPECT_EQ(test::narrow(element()->getAttribute(u"name")), "another");
  EXPECT_EQ(attribute->getChildNodes()->getLength(), 1U);
}

TEST_F(ReadAttributeTest, TextsCanBeAppendedAndTakenAway) {
  DOMAttr* const attribute = make(u"one");
  DOMNode* const second = attribute->getOwnerDocument()->createTextNode(u"two");
  attribute->appendChild(second);
  EXPECT_EQ(test::narrow(attribute->getValue()), "onetwo");
  attribute->removeChild(attribute->getFirstChild())->release();
  EXPECT_EQ(test::narrow(attribute->getValue()), "two");
}

TEST_F(ReadAttributeTest, IsClonedWithItsElement) {
  make(u"value");
  DOMNode* const clone = element()->cloneNode(true);
  EXPECT_TRUE(clone->isEqualNode(element()));
  clone->release();
}

TEST_F(ReadAttributeTest, GivesItsMemoryToTheNextOneWhenReleased) {
  make(u"one");
  element()->removeAttributeNode(element()->getAttributeNode(u"name"))->release();
  EXPECT_FALSE(element()->hasAttribute(u"name"));
  make(u"two");
  EXPECT_EQ(test::narrow(element()->getAttribute(u"name")), "two");
}

}  // namespace

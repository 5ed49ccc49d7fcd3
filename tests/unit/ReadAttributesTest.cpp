// Tests of the attributes of elements that are read, before and after the DOM has asked for their
// nodes: it may do with them what it does with its own.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>

#include "support/Dom.h"
#include "xml/AttributeValue.h"
#include "xml/DocumentPointer.h"
#include "xml/ReadElement.h"

namespace {

using test::narrow;
using xercesc::DOMAttr;
using xercesc::DOMElement;
using xercesc::DOMException;
using xercesc::DOMNode;

using Names = std::vector<std::basic_string<XMLCh>>;

class ReadAttributesTest : public testing::Test {
 protected:
  ReadAttributesTest() { document_->getDocumentElement()->appendChild(element_); }

  // Adds them in that order, each with its name in brackets as its value.
  void read(const Names& names) {
    attributes().makeRoom(names.size());
    for (const auto& name : names) {
      attributes().add(pooled(name.c_str()), (u"<" + name + u">").c_str());
    }
  }

  const XMLCh* pooled(const XMLCh* name) {
    return static_cast<xercesc::DOMDocumentImpl&>(*document_).getPooledString(name);
  }
  ReadAttributes& attributes() { return element_->attributes(); }
  // As the DOM's.
  DOMElement& element() { return *element_; }
  xercesc::DOMDocument& document() { return *document_; }
  bool hasNodes() const { return element_->attributes().read().empty(); }

  std::string valueOf(const XMLCh* name) { return narrow(attributes().valueOf(name)); }
  // All attributes of an element, as visitAttributes() tells them.
  static std::string visited(const DOMElement& element) {
    std::string all;
    visitAttributes(element, [&all](const XMLCh* name, const XMLCh* value) {
      all += narrow(name) + "=" + narrow(value) + " ";
    });
    return all;
  }

 private:
  DocumentPointer document_{
      xercesc::DOMImplementationRegistry::getDOMImplementation(u"Core")->createDocument(
          nullptr, u"root", nullptr)};
  ReadElement* element_ = new (static_cast<xercesc::DOMDocumentImpl*>(document_.get()))
      ReadElement(document_.get(), nullptr, u"item");
};

TEST_F(ReadAttributesTest, TellWhatWasRead) {
  read({u"name", u"length", u"line"});
  EXPECT_EQ(valueOf(u"name"), "<name>");
  EXPECT_EQ(valueOf(u"length"), "<length>");
  EXPECT_EQ(valueOf(u"line"), "<line>");
  EXPECT_FALSE(hasNodes());
}

TEST_F(ReadAttributesTest, TellNothingOfOthers) {
  read({u"name", u"line"});
  // Of the same letters at the start, shorter, longer, empty.
  for (const XMLCh* const other : {u"picture", u"linkage", u"lin", u"lines", u"n", u"na", u""}) {
    EXPECT_EQ(valueOf(other), "") << narrow(other);
  }
}

TEST_F(ReadAttributesTest, MayBeNone) {
  read({});
  EXPECT_EQ(valueOf(u"name"), "");
  EXPECT_EQ(element().getAttributes()->getLength(), 0U);
  EXPECT_FALSE(element().hasAttributes());
  EXPECT_EQ(visited(element()), "");
}

// Eight of them have signs.
TEST_F(ReadAttributesTest, MayBeMoreThanThereAreSigns) {
  Names names;
  for (int i = 0; i < 40; i++) {
    // 7 and 40 have no factor in common: every number comes once, in another order.
    const std::string name = "a" + std::to_string(100 + i * 7 % 40);
    names.emplace_back(name.begin(), name.end());
  }
  read(names);
  for (const auto& name : names) {
    EXPECT_EQ(valueOf(name.c_str()), "<" + narrow(name.c_str()) + ">");
  }
  EXPECT_EQ(valueOf(u"a140"), "");
  EXPECT_EQ(attributes().getLength(), 40U);
  EXPECT_EQ(narrow(attributes().item(0)->getNodeName()), "a100");
  EXPECT_EQ(narrow(attributes().item(39)->getNodeName()), "a139");
}

TEST_F(ReadAttributesTest, StandInTheOrderOfNames) {
  read({u"offset", u"name", u"picture", u"length", u"odo"});
  const std::string expected =
      "length=<length> name=<name> odo=<odo> offset=<offset> picture=<picture> ";
  EXPECT_EQ(visited(element()), expected);
  EXPECT_FALSE(hasNodes());
  static_cast<void>(attributes().item(0));
  EXPECT_TRUE(hasNodes());
  EXPECT_EQ(visited(element()), expected);
}

TEST_F(ReadAttributesTest, TheNodesAreTheDoms) {
  read({u"name", u"line"});
  const DOMAttr* const attribute = element().getAttributeNode(u"name");
  ASSERT_NE(attribute, nullptr);
  EXPECT_EQ(narrow(attribute->getName()), "name");
  EXPECT_EQ(narrow(attribute->getLocalName()), "name");
  EXPECT_EQ(attribute->getNamespaceURI(), nullptr);
  EXPECT_EQ(attribute->getPrefix(), nullptr);
  EXPECT_EQ(narrow(attribute->getValue()), "<name>");
  EXPECT_EQ(attribute->getOwnerElement(), &element());
  EXPECT_TRUE(attribute->getSpecified());
  EXPECT_EQ(attribute->getFirstChild()->getNodeType(), DOMNode::TEXT_NODE);
  EXPECT_EQ(element().getAttributeNode(u"name"), attribute);
}

// Whatever the DOM does first with an element that has the attributes "line" and "name", it comes
// upon them.
struct Question {
  const char* name;
  std::function<bool(DOMElement&)> isAnsweredWell;
};

const Question questions[] = {
    {"getAttribute", [](DOMElement& e) { return narrow(e.getAttribute(u"name")) == "<name>"; }},
    {"getAttributeNode", [](DOMElement& e) { return e.getAttributeNode(u"name") != nullptr; }},
    {"getAttributeNodeOfNone",
     [](DOMElement& e) { return e.getAttributeNode(u"picture") == nullptr; }},
    {"getAttributeNS",
     [](DOMElement& e) { return narrow(e.getAttributeNS(nullptr, u"line")) == "<line>"; }},
    {"getAttributeNodeNS",
     [](DOMElement& e) { return e.getAttributeNodeNS(nullptr, u"name") != nullptr; }},
    {"hasAttribute", [](DOMElement& e) { return e.hasAttribute(u"name"); }},
    {"hasAttributeNS", [](DOMElement& e) { return e.hasAttributeNS(nullptr, u"name"); }},
    {"hasAttributes", [](DOMElement& e) { return e.hasAttributes(); }},
    {"getLength", [](DOMElement& e) { return e.getAttributes()->getLength() == 2; }},
    {"item",
     [](DOMElement& e) { return narrow(e.getAttributes()->item(1)->getNodeName()) == "name"; }},
    {"itemBehindTheLast", [](DOMElement& e) { return e.getAttributes()->item(2) == nullptr; }},
    {"getNamedItem",
     [](DOMElement& e) { return e.getAttributes()->getNamedItem(u"line") != nullptr; }},
    {"getNamedItemNS",
     [](DOMElement& e) { return e.getAttributes()->getNamedItemNS(nullptr, u"line") != nullptr; }},
    {"removeNamedItem",
     [](DOMElement& e) {
       DOMNode* const removed = e.getAttributes()->removeNamedItem(u"line");
       const bool isRight = narrow(removed->getNodeValue()) == "<line>";
       removed->release();
       return isRight && e.getAttributes()->getLength() == 1;
     }},
    {"removeNamedItemNS",
     [](DOMElement& e) {
       e.getAttributes()->removeNamedItemNS(nullptr, u"line")->release();
       return e.getAttributes()->getLength() == 1;
     }},
    {"removeAttribute",
     [](DOMElement& e) {
       e.removeAttribute(u"line");
       return !e.hasAttribute(u"line") && e.hasAttribute(u"name");
     }},
    {"removeAttributeNS",
     [](DOMElement& e) {
       e.removeAttributeNS(nullptr, u"line");
       return !e.hasAttribute(u"line") && e.hasAttribute(u"name");
     }},
    {"setAttribute",
     [](DOMElement& e) {
       e.setAttribute(u"line", u"7");
       return narrow(e.getAttribute(u"line")) == "7" && e.getAttributes()->getLength() == 2;
     }},
    {"setAttributeOfNone",
     [](DOMElement& e) {
       e.setAttribute(u"more", u"7");
       return narrow(e.getAttribute(u"more")) == "7" && e.getAttributes()->getLength() == 3;
     }},
    {"setAttributeNS",
     [](DOMElement& e) {
       e.setAttributeNS(nullptr, u"line", u"7");
       return narrow(e.getAttribute(u"line")) == "7" && e.getAttributes()->getLength() == 2;
     }},
    {"setAttributeNode",
     [](DOMElement& e) {
       DOMAttr* const other = e.getOwnerDocument()->createAttribute(u"line");
       other->setValue(u"7");
       DOMAttr* const before = e.setAttributeNode(other);
       const bool isRight = narrow(before->getValue()) == "<line>";
       before->release();
       return isRight && narrow(e.getAttribute(u"line")) == "7";
     }},
    {"setAttributeNodeNS",
     [](DOMElement& e) {
       DOMAttr* const other = e.getOwnerDocument()->createAttributeNS(nullptr, u"line");
       DOMAttr* const before = e.setAttributeNodeNS(other);
       const bool isRight = narrow(before->getValue()) == "<line>";
       before->release();
       return isRight;
     }},
    {"setIdAttribute",
     [](DOMElement& e) {
       e.setIdAttribute(u"name", true);
       return e.getOwnerDocument()->getElementById(u"<name>") == &e;
     }},
    {"cloneNode",
     [](DOMElement& e) {
       const auto* const clone = static_cast<DOMElement*>(e.cloneNode(true));
       return narrow(clone->getAttribute(u"name")) == "<name>" && clone->isEqualNode(&e);
     }},
    {"isEqualNode",
     [](DOMElement& e) {
       DOMElement* const other = e.getOwnerDocument()->createElementNS(nullptr, u"item");
       other->setAttributeNS(nullptr, u"name", u"<name>");
       const bool isDifferent = !e.isEqualNode(other);
       other->setAttributeNS(nullptr, u"line", u"<line>");
       return isDifferent && e.isEqualNode(other) && other->isEqualNode(&e);
     }},
    {"renameNode",
     [](DOMElement& e) {
       e.getOwnerDocument()->renameNode(&e, u"urn:a", u"a:other");
       return narrow(e.getAttribute(u"name")) == "<name>";
     }},
    {"importNode",
     [](DOMElement& e) {
       const DocumentPointer other(
           xercesc::DOMImplementationRegistry::getDOMImplementation(u"Core")->createDocument());
       const auto* const copy = static_cast<DOMElement*>(other->importNode(&e, true));
       return narrow(copy->getAttribute(u"line")) == "<line>";
     }},
    {"normalizeDocument",
     [](DOMElement& e) {
       e.getOwnerDocument()->normalizeDocument();
       return narrow(e.getAttribute(u"line")) == "<line>";
     }},
};

TEST_F(ReadAttributesTest, WhateverTheDomAsksItComesUponThem) {
  for (const Question& question : questions) {
    SCOPED_TRACE(question.name);
    auto* const asked = new (static_cast<xercesc::DOMDocumentImpl*>(&document()))
        ReadElement(&document(), nullptr, u"item");
    document().getDocumentElement()->appendChild(asked);
    asked->attributes().makeRoom(2);
    asked->attributes().add(u"name", u"<name>");
    asked->attributes().add(u"line", u"<line>");
    EXPECT_TRUE(question.isAnsweredWell(*asked));
  }
}

TEST_F(ReadAttributesTest, RemovingWhatIsNotThereIsRefusedAsElsewhere) {
  read({u"name"});
  EXPECT_THROW(attributes().removeNamedItem(u"line"), DOMException);
  EXPECT_THROW(attributes().removeNamedItemNS(nullptr, u"line"), DOMException);
  EXPECT_THROW(attributes().removeNamedItemAt(1), DOMException);
  EXPECT_EQ(attributes().getLength(), 1U);
}

TEST_F(ReadAttributesTest, ValuesAreThoseOfTheNodesOnceThereAreNodes) {
  read({u"name", u"line"});
  element().setAttribute(u"line", u"7");
  EXPECT_EQ(valueOf(u"line"), "7");
  EXPECT_EQ(valueOf(u"name"), "<name>");
  element().removeAttribute(u"name");
  EXPECT_EQ(valueOf(u"name"), "");
  element().setAttribute(u"other", u"8");
  EXPECT_EQ(valueOf(u"other"), "8");
  EXPECT_EQ(visited(element()), "line=7 other=8 ");
}

TEST_F(ReadAttributesTest, EmptyValuesAreThere) {
  attributes().makeRoom(1);
  attributes().add(u"name", u"");
  EXPECT_EQ(visited(element()), "name= ");
  EXPECT_TRUE(element().hasAttribute(u"name"));
  EXPECT_EQ(visited(element()), "name= ");
}

TEST_F(ReadAttributesTest, AreReadOnlyWhenTheDomSaysSo) {
  read({u"name"});
  attributes().setReadOnly(true, true);
  EXPECT_THROW(element().getAttributeNode(u"name")->setValue(u"7"), DOMException);
  attributes().setReadOnly(false, true);
  element().getAttributeNode(u"name")->setValue(u"7");
  EXPECT_EQ(valueOf(u"name"), "7");
}

}  // namespace

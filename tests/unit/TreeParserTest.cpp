// Tests of the tree that is made of a document: it is the one that the DOM parser makes.
#include <gtest/gtest.h>

#include <string>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include "support/Dom.h"
#include "xml/TreeParser.h"

namespace {

using test::narrow;
using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::RefVectorOf;
using xercesc::XercesDOMParser;
using xercesc::XMLAttr;
using xercesc::XMLElementDecl;

// Begins its elements and does nothing else.
class Parser : public TreeParser {
 public:
  void startElement(const XMLElementDecl& declaration, unsigned int uriId, const XMLCh* prefix,
                    const RefVectorOf<XMLAttr>& attributes, XMLSize_t attributeCount, bool isEmpty,
                    bool isRoot) override {
    beginElement(declaration, uriId, prefix, attributes, attributeCount);
    if (isEmpty) endElement(declaration, uriId, isRoot, prefix);
  }
};

struct Document {
  const char* name;
  const char* text;
};

const Document documents[] = {
    {"Root", "<root/>"},
    {"Attributes", "<root b='2' a='1' c=''/>"},
    {"ManyAttributes", "<root i='' h='' g='' f='' e='' d='' c='' b='' a='x' j='' k='' l=''/>"},
    {"Children", "<root><a/><b><c/><d/></b><e/></root>"},
    {"Texts", "<root>one<a>two</a>three<b/>four</root>"},
    {"References", "<root a='&lt;&#65;&amp;'>&lt;&#66;<a/>&amp;</root>"},
    {"Sections", "<root><![CDATA[<]]><a/><![CDATA[one]]>two</root>"},
    {"Comments", "<!--0--><root><!--1--><a/><!--2--><b/>text<!--3--><c/></root><!--4-->"},
    {"Instructions", "<?a?><root><?b c?><a/><?d?><b/></root><?e?>"},
    {"Namespace", "<root xmlns='urn:a' a='1'><a b='2'/></root>"},
    {"Prefixes", "<a:root xmlns:a='urn:a' xmlns:b='urn:b' a:c='1' c='2'><b:a a:b='3'/></a:root>"},
    {"OtherNamespaceInside",
     "<root xmlns='urn:a'><a xmlns='urn:b'><b/></a><c xmlns=''><d/></c><e/></root>"},
    {"XmlAttributes", "<root xml:lang='en' xml:space='preserve'> <a/> </root>"},
    {"Blanks", "<root>\n  <a/>\n  <b>\n    <c/>\n  </b>\n</root>"},
    {"Entities",
     "<!DOCTYPE root [<!ENTITY e '<b c=\"1\"/>text<d/>'>]><root>&e;<a/>&e;more&e;</root>"},
    {"DeclaredContent",
     "<!DOCTYPE root [<!ELEMENT root (a|b)*><!ELEMENT a EMPTY><!ELEMENT b EMPTY>]>"
     "<root>\n  <a/>\n  <!--c-->\n  <b/>\n</root>"},
    {"Defaults", "<!DOCTYPE root [<!ATTLIST root a CDATA 'x' b CDATA 'y'>]><root b='1' c='2'/>"},
    {"Identifiers",
     "<!DOCTYPE root [<!ATTLIST a id ID #IMPLIED>]><root><a id='x'/><a id='y' b='1'/></root>"},
    {"LongValue",
     "<root a='0123456789012345678901234567890123456789012345678901234567890123456789'/>"},
};

void PrintTo(const Document& document, std::ostream* out) { *out << document.name; }

template <class Made>
void parse(Made& parser, const char* text, bool withBlanks) {
  parser.setDoNamespaces(true);
  parser.setValidationScheme(XercesDOMParser::Val_Auto);
  parser.setCreateEntityReferenceNodes(false);
  parser.setIncludeIgnorableWhitespace(withBlanks);
  const std::string bytes = text;
  parser.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(bytes.data()),
                                          bytes.size(), "document"));
}

// What can be said of a node and all below it, links back included.
std::string told(const DOMNode* node) {
  if (node == nullptr) return "none";
  std::string all = std::to_string(node->getNodeType()) + " " + narrow(node->getNodeName()) + " {" +
                    narrow(node->getNamespaceURI()) + "} " + narrow(node->getLocalName()) + " " +
                    narrow(node->getPrefix()) + " '" + narrow(node->getNodeValue()) + "'";
  if (node->getNodeType() == DOMNode::TEXT_NODE) {
    all += static_cast<const xercesc::DOMText*>(node)->isIgnorableWhitespace() ? " ignorable" : "";
  }
  if (node->getNodeType() == DOMNode::ATTRIBUTE_NODE) {
    const auto* const attribute = static_cast<const xercesc::DOMAttr*>(node);
    all += attribute->getSpecified() ? " specified" : "";
    all += attribute->isId() ? " id" : "";
  }
  all += "\n";
  if (const xercesc::DOMNamedNodeMap* const attributes = node->getAttributes()) {
    for (XMLSize_t i = 0; i < attributes->getLength(); i++) all += "@" + told(attributes->item(i));
  }
  const DOMNode* before = nullptr;
  for (const DOMNode* child = node->getFirstChild(); child != nullptr;
       child = child->getNextSibling()) {
    EXPECT_EQ(child->getParentNode(), node);
    EXPECT_EQ(child->getPreviousSibling(), before);
    EXPECT_EQ(child->getOwnerDocument(), node->getOwnerDocument() != nullptr
                                             ? node->getOwnerDocument()
                                             : static_cast<const xercesc::DOMDocument*>(node));
    all += told(child);
    before = child;
  }
  EXPECT_EQ(node->getLastChild(), before);
  return all + "/\n";
}

class TreeParserTest : public testing::TestWithParam<Document> {};

TEST_P(TreeParserTest, MakesTheTreeOfTheDomParser) {
  for (const bool withBlanks : {true, false}) {
    Parser parser;
    parse(parser, GetParam().text, withBlanks);
    XercesDOMParser other;
    parse(other, GetParam().text, withBlanks);
    EXPECT_EQ(told(parser.getDocument()), told(other.getDocument()));
    EXPECT_TRUE(parser.getDocument()->isEqualNode(other.getDocument()));
  }
}

INSTANTIATE_TEST_SUITE_P(All, TreeParserTest, testing::ValuesIn(documents),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(TreeParser, FindsElementsByTheirIdentifiers) {
  Parser parser;
  parse(parser, "<!DOCTYPE root [<!ATTLIST a id ID #IMPLIED>]><root><a id='x'/><a id='y'/></root>",
        true);
  const DOMElement* const found = parser.getDocument()->getElementById(u"y");
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found, parser.getDocument()->getDocumentElement()->getLastChild());
}

}  // namespace

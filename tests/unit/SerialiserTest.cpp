// Tests of the indentation and of the writing of documents.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "support/Dom.h"
#include "xml/Serialiser.h"

namespace {

const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?>\n";

std::string written(test::Dom& dom) { return serialiseNode(dom.document()); }

TEST(Serialiser, SpacerIsALineFeedAndTwoBlanksALevel) {
  EXPECT_EQ(static_cast<std::string>(spacer(0)), "\n");
  EXPECT_EQ(static_cast<std::string>(spacer(3)), "\n      ");
}

TEST(Serialiser, ContentIsLaidOutUnlessItEndsInTextWithoutACarriageReturn) {
  const struct {
    const char* document;
    bool laidOut;
  } rows[] = {
      {"<r><a/></r>", true},           {"<r>text</r>", false},   {"<r><a/>text</r>", false},
      {"<r>text<a/></r>", true},       {"<r><a/>\n</r>", false}, {"<r><a/>&#13;</r>", true},
      {"<r><a/><!-- c --></r>", true}, {"<r>a&#13;b</r>", true},
  };
  for (const auto& row : rows) {
    test::Dom dom(row.document);
    EXPECT_EQ(needsCR(dom.root()), row.laidOut) << row.document;
  }
}

TEST(Serialiser, IndentsElementsCommentsAndInstructions) {
  test::Dom dom("<r><a><b/></a><!-- c --><?pi x?><name>X</name></r>");
  prettyPrintTree(dom.root(), 0);
  EXPECT_EQ(test::narrow(dom.root()->getTextContent()), "\n  \n    \n  \n  \n  \n  X\n");
  EXPECT_EQ(written(dom), declaration +
                              "<r>\n  <a>\n    <b/>\n  </a>\n  <!-- c -->\n  <?pi x?>\n  "
                              "<name>X</name>\n</r>\n");
}

TEST(Serialiser, KeepsALayoutThatIsThere) {
  const std::string text = "<r>\n   <a>\n <b/>\n  </a>\n</r>";
  test::Dom dom(text);
  prettyPrintTree(dom.root(), 0);
  EXPECT_NE(written(dom).find(text), std::string::npos) << written(dom);
}

TEST(Serialiser, ASecondTimeAddsNothing) {
  test::Dom dom("<r><a><b/></a></r>");
  prettyPrintTree(dom.root(), 0);
  const std::string once = written(dom);
  prettyPrintTree(dom.root(), 0);
  EXPECT_EQ(written(dom), once);
}

TEST(Serialiser, NodesBesideTheRootStandOnLinesOfTheirOwn) {
  test::Dom dom("<!-- before --><?pi x?><r><a/></r><!-- behind -->");
  prettyPrintTree(dom.root(), 0);
  EXPECT_EQ(written(dom),
            declaration + "<!-- before -->\n<?pi x?>\n<r>\n  <a/>\n</r>\n<!-- behind -->\n");
}

TEST(Serialiser, NullEndsTheWalk) { EXPECT_NO_THROW(prettyPrintTree(nullptr, 0)); }

TEST(Serialiser, RefusesWhatNoParserWouldReadAgain) {
  test::Dom dom("<r/>");
  xercesc::DOMNode* at = dom.root();
  for (int i = 0; i < 3000; i++) at = at->appendChild(dom.document()->createElement(u"a"));
  EXPECT_THROW(prettyPrintTree(dom.root(), 0), std::length_error);
}

TEST(Serialiser, WritesNamespacesAsTheAttributesSay) {
  test::Dom dom("<r/>");
  auto* const root = dom.document()->renameNode(dom.root(), u"urn:created", u"r");
  static_cast<xercesc::DOMElement*>(root)->setAttribute(u"xmlns", u"urn:said");
  root->appendChild(dom.document()->createElementNS(nullptr, u"a"));
  EXPECT_NE(written(dom).find("<r xmlns=\"urn:said\">"), std::string::npos) << written(dom);
  EXPECT_EQ(written(dom).find("xmlns=\"\""), std::string::npos);
  EXPECT_EQ(test::narrow(root->getNamespaceURI()), "urn:created") << "the tree stays as it was";
}

TEST(Serialiser, NewElementsGoByTheRootsPrefix) {
  test::Dom dom("<x:r xmlns:x='urn:x'><x:a/></x:r>");
  xercesc::DOMNode* const added =
      dom.root()->appendChild(dom.document()->createElementNS(nullptr, u"b"));
  EXPECT_NE(written(dom).find("<x:b/>"), std::string::npos) << written(dom);
  EXPECT_EQ(test::narrow(added->getNodeName()), "b") << "the tree stays as it was";
}

TEST(Serialiser, EscapesWhatMarkupWouldSwallow) {
  test::Dom dom("<r/>");
  dom.root()->setAttribute(u"a", u"<&\"\u00E9\n\t");
  test::Dom again(written(dom));
  EXPECT_EQ(std::u16string(again.root()->getAttribute(u"a")), u"<&\"\u00E9\n\t");
}

TEST(Serialiser, RefusesCharactersThatXmlCannotHold) {
  test::Dom dom("<r/>");
  dom.root()->setAttribute(u"a", u"\u0001");
  EXPECT_ANY_THROW(written(dom));
}

TEST(Serialiser, WritesTextAsItIsReadAgain) {
  const std::string root =
      "<r a=\"&amp;&lt;>&quot;'&#xA;&#xD;&#x9;\">&amp;&lt;&gt;\"'\n&#xD;\t</r>\n";
  test::Dom dom(root);
  EXPECT_EQ(written(dom), declaration + root);
}

TEST(Serialiser, RefusesTextThatXmlCannotHold) {
  test::Dom dom("<r/>");
  for (const XMLCh* const text : {u"\u0001", u"\xD800", u"\xD800x", u"\xDC00", u"\xFFFE"}) {
    dom.root()->setTextContent(text);
    EXPECT_THROW(written(dom), std::runtime_error);
  }
  dom.root()->setTextContent(u"\xD83D\xDE00");
  EXPECT_NE(written(dom).find("<r>\xF0\x9F\x98\x80</r>"), std::string::npos);
}

TEST(Serialiser, LaysOutNothingBelowNothing) {
  prettyPrintTree(nullptr, 0);
  test::Dom dom("<r/>");
  prettyPrintTree(dom.root(), 0);
  EXPECT_EQ(written(dom), declaration + "<r/>\n");
}

TEST(Serialiser, LeavesTheDocumentTypeOut) {
  test::Dom dom("<!DOCTYPE r [<!ENTITY e 'x'>]><r/>");
  EXPECT_EQ(written(dom).find("DOCTYPE"), std::string::npos);
}

}  // namespace

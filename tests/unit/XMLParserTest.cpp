// Tests of the validating parser: how it drives a handler and what it makes of messages.
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>
#include <xercesc/sax/SAXParseException.hpp>

#include "as/CASInvalidNamespaceException.h"
#include "support/Dom.h"
#include "support/TempDirectory.h"
#include "xml/Limits.h"
#include "xml/Vocabulary.h"
#include "xml/XMLParser.h"

namespace {

constexpr char ns[] = "http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd";

// A schema with a free choice of nested elements r, a and b, and one of x through a wildcard.
constexpr char schema[] = R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema"
    targetNamespace="http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd"
    xmlns="http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd"
    elementFormDefault="qualified">
  <xs:complexType name="any" mixed="true">
    <xs:choice minOccurs="0" maxOccurs="unbounded">
      <xs:element ref="a"/><xs:element ref="b"/><xs:element ref="open"/>
    </xs:choice>
    <xs:attribute name="n" type="xs:int"/>
  </xs:complexType>
  <xs:element name="r" type="any"/>
  <xs:element name="a" type="any"/>
  <xs:element name="b" type="any"/>
  <xs:element name="open">
    <xs:complexType><xs:sequence>
      <xs:any processContents="skip" minOccurs="0" maxOccurs="unbounded"/>
    </xs:sequence></xs:complexType>
  </xs:element>
</xs:schema>)";

// Writes down what it is called with.
class Recorder : public CElementHandler {
 public:
  void startDocument(xercesc::DOMNode* root) override {
    note("startDocument", root);
    if (refuseRoot) throw as::CASInvalidNamespaceException();
  }
  void startElement(xercesc::DOMNode* node) override { note("startElement", node); }
  void newElement(xercesc::DOMNode* node) override {
    note("newElement", node);
    if (failAt == test::narrow(node->getLocalName())) throw std::runtime_error("handler");
  }
  bool takes(const xercesc::DOMNode* node) const override {
    return test::narrow(node->getLocalName()) != doesNotTake;
  }
  bool keepsBlanks() const override { return keeps; }
  void endParse(xercesc::DOMDocument* document) override {
    calls.emplace_back("endParse");
    textChildren = document->getDocumentElement()->getChildNodes()->getLength();
  }

  std::vector<std::string> calls;
  XMLSize_t textChildren = 0;
  bool refuseRoot = false;
  std::string failAt;
  std::string doesNotTake;
  bool keeps = true;

 private:
  void note(const std::string& call, const xercesc::DOMNode* node) {
    calls.push_back(call + "(" + test::narrow(node->getLocalName()) + ")");
  }
};

class XMLParser : public testing::Test {
 protected:
  XMLParser() { directory_.write("vorcobol.xsd", schema); }

  static std::string document(const std::string& content, const std::string& attributes = "") {
    return std::string("<r xmlns='") + ns +
           "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" + ns +
           " " + ns + "' " + attributes + ">" + content + "</r>";
  }

  void parse(const std::string& text, CElementHandler* handler, const XMLCh* id = u"doc") {
    parser_.setSchemaLocation((directory_.path() + "/").c_str());
    parser_.setElementHandler(handler);
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                      id);
    parser_.parse(&source);
  }

  // The message that ends the parse of `text`.
  as::CASParseException failure(const std::string& text, CElementHandler* handler = nullptr) {
    try {
      parse(text, handler);
    } catch (const as::CASParseException& exception) {
      return exception;
    }
    ADD_FAILURE() << "parsed: " << text;
    return as::CASParseException(-1, -1, -1, "", "", "");
  }

  test::TempDirectory directory_;
  CXMLParser parser_;
  Recorder recorder_;
};

using Calls = std::vector<std::string>;

TEST_F(XMLParser, DrivesTheHandlerInOrder) {
  parse(document("<a>x</a><b>y</b>"), &recorder_);
  EXPECT_EQ(recorder_.calls,
            (Calls{"startDocument(r)", "startElement(r)", "startElement(a)", "newElement(a)",
                   "startElement(b)", "newElement(b)", "newElement(r)", "endParse"}));
}

TEST_F(XMLParser, EmptyElementsStartBeforeTheyEnd) {
  parse(document("<a/><b><a/></b>"), &recorder_);
  EXPECT_EQ(recorder_.calls,
            (Calls{"startDocument(r)", "startElement(r)", "startElement(a)", "newElement(a)",
                   "startElement(b)", "startElement(a)", "newElement(a)", "newElement(b)",
                   "newElement(r)", "endParse"}));
}

TEST_F(XMLParser, EmptyRootStartsBeforeItEnds) {
  std::string text = document("");
  text.replace(text.find("></r>"), 5, "/>");
  parse(text, &recorder_);
  EXPECT_EQ(recorder_.calls,
            (Calls{"startDocument(r)", "startElement(r)", "newElement(r)", "endParse"}));
}

TEST_F(XMLParser, BuildsOnlyTheDocumentWithoutAHandler) {
  parse(document("<a n='1'/>"), nullptr);
  ASSERT_NE(parser_.getDocument(), nullptr);
  EXPECT_EQ(test::narrow(parser_.getDocument()->getDocumentElement()->getLocalName()), "r");
}

TEST_F(XMLParser, TextInPiecesIsOneText) {
  const std::string doctype = "<!DOCTYPE r [<!ENTITY e 'two'><!ENTITY f ' &e; &#32;'>]>";
  const std::string big(200000, 'x');
  for (const std::string& content :
       {std::string("one &e; three"), std::string("&f;&f; \r\n &lt;&f; \n"),
        std::string(" &#32; &e;&#32; "), big + "&e;" + big + "&f;" + big}) {
    CXMLParser parser;
    parser.setSchemaLocation((directory_.path() + "/").c_str());
    parser.setElementHandler(&recorder_);
    const std::string text = doctype + document(content);
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                      u"doc");
    parser.parse(&source);
    EXPECT_EQ(recorder_.textChildren, 1u) << content.substr(0, 40);
  }
}

TEST_F(XMLParser, BlanksBetweenElementsStandInTheDocumentIfTheHandlerKeepsThem) {
  for (const bool keeps : {true, false}) {
    CXMLParser parser;
    recorder_.keeps = keeps;
    parser.setSchemaLocation((directory_.path() + "/").c_str());
    parser.setElementHandler(&recorder_);
    const std::string text = document(" <open> </open> ");
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                      u"doc");
    parser.parse(&source);
    const auto* const open = parser.getDocument()->getDocumentElement()->getFirstElementChild();
    EXPECT_EQ(open->hasChildNodes(), keeps);
    EXPECT_EQ(recorder_.textChildren, 3u) << "where the schema lets text in, blanks are text";
  }
}

TEST_F(XMLParser, ParsesAFileByName) {
  const std::string file = directory_.write("doc.xml", document("<a/>"));
  parser_.setSchemaLocation((directory_.path() + "/").c_str());
  parser_.setElementHandler(&recorder_);
  CXStr name(file);
  parser_.parse(static_cast<const XMLCh*>(name));
  EXPECT_EQ(recorder_.calls.size(), 6u);
}

TEST_F(XMLParser, FirstMessageEndsTheParse) {
  const as::CASParseException message =
      failure(document("\n  <a n='x'/>\n  <a n='y'/>"), &recorder_);
  EXPECT_EQ(message.getLineNum(), 2);
  EXPECT_NE(message.getErrorText().find("'x'"), std::string::npos) << message.getErrorText();
  EXPECT_EQ(message.getSystemId(), "doc");
  EXPECT_EQ(recorder_.calls, (Calls{"startDocument(r)", "startElement(r)"}));
}

TEST_F(XMLParser, AWarningEndsTheParseAsAnErrorDoes) {
  std::string text = document("<a/>");
  // The parser only warns of a schema that is not there; this one is not even needed.
  text.insert(text.find("' >"), " urn:unused missing.xsd");
  const as::CASParseException message = failure(text, &recorder_);
  EXPECT_NE(message.getErrorText().find("missing.xsd"), std::string::npos)
      << message.getErrorText();
  EXPECT_EQ(recorder_.calls, Calls{"startDocument(r)"});
}

TEST_F(XMLParser, MessageCarriesWhatTheReporterWasGiven) {
  parse(document(""), nullptr);
  try {
    parser_.error(42, u"", xercesc::XMLErrorReporter::ErrType_Warning, u"t\u00E9xt", u"sys", u"pub",
                  3, 7);
    FAIL();
  } catch (const as::CASParseException& message) {
    EXPECT_EQ(message.getErrorCode(), 42);
    EXPECT_EQ(message.getLineNum(), 3);
    EXPECT_EQ(message.getColNum(), 7);
    EXPECT_EQ(message.getErrorText(), "t\xC3\xA9xt");
    EXPECT_EQ(message.getSystemId(), "sys");
    EXPECT_EQ(message.getPublicId(), "pub");
  }
}

TEST_F(XMLParser, ErrorHandlerDoesNothing) {
  const xercesc::SAXParseException exception(u"text", u"", u"", 1, 1);
  EXPECT_NO_THROW(parser_.warning(exception));
  EXPECT_NO_THROW(parser_.error(exception));
  EXPECT_NO_THROW(parser_.fatalError(exception));
  EXPECT_NO_THROW(parser_.resetErrors());
}

TEST_F(XMLParser, NamespaceFailureOfTheHandlerPasses) {
  recorder_.refuseRoot = true;
  EXPECT_THROW(parse(document(""), &recorder_), as::CASInvalidNamespaceException);
  EXPECT_EQ(recorder_.calls, Calls{"startDocument(r)"});
}

// An undeclared root is reported before the handler sees it; the handler decides.
TEST_F(XMLParser, NamespaceFailureGoesBeforeEarlierMessages) {
  recorder_.refuseRoot = true;
  EXPECT_THROW(parse("<r/>", &recorder_), as::CASInvalidNamespaceException);
}

TEST_F(XMLParser, EarlierMessagesEndTheParseWhenTheRootIsAccepted) {
  const as::CASParseException message = failure("<r/>", &recorder_);
  EXPECT_NE(message.getErrorText().find("no declaration found for element 'r'"), std::string::npos)
      << message.getErrorText();
  EXPECT_EQ(recorder_.calls, Calls{"startDocument(r)"});
}

// What cannot wait for the root does not overtake what has waited.
TEST_F(XMLParser, TheFirstMessageEndsTheParseWhateverCannotWait) {
  const std::string earlier = "<!ELEMENT r ANY><!ELEMENT r ANY>";
  const std::string message =
      failure("<!DOCTYPE r [" + earlier + "]>" + document("")).getErrorText();
  for (const std::string& later :
       {std::string("<!ATTLIST r n CDATA 'x'>"), std::string("<!ENTITY % p ''>"),
        "<!ENTITY e '" + std::string(limits::entityLength + 1, 'x') + "'>",
        std::string("<!ENTITY % p SYSTEM 'x'> %p;")}) {
    CXMLParser parser;
    const std::string text = "<!DOCTYPE r [" + earlier + later + "]>" + document("");
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                      u"doc");
    try {
      parser.parse(&source);
      ADD_FAILURE() << later;
    } catch (const as::CASParseException& told) {
      EXPECT_EQ(told.getErrorText(), message) << later.substr(0, 100);
    }
  }
}

TEST_F(XMLParser, ADocumentThatAnotherNamesIsARegularFile) {
  directory_.write("doc.xml", document("<a/>"));
  for (const auto& [name, message] :
       {std::pair<std::string, std::string>{directory_.path() + "/doc.xml", ""},
        {"/dev/zero", "the document '/dev/zero' is refused: it is no regular file"},
        {"/", "the document '/' is refused: it is a directory"},
        {"/missing", "unable to open primary document entity '/missing'"}}) {
    CXMLParser parser;
    parser.setSchemaLocation((directory_.path() + "/").c_str());
    CXStr wide(name);
    std::string told;
    std::shared_ptr<const LocalFile> opened;
    try {
      parser.parse(static_cast<const XMLCh*>(wide), LocalFile::Opening::regular, opened);
    } catch (const as::CASParseException& failure) {
      told = failure.getErrorText();
    }
    EXPECT_EQ(told, message);
  }
}

TEST_F(XMLParser, MessagesOfADocumentWithoutARootAreNotLost) {
  for (const char* text : {"", " ", "no xml", "<", "<!DOCTYPE r [<!ENTITY e", "<?xml version='9'?>",
                           "<!-- comment -->", "<r"}) {
    CXMLParser parser;
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text),
                                      std::char_traits<char>::length(text), u"doc");
    EXPECT_THROW(parser.parse(&source), as::CASParseException) << text;
  }
}

TEST_F(XMLParser, OtherExceptionsAreSwallowed) {
  recorder_.failAt = "a";
  EXPECT_NO_THROW(parse(document("<a/><b/>"), &recorder_));
  EXPECT_EQ(recorder_.calls.back(), "newElement(a)");
}

TEST_F(XMLParser, ElementsThatOnlyADtdDeclaresAreRefused) {
  const as::CASParseException message =
      failure("<!DOCTYPE r [<!ELEMENT r ANY><!ELEMENT a ANY>]><r><a/></r>", &recorder_);
  EXPECT_EQ(message.getErrorText(), "no schema declares the element 'r'");
  EXPECT_EQ(recorder_.calls, Calls{"startDocument(r)"});
}

TEST_F(XMLParser, ElementsThatAWildcardSkippedAreRefused) {
  const as::CASParseException message =
      failure(document("<open><x xmlns='urn:x'/></open>"), &recorder_);
  EXPECT_EQ(message.getErrorText(), "no schema declares the element 'x'");
}

TEST_F(XMLParser, ElementsThatTheHandlerDoesNotTakeAreRefusedAsTheyStart) {
  recorder_.doesNotTake = "b";
  const as::CASParseException message = failure(document("\n<a>\n<b><a/></b></a>"), &recorder_);
  EXPECT_EQ(
      message.getErrorText(),
      "the element 'b' has no place in a document of the namespace '" + std::string(ns) + "'");
  EXPECT_EQ(message.getErrorCode(), 0);
  EXPECT_EQ(message.getLineNum(), 3);
  EXPECT_EQ(message.getColNum(), 4);
  EXPECT_EQ(message.getSystemId(), "doc");
  EXPECT_EQ(recorder_.calls, (Calls{"startDocument(r)", "startElement(r)", "startElement(a)"}));
}

TEST_F(XMLParser, ARootThatTheHandlerDoesNotTakeIsRefused) {
  recorder_.doesNotTake = "r";
  const as::CASParseException message = failure(document(""), &recorder_);
  EXPECT_EQ(
      message.getErrorText(),
      "the element 'r' has no place in a document of the namespace '" + std::string(ns) + "'");
  EXPECT_EQ(recorder_.calls, Calls{"startDocument(r)"});
}

TEST_F(XMLParser, ElementsOfAnotherNamespaceAreRefusedAsTheyStart) {
  const std::string other = directory_.write(
      "other.xsd",
      "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:x'>"
      "<xs:element name='a'/></xs:schema>");
  const std::string text =
      document("<open><x:a xmlns:x='urn:x' xsi:schemaLocation='urn:x " + other + "'/></open>");
  const as::CASParseException message = failure(text, &recorder_);
  EXPECT_EQ(
      message.getErrorText(),
      "the element 'x:a' has no place in a document of the namespace '" + std::string(ns) + "'");
  EXPECT_EQ(recorder_.calls, (Calls{"startDocument(r)", "startElement(r)", "startElement(open)"}));
}

// Nothing is wrapped then.
TEST_F(XMLParser, WithoutAHandlerElementsOfEveryNamespaceAreRead) {
  const std::string other = directory_.write(
      "other.xsd",
      "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:x'>"
      "<xs:element name='a'/></xs:schema>");
  EXPECT_NO_THROW(parse(
      document("<open><x:a xmlns:x='urn:x' xsi:schemaLocation='urn:x " + other + "'/></open>"),
      nullptr));
}

TEST_F(XMLParser, RootOfADtdIsCheckedByTheHandlerFirst) {
  recorder_.refuseRoot = true;
  EXPECT_THROW(parse("<!DOCTYPE r [<!ELEMENT r ANY>]><r/>", &recorder_),
               as::CASInvalidNamespaceException);
}

std::string nested(XMLSize_t depth) {
  std::string text;
  for (XMLSize_t i = 0; i < depth; i++) text += "<a>";
  for (XMLSize_t i = 0; i < depth; i++) text += "</a>";
  return text;
}

TEST_F(XMLParser, ReadsElementsNestedToTheLimit) {
  parse(document(nested(limits::depth - 1)), &recorder_);
  EXPECT_EQ(recorder_.calls.back(), "endParse");
}

TEST_F(XMLParser, RefusesElementsNestedDeeper) {
  const as::CASParseException message = failure(document(nested(limits::depth)), &recorder_);
  EXPECT_EQ(message.getErrorText(), "elements are nested deeper than 2048 levels");
  EXPECT_EQ(message.getErrorCode(), 0);
  EXPECT_EQ(message.getLineNum(), 1);
  EXPECT_GT(message.getColNum(), 2048 * 3);
  EXPECT_EQ(message.getSystemId(), "doc");
}

TEST_F(XMLParser, NumberOfAttributesIsLimited) {
  // Three stand in the root already.
  const auto declarations = [](XMLSize_t count) {
    std::string text;
    for (XMLSize_t i = 3; i < count; i++) {
      text += " xmlns:a" + std::to_string(i) + "='urn:" + std::to_string(i) + "'";
    }
    return text;
  };
  const as::CASParseException message =
      failure(document("", declarations(limits::attributes + 1)), &recorder_);
  EXPECT_EQ(message.getErrorText(), "an element has more than 1000 attributes");
  CXMLParser good;
  const std::string text = document("", declarations(limits::attributes));
  good.setSchemaLocation((directory_.path() + "/").c_str());
  xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                    u"doc");
  EXPECT_NO_THROW(good.parse(&source));
}

TEST_F(XMLParser, DepthCountsOpenElementsOnly) {
  std::string text;
  for (int i = 0; i < 3000; i++) text += "<a><b/></a>";
  parse(document(text), &recorder_);
  EXPECT_EQ(recorder_.calls.back(), "endParse");
}

TEST_F(XMLParser, TextOfInternalEntitiesStandsInTheirPlace) {
  parse("<!DOCTYPE r [<!ENTITY e '<a/><b/>'>]>" + document("<a/>&e;"), &recorder_);
  EXPECT_EQ(recorder_.textChildren, 3u) << "no entity reference in the tree";
  EXPECT_EQ(recorder_.calls.size(), 10u);
}

TEST_F(XMLParser, EntityExpansionIsLimited) {
  std::string references;
  for (XMLSize_t i = 0; i < limits::entityExpansions; i++) references += "&e;";
  const std::string doctype = "<!DOCTYPE r [<!ENTITY e 'x'>]>";
  parse(doctype + document(references), &recorder_);
  EXPECT_EQ(recorder_.calls.back(), "endParse");
  CXMLParser second;
  second.setSchemaLocation((directory_.path() + "/").c_str());
  const std::string tooMany = doctype + document(references + "&e;");
  xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(tooMany.data()),
                                    tooMany.size(), u"doc");
  EXPECT_THROW(second.parse(&source), as::CASParseException);
}

TEST_F(XMLParser, LengthOfEntitiesIsLimited) {
  const as::CASParseException message =
      failure("<!DOCTYPE r [<!ENTITY e '" + std::string(limits::entityLength + 1, 'x') + "'>]>" +
                  document("&e;"),
              &recorder_);
  EXPECT_EQ(message.getErrorText(), "the entity 'e' is longer than 65536 characters");
}

TEST_F(XMLParser, ExternalEntitiesAreRefused) {
  const std::string file = directory_.write("secret.txt", "secret");
  const struct {
    const char* what;
    std::string document;
  } rows[] = {
      {"general entity", "<!DOCTYPE r [<!ENTITY e SYSTEM '" + file + "'>]>" + document("&e;")},
      {"external subset", "<!DOCTYPE r SYSTEM '" + file + "'>" + document("")},
      {"external subset named like a schema", "<!DOCTYPE r SYSTEM 'vorcobol.xsd'>" + document("")},
      {"external subset over a network", "<!DOCTYPE r SYSTEM 'http://x.example/'>" + document("")},
  };
  for (const auto& row : rows) {
    CXMLParser parser;
    parser.setSchemaLocation((directory_.path() + "/").c_str());
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(row.document.data()),
                                      row.document.size(), u"doc");
    try {
      parser.parse(&source);
      ADD_FAILURE() << row.what;
    } catch (const as::CASParseException& message) {
      EXPECT_NE(message.getErrorText().find("is refused: documents must be complete"),
                std::string::npos)
          << row.what << ": " << message.getErrorText();
    }
  }
}

TEST_F(XMLParser, WhatADtdExpandsWithoutLimitsIsRefused) {
  const struct {
    const char* declaration;
    const char* message;
  } rows[] = {
      {"<!ENTITY % e 'x'>",
       "the parameter entity 'e' is refused: documents must be complete in themselves"},
      {"<!ENTITY % e SYSTEM 'x'> %e;",
       "the parameter entity 'e' is refused: documents must be complete in themselves"},
      {"<!ATTLIST r n CDATA 'x'>",
       "the attribute declarations for 'r' are refused: attributes are declared by the schema"},
      {"<!ATTLIST r n CDATA #IMPLIED>",
       "the attribute declarations for 'r' are refused: attributes are declared by the schema"},
  };
  for (const auto& row : rows) {
    CXMLParser parser;
    const std::string text = "<!DOCTYPE r [" + std::string(row.declaration) + "]>" + document("");
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                      u"doc");
    try {
      parser.parse(&source);
      ADD_FAILURE() << row.declaration;
    } catch (const as::CASParseException& message) {
      EXPECT_EQ(message.getErrorText(), row.message);
    }
  }
}

TEST_F(XMLParser, TheSchemaOfOurNamespaceIsTheDirectorys) {
  test::TempDirectory elsewhere;
  const std::string lax = elsewhere.write("lax.xsd", "no schema at all");
  std::string text = document("<a/>");
  const std::string location = std::string(ns) + " " + ns;
  text.replace(text.find(location), location.size(), std::string(ns) + " " + lax);
  parse(text, &recorder_);
  EXPECT_EQ(recorder_.calls.back(), "endParse");
}

// What a document may name as its schema; the resolver knows none of these.
TEST_F(XMLParser, SchemasAreNotReadFromANetworkOrADevice) {
  const struct {
    const char* location;
    const char* id;
    const char* message;
  } rows[] = {
      {"http://x.example/s.xsd", "doc", "schemas are not read over a network"},
      {"HTTP://x.example/s.xsd", "doc", "schemas are not read over a network"},
      {"https://x.example/s.xsd", "doc", "schemas are not read over a network"},
      {"ftp://x.example/s.xsd", "doc", "schemas are not read over a network"},
      {"//x.example/s.xsd", "http://x.example/doc", "schemas are not read over a network"},
      {"s.xsd", "http://x.example/doc", "schemas are not read over a network"},
      {"file://x.example/s.xsd", "doc", "schemas are not read over a network"},
      {"/dev/zero", "doc", "it is no regular file"},
      {"file:///dev/zero", "doc", "it is no regular file"},
      {"file://localhost/dev/zero", "doc", "it is no regular file"},
      {"file:///dev/z%65ro", "doc", "it is no regular file"},
      {"../../../../../../../../../../../dev/zero", "doc", "it is no regular file"},
      {"/", "doc", "it is no regular file"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.location);
    const std::string text =
        std::string(
            "<r xmlns='urn:other' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
            "xsi:schemaLocation='urn:other ") +
        row.location + "'/>";
    CXMLParser parser;
    parser.setSchemaLocation((directory_.path() + "/").c_str());
    CXStr id(row.id);
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                      static_cast<const XMLCh*>(id));
    try {
      parser.parse(&source);
      ADD_FAILURE();
    } catch (const as::CASParseException& message) {
      EXPECT_NE(message.getErrorText().find(row.message), std::string::npos)
          << message.getErrorText();
    }
  }
}

using xercesc::XMLResourceIdentifier;

// A schema that imports a namespace need not tell where its schema is.
TEST_F(XMLParser, ReferencesMayHaveNoNameOfAFile) {
  const struct {
    const char* what;
    XMLResourceIdentifier::ResourceIdentifierType type;
    const XMLCh* uri;
    bool isOurs;
  } rows[] = {
      {"import", XMLResourceIdentifier::SchemaImport, u"urn:x", false},
      {"import of no namespace", XMLResourceIdentifier::SchemaImport, nullptr, false},
      {"import of ours", XMLResourceIdentifier::SchemaImport, XSDNS::ddURI, true},
      {"schema", XMLResourceIdentifier::SchemaGrammar, u"urn:x", false},
      {"schema of no namespace", XMLResourceIdentifier::SchemaGrammar, nullptr, false},
      {"schema of ours", XMLResourceIdentifier::SchemaGrammar, XSDNS::ddURI, true},
      {"include", XMLResourceIdentifier::SchemaInclude, XSDNS::ddURI, false},
      {"redefine", XMLResourceIdentifier::SchemaRedefine, XSDNS::ddURI, false},
  };
  for (const auto& row : rows) {
    for (const XMLCh* base : {static_cast<const XMLCh*>(nullptr), u"", u"/some/where/s.xsd"}) {
      SCOPED_TRACE(row.what);
      CXMLParser parser;
      XMLResourceIdentifier reference(row.type, nullptr, row.uri, nullptr, base);
      EXPECT_EQ(parser.resolveEntity(&reference), nullptr) << "no schema directory";
      parser.setSchemaLocation((directory_.path() + "/").c_str());
      const std::unique_ptr<xercesc::InputSource> source(parser.resolveEntity(&reference));
      ASSERT_EQ(source != nullptr, row.isOurs);
      if (source) {
        EXPECT_EQ(test::narrow(source->getSystemId()), directory_.path() + "/vorcobol.xsd");
      }
    }
  }
  for (const auto type : {XMLResourceIdentifier::ExternalEntity, XMLResourceIdentifier::UnKnown}) {
    XMLResourceIdentifier reference(type, nullptr);
    EXPECT_THROW(parser_.resolveEntity(&reference), as::CASParseException);
  }
}

TEST_F(XMLParser, DocumentsAreNotReadFromANetwork) {
  for (const XMLCh* name : {u"http://x.example/d.xml", u"https://x.example/d.xml",
                            u"ftp://x.example/d.xml", u"file://x.example/d.xml"}) {
    CXMLParser parser;
    try {
      parser.parse(name);
      ADD_FAILURE() << test::narrow(name);
    } catch (const as::CASParseException& message) {
      EXPECT_NE(message.getErrorText().find("documents are not read over a network"),
                std::string::npos);
      EXPECT_EQ(message.getSystemId(), test::narrow(name));
    }
  }
}

TEST_F(XMLParser, AMessageAboutNoEntityNamesTheDocument) {
  try {
    parser_.parse(u"no such file.xml");
    FAIL();
  } catch (const as::CASParseException& message) {
    EXPECT_EQ(message.getSystemId(), "no such file.xml");
    EXPECT_EQ(message.getErrorCode(), 66);
    EXPECT_EQ(message.getLineNum(), 0);
  }
  CXMLParser parser;
  parser.setSchemaLocation("/no/such/directory/");
  const std::string text = document("");
  xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                    u"doc");
  try {
    parser.parse(&source);
    FAIL();
  } catch (const as::CASParseException& message) {
    EXPECT_EQ(message.getSystemId(), "doc");
    EXPECT_NE(message.getErrorText().find("/no/such/directory/vorcobol.xsd"), std::string::npos);
  }
}

TEST_F(XMLParser, AForgottenSchemaDirectoryIsTold) {
  const std::string text = document("");
  xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                    u"doc");
  try {
    parser_.parse(&source);
    FAIL();
  } catch (const as::CASParseException& message) {
    EXPECT_NE(message.getErrorText().find("no schema directory has been set"), std::string::npos)
        << message.getErrorText();
  }
}

TEST_F(XMLParser, NullNameIsAnEmptyOne) {
  EXPECT_THROW(parser_.parse(static_cast<const XMLCh*>(nullptr)), as::CASParseException);
}

}  // namespace

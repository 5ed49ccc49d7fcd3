// Tests of the limits of a parse: each lets through what it says and no more, and those who read
// the promises read the same numbers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

#include "as/CASParseException.h"
#include "support/Kept.h"
#include "support/TempDirectory.h"
#include "xml/Limits.h"
#include "xml/XMLParser.h"

namespace {

using testing::HasSubstr;

std::string repeated(const std::string& text, XMLSize_t times) {
  std::string result;
  for (XMLSize_t i = 0; i < times; i++) result += text;
  return result;
}

std::string numbered(const std::string& before, XMLSize_t times, const std::string& after) {
  std::string result;
  for (XMLSize_t i = 0; i < times; i++) result += before + std::to_string(i) + after;
  return result;
}

// A schema of documents that are elements "r" within each other.
std::string schemaWith(const std::string& content) {
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:x' "
         "xmlns='urn:x' elementFormDefault='qualified'>" +
         content +
         "<xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='r' minOccurs='0'/>"
         "</xs:sequence></xs:complexType></xs:element></xs:schema>";
}

constexpr XMLSize_t elementsOfSchema = 5;

std::string documentWith(const std::string& content = "", const std::string& attributes = "") {
  return "<r xmlns='urn:x' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
         "xsi:schemaLocation='urn:x s.xsd'" +
         attributes + ">" + content + "</r>";
}

struct Case {
  std::string schema;
  std::string document;
};

Case ofSchema(const std::string& content) { return {schemaWith(content), documentWith()}; }

Case ofDocument(const std::string& document) { return {schemaWith(""), document}; }

// For each limit, by its name: something with so many of what it counts.
const std::map<std::string, Case (*)(XMLSize_t)> cases = {
    {"depth",
     [](XMLSize_t n) {
       return ofDocument(documentWith(repeated("<r>", n - 1) + repeated("</r>", n - 1)));
     }},
    {"attributes",
     [](XMLSize_t n) { return ofDocument(documentWith("", numbered(" xmlns:a", n - 3, "='u'"))); }},
    {"entityExpansions",
     [](XMLSize_t n) {
       return ofDocument("<!DOCTYPE r [<!ENTITY e ' '>]>" + documentWith(repeated("&e;", n)));
     }},
    {"entityLength",
     [](XMLSize_t n) {
       return ofDocument("<!DOCTYPE r [<!ENTITY e '" + std::string(n, ' ') + "'>]>" +
                         documentWith("&e;"));
     }},
    {"dtdDeclarations",
     [](XMLSize_t n) {
       return ofDocument("<!DOCTYPE r [<!NOTATION n SYSTEM 'n'>" +
                         numbered("<!ENTITY e", n - 1, " ''>") + "]>" + documentWith());
     }},
    // A name comes to some parts.
    {"dtdParts",
     [](XMLSize_t n) {
       return ofDocument("<!DOCTYPE r [<!ELEMENT r ANY><!ELEMENT m (r" + repeated(",r", n) +
                         ")>]>" + documentWith());
     }},
    {"prefixes",
     [](XMLSize_t n) {
       // The root has one, and declares what needs none.
       const XMLSize_t most = 900;
       std::string document;
       XMLSize_t elements = 0;
       for (XMLSize_t i = 0; i < n - 2; i++) {
         if (i % most == 0) document += elements++ == 0 ? "<r" : "><r";
         document += " xmlns:a" + std::to_string(i) + "='u'";
       }
       return ofDocument(documentWith(document + ">" + repeated("</r>", elements)));
     }},
    {"declaredNamespaces",
     [](XMLSize_t n) {
       // The root has two; 512 elements in it declare the rest, as evenly as they can.
       const XMLSize_t most = 512;
       std::string document;
       for (XMLSize_t i = 0; i < most; i++) {
         const XMLSize_t here = (n - 2) / most + (i < (n - 2) % most ? 1 : 0);
         document += "<r" + numbered(" xmlns:a", here, "='u'") + ">";
       }
       return ofDocument(documentWith(document + repeated("</r>", most)));
     }},
    {"attributeNames",
     [](XMLSize_t n) {
       // The root has its own three.
       const XMLSize_t most = 900;
       std::string content;
       for (XMLSize_t i = 0; i < n - 3; i++) {
         content += (i % most > 0 ? ""
                     : i > 0      ? "/><r"
                                  : "<r") +
                    (" a" + std::to_string(i)) + "=''";
       }
       Case made = ofDocument(documentWith(content + "/>"));
       made.schema =
           "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:x' "
           "xmlns='urn:x' elementFormDefault='qualified'><xs:element name='r'><xs:complexType>"
           "<xs:sequence><xs:element ref='r' minOccurs='0' maxOccurs='unbounded'/></xs:sequence>"
           "<xs:anyAttribute processContents='skip'/></xs:complexType></xs:element></xs:schema>";
       return made;
     }},
    {"placeLength",
     [](XMLSize_t n) {
       const std::string file = "s.xsd";
       const XMLSize_t rest = n - file.size();
       std::string document = documentWith();
       return ofDocument(document.replace(document.find(file), 0,
                                          repeated("./", rest / 2) + repeated("/", rest % 2)));
     }},
    {"schemaPlaces",
     [](XMLSize_t n) { return ofSchema(repeated("<xs:include schemaLocation='s.xsd'/>", n - 1)); }},
    {"schemaOpenConstraints",
     [](XMLSize_t n) {
       return Case{
           "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:x' "
           "xmlns='urn:x' elementFormDefault='qualified'><xs:element name='r'><xs:complexType>"
           "<xs:sequence><xs:element ref='r' minOccurs='0' maxOccurs='2'/></xs:sequence>"
           "</xs:complexType><xs:unique name='u'><xs:selector xpath='.'/><xs:field xpath='@d'/>"
           "</xs:unique></xs:element></xs:schema>",
           documentWith("<r/>" + repeated("<r>", n - 1) + repeated("</r>", n - 1))};
     }},
    {"schemaBytes",
     [](XMLSize_t n) {
       const XMLSize_t rest = schemaWith("<!---->").size();
       return ofSchema("<!--" + std::string(n - rest, 'x') + "-->");
     }},
    {"schemaElements",
     [](XMLSize_t n) {
       return ofSchema(numbered("<xs:attributeGroup name='g", n - elementsOfSchema, "'/>"));
     }},
    {"schemaDepth",
     [](XMLSize_t n) {
       return ofSchema("<xs:annotation><xs:appinfo>" + repeated("<a>", n - 3) +
                       repeated("</a>", n - 3) + "</xs:appinfo></xs:annotation>");
     }},
    {"schemaPattern",
     [](XMLSize_t n) {
       return ofSchema(
           "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='" +
           std::string(n, 'a') + "'/></xs:restriction></xs:simpleType>");
     }},
    {"schemaUnionMembers",
     [](XMLSize_t n) {
       return ofSchema("<xs:simpleType name='t'><xs:union memberTypes='" + repeated("xs:int ", n) +
                       "'/></xs:simpleType>");
     }},
    {"schemaSubstitutes",
     [](XMLSize_t n) {
       return ofSchema(numbered("<xs:element name='s", n, "' substitutionGroup='r'/>"));
     }},
    {"schemaValues",
     [](XMLSize_t n) {
       return ofSchema(
           "<xs:simpleType name='t'><xs:restriction base='xs:string'>"
           "<xs:enumeration value=''/>" +
           numbered("<xs:enumeration value='a", n % 2 + 1, "'/>") +
           numbered("<xs:enumeration value='b ", (n - 2) / 2, "'/>") +
           "</xs:restriction></xs:simpleType>");
     }},
    {"schemaConstraints",
     [](XMLSize_t n) {
       return ofSchema("<xs:element name='k'><xs:unique name='u'><xs:selector xpath='a'/>" +
                       numbered("<xs:field xpath='@f", n - 1, "'/>") + "</xs:unique></xs:element>");
     }},
    {"schemaDefault",
     [](XMLSize_t n) {
       return ofSchema("<xs:element name='k' default='" + std::string(n, 'x') + "'/>");
     }},
    {"schemaDefaults",
     [](XMLSize_t n) {
       return Case{
           "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:x' "
           "elementFormDefault='qualified'><xs:element name='r'><xs:complexType>"
           "<xs:sequence><xs:element name='a' maxOccurs='unbounded'><xs:complexType>"
           "<xs:attribute name='d' default='x'/></xs:complexType></xs:element>"
           "</xs:sequence></xs:complexType></xs:element></xs:schema>",
           documentWith(repeated("<a d='y'/>", 5) + repeated("<a/>", n))};
     }},
    // A content model in which so many sequences of elements are told apart, at some hundred bytes
    // each.
    {"schemaMemory",
     [](XMLSize_t n) {
       const std::string either =
           "<xs:choice><xs:element name='a'/><xs:element name='b'/></xs:choice>";
       XMLSize_t choices = 0;
       for (XMLSize_t told = 1; told < n / 100; told *= 2) choices++;
       return Case{
           "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:x' "
           "elementFormDefault='qualified'><xs:element name='r'><xs:complexType>"
           "<xs:sequence><xs:choice minOccurs='0' maxOccurs='unbounded'>"
           "<xs:element name='a'/><xs:element name='b'/></xs:choice><xs:element name='a'/>" +
               repeated(either, choices) +
               "</xs:sequence></xs:complexType></xs:element></xs:schema>",
           documentWith(repeated("<a/>", choices + 1))};
     }},
};

class Limits : public testing::TestWithParam<limits::Limit> {
 protected:
  // What ends the parse; empty when nothing does.
  std::string messageOf(const Case& given) const {
    directory_.write("s.xsd", given.schema);
    CXMLParser parser;
    CXStr name(directory_.write("d.xml", given.document));
    try {
      parser.parse(static_cast<const XMLCh*>(name));
    } catch (const as::CASParseException& message) {
      return message.getErrorText();
    }
    return "";
  }

  test::TempDirectory directory_;
};

INSTANTIATE_TEST_SUITE_P(All, Limits, testing::ValuesIn(limits::all),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(Limits, LetsThroughSoManyAndNoMore) {
  const limits::Limit limit = GetParam();
  ASSERT_EQ(cases.count(limit.name), 1u) << "nothing tries it";
  const auto make = cases.at(limit.name);
  // What comes of a content model is not for us to say.
  const bool isRough =
      limit.name == std::string("schemaMemory") || limit.name == std::string("dtdParts");
  EXPECT_EQ(messageOf(make(isRough ? limit.number / 64 : limit.number)), "");
  const std::string message = messageOf(make(isRough ? limit.number * 4 : limit.number + 1));
  EXPECT_THAT(message, HasSubstr(std::to_string(limit.number)));
  test::expectKept(std::string("limits/") + limit.name + ".txt", message + "\n");
}

std::string withSeparators(XMLSize_t number) {
  std::string text = std::to_string(number);
  for (auto at = static_cast<int>(text.size()) - 3; at > 0; at -= 3) {
    text.insert(static_cast<std::size_t>(at), ",");
  }
  return text;
}

TEST_P(Limits, StandsInTheSecurityPolicy) {
  const limits::Limit limit = GetParam();
  const std::string policy = test::contentOf(AS_SCHEMA_DIR "/../SECURITY.md");
  EXPECT_THAT(policy, HasSubstr(std::string("\n| ") + limit.counts + " | " +
                                withSeparators(limit.number) + " | " + limit.reason + " |\n"));
}

TEST_P(Limits, StandsInTheHeader) {
  std::string header = test::contentOf(AS_SCHEMA_DIR "/../include/as/IAgentServices.h");
  EXPECT_THAT(header, HasSubstr(" " + withSeparators(GetParam().number) + " "));
}

// A row that no limit stands for any more.
TEST(LimitsTable, IsAllThatThePolicyHolds) {
  std::string policy = test::contentOf(AS_SCHEMA_DIR "/../SECURITY.md");
  // Those of import have a table of their own.
  policy.resize(policy.find("\n## The limits of import\n"));
  const auto lines = [&](const std::string& start) {
    XMLSize_t count = 0;
    for (auto at = policy.find(start); at != std::string::npos; at = policy.find(start, at + 1)) {
      count++;
    }
    return count;
  };
  // Two tables, each with two lines on top.
  EXPECT_EQ(lines("\n| ") + lines("\n|-"), std::size(limits::all) + 4);
}

}  // namespace

// Tests of schemas that documents bring: what could take any time, memory or stack is refused,
// wherever the schema is named, and all else is read.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/OwnProcess.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::Outcome;
using test::outcomeOf;
using test::Result;
using test::TempDirectory;
using testing::EndsWith;
using testing::HasSubstr;

const std::string ns = as::namespaces::dd.uri;

std::string repeated(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; i++) result += text;
  return result;
}

// For each number from 0: the text with the number, and the next one, in the places of "#" and "@".
std::string numbered(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; i++) {
    for (const char c : text) {
      if (c == '#' || c == '@') {
        result += std::to_string(c == '#' ? i : i + 1);
      } else {
        result += c;
      }
    }
  }
  return result;
}

std::string doctype(const std::string& declarations) {
  return "<!DOCTYPE xs:schema [" + declarations + "]>";
}

std::string schemaOf(const std::string& content, const std::string& dtd = "",
                     const std::string& target = ns) {
  return dtd + "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns='" + target +
         "' targetNamespace='" + target + "' elementFormDefault='qualified'>" + content +
         "</xs:schema>";
}

// A schema of dictionaries that are a root with a name, with `content` in front of its element.
std::string schemaWith(const std::string& content, const std::string& dtd = "",
                       const std::string& target = ns) {
  return schemaOf(content +
                      "<xs:element name='program'><xs:complexType><xs:attribute name='name'/>"
                      "</xs:complexType></xs:element>",
                  dtd, target);
}

// One of dictionaries with that in a sequence.
std::string schemaOfSequence(const std::string& content, const std::string& before = "") {
  return schemaOf(before + "<xs:element name='program'><xs:complexType><xs:sequence>" + content +
                  "</xs:sequence><xs:attribute name='name'/></xs:complexType></xs:element>");
}

std::string schemaOfPattern(const std::string& pattern) {
  return schemaOf("<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='" +
                  pattern +
                  "'/></xs:restriction></xs:simpleType><xs:element name='program'><xs:complexType>"
                  "<xs:attribute name='name' type='t'/></xs:complexType></xs:element>");
}

// Ten of each in the next: a thousand million of the first.
std::string laughs(const std::string& declare = "", const std::string& reference = "&") {
  std::string text = "<!ENTITY " + declare + "e0 'ha'>";
  for (int i = 1; i <= 9; i++) {
    text += "<!ENTITY " + declare + "e" + std::to_string(i) + " '" +
            repeated(reference + "e" + std::to_string(i - 1) + ";", 10) + "'>";
  }
  return text;
}

std::string documented(const std::string& text) {
  return "<xs:annotation><xs:documentation>" + text + "</xs:documentation></xs:annotation>";
}

const std::string growing = schemaWith(documented("&e9;"), doctype(laughs()));

// A dictionary with these schema attributes.
std::string programWith(const std::string& attributes) {
  return "<program xmlns='" + ns + "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' " +
         attributes + " name='P'/>";
}

std::string located(const std::string& file, const std::string& target = ns) {
  return "xsi:schemaLocation='" + target + " " + file + "'";
}

class BroughtSchema : public testing::Test {
 protected:
  // What becomes of a document in the directory, of a client that names no schemas.
  Outcome<as::IProgram> outcomeBesides(const std::string& document) const {
    return outcomeOf(*test::servicesWithoutSchemas(), document,
                     (directory_.path() + "/d.xml").c_str());
  }
  Outcome<as::IProgram> outcomeWith(const std::string& schema) const {
    directory_.write("s.xsd", schema);
    return outcomeBesides(programWith(located("s.xsd")));
  }

  TempDirectory directory_;
};

TEST_F(BroughtSchema, WithADtdWithoutBoundsIsRefused) {
  const struct {
    const char* what;
    std::string schema;
    const char* text;
  } rows[] = {
      {"entities as content", growing, "entity expansions"},
      {"entities in an attribute", schemaWith("<xs:annotation id='&e9;'/>", doctype(laughs())),
       "entity expansions"},
      {"long entities",
       schemaWith(documented(repeated("&e;", 900)),
                  doctype("<!ENTITY e '" + std::string(60000, 'x') + "'>")),
       "more than 1048576 characters"},
      {"parameter entities", schemaWith("", doctype(laughs("% ", "&#37;") + "%e9;")),
       "the parameter entity 'e0' is refused"},
      {"a parameter entity", schemaWith("", doctype("<!ENTITY % p ''>")),
       "the parameter entity 'p' is refused"},
      {"a long entity", schemaWith("", doctype("<!ENTITY e '" + std::string(65537, 'x') + "'>")),
       "the entity 'e' is longer than 65536 characters"},
      {"attributes", schemaWith("", doctype("<!ATTLIST xs:element id CDATA 'x'>")),
       "the attribute declarations for 'xs:element' are refused"},
      {"an external entity", schemaWith("&e;", doctype("<!ENTITY e SYSTEM 's.xsd'>")),
       "the external entity 's.xsd' is refused"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const auto outcome = outcomeWith(row.schema);
    EXPECT_EQ(outcome.result, Result::parseException);
    EXPECT_THAT(outcome.text, HasSubstr(row.text));
    EXPECT_THAT(outcome.message.getSystemId(), EndsWith("/s.xsd"));
    EXPECT_EQ(outcome.message.getLineNum(), 1);
  }
}

TEST_F(BroughtSchema, WithoutBoundsIsRefusedWhereverItIsNamed) {
  directory_.write("grows.xsd", growing);
  directory_.write("foreign.xsd", schemaWith(documented("&e9;"), doctype(laughs()), "urn:o"));
  directory_.write("plain.xsd", schemaWith(""));
  directory_.write("include.xsd", schemaWith("<xs:include schemaLocation='grows.xsd'/>"));
  directory_.write("redefine.xsd", schemaWith("<xs:redefine schemaLocation='grows.xsd'/>"));
  directory_.write("import.xsd",
                   schemaWith("<xs:import namespace='urn:o' schemaLocation='foreign.xsd'/>"));
  const std::string url = "file://" + directory_.path() + "/grows.xsd";
  for (const std::string& attributes :
       {located("grows.xsd"), located(directory_.path() + "/grows.xsd"), located(url),
        located("include.xsd"), located("redefine.xsd"), located("import.xsd"),
        located("plain.xsd") + " xsi:noNamespaceSchemaLocation='grows.xsd'",
        "xsi:schemaLocation='" + ns + " plain.xsd urn:o foreign.xsd'"}) {
    SCOPED_TRACE(attributes);
    const auto outcome = outcomeBesides(programWith(attributes));
    EXPECT_EQ(outcome.result, Result::parseException);
    EXPECT_THAT(outcome.text, HasSubstr("entity expansions"));
  }
  // With a schema directory, a document may still bring schemas of other namespaces.
  const auto outcome =
      outcomeOf(programWith("xsi:schemaLocation='" + ns + " " + ns + " urn:o foreign.xsd'"),
                (directory_.path() + "/d.xml").c_str());
  EXPECT_THAT(outcome.text, HasSubstr("entity expansions"));
}

// It gives way to the check of the root's namespace, as all that is found in front of the root.
TEST_F(BroughtSchema, OfAForeignDocumentIsNotTheFirstThingToldOfIt) {
  directory_.write("s.xsd", schemaWith(documented("&e9;"), doctype(laughs()), "urn:o"));
  const auto outcome = outcomeBesides(
      "<o:root xmlns:o='urn:o' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' " +
      located("s.xsd", "urn:o") + "/>");
  EXPECT_EQ(outcome.result, Result::namespaceException);
}

TEST_F(BroughtSchema, WithADtdWithinBoundsIsRead) {
  for (const std::string& schema :
       {schemaWith(""), schemaWith("", doctype("")),
        schemaWith("", doctype("<!ELEMENT xs:schema ANY><!NOTATION n SYSTEM 'n'>")),
        schemaWith(documented("&title;"), doctype("<!ENTITY title 'Programs'>")),
        schemaWith("&part;", doctype("<!ENTITY part '<xs:annotation/>'>"))}) {
    SCOPED_TRACE(schema);
    EXPECT_EQ(outcomeWith(schema).result, Result::root);
  }
}

// Each of these took more time, memory or stack than there is, or took as much as its author liked.
using BroughtSchemaDeathTest = BroughtSchema;

TEST_F(BroughtSchemaDeathTest, OfAnyCostIsRefused) {
  const std::string leaf = "<xs:element name='e' minOccurs='0'/>";
  const std::string groups =
      "<xs:group name='g0'><xs:sequence>" + leaf + "</xs:sequence></xs:group>" +
      numbered("<xs:group name='g@'><xs:sequence>" + repeated("<xs:group ref='g#'/>", 10) +
                   "</xs:sequence></xs:group>",
               8);
  std::string sequences = leaf;
  for (int i = 0; i < 4; i++) {
    sequences = "<xs:sequence maxOccurs='50'>" + sequences + "</xs:sequence>";
  }
  const struct {
    const char* what;
    std::string schema;
    const char* text;
  } rows[] = {
      {"repeated sequences", schemaOfSequence(sequences), "more than 2000 elements"},
      {"an element repeated often",
       schemaOfSequence("<xs:element name='e' minOccurs='0' maxOccurs='100000'/>"),
       "more than 2000 elements"},
      {"more often than there are numbers",
       schemaOfSequence("<xs:element name='e' minOccurs='0' maxOccurs='99999999999999999999'/>"),
       "more than 2000 elements"},
      {"groups of groups", schemaOfSequence("<xs:group ref='g8'/>", groups),
       "more than 2000 elements"},
      {"groups that stand in two others each",
       schemaOfSequence("<xs:group ref='a12'/>",
                        "<xs:group name='a0'><xs:sequence>" + leaf +
                            "</xs:sequence></xs:group><xs:group name='b0'><xs:sequence>" + leaf +
                            "</xs:sequence></xs:group>" +
                            numbered("<xs:group name='a@'><xs:sequence><xs:group ref='a#'/>"
                                     "<xs:group ref='b#'/></xs:sequence></xs:group>"
                                     "<xs:group name='b@'><xs:sequence><xs:group ref='a#'/>"
                                     "<xs:group ref='b#'/></xs:sequence></xs:group>",
                                     12)),
       "more than 2000 elements"},
      {"groups of groups, with blanks around their names",
       schemaOfSequence(
           "<xs:group ref=' g8'/>",
           "<xs:group name='g0 '><xs:sequence>" + leaf + "</xs:sequence></xs:group>" +
               numbered("<xs:group name='\ng@'><xs:sequence>" +
                            repeated("<xs:group ref='g# '/>", 10) + "</xs:sequence></xs:group>",
                        8)),
       "more than 2000 elements"},
      {"groups that hold each other",
       schemaOfSequence(
           "<xs:group ref='d5'/>",
           "<xs:complexType name='t'><xs:sequence>" + numbered("<xs:group ref='a@'/>", 5) +
               "</xs:sequence></xs:complexType><xs:group name='d0'><xs:sequence>" + leaf +
               "</xs:sequence></xs:group>" +
               numbered("<xs:group name='d@'><xs:sequence>" + repeated("<xs:group ref='b@'/>", 5) +
                            "</xs:sequence></xs:group>"
                            "<xs:group name='b@'><xs:sequence><xs:group ref='a@'/>" +
                            leaf +
                            "</xs:sequence></xs:group>"
                            "<xs:group name='a@'><xs:sequence>" +
                            repeated("<xs:group ref='d#'/>", 5) +
                            "<xs:group ref='b@'/></xs:sequence></xs:group>",
                        5)),
       "more than 2000 elements"},
      {"annotations that take over namespaces",
       "<xs:schema" + numbered(" xmlns:p#='" + std::string(900, 'u') + "'", 900) +
           schemaWith(repeated("<xs:annotation/>", 1000)).substr(std::string("<xs:schema").size()),
       "more than 1048576 characters"},
      {"attributes that many types take over",
       schemaWith("<xs:attributeGroup name='g'>" + numbered("<xs:attribute name='a#'/>", 700) +
                  "</xs:attributeGroup>" +
                  numbered("<xs:complexType name='t#'><xs:attributeGroup ref='g'/>"
                           "</xs:complexType>",
                           400)),
       "more than 67108864 bytes"},
      {"a content model of a DTD",
       schemaWith("", doctype("<!ELEMENT xs:schema (a" + repeated(",a", 200000) + ")>")),
       "more than 50000 parts of content models"},
      {"declarations of a DTD", schemaWith("", doctype(numbered("<!ENTITY e# ''>", 5001))),
       "more than 5000 declarations"},
      {"elements of a DTD", schemaWith("", doctype(numbered("<!ELEMENT e# ANY>", 5001))),
       "more than 5000 declarations"},
      {"notations of a DTD", schemaWith("", doctype(numbered("<!NOTATION e# SYSTEM 'e'>", 5001))),
       "more than 5000 declarations"},
      {"a sequence of many", schemaOfSequence(repeated(leaf, 20000)), "more than 2000 elements"},
      {"a chain of types",
       schemaWith(numbered("<xs:complexType name='t#'><xs:complexContent><xs:extension base='t@'/>"
                           "</xs:complexContent></xs:complexType>",
                           5000)),
       "more than 2000 elements"},
      {"a chain of groups",
       schemaWith(numbered("<xs:group name='g#'><xs:sequence><xs:group ref='g@'/></xs:sequence>"
                           "</xs:group>",
                           9000)),
       "more than 2000 elements"},
      {"levels",
       schemaWith(repeated("<xs:annotation>", 50000) + repeated("</xs:annotation>", 50000)),
       "more than "},
      {"levels of sequences",
       schemaOfSequence(repeated("<xs:sequence>", 500) + repeated("</xs:sequence>", 500)),
       "more than 100 levels"},
      {"unions of unions",
       schemaWith("<xs:simpleType name='t0'><xs:restriction base='xs:int'/></xs:simpleType>" +
                  numbered("<xs:simpleType name='t@'><xs:union memberTypes='" +
                               repeated("t# ", 10) + "'/></xs:simpleType>",
                           9)),
       "more than 16 members of unions"},
      {"unions in unions",
       schemaWith("<xs:simpleType name='t'><xs:union>" +
                  repeated("<xs:simpleType><xs:restriction base='xs:int'/></xs:simpleType>", 17) +
                  "</xs:union></xs:simpleType>"),
       "more than 16 members of unions"},
      {"keys",
       schemaOf("<xs:element name='program'><xs:complexType/>" +
                numbered("<xs:unique name='u#'><xs:selector xpath='.//*'/><xs:field xpath='@a'/>"
                         "</xs:unique>",
                         9) +
                "</xs:element>"),
       "more than 16 paths"},
      {"paths",
       schemaOf("<xs:element name='program'><xs:complexType/><xs:unique name='u'>"
                "<xs:selector xpath='a" +
                repeated("|a", 20000) + "'/><xs:field xpath='@a'/></xs:unique></xs:element>"),
       "more than 16 paths"},
      {"namespaces of a wildcard",
       schemaWith("<xs:complexType name='t'><xs:anyAttribute namespace='" +
                  numbered("u# ", 100000) + "'/></xs:complexType>"),
       "more than 2000 elements"},
      {"substitution groups",
       schemaWith(numbered("<xs:element name='e#' substitutionGroup='e@'/>", 900)),
       "more than 16 elements that stand for others"},
      {"enumerated durations",
       schemaWith("<xs:simpleType name='t'><xs:restriction base='xs:duration'>" +
                  numbered("<xs:enumeration value='P#D'/>", 1900) +
                  "</xs:restriction></xs:simpleType>"),
       "more than 256 words of enumerated values"},
      {"a pattern within a pattern", schemaOfPattern("(P*)*x"), "the pattern '\\(P\\*\\)\\*x' is"},
      {"a pattern with choices", schemaOfPattern("(P|PP)*x"), "a schema that a document brings"},
      {"a long pattern", schemaOfPattern(std::string(100000, 'P')), "more than 256 characters"},
      {"attributes", schemaWith("<xs:annotation" + numbered(" a#='x'", 1001) + "/>"),
       "more than 1000 attributes"},
      {"bytes", schemaWith("<!--" + std::string(1100000, 'x') + "-->"), "more than 1048576 bytes"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_RESULT_IN_OWN_PROCESS(parseException, outcomeWith(row.schema), row.text);
  }
}

// Few elements, but a great many ways to read them.
TEST_F(BroughtSchemaDeathTest, OfAContentModelThatGrowsWithoutEndIsRefused) {
  const std::string either = "<xs:choice><xs:element name='a'/><xs:element name='b'/></xs:choice>";
  const std::string schema = schemaOfSequence(
      "<xs:choice minOccurs='0' maxOccurs='unbounded'><xs:element name='a'/><xs:element name='b'/>"
      "</xs:choice><xs:element name='a'/>" +
      repeated(either, 30));
  EXPECT_RESULT_IN_OWN_PROCESS(parseException, outcomeWith(schema), "more than 67108864 bytes");
  // Nor is it where a DTD stands in front: while that is read, nothing is told of memory.
  directory_.write("s.xsd", schema);
  EXPECT_RESULT_IN_OWN_PROCESS(
      parseException,
      outcomeBesides("<!DOCTYPE program [<!ENTITY e ''>]>" + programWith(located("s.xsd"))),
      "more than 67108864 bytes");
}

// A schema without a namespace is made anew for each that includes it.
TEST_F(BroughtSchema, CountsForEachNamespaceThatItIsReadFor) {
  directory_.write("c.xsd", "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>" +
                                numbered("<xs:element name='e#'/>", 900) + "</xs:schema>");
  const auto outcomeOfSo = [&](int many) {
    for (int i = 0; i < many; i++) {
      const std::string number = std::to_string(i);
      directory_.write("n" + number + ".xsd",
                       schemaOf("<xs:include schemaLocation='c.xsd'/>", "", "urn:n" + number));
    }
    return outcomeWith(
        schemaWith(numbered("<xs:import namespace='urn:n#' schemaLocation='n#.xsd'/>", many)));
  };
  EXPECT_EQ(outcomeOfSo(2).result, Result::root);
  const auto outcome = outcomeOfSo(3);
  EXPECT_EQ(outcome.result, Result::parseException);
  EXPECT_THAT(outcome.text, HasSubstr("more than 2000 elements"));
  // Bytes are counted as the others are.
  directory_.write("c.xsd", "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><!--" +
                                std::string(400000, 'x') + "--></xs:schema>");
  EXPECT_EQ(outcomeOfSo(2).result, Result::root);
  EXPECT_THAT(outcomeOfSo(3).text, HasSubstr("more than 1048576 bytes"));
  // That, too, gives way to the check of the root's namespace.
  EXPECT_EQ(outcomeBesides("<o:root xmlns:o='urn:o' "
                           "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' " +
                           located("s.xsd") + "/>")
                .result,
            Result::namespaceException);
}

// What a group was stands in its redefinition once, and may so in the redefinition of that.
TEST_F(BroughtSchema, MayRedefineAGroup) {
  const auto group = [](const std::string& content) {
    return "<xs:group name='g'><xs:sequence>" + content + "</xs:sequence></xs:group>";
  };
  const std::string own = "<xs:group ref='g'/><xs:element name='b' minOccurs='0'/>";
  const auto redefining = [&](const std::string& file, const std::string& content) {
    return schemaOf("<xs:redefine schemaLocation='" + file + "'>" + group(content) +
                    "</xs:redefine>");
  };
  directory_.write("a.xsd", schemaOfSequence("<xs:group ref='g'/>",
                                             group("<xs:element name='a' minOccurs='0'/>")));
  directory_.write("b.xsd", redefining("a.xsd", own));
  EXPECT_EQ(outcomeWith(redefining("a.xsd", own)).text, "");
  EXPECT_EQ(outcomeWith(redefining("b.xsd", own)).text, "");
  EXPECT_THAT(outcomeWith(redefining("a.xsd", own + own)).text, HasSubstr("more than 2000"));
}

TEST_F(BroughtSchemaDeathTest, ThatLeadsBackToItselfEnds) {
  const std::string program =
      "<xs:element name='program'><xs:complexType><xs:attribute name='name'/></xs:complexType>"
      "</xs:element>";
  const struct {
    const char* what;
    std::string schema;
    Result result;
  } rows[] = {
      {"include", schemaWith("<xs:include schemaLocation='s.xsd'/>"), Result::root},
      {"include by another name", schemaWith("<xs:include schemaLocation='x/../s.xsd'/>"),
       Result::root},
      {"include through a link", schemaWith("<xs:include schemaLocation='link/s.xsd'/>"),
       Result::parseException},
      {"redefine", schemaWith("<xs:redefine schemaLocation='s.xsd'/>"), Result::root},
      {"group",
       schemaOfSequence("<xs:group ref='a'/>",
                        "<xs:group name='a'><xs:sequence><xs:group ref='b'/></xs:sequence>"
                        "</xs:group><xs:group name='b'><xs:sequence><xs:group ref='a'/>"
                        "</xs:sequence></xs:group>"),
       Result::parseException},
      {"type",
       schemaOf("<xs:complexType name='a'><xs:complexContent><xs:extension base='b'/>"
                "</xs:complexContent></xs:complexType><xs:complexType name='b'><xs:complexContent>"
                "<xs:extension base='a'/></xs:complexContent></xs:complexType>"
                "<xs:element name='program' type='a'/>"),
       Result::parseException},
      {"substitution",
       schemaWith("<xs:element name='a' substitutionGroup='b'/>"
                  "<xs:element name='b' substitutionGroup='a'/>"),
       Result::parseException},
  };
  std::filesystem::create_directory_symlink(".", directory_.path() + "/link");
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EXIT(test::tellAndExit(outcomeWith(row.schema)),
                testing::ExitedWithCode(static_cast<int>(row.result)), "");
  }
}

// What a client may want of a schema of its own.
TEST_F(BroughtSchema, OfAnOrdinaryKindIsRead) {
  const std::string leaf = "<xs:element name='e' minOccurs='0' maxOccurs='unbounded'/>";
  for (const std::string& schema :
       {schemaOfSequence(leaf),
        schemaOfSequence("<xs:sequence maxOccurs='100'>" + leaf + "</xs:sequence>"),
        schemaOfSequence("<xs:group ref='g'/><xs:group ref='g'/>",
                         "<xs:group name='g'><xs:sequence>" + leaf + "</xs:sequence></xs:group>"),
        schemaOfPattern("[A-Z]([A-Z0-9\\-]{0,29})?"),
        schemaWith("<xs:simpleType name='t'><xs:union memberTypes='xs:int xs:date'/>"
                   "</xs:simpleType>")}) {
    SCOPED_TRACE(schema);
    const auto outcome = outcomeWith(schema);
    EXPECT_NE(outcome.result, Result::exception);
    EXPECT_THAT(outcome.text, testing::Not(HasSubstr("refused")));
  }
}

TEST_F(BroughtSchema, MayBeACopyOfAnyOfOurs) {
  for (const auto& one : {as::namespaces::dd, as::namespaces::ws, as::namespaces::com,
                          as::namespaces::java, as::namespaces::service, as::namespaces::dotnet}) {
    SCOPED_TRACE(one.schemaFile);
    const std::string name = one.schemaFile;
    directory_.write(name, test::contentOf(std::string(AS_SCHEMA_DIR) + "/" + name));
    const auto outcome =
        outcomeBesides(programWith("xsi:schemaLocation='" + ns + " vorcobol.xsd " +
                                   (one.uri == ns ? "" : one.uri + (" " + name)) + "'"));
    EXPECT_EQ(outcome.result, Result::root) << outcome.text;
  }
}

// Those of the schema directory are the client's own.
TEST_F(BroughtSchema, IsNoneOfTheSchemaDirectorys) {
  const std::string costly = schemaWith("<xs:include schemaLocation='part.xsd'/>" +
                                        numbered("<xs:attributeGroup name='g#'/>", 3000));
  directory_.write("vorcobol.xsd", costly);
  directory_.write("part.xsd", schemaOf(numbered("<xs:attributeGroup name='h#'/>", 3000)));
  const auto services = test::servicesWithoutSchemas();
  services->setSchemaLocation(directory_.path().c_str());
  const auto outcome = outcomeOf(*services, programWith(located(ns)));
  EXPECT_EQ(outcome.result, Result::root) << outcome.text;
  EXPECT_THAT(outcomeBesides(programWith(located("vorcobol.xsd"))).text,
              HasSubstr("more than 2000 elements"));
}

// What was found first is told, whatever is found behind it.
TEST_F(BroughtSchema, TheFirstMessageIsTheOneTold) {
  const std::string xsi = "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' ";
  const std::string bad = "<program xmlns='" + ns + "' " + xsi + located(ns) + " name='P'/>";
  const struct {
    const char* what;
    std::string document;
    const char* text;
  } rows[] = {
      {"attribute declarations behind a second declaration",
       "<!DOCTYPE program [<!ELEMENT program ANY><!ELEMENT program ANY>"
       "<!ATTLIST program x CDATA 'x'>]>" +
           bad,
       "element 'program' has already been declared"},
      {"parameter entity behind it",
       "<!DOCTYPE program [<!ELEMENT program ANY><!ELEMENT program ANY><!ENTITY % p ''>]>" + bad,
       "element 'program' has already been declared"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_THAT(outcomeOf(row.document).text, HasSubstr(row.text));
  }
}

// A schema that lets every element in everywhere, with any attributes.
std::string laxSchema(const std::string& target, const std::vector<std::string>& elements) {
  std::string content;
  for (const std::string& element : elements) {
    content += "<xs:element name='" + element +
               "'><xs:complexType mixed='true'><xs:sequence><xs:any processContents='lax' "
               "minOccurs='0' maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute "
               "processContents='skip'/></xs:complexType></xs:element>";
  }
  return schemaOf(content, "", target);
}

// What our schemas never let through, but the builders have objects for.
TEST_F(BroughtSchemaDeathTest, MayLetElementsStandWhereTheyMeanNothing) {
  const struct {
    const char* content;
    Result result;
  } rows[] = {
      {"<program/>", Result::root},
      {"<group><program><dataItems><numeric/></dataItems></program></group>", Result::root},
      {"<dataItems><numeric/></dataItems><dataItems><group/></dataItems>", Result::root},
      {"<dataItems><dataItems><numeric name='N'/></dataItems></dataItems>", Result::root},
      {"<dataItems><entryPoints/><property/><fd><fd/></fd></dataItems>", Result::root},
      {"<entryPoints><numeric/><entryPoint><group/><parameter><parameter/></parameter>"
       "</entryPoint></entryPoints>",
       Result::root},
      {"<fileSection><numeric/><fd><dataItems><property/></dataItems><dataItems/></fd>"
       "</fileSection>",
       Result::root},
      {"<dataItems><numeric><numericCondition><numericCondition/><numeric/></numericCondition>"
       "</numeric></dataItems>",
       Result::root},
      {"<numericRange/><numericConstant/><parameter/>text", Result::root},
  };
  directory_.write(
      "s.xsd", laxSchema(ns, {"program", "group", "dataItems", "numeric", "property", "entryPoints",
                              "entryPoint", "parameter", "fd", "fileSection", "numericCondition",
                              "numericRange", "numericConstant"}));
  const std::string declared = " xmlns='" + ns +
                               "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' " +
                               located("s.xsd");
  for (const auto& row : rows) {
    SCOPED_TRACE(row.content);
    const auto expected = testing::ExitedWithCode(static_cast<int>(row.result));
    EXPECT_EXIT(
        test::tellAndExit(outcomeBesides("<program" + declared + ">" + row.content + "</program>")),
        expected, "");
  }
  for (const char* root : {"numeric", "group", "dataItems", "parameter", "fd", "property"}) {
    SCOPED_TRACE(root);
    const std::string document = "<" + std::string(root) + declared + "><program/></" + root + ">";
    EXPECT_EXIT(test::tellAndExit(outcomeBesides(document)),
                testing::ExitedWithCode(static_cast<int>(Result::null)), "");
  }
}

TEST_F(BroughtSchema, OrDocumentOfAnUnknownVersionOfXmlIsRefused) {
  for (const char* version : {"1.2", "2.0", "9"}) {
    const std::string declaration = "<?xml version='" + std::string(version) + "'?>";
    EXPECT_EQ(outcomeOf(declaration + test::dictionary("")).result, Result::parseException);
    EXPECT_EQ(outcomeWith(declaration + schemaWith("")).result, Result::parseException);
  }
}

}  // namespace

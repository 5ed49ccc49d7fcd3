// Tests of documents that bring schemas and DTDs of their own: there is no way round the client's.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "as/Namespaces.h"
#include "hostile/Texts.h"
#include "support/Documents.h"
#include "support/Encodings.h"
#include "support/OwnProcess.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using hostile::doctype;
using hostile::ns;
using hostile::programWith;
using hostile::programWithHint;
using test::dictionary;
using test::dictionaryOf;
using test::encoded;
using test::encodingDeclaration;
using test::outcomeOf;
using test::Result;
using test::servicesWithoutSchemas;
using test::TempDirectory;
using testing::AnyOf;
using testing::HasSubstr;

TEST(HostileSchemaDeathTest, DtdDoesNotReplaceTheSchema) {
  const std::string fixed = "<!ATTLIST program xmlns CDATA #FIXED '" + ns + "'>";
  const std::string inNamespace = "<program xmlns='" + ns + "'";
  for (const std::string& document :
       {doctype("<!ELEMENT program EMPTY>") + inNamespace + "/>",
        doctype("<!ELEMENT program EMPTY>" + fixed) + "<program/>",
        doctype("<!ELEMENT program ANY><!ATTLIST program xmlns CDATA #IMPLIED>") + inNamespace +
            "/>",
        doctype("<!ELEMENT program ANY><!ATTLIST program xmlns CDATA #IMPLIED>"
                "<!ELEMENT bogus EMPTY>") +
            inNamespace + "><bogus/></program>",
        doctype("<!ELEMENT program ANY><!ELEMENT alphanumericEdited EMPTY>" + fixed) +
            "<program><alphanumericEdited/></program>",
        doctype("<!ELEMENT alphanumericEdited EMPTY>" + fixed) + inNamespace +
            "><alphanumericEdited/></program>",
        doctype("<!ELEMENT alphanumericEdited EMPTY>") +
            dictionaryOf("<alphanumericEdited name='A'/>")}) {
    SCOPED_TRACE(document);
    EXPECT_RESULT_WITHOUT_ABORT(parseException, outcomeOf(document));
  }
}

TEST(HostileSchema, DtdDefaultsDoNotPassTheSchemaBy) {
  const std::string declared =
      "<!ELEMENT program ANY><!ELEMENT dataItems ANY><!ELEMENT numeric ANY>";
  for (const char* attribute : {"length CDATA 'ten'", "sync CDATA 'yes'", "usage CDATA 'other'",
                                "bogus CDATA 'x'", "line CDATA #FIXED '-1'"}) {
    SCOPED_TRACE(attribute);
    EXPECT_EQ(outcomeOf(doctype(declared + "<!ATTLIST numeric " + attribute + ">") +
                        dictionaryOf("<numeric name='N'/>"))
                  .result,
              Result::parseException);
  }
}

// The client has named the directory of the schemas; a document may not bring a laxer one of its
// own. Here one that lets through what the model has no object for.
TEST(HostileSchemaDeathTest, ADocumentDoesNotBringItsOwnSchema) {
  const TempDirectory directory;
  const std::string start = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' ";
  const std::string lax =
      "<xs:complexType><xs:sequence><xs:any processContents='lax' "
      "minOccurs='0'/></xs:sequence><xs:anyAttribute processContents='skip'/>"
      "</xs:complexType></xs:element>";
  directory.write("lax.xsd", start + "targetNamespace='" + ns + "'><xs:element name='program'>" +
                                 lax + "<xs:element name='dataItems'>" + lax +
                                 "<xs:element name='alphanumericEdited'>" + lax + "</xs:schema>");
  directory.write("importing.xsd", start + "targetNamespace='urn:other'><xs:import namespace='" +
                                       ns + "' schemaLocation='lax.xsd'/></xs:schema>");
  const std::string id = directory.path() + "/d.xml";
  const std::string content = "<dataItems><alphanumericEdited name='A'/></dataItems>";
  for (const std::string& hint :
       {ns + " lax.xsd", ns + " " + directory.path() + "/lax.xsd", ns + " lax.xsd " + ns + " " + ns,
        "urn:other importing.xsd " + ns + " " + ns}) {
    SCOPED_TRACE(hint);
    const std::string document = programWith("xsi:schemaLocation='" + hint + "'", content);
    EXPECT_RESULT_WITHOUT_ABORT(parseException,
                                outcomeOf(*test::newServices(), document, id.c_str()));
  }
}

// Groups that hold the next one twice, the last one an element; references have this `prefix`.
std::string doublingGroups(const std::string& prefix) {
  std::string groups;
  for (int i = 0; i < 20; i++) {
    const std::string next = "<xs:group ref='" + prefix + "g" + std::to_string(i + 1) + "'/>";
    groups += "<xs:group name='g" + std::to_string(i) + "'><xs:sequence>" + next + next +
              "</xs:sequence></xs:group>";
  }
  return groups +
         "<xs:group name='g20'><xs:sequence><xs:element name='e'/></xs:sequence></xs:group>";
}

// What looks at schemas took the end of such a declaration for the start of an unknown encoding,
// and what then uses it did not.
TEST(HostileSchema, AnEncodingToldLateHidesNothing) {
  const std::string type = "<xs:complexType name='t'><xs:group ref='g0'/></xs:complexType>";
  std::string schema = hostile::laxSchema(ns, {"program"}, doublingGroups("") + type);
  schema.insert(schema.find(" elementFormDefault"), " xmlns='" + ns + "'");
  const std::string told = encodingDeclaration("IBM037");
  const TempDirectory directory;
  const std::string id = directory.path() + "/d.xml";
  for (const unsigned blanks : {5000U, 15000U, 20000U, 40000U, 70000U}) {
    SCOPED_TRACE(blanks);
    directory.write("s.xsd", std::string(told).insert(told.find(" encoding"), blanks, ' ') +
                                 encoded(schema, "IBM037"));
    const auto outcome = outcomeOf(*servicesWithoutSchemas(), programWithHint("s.xsd"), id.c_str());
    EXPECT_EQ(outcome.result, Result::parseException);
    EXPECT_THAT(outcome.text, AnyOf(HasSubstr("2000 elements"), HasSubstr("unable to decode")));
  }
}

// To the parser a prefix is what it was declared to be last on the way to where it is looked up,
// and that leads from one component of a schema to the next.
TEST(HostileSchema, APrefixDeclaredTwiceHidesNoGroups) {
  const std::string type =
      "<xs:complexType name='t' xmlns:p='" + ns + "'><xs:group ref='p:g0'/></xs:complexType>";
  std::string schema = hostile::laxSchema(ns, {"program"}, type + doublingGroups("p:"));
  schema.insert(schema.find(" elementFormDefault"), " xmlns:p='urn:other'");
  const TempDirectory directory;
  directory.write("s.xsd", schema);
  const std::string id = directory.path() + "/d.xml";
  const auto outcome = outcomeOf(*servicesWithoutSchemas(), programWithHint("s.xsd"), id.c_str());
  EXPECT_EQ(outcome.result, Result::parseException);
  EXPECT_THAT(outcome.text, HasSubstr("2000 elements"));
}

// A schema may import a namespace without telling where its schema is.
TEST(HostileSchemaDeathTest, ImportsWithoutALocationAreNotFetched) {
  const std::string start =
      "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='";
  const std::string any =
      "<xs:complexType mixed='true'><xs:sequence><xs:any processContents='lax' minOccurs='0' "
      "maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute processContents='lax'/>"
      "</xs:complexType>";
  const std::string program = "<xs:element name='program'>" + any + "</xs:element></xs:schema>";
  const std::string xmlImport = "<xs:import namespace='http://www.w3.org/XML/1998/namespace'/>";
  const struct {
    const char* what;
    std::string declarations;
    Result result;
  } rows[] = {
      {"of the xml namespace", xmlImport, Result::root},
      {"of another", "<xs:import namespace='urn:o'/>", Result::root},
      {"of several", "<xs:import namespace='urn:o'/>" + xmlImport, Result::root},
      {"of one of ours", "<xs:import namespace='" + std::string(as::namespaces::ws.uri) + "'/>",
       Result::root},
      {"of no namespace", "<xs:import/>", Result::root},
      {"of the schemas' own", "<xs:import namespace='" + ns + "'/>", Result::parseException},
      {"with an empty one", "<xs:import namespace='urn:o' schemaLocation=''/>",
       Result::parseException},
      {"with a blank one", "<xs:import namespace='urn:o' schemaLocation=' '/>",
       Result::parseException},
      {"include", "<xs:include/>", Result::parseException},
      {"include with an empty one", "<xs:include schemaLocation=''/>", Result::parseException},
      {"redefine", "<xs:redefine/>", Result::parseException},
      {"redefine with an empty one", "<xs:redefine schemaLocation=''/>", Result::parseException},
      // What the import was for is not there.
      {"with a reference into it",
       xmlImport + "<xs:complexType name='t'><xs:attribute ref='xml:lang'/></xs:complexType>",
       Result::parseException},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    // The document's own.
    const TempDirectory own;
    own.write("own.xsd", start + ns + "'>" + row.declarations + program);
    const std::string id = own.path() + "/d.xml";
    const std::string document = programWithHint("own.xsd", "");
    const auto expected = testing::ExitedWithCode(static_cast<int>(row.result));
    EXPECT_EXIT(test::tellAndExit(outcomeOf(*servicesWithoutSchemas(), document, id.c_str())),
                expected, "");
    // That of the schema directory.
    const TempDirectory schemas;
    schemas.write("vorcobol.xsd", start + ns + "'>" + row.declarations + program);
    std::filesystem::copy(AS_SCHEMA_DIR "/vorws.xsd", schemas.path());
    const auto services = servicesWithoutSchemas();
    services->setSchemaLocation(schemas.path().c_str());
    EXPECT_EXIT(test::tellAndExit(outcomeOf(*services, programWithHint(ns))), expected, "");
  }
}

// Where there is a schema directory, our schemas are found without a location.
TEST(HostileSchemaDeathTest, ImportsOfOurNamespacesNeedNoLocation) {
  const TempDirectory directory;
  const std::string ws = as::namespaces::ws.uri;
  directory.write("importing.xsd",
                  "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns:w='" + ws +
                      "' targetNamespace='urn:o'><xs:import namespace='" + ws +
                      "'/><xs:element name='e' type='w:service'/></xs:schema>");
  const std::string id = directory.path() + "/d.xml";
  const std::string document =
      programWith("xsi:schemaLocation='" + ns + " " + ns + " urn:o importing.xsd'");
  EXPECT_RESULT_WITHOUT_ABORT(root, outcomeOf(*test::newServices(), document, id.c_str()));
  const TempDirectory empty;
  const auto services = servicesWithoutSchemas();
  services->setSchemaLocation(empty.path().c_str());
  std::filesystem::copy(AS_SCHEMA_DIR "/vorcobol.xsd", empty.path());
  EXPECT_RESULT_IN_OWN_PROCESS(parseException, outcomeOf(*services, document, id.c_str()),
                               HasSubstr("vorws.xsd"));
}

TEST(HostileSchema, WhatNoSchemaDescribesIsRefused) {
  for (const char* content :
       {"<o:other xmlns:o='urn:other'/>", "<other xmlns=''/>",
        "<dataItems><o:numeric xmlns:o='urn:other' name='N'/></dataItems>",
        "<dataItems><numeric name='N' o:length='1' xmlns:o='urn:other'/></dataItems>",
        "<dataItems><numeric name='N' xsi:type='o:t' xmlns:o='urn:other'/></dataItems>",
        "<dataItems><numeric name='N' xsi:type='undeclared:t'/></dataItems>"}) {
    SCOPED_TRACE(content);
    EXPECT_EQ(outcomeOf(dictionary(content)).result, Result::parseException);
  }
}

}  // namespace

// Tests of the requests for dictionaries: where documents come from, and what is none.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::bytesOf;
using test::declarations;
using test::dictionary;
using test::dictionaryOf;
using test::element;
using test::lengthOf;
using test::outcomeOf;
using test::outcomeOfFile;
using test::Result;
using test::TempDirectory;
using test::topItem;
using testing::HasSubstr;

const std::string ns = as::namespaces::dd.uri;

// Entry object.

TEST(CreateAgentServices, MakesANewObjectEachTime) {
  const std::unique_ptr<as::IAgentServices> first(as::CAgentServicesFactory::CreateAgentServices());
  const std::unique_ptr<as::IAgentServices> second(
      as::CAgentServicesFactory::CreateAgentServices());
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
}

TEST(CreateAgentServices, HasNoSchemaDirectory) {
  const auto services = test::servicesWithoutSchemas();
  // The hint is then followed as it stands.
  EXPECT_THAT(outcomeOf(*services, dictionary("")).text, HasSubstr("not read over a network"));
}

// Documents.

TEST(ParseDictionary, ReadsAFile) {
  const TempDirectory directory;
  const auto outcome = outcomeOfFile(directory.write("d.xml", dictionaryOf("<numeric name='N'/>")));
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  EXPECT_EQ(outcome.root->getName(), "PAYROLL");
  EXPECT_EQ(topItem<as::INumeric>(*outcome.root)->getName(), "N");
}

TEST(ParseDictionary, ReadsABuffer) {
  const auto outcome = outcomeOf(dictionaryOf("<numeric name='N'/>"));
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  EXPECT_EQ(outcome.root->getName(), "PAYROLL");
  EXPECT_EQ(topItem<as::INumeric>(*outcome.root)->getName(), "N");
}

TEST(ParseDictionary, ReadsAFileOfAnyName) {
  const TempDirectory directory;
  for (const char* name : {"plain", "with blank.xml",
                           "Stra\xC3\x9F"
                           "e.xml",
                           "\xE6\x97\xA5.xml", "a;b.xml", "a&b.xml"}) {
    SCOPED_TRACE(name);
    const auto outcome = outcomeOfFile(directory.write(name, dictionary("")));
    EXPECT_EQ(outcome.result, Result::root) << outcome.text;
  }
}

TEST(ParseDictionary, ReadsALocalFileByItsUrl) {
  const TempDirectory directory;
  const std::string file = directory.write("d.xml", dictionary(""));
  EXPECT_EQ(outcomeOfFile("file://" + file).result, Result::root);
  EXPECT_EQ(outcomeOfFile("file://localhost" + file).result, Result::root);
}

TEST(ParseDictionary, ReadsTheBytesOfTheLengthOnly) {
  const std::string document = dictionary("");
  const std::string longer = document + "<garbage";
  const auto outcome = outcomeOf(
      [&] { return test::newServices()->parseCobolDD("b", bytesOf(longer), lengthOf(document)); });
  EXPECT_EQ(outcome.result, Result::root) << outcome.text;
}

TEST(ParseDictionary, DoesNotKeepTheBuffer) {
  std::string document = dictionaryOf("<numeric name='N' picture='9(4)'/>");
  const auto outcome = outcomeOf(document);
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  document.assign(document.size(), '?');
  EXPECT_EQ(outcome.root->getName(), "PAYROLL");
  EXPECT_EQ(topItem<as::INumeric>(*outcome.root)->getPicture(), "9(4)");
}

TEST(ParseDictionary, ServesManyRequests) {
  const auto services = test::newServices();
  const auto first = outcomeOf(*services, dictionaryOf("<numeric name='A'/>"));
  EXPECT_EQ(outcomeOf(*services, "<broken").result, Result::parseException);
  EXPECT_EQ(outcomeOf(*services, "<other/>").result, Result::namespaceException);
  const auto second = outcomeOf(*services, dictionaryOf("<numeric name='B'/>"));
  ASSERT_EQ(first.result, Result::root);
  ASSERT_EQ(second.result, Result::root);
  EXPECT_EQ(topItem<as::IDataItem>(*first.root)->getName(), "A");
  EXPECT_EQ(topItem<as::IDataItem>(*second.root)->getName(), "B");
}

// Null and nothing.

TEST(ParseDictionary, NothingIsNoDocument) {
  const auto services = test::newServices();
  const std::string document = dictionary("");
  const auto* const bytes = bytesOf(document);
  const struct {
    const char* what;
    std::function<as::IProgram*()> request;
  } rows[] = {
      {"null file", [&] { return services->parseCobolDD(nullptr); }},
      {"empty file name", [&] { return services->parseCobolDD(""); }},
      {"no bytes", [&] { return services->parseCobolDD("b", bytes, 0); }},
      {"null buffer", [&] { return services->parseCobolDD("b", nullptr, 0); }},
      {"null buffer with a length", [&] { return services->parseCobolDD("b", nullptr, 100); }},
      {"all null", [&] { return services->parseCobolDD(nullptr, nullptr, 0); }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const auto outcome = outcomeOf(row.request);
    EXPECT_EQ(outcome.result, Result::parseException);
    EXPECT_NE(outcome.text, "");
  }
  for (const char* blank : {"", " ", "\n\n", "\xEF\xBB\xBF", "<!-- only -->", "<?only this?>",
                            "<?xml version=\"1.0\"?>", "<!DOCTYPE program>"}) {
    SCOPED_TRACE(blank);
    EXPECT_EQ(outcomeOf(*services, blank).result, Result::parseException);
  }
}

TEST(ParseDictionary, ABufferNeedsNoName) {
  const std::string document = dictionary("");
  const auto services = test::newServices();
  EXPECT_EQ(outcomeOf(*services, document, nullptr).result, Result::root);
  EXPECT_EQ(outcomeOf(*services, document, "").result, Result::root);
  EXPECT_EQ(outcomeOf(*services, "<", nullptr).message.getSystemId(), "");
}

// Namespaces.

TEST(ParseDictionary, RefusesARootInAnotherNamespace) {
  std::vector<std::string> uris = {
      "",       "urn:other",           as::namespaces::service.uri,       ns + "/",
      ns + " ", "HTTP" + ns.substr(4), "http://www.w3.org/2001/XMLSchema"};
  for (const test::Flavour& flavour : test::flavours::all) uris.emplace_back(flavour.own.uri);
  for (const std::string& uri : uris) {
    for (const char* rest :
         {"name='P'/>", "name='P'><dataItems/></program>", "><broken", "&broken"}) {
      SCOPED_TRACE(uri + " " + rest);
      const auto outcome = outcomeOf("<program xmlns='" + uri + "' " + rest);
      // Malformed within the root's own tag: no root yet.
      EXPECT_EQ(outcome.result, *rest == '&' ? Result::parseException : Result::namespaceException);
    }
  }
}

TEST(ParseDictionary, RefusesARootInNoNamespace) {
  for (const char* document : {"<program/>", "<program name='P'/>", "<p><q/></p>", "<service/>",
                               "<!-- c --><?p?><!DOCTYPE program><program/>",
                               "<!DOCTYPE program [<!ELEMENT program EMPTY>]><program/>"}) {
    SCOPED_TRACE(document);
    EXPECT_EQ(outcomeOf(document).result, Result::namespaceException);
  }
}

TEST(ParseDictionary, RefusesAServiceWithItsOwnSchemaHint) {
  for (const std::string uri : {as::namespaces::service.uri, as::namespaces::ws.uri}) {
    SCOPED_TRACE(uri);
    const auto outcome = outcomeOf("<service " + declarations(uri, "urn:none " + ns) + "/>");
    EXPECT_EQ(outcome.result, Result::namespaceException) << outcome.text;
  }
}

// The right namespace, but nothing that says where its schema is.
TEST(ParseDictionary, RefusesARootWithoutASchemaHint) {
  const auto outcome = outcomeOf("<program xmlns='" + ns + "' name='P'/>");
  EXPECT_EQ(outcome.result, Result::parseException);
  EXPECT_THAT(outcome.text, HasSubstr("'program'"));
}

// A schema of the client's own may allow other roots.
TEST(ParseDictionary, ARootThatIsNoProgramGivesNull) {
  const TempDirectory directory;
  const std::vector<std::string> roots = {"properties", "property",    "fileSection",     "fd",
                                          "dataItems",  "entryPoints", "group",           "numeric",
                                          "pointer",    "parameter",   "numericCondition"};
  directory.write("vorcobol.xsd", test::schemaOfRoots(ns, roots));
  const auto services = test::newServices();
  services->setSchemaLocation(directory.path().c_str());
  for (const std::string& root : roots) {
    SCOPED_TRACE(root);
    const auto outcome = outcomeOf(*services, element(root, "", declarations(ns)));
    EXPECT_EQ(outcome.result, Result::null) << outcome.text;
  }
}

}  // namespace

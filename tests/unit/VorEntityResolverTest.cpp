// Tests of the mapping of schema references onto local files.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/Dom.h"
#include "xml/Vocabulary.h"
#include "xml/VorEntityResolver.h"

namespace {

// The file that a reference is resolved to; "(null)" for none.
std::string resolve(VorEntityResolver& resolver, const XMLCh* systemId) {
  const std::unique_ptr<xercesc::InputSource> source(resolver.resolveEntity(nullptr, systemId));
  return source ? test::narrow(source->getSystemId()) : "(null)";
}

TEST(VorEntityResolver, ResolvesEverySchemaByUriAndByName) {
  const struct {
    const XMLCh* uri;
    const XMLCh* name;
    const char* file;
  } rows[] = {
      {XSDNS::ddURI, u"vorcobol.xsd", "/s/vorcobol.xsd"},
      {XSDNS::comURI, u"vorcom.xsd", "/s/vorcom.xsd"},
      {XSDNS::javaURI, u"vorjava.xsd", "/s/vorjava.xsd"},
      {XSDNS::wsURI, u"vorws.xsd", "/s/vorws.xsd"},
      {XSDNS::serviceURI, u"vorservice.xsd", "/s/vorservice.xsd"},
      {XSDNS::dotnetURI, u"vordotnet.xsd", "/s/vordotnet.xsd"},
  };
  VorEntityResolver resolver;
  resolver.setSchemaLocation("/s/");
  for (const auto& row : rows) {
    EXPECT_EQ(resolve(resolver, row.uri), row.file);
    EXPECT_EQ(resolve(resolver, row.name), row.file);
  }
}

TEST(VorEntityResolver, PutsTheDirectoryInFrontAsItStands) {
  VorEntityResolver resolver;
  for (const char* directory : {"/s//", "/s", "s\\"}) {
    resolver.setSchemaLocation(directory);
    EXPECT_EQ(static_cast<std::string>(resolver.getLocationForSchema(u"vorws.xsd")),
              std::string(directory) + "vorws.xsd");
  }
}

TEST(VorEntityResolver, ADoubledSeparatorStays) {
  VorEntityResolver resolver;
  resolver.setSchemaLocation("/s//");
  EXPECT_EQ(resolve(resolver, XSDNS::serviceURI), "/s//vorservice.xsd");
}

TEST(VorEntityResolver, LeavesEverythingElseToTheParser) {
  VorEntityResolver resolver;
  resolver.setSchemaLocation("/s/");
  for (const XMLCh* other : {u"http://agentservices.example/schema/cobol/v2.0/VORCOBOL.XSD",
                             u"other.xsd", u"", u"./vorcobol.xsd", u"dir/vorcobol.xsd",
                             u"vorcobol.xsd ", u"http://elsewhere/vorcobol.xsd"}) {
    EXPECT_EQ(resolve(resolver, other), "(null)") << test::narrow(other);
  }
  EXPECT_EQ(resolve(resolver, nullptr), "(null)");
}

TEST(VorEntityResolver, ResolvesNothingWithoutADirectory) {
  VorEntityResolver resolver;
  EXPECT_EQ(resolve(resolver, XSDNS::ddURI), "(null)");
  resolver.setSchemaLocation("");
  EXPECT_EQ(resolve(resolver, XSDNS::ddURI), "(null)");
  resolver.setSchemaLocation(nullptr);
  EXPECT_EQ(resolve(resolver, XSDNS::ddURI), "(null)");
}

TEST(VorEntityResolver, ResolvesNamespaces) {
  VorEntityResolver resolver;
  EXPECT_EQ(resolver.resolveNamespace(XSDNS::ddURI), nullptr) << "no directory yet";
  resolver.setSchemaLocation("/s/");
  const std::unique_ptr<xercesc::InputSource> source(resolver.resolveNamespace(XSDNS::wsURI));
  ASSERT_NE(source, nullptr);
  EXPECT_EQ(test::narrow(source->getSystemId()), "/s/vorws.xsd");
  EXPECT_EQ(resolver.resolveNamespace(u"vorws.xsd"), nullptr);
  EXPECT_EQ(resolver.resolveNamespace(nullptr), nullptr);
}

TEST(VorEntityResolver, PublicIdentifierHasNoPart) {
  VorEntityResolver resolver;
  resolver.setSchemaLocation("/s/");
  EXPECT_EQ(resolver.resolveEntity(XSDNS::ddURI, u"other.xsd"), nullptr);
}

TEST(VorEntityResolver, DirectoryMayBeNonAscii) {
  VorEntityResolver resolver;
  resolver.setSchemaLocation("/sch\xC3\xA9mas/");
  EXPECT_EQ(resolve(resolver, XSDNS::ddName), "/sch\xC3\xA9mas/vorcobol.xsd");
}

}  // namespace

// Tests of documents that name what they must not: nothing is fetched, and most is refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "hostile/FifoTrap.h"
#include "hostile/NetworkTrap.h"
#include "hostile/Texts.h"
#include "support/Documents.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using hostile::complete;
using hostile::doctype;
using hostile::FifoTrap;
using hostile::network;
using hostile::NetworkTrap;
using hostile::ns;
using hostile::programWith;
using hostile::programWithHint;
using hostile::special;
using test::dictionary;
using test::dictionaryOf;
using test::outcomeOf;
using test::Result;
using test::servicesWithoutSchemas;
using test::TempDirectory;
using testing::AnyOf;
using testing::HasSubstr;

class HostileReference : public testing::Test {
 protected:
  // Expects as::CASParseException with `text` in its message, and nothing fetched.
  void expectRefused(as::IAgentServices& services, const std::string& document,
                     const std::string& text, const std::string& id = "test.xml") {
    const auto outcome = outcomeOf(services, document, id.c_str());
    EXPECT_EQ(outcome.result, Result::parseException);
    EXPECT_THAT(outcome.text, HasSubstr(text));
    EXPECT_EQ(network_.visitors(), 0);
  }
  void expectRefused(const std::string& document, const std::string& text,
                     const std::string& id = "test.xml") {
    expectRefused(*test::newServices(), document, text, id);
  }

  NetworkTrap network_;
  TempDirectory directory_;
};

TEST_F(HostileReference, ToAnExternalEntityIsRefused) {
  const std::string file = directory_.write("entity.txt", "<numeric name='FETCHED'/>");
  for (const std::string& target : {network_.url("entity.txt"), file, "file://" + file,
                                    std::string("entity.txt"), std::string("vorcobol.xsd"), ns}) {
    const std::string system = " SYSTEM '" + target + "'";
    const std::string items = dictionaryOf("<group name='G'>&e;</group>");
    const struct {
      const char* what;
      std::string document;
      const char* text;
    } rows[] = {
        {"general entity", doctype("<!ENTITY e" + system + ">") + items, complete},
        {"with a public name", doctype("<!ENTITY e PUBLIC '-//X//Y' '" + target + "'>") + items,
         complete},
        {"in an internal one", doctype("<!ENTITY x" + system + "><!ENTITY e '&#38;x;'>") + items,
         complete},
        {"in an attribute",
         doctype("<!ENTITY e" + system + ">") + dictionaryOf("<group name='&e;'/>"),
         "external entity"},
        {"parameter entity", doctype("<!ENTITY % p" + system + "> %p;") + dictionary(""), complete},
        {"external subset", "<!DOCTYPE program" + system + ">" + dictionary(""), complete},
        {"external subset with a public name",
         "<!DOCTYPE program PUBLIC '-//X//Y' '" + target + "'>" + dictionary(""), complete},
        {"external subset beside an internal one",
         "<!DOCTYPE program" + system + " [<!ENTITY e 'x'>]>" + dictionary(""), complete},
    };
    for (const auto& row : rows) {
      SCOPED_TRACE(std::string(row.what) + " " + target);
      expectRefused(row.document, row.text, directory_.path() + "/test.xml");
    }
  }
}

// The same in a document of another kind: it must not be fetched before the root is refused either.
TEST_F(HostileReference, InFrontOfAForeignRootIsNotFollowed) {
  for (const char* root : {"<program/>", "<r xmlns='urn:r'>&e;</r>"}) {
    for (const std::string& document :
         {"<!DOCTYPE r SYSTEM '" + network_.url("d.dtd") + "'>" + root,
          doctype("<!ENTITY e SYSTEM '" + network_.url("e") + "'>") + root,
          doctype("<!ENTITY % p SYSTEM '" + network_.url("p") + "'> %p;") + root}) {
      SCOPED_TRACE(document);
      EXPECT_THAT(outcomeOf(document).result,
                  AnyOf(Result::parseException, Result::namespaceException));
      EXPECT_EQ(network_.visitors(), 0);
    }
  }
}

// To declare what is never used is no crime, but nothing is fetched for it.
TEST_F(HostileReference, ThatIsNeverUsedIsNotFollowed) {
  for (const std::string& declaration :
       {"<!ENTITY e SYSTEM '" + network_.url("e") + "'>",
        "<!ENTITY % e SYSTEM '" + network_.url("e") + "'>",
        "<!NOTATION n SYSTEM '" + network_.url("n") + "'>" + "<!ENTITY e SYSTEM '" +
            network_.url("e") + "' NDATA n>"}) {
    SCOPED_TRACE(declaration);
    EXPECT_THAT(outcomeOf(doctype(declaration) + dictionary("")).result,
                AnyOf(Result::root, Result::parseException));
    EXPECT_EQ(network_.visitors(), 0);
  }
}

TEST_F(HostileReference, ToASchemaOnTheNetworkIsRefused) {
  const struct {
    std::string location;
    std::string id;
  } rows[] = {
      {network_.url("s.xsd"), "d.xml"},
      {network_.url("vorcobol.xsd"), "d.xml"},
      {"HTTP" + network_.url("s.xsd").substr(4), "d.xml"},
      {"https://" + network_.host() + "/s.xsd", "d.xml"},
      {"ftp://" + network_.host() + "/s.xsd", "d.xml"},
      {"s.xsd", network_.url("d.xml")},
      {"./s.xsd", network_.url("a/b/d.xml")},
      {"/s.xsd", network_.url("d.xml")},
      {"//" + network_.host() + "/s.xsd", network_.url("d.xml")},
      {"file://remotehost/s.xsd", "d.xml"},
      {"file://" + network_.host() + "/s.xsd", "d.xml"},
      {"s.xsd", "file://remotehost/d.xml"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.location + " in " + row.id);
    const std::string pair = "urn:other " + row.location;
    for (const std::string& attributes :
         {"xsi:schemaLocation='" + ns + " " + row.location + "'",
          "xsi:schemaLocation='" + pair + " " + ns + " " + ns + "'",
          "xsi:schemaLocation='" + ns + " " + ns + " " + pair + "'",
          "xsi:noNamespaceSchemaLocation='" + row.location + "'",
          "xsi:schemaLocation='" + ns + " " + ns + "' xsi:noNamespaceSchemaLocation='" +
              row.location + "'"}) {
      SCOPED_TRACE(attributes);
      expectRefused(programWith(attributes), network, row.id);
      expectRefused(*servicesWithoutSchemas(), programWith(attributes), network, row.id);
    }
  }
}

TEST_F(HostileReference, ToASchemaOnTheNetworkFromWithinIsRefused) {
  const auto services = test::newServices();
  expectRefused(*services,
                dictionaryOf("<numeric name='N' "
                             "xsi:schemaLocation='urn:other " +
                             network_.url("s.xsd") + "'/>"),
                network);
  expectRefused(*services,
                dictionaryOf("<numeric name='N' xsi:noNamespaceSchemaLocation='" +
                             network_.url("s.xsd") + "'/>"),
                network);
  expectRefused(*services,
                dictionaryOf("<o:other xmlns:o='urn:other' "
                             "xsi:schemaLocation='urn:other " +
                             network_.url("s.xsd") + "'/>"),
                network);
}

// Schemas that lie beside the document may themselves name others.
TEST_F(HostileReference, OfASchemaIsRefused) {
  const std::string start = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' ";
  const std::string target = "targetNamespace='" + ns + "'>";
  const std::string program = "<xs:element name='program'/></xs:schema>";
  const std::string url = network_.url("s.xsd");
  const struct {
    const char* what;
    std::string schema;
    const char* text;
  } rows[] = {
      {"import",
       start + target + "<xs:import namespace='urn:o' schemaLocation='" + url + "'/>" + program,
       network},
      {"include", start + target + "<xs:include schemaLocation='" + url + "'/>" + program, network},
      {"redefine", start + target + "<xs:redefine schemaLocation='" + url + "'/>" + program,
       network},
      {"external subset", "<!DOCTYPE xs:schema SYSTEM '" + url + "'>" + start + target + program,
       complete},
      {"general entity",
       "<!DOCTYPE xs:schema [<!ENTITY e SYSTEM '" + url + "'>]>" + start + target + "&e;" + program,
       complete},
      {"parameter entity",
       "<!DOCTYPE xs:schema [<!ENTITY % e SYSTEM '" + url + "'> %e;]>" + start + target + program,
       complete},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    directory_.write("s.xsd", row.schema);
    expectRefused(*servicesWithoutSchemas(), programWithHint("s.xsd"), row.text,
                  directory_.path() + "/d.xml");
  }
}

TEST_F(HostileReference, ToASchemaThatIsNoRegularFileIsRefused) {
  for (const std::string& location :
       {std::string("/dev/zero"), std::string("/dev/null"), std::string("file:///dev/zero"),
        std::string("file://localhost/dev/zero"),
        std::string("../../../../../../../../../../../../dev/zero"), directory_.path(),
        std::string("."), std::string("/")}) {
    SCOPED_TRACE(location);
    const std::string id = directory_.path() + "/d.xml";
    expectRefused(programWithHint(location), special, id);
    expectRefused(*servicesWithoutSchemas(), programWithHint(location), special, id);
    expectRefused(programWith("xsi:noNamespaceSchemaLocation='" + location + "'"), special, id);
  }
}

TEST_F(HostileReference, ToAFifoIsNotOpened) {
  int number = 0;
  for (const char* how : {"path", "name", "url", "link"}) {
    SCOPED_TRACE(how);
    const std::string name = "fifo" + std::to_string(number++);
    FifoTrap fifo(directory_, name);
    std::string location = fifo.path();
    if (how == std::string("name")) location = name;
    if (how == std::string("url")) location = "file://" + location;
    if (how == std::string("link")) {
      std::filesystem::create_symlink(name, directory_.path() + "/link.xsd");
      location = "link.xsd";
    }
    expectRefused(programWithHint(location), special, directory_.path() + "/d.xml");
    EXPECT_FALSE(fifo.wasOpened());
  }
}

TEST_F(HostileReference, ToAnotherDocumentIsNotFollowed) {
  const std::string file = directory_.write("d.xml", dictionary(""));
  for (const std::string& target : {network_.url("d.xml"), file}) {
    SCOPED_TRACE(target);
    const std::string include =
        "<x:include xmlns:x='http://www.w3.org/2001/XInclude' href='" + target + "'/>";
    expectRefused(dictionaryOf(include), "'x:include'");
    expectRefused(dictionary(include), "'x:include'");
    EXPECT_EQ(outcomeOf(include).result, Result::namespaceException);
    expectRefused(dictionaryOf("<numeric name='N' xml:base='" + target + "'/>"), "base'");
    const auto styled = outcomeOf("<?xml-stylesheet href='" + target + "' type='text/xsl'?>" +
                                  dictionaryOf("<numeric name='N'/>"));
    EXPECT_EQ(styled.result, Result::root) << styled.text;
    EXPECT_EQ(network_.visitors(), 0);
  }
}

// To take the dots out of them took minutes.
TEST_F(HostileReference, OfALongNameIsRefused) {
  const std::string name = hostile::repeated("a/../", 100000) + "s.xsd";
  const char* const text = "a/../...' is refused: it is longer than 4096 characters";
  expectRefused(*servicesWithoutSchemas(),
                programWith("xsi:schemaLocation='" + ns + " " + name + "'"), text);
  const auto services = test::newServices();
  const std::string service = test::serviceDocument(
      as::namespaces::ws.uri, "dataDictFilename='" + name + "'", "<operations/>");
  EXPECT_THAT(outcomeOf([&] {
                return services->parseService(
                    "s.xml", reinterpret_cast<const unsigned char*>(service.data()),
                    static_cast<unsigned>(service.size()), true);
              }).text,
              HasSubstr(text));
}

TEST_F(HostileReference, OfTheClientToANetworkIsRefused) {
  const auto services = test::newServices();
  for (const std::string& name :
       {network_.url("d.xml"), "HTTP" + network_.url("d.xml").substr(4),
        "https://" + network_.host() + "/d.xml", "ftp://" + network_.host() + "/d.xml",
        std::string("file://remotehost/d.xml")}) {
    SCOPED_TRACE(name);
    const auto outcome = outcomeOf([&] { return services->parseCobolDD(name.c_str()); });
    EXPECT_EQ(outcome.result, Result::parseException);
    EXPECT_THAT(outcome.text, HasSubstr(name));
    EXPECT_EQ(outcome.message.getSystemId(), name);
    std::string errorText;
    EXPECT_EQ(services->parseService(name.c_str(), errorText, true), nullptr);
    EXPECT_EQ(errorText, outcome.text);
    EXPECT_EQ(outcomeOf([&] { return services->parseService(name.c_str(), true); }).result,
              Result::parseException);
    EXPECT_EQ(network_.visitors(), 0);
  }
}

}  // namespace

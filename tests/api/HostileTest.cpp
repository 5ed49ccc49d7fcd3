// Tests of documents made to do harm: nothing they name is fetched, nothing they hold blows up, and
// whatever they are, the request ends with a model or with one of its exceptions.
#include <arpa/inet.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "as/Namespaces.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/OwnProcess.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::dictionary;
using test::dictionaryOf;
using test::itemOf;
using test::Outcome;
using test::outcomeOf;
using test::Result;
using test::TempDirectory;
using test::topItem;
using testing::AnyOf;
using testing::HasSubstr;

const std::string ns = as::namespaces::dd.uri;

std::string repeated(const std::string& text, int times) {
  std::string result;
  result.reserve(text.size() * static_cast<std::size_t>(times));
  for (int i = 0; i < times; i++) result += text;
  return result;
}

std::string doctype(const std::string& declarations) {
  return "<!DOCTYPE program [" + declarations + "]>";
}

// A program with these schema attributes in place of the usual hint.
std::string programWith(const std::string& attributes, const std::string& content = "") {
  return "<program xmlns='" + ns + "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' " +
         attributes + " name='P'>" + content + "</program>";
}

std::string programWithHint(const std::string& location, const std::string& content = "") {
  return programWith("xsi:schemaLocation='" + ns + " " + location + "'", content);
}

std::unique_ptr<as::IAgentServices> servicesWithoutSchemas() {
  return std::unique_ptr<as::IAgentServices>(as::CAgentServicesFactory::CreateAgentServices());
}

// Parts of the messages of refusals.
constexpr char network[] = "not read over a network";
constexpr char special[] = "no regular file";
constexpr char complete[] = "documents must be complete";

// A server on this machine that counts who connects to it, and sends everyone away.
class NetworkTrap {
 public:
  NetworkTrap() : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(address);
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (socket_ < 0 || ::bind(socket_, generic, size) != 0 || ::listen(socket_, 16) != 0 ||
        ::getsockname(socket_, generic, &size) != 0) {
      throw std::runtime_error("no socket to listen on");
    }
    host_ = "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
    thread_ = std::thread([this] {
      for (;;) {
        const int visitor = ::accept(socket_, nullptr, nullptr);
        if (visitor < 0) return;
        visitors_++;
        ::close(visitor);
      }
    });
  }
  ~NetworkTrap() {
    ::shutdown(socket_, SHUT_RDWR);  // Ends accept().
    thread_.join();
    ::close(socket_);
  }
  NetworkTrap(const NetworkTrap&) = delete;
  NetworkTrap& operator=(const NetworkTrap&) = delete;

  // An address in it.
  std::string url(const std::string& file) const { return "http://" + host_ + "/" + file; }
  std::string host() const { return host_; }
  int visitors() const { return visitors_; }

 private:
  int socket_;
  std::string host_;
  std::atomic<int> visitors_{0};
  std::thread thread_;
};

// A FIFO in a directory that notices whether it is opened for reading.
class FifoTrap {
 public:
  FifoTrap(const TempDirectory& directory, const std::string& name)
      : path_(directory.path() + "/" + name) {
    if (::mkfifo(path_.c_str(), S_IRUSR | S_IWUSR) != 0) throw std::runtime_error("no FIFO");
    thread_ = std::thread([this] {
      // Waits for a reader, which gets nothing to read.
      const int end = ::open(path_.c_str(), O_WRONLY);
      opened_ = !leaving_;
      ::close(end);
    });
  }
  ~FifoTrap() { leave(); }
  FifoTrap(const FifoTrap&) = delete;
  FifoTrap& operator=(const FifoTrap&) = delete;

  const std::string& path() const { return path_; }
  // Whether anyone opened it until now. Ends the trap.
  bool wasOpened() {
    leave();
    return opened_;
  }

 private:
  void leave() {
    if (!thread_.joinable()) return;
    leaving_ = true;
    const int end = ::open(path_.c_str(), O_RDONLY | O_NONBLOCK);
    thread_.join();
    ::close(end);
  }

  std::string path_;
  std::atomic<bool> leaving_{false};
  std::atomic<bool> opened_{false};
  std::thread thread_;
};

// Nothing is fetched.

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

// No way round the schema.

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

// Internal entities.

TEST(HostileEntity, StandsForItsTextAsIfWrittenThere) {
  const auto outcome = outcomeOf(
      doctype("<!ENTITY name 'PR\xC3\x84MIE'><!ENTITY item '<numeric name=\"&name;\" line=\"7\">"
              "<numericCondition name=\"C\">&value;</numericCondition></numeric>'>"
              "<!ENTITY value '<numericConstant value=\"1\"/>'><!ENTITY nothing ''>"
              "<!ENTITY pair '&item;<group name=\"INNER\">&item;</group>'>") +
      dictionaryOf("<group name='G-&name;'>&item;&nothing;<alphanumeric name='A'/> &pair;</group>"
                   "&item;&nothing;"));
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  ASSERT_EQ(outcome.root->getDataItems()->getLength(), 2);
  auto* const group = topItem<as::IGroup>(*outcome.root);
  EXPECT_EQ(group->getName(), "G-PR\xC3\x84MIE");
  as::IList* const children = group->getChildren();
  ASSERT_EQ(children->getLength(), 4);
  auto* const inner = itemOf<as::IGroup>(children, 3);
  ASSERT_NE(inner, nullptr);
  ASSERT_EQ(inner->getChildren()->getLength(), 1);
  EXPECT_EQ(itemOf<as::IDataItem>(children, 1)->getName(), "A");
  as::IDataItem* const copies[] = {
      itemOf<as::IDataItem>(children, 0), itemOf<as::IDataItem>(children, 2),
      itemOf<as::IDataItem>(inner->getChildren(), 0), topItem<as::IDataItem>(*outcome.root, 1)};
  as::IGroup* const parents[] = {group, group, inner, nullptr};
  for (int i = 0; i < 4; i++) {
    SCOPED_TRACE(i);
    ASSERT_NE(copies[i], nullptr);
    EXPECT_EQ(copies[i]->getName(), "PR\xC3\x84MIE");
    EXPECT_EQ(copies[i]->getLine(), 7);
    EXPECT_EQ(copies[i]->getParent(), parents[i]);
    ASSERT_EQ(copies[i]->getConditions()->getLength(), 1);
    EXPECT_EQ(itemOf<as::ICondition>(copies[i]->getConditions(), 0)->getLength(), 1);
  }
}

TEST(HostileEntity, IsValidatedAsIfWrittenThere) {
  for (const char* text : {"<bogus/>", "text", "<alphanumericEdited name=\"A\"/>",
                           "<numeric name=\"N\" length=\"ten\"/>", "<numeric name=\"N\">"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(outcomeOf(doctype("<!ENTITY e '" + std::string(text) + "'>") +
                        dictionaryOf("<group name='G'>&e;</group>"))
                  .result,
              Result::parseException);
  }
}

TEST(HostileEntity, ThatHoldsItselfIsRefused) {
  for (const char* declarations : {"<!ENTITY e '&e;'>", "<!ENTITY e '&f;'><!ENTITY f '&e;'>",
                                   "<!ENTITY e 'x&f;'><!ENTITY f '&g;&g;'><!ENTITY g '&e;'>",
                                   "<!ENTITY % e '&#37;e;'> %e;<!ENTITY e ''>"}) {
    SCOPED_TRACE(declarations);
    EXPECT_EQ(outcomeOf(doctype(declarations) + dictionaryOf("<group name='&e;'/>")).result,
              Result::parseException);
    EXPECT_EQ(outcomeOf(doctype(declarations) + dictionaryOf("<group name='G'>&e;</group>")).result,
              Result::parseException);
  }
}

// Ten of each in the next, that many times.
std::string laughs(const std::string& reference, const std::string& declare, int levels,
                   const std::string& innermost) {
  std::string text = "<!ENTITY " + declare + "e0 '" + innermost + "'>";
  for (int i = 1; i <= levels; i++) {
    text += "<!ENTITY " + declare + "e" + std::to_string(i) + " '" +
            repeated(reference + "e" + std::to_string(i - 1) + ";", 10) + "'>";
  }
  return text;
}

TEST(HostileEntity, ThatGrowsWithoutEndIsRefused) {
  const std::string item = "<numeric name=\"N\"/>";
  const struct {
    const char* what;
    std::string document;
  } rows[] = {
      {"in an attribute",
       doctype(laughs("&", "", 12, "ha")) + dictionaryOf("<group name='&e12;'/>")},
      {"as content",
       doctype(laughs("&", "", 12, item)) + dictionaryOf("<group name='G'>&e12;</group>")},
      {"as blanks",
       doctype(laughs("&", "", 12, " ")) + dictionaryOf("<group name='G'>&e12;</group>")},
      {"as nothing",
       doctype(laughs("&", "", 12, "")) + dictionaryOf("<group name='G'>&e12;</group>")},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(outcomeOf(row.document).result, Result::parseException);
  }
}

// The same within a DTD: ten thousand of them from a few lines.
TEST(HostileEntity, OfADtdThatGrowsWithoutEndIsRefused) {
  const struct {
    const char* what;
    std::string declarations;
  } rows[] = {
      {"parameter entity", laughs("&#37;", "% ", 4, "<!-- ha -->") + " %e4;"},
      {"default of an attribute", laughs("&", "", 4, "ha") + "<!ATTLIST program x CDATA '&e4;'>"},
      {"default of a declared attribute",
       laughs("&", "", 4, "ha") + "<!ELEMENT program ANY><!ATTLIST program x CDATA #FIXED '&e4;'>"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(outcomeOf(doctype(row.declarations) + dictionary("")).result, Result::parseException);
    // Not before a foreign root either: that is told only once the growing is over.
    EXPECT_EQ(outcomeOf(doctype(row.declarations) + "<program/>").result, Result::parseException);
  }
}

// Many times a long text: as much as the limits let through is read, and more refused.
TEST(HostileEntity, RepeatedIsBounded) {
  const auto document = [](int length, int times) {
    return doctype("<!ENTITY e '" + std::string(static_cast<std::size_t>(length), 'x') + "'>") +
           dictionaryOf("<group name='" + repeated("&e;", times) + "'/>");
  };
  const auto good = outcomeOf(document(60000, 100));
  ASSERT_EQ(good.result, Result::root) << good.text;
  EXPECT_EQ(topItem<as::IDataItem>(*good.root)->getName(), std::string(6000000, 'x'));
  EXPECT_EQ(outcomeOf(document(60000, 20000)).result, Result::parseException);
  EXPECT_EQ(outcomeOf(document(1000000, 2)).result, Result::parseException);
}

// A hundred kilobytes in every one of a thousand items.
TEST(HostileEntity, DtdDefaultRepeatedIsBounded) {
  EXPECT_EQ(outcomeOf(doctype("<!ELEMENT program ANY><!ELEMENT dataItems ANY><!ELEMENT numeric ANY>"
                              "<!ATTLIST numeric picture CDATA '" +
                              std::string(100000, 'X') + "'>") +
                      dictionaryOf(repeated("<numeric name='N'/>", 1000)))
                .result,
            Result::parseException);
}

// Sizes.

TEST(HostileSize, ThousandLevelsAreRead) {
  constexpr int levels = 1000;
  const auto outcome =
      outcomeOf(dictionaryOf(repeated("<group name='G'>", levels) + "<numeric name='INNERMOST'/>" +
                             repeated("</group>", levels)));
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  auto* item = topItem<as::IDataItem>(*outcome.root);
  int depth = 0;
  while (auto* const group = as::interface_cast<as::IGroup>(item)) {
    ASSERT_EQ(group->getChildren()->getLength(), 1);
    item = itemOf<as::IDataItem>(group->getChildren(), 0);
    EXPECT_EQ(item->getParent(), group);
    depth++;
  }
  EXPECT_EQ(depth, levels);
  EXPECT_EQ(item->getName(), "INNERMOST");
}

TEST(HostileSize, ManyMoreLevelsAreRefused) {
  for (const int levels : {5000, 100000}) {
    SCOPED_TRACE(levels);
    const std::string open = repeated("<group name='G'>", levels);
    const auto closed = outcomeOf(dictionaryOf(open + repeated("</group>", levels)));
    EXPECT_EQ(closed.result, Result::parseException);
    EXPECT_THAT(closed.text, HasSubstr("nested"));
    EXPECT_EQ(outcomeOf(dictionaryOf(open)).result, Result::parseException);
    // Levels of no document of ours.
    EXPECT_THAT(outcomeOf(repeated("<x>", levels)).result, Result::namespaceException);
  }
}

TEST(HostileSize, LevelsMadeByEntitiesCountToo) {
  std::string declarations = "<!ENTITY e0 ''>";
  for (int i = 1; i <= 100; i++) {
    declarations += "<!ENTITY e" + std::to_string(i) + " '" + repeated("<group name=\"G\">", 50) +
                    "&e" + std::to_string(i - 1) + ";" + repeated("</group>", 50) + "'>";
  }
  EXPECT_EQ(outcomeOf(doctype(declarations) + dictionaryOf("&e100;")).result,
            Result::parseException);
}

TEST(HostileSize, WhatIsNoElementIsPassedOver) {
  for (const char* filler : {"<!-- x -->", "<?target data?>", "\n ", "<![CDATA[]]>"}) {
    SCOPED_TRACE(filler);
    const std::string many = repeated(filler, 200000);
    const auto outcome =
        outcomeOf(dictionaryOf("<numeric name='A'/>" + many + "<numeric name='B'/>"));
    if (filler == std::string("<![CDATA[]]>")) {
      // No text is allowed there, not even none.
      EXPECT_EQ(outcome.result, Result::parseException);
      continue;
    }
    ASSERT_EQ(outcome.result, Result::root) << outcome.text;
    ASSERT_EQ(outcome.root->getDataItems()->getLength(), 2);
    EXPECT_EQ(topItem<as::IDataItem>(*outcome.root, 0)->getName(), "A");
    EXPECT_EQ(topItem<as::IDataItem>(*outcome.root, 1)->getName(), "B");
  }
}

// `count` different attributes whose names start with `prefix`.
std::string attributes(const std::string& prefix, int count) {
  std::string text;
  for (int i = 0; i < count; i++) text += " " + prefix + std::to_string(i) + "='urn:x'";
  return text;
}

TEST(HostileSize, ManyAttributesAreRefused) {
  constexpr int many = 50000;
  for (const std::string& text : {attributes("a", many), repeated(" length='1'", many)}) {
    EXPECT_EQ(outcomeOf(dictionaryOf("<group name='G'" + text + "/>")).result,
              Result::parseException);
  }
}

// Attributes that no schema decides about.
TEST(HostileSize, ManyNamespaceDeclarationsAreReadOrRefused) {
  constexpr int many = 5000;
  EXPECT_THAT(
      outcomeOf(dictionaryOf("<group name='G'" + attributes("xmlns:a", many) + "/>")).result,
      AnyOf(Result::root, Result::parseException));
  for (const char* prefix : {"a", "xmlns:a"}) {
    EXPECT_THAT(outcomeOf("<r" + attributes(prefix, many) + "/>").result,
                AnyOf(Result::namespaceException, Result::parseException));
  }
}

TEST(HostileSize, LongTextsAreReadWhole) {
  const std::string text = repeated("PICTURE\xC3\x84", 500000);
  const auto outcome =
      outcomeOf(dictionaryOf("<numeric name='N' picture='" + text + "'/><!--" + text + "-->"));
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  EXPECT_EQ(topItem<as::IDataItem>(*outcome.root)->getPicture(), text);
}

TEST(HostileSize, LongNamesAreRefused) {
  const std::string name(1000000, 'n');
  EXPECT_EQ(outcomeOf(dictionaryOf("<" + name + "/>")).result, Result::parseException);
  EXPECT_EQ(outcomeOf(dictionaryOf("<group name='G' " + name + "='1'/>")).result,
            Result::parseException);
  EXPECT_EQ(outcomeOf(dictionaryOf("&" + name + ";")).result, Result::parseException);
  EXPECT_EQ(outcomeOf("<" + name + "/>").result, Result::namespaceException);
}

TEST(HostileSize, DeepPathsAndManyNamesakesAreSearched) {
  constexpr int levels = 500;
  std::string path = "G";
  for (int i = 1; i < levels; i++) path += ".G";
  const auto outcome = outcomeOf(dictionaryOf(
      repeated("<group name='G'>", levels) + repeated("</group>", levels) +
      "<numeric name='N' odo='" + path + "'/><numeric name='M' odo='" + path + ".X'/>"));
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  as::IDataItem* found = topItem<as::IDataItem>(*outcome.root, 1)->getODO();
  int depth = 0;
  for (; found != nullptr; found = found->getParent()) depth++;
  EXPECT_EQ(depth, levels);
  EXPECT_EQ(topItem<as::IDataItem>(*outcome.root, 2)->getODO(), nullptr);
}

// Damage.

// Small, but with something of everything; ends with its root.
std::string smallDocument() {
  return "<program xmlns=\"" + ns +
         "\" xmlns:i=\"http://www.w3.org/2001/XMLSchema-instance\" i:schemaLocation=\"" + ns +
         " vorcobol.xsd\" name=\"P\"><dataItems><group name=\"G\" length=\"1\"><numeric "
         "name=\"N\"><numericCondition name=\"C\"><numericConstant value=\"1\"/>"
         "</numericCondition></numeric></group></dataItems></program>";
}

TEST(HostileDamage, CutAnywhereTheDocumentIsRefused) {
  const auto services = test::newServices();
  const std::string document = smallDocument();
  ASSERT_EQ(outcomeOf(*services, document).result, Result::root);
  for (std::size_t length = 0; length < document.size(); length++) {
    EXPECT_EQ(outcomeOf(*services, document.substr(0, length)).result, Result::parseException)
        << length;
  }
}

// A byte in place of each of the document's.
class HostileByte : public testing::TestWithParam<int> {};

// These are nowhere right where they were not before.
TEST_P(HostileByte, AnywhereMakesTheDocumentBad) {
  const auto services = test::newServices();
  const std::string document = smallDocument();
  const char byte = static_cast<char>(GetParam());
  for (std::size_t at = 0; at < document.size(); at++) {
    if (document[at] == byte) continue;
    std::string damaged = document;
    damaged[at] = byte;
    EXPECT_THAT(outcomeOf(*services, damaged).result,
                AnyOf(Result::parseException, Result::namespaceException))
        << at;
  }
}

INSTANTIATE_TEST_SUITE_P(All, HostileByte, testing::Values(0x00, 0x01, '<', '&', '"', 0x80, 0xFF),
                         [](const auto& row) { return std::to_string(row.param); });

// These may stand where others stood.
class HarmlessByte : public testing::TestWithParam<int> {};

TEST_P(HarmlessByte, AnywhereEndsInAModelOrAnException) {
  const auto services = test::newServices();
  const std::string document = smallDocument();
  for (std::size_t at = 0; at < document.size(); at++) {
    std::string damaged = document;
    damaged[at] = static_cast<char>(GetParam());
    const auto outcome = outcomeOf(*services, damaged);
    EXPECT_THAT(outcome.result,
                AnyOf(Result::root, Result::parseException, Result::namespaceException))
        << at;
    if (outcome.root) {
      EXPECT_EQ(outcome.root->getDataItems()->getLength(), 1) << at;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, HarmlessByte, testing::Values(' ', '>', '/', ':', 'x', '\n'),
                         [](const auto& row) { return std::to_string(row.param); });

}  // namespace

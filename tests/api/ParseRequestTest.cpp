// Tests of the parse requests: where documents and schemas come from, and how failures are told.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/Dictionary.h"
#include "support/TempDirectory.h"

namespace {

using test::dictionary;
using test::dictionaryNamespace;
using test::dictionaryOf;
using test::Outcome;
using test::outcomeOf;
using test::Result;
using test::TempDirectory;
using test::topItem;
using testing::EndsWith;
using testing::HasSubstr;

const std::string ns = dictionaryNamespace;
const std::string xsi = "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";
constexpr char namespaceText[] = "The parser encountered an unexpected or unsupported namespace";

// The namespaces of services: the plain one, and those of the flavours.
const std::string serviceNamespace =
    "http://agentservices.example/schema/service/v2.0/vorservice.xsd";
const std::string flavourNamespaces[] = {
    "http://agentservices.example/schema/ws/v1.0/vorws.xsd",
    "http://agentservices.example/schema/com/v1.0/vorcom.xsd",
    "http://agentservices.example/schema/java/v2.0/vorjava.xsd",
    "http://agentservices.example/schema/dotnet/v1.0/vordotnet.xsd",
};

// A dictionary with an item, whose schema is hinted at by `location`.
std::string dictionaryWithHint(const std::string& location) {
  return "<program xmlns=\"" + ns + "\" " + xsi + " xsi:schemaLocation=\"" + ns + " " + location +
         "\" name=\"HINTED\"><dataItems><numeric name=\"N\"/></dataItems></program>";
}

Outcome<as::IProgram> outcomeOfFile(const std::string& file) {
  return outcomeOf([&] { return test::newServices()->parseCobolDD(file.c_str()); });
}

void copySchema(const TempDirectory& directory) {
  std::filesystem::copy_file(std::filesystem::path(AS_SCHEMA_DIR) / "vorcobol.xsd",
                             std::filesystem::path(directory.path()) / "vorcobol.xsd");
}

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
  const std::unique_ptr<as::IAgentServices> services(
      as::CAgentServicesFactory::CreateAgentServices());
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
  const auto outcome = outcomeOf([&] {
    return test::newServices()->parseCobolDD("b",
                                             reinterpret_cast<const unsigned char*>(longer.data()),
                                             static_cast<unsigned>(document.size()));
  });
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

// Encodings.

std::string utf16(const std::string& ascii, bool bigEndian) {
  std::string result;
  const auto put = [&](unsigned unit) {
    const char high = static_cast<char>(unit >> 8U);
    const char low = static_cast<char>(unit & 0xFFU);
    result += bigEndian ? high : low;
    result += bigEndian ? low : high;
  };
  put(0xFEFF);
  for (const char c : ascii) {
    put(static_cast<unsigned char>(c));  // Latin-1 is the start of Unicode.
  }
  return result;
}

TEST(ParseDictionary, ReadsEncodings) {
  const std::string umlauts = "\xC3\x84\xC3\xA9";  // UTF-8
  const std::string latin = "\xC4\xE9";            // ISO-8859-1 and UTF-16
  const auto item = [](const std::string& name) {
    return dictionaryOf("<numeric name='" + name + "'/>");
  };
  const auto declared = [](const std::string& encoding) {
    return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>";
  };
  const struct {
    const char* what;
    std::string document;
  } rows[] = {
      {"UTF-8 without a declaration", item(umlauts)},
      {"UTF-8 declared", declared("UTF-8") + item(umlauts)},
      {"UTF-8 declared in small letters", declared("utf-8") + item(umlauts)},
      {"UTF-8 with a byte order mark", "\xEF\xBB\xBF" + item(umlauts)},
      {"UTF-8 with both", "\xEF\xBB\xBF" + declared("UTF-8") + item(umlauts)},
      {"ISO-8859-1", declared("ISO-8859-1") + item(latin)},
      {"windows-1252", declared("windows-1252") + item(latin)},
      {"US-ASCII", declared("US-ASCII") + item("&#xC4;&#233;")},
      {"UTF-16 little endian", utf16(declared("UTF-16") + item(latin), false)},
      {"UTF-16 big endian", utf16(declared("UTF-16") + item(latin), true)},
      {"UTF-16 without a declaration", utf16(item(latin), false)},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const auto outcome = outcomeOf(row.document);
    ASSERT_EQ(outcome.result, Result::root) << outcome.text;
    EXPECT_EQ(topItem<as::IDataItem>(*outcome.root)->getName(), umlauts);
  }
}

TEST(ParseDictionary, RefusesWrongEncodings) {
  const auto item = [](const std::string& name) {
    return dictionaryOf("<numeric name='" + name + "'/>");
  };
  const struct {
    const char* what;
    std::string document;
  } rows[] = {
      {"unknown", "<?xml version=\"1.0\" encoding=\"EBCDIC-XX-77\"?>" + item("N")},
      {"ISO-8859-1 taken for UTF-8", item("\xC4 \xE9")},
      {"lone continuation byte", item("\x80")},
      {"overlong sequence", item("\xC0\xAF")},
      {"surrogate", item("\xED\xA0\x80")},
      {"beyond Unicode", item("\xF4\x90\x80\x80")},
      {"cut sequence", item("\xE2\x82")},
      {"half a UTF-16 unit", utf16(item("N"), false).substr(0, 99)},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(outcomeOf(row.document).result, Result::parseException);
  }
}

TEST(ParseDictionary, RefusesZeroBytes) {
  const std::string zero(1, '\0');
  const std::string document = dictionaryOf("<numeric name='N'/>");
  for (const char* before : {"<program", " name=", "PAYROLL", "<dataItems", "dataItems>",
                             "numeric ", "N'", "</program>"}) {
    SCOPED_TRACE(before);
    std::string text = document;
    text.insert(text.find(before), zero);
    EXPECT_EQ(outcomeOf(text).result, Result::parseException);
  }
  EXPECT_EQ(outcomeOf(std::string(100, '\0')).result, Result::parseException);
}

// Null and nothing.

TEST(ParseDictionary, NothingIsNoDocument) {
  const auto services = test::newServices();
  const std::string document = dictionary("");
  const auto* const bytes = reinterpret_cast<const unsigned char*>(document.data());
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

// What as::CASParseException tells.

TEST(ParseFailure, NamesTheBuffer) {
  for (const char* id : {"payroll.xml", "some buffer", "memory:1",
                         "Stra\xC3\x9F"
                         "e",
                         "/no/such/directory/d.xml", ""}) {
    SCOPED_TRACE(id);
    const auto outcome = outcomeOf(*test::newServices(), dictionaryOf("<bogus/>"), id);
    ASSERT_EQ(outcome.result, Result::parseException);
    EXPECT_EQ(outcome.message.getSystemId(), id);
    EXPECT_EQ(outcome.message.getPublicId(), "");
  }
}

TEST(ParseFailure, NamesTheFile) {
  const TempDirectory directory;
  const std::string file = directory.write("Pr\xC3\xA4mie.xml", dictionaryOf("<bogus/>"));
  const auto outcome = outcomeOfFile(file);
  ASSERT_EQ(outcome.result, Result::parseException);
  EXPECT_EQ(outcome.message.getSystemId(), file);
  EXPECT_EQ(outcome.message.getPublicId(), "");
}

// Documents with an error in a known place. Lines are counted from the root's.
TEST(ParseFailure, TellsThePlaceAndTheMessage) {
  const struct {
    const char* what;
    const char* before;  // In front of the root.
    const char* content;
    int line;
    int column;
    int code;
    const char* text;
  } rows[] = {
      {"second < in a row", "\n", "\n  <<dataItems/>", 3, 4, 163, "element name expected"},
      {"the same to the right", "\n", "\n      <<dataItems/>", 3, 8, 163, "element name expected"},
      {"the same further down", "\n\n\n", "\n\n  <<dataItems/>", 6, 4, 163,
       "element name expected"},
      {"Windows line ends", "\r\n", "\r\n\r\n  <<dataItems/>", 4, 4, 163, "element name expected"},
      {"wrong end tag", "", "\n<dataItems></dataItem>", 2, 14, 180,
       "expected end of tag 'dataItems'"},
      {"unknown entity", "", "\n &undefined;", 2, 13, 202, "entity 'undefined' not found"},
      {"undeclared element", "", "\n<dataItems>\n<bogus/></dataItems>", 3, 9, 2,
       "no declaration found for element 'bogus'"},
      {"undeclared attribute", "", "\n\n<dataItems><group name='G' lenght='2'/></dataItems>", 3, 40,
       17, "attribute 'lenght' is not declared for element 'group'"},
      {"invalid value", "", "<dataItems>\n<group name='G' line='x'/></dataItems>", 2, 27, 210,
       "'x'"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const auto outcome = outcomeOf(row.before + dictionary(row.content));
    ASSERT_EQ(outcome.result, Result::parseException);
    EXPECT_EQ(outcome.message.getLineNum(), row.line);
    EXPECT_EQ(outcome.message.getColNum(), row.column);
    EXPECT_EQ(outcome.message.getErrorCode(), row.code);
    EXPECT_THAT(outcome.message.getErrorText(), HasSubstr(row.text));
    EXPECT_EQ(outcome.message.getSystemId(), "test.xml");
  }
}

TEST(ParseFailure, TextIsUtf8) {
  EXPECT_THAT(outcomeOf(dictionaryOf("<gr\xC3\xB6\xC3\x9F"
                                     "er/>"))
                  .text,
              HasSubstr("'gr\xC3\xB6\xC3\x9F"
                        "er'"));
}

TEST(ParseFailure, TellsTheFirstErrorOnly) {
  const struct {
    const char* content;
    const char* first;
  } rows[] = {
      {"<dataItems><one/><two/></dataItems>", "one"},
      {"<dataItems><group name='G' one='1'/><group name='H' two='2'/></dataItems>", "one"},
      {"<dataItems><one/></dataItems><broken", "one"},
      {"<dataItems></broken><one/></dataItems>", "expected end of tag"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.content);
    EXPECT_THAT(outcomeOf(dictionary(row.content)).text, HasSubstr(row.first));
  }
}

// The schema of a namespace that is never used is missing: no more than a warning.
TEST(ParseFailure, IsThrownForWarningsToo) {
  const auto outcome = outcomeOf(dictionaryWithHint(ns + " urn:unused no-such-file.xsd"), "buffer");
  EXPECT_EQ(outcome.result, Result::parseException);
  EXPECT_THAT(outcome.text, HasSubstr("no-such-file.xsd"));
}

TEST(ParseFailure, TellsAMissingFile) {
  const TempDirectory directory;
  for (const std::string& file :
       {directory.path() + "/missing.xml", directory.path() + "/no/such/directory/d.xml"}) {
    SCOPED_TRACE(file);
    const auto outcome = outcomeOfFile(file);
    ASSERT_EQ(outcome.result, Result::parseException);
    EXPECT_EQ(outcome.message.getErrorCode(), 66);
    EXPECT_EQ(outcome.text, "unable to open primary document entity '" + file + "'");
    EXPECT_EQ(outcome.message.getLineNum(), 0);
    EXPECT_EQ(outcome.message.getColNum(), 0);
    EXPECT_EQ(outcome.message.getPublicId(), "");
    EXPECT_EQ(outcome.message.getSystemId(), file);
  }
}

TEST(ParseFailure, IsThrownForADirectory) {
  const TempDirectory directory;
  const auto outcome = outcomeOfFile(directory.path());
  EXPECT_EQ(outcome.result, Result::parseException);
  EXPECT_NE(outcome.text, "");
}

TEST(ParseFailure, IsThrownForAnEmptyFile) {
  const TempDirectory directory;
  const std::string file = directory.write("empty.xml", "");
  const auto outcome = outcomeOfFile(file);
  ASSERT_EQ(outcome.result, Result::parseException);
  EXPECT_EQ(outcome.message.getSystemId(), file);
}

// Namespaces.

TEST(ParseDictionary, RefusesARootInAnotherNamespace) {
  std::vector<std::string> uris = {"",
                                   "urn:other",
                                   serviceNamespace,
                                   ns + "/",
                                   ns + " ",
                                   "HTTP" + ns.substr(4),
                                   "http://www.w3.org/2001/XMLSchema"};
  uris.insert(uris.end(), std::begin(flavourNamespaces), std::end(flavourNamespaces));
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
  for (const std::string& uri : {serviceNamespace, flavourNamespaces[0]}) {
    SCOPED_TRACE(uri);
    const auto outcome = outcomeOf("<service xmlns='" + uri + "' " + xsi +
                                   " xsi:schemaLocation='urn:none " + ns + "'/>");
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
  std::string schema = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='" +
                       ns + "' elementFormDefault='qualified'>";
  const std::vector<std::string> roots = {"properties", "property",    "fileSection",     "fd",
                                          "dataItems",  "entryPoints", "group",           "numeric",
                                          "pointer",    "parameter",   "numericCondition"};
  for (const std::string& root : roots) {
    schema += "<xs:element name='" + root + "'><xs:complexType/></xs:element>";
  }
  directory.write("vorcobol.xsd", schema + "</xs:schema>");
  const auto services = test::newServices();
  services->setSchemaLocation(directory.path().c_str());
  for (const std::string& root : roots) {
    SCOPED_TRACE(root);
    const auto outcome = outcomeOf(*services, "<" + root + " xmlns='" + ns + "' " + xsi +
                                                  " xsi:schemaLocation='" + ns + " " + ns + "'/>");
    EXPECT_EQ(outcome.result, Result::null) << outcome.text;
  }
}

// Schema directory.

TEST(SchemaLocation, IsWhereBothNamesOfTheSchemaAreLookedUp) {
  const TempDirectory elsewhere;
  for (const std::string& hint : {ns, std::string("vorcobol.xsd")}) {
    SCOPED_TRACE(hint);
    EXPECT_EQ(outcomeOf(dictionaryWithHint(hint)).result, Result::root);
    EXPECT_EQ(outcomeOfFile(elsewhere.write("d.xml", dictionaryWithHint(hint))).result,
              Result::root);
  }
}

TEST(SchemaLocation, GetsASeparatorAppendedAlways) {
  const TempDirectory directory;
  const std::string missing = directory.path() + "/missing";
  const struct {
    std::string directory;
    std::string file;
  } rows[] = {
      {missing, missing + "/vorcobol.xsd"},
      {missing + "/", missing + "//vorcobol.xsd"},
      {missing + "\\", missing + "\\/vorcobol.xsd"},
      {missing + "/\\", missing + "/\\/vorcobol.xsd"},
      {missing + "\\/", missing + "\\//vorcobol.xsd"},
      {missing + "/Stra\xC3\x9F"
                 "e",
       missing + "/Stra\xC3\x9F"
                 "e/vorcobol.xsd"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.directory);
    const auto services = test::newServices();
    services->setSchemaLocation(row.directory.c_str());
    const auto outcome = outcomeOf(*services, dictionary(""));
    ASSERT_EQ(outcome.result, Result::parseException);
    EXPECT_THAT(outcome.text, EndsWith("'" + row.file + "'"));
  }
}

TEST(SchemaLocation, MayBeRelativeToTheCurrentDirectory) {
  const auto services = test::newServices();
  services->setSchemaLocation("x");
  const auto outcome = outcomeOf(*services, dictionary(""));
  ASSERT_EQ(outcome.result, Result::parseException);
  EXPECT_THAT(outcome.text, EndsWith("/x/vorcobol.xsd'"));
}

TEST(SchemaLocation, MayEndInSeparators) {
  for (const char* end : {"", "/", "//"}) {
    const auto services = test::newServices();
    services->setSchemaLocation((std::string(AS_SCHEMA_DIR) + end).c_str());
    EXPECT_EQ(outcomeOf(*services, dictionary("")).result, Result::root) << end;
  }
}

TEST(SchemaLocation, TellsTheFileThatIsMissing) {
  const TempDirectory empty;
  const auto services = test::newServices();
  services->setSchemaLocation(empty.path().c_str());
  const std::string file = empty.path() + "/vorcobol.xsd";
  const TempDirectory documents;
  const std::string document = documents.write("d.xml", dictionary(""));
  for (const auto& outcome : {outcomeOf(*services, dictionary("")), outcomeOf([&] {
                                return services->parseCobolDD(document.c_str());
                              })}) {
    ASSERT_EQ(outcome.result, Result::parseException);
    EXPECT_EQ(outcome.text, "unable to open primary document entity '" + file + "'");
  }
}

// Such a message is about no place in the document, but about the document all the same.
TEST(SchemaLocation, MissingFileIsToldWithTheDocumentsName) {
  const TempDirectory empty;
  const auto services = test::newServices();
  services->setSchemaLocation(empty.path().c_str());
  EXPECT_EQ(outcomeOf(*services, dictionary(""), "buffer").message.getSystemId(), "buffer");
  const std::string file = empty.write("d.xml", dictionary(""));
  EXPECT_EQ(outcomeOf([&] { return services->parseCobolDD(file.c_str()); }).message.getSystemId(),
            file);
}

TEST(SchemaLocation, ThatWasForgottenIsTold) {
  const std::string hint = "no schema directory has been set";
  const std::unique_ptr<as::IAgentServices> services(
      as::CAgentServicesFactory::CreateAgentServices());
  EXPECT_THAT(outcomeOf(*services, dictionary("")).text, HasSubstr(hint));
  services->setSchemaLocation(AS_SCHEMA_DIR);
  EXPECT_THAT(outcomeOf(*services, dictionaryWithHint("http://127.0.0.1/s.xsd")).text,
              testing::Not(HasSubstr(hint)));
}

TEST(SchemaLocation, TellsTheSchemaThatIsWrong) {
  const TempDirectory directory;
  const std::string schema = directory.write("vorcobol.xsd", "<xs:schema\n  <");
  const auto services = test::newServices();
  services->setSchemaLocation(directory.path().c_str());
  const auto outcome = outcomeOf(*services, dictionary(""));
  ASSERT_EQ(outcome.result, Result::parseException);
  EXPECT_EQ(outcome.message.getSystemId(), schema);
  EXPECT_EQ(outcome.message.getLineNum(), 2);
}

TEST(SchemaLocation, WithADirectoryInPlaceOfTheSchemaIsRefused) {
  const TempDirectory directory;
  std::filesystem::create_directory(directory.path() + "/vorcobol.xsd");
  const auto services = test::newServices();
  services->setSchemaLocation(directory.path().c_str());
  EXPECT_EQ(outcomeOf(*services, dictionary("")).result, Result::parseException);
}

TEST(SchemaLocation, AnEmptyOrNullOneThrowsAndLeavesNone) {
  for (const char* nothing : {"", static_cast<const char*>(nullptr)}) {
    SCOPED_TRACE(nothing == nullptr ? "null" : "empty");
    const auto services = test::newServices();
    EXPECT_EQ(outcomeOf(*services, dictionary("")).result, Result::root);
    EXPECT_THROW(services->setSchemaLocation(nothing), std::out_of_range);
    EXPECT_THAT(outcomeOf(*services, dictionary("")).text, HasSubstr("not read over a network"));
    services->setSchemaLocation(AS_SCHEMA_DIR);
    EXPECT_EQ(outcomeOf(*services, dictionary("")).result, Result::root);
  }
}

TEST(SchemaLocation, ChangesLaterRequestsOfItsObjectOnly) {
  const TempDirectory empty;
  const auto services = test::newServices();
  const auto other = test::newServices();
  const auto before = outcomeOf(*services, dictionaryOf("<numeric name='N'/>"));
  services->setSchemaLocation(empty.path().c_str());
  EXPECT_EQ(outcomeOf(*services, dictionary("")).result, Result::parseException);
  EXPECT_EQ(outcomeOf(*other, dictionary("")).result, Result::root);
  ASSERT_EQ(before.result, Result::root);
  EXPECT_EQ(topItem<as::IDataItem>(*before.root)->getName(), "N");
}

TEST(SchemaLocation, WithoutOneSchemasAreFoundBesideTheDocument) {
  const TempDirectory directory;
  const std::unique_ptr<as::IAgentServices> services(
      as::CAgentServicesFactory::CreateAgentServices());
  const std::string document = dictionaryWithHint("vorcobol.xsd");
  const std::string file = directory.write("d.xml", document);
  const auto fromFile = [&] {
    return outcomeOf([&] { return services->parseCobolDD(file.c_str()); });
  };
  // The place of a buffer is told by its name.
  const auto fromBuffer = [&] { return outcomeOf(*services, document, file.c_str()); };
  EXPECT_THAT(fromFile().text, EndsWith("'" + directory.path() + "/vorcobol.xsd'"));
  EXPECT_THAT(fromBuffer().text, EndsWith("'" + directory.path() + "/vorcobol.xsd'"));
  copySchema(directory);
  EXPECT_EQ(fromFile().result, Result::root);
  EXPECT_EQ(fromBuffer().result, Result::root);
}

TEST(SchemaLocation, WithoutOneSchemasInASubdirectoryAreFound) {
  const TempDirectory directory;
  std::filesystem::create_directory(directory.path() + "/schemas");
  copySchema(directory);
  std::filesystem::rename(directory.path() + "/vorcobol.xsd", directory.path() + "/schemas/my.xsd");
  const std::unique_ptr<as::IAgentServices> services(
      as::CAgentServicesFactory::CreateAgentServices());
  for (const std::string& hint :
       {std::string("schemas/my.xsd"), directory.path() + "/schemas/my.xsd",
        "file://" + directory.path() + "/schemas/my.xsd"}) {
    SCOPED_TRACE(hint);
    const std::string file = directory.write("d.xml", dictionaryWithHint(hint));
    const auto outcome = outcomeOf([&] { return services->parseCobolDD(file.c_str()); });
    EXPECT_EQ(outcome.result, Result::root) << outcome.text;
  }
}

// Services. Only how the request fails; documents that are services have tests of their own.

// The four forms of the request, on a document that lies in a file and in memory.
struct ServiceForm {
  const char* name;
  bool tellsText;
  as::IService* (*request)(as::IAgentServices& services, const std::string& file,
                           const std::string& document, std::string& errorText, bool loadProgram);
};

void PrintTo(const ServiceForm& form, std::ostream* out) { *out << form.name; }

const unsigned char* bytes(const std::string& text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

constexpr ServiceForm serviceForms[] = {
    {"File", false,
     [](as::IAgentServices& services, const std::string& file, const std::string&, std::string&,
        bool loadProgram) { return services.parseService(file.c_str(), loadProgram); }},
    {"FileWithText", true,
     [](as::IAgentServices& services, const std::string& file, const std::string&,
        std::string& errorText,
        bool loadProgram) { return services.parseService(file.c_str(), errorText, loadProgram); }},
    {"Buffer", false,
     [](as::IAgentServices& services, const std::string&, const std::string& document, std::string&,
        bool loadProgram) {
       return services.parseService("buffer", bytes(document),
                                    static_cast<unsigned>(document.size()), loadProgram);
     }},
    {"BufferWithText", true,
     [](as::IAgentServices& services, const std::string&, const std::string& document,
        std::string& errorText, bool loadProgram) {
       return services.parseService("buffer", bytes(document),
                                    static_cast<unsigned>(document.size()), errorText, loadProgram);
     }},
};

class ParseService : public testing::TestWithParam<ServiceForm> {
 protected:
  // Makes the request in its two ways and expects `result`: as an exception or as its text.
  void expect(Result result, const std::string& document, const std::string& text) {
    SCOPED_TRACE(document);
    const std::string file = directory_.write("service.xml", document);
    for (const bool loadProgram : {false, true}) {
      std::string errorText = "as before";
      const auto outcome = outcomeOf(
          [&] { return GetParam().request(*services_, file, document, errorText, loadProgram); });
      if (GetParam().tellsText) {
        EXPECT_EQ(outcome.result, Result::null);
        EXPECT_THAT(errorText, HasSubstr(text));
        EXPECT_THAT(errorText, testing::Not(HasSubstr("as before")));
      } else {
        EXPECT_EQ(outcome.result, result);
        EXPECT_EQ(errorText, "as before");
        if (result == Result::parseException) {
          EXPECT_THAT(outcome.text, HasSubstr(text));
        }
      }
    }
  }
  TempDirectory directory_;
  std::unique_ptr<as::IAgentServices> services_ = test::newServices();
};

TEST_P(ParseService, RefusesADictionary) {
  expect(Result::namespaceException, dictionary(""), namespaceText);
  expect(Result::namespaceException, dictionaryOf("<numeric name='N'/>"), namespaceText);
}

TEST_P(ParseService, RefusesThePlainServiceNamespace) {
  expect(Result::namespaceException, "<service xmlns='" + serviceNamespace + "'/>", namespaceText);
}

TEST_P(ParseService, RefusesARootInNoOrAnotherNamespace) {
  for (const char* document :
       {"<service/>", "<service xmlns='urn:other'/>", "<service xmlns=''><operations/></service>",
        "<service><broken", "<!DOCTYPE service [<!ELEMENT service ANY>]><service/>"}) {
    expect(Result::namespaceException, document, namespaceText);
  }
  expect(Result::namespaceException, "<service xmlns='" + flavourNamespaces[0] + "/'/>",
         namespaceText);
}

TEST_P(ParseService, TellsADocumentThatIsNotWellFormed) {
  expect(Result::parseException, "", "invalid document structure");
  expect(Result::parseException, "no markup", "invalid document structure");
  expect(Result::parseException, "<service", "");
  expect(Result::parseException, "<1/>", "");
}

TEST_P(ParseService, GivesOnlyTheTextOfTheNamespaceFailure) {
  const std::string document = "<service/>";
  const std::string file = directory_.write("service.xml", document);
  std::string errorText;
  const auto outcome =
      outcomeOf([&] { return GetParam().request(*services_, file, document, errorText, false); });
  EXPECT_EQ(errorText, GetParam().tellsText ? namespaceText : "");
  EXPECT_EQ(outcome.root, nullptr);
}

INSTANTIATE_TEST_SUITE_P(All, ParseService, testing::ValuesIn(serviceForms),
                         [](const auto& row) { return row.param.name; });

TEST(ParseServiceFile, TellsAMissingFile) {
  const auto services = test::newServices();
  const TempDirectory directory;
  const std::string file = directory.path() + "/missing.xml";
  const std::string text = "unable to open primary document entity '" + file + "'";
  std::string errorText;
  EXPECT_EQ(services->parseService(file.c_str(), errorText, false), nullptr);
  EXPECT_EQ(errorText, text);
  const auto outcome = outcomeOf([&] { return services->parseService(file.c_str(), false); });
  EXPECT_EQ(outcome.result, Result::parseException);
  EXPECT_EQ(outcome.text, text);
  EXPECT_EQ(outcome.message.getErrorCode(), 66);
}

TEST(ParseServiceFile, NothingIsNoDocument) {
  const auto services = test::newServices();
  std::string errorText;
  EXPECT_EQ(services->parseService(nullptr, errorText, true), nullptr);
  EXPECT_NE(errorText, "");
  errorText.clear();
  EXPECT_EQ(services->parseService(nullptr, nullptr, 7, errorText, true), nullptr);
  EXPECT_NE(errorText, "");
  EXPECT_EQ(outcomeOf([&] { return services->parseService(nullptr, false); }).result,
            Result::parseException);
  EXPECT_EQ(outcomeOf([&] { return services->parseService(nullptr, nullptr, 7, false); }).result,
            Result::parseException);
}

}  // namespace

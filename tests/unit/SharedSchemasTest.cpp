// Tests of the schemas that parses share, and of what keeps them from one request to the next.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/validators/schema/ComplexTypeInfo.hpp>
#include <xercesc/validators/schema/SchemaAttDef.hpp>
#include <xercesc/validators/schema/SchemaGrammar.hpp>

#include "support/Documents.h"
#include "support/Requests.h"
#include "support/SchemaCopy.h"
#include "support/TempDirectory.h"
#include "xml/NumberType.h"
#include "xml/SchemaCache.h"
#include "xml/SharedSchemas.h"
#include "xml/Vocabulary.h"
#include "xml/XMLParser.h"

namespace {

namespace fs = std::filesystem;
using NotShared = SharedSchemas::NotShared;
using Schemas = std::shared_ptr<SharedSchemas>;
using test::TempDirectory;

const std::string shipped = AS_SCHEMA_DIR "/";
const XMLCh* const dd = XSDNS::ddURI;

// The namespace that is told as missing; "none" when nothing is.
std::basic_string<XMLCh> missing(SharedSchemas& schemas, const XMLCh* uri, const XMLCh* place) {
  try {
    schemas.grammarFor(uri, place);
  } catch (const NotShared& failure) {
    return failure.uri;
  }
  return u"none";
}

TEST(SharedSchemas, HasWhatWasAdded) {
  const test::SchemaCopy copy;
  SharedSchemas schemas(copy.path() + "/");
  EXPECT_EQ(missing(schemas, dd, dd), dd);
  EXPECT_FALSE(schemas.knows(dd));
  schemas.add(dd);
  EXPECT_TRUE(schemas.knows(dd));
  xercesc::Grammar* const grammar = schemas.grammarFor(dd, dd);
  ASSERT_NE(grammar, nullptr);
  EXPECT_EQ(schemas.grammarFor(dd, XSDNS::ddName), grammar);
  schemas.add(XSDNS::wsURI);
  EXPECT_EQ(schemas.grammarFor(dd, dd), grammar);
  EXPECT_NE(schemas.grammarFor(XSDNS::wsURI, XSDNS::wsName), grammar);
  EXPECT_FALSE(schemas.isSpoilt());
}

TEST(SharedSchemas, HasWhatIsBuiltIn) {
  SharedSchemas schemas(shipped);
  const unsigned int names = schemas.names()->getStringCount();
  xercesc::Grammar* const grammar = schemas.grammarFor(dd, dd);
  ASSERT_NE(grammar, nullptr);
  EXPECT_TRUE(schemas.knows(dd));
  EXPECT_EQ(schemas.grammarFor(dd, XSDNS::ddName), grammar);
  EXPECT_NE(schemas.grammarFor(XSDNS::wsURI, XSDNS::wsName), grammar);
  // While a parse numbers its own behind them.
  EXPECT_EQ(schemas.names()->getStringCount(), names);
}

// Whether an attribute of the grammar has a type that NumberType stands in for.
bool hasQuickNumbers(xercesc::Grammar& grammar) {
  xercesc::RefHashTableOfEnumerator<xercesc::ComplexTypeInfo> each(
      static_cast<xercesc::SchemaGrammar&>(grammar).getComplexTypeRegistry());
  while (each.hasMoreElements()) {
    const xercesc::ComplexTypeInfo& type = each.nextElement();
    if (!type.hasAttDefs()) continue;
    for (XMLSize_t i = 0; i < type.getAttDefList().getAttDefCount(); i++) {
      const auto& attribute =
          static_cast<xercesc::SchemaAttDef&>(type.getAttDefList().getAttDef(i));
      if (dynamic_cast<NumberType*>(attribute.getDatatypeValidator()) != nullptr) return true;
    }
  }
  return false;
}

TEST(SharedSchemas, HaveQuickNumbers) {
  SharedSchemas builtIn(shipped);
  EXPECT_TRUE(hasQuickNumbers(*builtIn.grammarFor(dd, dd)));
  SharedSchemas added(shipped);
  added.add(dd);
  EXPECT_TRUE(hasQuickNumbers(*added.grammarFor(dd, dd)));
}

TEST(SharedSchemas, HaveWhatIsBuiltInForTheSameFileAlone) {
  const std::string text = test::contentOf(shipped + "vorcobol.xsd");
  const std::string ws = test::contentOf(shipped + "vorws.xsd");
  for (const std::string& other : {text + "\n", text.substr(0, text.size() - 1),
                                   text.substr(0, 8192), "x" + text.substr(1), ws, std::string()}) {
    const TempDirectory directory;
    directory.write("vorcobol.xsd", other);
    SharedSchemas schemas(directory.path() + "/");
    EXPECT_EQ(missing(schemas, dd, dd), dd);
    directory.write("vorcobol.xsd", text);
    EXPECT_EQ(missing(schemas, dd, dd), u"none");
  }
}

TEST(SharedSchemas, AreForTheirOwnPlacesOnly) {
  SharedSchemas schemas(shipped);
  schemas.add(dd);
  for (const XMLCh* place : {XSDNS::wsURI, XSDNS::wsName, u"", u"./vorcobol.xsd"}) {
    EXPECT_EQ(missing(schemas, dd, place), u"");
  }
  EXPECT_EQ(missing(schemas, u"urn:o", u"urn:o"), u"");
  EXPECT_EQ(missing(schemas, u"", dd), u"");
}

TEST(SharedSchemas, AreThereAsLongAsTheirFilesAreTheSame) {
  const TempDirectory directory;
  const std::string text = test::contentOf(shipped + "vorcobol.xsd");
  directory.write("vorcobol.xsd", text);
  SharedSchemas schemas(directory.path() + "/");
  schemas.add(dd);
  EXPECT_EQ(missing(schemas, dd, dd), u"none");
  directory.write("vorcobol.xsd", text + "\n");
  EXPECT_EQ(missing(schemas, dd, dd), dd);
  directory.write("vorcobol.xsd", text);
  EXPECT_EQ(missing(schemas, dd, dd), u"none");
  fs::remove(directory.path() + "/vorcobol.xsd");
  EXPECT_EQ(missing(schemas, dd, dd), dd);
}

// What makes a schema one that is not shared. Nothing is missing then, until the file changes.
TEST(SharedSchemas, LeavesOutWhatParsesHaveToReadThemselves) {
  const std::string ns = as::namespaces::dd.uri;
  const std::string start = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' ";
  const std::string target = "targetNamespace='" + ns + "'>";
  const std::string end = "<xs:element name='program'/></xs:schema>";
  const struct {
    const char* label;
    std::string text;
  } rows[] = {
      {"of no well-formed text", "<schema"},
      {"of a mistake", start + target + "<xs:element name='program' type='none'/></xs:schema>"},
      {"of another namespace", start + "targetNamespace='urn:o'>" + end},
      {"of no namespace", start + ">" + end},
      {"that includes", start + target + "<xs:include schemaLocation='part.xsd'/>" + end},
      {"that imports",
       start + target + "<xs:import namespace='urn:o' schemaLocation='o.xsd'/>" + end},
      {"with an external entity",
       "<!DOCTYPE xs:schema SYSTEM 'schema.dtd'>" + start + target + end},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.label);
    const TempDirectory directory;
    directory.write("vorcobol.xsd", row.text);
    directory.write("part.xsd", start + target + "</xs:schema>");
    SchemaCache cache;
    int alone = 0;
    int shared = 0;
    const auto attempt = [&](const Schemas& schemas) {
      if (schemas == nullptr) {
        alone++;
      } else {
        schemas->grammarFor(dd, dd);
        shared++;
      }
    };
    cache.run(directory.path() + "/", attempt);
    cache.run(directory.path() + "/", attempt);
    EXPECT_EQ(alone, 2);
    EXPECT_EQ(shared, 0);
    directory.write("vorcobol.xsd", test::contentOf(shipped + "vorcobol.xsd"));
    cache.run(directory.path() + "/", attempt);
    EXPECT_EQ(shared, 1);
  }
}

TEST(SchemaCache, KeepsSchemasForADirectory) {
  SchemaCache cache;
  const auto kept = [&](const std::string& directory) {
    return cache.run(directory, [](const Schemas& schemas) { return schemas; });
  };
  const Schemas first = kept(shipped);
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(kept(shipped), first);
  const Schemas other = kept("elsewhere/");
  EXPECT_NE(other, first);
  EXPECT_EQ(kept(""), nullptr);
  EXPECT_NE(kept(shipped), first);
}

TEST(SchemaCache, LetsGoOfWhatIsSpoilt) {
  SchemaCache cache;
  Schemas first;
  const auto spoil = [&](const Schemas& schemas) {
    first = schemas;
    schemas->spoil();
    throw std::runtime_error("in the midst");
  };
  EXPECT_THROW(cache.run(shipped, spoil), std::runtime_error);
  cache.run(shipped, [&](const Schemas& schemas) { EXPECT_NE(schemas, first); });
}

TEST(SchemaCache, MakesTwoAttemptsWhereNothingIsKept) {
  std::vector<Schemas> given;
  const auto attempt = [&](const Schemas& schemas) {
    given.push_back(schemas);
    if (schemas != nullptr) throw NotShared{dd};
  };
  SchemaCache::runOnce(shipped, attempt);
  ASSERT_EQ(given.size(), 2u);
  EXPECT_NE(given[0], nullptr);
  EXPECT_EQ(given[1], nullptr);
  SchemaCache::runOnce("", attempt);
  EXPECT_EQ(given.size(), 3u);
}

TEST(SchemaCache, EndsWithAnAttemptThatSharesNothing) {
  const std::vector<std::basic_string<XMLCh>> wishes = {u"", dd, u"urn:o"};
  for (const auto& wish : wishes) {
    SchemaCache cache;
    int attempts = 0;
    cache.run(shipped, [&](const Schemas& schemas) {
      attempts++;
      if (schemas != nullptr) throw NotShared{wish};
    });
    EXPECT_GT(attempts, 1);
    EXPECT_LT(attempts, 20);
  }
}

void parse(CXMLParser& parser, const std::string& document, const std::string& schemas = shipped) {
  parser.setSchemaLocation(schemas.c_str());
  xercesc::MemBufInputSource source(test::bytesOf(document), document.size(), "d.xml");
  parser.parse(&source);
}

TEST(SharingParser, ReadsWithWhatIsThere) {
  const test::SchemaCopy copy;
  const std::string directory = copy.path() + "/";
  const auto schemas = std::make_shared<SharedSchemas>(directory);
  {
    CXMLParser parser(schemas);
    EXPECT_THROW(parse(parser, test::payProgram(), directory), NotShared);
  }
  schemas->add(dd);
  CXMLParser parser(schemas);
  parse(parser, test::payProgram(), directory);
  EXPECT_NE(parser.getDocument(), nullptr);
  EXPECT_FALSE(schemas->isSpoilt());
}

TEST(SharingParser, ReadsWithWhatIsBuiltIn) {
  CXMLParser parser(std::make_shared<SharedSchemas>(shipped));
  parse(parser, test::payProgram());
  EXPECT_NE(parser.getDocument(), nullptr);
}

TEST(SharingParser, HasWhatItRepeatsReadTheFileThatWasOpened) {
  const TempDirectory directory;
  const std::string file = directory.write("d.xml", test::payProgram());
  CXStr name(file);
  std::shared_ptr<const LocalFile> opened;
  CXMLParser sharing(std::make_shared<SharedSchemas>("elsewhere/"));
  sharing.setSchemaLocation(shipped.c_str());
  EXPECT_THROW(sharing.parse(static_cast<const XMLCh*>(name), LocalFile::Opening::any, opened),
               NotShared);
  fs::remove(file);
  CXMLParser alone;
  alone.setSchemaLocation(shipped.c_str());
  alone.parse(static_cast<const XMLCh*>(name), LocalFile::Opening::any, opened);
  EXPECT_NE(alone.getDocument()->getDocumentElement(), nullptr);
}

// What the parser makes of a content model it makes when the first document needs it: here more
// than there may be. The one that has all memory to itself tells.
TEST(SharingParser, LeavesToOthersWhatTakesTooMuchMemory) {
  const std::string either = "<xs:choice><xs:element name='a'/><xs:element name='b'/></xs:choice>";
  std::string choices;
  std::string content = "<a/>";
  for (int i = 0; i < 22; i++) {
    choices += either;
    content += "<a/>";
  }
  const std::string ns = as::namespaces::dd.uri;
  const TempDirectory directory;
  directory.write("vorcobol.xsd",
                  "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='" + ns +
                      "' elementFormDefault='qualified'><xs:element name='program'>"
                      "<xs:complexType><xs:sequence><xs:choice minOccurs='0' "
                      "maxOccurs='unbounded'><xs:element name='a'/><xs:element name='b'/>"
                      "</xs:choice><xs:element name='a'/>" +
                      choices +
                      "</xs:sequence><xs:attribute name='name'/></xs:complexType></xs:element>"
                      "</xs:schema>");
  const std::string location = directory.path() + "/";
  const std::string document = test::dictionary(content);
  const auto schemas = std::make_shared<SharedSchemas>(location);
  schemas->add(dd);
  CXMLParser sharing(schemas);
  EXPECT_THROW(parse(sharing, document, location), NotShared);
  EXPECT_TRUE(schemas->isSpoilt());
  CXMLParser alone;
  EXPECT_THROW(parse(alone, document, location), as::CASParseException);
}

// The names of documents are numbered behind those of the schemas, for each parse anew.
TEST(SharingParser, LeavesNoNames) {
  const auto schemas = std::make_shared<SharedSchemas>(shipped);
  schemas->add(dd);
  const unsigned int names = schemas->names()->getStringCount();
  for (const char* uri : {"urn:a", "urn:b"}) {
    CXMLParser parser(schemas);
    EXPECT_THROW(parse(parser, test::dictionaryOf(std::string("<o:x xmlns:o='") + uri + "'/>")),
                 as::CASParseException);
  }
  EXPECT_EQ(schemas->names()->getStringCount(), names);
}

TEST(SharingParser, KeepsWhatItReadWith) {
  std::weak_ptr<SharedSchemas> watched;
  {
    auto schemas = std::make_shared<SharedSchemas>(shipped);
    schemas->add(dd);
    watched = schemas;
    CXMLParser parser(std::move(schemas));
    parse(parser, test::payProgram());
    EXPECT_FALSE(watched.expired());
  }
  EXPECT_TRUE(watched.expired());
}

}  // namespace

// Tests of the entry object that keeps schemas: whatever it has read before and whatever becomes of
// the schema files, it answers what the plain one answers; and that with schemas which are built in
// what it answers with others that say the same.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Labels.h"
#include "support/ModelText.h"
#include "support/Requests.h"
#include "support/SchemaCopy.h"
#include "support/TempDirectory.h"

namespace {

namespace fs = std::filesystem;
using test::cachingServices;
using test::contentOf;
using test::dictionaryOf;
using test::Outcome;
using test::plainServices;
using test::Result;
using test::TempDirectory;
using testing::HasSubstr;

const std::string dd = as::namespaces::dd.uri;
const std::string ws = as::namespaces::ws.uri;

// Answers as texts.

void appendItems(std::string& text, as::IList* items) {
  for (int i = 0; i < items->getLength(); i++) {
    auto* const item = as::interface_cast<as::IDataItem>(items->getItem(i));
    text += item->RTTI_vinfo().record()->name + (" " + item->getName()) + " " +
            std::to_string(item->getLength()) + " " + item->getPicture() + "(";
    if (auto* const group = as::interface_cast<as::IGroup>(item)) {
      appendItems(text, group->getChildren());
    }
    text += ")";
  }
}

std::string textOf(as::IProgram& program) {
  std::string text = program.getName() + ":";
  appendItems(text, program.getDataItems());
  return text;
}

std::string textOf(as::IService& service) { return test::modelText(service); }

// All that a client can tell an outcome by.
template <class Root>
std::string textOf(const Outcome<Root>& outcome) {
  const as::CASParseException& message = outcome.message;
  return testing::PrintToString(outcome.result) + " " + outcome.text + " " +
         std::to_string(message.getErrorCode()) + ":" + std::to_string(message.getLineNum()) + ":" +
         std::to_string(message.getColNum()) + " " + message.getPublicId() + " " +
         message.getSystemId() + " " + (outcome.root ? textOf(*outcome.root) : "");
}

// The answers to the requests for a dictionary and for a service in `document`.
std::string answers(as::IAgentServices& services, const std::string& document,
                    const std::string& id = "document.xml") {
  return textOf(test::outcomeOf(services, document, id.c_str())) + "\n" +
         textOf(test::serviceOutcomeOf(services, document, false, id.c_str()));
}

std::unique_ptr<as::IAgentServices> with(const std::string& directory,
                                         std::unique_ptr<as::IAgentServices> services) {
  services->setSchemaLocation(directory.c_str());
  return services;
}

// The same of a plain object with schemas that are not built in, as if those were the shipped ones.
std::string compiledAnswers(const std::string& document, const std::string& id) {
  static const test::SchemaCopy copy;
  std::string text = answers(*with(copy.path(), plainServices()), document, id);
  for (std::size_t at = text.find(copy.path()); at != std::string::npos;
       at = text.find(copy.path())) {
    text.replace(at, copy.path().size(), AS_SCHEMA_DIR);
  }
  return text;
}

// What the plain object answers that has read nothing before.
std::string plainAnswers(const std::string& directory, const std::string& document,
                         const std::string& id = "document.xml") {
  return answers(*with(directory, plainServices()), document, id);
}

void expectAsPlain(as::IAgentServices& services, const std::string& directory,
                   const std::string& document, const std::string& id = "document.xml") {
  EXPECT_EQ(answers(services, document, id), plainAnswers(directory, document, id)) << document;
}

// Documents.

std::vector<std::string> files() {
  std::vector<std::string> all;
  for (const char* directory : {AS_EXAMPLES_DIR, AS_SEEDS_DIR}) {
    for (const auto& entry : fs::recursive_directory_iterator(directory)) {
      if (entry.path().extension() == ".xml") all.push_back(entry.path().string());
    }
  }
  std::sort(all.begin(), all.end());
  return all;
}

// One object reads them all, each twice, so that each comes in front of and behind others.
TEST(Caching, AnswersOfExamplesAndSeedsAsThePlainObject) {
  const auto services = with(AS_SCHEMA_DIR, cachingServices());
  const std::vector<std::string> all = files();
  ASSERT_GT(all.size(), 50u);
  for (int round = 0; round < 2; round++) {
    for (const std::string& file : all) {
      SCOPED_TRACE(file);
      expectAsPlain(*services, AS_SCHEMA_DIR, contentOf(file), file);
    }
  }
}

TEST(BuiltInSchemas, AnswerOfExamplesAndSeedsWhatCompiledOnesDo) {
  for (const std::string& file : files()) {
    const std::string document = contentOf(file);
    EXPECT_EQ(plainAnswers(AS_SCHEMA_DIR, document, file), compiledAnswers(document, file));
  }
}

TEST(Caching, ReadsFilesAndTheDictionariesOfServices) {
  const test::CurrentDirectory directory;
  directory.write("PAY.xml", test::payProgram());
  directory.write("pay-java.xml", test::payService(""));
  const auto plain = with(AS_SCHEMA_DIR, plainServices());
  const auto caching = with(AS_SCHEMA_DIR, cachingServices());
  const auto ask = [](as::IAgentServices& services, const char* file) {
    return textOf(test::outcomeOf([&] { return services.parseCobolDD(file); })) + "\n" +
           textOf(test::outcomeOf([&] { return services.parseService(file, true); }));
  };
  for (int round = 0; round < 3; round++) {
    for (const char* file : {"PAY.xml", "pay-java.xml", "missing.xml", ".", "http://host/d.xml"}) {
      EXPECT_EQ(ask(*caching, file), ask(*plain, file)) << file;
    }
  }
}

// A program with `attributes` in its root, in front of which `before` stands.
std::string programWith(const std::string& attributes, const std::string& content = "",
                        const std::string& before = "") {
  return before + "<program xmlns='" + dd +
         "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' name='P' " + attributes + ">" +
         content + "</program>";
}

std::string located(const std::string& pairs) { return "xsi:schemaLocation='" + pairs + "'"; }

struct Document {
  const char* label;
  std::string text;
};

void PrintTo(const Document& document, std::ostream* out) { *out << document.label; }

// Documents that go another way than most, with the file "other.xsd" beside them.
std::vector<Document> unusual() {
  const std::string own = dd + " " + dd;
  const std::string item = "<dataItems><numeric name='N'/></dataItems>";
  return {
      {"WithoutALocation", programWith("", item)},
      {"WithTheLocationOfAnother", programWith(located(ws + " " + ws), item)},
      {"WithAnOddLocation", programWith(located(dd), item)},
      {"WithAnEmptyLocation", programWith(located(""), item)},
      {"WithTheSchemaOfAnotherNamespace", programWith(located(dd + " vorws.xsd"), item)},
      {"WithTheBareName", programWith(located(dd + " vorcobol.xsd"), item)},
      {"WithAPlace", programWith(located(dd + " schemas/vorcobol.xsd"), item)},
      {"WithAPlaceOnANetwork", programWith(located(dd + " http://host/vorcobol.xsd"), item)},
      {"WithADirectoryForAPlace", programWith(located(dd + " ."), item)},
      {"WithAllLocations", programWith(located(own + " " + ws + " " + ws), item)},
      {"WithTheLocationOfAnotherInFront", programWith(located(ws + " " + ws + " " + own), item)},
      {"WithTheLocationTwice", programWith(located(own + " " + own), item)},
      {"WithTheLocationInside",
       programWith("", "<dataItems " + located(own) + "><numeric name='N'/></dataItems>")},
      {"WithTheLocationAgainInside",
       programWith(located(own),
                   "<dataItems " + located(own) + "><numeric name='N'/></dataItems>")},
      {"WithoutANamespaceButALocation",
       programWith(located(own) + " xsi:noNamespaceSchemaLocation='other.xsd'", item)},
      {"WithASchemaOfItsOwn", programWith(located(own + " urn:o other.xsd"), item)},
      {"WithASchemaOfItsOwnInFront", programWith(located("urn:o other.xsd " + own), item)},
      {"WithAMissingSchemaOfItsOwn", programWith(located(own + " urn:o missing.xsd"), item)},
      {"WithAnElementOfThatSchema",
       programWith(located(own + " urn:o other.xsd"),
                   "<dataItems><o:item xmlns:o='urn:o' name='N'/></dataItems>")},
      {"WithThatElementAlone",
       programWith(located(own), "<dataItems><o:item xmlns:o='urn:o' name='N'/></dataItems>")},
      {"WithATypeOfThatSchema",
       programWith(located(own + " urn:o other.xsd"),
                   "<dataItems><numeric xmlns:o='urn:o' xsi:type='o:numeric' name='N' o:more='1'/>"
                   "</dataItems>")},
      {"WithThatTypeAlone", programWith(located(own),
                                        "<dataItems><numeric xmlns:o='urn:o' xsi:type='o:numeric' "
                                        "name='N'/></dataItems>")},
      {"WithATypeOfOurs",
       programWith(located(own), "<dataItems><numeric xmlns:d='" + dd +
                                     "' xsi:type='d:numeric' name='N'/></dataItems>")},
      {"WithADtd", programWith(located(own), item, "<!DOCTYPE program [<!ENTITY e 'E'>]>")},
      {"WithAnEntity", programWith(located(own), "<dataItems><numeric name='&e;'/></dataItems>",
                                   "<!DOCTYPE program [<!ENTITY e 'E'>]>")},
      {"WithADtdThatDeclares",
       programWith(located(own), item, "<!DOCTYPE program [<!ELEMENT program ANY>]>")},
      {"WithADtdElsewhere", programWith(located(own), item, "<!DOCTYPE program SYSTEM 'd.dtd'>")},
      {"WithABrokenDtd", programWith(located(own), item, "<!DOCTYPE program [<!ENTITY e>")},
      {"WithAnElementOfAnother",
       programWith(located(own + " " + ws + " " + ws), "<service xmlns='" + ws + "'/>")},
      {"OfAService", test::webService("name='S'", "")},
      {"OfNoNamespace", "<program name='P'/>"},
      {"OfAnotherNamespace", "<program xmlns='urn:o' name='P'/>"},
      {"OfNothing", ""},
      {"CutShort", programWith(located(own), item).substr(0, 250)},
      {"WithABadValue", dictionaryOf("<numeric name='N' length='many'/>")},
      {"WithABadName", dictionaryOf("<numeric name=''/>")},
      {"WithAnUnknownElement", dictionaryOf("<other/>")},
      {"WithAnUnknownAttribute", dictionaryOf("<numeric name='N' other='1'/>")},
  };
}

// A schema that makes the most of ours: it imports it, derives from it and substitutes for it.
std::string otherSchema() {
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns:d='" + dd +
         "' xmlns='urn:o' targetNamespace='urn:o'><xs:import namespace='" + dd +
         "' schemaLocation='vorcobol.xsd'/>"
         "<xs:complexType name='numeric'><xs:complexContent><xs:extension base='d:numeric'>"
         "<xs:attribute name='more' form='qualified'/></xs:extension></xs:complexContent>"
         "</xs:complexType>"
         "<xs:element name='item' type='numeric' substitutionGroup='d:program'/></xs:schema>";
}

class UnusualDocument : public testing::TestWithParam<Document> {
 protected:
  UnusualDocument() { directory_.write("other.xsd", otherSchema()); }

  std::string id() const { return directory_.path() + "/document.xml"; }

  // A text without the directory that this test has for itself.
  std::string withoutPlace(std::string text) const {
    for (std::size_t at = text.find(directory_.path()); at != std::string::npos;
         at = text.find(directory_.path())) {
      text.erase(at, directory_.path().size());
    }
    return text;
  }

 private:
  const TempDirectory directory_;
};

INSTANTIATE_TEST_SUITE_P(Documents, UnusualDocument, testing::ValuesIn(unusual()),
                         test::labelOf<Document>);

TEST_P(UnusualDocument, IsAnsweredAsByThePlainObject) {
  const std::string expected = plainAnswers(AS_SCHEMA_DIR, GetParam().text, id());
  EXPECT_EQ(expected, compiledAnswers(GetParam().text, id())) << "compiled";
  const auto services = with(AS_SCHEMA_DIR, cachingServices());
  EXPECT_EQ(answers(*services, GetParam().text, id()), expected) << "first";
  EXPECT_EQ(answers(*services, GetParam().text, id()), expected) << "again";
  // With all schemas there that a document may need.
  answers(*services, test::payProgram());
  answers(*services, test::webService("name='S'", ""));
  EXPECT_EQ(answers(*services, GetParam().text, id()), expected) << "behind good ones";
}

TEST_P(UnusualDocument, ChangesNothingForOthers) {
  // The other.xsd of each test is the same.
  static std::map<std::string, std::string> expected;
  const auto services = with(AS_SCHEMA_DIR, cachingServices());
  const std::string own = id();
  for (const Document& other : unusual()) {
    SCOPED_TRACE(other.label);
    answers(*services, GetParam().text, own);
    const auto [entry, isNew] = expected.try_emplace(other.label);
    if (isNew) entry->second = withoutPlace(plainAnswers(AS_SCHEMA_DIR, other.text, own));
    EXPECT_EQ(withoutPlace(answers(*services, other.text, own)), entry->second);
  }
}

// Without a schema directory documents bring the schemas themselves.
TEST_P(UnusualDocument, IsAnsweredAsByThePlainObjectWithoutASchemaDirectory) {
  const auto services = cachingServices();
  for (int round = 0; round < 2; round++) {
    EXPECT_EQ(answers(*services, GetParam().text, id()),
              answers(*plainServices(), GetParam().text, id()));
  }
}

// Schema files.

std::string replaced(std::string text, const std::string& what, const std::string& with) {
  const std::size_t at = text.find(what);
  if (at == std::string::npos) throw std::runtime_error(what);
  return text.replace(at, what.size(), with);
}

const fs::path shippedSchema = fs::path(AS_SCHEMA_DIR) / "vorcobol.xsd";

// The shipped schema, where a name has two characters at least: in as many bytes.
std::string stricterSchema() {
  return replaced(contentOf(shippedSchema), "<xs:minLength value=\"1\"/>",
                  "<xs:minLength value=\"2\"/>");
}

void write(const fs::path& file, const std::string& text) { std::ofstream(file) << text; }

struct Change {
  const char* label;
  // What is done to the schema file, one after the other, with requests in between.
  std::vector<std::function<void(const fs::path& file)>> steps;
};

void PrintTo(const Change& change, std::ostream* out) { *out << change.label; }

void drop(const fs::path& file) { fs::remove_all(file); }
void ship(const fs::path& file) { write(file, contentOf(shippedSchema)); }
void makeStricter(const fs::path& file) { write(file, stricterSchema()); }
void breakIt(const fs::path& file) { write(file, "<schema"); }

// The shipped schema with what it says of names in a file of its own.
void split(const fs::path& file) {
  const std::string shipped = contentOf(shippedSchema);
  const std::string start = "<xs:simpleType name=\"name\">";
  const std::string end = "</xs:simpleType>";
  const std::size_t from = shipped.find(start);
  const std::size_t to = shipped.find(end, from) + end.size();
  const std::string head = shipped.substr(0, shipped.find("<!--"));
  write(file, head + "<xs:include schemaLocation='part.xsd'/>" +
                  shipped.substr(head.size(), from - head.size()) + shipped.substr(to));
  write(file.parent_path() / "part.xsd", head + shipped.substr(from, to - from) + "</xs:schema>");
}

std::vector<Change> changes() {
  return {
      {"None", {ship, [](const fs::path&) {}}},
      {"Rewritten", {ship, makeStricter, ship}},
      {"Touched",
       {ship, [](const fs::path& file) { fs::last_write_time(file, fs::file_time_type::min()); }}},
      {"RewrittenWithItsOldTime",
       {ship,
        [](const fs::path& file) {
          const auto time = fs::last_write_time(file);
          makeStricter(file);
          fs::last_write_time(file, time);
        }}},
      {"Replaced",
       {ship,
        [](const fs::path& file) {
          makeStricter(file.string() + "~");
          fs::rename(file.string() + "~", file);
        }}},
      {"Removed", {ship, drop}},
      {"Appears", {drop, ship}},
      {"RemovedForAWhile", {ship, drop, makeStricter}},
      {"Broken", {ship, breakIt, breakIt}},
      {"Mended", {breakIt, ship, makeStricter}},
      {"Emptied", {ship, [](const fs::path& file) { write(file, ""); }}},
      {"BecomesADirectory",
       {ship,
        [](const fs::path& file) {
          drop(file);
          fs::create_directory(file);
        },
        [](const fs::path& file) {
          drop(file);
          ship(file);
        }}},
      {"OfAnotherNamespace",
       {ship,
        [](const fs::path& file) {
          write(file, contentOf(fs::path(AS_SCHEMA_DIR) / "vorws.xsd"));
        }}},
      {"InTwoFiles",
       {split,
        [](const fs::path& file) {
          const fs::path part = file.parent_path() / "part.xsd";
          write(part, replaced(contentOf(part), "value=\"1\"", "value=\"2\""));
        },
        [](const fs::path& file) { drop(file.parent_path() / "part.xsd"); }, ship}},
  };
}

class SchemaChange : public testing::TestWithParam<Change> {};

INSTANTIATE_TEST_SUITE_P(Changes, SchemaChange, testing::ValuesIn(changes()),
                         test::labelOf<Change>);

TEST_P(SchemaChange, IsNoticedByTheNextRequest) {
  const TempDirectory schemas;
  const auto services = with(schemas.path(), cachingServices());
  int step = 0;
  for (const auto& change : GetParam().steps) {
    SCOPED_TRACE("step " + std::to_string(++step));
    change(schemas.path() + "/vorcobol.xsd");
    for (const char* item : {"<numeric name='LONG'/>", "<numeric name='S'/>", "<other/>"}) {
      expectAsPlain(*services, schemas.path(), dictionaryOf(item));
    }
  }
}

TEST(Caching, NoticesWhatChangesBetweenAServiceAndItsDictionary) {
  const TempDirectory schemas;
  fs::copy(AS_SCHEMA_DIR, schemas.path(), fs::copy_options::recursive);
  const test::CurrentDirectory directory;
  directory.write("PAY.xml", test::dictionaryOf("<numeric name='S'/>"));
  const auto services = with(schemas.path(), cachingServices());
  const std::string service = test::payService("");
  EXPECT_EQ(test::serviceOutcomeOf(*services, service, true).result, Result::root);
  makeStricter(schemas.path() + "/vorcobol.xsd");
  EXPECT_EQ(test::serviceOutcomeOf(*services, service, true).result, Result::parseException);
  EXPECT_EQ(test::serviceOutcomeOf(*services, service, false).result, Result::root);
}

// Objects and directories.

TEST(Caching, GoesByTheSchemaDirectoryNamedLast) {
  const TempDirectory strict;
  makeStricter(strict.path() + "/vorcobol.xsd");
  const auto services = cachingServices();
  const std::string document = dictionaryOf("<numeric name='S'/>");
  for (int round = 0; round < 2; round++) {
    services->setSchemaLocation(AS_SCHEMA_DIR);
    EXPECT_EQ(test::outcomeOf(*services, document).result, Result::root);
    services->setSchemaLocation(strict.path().c_str());
    EXPECT_EQ(test::outcomeOf(*services, document).result, Result::parseException);
  }
  EXPECT_THROW(services->setSchemaLocation(""), std::out_of_range);
  EXPECT_EQ(answers(*services, document), answers(*plainServices(), document));
}

TEST(Caching, CountsARelativeDirectoryFromWhereEachRequestIsMade) {
  const auto services = with("schemas", cachingServices());
  const std::string document = dictionaryOf("<numeric name='S'/>");
  for (int round = 0; round < 2; round++) {
    const test::CurrentDirectory shipped;
    shipped.write("schemas/vorcobol.xsd", contentOf(shippedSchema));
    EXPECT_EQ(test::outcomeOf(*services, document).result, Result::root);
    const test::CurrentDirectory strict;
    strict.write("schemas/vorcobol.xsd", stricterSchema());
    EXPECT_EQ(test::outcomeOf(*services, document).result, Result::parseException);
    const test::CurrentDirectory none;
    EXPECT_THAT(test::outcomeOf(*services, document).text, HasSubstr("schemas/vorcobol.xsd"));
  }
}

TEST(Caching, KeepsObjectsApart) {
  const TempDirectory strict;
  makeStricter(strict.path() + "/vorcobol.xsd");
  const auto one = with(AS_SCHEMA_DIR, cachingServices());
  const auto other = with(strict.path(), cachingServices());
  const std::string document = dictionaryOf("<numeric name='S'/>");
  for (int round = 0; round < 2; round++) {
    EXPECT_EQ(test::outcomeOf(*one, document).result, Result::root);
    EXPECT_EQ(test::outcomeOf(*other, document).result, Result::parseException);
  }
}

TEST(Caching, LeavesModelsAliveThatItMade) {
  const TempDirectory schemas;
  fs::copy(AS_SCHEMA_DIR, schemas.path(), fs::copy_options::recursive);
  auto services = with(schemas.path(), cachingServices());
  const std::string document = test::webService("name='S'", "<operations/>");
  std::vector<std::unique_ptr<as::IService>> models;
  std::vector<std::string> texts;
  for (const auto& change : std::vector<std::function<void(const fs::path&)>>{
           [](const fs::path&) {}, drop,
           [](const fs::path& file) {
             write(file, contentOf(fs::path(AS_SCHEMA_DIR) / file.filename()) + "<!-- more -->");
           }}) {
    change(schemas.path() + "/vorws.xsd");
    auto outcome = test::serviceOutcomeOf(*services, document);
    if (!outcome.root) continue;
    texts.push_back(test::written(*outcome.root));
    models.push_back(std::move(outcome.root));
  }
  ASSERT_EQ(models.size(), 2u);
  services.reset();
  for (std::size_t i = 0; i < models.size(); i++) {
    EXPECT_EQ(test::written(*models[i]), texts[i]);
    as::IOperation* const operation = models[i]->addOperation("added", nullptr);
    operation->addParameter(as::IParameter::BY_IN, "p", 0);
    EXPECT_THAT(test::written(*models[i]), HasSubstr("name=\"added\""));
    EXPECT_EQ(test::modelText(*test::writtenAndRead(*models[i])), test::modelText(*models[i]));
  }
}

TEST(CreateCachingAgentServices, MakesANewObjectEachTimeWithoutASchemaDirectory) {
  const auto first = cachingServices();
  const auto second = cachingServices();
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
  EXPECT_THAT(test::outcomeOf(*first, test::payProgram()).text,
              HasSubstr("not read over a network"));
}

}  // namespace

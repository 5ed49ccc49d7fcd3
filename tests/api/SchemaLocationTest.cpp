// Tests of the directory of the schemas.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::dictionary;
using test::dictionaryOf;
using test::dictionaryWithHint;
using test::outcomeOf;
using test::outcomeOfFile;
using test::Result;
using test::TempDirectory;
using test::topItem;
using testing::EndsWith;
using testing::HasSubstr;

const std::string ns = as::namespaces::dd.uri;

void copySchema(const TempDirectory& directory) {
  std::filesystem::copy_file(std::filesystem::path(AS_SCHEMA_DIR) / "vorcobol.xsd",
                             std::filesystem::path(directory.path()) / "vorcobol.xsd");
}

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
  const auto services = test::servicesWithoutSchemas();
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
  const auto services = test::servicesWithoutSchemas();
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
  const auto services = test::servicesWithoutSchemas();
  for (const std::string& hint :
       {std::string("schemas/my.xsd"), directory.path() + "/schemas/my.xsd",
        "file://" + directory.path() + "/schemas/my.xsd"}) {
    SCOPED_TRACE(hint);
    const std::string file = directory.write("d.xml", dictionaryWithHint(hint));
    const auto outcome = outcomeOf([&] { return services->parseCobolDD(file.c_str()); });
    EXPECT_EQ(outcome.result, Result::root) << outcome.text;
  }
}

}  // namespace

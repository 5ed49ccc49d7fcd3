// Tests of what the names of documents and schemas lead to: what is judged is what is read.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include "support/Documents.h"
#include "support/OwnProcess.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::dictionary;
using test::dictionaryWithHint;
using test::outcomeOf;
using test::outcomeOfFile;
using test::Result;
using test::TempDirectory;
using testing::HasSubstr;

const std::string ns = as::namespaces::dd.uri;

class FileName : public testing::Test {
 protected:
  FileName() {
    const std::string document = dictionary("");
    // One is a file and the other a directory, whichever of the two a name might be taken for.
    directory_.write("a%20b.xml", document);
    std::filesystem::create_directory(path("a b.xml"));
    directory_.write("c d.xml", document);
    std::filesystem::create_directory(path("c%20d.xml"));
  }

  std::string path(const std::string& name) const { return directory_.path() + "/" + name; }

  std::string fifo(const std::string& name) const {
    EXPECT_EQ(::mkfifo(path(name).c_str(), S_IRUSR | S_IWUSR), 0);
    return path(name);
  }

  TempDirectory directory_;
};

TEST_F(FileName, OfADocumentHasNoEscapesButAUrlHas) {
  const struct {
    std::string name;
    bool isFile;
  } rows[] = {
      {path("a%20b.xml"), true},
      {path("a b.xml"), false},
      {path("c%20d.xml"), false},
      {path("c d.xml"), true},
      {"file://" + path("a%20b.xml"), false},
      {"file://" + path("a%2520b.xml"), true},
      {"file://" + path("c%20d.xml"), true},
      {"file://" + path("c%2520d.xml"), false},
      {"file://localhost" + path("%63%20d.xml"), true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const auto outcome = outcomeOfFile(row.name);
    EXPECT_EQ(outcome.result, row.isFile ? Result::root : Result::parseException) << outcome.text;
    if (row.isFile) continue;
    EXPECT_EQ(outcome.text, "the document '" + row.name + "' is refused: it is a directory");
    EXPECT_EQ(outcome.message.getSystemId(), row.name);
    EXPECT_EQ(outcome.message.getErrorCode(), 0);
    EXPECT_EQ(outcome.message.getLineNum(), 0);
  }
}

TEST_F(FileName, OfADocumentMayBeRelative) {
  const test::CurrentDirectory current;
  current.write("a%20b.xml", dictionary(""));
  std::filesystem::create_directory("a b.xml");
  EXPECT_EQ(outcomeOfFile("a%20b.xml").result, Result::root);
  EXPECT_EQ(outcomeOfFile("./a b.xml").result, Result::parseException);
}

// What is relative to a folder that is gone leads nowhere; what is not is read.
TEST_F(FileName, OfADocumentMayBeRelativeToNothing) {
  const test::CurrentDirectory current;
  std::filesystem::create_directory("gone");
  std::filesystem::current_path("gone");
  std::filesystem::remove("../gone");
  const auto outcome = outcomeOfFile("d.xml");
  EXPECT_EQ(outcome.result, Result::parseException) << outcome.text;
  EXPECT_NE(outcome.text, "");
  EXPECT_EQ(outcomeOfFile(path("a%20b.xml")).result, Result::root);
}

// Where a name is no URL, "%20" is the one escape there is.
TEST_F(FileName, OfASchemaHasItsEscapes) {
  directory_.write("a%20b.xsd", "no schema");
  directory_.write("a b.xsd", test::contentOf(AS_SCHEMA_DIR "/vorcobol.xsd"));
  directory_.write("e%41.xsd", test::contentOf(AS_SCHEMA_DIR "/vorcobol.xsd"));
  directory_.write("eA.xsd", "no schema");
  std::filesystem::create_directory(path("c d.xsd"));
  directory_.write("c%20d.xsd", test::contentOf(AS_SCHEMA_DIR "/vorcobol.xsd"));
  const struct {
    std::string hint;
    const char* refusal;  // Null for none.
  } rows[] = {
      {"a%20b.xsd", nullptr},
      {path("a%20b.xsd"), nullptr},
      {"file://" + path("a%20b.xsd"), nullptr},
      {"a%2520b.xsd", "unable to open primary document entity"},
      {"file://" + path("a%2520b.xsd"), "invalid document structure"},
      {"e%41.xsd", nullptr},
      {"file://" + path("e%41.xsd"), "invalid document structure"},
      {"c%20d.xsd", "it is no regular file"},
      {"file://" + path("c%20d.xsd"), "it is no regular file"},
      {"file://" + path("c%2520d.xsd"), nullptr},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.hint);
    const auto outcome = outcomeOf(*test::servicesWithoutSchemas(), dictionaryWithHint(row.hint),
                                   path("d.xml").c_str());
    EXPECT_EQ(outcome.result, row.refusal == nullptr ? Result::root : Result::parseException)
        << outcome.text;
    if (row.refusal != nullptr) {
      EXPECT_THAT(outcome.text, HasSubstr(row.refusal));
    }
  }
}

// A schema directory is a path and no URL.
TEST_F(FileName, OfTheSchemaDirectoryHasNoEscapes) {
  const std::string schema = test::contentOf(AS_SCHEMA_DIR "/vorcobol.xsd");
  directory_.write("s%20t/vorcobol.xsd", schema);
  directory_.write("s t/vorcobol.xsd", "no schema");
  const auto services = test::servicesWithoutSchemas();
  services->setSchemaLocation(path("s%20t").c_str());
  EXPECT_EQ(outcomeOf(*services, dictionary("")).result, Result::root);
}

// Nobody writes to them: waiting for somebody would be for ever.
using FileNameDeathTest = FileName;

TEST_F(FileNameDeathTest, OfASchemaLeadsToNoFifo) {
  fifo("fifo.xsd");
  const std::string id = path("d.xml");
  EXPECT_RESULT_IN_OWN_PROCESS(
      parseException,
      outcomeOf(*test::servicesWithoutSchemas(), dictionaryWithHint("fifo.xsd"), id.c_str()),
      "it is no regular file");
}

TEST_F(FileNameDeathTest, OfTheSchemaDirectoryLeadsToNoFifo) {
  const std::string schema = fifo("vorcobol.xsd");
  const auto services = test::servicesWithoutSchemas();
  services->setSchemaLocation(directory_.path().c_str());
  EXPECT_RESULT_IN_OWN_PROCESS(parseException, outcomeOf(*services, dictionary("")),
                               "the schema '" + schema + "' is refused: it is no regular file");
}

TEST_F(FileNameDeathTest, OfADictionaryInAServiceLeadsToARegularFileOnly) {
  const std::string special = fifo("fifo.xml");
  for (const std::string& name : {special, std::string("/dev/zero"), directory_.path()}) {
    SCOPED_TRACE(name);
    const std::string service = test::javaService("dataDictFilename='" + name + "'", "");
    EXPECT_RESULT_IN_OWN_PROCESS(parseException, test::serviceOutcomeOf(service, true),
                                 "the document '" + name + "' is refused");
  }
}

TEST_F(FileName, OfADocumentMayLeadToAFifo) {
  const std::string name = fifo("fifo.xml");
  std::thread writer([&] { std::ofstream(name) << dictionary(""); });
  EXPECT_EQ(outcomeOfFile(name).result, Result::root);
  writer.join();
}

std::size_t openDescriptors() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

TEST_F(FileName, LeavesNothingOpenWhereverItLeads) {
  fifo("fifo");
  directory_.write("bad.xsd", "<bad");
  directory_.write("good.xsd", test::contentOf(AS_SCHEMA_DIR "/vorcobol.xsd"));
  directory_.write("bad.xml", "<bad");
  const std::size_t before = openDescriptors();
  for (const char* hint : {"good.xsd", "bad.xsd", "missing.xsd", "fifo", "c d.xml", ".",
                           "/dev/null", "http://127.0.0.1/s.xsd"}) {
    SCOPED_TRACE(hint);
    const auto outcome =
        outcomeOf(*test::servicesWithoutSchemas(), dictionaryWithHint(hint), path("d.xml").c_str());
    EXPECT_EQ(openDescriptors(), before) << "with the model, if any";
  }
  for (const char* name : {"a%20b.xml", "bad.xml", "missing.xml", "c%20d.xml"}) {
    SCOPED_TRACE(name);
    const auto outcome = outcomeOfFile(path(name));
    EXPECT_EQ(openDescriptors(), before) << "with the model, if any";
    const std::string service = test::javaService("dataDictFilename='" + path(name) + "'", "");
    const auto whole = test::serviceOutcomeOf(service, true);
    EXPECT_EQ(openDescriptors(), before) << "with the model, if any";
  }
}

}  // namespace

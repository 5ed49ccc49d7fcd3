// Tests of the list of flavours.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Flavours.h"
#include "support/Flavours.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using testing::ElementsAre;

TEST(FlavoursTest, AreSortedByTheirWords) {
  std::vector<std::string> words;
  std::vector<std::string> names;
  for (const toolkit::Flavour& flavour : toolkit::flavours()) {
    words.emplace_back(flavour.word);
    names.emplace_back(flavour.name);
  }
  EXPECT_THAT(words, ElementsAre("com", "dotnet", "java", "ws"));
  EXPECT_THAT(names, ElementsAre("COM", ".NET", "Java", "Web"));
}

TEST(FlavoursTest, AreFoundByTheirWords) {
  for (const toolkit::Flavour& flavour : toolkit::flavours()) {
    EXPECT_EQ(toolkit::findFlavour(flavour.word), &flavour);
  }
  EXPECT_EQ(toolkit::findFlavour("xd"), nullptr);
  EXPECT_EQ(toolkit::findFlavour(""), nullptr);
}

TEST(FlavoursTest, AreThoseOfNewServices) {
  for (const test::Flavour& row : test::flavours::all) {
    auto program = test::parse(test::dictionary(""));
    const std::unique_ptr<as::IService> service(row.make(program.get()));
    static_cast<void>(program.release());
    const toolkit::Flavour& flavour = toolkit::flavourOf(*service);
    EXPECT_EQ(&flavour, toolkit::findFlavour(row.word));
    EXPECT_EQ(flavour.implementation, row.implementation);
  }
}

// A document of one flavour, with a prefix, whose default namespace is another's.
std::string prefixed(const test::Flavour& flavour, const test::Flavour& other,
                     const std::string& content) {
  const std::string uri = flavour.own.uri;
  return "<p:service name='S' xmlns='" + std::string(other.own.uri) + "' xmlns:p='" + uri +
         "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" + uri +
         " " + uri + "'>" + content + "</p:service>";
}

TEST(FlavoursTest, AreToldByTheNamespaceThatTheRootIsInWhateverTheDefaultOneIs) {
  const char* const contents[] = {
      "", "<p:operations><p:operation name='O' entryPoint='E'/></p:operations>",
      "<p:parameterTypeDefs><p:parameter name='P'/></p:parameterTypeDefs>"};
  for (const test::Flavour& flavour : test::flavours::all) {
    for (const test::Flavour& other : test::flavours::all) {
      for (const char* const content : contents) {
        const std::string document = prefixed(flavour, other, content);
        const auto service =
            toolkit::DocumentReader(AS_SCHEMA_DIR).readServiceText(document, "service.xml");
        EXPECT_STREQ(toolkit::flavourOf(*service).word, flavour.word) << document;
      }
    }
  }
}

TEST(FlavoursTest, OfAnEmptyServiceThatCannotBeWrittenIsWhatTheDefaultNamespaceSays) {
  const auto service =
      toolkit::DocumentReader(AS_SCHEMA_DIR)
          .readServiceText(prefixed(test::flavours::java, test::flavours::com, ""), "service.xml");
  service->setName("\x01");
  EXPECT_STREQ(toolkit::flavourOf(*service).word, "com");
}

TEST(FlavoursTest, TellTheNamespaceOfTheirDocuments) {
  const struct {
    const char* word;
    as::Namespace documents;
  } rows[] = {{"com", as::namespaces::com},
              {"dotnet", as::namespaces::dotnet},
              {"java", as::namespaces::java},
              {"ws", as::namespaces::ws}};
  for (const auto& row : rows) {
    EXPECT_EQ(toolkit::findFlavour(row.word)->documents.uri, std::string(row.documents.uri));
  }
}

TEST(FlavoursTest, NoOtherOneIsMade) {
  const toolkit::Flavour other = {"cics", "CICS", as::IService::TYPE_XD, as::namespaces::ws};
  EXPECT_THROW(toolkit::makeService(test::parse(test::dictionary("")), other),
               std::invalid_argument);
}

}  // namespace

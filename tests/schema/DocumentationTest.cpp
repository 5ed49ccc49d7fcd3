// Tests of what the schemas' documentation shows: every example document in it is a good one.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <ostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::itemOf;
using test::Result;

struct Example {
  std::string schema;  // The file whose documentation shows it.
  std::string root;    // "program" or "service".
  std::string document;
};

void PrintTo(const Example& example, std::ostream* out) { *out << example.document; }

void replaceAll(std::string& text, const std::string& what, const std::string& with) {
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
}

// The documentation in the schema file: its comments.
std::string documentationOf(const std::filesystem::path& schema) {
  const std::string all = test::contentOf(schema);
  const std::string open = "<!--";
  std::string documentation;
  for (std::size_t at = all.find(open); at != std::string::npos; at = all.find(open, at)) {
    at += open.size();
    documentation += all.substr(at, all.find("-->", at) - at) + "\n";
  }
  return documentation;
}

// Takes the documents out of `documentation`.
std::vector<Example> takeExamples(const std::string& schema, std::string& documentation) {
  std::vector<Example> examples;
  for (const std::string root : {"program", "service"}) {
    for (;;) {
      const std::size_t begin = documentation.find("<" + root + " ");
      if (begin == std::string::npos) break;
      std::size_t end = documentation.find('>', begin);
      if (documentation[end - 1] != '/') {
        const std::string close = "</" + root + ">";
        end = documentation.find(close, begin) + close.size() - 1;
      }
      examples.push_back({schema, root, documentation.substr(begin, end + 1 - begin)});
      documentation.erase(begin, end + 1 - begin);
    }
  }
  return examples;
}

std::vector<Example> examplesOf(const std::string& schema) {
  std::string documentation = documentationOf(std::filesystem::path(AS_SCHEMA_DIR) / schema);
  return takeExamples(schema, documentation);
}

std::vector<Example> allExamples() {
  std::vector<Example> all;
  for (const auto& entry : std::filesystem::directory_iterator(AS_SCHEMA_DIR)) {
    for (Example& example : examplesOf(entry.path().filename())) all.push_back(std::move(example));
  }
  return all;
}

TEST(SchemaDocumentation, ShowsADocumentOfEveryKind) {
  std::map<std::string, std::size_t> counts;
  for (const Example& example : allExamples()) counts[example.schema + " " + example.root]++;
  const std::map<std::string, std::size_t> expected = {{"vorcobol.xsd program", 2},
                                                       {"vorcom.xsd service", 1},
                                                       {"vordotnet.xsd service", 1},
                                                       {"vorjava.xsd service", 1},
                                                       {"vorws.xsd service", 1}};
  EXPECT_EQ(counts, expected);
}

// So that no example escapes the tests below.
TEST(SchemaDocumentation, HasNoMarkupOutsideItsExamples) {
  for (const auto& entry : std::filesystem::directory_iterator(AS_SCHEMA_DIR)) {
    std::string documentation = documentationOf(entry.path());
    takeExamples(entry.path().filename(), documentation);
    EXPECT_EQ(documentation.find('<'), std::string::npos) << entry.path();
  }
}

// In a comment in front, or at the end of the line. Elements of documentation would make a schema
// take half as long again to load.
TEST(SchemaDocumentation, TellsOfEveryDeclarationInAComment) {
  for (const auto& entry : std::filesystem::directory_iterator(AS_SCHEMA_DIR)) {
    std::istringstream in(test::contentOf(entry.path()));
    int declarations = 0;
    bool isToldOf = false;  // By the line before.
    for (std::string line; std::getline(in, line);) {
      const bool holdsComment = line.find("-->") != std::string::npos;
      if (line.find(" name=\"") != std::string::npos && line.find("<xs:") != std::string::npos) {
        declarations++;
        EXPECT_TRUE(isToldOf) << entry.path() << line;
      } else if (line.find("<xs:enumeration") != std::string::npos) {
        declarations++;
        EXPECT_TRUE(isToldOf || holdsComment) << entry.path() << line;
      }
      EXPECT_EQ(line.find("<xs:annotation"), std::string::npos) << entry.path();
      isToldOf = holdsComment && line.find("<xs:") == std::string::npos;
    }
    EXPECT_GT(declarations, 60) << entry.path();
  }
}

std::string labelOf(const testing::TestParamInfo<Example>& info) {
  std::string label = info.param.schema + std::to_string(info.index);
  replaceAll(label, ".xsd", "");
  return label;
}

class SchemaExample : public testing::TestWithParam<Example> {};

TEST_P(SchemaExample, IsRead) {
  const std::string& document = GetParam().document;
  if (GetParam().root == "program") {
    const auto outcome = test::outcomeOf(document);
    EXPECT_EQ(outcome.result, Result::root) << outcome.text;
  } else {
    const auto outcome = test::serviceOutcomeOf(document);
    EXPECT_EQ(outcome.result, Result::root) << outcome.text;
  }
}

INSTANTIATE_TEST_SUITE_P(All, SchemaExample, testing::ValuesIn(allExamples()), labelOf);

// The services are for the dictionary that the dictionary schema shows.
TEST(SchemaDocumentation, ServicesGoWithTheDictionaryShown) {
  const test::CurrentDirectory directory;
  directory.write("TOTALS.xml", examplesOf("vorcobol.xsd").back().document);
  for (const Example& example : allExamples()) {
    if (example.root != "service") continue;
    SCOPED_TRACE(example.schema);
    const auto service = test::parseService(example.document, true);
    auto* const operation = itemOf<as::IOperation>(service->getOperations(), 0);
    EXPECT_NE(operation->getEntryPoint(), nullptr);
    auto* const parameter = itemOf<as::IParameter>(operation->getParameters(), 0);
    as::IDataItem* const item = itemOf<as::IMapping>(parameter->getMappings(), 0)->getDataItem();
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->getMaxOccurs(), parameter->getOccurs());
    EXPECT_EQ(item->getODO(), itemOf<as::IDataItem>(item->getParent()->getChildren(), 0));
  }
}

}  // namespace

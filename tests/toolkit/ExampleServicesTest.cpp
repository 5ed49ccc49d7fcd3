// Tests of the services in examples/: they are good, lint finds nothing wrong with them, and it
// finds exactly what is wrong with the broken ones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Model.h"
#include "support/ModelText.h"
#include "support/Requests.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// A file in examples/ without ".xml".
struct Example {
  std::string label;
  const char* program;
  const char* flavour;

  std::string file() const { return std::string(program) + "-" + flavour + ".xml"; }
  std::string path() const { return std::string(AS_EXAMPLES_DIR "/") + file(); }
};

void PrintTo(const Example& example, std::ostream* out) { *out << example.file(); }

std::vector<Example> examples() {
  std::vector<Example> all;
  for (const char* const program : {"DEPINT01", "MOTPREM", "PAYSLIP", "WHSLOTS"}) {
    for (const char* const flavour : {"com", "dotnet", "java", "ws"}) {
      all.push_back({std::string(program) + flavour, program, flavour});
    }
  }
  return all;
}

std::unique_ptr<as::IService> parseFile(const std::string& path) {
  return std::unique_ptr<as::IService>(test::newServices()->parseService(path.c_str(), false));
}

class ExampleService : public test::ToolkitTest, public testing::WithParamInterface<Example> {};

TEST_P(ExampleService, IsClean) {
  EXPECT_THAT(test::textsOf(toolkit::lintFile(reader(), GetParam().path())), IsEmpty());
}

TEST_P(ExampleService, LeadsToItemsOfItsProgram) {
  const toolkit::ServiceDocument document = reader().readServiceWithProgram(GetParam().path());
  const std::string tree = treeOf(*document.service);
  EXPECT_THAT(tree, HasSubstr("OPERATIONS"));
  EXPECT_THAT(tree, Not(HasSubstr("(not found)")));
  EXPECT_THAT(tree, Not(HasSubstr("unknown")));
}

TEST_P(ExampleService, IsTheSameModelWrittenAndRead) {
  const auto service = parseFile(GetParam().path());
  const std::string before = test::modelText(*service);
  const std::string text = as::CAgentServicesFactory::SerializeToString(service.get());
  EXPECT_EQ(test::modelText(*service), before);
  const auto again = test::parseService(text, false);
  EXPECT_EQ(test::modelText(*again), before);
  EXPECT_EQ(as::CAgentServicesFactory::SerializeToString(again.get()), text);
}

TEST_P(ExampleService, IsTheSameModelWithItsProgramWrittenAndRead) {
  const auto service = parseFile(GetParam().path());
  const std::string dictionary = std::string(AS_EXAMPLES_DIR "/") + GetParam().program + ".xml";
  service->setDDFilename(dictionary.c_str());
  const auto complete =
      test::parseService(as::CAgentServicesFactory::SerializeToString(service.get()), true);
  ASSERT_NE(complete->getProgram(), nullptr);
  complete->setDDFilename(dictionary.c_str());
  const std::string before = test::modelText(*complete);
  const auto again =
      test::parseService(as::CAgentServicesFactory::SerializeToString(complete.get()), true);
  again->setDDFilename(dictionary.c_str());
  EXPECT_EQ(test::modelText(*again), before);
}

// The library lays documents out, but loses nothing of them.
TEST_P(ExampleService, KeepsItsComments) {
  const std::string original = test::contentOf(GetParam().path());
  const auto service = parseFile(GetParam().path());
  const std::string text = as::CAgentServicesFactory::SerializeToString(service.get());
  std::size_t comments = 0;
  for (std::size_t at = 0; (at = original.find("<!--", at)) != std::string::npos; comments++) {
    const std::size_t end = original.find("-->", at);
    EXPECT_THAT(text, HasSubstr(original.substr(at, end - at)));
    at = end;
  }
  EXPECT_GT(comments, 0u);
}

INSTANTIATE_TEST_SUITE_P(Files, ExampleService, testing::ValuesIn(examples()),
                         test::labelOf<Example>);

// What a broken example says of itself: the comments that start with "lint:".
std::vector<std::string> expectedFindings(const std::string& document) {
  const std::string mark = "<!-- lint: ";
  std::vector<std::string> findings;
  for (std::size_t at = 0; (at = document.find(mark, at)) != std::string::npos;) {
    at += mark.size();
    findings.push_back(document.substr(at, document.find(" -->", at) - at));
  }
  return findings;
}

class BrokenExample : public test::ToolkitTest, public testing::WithParamInterface<Example> {
 protected:
  static std::string path() { return std::string(AS_EXAMPLES_DIR "/broken/") + GetParam().file(); }
};

TEST_P(BrokenExample, IsValidAllTheSame) { EXPECT_NE(reader().readService(path()), nullptr); }

TEST_P(BrokenExample, HasEachDefectFoundAndNothingElse) {
  std::vector<std::string> found;
  for (const toolkit::Finding& finding : toolkit::lintFile(reader(), path())) {
    found.push_back(textOf(finding));
  }
  const std::vector<std::string> expected = expectedFindings(test::contentOf(path()));
  EXPECT_FALSE(expected.empty());
  for (const std::string& finding : expected) {
    const auto match = std::find_if(found.begin(), found.end(), [&](const std::string& text) {
      return text.rfind(finding, 0) == 0;
    });
    if (match == found.end()) {
      ADD_FAILURE() << "not found: " << finding;
    } else {
      found.erase(match);
    }
  }
  EXPECT_THAT(found, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Files, BrokenExample,
                         testing::Values(Example{"Java", "MOTPREM", "java"},
                                         Example{"Web", "WHSLOTS", "ws"}),
                         test::labelOf<Example>);

}  // namespace

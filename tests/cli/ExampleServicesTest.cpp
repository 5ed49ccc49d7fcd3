// Tests of the services in examples/: they are good, the tool finds nothing wrong with them, and it
// finds exactly what is wrong with the broken ones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Model.h"
#include "support/ModelText.h"
#include "support/Requests.h"
#include "support/Tool.h"

namespace {

using testing::HasSubstr;
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

class ExampleService : public test::ToolTest, public testing::WithParamInterface<Example> {};

TEST_P(ExampleService, IsValid) {
  EXPECT_EQ(run({"validate", GetParam().path()}).out, GetParam().path() + ": ok\n");
}

TEST_P(ExampleService, IsClean) {
  const test::ToolOutcome outcome = run({"lint", GetParam().path()});
  EXPECT_EQ(outcome.out, GetParam().path() + ": clean\n");
  EXPECT_EQ(outcome.exitCode, 0);
}

TEST_P(ExampleService, LeadsToItemsOfItsProgram) {
  const test::ToolOutcome outcome = run({"show", "--program", GetParam().path()});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("OPERATIONS"));
  EXPECT_THAT(outcome.out, Not(HasSubstr("(not found)")));
  EXPECT_THAT(outcome.out, Not(HasSubstr("unknown")));
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

class BrokenExample : public test::ToolTest, public testing::WithParamInterface<Example> {
 protected:
  static std::string path() { return std::string(AS_EXAMPLES_DIR "/broken/") + GetParam().file(); }
};

TEST_P(BrokenExample, IsValidAllTheSame) { EXPECT_EQ(run({"validate", path()}).exitCode, 0); }

TEST_P(BrokenExample, HasEachDefectFoundAndNothingElse) {
  const test::ToolOutcome outcome = run({"lint", path()});
  EXPECT_EQ(outcome.exitCode, 1);
  std::vector<std::string> found;
  std::istringstream lines(outcome.out);
  for (std::string line; std::getline(lines, line);) {
    found.push_back(line.substr(path().size() + 2));
  }
  ASSERT_FALSE(found.empty());
  const std::string summary = found.back();
  found.pop_back();
  const std::vector<std::string> expected = expectedFindings(test::contentOf(path()));
  int errors = 0;
  for (const std::string& finding : expected) {
    if (finding.rfind("error", 0) == 0) errors++;
    const auto match = std::find_if(found.begin(), found.end(), [&](const std::string& line) {
      return line.rfind(finding, 0) == 0;
    });
    if (match == found.end()) {
      ADD_FAILURE() << "not found: " << finding;
    } else {
      found.erase(match);
    }
  }
  EXPECT_THAT(found, testing::IsEmpty());
  EXPECT_THAT(summary, HasSubstr(std::to_string(errors) + " errors"));
}

INSTANTIATE_TEST_SUITE_P(Files, BrokenExample,
                         testing::Values(Example{"Java", "MOTPREM", "java"},
                                         Example{"Web", "WHSLOTS", "ws"}),
                         test::labelOf<Example>);

}  // namespace

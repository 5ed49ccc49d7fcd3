// Tests of the tool's command `generate` as a process: what it takes, says and answers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Tool.h"

namespace {

using test::contentOf;
using testing::HasSubstr;
using testing::StartsWith;

class ToolGenerateTest : public test::ToolTest {
 protected:
  test::ToolOutcome generate(const std::string& kind, const std::string& file,
                             std::vector<std::string> further = {"-o", "out"}) const {
    std::vector<std::string> arguments = {"generate", kind, AS_EXAMPLES_DIR "/" + file};
    arguments.insert(arguments.end(), further.begin(), further.end());
    return run(arguments);
  }
};

TEST_F(ToolGenerateTest, ListsTheKinds) {
  const test::ToolOutcome outcome = run({"generate", "--kinds"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  for (const char* const line : {"wsdl", "xsd", "jsonschema", "openapi",
                                 "--set schema=inline|separate: the schemas inside"}) {
    EXPECT_THAT(outcome.out, HasSubstr(line));
  }
}

TEST_F(ToolGenerateTest, TellsWhatItWrote) {
  EXPECT_EQ(generate("jsonschema", "PAYSLIP-java.xml").out, "out: written\n");
  EXPECT_THAT(contentOf(pathOf("out")), StartsWith("{\n"));
  EXPECT_EQ(generate("jsonschema", "PAYSLIP-java.xml").out, "out: as it was\n");
}

// Every name of COBOL's is none of Java's.
TEST_F(ToolGenerateTest, ManyNamesAreCountedUnlessTheyAreAskedFor) {
  ASSERT_EQ(
      run({"new", "--flavour", "java", AS_EXAMPLES_DIR "/MOTPREM.xml", "-o", "s.xml"}).exitCode, 0);
  const auto notesOf = [](const std::string& out) {
    std::size_t notes = 0;
    for (std::size_t at = 0; (at = out.find(": note: ", at)) != std::string::npos; ++at) ++notes;
    return notes;
  };
  const std::string few = run({"generate", "java", "s.xml", "-o", "out.java"}).out;
  EXPECT_EQ(notesOf(few), 4U);
  EXPECT_THAT(few, HasSubstr(" more names changed so; --verbose tells them"));
  const std::string all = run({"generate", "java", "s.xml", "-o", "out.java", "-v"}).out;
  EXPECT_GT(notesOf(all), 100U);
  EXPECT_EQ(run({"generate", "java", "s.xml", "-o", "out.java", "-q"}).out, "");
}

TEST_F(ToolGenerateTest, WhatLintRefusesIsNotMade) {
  const test::ToolOutcome outcome = generate("xsd", "broken/MOTPREM-java.xml");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr("error: "));
  EXPECT_THAT(outcome.out, HasSubstr("MOTPREM-java.xml: nothing is made of it\n"));
}

TEST_F(ToolGenerateTest, WrongUsageIsTold) {
  const struct {
    std::vector<std::string> arguments;
    const char* error;
  } rows[] = {
      {{"generate", "nothing", "s.xml", "-o", "out"}, "there is no kind 'nothing'"},
      {{"generate", "xsd", "s.xml", "-o", "out", "--set", "a"}, "--set takes OPTION=VALUE"},
      {{"generate", "xsd", "s.xml", "-o", "out", "--set", "a=b"}, "xsd has no option 'a'"},
      {{"generate", "xsd", "s.xml"}, "--output is required"},
  };
  for (const auto& row : rows) {
    const test::ToolOutcome outcome = run(row.arguments);
    EXPECT_EQ(outcome.exitCode, 2) << row.error;
    EXPECT_THAT(outcome.out + outcome.err, HasSubstr(row.error));
  }
}

TEST_F(ToolGenerateTest, TakesNamesFromAFile) {
  write("names", "Savings deposits = Deposits\n");
  EXPECT_EQ(generate("wsdl", "DEPINT01-ws.xml", {"-o", "out", "--names", "names"}).exitCode, 0);
  EXPECT_THAT(contentOf(pathOf("out")), HasSubstr("<wsdl:service name=\"Deposits\">"));
  EXPECT_EQ(generate("wsdl", "DEPINT01-ws.xml", {"-o", "out", "--names", "none"}).exitCode, 1);
}

}  // namespace

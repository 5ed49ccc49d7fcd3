// Tests of the tool's lint command: its options, streams and exit codes. What lint finds is tested
// with the toolkit.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Requests.h"
#include "support/Tool.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class ToolLintTest : public test::ToolTest {
 protected:
  // A service with an operation that has such parameters, and its program.
  void writeService(const std::string& parameters) const {
    write("PAY.xml", test::payProgram());
    write("s.xml", test::payService("<operations><operation name='pay' entryPoint='PAY'>"
                                    "<parameters>\n" +
                                    parameters + "</parameters></operation></operations>"));
  }
};

const char mapped[] =
    "<parameter name='p' dataType='int'><mappings><mapping item='REQ.ID'/></mappings></parameter>";
const char lost[] =
    "<parameter name='q' dataType='int'><mappings><mapping item='REQ.IDX'/></mappings>"
    "</parameter>";
const char unmapped[] = "<parameter name='r' dataType='int'/>";

TEST_F(ToolLintTest, AServiceWithoutFindingsIsClean) {
  writeService(mapped);
  const test::ToolOutcome outcome = run({"lint", "s.xml"});
  EXPECT_EQ(outcome.out, "s.xml: clean\n");
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(outcome.exitCode, 0);
}

TEST_F(ToolLintTest, FindingsAreLinesWithASummary) {
  writeService(std::string(lost) + mapped + unmapped);
  const test::ToolOutcome outcome = run({"lint", "s.xml"});
  EXPECT_EQ(outcome.out,
            "s.xml:2:46: error: pay.q: PAYROLL has no data item 'REQ.IDX'; did you mean "
            "'REQ.ID'?\n"
            "s.xml:2:186: warning: pay.r: it is mapped to no data item; add a mapping or remove "
            "it\n"
            "s.xml: 1 error, 1 warning\n");
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(outcome.exitCode, 1);
}

TEST_F(ToolLintTest, WarningsAloneAreNoFailure) {
  writeService(unmapped);
  const test::ToolOutcome outcome = run({"lint", "s.xml"});
  EXPECT_THAT(outcome.out, testing::EndsWith("s.xml: 0 errors, 1 warning\n"));
  EXPECT_EQ(outcome.exitCode, 0);
}

TEST_F(ToolLintTest, TheDictionaryMayBeNamed) {
  writeService(mapped);
  std::filesystem::create_directory(directory() / "elsewhere");
  std::filesystem::rename(directory() / "PAY.xml", directory() / "elsewhere" / "OTHER.xml");
  const test::ToolOutcome outcome = run({"lint", "s.xml", "--dictionary", "elsewhere/OTHER.xml"});
  EXPECT_EQ(outcome.out, "s.xml: clean\n");
  EXPECT_EQ(outcome.exitCode, 0);
}

TEST_F(ToolLintTest, ARefusedServiceIsNoFinding) {
  write("s.xml", test::payProgram());
  const test::ToolOutcome outcome = run({"lint", "s.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_THAT(outcome.err, testing::StartsWith("s.xml: error: not a service: "));
}

TEST_F(ToolLintTest, NeedsAService) { EXPECT_EQ(run({"lint"}).exitCode, 2); }

TEST_F(ToolLintTest, SeveralServicesAreSummedUp) {
  writeService(lost);
  write("good.xml", test::payService(""));
  const test::ToolOutcome outcome = run({"lint", "good.xml", "s.xml", "missing.xml"});
  EXPECT_THAT(outcome.out, StartsWith("good.xml: clean\ns.xml:2:"));
  EXPECT_THAT(outcome.out, EndsWith("s.xml: 1 error, 0 warnings\n"
                                    "3 services: 1 error, 0 warnings, 1 refused\n"));
  EXPECT_EQ(outcome.err, "missing.xml: error: cannot be read: No such file or directory\n");
  EXPECT_EQ(outcome.exitCode, 1);
}

// A folder holds documents of all kinds; a file that is named has to be a service.
TEST_F(ToolLintTest, FoldersAreSearchedForServices) {
  writeService(unmapped);
  write("below/t.xml", test::payService("<operations/>"));
  write("below/other.xml", "<other/>");
  write("below/notes.txt", "nothing");
  const test::ToolOutcome outcome = run({"lint", "--recursive", "."});
  EXPECT_THAT(outcome.out, HasSubstr("below/t.xml:1:1: error: service: the dictionary cannot"));
  EXPECT_THAT(outcome.out, EndsWith("2 services: 1 error, 1 warning, 2 no services\n"));
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(run({"lint", "-r", "below"}).exitCode, 1);
  std::filesystem::create_directory(directory() / "empty");
  EXPECT_EQ(run({"lint", "-r", "empty"}).err,
            "agentservices: error: there are no documents *.xml in empty\n");
}

TEST_F(ToolLintTest, SaysTheSameInAnyNumberOfProcesses) {
  writeService(std::string(lost) + unmapped);
  std::vector<std::string> arguments = {"lint", "s.xml"};
  for (int i = 0; i < 12; ++i) {
    const std::string name = "t" + std::to_string(i) + ".xml";
    if (i != 7) write(name, test::contentOf(pathOf(i % 3 == 0 ? "s.xml" : "PAY.xml")));
    arguments.push_back(name);
  }
  for (const char* const format : {"text", "json", "sarif"}) {
    std::vector<std::string> one = arguments;
    one.insert(one.end(), {"--format", format});
    std::vector<std::string> many = one;
    many.insert(many.end(), {"--jobs", "5"});
    const test::ToolOutcome outcome = run(one);
    const test::ToolOutcome other = run(many);
    EXPECT_EQ(outcome.out, other.out);
    EXPECT_EQ(outcome.err, other.err);
    EXPECT_EQ(outcome.exitCode, other.exitCode);
  }
}

// Those that were started have more to say than a pipe takes, and nobody is going to listen.
TEST_F(ToolLintTest, EndsWhenNotAllProcessesCanBeStarted) {
  std::string parameters;
  for (int i = 0; i < 1000; ++i) parameters += unmapped;
  writeService(parameters);
  std::string names;
  for (int i = 0; i < 20; ++i) names += " s.xml";
  const test::ToolOutcome outcome = runProgram(
      "/bin/sh", {"-c", "ulimit -n 12; exec timeout 60 " AS_TOOL " lint --jobs 20" + names});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "agentservices: error: Too many open files\n");
}

TEST_F(ToolLintTest, ReadsStandardInput) {
  writeService(unmapped);
  const int in = open(pathOf("s.xml").c_str(), O_RDONLY);
  const test::StandardInput redirected(in);
  const test::ToolOutcome outcome = run({"lint", "-"});
  EXPECT_THAT(outcome.out, StartsWith("-:2:1: warning: pay.r: "));
  EXPECT_EQ(outcome.exitCode, 0);
}

TEST_F(ToolLintTest, ReportsForProgramsHoldNothingElse) {
  writeService(lost);
  const test::ToolOutcome json = run({"lint", "s.xml", "missing.xml", "--format", "json"});
  EXPECT_EQ(json.exitCode, 1);
  EXPECT_THAT(json.out, StartsWith("{\n  \"tool\": \"agentservices\",\n"));
  EXPECT_THAT(json.out, HasSubstr("\"rule\": \"refused-document\""));
  EXPECT_THAT(json.out, EndsWith("  \"errors\": 2,\n  \"warnings\": 0,\n  \"notes\": 0\n}\n"));
  const test::ToolOutcome sarif = run({"lint", "s.xml", "--format", "sarif"});
  EXPECT_THAT(sarif.out, HasSubstr("\"uri\": \"s.xml\""));
  EXPECT_THAT(sarif.out, EndsWith("]\n}\n"));
}

TEST_F(ToolLintTest, QuietlySaysOnlyWhatIsWrong) {
  writeService(mapped);
  EXPECT_EQ(run({"lint", "--quiet", "s.xml", "s.xml"}).out, "");
  writeService(unmapped);
  EXPECT_EQ(run({"lint", "-q", "s.xml"}).out,
            "s.xml:2:1: warning: pay.r: it is mapped to no data item; add a mapping or remove "
            "it\n");
  EXPECT_EQ(run({"lint", "-q", "--rule", "unmapped-field=note", "s.xml"}).out, "");
}

TEST_F(ToolLintTest, ColoursAreAsTold) {
  writeService(unmapped);
  EXPECT_THAT(run({"lint", "s.xml"}).out, Not(HasSubstr("\x1B")));
  EXPECT_THAT(run({"lint", "--color", "never", "s.xml"}).out, Not(HasSubstr("\x1B")));
  EXPECT_THAT(run({"lint", "--color", "always", "s.xml"}).out, HasSubstr("\x1B[1;33mwarning"));
}

TEST_F(ToolLintTest, RulesAreSwitchedByOption) {
  writeService(std::string(lost) + unmapped);
  const test::ToolOutcome outcome =
      run({"lint", "--rule", "lost-data-item=off,unmapped-field=error", "s.xml"});
  EXPECT_THAT(outcome.out, EndsWith("s.xml: 1 error, 0 warnings\n"));
  EXPECT_THAT(outcome.out, Not(HasSubstr("REQ.IDX")));
  const struct {
    const char* setting;
    const char* message;
  } rows[] = {{"lost-data-itm=off",
               "there is no rule 'lost-data-itm'; did you mean "
               "'lost-data-item'?"},
              {"x=off", "there is no rule 'x'; lint --rules lists them"},
              {"same-name=of", "write same-name=off, =note, =warning or =error"},
              {"same-name", "write same-name=off, =note, =warning or =error"}};
  for (const auto& row : rows) {
    const test::ToolOutcome wrong = run({"lint", "--rule", row.setting, "s.xml"});
    EXPECT_EQ(wrong.exitCode, 2);
    EXPECT_EQ(wrong.err, std::string("agentservices: error: --rule: ") + row.message + "\n");
  }
}

TEST_F(ToolLintTest, FindingsOfTheBaselineAreKnown) {
  writeService(std::string(lost) + unmapped);
  write("sub/.keep", "");
  test::ToolOutcome outcome = run({"lint", "s.xml", "--write-baseline", "sub/known.json"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, "s.xml: clean, 2 known\n");
  // Other lines, and another one of the kind beside it.
  writeService("\n\n" + std::string(lost) + unmapped + "<parameter name='t' dataType='int'/>");
  outcome = run({"lint", "./s.xml", "--baseline", pathOf("sub/known.json")});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, HasSubstr("warning: pay.t: it is mapped to no data item"));
  EXPECT_THAT(outcome.out, EndsWith("./s.xml: 0 errors, 1 warning, 2 known\n"));
  // What is mended is told.
  writeService(mapped);
  outcome = run({"lint", "s.xml", "--baseline", "sub/known.json"});
  EXPECT_EQ(outcome.out,
            "s.xml: clean\nsub/known.json: 2 findings of it not found any more; write it anew\n");
  // Not of a document that was not looked at.
  write("t.xml", test::contentOf(pathOf("s.xml")));
  outcome = run({"lint", "t.xml", "--baseline", "sub/known.json"});
  EXPECT_EQ(outcome.out, "t.xml: clean\n");
}

TEST_F(ToolLintTest, ABaselineThatIsNoneIsRefused) {
  writeService(mapped);
  write("known.json", "{}");
  EXPECT_EQ(run({"lint", "s.xml", "--baseline", "known.json"}).err,
            "known.json: error: not a baseline of findings\nhint: write a new one\n");
  EXPECT_EQ(run({"lint", "s.xml", "--baseline", "missing.json"}).err,
            "missing.json: error: cannot be read: No such file or directory\n");
  const test::ToolOutcome outcome = run({"lint", "s.xml", "--write-baseline", "/dev/full"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("/dev/full cannot be written"));
}

}  // namespace

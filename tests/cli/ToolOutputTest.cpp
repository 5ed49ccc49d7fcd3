// Tests of the tool's standard output, command by command: full, closed, and with a reader that
// goes away; and of the files that it is to write.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Requests.h"
#include "support/Tool.h"

namespace {

using test::labelOf;
using test::ToolOutcome;
using testing::IsEmpty;
using testing::StartsWith;

constexpr char outputFailed[] = "agentservices: error: the output could not be written";

// A call that succeeds and says something.
struct Call {
  std::string label;
  std::vector<std::string> arguments;
  bool writes = false;  // The file out.xml.
};

void PrintTo(const Call& call, std::ostream* out) { *out << call.label; }

std::vector<Call> calls() {
  return {{"ShowDictionary", {"show", "p.xml"}},
          {"ShowDictionaryAsJson", {"show", "--json", "p.xml"}},
          {"ShowService", {"show", "s.xml"}},
          {"ShowServiceWithProgram", {"show", "--program", "s.xml"}},
          {"ShowServiceAsJson", {"show", "--json", "s.xml"}},
          {"Validate", {"validate", "p.xml", "s.xml"}},
          {"Lint", {"lint", "s.xml"}},
          {"LintRules", {"lint", "--rules"}},
          {"New", {"new", "--flavour", "ws", "p.xml", "-o", "out.xml"}, true},
          {"Convert", {"convert", "--flavour", "com", "s.xml", "-o", "out.xml"}, true},
          {"Help", {"--help"}},
          {"HelpOfACommand", {"convert", "--help"}},
          {"Version", {"--version"}}};
}

class ToolOutputTest : public test::ToolTest, public testing::WithParamInterface<Call> {
 protected:
  void SetUp() override {
    write("p.xml", test::payProgram());
    write("s.xml", test::javaService("name='Pay' implementation='java' programName='PAYROLL' "
                                     "dataDictFilename='p.xml'",
                                     ""));
  }

  ToolOutcome runOn(int out) const { return ToolTest::runOn(out, AS_TOOL, GetParam().arguments); }

  // What the call has written is there, whatever became of its words.
  void expectTheFile() const {
    EXPECT_EQ(std::filesystem::exists(directory() / "out.xml"), GetParam().writes);
    if (GetParam().writes) {
      EXPECT_EQ(run({"validate", "out.xml"}).out, "out.xml: ok\n");
    }
  }
};

INSTANTIATE_TEST_SUITE_P(Calls, ToolOutputTest, testing::ValuesIn(calls()), labelOf<Call>);

TEST_P(ToolOutputTest, ThatArrivesIsASuccess) {
  const ToolOutcome outcome = run(GetParam().arguments);
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, testing::Not(IsEmpty()));
  EXPECT_THAT(outcome.err, IsEmpty());
}

TEST_P(ToolOutputTest, ThatIsFullIsToldOnce) {
  const ToolOutcome outcome = runOn(open("/dev/full", O_WRONLY));
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, StartsWith(outputFailed));
  EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
  expectTheFile();
}

TEST_P(ToolOutputTest, ThatIsClosedIsToldOnce) {
  const ToolOutcome outcome = runOn(-1);
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, StartsWith(outputFailed));
  EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
  expectTheFile();
}

TEST_P(ToolOutputTest, WithoutAReaderEndsSilently) {
  int ends[2] = {-1, -1};
  ASSERT_EQ(pipe(ends), 0);
  close(ends[0]);
  const ToolOutcome outcome = runOn(ends[1]);
  EXPECT_EQ(outcome.signal, SIGPIPE);
  EXPECT_THAT(outcome.err, IsEmpty());
  expectTheFile();
}

// Python and others start their children so.
TEST_P(ToolOutputTest, WithoutAReaderEndsSilentlyWhereTheSignalWasIgnored) {
  int ends[2] = {-1, -1};
  ASSERT_EQ(pipe(ends), 0);
  close(ends[0]);
  const auto before = std::signal(SIGPIPE, SIG_IGN);
  const ToolOutcome outcome = runOn(ends[1]);
  std::signal(SIGPIPE, before);
  EXPECT_EQ(outcome.signal, SIGPIPE);
  EXPECT_THAT(outcome.err, IsEmpty());
}

// What is wrong stays wrong, whatever becomes of the words.
TEST_F(ToolOutputTest, ThatIsFullLeavesOtherFailuresAsTheyAre) {
  const struct {
    std::vector<std::string> arguments;
    int exitCode;
    const char* message;
  } rows[] = {{{"validate", "p.xml", "missing.xml"}, 1, "missing.xml: error: cannot be read"},
              {{"show", "missing.xml"}, 1, "missing.xml: error: cannot be read"},
              {{"show"}, 2, ""}};
  for (const auto& row : rows) {
    for (const int out : {open("/dev/full", O_WRONLY), -1}) {
      const ToolOutcome outcome = ToolTest::runOn(out, AS_TOOL, row.arguments);
      EXPECT_EQ(outcome.exitCode, row.exitCode) << row.arguments[0];
      EXPECT_THAT(outcome.err, testing::HasSubstr(row.message));
    }
  }
}

// The files that are to be written.

// The reason is why there is no folder, not that a file has none to stand in.
TEST_F(ToolOutputTest, IntoAFolderThatCannotBeMadeTellsWhy) {
  write("second.xml", test::payProgram());
  write("src/a.cbl", "       IDENTIFICATION DIVISION.\n       PROGRAM-ID. A.\n");
  const std::vector<std::vector<std::string>> calls = {
      {"new", "--flavour", "ws", "p.xml", "second.xml", "-o", "p.xml/made"},
      {"import", "src", "-o", "p.xml/made"},
      {"manual", "-o", "p.xml/made"}};
  for (const std::vector<std::string>& call : calls) {
    const ToolOutcome outcome = run(call);
    EXPECT_EQ(outcome.exitCode, 1) << call[0];
    EXPECT_THAT(outcome.err,
                StartsWith("agentservices: error: the folder p.xml/made cannot be made: Not a dir"))
        << call[0];
  }
}

TEST_P(ToolOutputTest, IntoAFileThatCannotBeWrittenIsToldOnce) {
  if (!GetParam().writes) return;
  for (const char* const file : {"/dev/full", "missing/out.xml", "/proc/out.xml", "folder"}) {
    std::filesystem::create_directory(directory() / "folder");
    std::vector<std::string> arguments = GetParam().arguments;
    arguments.back() = file;
    const ToolOutcome outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 1) << file;
    EXPECT_EQ(outcome.out, "") << file;
    EXPECT_THAT(outcome.err,
                StartsWith(std::string("agentservices: error: ") + file + " cannot be written"));
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
  }
  EXPECT_TRUE(std::filesystem::is_empty(directory() / "folder"));
}

}  // namespace

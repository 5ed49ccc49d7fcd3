// Tests of the tool's command `new` as a process: what it takes, says and answers, and that a
// failure to write loses nothing.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Requests.h"
#include "support/Tool.h"

namespace {

using test::contentOf;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class ToolNewTest : public test::ToolTest {};

TEST_F(ToolNewTest, TellsWhatItMade) {
  write("p.xml", test::payProgram());
  const test::ToolOutcome outcome = run({"new", "--flavour", "dotnet", "p.xml", "-o", "s.xml"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, "s.xml: .NET service, operations 1, mapped items 5\n");
  EXPECT_EQ(outcome.err, "");
}

TEST_F(ToolNewTest, TellsWhatItLeftOut) {
  write("p.xml", test::dictionary("<dataItems/><entryPoints><entryPoint name='GO'><parameter "
                                  "dataItem='GO&#10;NE'/></entryPoint></entryPoints>"));
  EXPECT_EQ(run({"new", "--flavour", "ws", "p.xml", "-o", "s.xml"}).out,
            "s.xml: note: GO.GO\\u000ANE: it is no record of the dictionary: left out\n"
            "s.xml: Web service, operations 1, mapped items 0\n");
}

TEST_F(ToolNewTest, OptionsNameTheServiceAndItsOperations) {
  write("p.xml", test::dictionary("<dataItems/><entryPoints><entryPoint name='A'/><entryPoint "
                                  "name='B'/><entryPoint name='C'/></entryPoints>"));
  const struct {
    std::vector<std::string> options;
    const char* operations;
  } rows[] = {{{"--operations", "C,A"}, "operations 2"},
              {{"--operations", "B", "--operations", "B"}, "operations 1"}};
  for (const auto& row : rows) {
    std::vector<std::string> arguments = {"new", "--flavour", "java",   "p.xml",
                                          "-o",  "s.xml",     "--name", "Löhne & Gehälter"};
    arguments.insert(arguments.end(), row.options.begin(), row.options.end());
    EXPECT_THAT(run(arguments).out, HasSubstr(row.operations));
    EXPECT_THAT(contentOf(pathOf("s.xml")), HasSubstr("name=\"Löhne &amp; Gehälter\""));
  }
  // The list takes no further words of the call.
  ASSERT_EQ(run({"new", "--flavour", "ws", "-o", "s.xml", "--operations", "A,B", "p.xml"}).exitCode,
            0);
  EXPECT_THAT(contentOf(pathOf("s.xml")),
              AllOf(HasSubstr("entryPoint=\"A\""), HasSubstr("entryPoint=\"B\""),
                    Not(HasSubstr("entryPoint=\"C\""))));
}

TEST_F(ToolNewTest, SeveralDictionariesGoToAFolder) {
  write("in/a.xml", test::payProgram());
  write("in/below/b.xml", test::payProgram());
  write("in/s.xml", test::payService(""));
  write("c.xml", test::payProgram());
  const test::ToolOutcome outcome = run(
      {"new", "--flavour", "java", "-r", "in", "c.xml", "missing.xml", "-o", "out", "--jobs", "2"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out,
            "out/a.xml: Java service, operations 1, mapped items 5\n"
            "out/below/b.xml: Java service, operations 1, mapped items 5\n"
            "out/c.xml: Java service, operations 1, mapped items 5\n");
  EXPECT_EQ(outcome.err, "missing.xml: error: cannot be read: No such file or directory\n");
  EXPECT_EQ(run({"lint", "-q", "-r", "out"}).out, "");
}

TEST_F(ToolNewTest, NoTwoDictionariesGoToOneFile) {
  write("a/p.xml", test::payProgram());
  write("b/p.xml", test::payProgram());
  const test::ToolOutcome outcome =
      run({"new", "--flavour", "java", "a/p.xml", "b/p.xml", "-o", "out"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "agentservices: error: two documents would be written to out/p.xml\n");
  EXPECT_FALSE(std::filesystem::exists(pathOf("out")));
}

// A search finds what would be written over, so that no name tells it.
TEST_F(ToolNewTest, NoServiceTakesThePlaceOfADocumentToBeRead) {
  write("a/p.xml", test::payProgram());
  write("b/below/p.xml", test::payProgram());
  const test::ToolOutcome outcome =
      run({"new", "--flavour", "java", "a/p.xml", "-r", "b", "-o", "b/below"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err,
            "agentservices: error: what is made of a/p.xml would take the place of b/below/p.xml, "
            "which is to be read\n");
  EXPECT_EQ(contentOf(pathOf("b/below/p.xml")), test::payProgram());
}

TEST_F(ToolNewTest, NeedsAFileToName) {
  write("p.xml", test::payProgram());
  const test::StandardInput redirected(open(pathOf("p.xml").c_str(), O_RDONLY));
  EXPECT_EQ(run({"new", "--flavour", "java", "-", "-o", "s.xml"}).err,
            "-: error: a service names the file of its dictionary\n"
            "hint: name that, in place of standard input\n");
}

TEST_F(ToolNewTest, QuietlySaysNothing) {
  write("p.xml", test::payProgram());
  const test::ToolOutcome outcome = run({"new", "-q", "--flavour", "java", "p.xml", "-o", "s.xml"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out + outcome.err, "");
}

TEST_F(ToolNewTest, AnUnknownEntryPointIsRefusedWithThoseThereAre) {
  write("p.xml", test::payProgram());
  const test::ToolOutcome outcome =
      run({"new", "--flavour", "java", "p.xml", "-o", "s.xml", "--operations", "PAY,Z"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "p.xml: error: there is no entry point 'Z'\nhint: the program has PAY\n");
}

TEST_F(ToolNewTest, WrongCallsAreExplained) {
  write("p.xml", test::payProgram());
  const struct {
    std::vector<std::string> arguments;
    const char* text;
  } rows[] = {
      {{"new", "p.xml", "-o", "s.xml"}, "--flavour is required"},
      {{"new", "--flavour", "xd", "p.xml", "-o", "s.xml"}, "com,dotnet,java,ws"},
      {{"new", "--flavour", "ws", "p.xml"}, "--output is required"},
      {{"new", "--flavour", "ws", "-o", "s.xml"}, "DICTIONARY is required"},
  };
  for (const auto& row : rows) {
    const test::ToolOutcome outcome = run(row.arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, HasSubstr(row.text));
  }
}

// Everything in the directory beside what the test itself leaves there.
std::vector<std::string> filesIn(const std::filesystem::path& directory) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(directory)) {
    const std::string name = entry.path().filename().string();
    if (name != "stdout.txt" && name != "stderr.txt") names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

// Limits the size of files for this process and those it starts, as long as it lives.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit limited = {bytes, old_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limited);
  }
  ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &old_); }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit old_ = {};
};

TEST_F(ToolNewTest, AFileThatGrowsTooLargeLeavesTheOldOne) {
  write("p.xml", contentOf(AS_EXAMPLES_DIR "/MOTPREM.xml"));
  write("s.xml", "old");
  // Large enough for what the tool says, too small for the service.
  constexpr rlim_t limit = 8192;
  test::ToolOutcome outcome;
  {
    const FileSizeLimit limited(limit);
    outcome = run({"new", "--flavour", "ws", "p.xml", "-o", "s.xml"});
  }
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("s.xml cannot be written and is as it was"));
  EXPECT_EQ(contentOf(pathOf("s.xml")), "old");
  EXPECT_THAT(filesIn(directory()), ElementsAre("p.xml", "s.xml"));
}

TEST_F(ToolNewTest, AFullDeviceIsTold) {
  write("p.xml", test::payProgram());
  const test::ToolOutcome outcome = run({"new", "--flavour", "ws", "p.xml", "-o", "/dev/full"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("/dev/full cannot be written"));
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

// The superuser may write everything: the tool runs as a user who may not.
class ToolAsAnybody : public ToolNewTest {
 protected:
  void SetUp() override {
    ToolNewTest::SetUp();
    write("p.xml", test::payProgram());
    write("s.xml", "old");
    if (geteuid() == 0) {
      command_ = {"--reuid=65534", "--regid=65534", "--clear-groups", AS_TOOL};
      ASSERT_EQ(chmod(directory().c_str(), 0777), 0);
    }
    const test::ToolOutcome outcome = runAs({"validate", "p.xml"});
    if (outcome.exitCode != 0) GTEST_SKIP() << "others cannot reach the tool: " << outcome.err;
  }

  test::ToolOutcome runAs(const std::vector<std::string>& arguments) const {
    if (command_.empty()) return run(arguments);
    std::vector<std::string> all = command_;
    all.insert(all.end(), arguments.begin(), arguments.end());
    return runProgram("/usr/bin/setpriv", all);
  }

 private:
  std::vector<std::string> command_;
};

TEST_F(ToolAsAnybody, AFileThatMustNotBeWrittenStays) {
  ASSERT_EQ(chmod(pathOf("s.xml").c_str(), 0444), 0);
  const test::ToolOutcome outcome = runAs({"new", "--flavour", "ws", "p.xml", "-o", "s.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err,
              HasSubstr("s.xml cannot be written and is as it was: Permission denied"));
  EXPECT_EQ(contentOf(pathOf("s.xml")), "old");
}

TEST_F(ToolAsAnybody, AFolderThatMustNotBeWrittenKeepsItsFiles) {
  std::filesystem::create_directory(directory() / "folder");
  write("folder/s.xml", "old");
  ASSERT_EQ(chmod(pathOf("folder/s.xml").c_str(), 0666), 0);
  ASSERT_EQ(chmod(pathOf("folder").c_str(), 0555), 0);
  for (const char* const output : {"folder/s.xml", "folder/new.xml"}) {
    const test::ToolOutcome outcome = runAs({"new", "--flavour", "ws", "p.xml", "-o", output});
    EXPECT_EQ(outcome.exitCode, 1) << output;
    EXPECT_THAT(outcome.err, HasSubstr("Permission denied"));
  }
  EXPECT_THAT(filesIn(directory() / "folder"), ElementsAre("s.xml"));
  EXPECT_EQ(contentOf(pathOf("folder/s.xml")), "old");
  chmod(pathOf("folder").c_str(), 0755);
}

}  // namespace

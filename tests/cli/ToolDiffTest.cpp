// Tests of the tool's diff command: its options, streams and exit codes. What is told of documents
// is tested with the toolkit.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/Documents.h"
#include "support/Tool.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class ToolDiffTest : public test::ToolTest {
 protected:
  void SetUp() override {
    write("old.xml", test::dictionaryOf(item("9(4)", "4")));
    write("new.xml", test::dictionaryOf(item("9(6)", "6")));
  }

  static std::string item(const std::string& picture, const std::string& digits) {
    return "<numeric name='N' picture='" + picture + "' digits='" + digits +
           "' usage='comp' offset='0' length='4'/>";
  }
};

TEST_F(ToolDiffTest, WhatBreaksCallersIsAnError) {
  const test::ToolOutcome outcome = run({"diff", "old.xml", "new.xml"});
  EXPECT_EQ(outcome.out,
            "BREAKS    N: PICTURE widened from 9(4) to 9(6)  [picture-widened]\n"
            "\n1 change, 1 of them breaking callers\n");
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(outcome.exitCode, 1);
}

TEST_F(ToolDiffTest, EqualDocumentsAreFine) {
  const test::ToolOutcome outcome = run({"diff", "old.xml", "old.xml"});
  EXPECT_EQ(outcome.out, "no changes\n");
  EXPECT_EQ(outcome.exitCode, 0);
}

TEST_F(ToolDiffTest, WhatIsAllowedIsFine) {
  EXPECT_EQ(run({"diff", "old.xml", "new.xml", "--allow", "picture-widened:N"}).exitCode, 0);
  EXPECT_EQ(run({"diff", "old.xml", "new.xml", "--allow", "picture-widened:M"}).exitCode, 1);
  write("allowed.txt", "# Agreed upon.\npicture-widened\n");
  EXPECT_EQ(run({"diff", "old.xml", "new.xml", "--allow-file", "allowed.txt"}).exitCode, 0);
}

// Breaking callers is an answer, which nobody gets of an output that is lost.
TEST_F(ToolDiffTest, AnOutputThatIsLostIsNoAnswer) {
  for (const char* const other : {"old.xml", "new.xml"}) {
    for (const int out : {open("/dev/full", O_WRONLY), -1}) {
      const test::ToolOutcome outcome = runOn(out, AS_TOOL, {"diff", "old.xml", other});
      EXPECT_EQ(outcome.exitCode, 2) << other;
      EXPECT_THAT(outcome.err, HasSubstr("the output could not be written"));
    }
  }
}

TEST_F(ToolDiffTest, HelpAndManualTellItsOwnExitCodes) {
  EXPECT_THAT(run({"diff", "--help"}).out,
              testing::EndsWith("Exit codes:\n  0  nothing breaks callers\n  1  something breaks "
                                "callers\n  2  wrong usage, a document was refused, or the output "
                                "failed\n"));
  run({"manual", "-o", "man"});
  EXPECT_THAT(test::contentOf(directory() / "man/agentservices-diff.1"),
              HasSubstr("\nsomething breaks callers.\n"));
  EXPECT_THAT(test::contentOf(directory() / "man/agentservices-lint.1"),
              HasSubstr("\nwrong usage.\n"));
}

TEST_F(ToolDiffTest, FoldersWithoutDocumentsAreNoAnswer) {
  std::filesystem::create_directory(directory() / "a");
  std::filesystem::create_directory(directory() / "b");
  const test::ToolOutcome outcome = run({"diff", "a", "b"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.err, "agentservices: error: there are no documents *.xml in a and b\n");
}

TEST_F(ToolDiffTest, AnUnknownKindIsWrongUsage) {
  const test::ToolOutcome outcome = run({"diff", "old.xml", "new.xml", "--allow", "no-such"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, HasSubstr("there is no kind of change 'no-such'"));
}

TEST_F(ToolDiffTest, MissingRulesAreWrongUsage) {
  for (const auto& [file, why] : {std::pair("none", "No such file"), std::pair(".", "Is a dir")}) {
    const test::ToolOutcome outcome = run({"diff", "old.xml", "new.xml", "--allow-file", file});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, StartsWith(file + std::string(": error: cannot be read: ") + why));
  }
}

TEST_F(ToolDiffTest, ARefusedDocumentIsNoAnswer) {
  const test::ToolOutcome outcome = run({"diff", "old.xml", "none.xml"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, StartsWith("none.xml: error: cannot be read"));
}

TEST_F(ToolDiffTest, ANearKindIsSuggested) {
  const test::ToolOutcome outcome = run({"diff", "old.xml", "new.xml", "--allow", "picture-wide"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, HasSubstr("did you mean 'picture-widened'?"));
}

TEST_F(ToolDiffTest, QuietLeavesTheAnswerToTheExitCode) {
  const test::ToolOutcome outcome = run({"diff", "-q", "old.xml", "new.xml"});
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_EQ(outcome.exitCode, 1);
}

TEST_F(ToolDiffTest, FoldersAreTheSameInAnyNumberOfProcesses) {
  for (const char* const folder : {"old", "new"}) {
    std::filesystem::create_directory(pathOf(folder));
    for (const char* const name : {"a.xml", "b.xml", "c.xml"}) {
      write(std::string(folder) + "/" + name,
            test::contentOf(pathOf(std::string(folder) + ".xml")));
    }
  }
  const test::ToolOutcome one = run({"diff", "old", "new"});
  EXPECT_THAT(one.out, HasSubstr("\n3 documents, 3 of them changed, 3 breaking callers\n"));
  EXPECT_EQ(one.exitCode, 1);
  const test::ToolOutcome two = run({"diff", "old", "new", "--jobs", "2"});
  EXPECT_EQ(two.out, one.out);
  EXPECT_EQ(two.exitCode, 1);
  EXPECT_EQ(run({"diff", "old", "new", "--allow", "*"}).exitCode, 0);
}

TEST_F(ToolDiffTest, ARefusedDocumentOfAFolderLeavesTheOthers) {
  for (const char* const folder : {"old", "new"}) {
    std::filesystem::create_directory(pathOf(folder));
    write(std::string(folder) + "/a.xml", test::contentOf(pathOf(std::string(folder) + ".xml")));
    write(std::string(folder) + "/b.xml", "<broken");
  }
  const test::ToolOutcome outcome = run({"diff", "old", "new"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, StartsWith("old/b.xml:"));
  EXPECT_THAT(outcome.out, HasSubstr("1 document, 1 of them changed"));
}

// Nothing is said of it, and that is not to look as if nothing happened to it.
TEST_F(ToolDiffTest, AServiceOfNoDictionaryInTheFoldersIsTold) {
  for (const char* const folder : {"old", "new"}) {
    write(std::string(folder) + "/a.xml", test::payProgram());
  }
  write("own.xml", test::payService(""));
  write("other.xml", test::javaService("programName='OTHER'", ""));
  write("none.xml", test::javaService("", ""));
  EXPECT_EQ(run({"diff", "-q", "old", "new", "--service", "own.xml"}).exitCode, 0);
  const test::ToolOutcome outcome =
      run({"diff", "old", "new", "--service", "own.xml,other.xml,none.xml"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.err,
            "agentservices: error: the program of other.xml has no dictionary in old\n"
            "agentservices: error: the program of none.xml has no dictionary in old\n");
  EXPECT_THAT(outcome.out, HasSubstr("1 document, 0 of them changed"));
}

TEST_F(ToolDiffTest, AFolderIsNotComparedWithAFile) {
  std::filesystem::create_directory(pathOf("old"));
  const test::ToolOutcome outcome = run({"diff", "old", "new.xml"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, HasSubstr("new.xml is none"));
}

TEST_F(ToolDiffTest, StandardInputIsOneOfTheTwo) {
  const test::StandardInput in(open(pathOf("old.xml").c_str(), O_RDONLY));
  const test::ToolOutcome outcome = run({"diff", "-", "new.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr("picture-widened"));
  EXPECT_EQ(run({"diff", "-", "-"}).exitCode, 2);
}

TEST_F(ToolDiffTest, PrintsJson) {
  const test::ToolOutcome outcome = run({"diff", "old.xml", "new.xml", "--format", "json"});
  EXPECT_THAT(outcome.out, StartsWith("{\n  \"of\": \"dictionaries\",\n  \"breaks\": true,"));
  EXPECT_EQ(outcome.exitCode, 1);
}

TEST_F(ToolDiffTest, ListsTheKindsOfChanges) {
  const test::ToolOutcome outcome = run({"diff", "--kinds"});
  EXPECT_THAT(outcome.out, HasSubstr("picture-widened\n  breaks callers: PICTURE widened; "));
  EXPECT_EQ(outcome.exitCode, 0);
}

}  // namespace

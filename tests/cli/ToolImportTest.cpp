// Tests of the tool's command `import` as a process: what it takes, writes, says and answers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "support/Json.h"
#include "support/Requests.h"
#include "support/Tool.h"

namespace {

using test::contentOf;
using testing::HasSubstr;

std::string program(const std::string& name, const std::string& entries) {
  return "       PROGRAM-ID. " + name +
         ".\n       DATA DIVISION.\n       WORKING-STORAGE SECTION.\n       " + entries + "\n";
}

class ToolImportTest : public test::ToolTest {
 protected:
  void makeFolder(const std::string& name) const {
    std::filesystem::create_directory(pathOf(name));
  }
  bool exists(const std::string& name) const { return std::filesystem::exists(pathOf(name)); }
};

TEST_F(ToolImportTest, WritesTheDictionaryOfASource) {
  write("a.cbl", program("A", "01 R PIC X."));
  const test::ToolOutcome outcome = run({"import", "a.cbl", "-o", "a.xml"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err + outcome.out, "");
  EXPECT_EQ(run({"validate", "a.xml"}).exitCode, 0);
}

TEST_F(ToolImportTest, TakesStandardInput) {
  write("a.cbl", program("A", "01 R PIC Q."));
  const test::StandardInput redirected(open(pathOf("a.cbl").c_str(), O_RDONLY));
  EXPECT_EQ(run({"import", "-", "-o", "a.xml"}).err,
            "-:4:17: error: Q is no PICTURE that can be read\n");
}

TEST_F(ToolImportTest, QuietlyTellsNoNotes) {
  write("a.cbl", program("A", "01 R PIC X.") + "       REPORT SECTION.\n");
  EXPECT_THAT(run({"import", "a.cbl", "-o", "a.xml"}).err, HasSubstr(": note: "));
  EXPECT_EQ(run({"import", "-q", "a.cbl", "-o", "a.xml"}).err, "");
}

TEST_F(ToolImportTest, TellsFindingsOnStandardError) {
  write("a.cbl", program("A", "01 R PIC Q."));
  const test::ToolOutcome outcome = run({"import", "a.cbl", "-o", "a.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "a.cbl:4:17: error: Q is no PICTURE that can be read\n");
  EXPECT_FALSE(exists("a.xml"));
}

TEST_F(ToolImportTest, LooksForCopybooksInTheFoldersTold) {
  makeFolder("copies");
  write("copies/REC.cpy", "       01 R PIC X(9).\n");
  write("a.cbl", program("A", "COPY REC."));
  EXPECT_EQ(run({"import", "-I", "copies", "a.cbl", "-o", "a.xml"}).exitCode, 0);
  EXPECT_THAT(contentOf(pathOf("a.xml")), HasSubstr("picture=\"X(9)\""));
  EXPECT_EQ(run({"import", "a.cbl", "-o", "b.xml"}).exitCode, 1);
}

TEST_F(ToolImportTest, ExplainsWithoutWriting) {
  write("a.cbl", program("A", "01 R PIC X."));
  const test::ToolOutcome outcome = run({"import", "a.cbl", "--explain", "R"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, HasSubstr("R: bytes 0 to 0\n"));
  EXPECT_FALSE(exists("a.xml"));
}

TEST_F(ToolImportTest, NeedsAnOutputWhenNothingIsExplained) {
  write("a.cbl", program("A", "01 R PIC X."));
  const test::ToolOutcome outcome = run({"import", "a.cbl"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, HasSubstr("--output is required"));
}

TEST_F(ToolImportTest, OptionsReachTheLibrary) {
  write("a.cbl", "01 R. 05 A PIC 9 COMP. 05 P POINTER.\n");
  ASSERT_EQ(run({"import", "--format", "free", "--dialect", "gnucobol", "--pointer-size", "4",
                 "--copybook", "a.cbl", "-o", "a.xml"})
                .exitCode,
            0);
  EXPECT_THAT(contentOf(pathOf("a.xml")), HasSubstr("name=\"R\" offset=\"0\" length=\"5\""));
}

TEST_F(ToolImportTest, ExplainsItemsOnStandardOutput) {
  write("a.cbl", program("A", "01 R PIC X."));
  EXPECT_THAT(run({"import", "a.cbl", "-o", "a.xml", "--explain", "R"}).out,
              HasSubstr("R: bytes 0 to 0\n  a.cbl:4: PICTURE X: 1 character\n"));
}

TEST_F(ToolImportTest, HasNothingToExplainOfWhatIsNotThere) {
  write("a.cbl", program("A", "01 R PIC X."));
  const test::ToolOutcome outcome = run({"import", "a.cbl", "-o", "a.xml", "--explain", "S"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "agentservices: error: there is no item S\n");
}

TEST_F(ToolImportTest, WritesTheProgramsOfASourceToFilesOfTheirOwn) {
  write("a.cbl", program("A", "01 R PIC X.") + "       END PROGRAM A.\n" +
                     program("B", "01 R PIC X.") + "       END PROGRAM B.\n");
  EXPECT_EQ(run({"import", "a.cbl", "-o", "x.xml"}).exitCode, 0);
  EXPECT_THAT(contentOf(pathOf("x.xml")), HasSubstr("name=\"A\""));
  EXPECT_THAT(contentOf(pathOf("x-B.xml")), HasSubstr("name=\"B\""));
}

// Copybooks with the places that they are copied at, whatever the number of processes.
TEST_F(ToolImportTest, TellsProgramsWhatItFinds) {
  write("REC.cpy", "       01 R PIC Q.\n");
  write("a.cbl", program("A", "COPY REC."));
  write("b.cbl", program("B", "01 S PIC X.") + "       REPORT SECTION.\n");
  for (const char* const jobs : {"1", "2"}) {
    const test::ToolOutcome outcome =
        run({"import", "a.cbl", "b.cbl", "-o", "out", "--messages", "json", "--jobs", jobs});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err, "");
    const auto report = test::parsedJson(outcome.out);
    ASSERT_EQ(report["findings"].size(), 2U);
    const auto& first = report["findings"][0];
    EXPECT_EQ(first["rule"], "bad-picture");
    EXPECT_EQ(first["file"], "REC.cpy");
    EXPECT_EQ(first["line"], 1);
    EXPECT_EQ(first["column"], 17);
    EXPECT_EQ(first["copiedAt"][0]["file"], "a.cbl");
    EXPECT_EQ(first["copiedAt"][0]["line"], 4);
    EXPECT_EQ(report["findings"][1]["rule"], "passed-over-section");
    EXPECT_EQ(report["errors"], 1);
    EXPECT_EQ(report["notes"], 1);
  }
}

TEST_F(ToolImportTest, TellsProgramsWhatItCannotRead) {
  const test::ToolOutcome outcome =
      run({"import", "none.cbl", "-o", "a.xml", "--messages", "sarif"});
  const auto log = test::parsedJson(outcome.out);
  const auto& result = log["runs"][0]["results"][0];
  EXPECT_EQ(result["ruleId"], "refused-document");
  EXPECT_EQ(result["locations"][0]["physicalLocation"]["artifactLocation"]["uri"], "none.cbl");
}

TEST_F(ToolImportTest, DescribesItsRulesToPrograms) {
  write("a.cbl", program("A", "01 R PIC X."));
  const auto log =
      test::parsedJson(run({"import", "a.cbl", "-o", "a.xml", "--messages", "sarif"}).out);
  const auto& rules = log["runs"][0]["tool"]["driver"]["rules"];
  EXPECT_TRUE(std::any_of(rules.begin(), rules.end(),
                          [](const auto& rule) { return rule["id"] == "copybook-not-found"; }));
}

// What is refused keeps nothing else from being written, whatever the number of processes.
TEST_F(ToolImportTest, WritesTheSourcesOfFolders) {
  for (const char* const jobs : {"1", "3"}) {
    const std::string out = std::string("out") + jobs;
    makeFolder(std::string("in") + jobs);
    makeFolder(std::string("in") + jobs + "/sub");
    const std::string in = std::string("in") + jobs;
    write(in + "/a.cbl", program("A", "01 R PIC X."));
    write(in + "/b.COB", program("B", "01 R PIC Q."));
    write(in + "/sub/c.cobol", program("C", "01 R PIC X."));
    write(in + "/notes.txt", "nothing");
    const test::ToolOutcome outcome = run({"import", in, "-o", out, "--jobs", jobs});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err, in + "/b.COB:4:17: error: Q is no PICTURE that can be read\n");
    EXPECT_TRUE(exists(out + "/a.xml"));
    EXPECT_FALSE(exists(out + "/b.xml"));
    EXPECT_TRUE(exists(out + "/sub/c.xml"));
    EXPECT_FALSE(exists(out + "/notes.xml"));
  }
}

TEST_F(ToolImportTest, SearchesFoldersWholeToldSoOrNot) {
  makeFolder("in");
  makeFolder("in/sub");
  write("in/sub/c.cbl", program("C", "01 R PIC X."));
  for (const std::vector<std::string>& options : {std::vector<std::string>{}, {"-r"}}) {
    std::vector<std::string> arguments = {"import", "in", "-o", "out"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    EXPECT_EQ(run(arguments).exitCode, 0);
    EXPECT_TRUE(exists("out/sub/c.xml"));
    std::filesystem::remove_all(pathOf("out"));
  }
}

TEST_F(ToolImportTest, NoDictionaryTakesThePlaceOfItsSource) {
  const std::string source = program("A", "01 R PIC X.");
  write("a.cbl", source);
  std::filesystem::create_symlink("a.cbl", pathOf("link"));
  for (const char* const output : {"a.cbl", "./a.cbl", "link"}) {
    const test::ToolOutcome outcome = run({"import", "a.cbl", "-o", output});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err,
              std::string(output) + ": error: this is the source\n" + "hint: name another file\n");
    EXPECT_EQ(contentOf(pathOf("a.cbl")), source);
  }
}

TEST_F(ToolImportTest, NoDictionaryTakesThePlaceOfACopybook) {
  const std::string copybook = "       01 R PIC X.\n";
  write("a.cbl", program("A", "COPY REC."));
  write("REC.cpy", copybook);
  std::filesystem::create_symlink("REC.cpy", pathOf("link"));
  for (const char* const output : {"REC.cpy", "./REC.cpy", "link"}) {
    const test::ToolOutcome outcome = run({"import", "a.cbl", "-o", output});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err, std::string(output) + ": error: this is the copybook\n" +
                               "hint: name another file\n");
    EXPECT_EQ(contentOf(pathOf("REC.cpy")), copybook);
  }
}

TEST_F(ToolImportTest, WritesNoTwoSourcesToOneDictionary) {
  makeFolder("in");
  makeFolder("in/b");
  for (const char* const source : {"in/a.cbl", "in/a.cob", "in/b/a.cbl"}) {
    write(source, program("A", "01 R PIC X."));
  }
  const std::vector<std::vector<std::string>> sources = {
      {"in"}, {"in/a.cbl", "in/b/a.cbl"}, {"in/a.cbl", "in/a.cbl"}};
  for (const std::vector<std::string>& named : sources) {
    std::vector<std::string> arguments = {"import", "-o", "out"};
    arguments.insert(arguments.end(), named.begin(), named.end());
    const test::ToolOutcome outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err, "agentservices: error: two documents would be written to out/a.xml\n");
    EXPECT_FALSE(exists("out"));
  }
  EXPECT_EQ(run({"import", "in", "--explain", "R"}).exitCode, 0) << "nothing is written";
}

// What the second program of a source is called is only known when it was read.
TEST_F(ToolImportTest, TellsWhenTwoProgramsWereWrittenToOneFile) {
  makeFolder("in");
  write("in/a.cbl", program("A", "01 R PIC X.") + "       END PROGRAM A.\n" +
                        program("B", "01 R PIC X.") + "       END PROGRAM B.\n");
  write("in/a-B.cbl", program("C", "01 R PIC X."));
  for (const char* const jobs : {"1", "2"}) {
    const test::ToolOutcome outcome = run({"import", "in", "-o", "out", "--jobs", jobs});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err, "agentservices: error: two programs were written to out/a-B.xml\n");
  }
}

TEST_F(ToolImportTest, RefusesWhatItCannotRead) {
  const test::ToolOutcome outcome = run({"import", "none.cbl", "-o", "a.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("none.cbl: error: it cannot be read: No such file"));
}

TEST_F(ToolImportTest, RefusesWrongUsage) {
  EXPECT_EQ(run({"import", "a.cbl"}).exitCode, 2);
  EXPECT_EQ(run({"import", "a.cbl", "-o", "a.xml", "--dialect", "vax"}).exitCode, 2);
  EXPECT_EQ(run({"import", "a.cbl", "-o", "a.xml", "--jobs", "0"}).exitCode, 2);
  EXPECT_EQ(run({"import", "a.cbl", "--explain", "A", "--messages", "json"}).exitCode, 2);
}

}  // namespace

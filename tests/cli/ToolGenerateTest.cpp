// Tests of the tool's command `generate` as a process: what it takes, says and answers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/Tool.h"

namespace {

using test::contentOf;
using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;
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
  for (const auto& [file, why] : {std::pair("none", "No such file"), std::pair(".", "Is a dir")}) {
    const test::ToolOutcome outcome =
        generate("wsdl", "DEPINT01-ws.xml", {"-o", "out", "--names", file});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.err, HasSubstr(file + std::string(": error: cannot be read: ") + why));
  }
}

TEST_F(ToolGenerateTest, NothingTakesThePlaceOfTheNames) {
  write("names", "Savings deposits = Deposits\n");
  const test::ToolOutcome outcome =
      generate("wsdl", "DEPINT01-ws.xml", {"-o", "./names", "--names", "names"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("./names: error: this is the file of names"));
  EXPECT_EQ(contentOf(pathOf("names")), "Savings deposits = Deposits\n");
}

// Nor does a link to it.
TEST_F(ToolGenerateTest, NothingTakesThePlaceOfWhatItIsMadeOf) {
  for (const char* const file : {"PAYSLIP.xml", "PAYSLIP-ws.xml"}) {
    std::filesystem::copy(std::string(AS_EXAMPLES_DIR "/") + file, pathOf(file));
  }
  std::filesystem::create_symlink("PAYSLIP.xml", pathOf("link"));
  const struct {
    const char* document;
    const char* output;
    const char* what;
  } rows[] = {{"PAYSLIP.xml", "PAYSLIP.xml", "document"},
              {"PAYSLIP.xml", "link", "document"},
              {"PAYSLIP-ws.xml", "./PAYSLIP-ws.xml", "document"},
              {"PAYSLIP-ws.xml", "PAYSLIP.xml", "dictionary"}};
  for (const auto& row : rows) {
    const test::ToolOutcome outcome = run({"generate", "markdown", row.document, "-o", row.output});
    EXPECT_EQ(outcome.exitCode, 1) << row.output;
    EXPECT_EQ(outcome.err, std::string(row.output) + ": error: this is the " + row.what +
                               "\nhint: name another file\n");
    EXPECT_EQ(run({"validate", "-q", "PAYSLIP.xml", "PAYSLIP-ws.xml"}).exitCode, 0);
  }
}

TEST_F(ToolGenerateTest, ADictionaryNamedByItselfIsKept) {
  std::filesystem::copy(AS_EXAMPLES_DIR "/PAYSLIP.xml", pathOf("d.xml"));
  const test::ToolOutcome outcome = run({"generate", "markdown", AS_EXAMPLES_DIR "/PAYSLIP-ws.xml",
                                         "--dictionary", "d.xml", "-o", "d.xml"});
  EXPECT_THAT(outcome.err, HasSubstr("d.xml: error: this is the dictionary\n"));
  EXPECT_EQ(run({"validate", "-q", "d.xml"}).exitCode, 0);
}

TEST_F(ToolGenerateTest, WhatIsMadeOfSeveralGoesToFoldersCalledLikeThem) {
  const auto make = [this](const std::string& out, const std::string& jobs) {
    return run({"generate", "wsdl", AS_EXAMPLES_DIR "/PAYSLIP-ws.xml",
                AS_EXAMPLES_DIR "/MOTPREM-ws.xml", "-o", out, "--jobs", jobs});
  };
  const test::ToolOutcome alone = make("out", "1");
  EXPECT_EQ(alone.exitCode, 0);
  EXPECT_TRUE(std::filesystem::exists(directory() / "out" / "PAYSLIP-ws" / "Payslip.wsdl"));
  EXPECT_TRUE(std::filesystem::exists(directory() / "out" / "MOTPREM-ws"));
  std::filesystem::rename(directory() / "out", directory() / "first");
  // Whoever does the work, it is told in the order of the documents.
  EXPECT_EQ(make("out", "2").out, alone.out);
  EXPECT_EQ(contentOf(pathOf("out/PAYSLIP-ws/Payslip.wsdl")),
            contentOf(pathOf("first/PAYSLIP-ws/Payslip.wsdl")));
}

TEST_F(ToolGenerateTest, OneThatIsRefusedKeepsNoneOfTheOthersBack) {
  const test::ToolOutcome outcome = generate(
      "java", "broken/MOTPREM-java.xml",
      {AS_EXAMPLES_DIR "/PAYSLIP-java.xml", AS_EXAMPLES_DIR "/PAYSLIP-ws.xml", "-o", "out"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr("broken/MOTPREM-java.xml: nothing is made of it\n"));
  EXPECT_THAT(outcome.out, HasSubstr("java is not made of Web services"));
  EXPECT_THAT(outcome.out, HasSubstr("out/PAYSLIP-java/Payslip.java: written\n"));
}

TEST_F(ToolGenerateTest, FoldersAreSearchedForWhatTheKindIsMadeOf) {
  for (const char* const name : {"PAYSLIP.xml", "PAYSLIP-java.xml", "PAYSLIP-ws.xml"}) {
    write(std::string("all/below/") + name, contentOf(std::string(AS_EXAMPLES_DIR "/") + name));
  }
  const test::ToolOutcome outcome = run({"generate", "java", "-r", "all", "-o", "out"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.out << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("out/below/PAYSLIP-java/Payslip.java: written\n"));
  EXPECT_THAT(outcome.out, Not(HasSubstr("Web")));
  EXPECT_FALSE(std::filesystem::exists(directory() / "out" / "below" / "PAYSLIP-ws"));
}

TEST_F(ToolGenerateTest, TwoThatWouldGoToOneFolderAreRefused) {
  const test::ToolOutcome outcome =
      generate("java", "PAYSLIP-java.xml", {"other/PAYSLIP-java.txt", "-o", "out"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("two documents would be written to out/PAYSLIP-java/"));
  EXPECT_FALSE(std::filesystem::exists(directory() / "out"));
}

TEST_F(ToolGenerateTest, TakesStandardInputAndIsQuiet) {
  const test::StandardInput redirected(open(AS_EXAMPLES_DIR "/PAYSLIP.xml", O_RDONLY));
  const test::ToolOutcome outcome = run({"generate", "xsd", "-q", "-", "-o", "out.xsd"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, HasSubstr("-: warning: type SESSION.SES-FORM: there is no type for it"));
  EXPECT_THAT(outcome.out + outcome.err, Not(AnyOf(HasSubstr("note:"), HasSubstr("written"))));
  EXPECT_THAT(contentOf(pathOf("out.xsd")), HasSubstr("<xs:schema"));
}

}  // namespace

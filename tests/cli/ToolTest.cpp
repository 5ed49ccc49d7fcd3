// Tests of the command-line tool: runs the built program and looks at what it writes and answers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Requests.h"
#include "support/Tool.h"

namespace {

namespace fs = std::filesystem;
using test::labelOf;
using test::ToolTest;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

// What is shown

TEST_F(ToolTest, ShowPrintsATreeOrJson) {
  write("orders.xml", test::payProgram());
  const test::ToolOutcome tree = run({"show", "orders.xml"});
  EXPECT_EQ(tree.exitCode, 0);
  EXPECT_THAT(tree.out, StartsWith("PROGRAM PAYROLL\n"));
  EXPECT_THAT(tree.err, IsEmpty());
  const test::ToolOutcome json = run({"show", "--json", "orders.xml"});
  EXPECT_EQ(json.exitCode, 0);
  EXPECT_THAT(json.out, StartsWith("{\n  \"name\": \"PAYROLL\",\n"));
  EXPECT_THAT(json.err, IsEmpty());
}

TEST_F(ToolTest, ShowPrintsServicesWithTheirProgramsWhenTold) {
  write("d/PAY.xml", test::payProgram());
  write("s/pay.xml", test::javaService("name='Pay' implementation='java' "
                                       "dataDictFilename='../d/PAY.xml'",
                                       "<operations><operation name='pay' entryPoint='PAY'/>"
                                       "<operation name='ping' entryPoint='PING'/></operations>"));
  const std::string alone = run({"show", "s/pay.xml"}).out;
  EXPECT_THAT(alone, HasSubstr("dictionary    ../d/PAY.xml\n"));
  EXPECT_THAT(alone, EndsWith("ping  entry point PING\n"));
  const std::string complete = run({"show", "--program", "s/pay.xml"}).out;
  EXPECT_THAT(complete, HasSubstr("dictionary    ../d/PAY.xml\n"));
  EXPECT_THAT(complete, EndsWith("ping  entry point PING (not found)\n"));
  EXPECT_THAT(run({"show", "--program", "--json", "s/pay.xml"}).out,
              HasSubstr("\"program\": \"PAYROLL\""));
}

TEST_F(ToolTest, AMissingDictionaryIsNamed) {
  write("s/pay.xml", test::javaService("dataDictFilename='../d/PAY.xml'", ""));
  EXPECT_EQ(run({"show", "s/pay.xml"}).exitCode, 0);
  const test::ToolOutcome outcome = run({"show", "--program", "s/pay.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, testing::IsEmpty());
  EXPECT_EQ(outcome.err, "s/../d/PAY.xml: error: cannot be read: No such file or directory\n");
}

TEST_F(ToolTest, AServiceThatNamesNoDictionaryIsTold) {
  write("s.xml", test::javaService("", ""));
  const test::ToolOutcome outcome = run({"show", "--program", "s.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err,
            "s.xml: error: the service names no dictionary\n"
            "hint: write attribute dataDictFilename, or leave --program out\n");
}

// Validation and refusals

TEST_F(ToolTest, ValidateAnswersForEveryFile) {
  write("first.xml", test::dictionary(""));
  write("bad.xml", "<program");
  write("last.xml", test::payProgram());
  const test::ToolOutcome outcome =
      run({"validate", "first.xml", "bad.xml", "missing.xml", "last.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, "first.xml: ok\nlast.xml: ok\n4 documents: 2 ok, 2 refused\n");
  EXPECT_THAT(outcome.err, StartsWith("bad.xml:1:"));
  EXPECT_THAT(outcome.err, HasSubstr("\nmissing.xml: error: "));
}

TEST_F(ToolTest, ValidateOfGoodFilesSucceedsSilently) {
  write("good.xml", test::payProgram());
  const test::ToolOutcome outcome = run({"validate", "good.xml", "good.xml"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, "good.xml: ok\ngood.xml: ok\n2 documents: 2 ok, 0 refused\n");
  EXPECT_THAT(outcome.err, IsEmpty());
}

TEST_F(ToolTest, ValidateTakesBothKinds) {
  write("d.xml", test::payProgram());
  write("s.xml", test::javaService("", ""));
  EXPECT_THAT(run({"validate", "s.xml", "d.xml"}).out, StartsWith("s.xml: ok\nd.xml: ok\n"));
}

TEST_F(ToolTest, ValidateSearchesFolders) {
  write("in/d.xml", test::payProgram());
  write("in/below/s.XML", test::javaService("", ""));
  write("in/other.xml", "<other/>");
  write("in/bad.xml", "<");
  write("in/notes.txt", "");
  for (const char* const jobs : {"1", "3"}) {
    const test::ToolOutcome outcome = run({"validate", "-r", "--jobs", jobs, "in"});
    EXPECT_EQ(outcome.out,
              "in/below/s.XML: ok\nin/d.xml: ok\n3 documents: 2 ok, 1 refused, 1 of other kinds\n");
    EXPECT_THAT(outcome.err, StartsWith("in/bad.xml:1:"));
    EXPECT_EQ(outcome.exitCode, 1);
  }
  EXPECT_EQ(run({"validate", "-r", "--quiet", "in/d.xml", "in/below"}).out, "");
}

// Names are taken as they are, whatever else they could mean to a parser of command lines.
TEST_F(ToolTest, ValidateTakesNamesOfAnyCharacters) {
  for (const char* const name : {"[a]", "[a,b]", "[]", "{}", "[[a]]", "a,b", "%%", "show"}) {
    write(name, test::payProgram());
    EXPECT_EQ(run({"validate", name}).out, std::string(name) + ": ok\n");
    EXPECT_EQ(run({"validate", "--", name, name}).out,
              std::string(name) + ": ok\n" + name + ": ok\n2 documents: 2 ok, 0 refused\n");
  }
}

TEST_F(ToolTest, ValidateTellsPrograms) {
  write("bad.xml", test::dictionaryOf("\n\n<pointer name='A' lenght='4'/>"));
  const test::ToolOutcome outcome = run({"validate", "bad.xml", "--format", "sarif"});
  EXPECT_THAT(outcome.out, HasSubstr("\"startLine\": 3,"));
  EXPECT_THAT(outcome.err, StartsWith("bad.xml:3:31: error: "));
  EXPECT_EQ(outcome.exitCode, 1);
}

TEST_F(ToolTest, StandardInputIsADocument) {
  write("p.xml", test::payProgram());
  for (const char* const command : {"validate", "show"}) {
    const test::StandardInput redirected(open(pathOf("p.xml").c_str(), O_RDONLY));
    EXPECT_THAT(run({command, "-"}).out, testing::AnyOf("-: ok\n", StartsWith("PROGRAM PAYROLL")));
  }
  const test::StandardInput redirected(open(directory().c_str(), O_RDONLY | O_DIRECTORY));
  const test::ToolOutcome outcome = run({"validate", "-"});
  EXPECT_EQ(outcome.err, "-: error: cannot be read: Is a directory\n");
  EXPECT_EQ(outcome.exitCode, 1);
}

TEST_F(ToolTest, ShowTellsSeveralDocumentsApart) {
  write("a.xml", test::dictionary(""));
  write("b.xml", test::javaService("name='B'", ""));
  const test::ToolOutcome trees = run({"show", "a.xml", "missing.xml", "b.xml"});
  EXPECT_EQ(trees.exitCode, 1);
  EXPECT_THAT(trees.out, StartsWith("==> a.xml <==\nPROGRAM PAYROLL\n"));
  EXPECT_THAT(trees.out, HasSubstr("\n\n==> b.xml <==\n"));
  EXPECT_THAT(trees.err, StartsWith("missing.xml: error: "));
  const test::ToolOutcome json = run({"show", "--json", "a.xml", "b.xml", "--jobs", "2"});
  EXPECT_EQ(json.exitCode, 0);
  EXPECT_THAT(json.out, StartsWith("[\n{\"file\": \"a.xml\", \"document\": {\n"));
  EXPECT_THAT(json.out, HasSubstr("},\n{\"file\": \"b.xml\", \"document\": {\n"));
  EXPECT_THAT(json.out, EndsWith("}}\n]\n"));
}

TEST_F(ToolTest, AnyFileNameIsTaken) {
  for (const char* name : {"two words.xml", "a%20b.xml", "a:b.xml", "größe.xml", "a#b?c.xml"}) {
    write(name, test::dictionary(""));
    EXPECT_EQ(run({"validate", name}).out, std::string(name) + ": ok\n");
  }
}

TEST_F(ToolTest, TheExamplesAreGood) {
  int count = 0;
  for (const auto& entry : fs::directory_iterator(AS_EXAMPLES_DIR)) {
    if (entry.path().extension() != ".xml") continue;
    ++count;
    const std::string file = entry.path().string();
    EXPECT_EQ(run({"validate", file}).out, file + ": ok\n");
  }
  EXPECT_GE(count, 3);
}

// A document that is refused, and the whole of what is said about it.
struct RefusalCase {
  std::string label;
  std::string document;
  std::string message;
};

void PrintTo(const RefusalCase& refusal, std::ostream* out) { *out << refusal.document; }

class ToolRefusalTest : public ToolTest, public testing::WithParamInterface<RefusalCase> {};

TEST_P(ToolRefusalTest, IsTold) {
  write("refused.xml", GetParam().document);
  for (const char* command : {"show", "validate"}) {
    const test::ToolOutcome outcome = run({command, "refused.xml"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.out, IsEmpty());
    EXPECT_EQ(outcome.err, GetParam().message + "\n");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Documents, ToolRefusalTest,
    testing::Values(
        RefusalCase{"WithAPlace", test::dictionaryOf("\n\n<pointer name='A' lenght='4'/>"),
                    "refused.xml:3:31: error: attribute 'lenght' is not declared for element "
                    "'pointer'"},
        RefusalCase{"WithoutAPlace", "<program name='PAYROLL'/>",
                    std::string("refused.xml: error: not a data dictionary: its root element is "
                                "not in the namespace ") +
                        as::namespaces::dd.uri +
                        "; and not a service: its root element is in none of the namespaces "
                        "http://agentservices.example/schema/ws/v1.0/vorws.xsd "
                        "http://agentservices.example/schema/java/v2.0/vorjava.xsd "
                        "http://agentservices.example/schema/com/v1.0/vorcom.xsd "
                        "http://agentservices.example/schema/dotnet/v1.0/vordotnet.xsd"},
        RefusalCase{"WithAHint",
                    std::string("<d:program name='P' xmlns:d='") + as::namespaces::dd.uri + "'/>",
                    std::string("refused.xml:1:92: error: no declaration found for element "
                                "'d:program'\nhint: name the schema in the root element: "
                                "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                                "xsi:schemaLocation=\"") +
                        as::namespaces::dd.uri + " " + as::namespaces::dd.uri + "\""},
        RefusalCase{"ControlCharactersInAMessage",
                    test::dictionaryOf("\n<pointer name='A' sync='&#9;'/>"),
                    "refused.xml:2:32: error: value '\\u0009' does not match regular expression "
                    "facet '[Tt][Rr][Uu][Ee]|[Ff][Aa][Ll][Ss][Ee]'"}),
    labelOf<RefusalCase>);

TEST_F(ToolTest, AMissingFileIsNamed) {
  const test::ToolOutcome outcome = run({"show", "missing.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_EQ(outcome.err, "missing.xml: error: cannot be read: No such file or directory\n");
}

TEST_F(ToolTest, ADirectoryIsNoDocument) {
  const test::ToolOutcome outcome = run({"validate", directory().string()});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err,
            directory().string() +
                ": error: is a directory, not a document\nhint: search it with --recursive\n");
}

// The schema directory

TEST_F(ToolTest, SchemasMayBeNamedBeforeAndBehindTheCommand) {
  write("good.xml", test::dictionary(""));
  EXPECT_EQ(run({"--schemas", AS_SCHEMA_DIR, "validate", "good.xml"}).exitCode, 0);
  EXPECT_EQ(run({"validate", "--schemas", AS_SCHEMA_DIR, "good.xml"}).exitCode, 0);
  EXPECT_EQ(run({"show", "good.xml", "--schemas", AS_SCHEMA_DIR}).exitCode, 0);
}

TEST_F(ToolTest, AProblemInASchemaIsToldWithTheSchemasName) {
  write("good.xml", test::dictionary(""));
  write("schemas/vorcobol.xsd", "<xs:schema");
  const test::ToolOutcome outcome = run({"validate", "--schemas", "schemas", "good.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("schemas/vorcobol.xsd:1:"));
}

TEST_F(ToolTest, AnInstalledToolUsesTheSchemasInstalledWithIt) {
  write("good.xml", test::dictionary(""));
  write("share/AgentServices/schema/vorcobol.xsd", "<xs:schema");
  fs::create_directory(directory() / "bin");
  fs::copy_file(AS_TOOL, directory() / "bin/agentservices");
  for (const auto& built : fs::directory_iterator(fs::path(AS_TOOL).parent_path())) {
    if (built.path().filename().string().rfind("libAgentServices", 0) != 0) continue;
    fs::create_symlink(built.path(), directory() / "bin" / built.path().filename());
  }
  const test::ToolOutcome outcome =
      runProgram(pathOf("bin/agentservices"), {"validate", "good.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("share/AgentServices/schema/vorcobol.xsd:1:"));
}

struct SchemasCase {
  std::string label;
  std::string schemas;
  std::string message;
};

void PrintTo(const SchemasCase& schemas, std::ostream* out) { *out << schemas.schemas; }

class ToolSchemasTest : public ToolTest, public testing::WithParamInterface<SchemasCase> {};

TEST_P(ToolSchemasTest, AreCheckedBeforeAnyDocument) {
  write("file", "");
  write("empty/other.xsd", "");
  const test::ToolOutcome outcome =
      run({"validate", "--schemas", GetParam().schemas, "missing.xml"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_EQ(outcome.err, "agentservices: error: the schema directory " + GetParam().message + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Directories, ToolSchemasTest,
    testing::Values(SchemasCase{"Missing", "missing", "'missing' does not exist"},
                    SchemasCase{"File", "file", "'file' is not a directory"},
                    SchemasCase{"WithoutTheSchema", "empty", "'empty' holds no vorcobol.xsd"}),
    labelOf<SchemasCase>);

// Usage and output

TEST_F(ToolTest, LintTellsItsRules) {
  const test::ToolOutcome outcome = run({"lint", "--rules"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.err, IsEmpty());
  std::istringstream lines(outcome.out);
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    EXPECT_THAT(line, testing::MatchesRegex("[a-z-]+ +(error|warning|note) +[^ ].*"));
  }
  EXPECT_GT(count, 10);
  EXPECT_THAT(outcome.out, HasSubstr("lost-data-item "));
}

struct UsageCase {
  std::string label;
  std::vector<std::string> arguments;
};

void PrintTo(const UsageCase& usage, std::ostream* out) { *out << usage.label; }

class ToolUsageTest : public ToolTest, public testing::WithParamInterface<UsageCase> {};

TEST_P(ToolUsageTest, IsWrong) {
  const test::ToolOutcome outcome = run(GetParam().arguments);
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_THAT(outcome.err, Not(IsEmpty()));
}

INSTANTIATE_TEST_SUITE_P(
    Calls, ToolUsageTest,
    testing::Values(UsageCase{"Nothing", {}}, UsageCase{"UnknownCommand", {"shew", "a.xml"}},
                    UsageCase{"ShowWithoutFile", {"show"}},
                    UsageCase{"UnknownOption", {"show", "--xml", "a.xml"}},
                    UsageCase{"ValidateWithoutFile", {"validate"}},
                    UsageCase{"SchemasWithoutDirectory", {"validate", "a.xml", "--schemas"}}),
    labelOf<UsageCase>);

TEST_F(ToolTest, HelpIsNoMistake) {
  for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
           {"--help"}, {"show", "--help"}, {"validate", "--help"}}) {
    const test::ToolOutcome outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out, HasSubstr("--schemas"));
    EXPECT_THAT(outcome.err, IsEmpty());
  }
}

TEST_F(ToolTest, VersionIsTold) {
  const test::ToolOutcome outcome = run({"--version"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out,
              testing::MatchesRegex("agentservices [0-9]+\\.[0-9]+\\.[0-9]+ \\(library "
                                    "[0-9]+\\.[0-9]+\\.[0-9]+, Xerces-C\\+\\+ "
                                    "[0-9]+\\.[0-9]+\\.[0-9]+\\)\n"));
}

}  // namespace

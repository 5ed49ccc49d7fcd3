// Tests of what the tool tells about itself: help, completions, manual pages.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "support/Kept.h"
#include "support/Requests.h"
#include "support/Tool.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class ToolHelpTest : public test::ToolTest {
 protected:
  // The commands that help lists.
  std::vector<std::string> commands() const {
    std::istringstream help(run({"--help"}).out);
    std::vector<std::string> names;
    std::string line;
    while (std::getline(help, line) && line != "Subcommands:") {
    }
    while (std::getline(help, line) && !line.empty()) {
      if (line[2] != ' ') names.push_back(line.substr(2, line.find(' ', 2) - 2));
    }
    return names;
  }

  // The options that the help of a command lists.
  std::set<std::string> optionsOf(const std::string& command) const {
    std::istringstream help(run({command, "--help"}).out);
    std::set<std::string> options;
    for (std::string line; std::getline(help, line);) {
      if (line.rfind("  -", 0) != 0) continue;
      std::istringstream names(line.substr(2, line.find(' ', 2) - 2));
      for (std::string name; std::getline(names, name, ',');) options.insert(name);
    }
    return options;
  }
};

TEST_F(ToolHelpTest, KnowsTheCommands) {
  EXPECT_THAT(commands(), testing::IsSupersetOf({"show", "validate", "lint", "new", "convert",
                                                 "import", "completion", "manual"}));
  EXPECT_THAT(optionsOf("lint"), testing::IsSupersetOf({"-h", "--help", "--format", "--rules"}));
}

TEST_F(ToolHelpTest, EveryCommandHasExamples) {
  for (const std::string& command : commands()) {
    EXPECT_THAT(run({command, "--help"}).out,
                HasSubstr("\nExamples:\n  agentservices " + command + " "));
  }
}

TEST_F(ToolHelpTest, TellsTheExitCodes) {
  EXPECT_THAT(run({"--help"}).out,
              EndsWith("Exit codes:\n  0  fine\n  1  a document was refused or has errors, or the "
                       "output failed\n  2  wrong usage\n"));
}

TEST_F(ToolHelpTest, TellsThatNamesMayBeSeveral) {
  EXPECT_THAT(run({"validate", "--help"}).out, HasSubstr(" [OPTIONS] FILE...\n"));
}

TEST_F(ToolHelpTest, SuggestsTheCommandMeant) {
  EXPECT_THAT(run({"shwo", "a.xml"}).err,
              EndsWith("there is no command 'shwo'; did you mean 'show'?\n"));
  EXPECT_THAT(run({"frobnicate", "a.xml"}).err,
              EndsWith("there is no command 'frobnicate'; --help lists them\n"));
  EXPECT_THAT(run({"show"}).err, testing::Not(HasSubstr("mean")));
}

// Wrong calls, and what is said of them.
TEST_F(ToolHelpTest, TellsWhatIsTheMatterWithACall) {
  const std::string lintHint = "hint: agentservices lint --help tells what it takes\n";
  const struct {
    std::vector<std::string> call;
    std::string said;
  } rows[] = {
      {{}, "a command is missing\nhint: agentservices --help lists them\n"},
      {{"lint"}, "SERVICE is required\n" + lintHint},
      {{"lint", "s.xml", "--formt=json"},
       "there is no option '--formt'; did you mean '--format'?\n" + lintHint},
      {{"lint", "s.xml", "--frobnicate"}, "there is no option '--frobnicate'\n" + lintHint},
      {{"lint", "--jobs", "0", "s.xml"}, "--jobs: Value 0 not in range 1 to 1000\n" + lintHint},
      {{"--schema", "d", "lint", "s.xml"},
       "there is no option '--schema'; did you mean '--schemas'?\n" + lintHint},
      {{"diff", "a.xml", "b.xml", "c.xml"},
       "'c.xml' is an argument too many\nhint: agentservices diff --help tells what it takes\n"},
      {{"show", "."},
       ".: error: is a directory, not a document\nhint: search it with --recursive\n"},
      {{"report", ".", "-o", "site"},
       ".: error: is a directory, not a document\nhint: search it with --recursive\n"},
      {{"lint", "-r", "."}, "there are no documents *.xml in .\n"},
      {{"import", ".", "-o", "made"}, "there are no sources *.cbl, *.cob, *.cobol or *.pco in .\n"},
      {{"generate", "jav", "s.xml", "-o", "made"},
       "there is no kind 'jav'; did you mean 'java'?\n"},
      {{"report", "s.xml", "--generate", "cobol", "-o", "made"},
       "there is no kind 'cobol'; generate --kinds lists them\n"},
      {{"generate", "java", "s.xml", "--set", "packag=a", "-o", "made"},
       "java has no option 'packag'; did you mean 'package'?\n"}};
  for (const auto& row : rows) {
    const test::ToolOutcome outcome = run(row.call);
    EXPECT_THAT(outcome.err, EndsWith(row.said));
    EXPECT_NE(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "");
  }
}

TEST_F(ToolHelpTest, StandsInLinesOf80Columns) {
  std::vector<std::vector<std::string>> calls = {{"--help"}};
  for (const std::string& command : commands()) calls.push_back({command, "--help"});
  for (const std::vector<std::string>& call : calls) {
    std::istringstream help(run(call).out);
    for (std::string line; std::getline(help, line);) {
      // Examples are to be taken as they are.
      if (line.rfind("  agentservices ", 0) == 0) continue;
      EXPECT_LE(line.size(), 80U) << line;
    }
  }
}

TEST_F(ToolHelpTest, CompletionsAreScripts) {
  write("bash", run({"completion", "bash"}).out);
  EXPECT_EQ(runProgram("/bin/bash", {"-n", "bash"}).err, "");
  EXPECT_THAT(run({"completion", "zsh"}).out, StartsWith("#compdef agentservices\n"));
  EXPECT_EQ(run({"completion", "fish"}).exitCode, 2);
}

// What is told of commands and options, each compared with what is kept: texts change on purpose
// only.
TEST_F(ToolHelpTest, PagesAndCompletionsAreAsTheyWere) {
  ASSERT_EQ(run({"manual", "-o", "man"}).exitCode, 0);
  std::vector<std::string> names = {"agentservices.1"};
  for (const std::string& command : commands()) names.push_back("agentservices-" + command + ".1");
  for (const std::string& name : names) {
    const std::string page = test::contentOf(directory() / "man" / name);
    // The first line has the version and its date.
    test::expectKept("tool/" + name, page.substr(page.find('\n') + 1));
  }
  for (const char* const shell : {"bash", "zsh"}) {
    test::expectKept(std::string("tool/completion.") + shell, run({"completion", shell}).out);
  }
}

// As a shell would offer it, with what is typed so far.
TEST_F(ToolHelpTest, BashOffersWhatThereIs) {
  write("bash", run({"completion", "bash"}).out);
  const auto offered = [this](const std::string& words, int at) {
    return runProgram("/bin/bash", {"-c", "source ./bash; COMP_WORDS=(" + words +
                                              "); COMP_CWORD=" + std::to_string(at) +
                                              "; _agentservices; echo \"${COMPREPLY[*]}\""})
        .out;
  };
  EXPECT_EQ(offered("agentservices va", 1), "validate\n");
  EXPECT_EQ(offered("agentservices --schemas d li", 3), "lint\n");
  EXPECT_EQ(offered("agentservices lint --format ''", 3), "text json sarif\n");
  EXPECT_EQ(offered("agentservices lint --write", 2), "--write-baseline\n");
  EXPECT_EQ(offered("agentservices completion ''", 2), "bash zsh\n");
  EXPECT_EQ(offered("agentservices generate js", 2), "jsonschema\n");
  EXPECT_EQ(offered("agentservices generate xsd ''", 3), "\n");
  EXPECT_EQ(offered("agentservices report --generate csh", 3), "csharp\n");
  EXPECT_EQ(offered("agentservices diff --allow operation-rem", 3), "operation-removed\n");
  EXPECT_EQ(offered("agentservices lint ''", 2), "\n");
  EXPECT_EQ(offered("agentservices lint --baseline ''", 3), "\n");
  for (const std::string& command : commands()) {
    std::istringstream words(offered("agentservices " + command + " -", 2));
    std::set<std::string> options;
    for (std::string word; words >> word;) options.insert(word);
    EXPECT_EQ(options, optionsOf(command)) << command;
  }
}

TEST_F(ToolHelpTest, EveryOptionIsInTheCompletionForZsh) {
  const std::string script = run({"completion", "zsh"}).out;
  for (const std::string& command : commands()) {
    const std::size_t from = script.find("\n        " + command + ") _arguments");
    ASSERT_NE(from, std::string::npos) << command;
    const std::string part = script.substr(from, script.find(" ;;\n", from) - from);
    for (const std::string& option : optionsOf(command)) EXPECT_THAT(part, HasSubstr(option));
  }
}

TEST_F(ToolHelpTest, EveryCommandHasAManualPage) {
  ASSERT_EQ(run({"manual", "-o", "share/man1"}).exitCode, 0);
  EXPECT_THAT(test::contentOf(pathOf("share/man1/agentservices.1")),
              testing::ContainsRegex("^\\.TH AGENTSERVICES 1 \"[0-9]+-[0-9]+-[0-9]+\" \"agents"));
  for (const std::string& command : commands()) {
    const std::string page = test::contentOf(pathOf("share/man1/agentservices-" + command + ".1"));
    EXPECT_THAT(page, HasSubstr("\n.SH NAME\nagentservices\\-" + command + " \\- "));
    EXPECT_THAT(page, HasSubstr("\n.SH EXIT STATUS\n"));
    for (std::string option : optionsOf(command)) {
      for (std::size_t dash = option.find('-'); dash != std::string::npos;
           dash = option.find('-', dash + 2)) {
        option.insert(dash, "\\");
      }
      EXPECT_THAT(page, HasSubstr("\\fB" + option + "\\fR"));
    }
  }
  EXPECT_EQ(run({"manual", "-o", "share/man1/agentservices.1"}).exitCode, 1);
}

}  // namespace

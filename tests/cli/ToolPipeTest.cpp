// Tests that documents may come through pipes, which give them only once: every command answers as
// it does of a file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <ostream>
#include <string>

#include "support/Documents.h"
#include "support/Tool.h"

namespace {

struct PipeRow {
  std::string label;
  std::string document;
  const char* call;  // With DOCUMENT for its name.
};

void PrintTo(const PipeRow& row, std::ostream* out) { *out << row.label; }

class ToolPipe : public test::ToolTest, public testing::WithParamInterface<PipeRow> {
 protected:
  void SetUp() override {
    write("PAY.xml", test::payProgram());
    write("other.xml", test::dictionaryOf("<numeric name='N' digits='4' length='4'/>"));
    write("beside.xml", test::payService(""));
    write("file.xml", GetParam().document);
  }

  // Whatever waits for ever is ended, and has another exit code then.
  test::ToolOutcome runOf(const std::string& document, const std::string& before) const {
    std::string call = GetParam().call;
    const std::string word = "DOCUMENT";
    call.replace(call.find(word), word.size(), document);
    return runProgram("/bin/bash", {"-c", before + "timeout 60 " AS_TOOL " " + call});
  }

  static void expectSame(const test::ToolOutcome& expected, test::ToolOutcome actual,
                         const std::string& name) {
    for (std::string* const text : {&actual.out, &actual.err}) {
      for (std::size_t at = 0; (at = text->find(name, at)) != std::string::npos;) {
        text->replace(at, name.size(), "file.xml");
      }
    }
    EXPECT_EQ(actual.out, expected.out);
    EXPECT_EQ(actual.err, expected.err);
    EXPECT_EQ(actual.exitCode, expected.exitCode);
  }
};

TEST_P(ToolPipe, GivesADocumentByAName) {
  ASSERT_EQ(::mkfifo(pathOf("pipe.xml").c_str(), S_IRUSR | S_IWUSR), 0);
  expectSame(runOf("file.xml", ""), runOf("pipe.xml", "timeout 60 cat file.xml > pipe.xml & "),
             "pipe.xml");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ToolPipe,
    testing::Values(PipeRow{"ShowService", test::payService(""), "show DOCUMENT"},
                    PipeRow{"ShowDictionary", test::payProgram(), "show DOCUMENT"},
                    PipeRow{"ShowSeveral", test::payService(""), "show --jobs 2 PAY.xml DOCUMENT"},
                    PipeRow{"ShowProgram", test::payService(""), "show --program DOCUMENT"},
                    PipeRow{"ShowNothing", "", "show DOCUMENT"},
                    PipeRow{"ValidateService", test::payService(""), "validate DOCUMENT"},
                    PipeRow{"ValidateDictionary", test::payProgram(), "validate DOCUMENT"},
                    PipeRow{"LintService",
                            test::payService("<!-- lint: off no-such-rule -->"
                                             "<operations><operation name='o'/></operations>"),
                            "lint DOCUMENT"},
                    PipeRow{"GenerateService",
                            test::payService("<operations><operation name='o'/></operations>"),
                            "generate markdown DOCUMENT -o made"},
                    PipeRow{"ConvertService", test::payService(""),
                            "convert DOCUMENT --flavour com -o c.xml"},
                    PipeRow{"ConvertSeveral", test::payService(""),
                            "convert DOCUMENT beside.xml --flavour com -o made"},
                    PipeRow{"DiffOfDictionaries", test::payProgram(), "diff other.xml DOCUMENT"},
                    PipeRow{"DiffOfServices", test::payService(""), "diff DOCUMENT file.xml"},
                    PipeRow{"DiffWithService", test::payService(""),
                            "diff PAY.xml other.xml --service DOCUMENT"},
                    PipeRow{"ReportOfDictionary", test::payProgram(), "report DOCUMENT -o site"},
                    PipeRow{"ReportOfService", test::payService(""),
                            "report DOCUMENT --generate markdown -o site"}),
    test::labelOf<PipeRow>);

// What a shell makes of a list of commands in "<(...)" has no name of its own.
class ToolPipeOfShell : public test::ToolTest {};

TEST_F(ToolPipeOfShell, GivesADocument) {
  write("file.xml", test::payService(""));
  const test::ToolOutcome outcome =
      runProgram("/bin/bash", {"-c", "timeout 60 " AS_TOOL " show <(cat file.xml)"});
  EXPECT_EQ(outcome.out, run({"show", "file.xml"}).out);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.exitCode, 0);
}

}  // namespace

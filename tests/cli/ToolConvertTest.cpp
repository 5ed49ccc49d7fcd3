// Tests of the tool's command `convert` as a process: what it says and answers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Requests.h"
#include "support/Tool.h"

namespace {

using test::contentOf;
using testing::HasSubstr;

class ToolConvertTest : public test::ToolTest {
 protected:
  void SetUp() override {
    write("PAY.xml", test::payProgram());
    write("s.xml", test::payService("<operations><operation name='pay' transactionType='never'/>"
                                    "</operations>"));
  }
};

TEST_F(ToolConvertTest, TellsWhatItMadeOfWhatAndWhatIsLost) {
  const test::ToolOutcome outcome = run({"convert", "--flavour", "com", "s.xml", "-o", "out.xml"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out,
            "out.xml: note: service: transactionType has no equivalent in COM services: left out "
            "(1 time)\n"
            "out.xml: Java service made a COM service\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(run({"validate", "out.xml"}).out, "out.xml: ok\n");
}

TEST_F(ToolConvertTest, TakesStandardInput) {
  const test::StandardInput redirected(open(pathOf("s.xml").c_str(), O_RDONLY));
  EXPECT_EQ(run({"convert", "-q", "--flavour", "com", "-", "-o", "out.xml"}).exitCode, 0);
  EXPECT_EQ(run({"lint", "-q", "--rule", "unbound-operation=off", "out.xml"}).out, "");
}

TEST_F(ToolConvertTest, KeepsCommentsToLint) {
  write("s.xml", "<!-- lint: off unmapped-field -->\n" +
                     test::payService("<operations><!-- lint: off unbound-operation --><operation "
                                      "name='pay'><parameters><parameter name='p' dataType='int'/>"
                                      "</parameters></operation></operations>"));
  ASSERT_EQ(run({"lint", "-q", "s.xml"}).out, "");
  ASSERT_EQ(run({"convert", "--flavour", "com", "s.xml", "-o", "out.xml"}).exitCode, 0);
  EXPECT_EQ(run({"lint", "-q", "out.xml"}).out, "");
}

TEST_F(ToolConvertTest, ARefusalIsToldAndChangesNothing) {
  const test::ToolOutcome outcome = run({"convert", "--flavour", "com", "s.xml", "-o", "PAY.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr("PAY.xml: error: this is the dictionary\nhint: "));
  EXPECT_EQ(contentOf(pathOf("PAY.xml")), test::payProgram());
}

// What one document is converted with is not written over by another one in front of it.
TEST_F(ToolConvertTest, NoServiceTakesThePlaceOfADictionaryThatAnotherNames) {
  write("a.xml", test::payService(""));
  write("b.xml", test::javaService("dataDictFilename='out/a.xml'", ""));
  write("out/a.xml", test::payProgram());
  const test::ToolOutcome outcome =
      run({"convert", "--flavour", "ws", "a.xml", "b.xml", "-o", "out"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err,
            "agentservices: error: what is made of a.xml would take the place of out/a.xml, which "
            "b.xml names\n");
  EXPECT_EQ(contentOf(pathOf("out/a.xml")), test::payProgram());
}

TEST_F(ToolConvertTest, OtherFilesInTheFolderAreReplaced) {
  write("PAY.xml", test::payProgram());
  write("a.xml", test::payService(""));
  write("b.xml", test::payService(""));
  write("bad.xml", "<service");
  write("out/a.xml", test::payProgram());
  const test::ToolOutcome outcome =
      run({"convert", "--flavour", "ws", "bad.xml", "a.xml", "b.xml", "-o", "out"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, testing::StartsWith("bad.xml:1:"));
  EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1);
  EXPECT_THAT(contentOf(pathOf("out/a.xml")), HasSubstr("<service"));
  EXPECT_THAT(contentOf(pathOf("out/b.xml")), HasSubstr("<service"));
}

TEST_F(ToolConvertTest, AFileThatCannotBeWrittenIsTold) {
  const test::ToolOutcome outcome =
      run({"convert", "--flavour", "com", "s.xml", "-o", "missing/out.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err,
            "agentservices: error: missing/out.xml cannot be written: No such file or directory\n");
}

TEST_F(ToolConvertTest, WrongCallsAreExplained) {
  const struct {
    std::vector<std::string> arguments;
    const char* text;
  } rows[] = {
      {{"convert", "s.xml", "-o", "out.xml"}, "--flavour is required"},
      {{"convert", "--flavour", "xd", "s.xml", "-o", "out.xml"}, "com,dotnet,java,ws"},
      {{"convert", "--flavour", "ws", "s.xml"}, "--output is required"},
      {{"convert", "--flavour", "ws", "-o", "out.xml"}, "SERVICE is required"},
  };
  for (const auto& row : rows) {
    const test::ToolOutcome outcome = run(row.arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, HasSubstr(row.text));
  }
}

}  // namespace

// Tests of the tool's lint command: its options, streams and exit codes. What lint finds is tested
// with the toolkit.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/Documents.h"
#include "support/Tool.h"

namespace {

using testing::IsEmpty;

class ToolLintTest : public test::ToolTest {
 protected:
  // A service with an operation that has such parameters, and its program.
  void writeService(const std::string& parameters) const {
    write("PAY.xml", test::payProgram());
    write("s.xml", test::payService("<operations><operation name='pay' entryPoint='PAY'>"
                                    "<parameters>" +
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
            "s.xml: error: pay.q: PAYROLL has no data item 'REQ.IDX'; did you mean 'REQ.ID'?\n"
            "s.xml: warning: pay.r: it is mapped to no data item; add a mapping or remove it\n"
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

TEST_F(ToolLintTest, NeedsOneService) {
  EXPECT_EQ(run({"lint"}).exitCode, 2);
  EXPECT_EQ(run({"lint", "a.xml", "b.xml"}).exitCode, 2);
}

}  // namespace

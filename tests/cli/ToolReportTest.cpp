// Tests of the tool's report command: its options, streams and exit codes. What reports hold is
// tested with the toolkit.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/Documents.h"
#include "support/Tool.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class ToolReportTest : public test::ToolTest {};

TEST_F(ToolReportTest, WritesASite) {
  write("PAY.xml", test::payProgram());
  const test::ToolOutcome outcome = run({"report", "PAY.xml", "-o", "site"});
  EXPECT_EQ(outcome.out, "site/index.html: 1 program, 0 services, 0 findings\n");
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_TRUE(std::filesystem::exists(directory() / "site" / "index.html"));
  EXPECT_TRUE(std::filesystem::exists(directory() / "site" / "data" / "d1.js"));
}

TEST_F(ToolReportTest, ShowsWhatIsGoodAndTellsWhatIsNot) {
  write("PAY.xml", test::payProgram());
  const test::ToolOutcome outcome = run({"report", "none.xml", "PAY.xml", "-o", "site"});
  EXPECT_THAT(outcome.err, StartsWith("none.xml: error: cannot be read"));
  EXPECT_THAT(outcome.out, HasSubstr("1 program"));
  EXPECT_EQ(outcome.exitCode, 1);
}

TEST_F(ToolReportTest, FoldersAreSearched) {
  std::filesystem::create_directories(directory() / "all" / "deep");
  write("all/PAY.xml", test::payProgram());
  write("all/deep/PAY.xml", test::payProgram());
  const test::ToolOutcome outcome = run({"report", "--recursive", "all", "-o", "site"});
  EXPECT_EQ(outcome.out, "site/index.html: 2 programs, 0 services, 0 findings\n");
  EXPECT_EQ(outcome.exitCode, 0);
}

TEST_F(ToolReportTest, NothingGoodIsNoSite) {
  EXPECT_EQ(run({"report", "none.xml", "-o", "site"}).exitCode, 1);
  EXPECT_FALSE(std::filesystem::exists(directory() / "site"));
}

TEST_F(ToolReportTest, NeedsAFolder) { EXPECT_EQ(run({"report", "PAY.xml"}).exitCode, 2); }

TEST_F(ToolReportTest, MakesWhatCallersNeed) {
  const test::ToolOutcome outcome =
      run({"report", AS_EXAMPLES_DIR "/PAYSLIP-ws.xml", "--generate", "wsdl,java", "-o", "site"});
  EXPECT_EQ(outcome.out, "site/index.html: 1 program, 1 service, 0 findings, 1 file for callers\n");
  EXPECT_TRUE(std::filesystem::exists(directory() / "site" / "made/s1/wsdl/Payslip.wsdl"));
}

TEST_F(ToolReportTest, KindsThatThereAreNotAreTold) {
  const test::ToolOutcome outcome = run({"report", "PAY.xml", "--generate", "wsld", "-o", "site"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, HasSubstr("there is no kind 'wsld'"));
}

}  // namespace

// Tests of what lint takes for the storage that an entry point is called with: records that
// redefine another one are the same storage.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "as/toolkit/Lint.h"
#include "support/Documents.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using testing::ElementsAre;
using testing::IsEmpty;

class LintStorage : public test::ToolkitTest {
 protected:
  // What is found when the entry point is called with one item and a parameter is mapped to another
  // of A, B and C, which redefine A, and D.
  std::vector<std::string> found(const std::string& calledWith, const std::string& mapped) const {
    const auto item = [](const std::string& name, const std::string& more) {
      return "<alphanumeric name='" + name + "' length='1' picture='X' linkage='true'" + more +
             "/>";
    };
    write("P.xml",
          test::dictionary("<dataItems>" + item("A", "") + item("B", " redefines='true'") +
                           item("C", " redefines='true'") + item("D", "") +
                           "</dataItems><entryPoints><entryPoint name='E'><parameter "
                           "dataItem='" +
                           calledWith + "' byType='reference'/></entryPoint></entryPoints>"));
    write("s.xml",
          test::javaService(
              "name='S' implementation='java' programName='PAYROLL' "
              "dataDictFilename='P.xml'",
              "<operations><operation name='o' entryPoint='E'><parameters><parameter "
              "name='p' dataType='String'><mappings><mapping item='" +
                  mapped + "'/></mappings></parameter></parameters></operation></operations>"));
    std::vector<std::string> problems;
    for (const toolkit::Finding& finding : toolkit::lintFile(reader(), "s.xml")) {
      problems.push_back(finding.problem);
    }
    return problems;
  }
};

TEST_F(LintStorage, ARecordIsItself) { EXPECT_THAT(found("A", "A"), IsEmpty()); }

TEST_F(LintStorage, ARecordIsEveryOneThatRedefinesIt) {
  EXPECT_THAT(found("A", "B"), IsEmpty());
  EXPECT_THAT(found("A", "C"), IsEmpty());
}

TEST_F(LintStorage, ARecordThatRedefinesIsTheOneInFront) {
  EXPECT_THAT(found("B", "A"), IsEmpty());
  EXPECT_THAT(found("C", "B"), IsEmpty());
}

TEST_F(LintStorage, ARecordIsNoOther) {
  EXPECT_THAT(found("A", "D"), ElementsAre("D is nothing that entry point 'E' is called with"));
  EXPECT_THAT(found("D", "C"), ElementsAre("A is nothing that entry point 'E' is called with"));
}

}  // namespace

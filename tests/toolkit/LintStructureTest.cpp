// Tests of what lint says of the data types of structures: they need none, but one that is written
// is looked at.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using testing::ElementsAre;
using testing::IsEmpty;

class LintStructure : public test::ToolkitTest {
 protected:
  // Of a parameter with a field, and with those attributes.
  std::vector<std::string> findings(const std::string& attributes) const {
    write("PAY.xml", test::payProgram());
    write("s.xml",
          test::webService(
              "name='S' implementation='ws' programName='PAYROLL' dataDictFilename='PAY.xml'",
              "<operations><operation name='ask' entryPoint='PAY' style='document' "
              "inputUse='literal' outputUse='literal' inputNamespace='urn:i' "
              "outputNamespace='urn:o'><parameters><parameter name='p' byType='in' " +
                  attributes +
                  "><field name='id' dataType='int'><mappings><mapping item='REQ.ID'/></mappings>"
                  "</field></parameter></parameters></operation></operations>"));
    return test::textsOf(toolkit::lintFile(reader(), "s.xml"));
  }
};

TEST_F(LintStructure, NeedsNoDataType) { EXPECT_THAT(findings(""), IsEmpty()); }

TEST_F(LintStructure, IsToldOfADataTypeThatThereIsNot) {
  EXPECT_THAT(findings("dataType='Int16'"),
              ElementsAre("ask.p: data type 'Int16' is unknown; use a word of Web services"));
}

}  // namespace

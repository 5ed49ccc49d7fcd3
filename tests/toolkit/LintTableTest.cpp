// Tests of how lint compares the tables of a field with those of its item.
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

class LintTable : public test::ToolkitTest {
 protected:
  // What is found in a field of a parameter, which occur so often, mapped to one of the items of
  // payProgram(): LINE occurs 3 times, CELL twice in each.
  std::vector<std::string> found(int parameterOccurs, int fieldOccurs, const std::string& mapping,
                                 const std::string& program = test::payProgram()) const {
    write("PAY.xml", program);
    write("s.xml",
          test::payService("<operations><operation name='pay' entryPoint='PAY'><parameters>"
                           "<parameter name='p' occurs='" +
                           std::to_string(parameterOccurs) + "'><field name='f' occurs='" +
                           std::to_string(fieldOccurs) +
                           "' dataType='BigDecimal'><mappings><mapping " + mapping +
                           "/></mappings></field></parameter></parameters></operation>"
                           "</operations>"));
    std::vector<std::string> problems;
    for (const toolkit::Finding& finding : toolkit::lintFile(reader(), "s.xml")) {
      problems.push_back(finding.problem);
    }
    return problems;
  }
};

TEST_F(LintTable, AsManyAsTheItemsOpenOnesAreGood) {
  EXPECT_THAT(found(3, 1, "item='REQ.LINE.AMOUNT(*)' subscript='*'"), IsEmpty());
  EXPECT_THAT(found(1, 3, "item='REQ.LINE.AMOUNT(*)' subscript='*'"), IsEmpty());
  EXPECT_THAT(found(3, 2, "item='REQ.LINE.CELL(*,*)' subscript='*,*'"), IsEmpty());
}

TEST_F(LintTable, OneMoreThanTheOpenOnesIsTooMany) {
  EXPECT_THAT(found(3, 2, "item='REQ.LINE.AMOUNT(*)' subscript='*'"),
              ElementsAre("the field stands in 2 tables, the item in 1 open one"));
}

TEST_F(LintTable, AnOccurrenceOfTheInterfaceIsATableThatIsThere) {
  EXPECT_THAT(found(3, 2, "item='REQ.LINE.CELL(*,1)' subscript='*,1'"), IsEmpty());
  EXPECT_THAT(found(3, 2, "item='REQ.LINE.CELL(1,2)' subscript='1,2'"), IsEmpty());
}

TEST_F(LintTable, ATableOfOneOccurrenceNeedsNoneOnTheOtherSide) {
  std::string program = test::payProgram();
  const std::string twice = "minOccurs=\"2\" maxOccurs=\"2\"";
  program.replace(program.find(twice), twice.size(), "minOccurs=\"1\" maxOccurs=\"1\"");
  EXPECT_THAT(found(3, 1, "item='REQ.LINE.CELL(*,*)' subscript='*,*'", program), IsEmpty());
  EXPECT_THAT(found(1, 1, "item='REQ.LINE.CELL(1,*)' subscript='1,*'", program), IsEmpty());
}

TEST_F(LintTable, OneFewerThanTheOpenOnesIsTooFew) {
  EXPECT_THAT(found(3, 1, "item='REQ.LINE.CELL(*,*)' subscript='*,*'"),
              ElementsAre("all occurrences in 2 tables are mapped to 1 table of fields"));
  EXPECT_THAT(found(1, 1, "item='REQ.LINE.AMOUNT(*)' subscript='*'"),
              ElementsAre("all occurrences in 1 table are mapped to a single field"));
}

}  // namespace

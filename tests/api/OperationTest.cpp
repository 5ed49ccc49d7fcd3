// Tests of the attributes of a service's operations.
#include <gtest/gtest.h>

#include <climits>
#include <ostream>
#include <string>

#include "support/Labels.h"
#include "support/Model.h"
#include "support/ParsedOperation.h"
#include "support/Requests.h"

namespace {

using test::labelOf;
using test::operationOf;
using test::ParsedOperation;
using test::parseService;

TEST(Operation, NameIsTheAttribute) {
  EXPECT_EQ(ParsedOperation("name='Pay &lt;1&gt;'")->getName(), "Pay <1>");
}

TEST(Operation, NameIsEmptyWhenAbsent) { EXPECT_EQ(ParsedOperation("")->getName(), ""); }

TEST(Operation, NameIsWritten) {
  const ParsedOperation operation("name='A' entryPoint='PAY'");
  operation->setName("B");
  EXPECT_EQ(operation->getName(), "B");
  EXPECT_EQ(operation->getAttributeValue("name"), "B");
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "PAY");
}

TEST(Operation, NullNameIsWrittenAsEmpty) {
  const ParsedOperation operation("name='A'");
  operation->setName(nullptr);
  EXPECT_EQ(operation->getName(), "");
  EXPECT_NE(operation.text().find("<operation name=\"\""), std::string::npos) << operation.text();
}

struct ExitPointsRead {
  const char* label;
  const char* attributes;
  int count;
};

void PrintTo(const ExitPointsRead& row, std::ostream* out) { *out << row.attributes; }

class OperationExitPointsRead : public testing::TestWithParam<ExitPointsRead> {};

TEST_P(OperationExitPointsRead, IsTheNumber) {
  EXPECT_EQ(ParsedOperation(GetParam().attributes)->getExitPoints(), GetParam().count);
}

INSTANTIATE_TEST_SUITE_P(
    Attributes, OperationExitPointsRead,
    testing::Values(ExitPointsRead{"absent", "", 0}, ExitPointsRead{"zero", "exitPoints='0'", 0},
                    ExitPointsRead{"small", "exitPoints='3'", 3},
                    ExitPointsRead{"leadingZeros", "exitPoints='0012'", 12},
                    ExitPointsRead{"greatestInt", "exitPoints='2147483647'", INT_MAX},
                    ExitPointsRead{"oneMore", "exitPoints='2147483648'", INT_MAX},
                    ExitPointsRead{"greatest", "exitPoints='4294967295'", INT_MAX}),
    labelOf<ExitPointsRead>);

struct ExitPointsWritten {
  unsigned int count;
  const char* text;
  int read;
};

void PrintTo(const ExitPointsWritten& row, std::ostream* out) { *out << row.text; }

class OperationExitPointsWritten : public testing::TestWithParam<ExitPointsWritten> {};

TEST_P(OperationExitPointsWritten, IsDecimal) {
  const ParsedOperation operation("exitPoints='7'");
  operation->setExitPoints(GetParam().count);
  EXPECT_EQ(operation->getAttributeValue("exitPoints"), GetParam().text);
}

TEST_P(OperationExitPointsWritten, IsReadAsTheNearestInt) {
  const ParsedOperation operation("");
  operation->setExitPoints(GetParam().count);
  EXPECT_EQ(operation->getExitPoints(), GetParam().read);
}

TEST_P(OperationExitPointsWritten, IsValid) {
  const ParsedOperation operation("");
  operation->setExitPoints(GetParam().count);
  const auto again = parseService(operation.text());
  EXPECT_EQ(operationOf(*again)->getAttributeValue("exitPoints"), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Numbers, OperationExitPointsWritten,
                         testing::Values(ExitPointsWritten{0, "0", 0}, ExitPointsWritten{3, "3", 3},
                                         ExitPointsWritten{2147483647U, "2147483647", INT_MAX},
                                         ExitPointsWritten{2147483648U, "2147483648", INT_MAX},
                                         ExitPointsWritten{4294967295U, "4294967295", INT_MAX}),
                         [](const auto& value) { return std::string(value.param.text); });

}  // namespace

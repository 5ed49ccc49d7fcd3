// Tests of the entry point that an operation is bound to.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/ParsedOperation.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::javaService;
using test::labelOf;
using test::operationOf;
using test::ParsedOperation;
using test::parseService;
using test::TempDirectory;

// A program with the entry points PAY, REFUND, PAY again and BONUS.
std::string entryPointProgram() {
  return test::dictionary(
      "<entryPoints><entryPoint name='PAY' callConvention='1'/><entryPoint name='REFUND'/>"
      "<entryPoint name='PAY' callConvention='2'/><entryPoint name='BONUS'/></entryPoints>");
}

// A service with one operation whose program has those entry points.
class Bound {
 public:
  explicit Bound(const std::string& attributes) {
    const TempDirectory directory;
    const std::string file = directory.write("PAY.xml", entryPointProgram());
    service_ = parseService(javaService("implementation='java' dataDictFilename='" + file + "'",
                                        "<operations><operation " + attributes + "/></operations>"),
                            true);
  }

  as::IOperation* operator->() const { return operationOf(*service_); }
  as::IEntryPoint* entryPoint(int index) const {
    return test::entryPointOf(*service_->getProgram(), index);
  }

 private:
  std::unique_ptr<as::IService> service_;
};

struct LookUp {
  const char* label;
  const char* attributes;
  int index;  // -1 for none.
};

void PrintTo(const LookUp& row, std::ostream* out) { *out << row.attributes; }

class OperationEntryPoint : public testing::TestWithParam<LookUp> {};

TEST_P(OperationEntryPoint, IsTheFirstOfThatName) {
  const Bound operation(GetParam().attributes);
  ASSERT_NE(operation.entryPoint(3), nullptr);
  EXPECT_EQ(operation->getEntryPoint(),
            GetParam().index < 0 ? nullptr : operation.entryPoint(GetParam().index));
}

TEST_P(OperationEntryPoint, IsNullWithoutProgram) {
  EXPECT_EQ(ParsedOperation(GetParam().attributes)->getEntryPoint(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Names, OperationEntryPoint,
                         testing::Values(LookUp{"firstOfDuplicates", "entryPoint='PAY'", 0},
                                         LookUp{"second", "entryPoint='REFUND'", 1},
                                         LookUp{"last", "entryPoint='BONUS'", 3},
                                         LookUp{"otherCase", "entryPoint='pay'", -1},
                                         LookUp{"start", "entryPoint='PA'", -1},
                                         LookUp{"longer", "entryPoint='PAYS'", -1},
                                         LookUp{"blankBehind", "entryPoint='PAY '", -1},
                                         LookUp{"blankInFront", "entryPoint=' PAY'", -1},
                                         LookUp{"unknown", "entryPoint='OTHER'", -1},
                                         LookUp{"empty", "entryPoint=''", -1},
                                         LookUp{"absent", "name='PAY'", -1}),
                         labelOf<LookUp>);

TEST(OperationBinding, WritesTheName) {
  const Bound operation("");
  EXPECT_TRUE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "REFUND");
  EXPECT_EQ(operation->getEntryPoint(), operation.entryPoint(1));
}

TEST(OperationBinding, ToASecondOfItsNameFindsTheFirst) {
  const Bound operation("");
  EXPECT_TRUE(operation->setEntryPoint(operation.entryPoint(2)));
  EXPECT_EQ(operation->getEntryPoint(), operation.entryPoint(0));
}

TEST(OperationBinding, RefusesToBindAgain) {
  const Bound operation("");
  ASSERT_TRUE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_FALSE(operation->setEntryPoint(operation.entryPoint(3)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "REFUND");
}

TEST(OperationBinding, RefusesTheSameAgain) {
  const Bound operation("");
  ASSERT_TRUE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_FALSE(operation->setEntryPoint(operation.entryPoint(1)));
}

TEST(OperationBinding, RefusesWhenTheDocumentBindsIt) {
  const Bound operation("entryPoint='PAY'");
  EXPECT_FALSE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "PAY");
}

TEST(OperationBinding, ReplacesANameThatIsNotFound) {
  const Bound operation("entryPoint='OTHER'");
  EXPECT_TRUE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "REFUND");
}

TEST(OperationBinding, RefusesNull) {
  const Bound operation("entryPoint='OTHER'");
  EXPECT_FALSE(operation->setEntryPoint(nullptr));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "OTHER");
}

TEST(OperationBinding, NullAddsNoAttribute) {
  const ParsedOperation operation("name='A'");
  EXPECT_FALSE(operation->setEntryPoint(nullptr));
  EXPECT_EQ(operation.text().find("entryPoint"), std::string::npos) << operation.text();
}

// The entry point of another program, with a name that the service's own does not know.
TEST(OperationBinding, ToAnUnknownNameIsWrittenAndNotFound) {
  const auto other =
      test::parse(test::dictionary("<entryPoints><entryPoint name='OTHER'/></entryPoints>"));
  const Bound operation("");
  EXPECT_TRUE(operation->setEntryPoint(test::entryPointOf(*other)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "OTHER");
  EXPECT_EQ(operation->getEntryPoint(), nullptr);
}

TEST(OperationBinding, ToAnUnknownNameCanBeReplaced) {
  const auto other =
      test::parse(test::dictionary("<entryPoints><entryPoint name='OTHER'/></entryPoints>"));
  const Bound operation("");
  ASSERT_TRUE(operation->setEntryPoint(test::entryPointOf(*other)));
  EXPECT_TRUE(operation->setEntryPoint(operation.entryPoint(1)));
  EXPECT_EQ(operation->getEntryPoint(), operation.entryPoint(1));
}

TEST(OperationBinding, WithoutProgramSucceedsEveryTime) {
  const auto program = test::parse(entryPointProgram());
  const ParsedOperation operation("entryPoint='PAY'");
  EXPECT_TRUE(operation->setEntryPoint(test::entryPointOf(*program, 1)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "REFUND");
  EXPECT_TRUE(operation->setEntryPoint(test::entryPointOf(*program, 3)));
  EXPECT_EQ(operation->getAttributeValue("entryPoint"), "BONUS");
}

}  // namespace

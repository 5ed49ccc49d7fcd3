// Tests of the documents that are measured: a figure is worth something only if they are what they
// are said to be.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <set>
#include <string>

#include "Bare.h"
#include "Documents.h"
#include "Folder.h"
#include "Services.h"
#include "WholeJob.h"
#include "as/AgentServices.h"

namespace {

class SizeTest : public testing::TestWithParam<long> {};

TEST_P(SizeTest, DictionariesHaveSoManyItems) {
  const std::unique_ptr<as::IProgram> program =
      bench::parseDictionary(bench::dictionary(GetParam()));
  EXPECT_EQ(bench::readEverything(*program).items, GetParam());
}

TEST_P(SizeTest, FlatDictionariesHaveSoManyTopLevelItems) {
  const std::unique_ptr<as::IProgram> program =
      bench::parseDictionary(bench::flatDictionary(GetParam()));
  EXPECT_EQ(program->getDataItems()->getLength(), GetParam());
}

TEST_P(SizeTest, EveryMappingOfAServiceLeadsToAnItem) {
  for (const bench::Flavour* const flavour : {&bench::java, &bench::web}) {
    const bench::Folder folder;
    const std::string dictionary =
        folder.write("program.xml", bench::recordsAndEntries(GetParam()));
    const std::unique_ptr<as::IService> service = bench::loadServiceFile(
        folder.write("service.xml", bench::service(*flavour, GetParam(), dictionary)));
    EXPECT_EQ(service->getOperations()->getLength(), GetParam());
    EXPECT_EQ(bench::resolveMappings(*service), GetParam() * bench::mappingsOf(*flavour));
  }
}

TEST_P(SizeTest, SpreadMappingsLeadToTopLevelItems) {
  const bench::Folder folder;
  const std::string dictionary = folder.write("program.xml", bench::flatDictionary(GetParam()));
  const std::unique_ptr<as::IService> service = bench::loadServiceFile(
      folder.write("service.xml", bench::spreadMappings(10, GetParam(), dictionary)));
  EXPECT_EQ(bench::resolveMappings(*service), 10);
}

INSTANTIATE_TEST_SUITE_P(Sizes, SizeTest, testing::Values(10, 50, 200));

TEST(BenchDocuments, HaveItemsOfEveryCommonKindWithConditionsAndTables) {
  const std::unique_ptr<as::IProgram> program = bench::parseDictionary(bench::dictionary(10));
  auto* const record = as::interface_cast<as::IGroup>(program->getDataItems()->getItem(0));
  std::set<int> kinds;
  int conditions = 0;
  int tables = 0;
  as::IList* const items = record->getChildren();
  for (int i = 0; i < items->getLength(); i++) {
    auto* const item = as::interface_cast<as::IDataItem>(items->getItem(i));
    kinds.insert(item->getDataType());
    conditions += item->getConditions()->getLength();
    if (item->getODO() != nullptr) tables++;
  }
  EXPECT_EQ(kinds,
            (std::set<int>{as::IDataItem::TYPE_NUMERIC, as::IDataItem::TYPE_ALPHANUMERIC,
                           as::IDataItem::TYPE_NATIONAL, as::IDataItem::TYPE_NUMERIC_EDITED}));
  EXPECT_EQ(conditions, 1);
  EXPECT_EQ(tables, 1);
}

TEST(BenchDocuments, WebServicesHaveAHeaderAndAFaultInEachOperation) {
  const std::unique_ptr<as::IService> service =
      bench::parseServiceText(bench::service(bench::web, 1, "PROGRAM.xml"));
  auto* const operation =
      as::interface_cast<as::IWSOperation>(service->getOperations()->getItem(0));
  ASSERT_NE(operation, nullptr);
  EXPECT_EQ(operation->getHeaders()->getLength(), 1);
  EXPECT_EQ(operation->getFaults()->getLength(), 1);
}

TEST(Bare, RefusesWhatIsNotValid) {
  EXPECT_THROW(bench::parseBare("<program xmlns='http://agentservices.example/schema/cobol/v2.0/"
                                "vorcobol.xsd'/>",
                                "vorcobol.xsd", bench::Blanks::kept),
               std::runtime_error);
}

TEST(WholeJob, ReadsAllThatTheRecordsSay) {
  const bench::Reading read = bench::jobOfOurs(bench::dictionary(10));
  EXPECT_EQ(read.items, 10);
  EXPECT_EQ(read.flags, 1);
  // Lengths and offsets, digits, decimals, and the occurrences of the table.
  EXPECT_EQ(read.numbers, (83 + 0 + 0) + (8 + 8 + 0) + (4 * 10 + 8 + 18 + 28 + 38) + (20 + 48) +
                              (10 + 9 + 68) + (1 + 1 + 78) + (5 + 9 + 2 + 1 + 10 + 79));
  EXPECT_EQ(read.characters, std::strlen("RECORD-0"
                                         "KEY"
                                         "9(8)"
                                         "TITLE"
                                         "N(10)"
                                         "SHOWN"
                                         "Z(6)9.99"
                                         "STATE"
                                         "9"
                                         "CLOSED"
                                         "9"
                                         "AMOUNT"
                                         "S9(7)V99"
                                         "RECORD-0.STATE") +
                                 4 * std::strlen("FIELD-0"
                                                 "X(10)"));
}

}  // namespace

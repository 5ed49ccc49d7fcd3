// Tests of the files of a program and their records.
#include <gtest/gtest.h>

#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::dictionary;
using test::itemOf;
using test::parse;
using test::topItem;

TEST(File, HasAName) {
  const auto program = parse(dictionary("<fileSection><fd name='MASTER-FILE'/></fileSection>"));
  auto* const file = itemOf<as::IFD>(program->getFileSection(), 0);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->getName(), "MASTER-FILE");
}

TEST(File, AccessModeAndOrganizationAreFixedWhateverTheAttributesSay) {
  for (const char* mode : {"", "sequential", "random", "dynamic"}) {
    for (const char* organization : {"", "sequential", "relative", "indexed", "lineSequential"}) {
      SCOPED_TRACE(std::string(mode) + " " + organization);
      std::string attributes;
      if (*mode != '\0') attributes += std::string(" accessMode='") + mode + "'";
      if (*organization != '\0') {
        attributes += std::string(" organization='") + organization + "'";
      }
      const auto program =
          parse(dictionary("<fileSection><fd name='F'" + attributes + "/></fileSection>"));
      auto* const file = itemOf<as::IFD>(program->getFileSection(), 0);
      EXPECT_EQ(file->getAccessMode(), 1);
      EXPECT_EQ(file->getOrganization(), 0);
      EXPECT_EQ(file->getAttributeValue("accessMode"), mode);
      EXPECT_EQ(file->getAttributeValue("organization"), organization);
    }
  }
}

TEST(File, DataItemsAreNullWhenAbsent) {
  const auto program = parse(dictionary("<fileSection><fd name='F'/></fileSection>"));
  EXPECT_EQ(itemOf<as::IFD>(program->getFileSection(), 0)->getDataItems(), nullptr);
}

TEST(File, DataItemsAreAnEmptyListWhenEmpty) {
  const auto program =
      parse(dictionary("<fileSection><fd name='F'><dataItems/></fd></fileSection>"));
  as::IList* const records = itemOf<as::IFD>(program->getFileSection(), 0)->getDataItems();
  ASSERT_NE(records, nullptr);
  EXPECT_EQ(records->getLength(), 0);
}

TEST(File, HoldsItsRecordsInDocumentOrder) {
  const auto program =
      parse(dictionary("<fileSection>"
                       "<fd name='F'><dataItems><group name='R1'><numeric name='N'/></group>"
                       "<alphanumeric name='R2'/></dataItems></fd>"
                       "<fd name='G'><dataItems><group name='R3'/></dataItems></fd>"
                       "</fileSection>"));
  as::IList* const records = itemOf<as::IFD>(program->getFileSection(), 0)->getDataItems();
  ASSERT_EQ(records->getLength(), 2);
  EXPECT_EQ(itemOf<as::IDataItem>(records, 0)->getName(), "R1");
  EXPECT_EQ(itemOf<as::IDataItem>(records, 1)->getName(), "R2");
  as::IList* const fields = itemOf<as::IGroup>(records, 0)->getChildren();
  ASSERT_EQ(fields->getLength(), 1);
  EXPECT_EQ(itemOf<as::INumeric>(fields, 0)->getName(), "N");
  as::IList* const others = itemOf<as::IFD>(program->getFileSection(), 1)->getDataItems();
  ASSERT_EQ(others->getLength(), 1);
  EXPECT_EQ(itemOf<as::IDataItem>(others, 0)->getName(), "R3");
}

TEST(File, RecordsAreNoItemsOfTheProgram) {
  const auto program =
      parse(dictionary("<fileSection><fd name='F'><dataItems><group name='R'/></dataItems></fd>"
                       "</fileSection><dataItems><numeric name='N'/></dataItems>"));
  ASSERT_EQ(program->getDataItems()->getLength(), 1);
  EXPECT_EQ(topItem<as::IDataItem>(*program)->getName(), "N");
}

}  // namespace

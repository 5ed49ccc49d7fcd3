// Tests of words for numbers of models, which may be others than this version knows.
#include <gtest/gtest.h>

#include "as/IDataItem.h"
#include "toolkit/text/Words.h"

namespace {

using as::toolkit::dataTypeWord;

TEST(CodeWords, AreThoseOfTheModel) {
  EXPECT_EQ(dataTypeWord(as::IDataItem::TYPE_GROUP), "group");
  EXPECT_EQ(dataTypeWord(as::IDataItem::TYPE_INDEX), "index");
}

TEST(CodeWords, AreUnknownForOtherNumbers) {
  for (const int code : {-1, 9, 1000}) EXPECT_EQ(dataTypeWord(code), "unknown") << code;
}

}  // namespace

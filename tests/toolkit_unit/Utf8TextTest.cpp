// Tests of characters of UTF-8 that are not to be cut.
#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <string_view>

#include "toolkit/text/Utf8Text.h"

namespace {

using as::toolkit::beginningOf;

TEST(Utf8Text, IsCutBetweenCharacters) {
  // A letter, one of two bytes, one of three and one of four.
  const std::string text = "a\u00e4\u20ac\U0001F600";
  const std::size_t ends[] = {0, 1, 1, 3, 3, 3, 6, 6, 6, 6, 10, 10};
  for (std::size_t most = 0; most < std::size(ends); most++) {
    SCOPED_TRACE(most);
    EXPECT_EQ(beginningOf(text, most), std::string_view(text).substr(0, ends[most]));
  }
}

// What is no UTF-8 is cut somewhere.
TEST(Utf8Text, OfBytesThatBeginNoCharacterIsCutToNothing) {
  EXPECT_EQ(beginningOf("\x80\x80\x80", 2), "");
  EXPECT_EQ(beginningOf("\x80\x80\x80", 3), "\x80\x80\x80");
}

}  // namespace

// Tests of texts of a source as findings show them.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "toolkit/import/SourceReport.h"

namespace {

// The standard library has a function of that name, too.
std::string shown(std::string_view text) { return as::toolkit::quoted(text); }

TEST(QuotedText, HasSixtyBytesAtMost) {
  const std::string sixty(60, 'A');
  EXPECT_EQ(shown(""), "\"\"");
  EXPECT_EQ(shown(sixty), "\"" + sixty + "\"");
  EXPECT_EQ(shown(sixty + "B"), "\"" + sixty + "...\"");
}

TEST(QuotedText, EndsBehindACharacter) {
  const std::string some(58, 'A');
  EXPECT_EQ(shown(some + "\xC3\xA4" + "B"), "\"" + some + "\xC3\xA4...\"");
  EXPECT_EQ(shown(some + "B\xC3\xA4"), "\"" + some + "B...\"");
  EXPECT_EQ(shown(some + "\xE6\x97\xA5"), "\"" + some + "...\"");
  EXPECT_EQ(shown(std::string(61, '\x80')), "\"...\"");
}

}  // namespace

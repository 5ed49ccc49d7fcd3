// Tests of the sources that reports show: which file is found, and which bytes are text.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "support/TempDirectory.h"
#include "toolkit/report/ReportSource.h"

namespace as::toolkit {
namespace {

class ReportSourceTest : public testing::Test {
 protected:
  // The first line of a source with that content.
  std::string lineOf(const std::string& content) const {
    directory_.write("in/T.cbl", content);
    const std::optional<ReportSource> source = findSource("T.cbl", {"in"});
    EXPECT_TRUE(source);
    return source && !source->lines.empty() ? source->lines.front() : "";
  }

  const test::CurrentDirectory directory_;
};

TEST_F(ReportSourceTest, IsInTheFirstFolderThatHasIt) {
  directory_.write("one/T.cbl", "1");
  directory_.write("two/T.cbl", "2");
  directory_.write("two/U.cbl", "2");
  EXPECT_EQ(findSource("T.cbl", {"none", "one", "two"})->lines.front(), "1");
  EXPECT_EQ(findSource("far/away/U.cbl", {"none", "one", "two"})->lines.front(), "2");
  EXPECT_EQ(findSource("V.cbl", {"one", "two"}), std::nullopt);
}

TEST_F(ReportSourceTest, IsARegularFileOfAName) {
  directory_.write("in/T.cbl/inside", "");
  for (const char* const name : {"T.cbl", "", ".", "..", "in/", "in/.."}) {
    EXPECT_FALSE(findSource(name, {"in", "."})) << name;
  }
}

TEST_F(ReportSourceTest, IsNoLargerThanABrowserTakes) {
  directory_.write("in/T.cbl", "");
  constexpr std::uintmax_t most = 16U << 20U;
  std::filesystem::resize_file("in/T.cbl", most + 1);
  EXPECT_FALSE(findSource("T.cbl", {"in"}));
}

TEST_F(ReportSourceTest, LinesEndInEitherWay) {
  directory_.write("in/T.cbl", "a\r\n\nb\rc\nd");
  EXPECT_EQ(findSource("T.cbl", {"in"})->lines, (std::vector<std::string>{"a", "", "b\rc", "d"}));
}

// What is UTF-8 as a whole is; all else is of the code page that knows every byte.
TEST_F(ReportSourceTest, BytesAreUtf8OrLatin1) {
  struct Row {
    const char* bytes;
    const char* text;
  };
  for (const Row& row :
       {Row{"ascii", "ascii"}, Row{"\xC3\xA4", "ä"}, Row{"\xE2\x82\xAC.", "€."},
        Row{"\xF0\x9F\x92\xA5", "\U0001F4A5"}, Row{"\xC2\x80\xDF\xBF", "\xC2\x80\xDF\xBF"},
        Row{"M\xFCnchen", "München"}, Row{"\xE4", "ä"}, Row{"\xC3", "Ã"}, Row{"\xC3(", "Ã("},
        Row{"\xE2\x82", "â\xC2\x82"}, Row{"\xE2\x82(", "â\xC2\x82("}, Row{"\xA4", "¤"},
        Row{"\xC1\xBF", "Á¿"}, Row{"\xF5\xBF\xBF\xBF", "õ¿¿¿"}, Row{"\xE4\xBC", "ä¼"}}) {
    EXPECT_EQ(lineOf(row.bytes), row.text) << row.bytes;
  }
}

TEST_F(ReportSourceTest, AnItemsLineHoldsItsName) {
  const ReportSource source = {"T.cbl",
                               {"01 record.", "   05 Item PIC X.", std::string(1000, ' ') + "FAR"}};
  const SourceLineCheck check(&source);
  const auto isOf = [](const SourceLineCheck& of, const char* name, int line) {
    ItemFacts item;
    item.name = name;
    item.line = line;
    return of.isOf(item);
  };
  EXPECT_TRUE(isOf(check, "RECORD", 1));
  EXPECT_TRUE(isOf(check, "ITEM", 2));
  EXPECT_FALSE(isOf(check, "ITEM", 1));
  EXPECT_FALSE(isOf(check, "RECORD", 0));
  EXPECT_FALSE(isOf(check, "RECORD", -1));
  EXPECT_FALSE(isOf(check, "RECORD", 4));
  EXPECT_FALSE(isOf(check, "FAR", 3));
  EXPECT_TRUE(isOf(check, "FILLER", 2));
  EXPECT_FALSE(isOf(SourceLineCheck(nullptr), "RECORD", 1));
}

}  // namespace
}  // namespace as::toolkit

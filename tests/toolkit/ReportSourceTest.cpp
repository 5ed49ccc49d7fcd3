// Tests of which lines of a source reports show as those of items.
#include <gtest/gtest.h>

#include <string>

#include "support/Documents.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;

class ReportSource : public test::ToolkitTest {
 protected:
  // Whether the only item, of that name and line, has its line in a source of two lines.
  bool hasLine(const std::string& name, int line) const {
    write("T.cbl", "       01 first-item.\n       01 FILLER.");
    write("d.xml",
          test::dictionary("<properties><property name='source' value='T.cbl'/></properties>"
                           "<dataItems><alphanumeric name='" +
                           name + "' picture='X' offset='0' length='1' line='" +
                           std::to_string(line) + "'/></dataItems>"));
    const toolkit::Report report = toolkit::makeReport(reader(), {"d.xml"}, {});
    for (const toolkit::ReportFile& file : report.files) {
      if (file.name == "data/d1.js") return file.content.find("\"src\":1") != std::string::npos;
    }
    ADD_FAILURE() << "there are no data";
    return false;
  }
};

TEST_F(ReportSource, HasTheLinesOfItemsThatStandThere) {
  EXPECT_TRUE(hasLine("FIRST-ITEM", 1));
  EXPECT_FALSE(hasLine("FIRST-ITEM", 2));
  EXPECT_FALSE(hasLine("OTHER-ITEM", 1));
  EXPECT_TRUE(hasLine("FILLER", 1));
  EXPECT_TRUE(hasLine("FILLER", 2));
}

// As those of another version of the source.
TEST_F(ReportSource, HasNoLinesBehindItsEnd) {
  EXPECT_FALSE(hasLine("FILLER", 3));
  EXPECT_FALSE(hasLine("FIRST-ITEM", 3));
  EXPECT_FALSE(hasLine("FILLER", 0));
}

}  // namespace

// Tests of texts as they stand in XML that is made.
#include <gtest/gtest.h>

#include <string>

#include "toolkit/generate/XsdTypes.h"

namespace {

using as::toolkit::gen::xmlAttribute;
using as::toolkit::gen::xmlText;

struct TextRow {
  const char* label;
  std::string text;
  const char* written;
};

class XmlTextTest : public testing::TestWithParam<TextRow> {};

TEST_P(XmlTextTest, IsReadAsItWas) {
  EXPECT_EQ(xmlText(GetParam().text), GetParam().written);
  EXPECT_EQ(xmlAttribute("n", GetParam().text), " n=\"" + std::string(GetParam().written) + "\"");
}

INSTANTIATE_TEST_SUITE_P(
    Texts, XmlTextTest,
    testing::Values(TextRow{"nothing", "", ""}, TextRow{"plain", "LK-REQ-NO", "LK-REQ-NO"},
                    TextRow{"ampersand", "a&b", "a&amp;b"}, TextRow{"less", "a<b", "a&lt;b"},
                    TextRow{"greater", "]]>", "]]&gt;"}, TextRow{"quote", "\"a\"", "&quot;a&quot;"},
                    TextRow{"apostrophe", "it's", "it's"},
                    TextRow{"blanks", "a\tb\nc\rd", "a&#9;b&#10;c&#13;d"},
                    TextRow{"control", std::string("a\x01\x1F", 3) + "b",
                            "a\xEF\xBF\xBD\xEF\xBF\xBD"
                            "b"},
                    TextRow{"zero", std::string("a\0b", 3),
                            "a\xEF\xBF\xBD"
                            "b"},
                    TextRow{"other", "Kfz-Pr\xC3\xA4mie &", "Kfz-Pr\xC3\xA4mie &amp;"}),
    [](const auto& row) { return std::string(row.param.label); });

}  // namespace

// Tests of the page on errors: it has every rule of import, and every text that the library refuses
// documents with.
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>

#include "as/toolkit/Import.h"
#include "docs/Page.h"
#include "support/TempDirectory.h"

namespace {

namespace toolkit = as::toolkit;

std::string page() { return docs::Page(docs::guide() / "errors.md").text(); }

TEST(ErrorsPage, HasEveryRuleOfImport) {
  const std::string text = page();
  for (const toolkit::ImportRule& rule : toolkit::importRules()) {
    const std::string row = std::string("| `") + rule.id + "` | " + wordOf(rule.severity) + " | " +
                            rule.summary + " | ";
    const std::size_t at = text.find(row);
    ASSERT_NE(at, std::string::npos) << row;
    EXPECT_GT(text.find(" |\n", at + row.size()) - at, row.size() + 5) << "nothing to do: " << row;
  }
}

class MessagesOfSource : public testing::TestWithParam<const char*> {};

// Texts of more than a word, without what stands around names; the compiler's lines are no
// messages.
TEST_P(MessagesOfSource, AreOnThePage) {
  const std::string text = page();
  std::string code = test::contentOf(std::filesystem::path(AS_SOURCES_DIR) / GetParam());
  code = std::regex_replace(code, std::regex("\"\n *\""), "");
  code = std::regex_replace(code, std::regex("(^|\n)#[^\n]*"), "");
  code = std::regex_replace(code, std::regex("//[^\n]*"), "");
  const std::regex literal("\"([^\"\n]+)\"");
  int found = 0;
  for (std::sregex_iterator i(code.begin(), code.end(), literal), end; i != end; ++i) {
    std::string message = std::regex_replace((*i)[1].str(), std::regex("^[' :,;]+|[' :]+$"), "");
    if (message.size() < 12 || message.find(' ') == std::string::npos) continue;
    found++;
    EXPECT_NE(text.find(message), std::string::npos) << message;
  }
  EXPECT_GT(found, 1);
}

std::string labelOf(const testing::TestParamInfo<const char*>& file) {
  return std::regex_replace(file.param, std::regex("[/.]"), "_");
}

INSTANTIATE_TEST_SUITE_P(All, MessagesOfSource,
                         testing::Values("xml/Refusals.cpp", "frame/AgentServicesFactory.cpp",
                                         "frame/AgentServices.cpp"),
                         labelOf);

}  // namespace

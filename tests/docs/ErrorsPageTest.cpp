// Tests of the page on errors: it has every rule of import, and every text that the library, the
// toolkit and the command refuse something with.
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>
#include <utility>
#include <vector>

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

// A source in which a text is one literal; the compiler's lines and comments are no messages.
std::string codeOf(const std::filesystem::path& source) {
  std::string code = test::contentOf(source);
  code = std::regex_replace(code, std::regex("\"\n *\""), "");
  code = std::regex_replace(code, std::regex("(^|\n)#[^\n]*"), "");
  return std::regex_replace(code, std::regex("//[^\n]*"), "");
}

// The texts of more than a word in it, without what stands around names.
std::vector<std::string> messagesIn(const std::string& code) {
  std::vector<std::string> messages;
  const std::regex literal("\"([^\"\n]+)\"");
  for (std::sregex_iterator i(code.begin(), code.end(), literal), end; i != end; ++i) {
    std::string message = std::regex_replace((*i)[1].str(), std::regex("^[' :,;]+|[' :]+$"), "");
    if (message.size() < 12 || message.find(' ') == std::string::npos) continue;
    messages.push_back(std::move(message));
  }
  return messages;
}

class MessagesOfSource : public testing::TestWithParam<const char*> {};

TEST_P(MessagesOfSource, AreOnThePage) {
  const std::string text = page();
  const std::vector<std::string> messages =
      messagesIn(codeOf(std::filesystem::path(AS_SOURCES_DIR) / GetParam()));
  for (const std::string& message : messages) {
    EXPECT_NE(text.find(message), std::string::npos) << message;
  }
  EXPECT_GT(messages.size(), 1U);
}

// What the toolkit throws and the command prints, with what it says to do about it.
TEST(ErrorsPage, HasWhatTheToolkitAndTheCommandSay) {
  const std::string text = page();
  const std::regex said("(printError|RefusedDocument|FileError|Refusal|refused|wrong)[({][^;]*;");
  std::size_t found = 0;
  for (const char* const folder : {"toolkit", "cli"}) {
    const std::filesystem::path sources = std::filesystem::path(AS_SOURCES_DIR) / folder;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sources)) {
      if (entry.path().extension() != ".cpp") continue;
      const std::string code = codeOf(entry.path());
      for (std::sregex_iterator i(code.begin(), code.end(), said), end; i != end; ++i) {
        for (const std::string& message : messagesIn(i->str())) {
          ++found;
          EXPECT_NE(text.find(message), std::string::npos)
              << message << "  in " << entry.path().filename();
        }
      }
    }
  }
  EXPECT_GT(found, 20U);
}

std::string labelOf(const testing::TestParamInfo<const char*>& file) {
  return std::regex_replace(file.param, std::regex("[/.]"), "_");
}

INSTANTIATE_TEST_SUITE_P(All, MessagesOfSource,
                         testing::Values("xml/Refusals.cpp", "frame/AgentServicesFactory.cpp",
                                         "frame/AgentServices.cpp"),
                         labelOf);

}  // namespace

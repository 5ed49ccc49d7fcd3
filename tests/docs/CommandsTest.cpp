// Tests of the guide's console sessions: each command is run as it stands there, and says what is
// shown. Those of a page run one after the other in one folder, which has the examples in it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "docs/Page.h"
#include "support/TempDirectory.h"

namespace {

namespace fs = std::filesystem;

std::string outputOf(const std::string& command) {
  std::string output;
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(
      ::popen(("{ " + command + "\n} 2>&1 < /dev/null").c_str(), "r"), ::pclose);
  std::array<char, 4096> part{};
  while (const std::size_t read = std::fread(part.data(), 1, part.size(), pipe.get())) {
    output.append(part.data(), read);
  }
  if (!output.empty() && output.back() != '\n') output += '\n';
  return output;
}

// The commands of a session with what they say: lines that start with "$ ", and what follows them.
std::string replayed(const std::string& session) {
  std::string result;
  for (std::size_t at = 0; at < session.size();) {
    const std::size_t end = session.find('\n', at);
    const std::string line = session.substr(at, end - at);
    if (line.rfind("$ ", 0) == 0) result += line + "\n" + outputOf(line.substr(2));
    at = end + 1;
  }
  return result;
}

class GuidePageTest : public testing::TestWithParam<fs::path> {};

TEST_P(GuidePageTest, ItsCommandsSayWhatIsShown) {
  docs::Page page(GetParam());
  const test::CurrentDirectory directory;
  fs::copy(AS_EXAMPLES_DIR, "examples", fs::copy_options::recursive);
  const std::string path = std::getenv("PATH");
  ::setenv("PATH", (fs::path(AS_TOOL).parent_path().string() + ":" + path).c_str(), 1);
  for (docs::Block& block : page.blocks()) {
    if (!block.is("console")) continue;
    const std::string said = replayed(block.text);
    if (docs::Page::isUpdated()) block.text = said;
    EXPECT_EQ(block.text, said) << block.heading;
  }
  ::setenv("PATH", path.c_str(), 1);
  if (docs::Page::isUpdated()) page.write();
}

// Those that help lists: a name at the start of a line behind "Subcommands:".
TEST(CommandsPage, HasEveryCommand) {
  std::string headings;
  const docs::Page page(docs::guide() / "commands.md");
  for (const std::string& heading : page.headings()) {
    headings += ", " + heading;
  }
  std::string help = outputOf(std::string(AS_TOOL) + " --help");
  help.erase(0, help.find("Subcommands:"));
  const std::regex command("\n  ([a-z]+) ");
  int found = 0;
  for (std::sregex_iterator i(help.begin(), help.end(), command), end; i != end; ++i) {
    found++;
    EXPECT_NE((headings + ",").find(", " + (*i)[1].str() + ","), std::string::npos) << (*i)[1];
  }
  EXPECT_GT(found, 8);
}

// The README's picture: each line of it is a text, the first one the command.
TEST(Picture, ShowsWhatTheCommandPrints) {
  std::string picture = test::contentOf(docs::guide() / "../show.svg");
  const test::CurrentDirectory directory;
  fs::copy(AS_EXAMPLES_DIR, "examples", fs::copy_options::recursive);
  const std::regex line("<text [^>]*>([^<]*)</text>");
  std::string shown;
  for (std::sregex_iterator i(picture.begin(), picture.end(), line), end; i != end; ++i) {
    shown += (*i)[1].str() + "\n";
  }
  for (const auto& [coded, plain] : {std::pair("&lt;", "<"), {"&gt;", ">"}, {"&amp;", "&"}}) {
    shown = std::regex_replace(shown, std::regex(coded), plain);
  }
  const std::string path = std::getenv("PATH");
  ::setenv("PATH", (fs::path(AS_TOOL).parent_path().string() + ":" + path).c_str(), 1);
  EXPECT_EQ(shown, replayed(shown.substr(0, shown.find('\n') + 1)));
  ::setenv("PATH", path.c_str(), 1);
}

// Where a file of examples/cpp is shown in full or in part, it is shown as it is.
TEST_P(GuidePageTest, ItsCodeIsThatOfTheExamples) {
  std::string code;
  for (const auto& entry : fs::directory_iterator(fs::path(AS_EXAMPLES_DIR) / "cpp")) {
    code += test::contentOf(entry.path());
  }
  docs::Page page(GetParam());
  for (const docs::Block& block : page.blocks()) {
    if (!block.is("cpp")) continue;
    EXPECT_NE(code.find(block.text), std::string::npos) << block.text;
  }
}

std::string labelOf(const testing::TestParamInfo<fs::path>& info) {
  std::string label = info.param.stem().string();
  for (char& c : label) {
    if (c == '-') c = '_';
  }
  return label;
}

INSTANTIATE_TEST_SUITE_P(Pages, GuidePageTest, testing::ValuesIn(docs::pages()), labelOf);

}  // namespace

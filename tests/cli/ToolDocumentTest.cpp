// Tests that the output in docs/tool.md is what the tool says.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>

#include "support/Requests.h"
#include "support/Tool.h"

namespace {

namespace fs = std::filesystem;

class ToolDocumentTest : public test::ToolTest {
 protected:
  void SetUp() override {
    fs::copy(AS_EXAMPLES_DIR, directory(), fs::copy_options::recursive);
    fs::create_directory(directory() / "bin");
    fs::create_symlink(AS_TOOL, directory() / "bin/agentservices");
  }

  // What a shell prints.
  std::string printed(const std::string& call) const {
    const std::string script = "PATH=$PWD/bin:$PATH; exec 2>&1; " + call;
    return runProgram("/bin/sh", {"-c", script}).out;
  }
};

// One after the other: the later ones work on what the earlier ones left.
TEST_F(ToolDocumentTest, ShowsWhatTheToolSays) {
  std::istringstream lines(test::contentOf(AS_EXAMPLES_DIR "/../docs/tool.md"));
  bool isConsole = false;
  int calls = 0;
  std::string expected;
  std::string actual;
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind("```", 0) == 0) {
      isConsole = line == "```console";
      EXPECT_EQ(actual, expected);
      actual.clear();
      expected.clear();
    } else if (isConsole && line.rfind("$ ", 0) == 0) {
      expected += line + "\n";
      actual += line + "\n" + printed(line.substr(2));
      ++calls;
    } else if (isConsole) {
      expected += line + "\n";
    }
  }
  EXPECT_GE(calls, 7);
}

}  // namespace

// Runs the built command-line tool, each test in a directory of its own.
#ifndef TESTS_SUPPORT_TOOL_H_
#define TESTS_SUPPORT_TOOL_H_

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/Labels.h"
#include "support/TempDirectory.h"

namespace test {

struct ToolOutcome {
  int exitCode;  // -1 when a signal ended the tool.
  std::string out;
  std::string err;
  int signal = 0;  // The one that ended it.
};

// What the tools that are started read from their standard input, as long as it lives. The
// descriptor is closed.
class StandardInput {
 public:
  explicit StandardInput(int in) : before_(dup(STDIN_FILENO)) {
    dup2(in, STDIN_FILENO);
    close(in);
  }
  ~StandardInput() {
    dup2(before_, STDIN_FILENO);
    close(before_);
  }
  StandardInput(const StandardInput&) = delete;
  StandardInput& operator=(const StandardInput&) = delete;

 private:
  int before_;
};

// Has a directory of its own, in which the tool runs.
class ToolTest : public testing::Test {
 protected:
  std::filesystem::path directory() const { return directory_.path(); }

  std::string pathOf(const std::string& name) const { return (directory() / name).string(); }

  void write(const std::string& name, const std::string& content) const {
    directory_.write(name, content);
  }

  // Runs `program` with its standard output on the descriptor `out`, which is closed afterwards;
  // closed for -1.
  ToolOutcome runOn(int out, const std::string& program, std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), program);
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    const std::string errorFile = pathOf("stderr.txt");
    const pid_t child = fork();
    if (child == 0) {
      const int err = open(errorFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
      const bool isOut = out < 0 ? close(1) == 0 : dup2(out, 1) == 1;
      if (chdir(directory_.path().c_str()) == 0 && isOut && dup2(err, 2) == 2) {
        execv(program.c_str(), argv.data());
      }
      _exit(127);
    }
    if (out >= 0) close(out);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, "", contentOf(errorFile),
            WIFSIGNALED(status) ? WTERMSIG(status) : 0};
  }

  ToolOutcome runProgram(const std::string& program,
                         const std::vector<std::string>& arguments) const {
    const std::string outputFile = pathOf("stdout.txt");
    const int out = open(outputFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    ToolOutcome outcome = runOn(out, program, arguments);
    outcome.out = contentOf(outputFile);
    return outcome;
  }

  ToolOutcome run(const std::vector<std::string>& arguments) const {
    return runProgram(AS_TOOL, arguments);
  }

 private:
  TempDirectory directory_;
};

}  // namespace test

#endif  // TESTS_SUPPORT_TOOL_H_

// The command line of the tool `agentservices`.
#include <fcntl.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <csignal>
#include <exception>
#include <utility>

#include "cli/Command.h"
#include "cli/Messages.h"

namespace cli {

namespace {

// The commands, in the order in which help lists them.
constexpr std::unique_ptr<Command> (*commands[])() = {
#define AS_COMMAND(name) name##Command,
#include "cli/Commands.def"
#undef AS_COMMAND
};

int run(int argc, char** argv) {
  CLI::App app(
      "Shows and checks XML data dictionaries of COBOL programs, and shows, checks and makes "
      "service definitions.",
      "agentservices");
  app.set_version_flag("--version", "agentservices " AS_TOOL_VERSION);
  app.require_subcommand(1);
  app.footer(
      "Exit codes: 0 fine, 1 a document was refused or has errors, or the output failed, 2 wrong "
      "usage.");
  std::optional<std::string> schemas;
  Arguments forAll(app);
  addSchemasOption(forAll, schemas);
  std::vector<std::pair<CLI::App*, std::unique_ptr<Command>>> known;
  for (const auto make : commands) {
    std::unique_ptr<Command> command = make();
    CLI::App* const part = app.add_subcommand(command->name(), command->summary());
    Arguments arguments(*part);
    command->declare(arguments);
    addSchemasOption(arguments, schemas);
    known.emplace_back(part, std::move(command));
  }
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& failure) {
    return app.exit(failure) == 0 ? exitFine : exitUsage;
  }
  for (const auto& [part, command] : known) {
    if (part->parsed()) return command->run(schemas);
  }
  return exitUsage;
}

// Standard streams that the caller has closed stay unusable: no file that is opened later may come
// to stand in their places, where results and messages go.
void keepClosedStreamsClosed() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(stream, F_GETFD) >= 0 || errno != EBADF) continue;
    // This takes the lowest number that is free, the stream's, and takes no data its way.
    static_cast<void>(::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
  }
}

}  // namespace

}  // namespace cli

int main(int argc, char** argv) {
  cli::keepClosedStreamsClosed();
  // A reader that has seen enough (head, less) ends the tool without a word, whatever the caller
  // does about that signal. Files that are to be written are complete before anything is printed.
  static_cast<void>(std::signal(SIGPIPE, SIG_DFL));
  // A file that grows beyond what the user may write is an error of writing like any other.
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
  int exitCode = cli::exitFine;
  try {
    exitCode = cli::run(argc, argv);
  } catch (const std::exception& failure) {
    cli::printError(failure.what());
    exitCode = cli::exitRefused;
  }
  if (!cli::flushOutput() && exitCode == cli::exitFine) exitCode = cli::exitRefused;
  return exitCode;
}

// The command line of the tool `agentservices`.
#include <CLI/CLI.hpp>
#include <csignal>
#include <exception>
#include <utility>

#include "cli/Command.h"
#include "cli/Messages.h"

namespace cli {

namespace {

// The commands, in the order in which help lists them.
constexpr std::unique_ptr<Command> (*commands[])() = {
    showCommand, validateCommand, lintCommand, newCommand, convertCommand,
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

}  // namespace

}  // namespace cli

int main(int argc, char** argv) {
  // A reader that goes away is an error of writing like any other, and told.
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
  // So is a file that grows beyond what the user may write.
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

// The command line of the tool `agentservices`.
#include <fcntl.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "as/toolkit/Text.h"
#include "as/toolkit/Version.h"
#include "cli/Command.h"
#include "cli/CommandTable.h"
#include "cli/Help.h"
#include "cli/Messages.h"

namespace cli {

namespace {

// The commands, in the order in which help lists them.
constexpr std::unique_ptr<Command> (*commands[])() = {
#define AS_COMMAND(name) name##Command,
#include "cli/Commands.def"
#undef AS_COMMAND
};

// "Examples:" with a line for each call and one for what it does.
std::string examplesOf(const Command& command) {
  std::string text;
  for (const Example& example : command.examples()) {
    text += text.empty() ? "Examples:\n" : "\n";
    text += std::string("  agentservices ") + example.arguments + "\n      " + example.text;
  }
  return text;
}

std::string exitCodesText(const std::vector<ExitCode>& codes) {
  std::string text = "Exit codes:";
  for (const ExitCode& code : codes) {
    text += "\n  " + std::to_string(code.number) + "  " + code.text;
  }
  return text;
}

// False, with a message, when the first word is no command's name.
bool isCommandKnown(int argc, char** argv, const CommandTable& table) {
  if (argc < 2 || argv[1][0] == '-') return true;
  std::vector<std::string> names;
  for (const CommandEntry& entry : table.commands) names.emplace_back(entry.command->name());
  if (std::find(names.begin(), names.end(), argv[1]) != names.end()) return true;
  const std::string near = toolkit::nearestName(argv[1], names);
  printError("there is no command '" + std::string(argv[1]) + "'; " +
             (near.empty() ? "--help lists them" : "did you mean '" + near + "'?"));
  return false;
}

std::string versionText() {
  return std::string("agentservices " AS_TOOL_VERSION " (library ") + toolkit::toolkitVersion() +
         ", " + toolkit::parserVersion() + ")";
}

// What help of a command ends with.
std::string footerOf(const Command& command) {
  const std::vector<ExitCode> own = command.ownExitCodes();
  return examplesOf(command) + (own.empty() ? "" : "\n\n" + exitCodesText(own));
}

// `failureCode` becomes that of the command.
int run(int argc, char** argv, int& failureCode) {
  CommandTable table;
  table.name = "agentservices";
  table.summary =
      "Shows and checks XML data dictionaries of COBOL programs, and shows, checks and makes "
      "service definitions.";
  CLI::App app(table.summary, table.name);
  app.set_version_flag("--version", versionText());
  app.require_subcommand(1);
  app.formatter(helpFormatter());
  app.footer("agentservices COMMAND --help tells of a command, with examples.\n\n" +
             exitCodesText(exitCodes()));
  std::optional<std::string> schemas;
  Arguments forAll(app, table.arguments);
  addSchemasOption(forAll, schemas);
  for (const auto make : commands) table.commands.push_back({make(), {}});
  table.commands.push_back({completionCommand(table), {}});
  table.commands.push_back({manualCommand(table), {}});
  std::vector<CLI::App*> parts;
  for (CommandEntry& entry : table.commands) {
    CLI::App* const part = app.add_subcommand(entry.command->name(), entry.command->summary());
    part->footer(footerOf(*entry.command));
    Arguments arguments(*part, entry.arguments);
    entry.command->declare(arguments);
    addSchemasOption(arguments, schemas);
    parts.push_back(part);
  }
  if (!isCommandKnown(argc, argv, table)) return exitUsage;
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& failure) {
    // Help and version are such an end, too.
    if (failure.get_exit_code() == 0) return app.exit(failure);
    printUsageProblem(app, table, failure);
    return exitUsage;
  }
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (!parts[i]->parsed()) continue;
    failureCode = table.commands[i].command->failureCode();
    return table.commands[i].command->run(schemas);
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
  int failureCode = cli::exitRefused;
  try {
    exitCode = cli::run(argc, argv, failureCode);
  } catch (const std::exception& failure) {
    cli::printError(failure.what());
    exitCode = failureCode;
  }
  // What is wrong stays wrong, whatever becomes of the words.
  if (!cli::flushOutput()) exitCode = std::max(exitCode, failureCode);
  return exitCode;
}

// What every command of the tool is: a name, its part of the command line, and what it does.
#ifndef CLI_COMMAND_H_
#define CLI_COMMAND_H_

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Finding.h"
#include "as/toolkit/Flavours.h"
#include "cli/Arguments.h"

namespace cli {

namespace toolkit = as::toolkit;

// What the tool's process answers.
#define AS_EXIT_CODE(name, number, text) inline constexpr int name = number;
#include "cli/ExitCodes.def"

// A number that the process may answer, and what it means.
struct ExitCode {
  int number;
  const char* text;
};

// What they mean unless a command says otherwise.
const std::vector<ExitCode>& exitCodes();

// A call of a command, and what it is for.
struct Example {
  const char* arguments;  // What stands behind the tool's name: "show MOTPREM.xml".
  const char* text;       // One line.
};

class Command {
 public:
  Command(const char* name, const char* summary) : name_(name), summary_(summary) {}
  virtual ~Command() = default;
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;

  const char* name() const { return name_; }
  const char* summary() const { return summary_; }

  // Calls that show what it is for; help and manual tell them.
  virtual std::vector<Example> examples() const { return {}; }

  // What its answers mean, where that is something of its own; help and manual tell it.
  virtual std::vector<ExitCode> ownExitCodes() const { return {}; }

  // What the process answers when the work cannot be done, or the output cannot be written.
  virtual int failureCode() const { return exitRefused; }

  // Tells what the command takes.
  virtual void declare(Arguments& arguments) = 0;

  // Does it, and returns the exit code. Results go to standard output, what is wrong to standard
  // error. `schemas` is the schema directory that the user named, if any.
  virtual int run(const std::optional<std::string>& schemas) = 0;

 private:
  const char* name_;
  const char* summary_;
};

// The commands, each in a file of its own.
#define AS_COMMAND(name) std::unique_ptr<Command> name##Command();
#include "cli/Commands.def"
#undef AS_COMMAND

struct CommandTable;

// Those that tell about the others. The table must outlive them.
std::unique_ptr<Command> completionCommand(const CommandTable& table);
std::unique_ptr<Command> manualCommand(const CommandTable& table);

// Runs `work` with a reader for the schema directory in use, and tells what was refused. Returns
// the exit code.
int withReader(const std::optional<std::string>& schemas,
               const std::function<int(const toolkit::DocumentReader&)>& work);

// "FILE: FINDING", a line each.
void printFindings(const std::string& file, const toolkit::Findings& findings);

// The options that commands have in common.
void addSchemasOption(Arguments& arguments, std::optional<std::string>& schemas);
void addFlavourOption(Arguments& arguments, std::string& word);
// For what was declared last.
void offerGeneratorKinds(Arguments& arguments);

// What is said of a word that is no kind of what `generate` makes.
std::string noGeneratorKind(const std::string& word);

}  // namespace cli

#endif  // CLI_COMMAND_H_

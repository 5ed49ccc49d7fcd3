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
inline constexpr int exitFine = 0;
// A document was refused or has errors, or the output failed.
inline constexpr int exitRefused = 1;
inline constexpr int exitUsage = 2;

class Command {
 public:
  Command(const char* name, const char* summary) : name_(name), summary_(summary) {}
  virtual ~Command() = default;
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;

  const char* name() const { return name_; }
  const char* summary() const { return summary_; }

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

// Runs `work` with a reader for the schema directory in use, and tells what was refused. Returns
// the exit code.
int withReader(const std::optional<std::string>& schemas,
               const std::function<int(const toolkit::DocumentReader&)>& work);

// "FILE: FINDING", a line each.
void printFindings(const std::string& file, const toolkit::Findings& findings);

// The options that commands have in common.
void addSchemasOption(Arguments& arguments, std::optional<std::string>& schemas);
void addFlavourOption(Arguments& arguments, std::string& word);
void addOutputOption(Arguments& arguments, std::string& file);

}  // namespace cli

#endif  // CLI_COMMAND_H_

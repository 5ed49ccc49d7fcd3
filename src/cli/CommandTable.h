// All commands with what they take: what help in other forms is made of.
#ifndef CLI_COMMANDTABLE_H_
#define CLI_COMMANDTABLE_H_

#include <memory>
#include <vector>

#include "cli/Arguments.h"
#include "cli/Command.h"

namespace cli {

struct CommandEntry {
  std::unique_ptr<Command> command;
  std::vector<Argument> arguments;
};

struct CommandTable {
  const char* name = "";
  const char* summary = "";
  std::vector<Argument> arguments;  // That may stand in front of the command.
  std::vector<CommandEntry> commands;
};

}  // namespace cli

#endif  // CLI_COMMANDTABLE_H_

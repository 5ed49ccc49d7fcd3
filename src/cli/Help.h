// How the command line is explained: help in lines that a terminal holds, and what is the matter
// with a call.
#ifndef CLI_HELP_H_
#define CLI_HELP_H_

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/CommandTable.h"

namespace cli {

std::shared_ptr<CLI::FormatterBase> helpFormatter();

// Tells why the call that `app` has parsed is none, and what to do.
void printUsageProblem(const CLI::App& app, const CommandTable& table,
                       const CLI::ParseError& problem);

}  // namespace cli

#endif  // CLI_HELP_H_

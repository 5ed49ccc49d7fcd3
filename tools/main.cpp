// The command line of the tool `agentservices`: which commands there are and what they take.
#include <CLI/CLI.hpp>
#include <csignal>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "Commands.h"
#include "Messages.h"

namespace {

// May stand before the command as well as behind it.
void addSchemasOption(CLI::App& app, std::optional<std::string>& schemas) {
  app.add_option("--schemas", schemas, "The directory of the schema files, vorcobol.xsd among them")
      ->type_name("DIR");
}

int run(int argc, char** argv) {
  CLI::App app("Shows and checks XML data dictionaries of COBOL programs and service definitions.",
               "agentservices");
  app.set_version_flag("--version", "agentservices " AS_TOOL_VERSION);
  app.require_subcommand(1);
  app.footer(
      "Exit codes: 0 fine, 1 a document was refused or has errors, or the output failed, 2 wrong "
      "usage.");
  std::optional<std::string> schemas;
  addSchemasOption(app, schemas);

  CLI::App* const show =
      app.add_subcommand("show", "Print a data dictionary or a service as a tree");
  std::string shownFile;
  bool json = false;
  ShowOptions shownAs;
  show->add_option("FILE", shownFile, "The document")->required();
  show->add_flag("--json", json, "Print everything the model answers, as JSON");
  show->add_flag("--program", shownAs.withProgram,
                 "Show a service with the data items of its program, read from the dictionary that "
                 "it names");
  addSchemasOption(*show, schemas);

  CLI::App* const validate = app.add_subcommand("validate", "Say of every file whether it is good");
  std::vector<std::string> validatedFiles;
  validate->add_option("FILE", validatedFiles, "Documents")->required();
  addSchemasOption(*validate, schemas);

  CLI::App* const lint = app.add_subcommand("lint", "Find what is broken in a service");
  std::string lintedFile;
  std::optional<std::string> dictionary;
  lint->add_option("SERVICE", lintedFile, "The service")->required();
  lint->add_option("--dictionary", dictionary,
                   "The data dictionary of the program, in place of the one that the service names")
      ->type_name("FILE");
  addSchemasOption(*lint, schemas);

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& failure) {
    return app.exit(failure) == 0 ? exitFine : exitUsage;
  }
  if (show->parsed()) {
    shownAs.format = json ? ShowFormat::json : ShowFormat::tree;
    return runShow(shownFile, shownAs, schemas);
  }
  if (lint->parsed()) return runLint(lintedFile, dictionary, schemas);
  return runValidate(validatedFiles, schemas);
}

}  // namespace

int main(int argc, char** argv) {
  // A reader that goes away is an error of writing like any other, and told.
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
  int exitCode = exitFine;
  try {
    exitCode = run(argc, argv);
  } catch (const std::exception& failure) {
    printError(failure.what());
    exitCode = exitRefused;
  }
  if (!flushOutput() && exitCode == exitFine) exitCode = exitRefused;
  return exitCode;
}

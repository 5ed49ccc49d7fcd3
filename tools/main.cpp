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
  CLI::App app("Shows and checks XML data dictionaries of COBOL programs.", "agentservices");
  app.set_version_flag("--version", "agentservices " AS_TOOL_VERSION);
  app.require_subcommand(1);
  app.footer("Exit codes: 0 fine, 1 a document was refused or the output failed, 2 wrong usage.");
  std::optional<std::string> schemas;
  addSchemasOption(app, schemas);

  CLI::App* const show = app.add_subcommand("show", "Print a data dictionary as a tree");
  std::string shownFile;
  bool json = false;
  show->add_option("FILE", shownFile, "The data dictionary")->required();
  show->add_flag("--json", json, "Print everything the model answers, as JSON");
  addSchemasOption(*show, schemas);

  CLI::App* const validate = app.add_subcommand("validate", "Say of every file whether it is good");
  std::vector<std::string> validatedFiles;
  validate->add_option("FILE", validatedFiles, "Data dictionaries")->required();
  addSchemasOption(*validate, schemas);

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& failure) {
    return app.exit(failure) == 0 ? exitFine : exitUsage;
  }
  if (show->parsed()) {
    return runShow(shownFile, json ? ShowFormat::json : ShowFormat::tree, schemas);
  }
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

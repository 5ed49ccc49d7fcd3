// The command line of the tool `agentservices`: which commands there are and what they take.
#include <CLI/CLI.hpp>
#include <csignal>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "cli/Commands.h"
#include "cli/Messages.h"
#include "toolkit/flavour/Flavour.h"

namespace {

// May stand before the command as well as behind it.
void addSchemasOption(CLI::App& app, std::optional<std::string>& schemas) {
  app.add_option("--schemas", schemas, "The directory of the schema files, vorcobol.xsd among them")
      ->type_name("DIR");
}

void addFlavourOption(CLI::App& app, std::string& flavour) {
  app.add_option("--flavour", flavour, "The service's flavour")
      ->required()
      ->check(CLI::IsMember(flavourWords()));
}

void addOutputOption(CLI::App& app, std::string& file) {
  app.add_option("-o,--output", file,
                 "The file to write; one that is there is replaced when the new one is complete")
      ->required();
}

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

  CLI::App* const create =
      app.add_subcommand("new", "Make a first service for the program of a data dictionary");
  std::string sourceDictionary;
  std::string output;
  NewOptions created;
  create->add_option("DICTIONARY", sourceDictionary, "The data dictionary")->required();
  addFlavourOption(*create, created.flavour);
  addOutputOption(*create, output);
  create->add_option("--name", created.name, "The service's name, in place of the program's");
  create
      ->add_option("--operations", created.entryPoints,
                   "The entry points to make operations of, with commas between; all unless told")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->type_name("ENTRY,...");
  addSchemasOption(*create, schemas);

  CLI::App* const convert =
      app.add_subcommand("convert", "Carry a service over to another flavour");
  std::string convertedFile;
  std::string convertedFlavour;
  convert->add_option("SERVICE", convertedFile, "The service")->required();
  addFlavourOption(*convert, convertedFlavour);
  addOutputOption(*convert, output);
  addSchemasOption(*convert, schemas);

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
  if (create->parsed()) return runNew(sourceDictionary, output, created, schemas);
  if (convert->parsed()) return runConvert(convertedFile, output, convertedFlavour, schemas);
  return runValidate(validatedFiles, schemas);
}

}  // namespace

int main(int argc, char** argv) {
  // A reader that goes away is an error of writing like any other, and told.
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
  // So is a file that grows beyond what the user may write.
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
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

// agentservices new: makes first services for programs.
#include "as/toolkit/Make.h"
#include "cli/Command.h"
#include "cli/Making.h"

namespace cli {

namespace {

class New : public Command {
 public:
  New() : Command("new", "Make first services for the programs of data dictionaries") {}

  std::vector<Example> examples() const override {
    return {{"new --flavour java MOTPREM.xml -o quotes.xml", "make a service of all entry points"},
            {"new --flavour ws --operations QUOTE --name Quotes MOTPREM.xml -o quotes.xml",
             "make one of that entry point, with a name"},
            {"new --flavour java -r dictionaries -o services", "make those of a folder"}};
  }

  void declare(Arguments& arguments) override {
    making_.declareInputs(arguments, "DICTIONARY");
    addFlavourOption(arguments, flavour_);
    making_.declareOutput(arguments);
    arguments.option("--name", options_.name, "The service's name, in place of the program's");
    arguments.list("--operations", options_.entryPoints, "ENTRY,...",
                   "The entry points to make operations of, with commas between; all unless told");
  }

  int run(const std::optional<std::string>& schemas) override {
    const toolkit::Flavour& flavour = *toolkit::findFlavour(flavour_);
    return making_.run(schemas, [&](const toolkit::DocumentReader& reader, const Input& input,
                                    const std::string& output) {
      if (input.source.text) {
        throw toolkit::RefusedDocument({input.source.name, 0, 0,
                                        "a service names the file of its dictionary",
                                        "name that, in place of standard input"});
      }
      const toolkit::MadeService made =
          toolkit::makeServiceFile(reader, input.source.name, output, flavour, options_);
      return Made{made.notes, std::string(flavour.name) + " service, operations " +
                                  std::to_string(made.operations) + ", mapped items " +
                                  std::to_string(made.mappings)};
    });
  }

 private:
  Making making_;
  std::string flavour_;
  toolkit::MakeOptions options_;
};

}  // namespace

std::unique_ptr<Command> newCommand() { return std::make_unique<New>(); }

}  // namespace cli

// agentservices new: makes a first service for a program.
#include <iostream>

#include "as/toolkit/Make.h"
#include "as/toolkit/Text.h"
#include "cli/Command.h"

namespace cli {

namespace {

class New : public Command {
 public:
  New() : Command("new", "Make a first service for the program of a data dictionary") {}

  std::vector<Example> examples() const override {
    return {{"new --flavour java MOTPREM.xml -o quotes.xml", "make a service of all entry points"},
            {"new --flavour ws --operations QUOTE --name Quotes MOTPREM.xml -o quotes.xml",
             "make one of that entry point, with a name"}};
  }

  void declare(Arguments& arguments) override {
    arguments.required("DICTIONARY", dictionary_, "The data dictionary");
    addFlavourOption(arguments, flavour_);
    addOutputOption(arguments, output_);
    arguments.option("--name", options_.name, "The service's name, in place of the program's");
    arguments.list("--operations", options_.entryPoints, "ENTRY,...",
                   "The entry points to make operations of, with commas between; all unless told");
    arguments.flag("-q,--quiet", isQuiet_, "Say only what is wrong");
  }

  int run(const std::optional<std::string>& schemas) override {
    return withReader(schemas, [this](const toolkit::DocumentReader& reader) {
      const toolkit::Flavour& flavour = *toolkit::findFlavour(flavour_);
      const toolkit::MadeService made =
          toolkit::makeServiceFile(reader, dictionary_, output_, flavour, options_);
      if (isQuiet_) return exitFine;
      printFindings(output_, made.notes);
      std::cout << toolkit::printable(output_) << ": " << flavour.name << " service, operations "
                << made.operations << ", mapped items " << made.mappings << "\n";
      return exitFine;
    });
  }

 private:
  std::string dictionary_;
  std::string flavour_;
  std::string output_;
  toolkit::MakeOptions options_;
  bool isQuiet_ = false;
};

}  // namespace

std::unique_ptr<Command> newCommand() { return std::make_unique<New>(); }

}  // namespace cli

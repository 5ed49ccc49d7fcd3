// agentservices convert: carries a service over to another flavour.
#include "as/toolkit/Convert.h"

#include <iostream>

#include "as/toolkit/Text.h"
#include "cli/Command.h"

namespace cli {

namespace {

class Convert : public Command {
 public:
  Convert() : Command("convert", "Carry a service over to another flavour") {}

  std::vector<Example> examples() const override {
    return {
        {"convert --flavour ws quotes.xml -o quotes-ws.xml", "make a Web service of a Java one"}};
  }

  void declare(Arguments& arguments) override {
    arguments.required("SERVICE", file_, "The service");
    addFlavourOption(arguments, flavour_);
    addOutputOption(arguments, output_);
    arguments.flag("-q,--quiet", isQuiet_, "Say only what is wrong");
  }

  int run(const std::optional<std::string>& schemas) override {
    return withReader(schemas, [this](const toolkit::DocumentReader& reader) {
      const toolkit::Flavour& flavour = *toolkit::findFlavour(flavour_);
      const toolkit::ConvertedService converted =
          toolkit::convertServiceFile(reader, file_, output_, flavour);
      if (isQuiet_) return exitFine;
      printFindings(output_, converted.notes);
      std::cout << toolkit::printable(output_) << ": " << converted.from->name << " service made a "
                << flavour.name << " service\n";
      return exitFine;
    });
  }

 private:
  std::string file_;
  std::string flavour_;
  std::string output_;
  bool isQuiet_ = false;
};

}  // namespace

std::unique_ptr<Command> convertCommand() { return std::make_unique<Convert>(); }

}  // namespace cli

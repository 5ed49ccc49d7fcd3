// agentservices convert: carries services over to another flavour.
#include "as/toolkit/Convert.h"

#include <string>

#include "as/IService.h"
#include "as/toolkit/Files.h"
#include "cli/Command.h"
#include "cli/Making.h"

namespace cli {

namespace {

// The dictionary that a service names; empty for none.
std::string dictionaryOf(const toolkit::DocumentReader& reader, const Input& input) {
  const std::string named = reader.readService(input.source)->getDDFilename();
  return named.empty() ? named : toolkit::besideFile(input.source.name, named);
}

class Convert : public Command {
 public:
  Convert() : Command("convert", "Carry services over to another flavour") {}

  std::vector<Example> examples() const override {
    return {
        {"convert --flavour ws quotes.xml -o quotes-ws.xml", "make a Web service of a Java one"},
        {"convert --flavour ws -r services -o web", "make those of a folder"}};
  }

  void declare(Arguments& arguments) override {
    making_.declareInputs(arguments, "SERVICE");
    addFlavourOption(arguments, flavour_);
    making_.declareOutput(arguments);
  }

  int run(const std::optional<std::string>& schemas) override {
    const toolkit::Flavour& flavour = *toolkit::findFlavour(flavour_);
    const auto make = [&flavour](const toolkit::DocumentReader& reader, const Input& input,
                                 const std::string& output) {
      const toolkit::ConvertedService converted =
          toolkit::convertServiceFile(reader, input.source, output, flavour);
      return Made{converted.notes, std::string(converted.from->name) + " service made a " +
                                       flavour.name + " service"};
    };
    return making_.run(schemas, make, dictionaryOf);
  }

 private:
  Making making_;
  std::string flavour_;
};

}  // namespace

std::unique_ptr<Command> convertCommand() { return std::make_unique<Convert>(); }

}  // namespace cli

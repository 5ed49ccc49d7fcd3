// agentservices validate: says of documents whether they are good.
#include <iostream>

#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/Messages.h"

namespace cli {

namespace {

class Validate : public Command {
 public:
  Validate() : Command("validate", "Say of every file whether it is good") {}

  void declare(Arguments& arguments) override { arguments.required("FILE", files_, "Documents"); }

  // Goes on behind a bad one.
  int run(const std::optional<std::string>& schemas) override {
    return withReader(schemas, [this](const toolkit::DocumentReader& reader) {
      int exitCode = exitFine;
      for (const std::string& file : files_) {
        try {
          reader.read(file);
          std::cout << toolkit::printable(file) << ": ok\n";
        } catch (const toolkit::RefusedDocument& refused) {
          printRefusal(refused.refusal());
          exitCode = exitRefused;
        }
      }
      return exitCode;
    });
  }

 private:
  std::vector<std::string> files_;
};

}  // namespace

std::unique_ptr<Command> validateCommand() { return std::make_unique<Validate>(); }

}  // namespace cli

// agentservices validate: says of documents whether they are good.
#include <cstddef>
#include <iostream>

#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/FindingsReport.h"
#include "cli/Inputs.h"

namespace cli {

namespace {

class Validate : public Command {
 public:
  Validate() : Command("validate", "Say of every file whether it is good") {}

  std::vector<Example> examples() const override {
    return {{"validate *.xml", "say of every document whether it can be used"},
            {"validate --quiet --recursive --jobs 4 .", "tell only those of a folder that cannot"},
            {"validate -", "read a document from standard input"}};
  }

  void declare(Arguments& arguments) override {
    inputs_.declare(arguments, "FILE");
    report_.declare(arguments);
    output_.declare(arguments);
  }

  // Goes on behind a bad one.
  int run(const std::optional<std::string>& schemas) override {
    return withReader(schemas, [this](const toolkit::DocumentReader& reader) {
      const bool isFound = inputs_.find();
      report_.begin(output_, {});
      inputs_.workThrough(output_, [&](const Input& input, Parcel&) { reader.read(input.source); },
                          {[&](const Input& input, OpenedParcel&) {
                             ++good_;
                             if (isTold())
                               std::cout << toolkit::printable(input.source.name) << ": ok\n";
                           },
                           [&](const Input&, const toolkit::Refusal& refusal) {
                             ++refused_;
                             report_.add(refusal);
                           },
                           [&] { ++passedOver_; }});
      report_.end();
      if (isTold() && inputs_.areSeveral()) {
        std::cout << toolkit::count(good_ + refused_, "document") << ": " << good_ << " ok, "
                  << refused_ << " refused";
        if (passedOver_ > 0) std::cout << ", " << passedOver_ << " of other kinds";
        std::cout << "\n";
      }
      return refused_ == 0 && isFound ? exitFine : exitRefused;
    });
  }

 private:
  // Whether what is good is to be told.
  bool isTold() const { return report_.isText() && !output_.isQuiet(); }

  Inputs inputs_;
  FindingsReport report_;
  Output output_;
  std::size_t good_ = 0;
  std::size_t refused_ = 0;
  std::size_t passedOver_ = 0;
};

}  // namespace

std::unique_ptr<Command> validateCommand() { return std::make_unique<Validate>(); }

}  // namespace cli

// agentservices validate: says of documents whether they are good.
#include <cstddef>
#include <iostream>

#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/FindingsReport.h"
#include "cli/Inputs.h"
#include "cli/Parcel.h"

namespace cli {

namespace {

// How reading a document ended.
enum class Ending : std::size_t { lost, good, refused };

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
      inputs_.workThrough(
          output_, [&](const Input& input) { return read(reader, input); },
          [&](const Input& input, const WorkOutcome& outcome) { tell(input, outcome); });
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
  static WorkOutcome read(const toolkit::DocumentReader& reader, const Input& input) {
    Parcel parcel;
    try {
      reader.read(input.source);
      parcel.put(static_cast<std::size_t>(Ending::good));
    } catch (const toolkit::RefusedDocument& refused) {
      parcel.put(static_cast<std::size_t>(Ending::refused));
      parcel.put(refused.refusal());
    }
    return {true, "", parcel.take()};
  }

  void tell(const Input& input, const WorkOutcome& outcome) {
    OpenedParcel parcel(outcome.results);
    const std::string& file = input.source.name;
    switch (static_cast<Ending>(parcel.number())) {
      case Ending::good:
        ++good_;
        if (isTold()) std::cout << toolkit::printable(file) << ": ok\n";
        return;
      case Ending::refused: {
        const toolkit::Refusal refusal = parcel.refusal();
        if (input.isSearched && refusal.isOfAnotherKind) {
          ++passedOver_;
          return;
        }
        report_.add(refusal);
        break;
      }
      default:
        report_.add(toolkit::Refusal{file, 0, 0, "reading it came to no end", ""});
    }
    ++refused_;
  }

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

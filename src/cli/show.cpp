// agentservices show: prints documents, as trees or as JSON.
#include <cstddef>
#include <iostream>
#include <sstream>

#include "as/toolkit/Render.h"
#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/Inputs.h"
#include "cli/Messages.h"

namespace cli {

namespace {

class Show : public Command {
 public:
  Show() : Command("show", "Print data dictionaries and services as trees") {}

  std::vector<Example> examples() const override {
    return {{"show MOTPREM.xml", "print a data dictionary as a tree"},
            {"show --program quotes.xml", "print a service with the data items it is mapped to"},
            {"show --json MOTPREM.xml", "print everything the model answers, for programs"},
            {"show -r .", "print all documents in a folder"}};
  }

  void declare(Arguments& arguments) override {
    inputs_.declare(arguments, "FILE");
    arguments.flag("--json", json_, "Print everything the model answers, as JSON");
    arguments.flag(
        "--program", withProgram_,
        "Show services with the data items of their programs, read from the dictionaries "
        "that they name");
    output_.declare(arguments);
  }

  int run(const std::optional<std::string>& schemas) override {
    return withReader(schemas, [this](const toolkit::DocumentReader& reader) {
      isFine_ = inputs_.find();
      if (inputs_.all().size() == 1 && !inputs_.all().front().isSearched) {
        // Piece by piece: it may be of any size.
        const Input& input = inputs_.all().front();
        try {
          show(reader, input, std::cout);
        } catch (const toolkit::RefusedDocument& refused) {
          throw toolkit::RefusedDocument(withFolderHint(refused.refusal(), input));
        }
        return isFine_ ? exitFine : exitRefused;
      }
      if (json_) std::cout << "[";
      inputs_.workThrough(output_,
                          [&](const Input& input, Parcel& parcel) {
                            std::ostringstream out;
                            // Half of a document is none.
                            out.exceptions(std::ios::badbit | std::ios::failbit);
                            show(reader, input, out);
                            parcel.put(out.str());
                          },
                          {[&](const Input& input, OpenedParcel& parcel) {
                             print(input.source.name, parcel.text());
                           },
                           [&](const Input&, const toolkit::Refusal& refusal) {
                             printRefusal(refusal);
                             isFine_ = false;
                           },
                           [] {}});
      if (json_) std::cout << "\n]\n";
      return isFine_ ? exitFine : exitRefused;
    });
  }

 private:
  void show(const toolkit::DocumentReader& reader, const Input& input, std::ostream& out) const {
    toolkit::Document document = reader.read(input.source);
    if (document.dictionary) return render(out, *document.dictionary);
    if (withProgram_) document.service = complete(reader, *document.service, input.source.name);
    render(out, *document.service);
  }

  static std::unique_ptr<as::IService> complete(const toolkit::DocumentReader& reader,
                                                as::IService& service, const std::string& file) {
    if (service.getDDFilename().empty()) {
      throw toolkit::RefusedDocument({file, 0, 0, "the service names no dictionary",
                                      "write attribute dataDictFilename, or leave --program out"});
    }
    return reader.withProgram(service, file).service;
  }

  template <class Root>
  void render(std::ostream& out, Root& root) const {
    if (json_) {
      toolkit::renderJson(out, root);
    } else {
      toolkit::renderText(out, root);
    }
  }

  // One of several documents.
  void print(const std::string& file, const std::string& text) {
    if (json_) {
      std::cout << (isFirst_ ? "\n" : ",\n") << "{\"file\": " << toolkit::jsonText(file)
                << ", \"document\": " << text.substr(0, text.find_last_not_of('\n') + 1) << "}";
    } else {
      std::cout << (isFirst_ ? "" : "\n") << "==> " << toolkit::printable(file) << " <==\n" << text;
    }
    isFirst_ = false;
  }

  Inputs inputs_;
  Output output_;
  bool json_ = false;
  bool withProgram_ = false;
  bool isFine_ = true;
  bool isFirst_ = true;
};

}  // namespace

std::unique_ptr<Command> showCommand() { return std::make_unique<Show>(); }

}  // namespace cli

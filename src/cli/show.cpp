// agentservices show: prints a document, as a tree or as JSON.
#include <iostream>

#include "as/toolkit/Render.h"
#include "cli/Command.h"

namespace cli {

namespace {

class Show : public Command {
 public:
  Show() : Command("show", "Print a data dictionary or a service as a tree") {}

  void declare(Arguments& arguments) override {
    arguments.required("FILE", file_, "The document");
    arguments.flag("--json", json_, "Print everything the model answers, as JSON");
    arguments.flag("--program", withProgram_,
                   "Show a service with the data items of its program, read from the dictionary "
                   "that it names");
  }

  int run(const std::optional<std::string>& schemas) override {
    return withReader(schemas, [this](const toolkit::DocumentReader& reader) {
      toolkit::Document document = reader.read(file_);
      if (document.dictionary) {
        render(*document.dictionary);
      } else {
        if (withProgram_) document.service = complete(reader, *document.service);
        render(*document.service);
      }
      return exitFine;
    });
  }

 private:
  std::unique_ptr<as::IService> complete(const toolkit::DocumentReader& reader,
                                         as::IService& service) const {
    if (service.getDDFilename().empty()) {
      throw toolkit::RefusedDocument({file_, 0, 0, "the service names no dictionary",
                                      "write attribute dataDictFilename, or leave --program out"});
    }
    return reader.withProgram(service, file_).service;
  }

  template <class Root>
  void render(Root& root) const {
    if (json_) {
      toolkit::renderJson(std::cout, root);
    } else {
      toolkit::renderText(std::cout, root);
    }
  }

  std::string file_;
  bool json_ = false;
  bool withProgram_ = false;
};

}  // namespace

std::unique_ptr<Command> showCommand() { return std::make_unique<Show>(); }

}  // namespace cli

// Has every kind of output made of the input, a dictionary or a service, and of a service made of
// that dictionary. What is made must be of its language, and the model must stay as it is.
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "GeneratedText.h"
#include "Report.h"
#include "Shape.h"
#include "ToolkitRequests.h"
#include "as/AgentServices.h"
#include "as/toolkit/Flavours.h"
#include "as/toolkit/Generate.h"
#include "as/toolkit/Make.h"
#include "support/ModelText.h"

namespace toolkit = as::toolkit;
using fuzz::require;

const fuzz::Shape fuzz::shape = fuzz::documentsWith(fuzz::Shape::Files::dictionaries);

namespace {

// Of each option one of the words it takes, as `choice` has it; texts stay as they are unless told.
toolkit::GenerateOptions optionsOf(const toolkit::GeneratorKind& kind, std::size_t choice) {
  toolkit::GenerateOptions options;
  for (const toolkit::GeneratorOption& option : kind.options) {
    std::string_view words = option.values;
    for (std::size_t i = choice % 3; i > 0 && words.find('|') != std::string_view::npos; i--) {
      words.remove_prefix(words.find('|') + 1);
    }
    choice /= 3;
    if (!words.empty()) options.values[option.name] = words.substr(0, words.find('|'));
  }
  require(toolkit::wrongOption(kind, options).empty());
  return options;
}

// Whether something was made.
bool check(const toolkit::Generated& made) {
  require(made.files.empty() == (countOf(made.findings, toolkit::Severity::error) > 0));
  for (const toolkit::Finding& finding : made.findings) {
    require(!finding.rule.empty() && !finding.problem.empty() && !textOf(finding).empty());
  }
  fuzz::requireGood(made.files);
  return !made.files.empty();
}

bool generate(as::IService& service, std::size_t choice, as::IProgram* program = nullptr) {
  const std::string before = test::modelText(service);
  bool isMade = false;
  for (const toolkit::GeneratorKind& kind : toolkit::generatorKinds()) {
    isMade = check(toolkit::generate(kind, service, optionsOf(kind, choice), program)) || isMade;
  }
  require(test::modelText(service) == before);
  return isMade;
}

bool generate(std::unique_ptr<as::IProgram> program, std::size_t choice) {
  bool isMade = false;
  for (const toolkit::GeneratorKind& kind : toolkit::generatorKinds()) {
    if (!kind.takesDictionaries) continue;
    isMade = check(toolkit::generate(kind, *program, optionsOf(kind, choice))) || isMade;
  }
  const toolkit::Flavour& flavour = toolkit::flavours()[choice % toolkit::flavours().size()];
  const toolkit::MadeService service = toolkit::makeService(std::move(program), flavour);
  return generate(*service.service, choice) || isMade;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const fuzz::InputFiles files(input);
  const std::string file = fuzz::workDirectory().file("document.xml");
  fuzz::workDirectory().write("document.xml", input);
  const std::size_t choice = std::hash<std::string_view>()(input);
  bool isMade = false;
  fuzz::succeeds([&] {
    toolkit::Document document = fuzz::reader().read(file);
    if (document.dictionary) {
      isMade = generate(std::move(document.dictionary), choice);
      return;
    }
    std::shared_ptr<as::IProgram> program;
    fuzz::succeeds([&] { program = fuzz::reader().programOf(*document.service, file); });
    isMade = generate(*document.service, choice, program.get());
  });
  if (isMade) fuzz::countModel();
  return 0;
}

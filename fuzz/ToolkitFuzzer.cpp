// Gives the input, a dictionary or a service, to everything that the toolkit does with documents.
// What it writes must be good, and the models that it looks at must stay as they are.
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <string_view>

#include "Report.h"
#include "Shape.h"
#include "ToolkitRequests.h"
#include "XmlTree.h"
#include "as/AgentServices.h"
#include "as/toolkit/Toolkit.h"
#include "support/ModelText.h"

namespace toolkit = as::toolkit;
using fuzz::reader;
using fuzz::require;

const fuzz::Shape fuzz::shape = fuzz::documentsWith(fuzz::Shape::Files::dictionaries);

namespace {

template <class Model>
void render(Model& model) {
  std::ostringstream text;
  toolkit::renderText(text, model);
  fuzz::requirePlain(text.str());
  std::ostringstream json;
  toolkit::renderJson(json, model);
  require(nlohmann::json::accept(json.str()));
}

void look(as::IService& service) {
  const std::string before = test::modelText(service);
  render(service);
  for (const toolkit::Finding& finding : toolkit::lint(service)) {
    require(!finding.rule.empty() && !finding.problem.empty() && !textOf(finding).empty());
  }
  require(test::modelText(service) == before);
}

// What the toolkit has made of the input is written, and read again.
void check(as::IService& service, std::string_view input) {
  std::string written;
  try {
    written = as::CAgentServicesFactory::SerializeToString(&service);
  } catch (const as::CASException&) {
    if (fuzz::readTree(input).isOtherXml()) return;
    throw;
  }
  std::unique_ptr<as::IService> again;
  try {
    again = reader().readServiceText(written, "again.xml");
  } catch (const toolkit::RefusedDocument& refused) {
    std::fprintf(stderr, "%s\n%s\n", written.c_str(), refused.refusal().text.c_str());
    std::abort();
  }
  require(again != nullptr);
  // Where a carriage return ends a text, the layout grows with every writing.
  if (written.find("&#xD;") == std::string::npos) {
    fuzz::requireSame(written, as::CAgentServicesFactory::SerializeToString(again.get()));
  }
  look(*again);
}

void lookAtDictionary(std::unique_ptr<as::IProgram> program, std::string_view input,
                      const toolkit::Flavour& flavour) {
  render(*program);
  const toolkit::MadeService made = toolkit::makeService(std::move(program), flavour);
  require(made.operations == made.service->getOperations()->getLength());
  look(*made.service);
  check(*made.service, input);
}

void convert(as::IService& service, const std::string& file, std::string_view input,
             const toolkit::Flavour& flavour) {
  toolkit::ServiceDocument withProgram;
  fuzz::succeeds([&] { withProgram = reader().readServiceWithProgram(file); });
  as::IProgram* program = nullptr;
  if (withProgram.service) {
    look(*withProgram.service);
    program = withProgram.service->getProgram();
  }
  const std::string before = test::modelText(service);
  fuzz::succeeds([&] {
    const toolkit::ConvertedService converted =
        toolkit::convertService(reader(), service, file, flavour, program);
    require(&toolkit::flavourOf(*converted.service) == &flavour);
    check(*converted.service, input);
  });
  require(test::modelText(service) == before);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const fuzz::InputFiles files(input);
  const std::string file = fuzz::workDirectory().file("document.xml");
  fuzz::workDirectory().write("document.xml", input);
  // One flavour an input, and with a service one thing to do; which it is is all the same.
  const std::size_t choice = std::hash<std::string_view>()(input);
  const toolkit::Flavour& flavour = toolkit::flavours()[choice % toolkit::flavours().size()];
  const bool toConvert = choice / toolkit::flavours().size() % 2 == 0;
  fuzz::succeeds([&] {
    toolkit::Document document = reader().read(file);
    require((document.dictionary == nullptr) != (document.service == nullptr));
    fuzz::countModel();
    if (document.dictionary) {
      lookAtDictionary(std::move(document.dictionary), input, flavour);
    } else if (toConvert) {
      convert(*document.service, file, input, flavour);
    } else {
      look(*document.service);
      toolkit::lintFile(reader(), file);
    }
  });
  return 0;
}

// Reads the input as a dictionary and as a service, with the shipped schemas and without them.
// Inputs mix the namespaces and bring schemas of their own. Whatever a schema lets through, a
// request ends with a model or with one of its exceptions, and a model answers every question.
#include "DictionaryWalk.h"
#include "Mutator.h"
#include "Report.h"
#include "Requests.h"
#include "XmlTree.h"
#include "support/ModelText.h"

const fuzz::Shape fuzz::shape = {{}, false, fuzz::Shape::Files::schemas};

namespace {

// Whether there was a model.
bool ask(as::IAgentServices& by, std::string_view input) {
  // Schemas are looked up beside the document.
  const std::string id = fuzz::workDirectory().file("document.xml");
  const std::unique_ptr<as::IProgram> program =
      fuzz::unlessRefused([&] { return fuzz::parseDictionary(by, id, input); });
  if (program) fuzz::DictionaryWalk(fuzz::Schemas::any).walk(*program);
  const std::unique_ptr<as::IService> service =
      fuzz::unlessRefused([&] { return fuzz::parseService(by, id, input, false); });
  if (!service) return program != nullptr;
  test::modelText(*service);
  try {
    as::CAgentServicesFactory::SerializeToString(service.get());
  } catch (const as::CASException&) {
    if (!fuzz::readTree(input).isOtherXml()) throw;
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::unique_ptr<as::IAgentServices> withoutSchemas(
      as::CAgentServicesFactory::CreateAgentServices());
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const fuzz::InputFiles files(input);
  const bool isGood = ask(fuzz::services(), input);
  const bool isGoodWithoutSchemas = ask(*withoutSchemas, input);
  if (isGood || isGoodWithoutSchemas) fuzz::countModel();
  return 0;
}

// Reads the input as a dictionary and as a service, with the shipped schemas and without them.
// Inputs mix the namespaces and bring schemas of their own. Whatever a schema lets through, a
// request ends with a model or with one of its exceptions, and a model answers every question. An
// entry object that keeps schemas answers the same.
#include "DictionaryWalk.h"
#include "Report.h"
#include "Requests.h"
#include "Shape.h"
#include "XmlTree.h"
#include "support/ModelText.h"

const fuzz::Shape fuzz::shape = {{}, false, fuzz::Shape::Files::schemas};

namespace {

struct Answers {
  bool isGood = false;  // There was a model.
  std::string text;     // What came of each request.
};

// Makes a request, as unlessRefused() does.
template <class Request>
auto answer(Answers& answers, const Request& request) -> decltype(request()) {
  try {
    auto root = request();
    answers.isGood = answers.isGood || root != nullptr;
    answers.text += root ? "a model\n" : "nothing\n";
    return root;
  } catch (const as::CASParseException& refusal) {
    answers.text += std::to_string(refusal.getLineNum()) + ":" +
                    std::to_string(refusal.getColNum()) + ": " + refusal.getErrorText() + "\n";
  } catch (const as::CASInvalidNamespaceException&) {
    answers.text += "another namespace\n";
  }
  return nullptr;
}

Answers ask(as::IAgentServices& by, std::string_view input) {
  Answers answers;
  // Schemas are looked up beside the document.
  const std::string id = fuzz::workDirectory().file("document.xml");
  const std::unique_ptr<as::IProgram> program =
      answer(answers, [&] { return fuzz::parseDictionary(by, id, input); });
  if (program) fuzz::DictionaryWalk(fuzz::Schemas::any).walk(*program);
  const std::unique_ptr<as::IService> service =
      answer(answers, [&] { return fuzz::parseService(by, id, input, false); });
  if (!service) return answers;
  answers.text += test::modelText(*service);
  try {
    as::CAgentServicesFactory::SerializeToString(service.get());
  } catch (const as::CASException&) {
    if (!fuzz::readTree(input).isOtherXml()) throw;
  }
  return answers;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::unique_ptr<as::IAgentServices> withoutSchemas(
      as::CAgentServicesFactory::CreateAgentServices());
  // Keeps schemas from one input to the next, and must answer as if it did not.
  static const std::unique_ptr<as::IAgentServices> caching = [] {
    std::unique_ptr<as::IAgentServices> created(
        as::CAgentServicesFactory::CreateCachingAgentServices());
    created->setSchemaLocation(fuzz::schemaDirectory().c_str());
    return created;
  }();
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const fuzz::InputFiles files(input);
  const Answers withSchemas = ask(fuzz::services(), input);
  fuzz::requireSame(withSchemas.text, ask(*caching, input).text);
  if (ask(*withoutSchemas, input).isGood || withSchemas.isGood) fuzz::countModel();
  return 0;
}

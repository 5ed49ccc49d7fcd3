// Reads the input as a dictionary, and asks everything of what comes out of it.
#include "DictionaryWalk.h"
#include "Report.h"
#include "Requests.h"
#include "Shape.h"

const fuzz::Shape fuzz::shape = {{as::namespaces::dd.uri}, false, fuzz::Shape::Files::none};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::unique_ptr<as::IProgram> program = fuzz::unlessRefused(
      [&] { return fuzz::parseDictionary(fuzz::services(), "fuzz.xml", input); });
  if (!program) return 0;
  fuzz::countModel();
  fuzz::DictionaryWalk(fuzz::Schemas::shipped).walk(*program);
  return 0;
}

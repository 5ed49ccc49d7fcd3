// Reads the input as a service; AS_FLAVOUR names the flavour that inputs are of. What comes out of
// it is asked everything, written, and read again: that must be the same model.
#include <cstdlib>

#include "Report.h"
#include "Requests.h"
#include "Shape.h"
#include "XmlTree.h"
#include "support/ModelText.h"

const fuzz::Shape fuzz::shape = {{as::namespaces::AS_FLAVOUR.uri}, false, fuzz::Shape::Files::none};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::unique_ptr<as::IService> service = fuzz::unlessRefused(
      [&] { return fuzz::parseService(fuzz::services(), "fuzz.xml", input, false); });
  if (!service) return 0;
  fuzz::countModel();
  const std::string model = test::modelText(*service);
  std::string written;
  try {
    written = as::CAgentServicesFactory::SerializeToString(service.get());
  } catch (const as::CASException&) {
    if (fuzz::readTree(input).isOtherXml()) return 0;
    throw;
  }
  // From here on nothing may go wrong: an exception ends the process, and is a finding.
  const auto again = fuzz::parseService(fuzz::services(), "fuzz.xml", written, false);
  if (!again) std::abort();
  fuzz::requireSame(model, test::modelText(*again));
  return 0;
}

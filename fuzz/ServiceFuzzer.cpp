// Feeds arbitrary bytes to the service parser. Whatever comes out of it is walked, written, and
// read again: that must be the same model.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "as/AgentServices.h"
#include "support/ModelText.h"

namespace {

std::unique_ptr<as::IService> parse(as::IAgentServices& services, const std::uint8_t* data,
                                    std::size_t size) {
  return std::unique_ptr<as::IService>(
      services.parseService("fuzz", data, static_cast<unsigned int>(size), false));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::unique_ptr<as::IAgentServices> services = [] {
    std::unique_ptr<as::IAgentServices> made(as::CAgentServicesFactory::CreateAgentServices());
    made->setSchemaLocation(AS_SCHEMA_DIR);
    return made;
  }();
  std::string written;
  std::string model;
  try {
    const std::unique_ptr<as::IService> service = parse(*services, data, size);
    if (!service) return 0;
    model = test::modelText(*service);
    written = as::CAgentServicesFactory::SerializeToString(service.get());
  } catch (const as::CASParseException&) {
    return 0;
  } catch (const as::CASInvalidNamespaceException&) {
    return 0;
  } catch (const as::CASException&) {
    return 0;  // It holds what cannot be written: control characters of XML 1.1.
  }
  // From here on nothing may go wrong: an exception ends the process, and is a finding.
  const std::unique_ptr<as::IService> again =
      parse(*services, reinterpret_cast<const std::uint8_t*>(written.data()), written.size());
  if (!again || test::modelText(*again) != model) std::abort();
  return 0;
}

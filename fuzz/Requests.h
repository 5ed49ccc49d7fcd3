// Parse requests on the bytes of an input.
#ifndef FUZZ_REQUESTS_H_
#define FUZZ_REQUESTS_H_

#include <memory>
#include <string>
#include <string_view>

#include "InputFiles.h"
#include "as/AgentServices.h"

namespace fuzz {

// An entry object with the shipped schemas, the same for every input.
inline as::IAgentServices& services() {
  static const std::unique_ptr<as::IAgentServices> made = [] {
    std::unique_ptr<as::IAgentServices> created(as::CAgentServicesFactory::CreateAgentServices());
    created->setSchemaLocation(schemaDirectory().c_str());
    return created;
  }();
  return *made;
}

inline std::unique_ptr<as::IProgram> parseDictionary(as::IAgentServices& by, const std::string& id,
                                                     std::string_view text) {
  return std::unique_ptr<as::IProgram>(
      by.parseCobolDD(id.c_str(), reinterpret_cast<const unsigned char*>(text.data()),
                      static_cast<unsigned int>(text.size())));
}

inline std::unique_ptr<as::IService> parseService(as::IAgentServices& by, const std::string& id,
                                                  std::string_view text, bool loadProgram) {
  return std::unique_ptr<as::IService>(
      by.parseService(id.c_str(), reinterpret_cast<const unsigned char*>(text.data()),
                      static_cast<unsigned int>(text.size()), loadProgram));
}

// Makes a request. Null when the document is refused in one of the ways that documents are; any
// other exception ends the process, and is a finding.
template <class Request>
auto unlessRefused(const Request& request) -> decltype(request()) {
  try {
    return request();
  } catch (const as::CASParseException&) {
    return nullptr;
  } catch (const as::CASInvalidNamespaceException&) {
    return nullptr;
  }
}

}  // namespace fuzz

#endif  // FUZZ_REQUESTS_H_

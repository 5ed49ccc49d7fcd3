#include "Services.h"

#include <stdexcept>

#include "as/AgentServices.h"

namespace bench {

namespace {

std::unique_ptr<as::IAgentServices> makeServices() {
  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(AS_SCHEMA_DIR);
  return services;
}

std::unique_ptr<as::IService> owned(as::IService* service) {
  if (service == nullptr) throw std::runtime_error("the document makes no service");
  return std::unique_ptr<as::IService>(service);
}

int resolveParameters(as::IList* parameters) {
  int resolved = 0;
  for (int p = 0; p < parameters->getLength(); p++) {
    auto* const parameter = as::interface_cast<as::IParameter>(parameters->getItem(p));
    as::IList* const mappings = parameter->getMappings();
    for (int m = 0; m < mappings->getLength(); m++) {
      auto* const mapping = as::interface_cast<as::IMapping>(mappings->getItem(m));
      if (mapping->getDataItem() != nullptr) resolved++;
    }
  }
  return resolved;
}

template <class Message>
int resolveMessages(as::IList* messages) {
  int resolved = 0;
  for (int m = 0; m < messages->getLength(); m++) {
    auto* const message = as::interface_cast<Message>(messages->getItem(m));
    resolved += resolveParameters(message->getParameters());
  }
  return resolved;
}

}  // namespace

std::unique_ptr<as::IService> parseServiceText(const std::string& text) {
  return owned(makeServices()->parseService("bench",
                                            reinterpret_cast<const unsigned char*>(text.data()),
                                            static_cast<unsigned int>(text.size()), false));
}

std::unique_ptr<as::IService> loadServiceFile(const std::string& file) {
  return owned(makeServices()->parseService(file.c_str(), true));
}

int resolveMappings(as::IService& service) {
  int resolved = 0;
  as::IList* const operations = service.getOperations();
  for (int o = 0; o < operations->getLength(); o++) {
    auto* const operation = as::interface_cast<as::IOperation>(operations->getItem(o));
    resolved += resolveParameters(operation->getParameters());
    if (auto* const soap = as::interface_cast<as::IWSOperation>(operation)) {
      resolved += resolveMessages<as::IWSHeader>(soap->getHeaders());
      resolved += resolveMessages<as::IWSFault>(soap->getFaults());
    }
  }
  return resolved;
}

}  // namespace bench

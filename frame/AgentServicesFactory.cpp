#include <fstream>
#include <stdexcept>
#include <xercesc/dom/DOMDocument.hpp>

#include "as/CASException.h"
#include "as/CAgentServicesFactory.h"
#include "as/Globals.h"
#include "frame/AgentServices.h"
#include "service/ServiceImpl.h"
#include "xml/Identity.h"
#include "xml/Serialiser.h"

AS_REGISTER_IDENTITY(as::CAgentServicesFactory, CAgentServicesFactory, nullptr)

namespace {

// The document of `service`, indented; every failure becomes the one exception for `file`.
std::string toText(as::IService* service, const std::string& file) {
  try {
    auto* const wrapper = as::interface_cast<CServiceImpl>(service);
    if (wrapper == nullptr) throw std::invalid_argument("no service");
    xercesc::DOMDocument* const document = wrapper->getElement()->getOwnerDocument();
    prettyPrintTree(document->getDocumentElement(), 0);
    return serialiseNode(document);
  } catch (...) {
    throw as::CASException("AgentServices: An error occurred serializing the XML to file " + file);
  }
}

}  // namespace

namespace as {

AS_DEFINE_IDENTITY_COMMON(CAgentServicesFactory)

CAgentServicesFactory::~CAgentServicesFactory() = default;

void* CAgentServicesFactory::RTTI_cast(RTTItypeid id) {
  return id.designates(RTTI_obj) ? this : nullptr;
}

IAgentServices* CAgentServicesFactory::CreateAgentServices() {
  if (nXercesInitStatus == 0) {
    throw CASException("AgentServices: Unable to initialise the Xerces XML parser");
  }
  try {
    return new CAgentServices;
  } catch (...) {
    throw CASException("AgentServices: An error occurred the AgentServices processor");
  }
}

void CAgentServicesFactory::Serialize(IService* service, const char* file) {
  const std::string name = file == nullptr ? "" : file;
  const std::string text = toText(service, name);
  // What became of the file is for the caller to find out: SerializeToString() is there for those
  // who want to know.
  std::ofstream(name, std::ios::out | std::ios::trunc) << text;
}

std::string CAgentServicesFactory::SerializeToString(IService* service) {
  return toText(service, "");
}

}  // namespace as

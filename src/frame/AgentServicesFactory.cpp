#include <fstream>
#include <memory>
#include <stdexcept>
#include <xercesc/dom/DOMDocument.hpp>

#include "as/CASException.h"
#include "as/CAgentServicesFactory.h"
#include "as/Globals.h"
#include "as/IDotNET.h"
#include "as/IWebService.h"
#include "com/COMFactory.h"
#include "dotnet/DotNETFactory.h"
#include "frame/AgentServices.h"
#include "java/JavaFactory.h"
#include "service/ServiceImpl.h"
#include "ws/WebServiceFactory.h"
#include "xml/Identity.h"
#include "xml/Serialiser.h"

AS_REGISTER_IDENTITY(as::CAgentServicesFactory, CAgentServicesFactory, nullptr)

namespace {

constexpr char notInitialised[] = "AgentServices: Unable to initialise the Xerces XML parser";

// The document of `service`, indented.
std::string toText(as::IService* service) {
  auto* const wrapper = as::interface_cast<CServiceImpl>(service);
  if (wrapper == nullptr) throw std::invalid_argument("no service");
  xercesc::DOMDocument* const document = wrapper->getElement()->getOwnerDocument();
  prettyPrintTree(document->getDocumentElement(), 0);
  return serialiseNode(document);
}

// Runs `write`, all that is to be done for `file`: every failure becomes the one exception.
template <class Write>
auto sortFailures(const char* file, const Write& write) -> decltype(write()) {
  try {
    return write();
  } catch (...) {
    throw as::CASException(
        std::string("AgentServices: An error occurred serializing the XML to file ") + file);
  }
}

as::IAgentServices* newAgentServices(CAgentServices::Schemas schemas) {
  if (nXercesInitStatus == 0) throw as::CASException(notInitialised);
  try {
    return new CAgentServices(schemas);
  } catch (...) {
    throw as::CASException("AgentServices: An error occurred the AgentServices processor");
  }
}

// A new service of the flavour that Factory makes, for `program`, which it owns from then on; null
// for a null program.
template <class Factory>
CServiceImpl* newService(as::IProgram* program) {
  if (nXercesInitStatus == 0) throw as::CASException(notInitialised);
  if (program == nullptr) return nullptr;
  try {
    auto factory = std::make_unique<Factory>();
    std::unique_ptr<CServiceImpl> service = factory->createService();
    service->setFactory(std::move(factory));
    service->setProgram(program);
    return service.release();
  } catch (...) {
    throw as::CASException("AgentServices: An error occurred during service initialisaton");
  }
}

}  // namespace

namespace as {

AS_DEFINE_IDENTITY_COMMON(CAgentServicesFactory)

CAgentServicesFactory::~CAgentServicesFactory() = default;

void* CAgentServicesFactory::RTTI_cast(RTTItypeid id) {
  return isDesignated(RTTI_obj, id) ? this : nullptr;
}

IAgentServices* CAgentServicesFactory::CreateAgentServices() {
  return newAgentServices(CAgentServices::Schemas::compiled);
}

IAgentServices* CAgentServicesFactory::CreateCachingAgentServices() {
  return newAgentServices(CAgentServices::Schemas::kept);
}

IWebService* CAgentServicesFactory::NewWebService(IProgram* program) {
  return interface_cast<IWebService>(newService<CWebServiceFactory>(program));
}

IService* CAgentServicesFactory::NewCOMService(IProgram* program) {
  return newService<CCOMFactory>(program);
}

IService* CAgentServicesFactory::NewJavaService(IProgram* program) {
  return newService<CJavaFactory>(program);
}

IDotNET* CAgentServicesFactory::NewDotNETService(IProgram* program) {
  return interface_cast<IDotNET>(newService<CDotNETFactory>(program));
}

void CAgentServicesFactory::Serialize(IService* service, const char* file) {
  if (file == nullptr) file = "";
  sortFailures(file, [&] {
    const std::string text = toText(service);
    // What became of the file is for the caller to find out: SerializeToString() is there for those
    // who want to know.
    std::ofstream(file) << text;
  });
}

std::string CAgentServicesFactory::SerializeToString(IService* service) {
  return sortFailures("", [&] { return toText(service); });
}

}  // namespace as

#include "as/CASException.h"
#include "as/CAgentServicesFactory.h"
#include "as/Globals.h"
#include "frame/AgentServices.h"
#include "xml/Identity.h"

AS_REGISTER_IDENTITY(as::CAgentServicesFactory, CAgentServicesFactory, nullptr)

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

}  // namespace as

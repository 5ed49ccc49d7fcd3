// Where a client comes in: creates the entry object.
#ifndef AS_CAGENTSERVICESFACTORY_H_
#define AS_CAGENTSERVICESFACTORY_H_

#include "as/RTTI.h"

namespace as {

class IAgentServices;

class AS_EXPORT CAgentServicesFactory {
 public:
  virtual ~CAgentServicesFactory();
  AS_RTTI_ROOT(CAgentServicesFactory)

  // A new entry object with no schema directory yet; the caller owns it and deletes it.
  // Throws as::CASException: "AgentServices: Unable to initialise the Xerces XML parser" when the
  // XML parser could not be started as the library was loaded, "AgentServices: An error occurred
  // the AgentServices processor" on any other failure.
  static IAgentServices* CreateAgentServices();
};

}  // namespace as

#endif  // AS_CAGENTSERVICESFACTORY_H_

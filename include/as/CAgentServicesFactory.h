// Where a client comes in: creates the entry object, and writes services back.
#ifndef AS_CAGENTSERVICESFACTORY_H_
#define AS_CAGENTSERVICESFACTORY_H_

#include <string>

#include "as/RTTI.h"

namespace as {

class IAgentServices;
class IDotNET;
class IProgram;
class IService;
class IWebService;

class AS_EXPORT CAgentServicesFactory {
 public:
  virtual ~CAgentServicesFactory();
  AS_RTTI_ROOT(CAgentServicesFactory)

  // A new entry object with no schema directory yet; the caller owns it and deletes it.
  // Throws as::CASException: "AgentServices: Unable to initialise the Xerces XML parser" when the
  // XML parser could not be started as the library was loaded, "AgentServices: An error occurred
  // the AgentServices processor" on any other failure.
  static IAgentServices* CreateAgentServices();

  // A new, empty service definition of a flavour for `program`, to be extended through its
  // operations and written with Serialize(). The caller owns the service; the service owns the
  // program from now on. Null for a null program.
  // Throws as::CASException: "AgentServices: Unable to initialise the Xerces XML parser", or
  // "AgentServices: An error occurred during service initialisaton" on any other failure; the
  // program is still the caller's then.
  //
  // A .NET service is written in the Web service namespace, and is read back as a Web service;
  // getImplementation() tells it apart.
  static IWebService* NewWebService(IProgram* program);
  static IService* NewCOMService(IProgram* program);
  static IService* NewJavaService(IProgram* program);
  static IDotNET* NewDotNETService(IProgram* program);

  // Writes the whole document of `service` to the file named `file`, in place of what that held, as
  // indented XML 1.0 in UTF-8. The indentation is put into the document itself and stays there; a
  // second time changes nothing more. A file that cannot be opened or written is left so without a
  // word: to handle such errors use SerializeToString() and write the text yourself.
  // Throws as::CASException, "AgentServices: An error occurred serializing the XML to file "
  // followed by the name, for a null service and on any failure to make the text.
  static void Serialize(IService* service, const char* file);

  // The same text, given back instead of written. Throws the same with an empty name.
  static std::string SerializeToString(IService* service);
};

}  // namespace as

#endif  // AS_CAGENTSERVICESFACTORY_H_

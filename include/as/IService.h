// A service that exposes a COBOL program: the root of a service definition's model.
#ifndef AS_ISERVICE_H_
#define AS_ISERVICE_H_

#include <string>

#include "as/IElement.h"

namespace as {

class IEntryPoint;
class IList;
class IOperation;
class IProgram;

// Whoever gets a service from a parse request, or makes a new one, owns it and deletes it; that
// releases the whole model, the document under it and the service's program. A section that the
// document lacks reads as an empty list, never as null. What setters do with texts is told with
// as::IElement.
class AS_EXPORT IService : virtual public IElement {
 public:
  // What getImplementation() answers: the flavour of the service.
  enum TYPE : int {
    TYPE_WS = 0,
    TYPE_JAVA = 1,
    TYPE_COM = 2,
    TYPE_XD = 3,
    TYPE_DOTNET = 4,
  };

  ~IService() override;
  AS_RTTI(IService)

  // Always empty: it asks the document for its namespace, and only elements have one. What the
  // document says of its flavour is told by getImplementation().
  virtual std::string getNamespaceURI() = 0;

  // The service's properties, as::IProperty objects. None can be added.
  virtual IList* getProperties() = 0;

  // The named types that parameters and fields refer to (see as::IField), as::IParameter objects.
  // None can be added.
  virtual IList* getParameterTypeDefs() = 0;

  // The operations, as::IOperation objects.
  virtual IList* getOperations() = 0;

  // Adds an operation of that name behind the others, binds it to `entryPoint` (null leaves it
  // unbound) and returns it; the service keeps it. It has no parameters and no hidden parameters
  // yet. Of `entryPoint` only the name is kept, so that it need not be of the service's program.
  // The name may be taken already. Works on parsed documents as on new ones; a missing "operations"
  // section is added.
  virtual IOperation* addOperation(const char* name, IEntryPoint* entryPoint) = 0;

  // Attribute "name"; empty when absent.
  virtual std::string getName() = 0;
  virtual void setName(const char* name) = 0;

  // Attribute "implementation": TYPE_JAVA for "java", TYPE_XD for "xd", TYPE_COM for "com",
  // TYPE_DOTNET for "dotnet", else TYPE_WS, also when absent. It is what the document says, and
  // need not agree with the namespace, which decides what the objects cast to.
  virtual TYPE getImplementation() = 0;

  // The COBOL program; null when the service was parsed without it. The service owns it. With it
  // comes its name in attribute "programName" (see IAgentServices::parseService), which has no
  // operation of its own: getAttributeValue("programName") reads it, program or not.
  virtual IProgram* getProgram() = 0;

  // Attribute "dataDictFilename": the file name of the program's data dictionary; empty when
  // absent. Giving the service a program writes the name of the file that the program was read
  // from, without directory. Setting it does not change the program that the service has.
  virtual std::string getDDFilename() = 0;
  virtual void setDDFilename(const char* filename) = 0;

  // Attribute "exitProgramName": the name of the exit program; empty when absent.
  virtual std::string getExitProgramName() = 0;
  virtual void setExitProgramName(const char* name) = 0;
};

}  // namespace as

#endif  // AS_ISERVICE_H_

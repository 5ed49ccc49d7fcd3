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

// All its operations are static; no object of it is needed.
class AS_EXPORT CAgentServicesFactory {
 public:
  virtual ~CAgentServicesFactory();
  AS_RTTI_ROOT(CAgentServicesFactory)

  // A new entry object with no schema directory yet; the caller owns it and deletes it. What it has
  // parsed outlives it.
  // Throws as::CASException: "AgentServices: Unable to initialise the Xerces XML parser" when the
  // XML parser could not be started as the library was loaded, "AgentServices: An error occurred
  // the AgentServices processor" on any other failure.
  static IAgentServices* CreateAgentServices();

  // The same, for those who read many documents: an entry object that keeps what the XML parser
  // makes of the schemas, which a small document would otherwise spend much of its time on, and
  // most where they are others than the shipped ones. Every request comes to the same as with the
  // one above, model or refusal.
  //
  // A schema is made by the first request whose document needs it, and kept until a request
  // finds that its file, which each looks at, is another by then or gone, or that another schema
  // directory has been named, or this object is deleted. Models share the memory of the schemas
  // that they were read with, which goes with the last of them. The object has to be deleted in
  // time as roots have: see as::IElement.
  //
  // Shared are the schemas of the schema directory, by documents that name them by their
  // namespaces or by the bare names of their files, bring no other schema and have no DTD; and
  // only schemas that refer to no other and of which the parser has nothing to tell. Whatever
  // else there is, a device or a pipe that the client names as the document, say, is read as by
  // the object above. A request may read its document again from the start for that.
  static IAgentServices* CreateCachingAgentServices();

  // A new, empty service definition of a flavour for `program`, to be extended through its
  // operations and written with Serialize(). The caller owns the service; the service owns the
  // program from now on, and deletes it with itself. Null for a null program.
  // The service has no name yet. Its attributes "implementation", "programName" and
  // "dataDictFilename" are written: the flavour, the program's name, and the file name or buffer
  // identifier that the program was read under, from behind its last "/" on.
  // REQUIRES: the program belongs to no service yet.
  // Throws as::CASException: "AgentServices: Unable to initialise the Xerces XML parser", or
  // "AgentServices: An error occurred during service initialisaton" on any other failure; the
  // program is still the caller's then.
  //
  // A .NET service is written in the Web service namespace, and is read back as a Web service;
  // getImplementation() tells it apart.
  //
  // A program of the client's own making (a class of its own that is an as::IProgram) is served
  // like one that was read. Nobody knows its file: "dataDictFilename" is not written then.
  static IWebService* NewWebService(IProgram* program);
  static IService* NewCOMService(IProgram* program);
  static IService* NewJavaService(IProgram* program);
  static IDotNET* NewDotNETService(IProgram* program);

  // Writes the whole document of `service` to the file named `file`, in place of what that held, as
  // indented XML 1.0 in UTF-8, whatever it was read as. Comments and processing instructions are
  // written; a DOCTYPE is not, the text of its entities stands in their places. The indentation is
  // put into the document itself and stays there; a second time changes nothing more. But where
  // something has been added behind what was laid out, all that stands beside it is laid out once
  // more, and blank lines come of that.
  //
  // Each element that is laid out takes a line that begins with two blanks a level. So what nests
  // deeply comes to many times the size of its document: 20,000 empty fields 2,030 levels deep,
  // 190 KB without blanks, are 90 MB when they are written, and the model has grown like that.
  //
  // A file that cannot be opened or written (a null name counts as an empty one) is passed over
  // without a word, and one that can be written only in part is left so: to handle such errors use
  // SerializeToString() and write the text yourself.
  //
  // Throws as::CASException, "AgentServices: An error occurred serializing the XML to file "
  // followed by the name, and leaves the file as it was, for a null service and when no text can be
  // made: when the document holds a character that XML cannot hold (see as::IElement), elements
  // nested deeper than the 2,048 levels that can be read, or an element with more than the 1,000
  // attributes.
  //
  // Nothing is validated; an operation that can write what the schemas refuse to read says so.
  //
  // The service stays the caller's. A program cannot be written: dictionaries are only read.
  static void Serialize(IService* service, const char* file);

  // The same text, given back instead of written. Throws the same, with nothing for the name.
  static std::string SerializeToString(IService* service);
};

}  // namespace as

#endif  // AS_CAGENTSERVICESFACTORY_H_

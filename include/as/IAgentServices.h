// The entry object: reads data dictionaries and service definitions.
#ifndef AS_IAGENTSERVICES_H_
#define AS_IAGENTSERVICES_H_

#include <string>

#include "as/RTTI.h"

namespace as {

class IProgram;
class IService;

// Every parse request validates its document against the schema files in the schema directory.
// The document's first error ends the request.
//
// A request returns the root of a new model, which the caller owns and deletes, or null when the
// document has no root that makes one. Nothing that a document names is ever fetched over a
// network, and external entities are refused, with as::CASParseException.
//
// A null file name or buffer identifier counts as an empty one, a null buffer as a buffer of no
// bytes. A buffer is neither copied nor kept; it must stay valid during the call.
class AS_EXPORT IAgentServices {
 public:
  virtual ~IAgentServices();

  // Names the directory of the schema files for later requests of this object. A "/" is put behind
  // `dir` always, also where it ends in one or in a backslash (harmless to the file system).
  // Throws std::out_of_range for an empty or null `dir`; the schema directory is then empty, and
  // references to schemas are looked up beside the document.
  virtual void setSchemaLocation(const char* dir) = 0;

  // Reads the data dictionary in the file named `file`.
  // Throws as::CASParseException when the document cannot be opened, is not well formed or not
  // valid, as::CASInvalidNamespaceException when its root is not in the dictionary namespace, and
  // as::CASException with "An unexpected error occurred processing the data dictionary" on any
  // other failure.
  virtual IProgram* parseCobolDD(const char* file) = 0;

  // Reads the service definition in the file named `file`. With `loadProgram`, the dictionary that
  // the service names (its getDDFilename(), taken as it stands: a relative name counts from the
  // current directory) is read too and its program is given to the service.
  // Throws as::CASParseException when the document cannot be opened, is not well formed or not
  // valid, as::CASInvalidNamespaceException when its root is in the namespace of no flavour, and
  // as::CASException with "An unexpected error occurred processing the service definition" on any
  // other failure. A failure to read the dictionary is a failure of the request.
  virtual IService* parseService(const char* file, bool loadProgram) = 0;

  // The same, but tells an invalid document and an unknown namespace through `errorText`: it holds
  // the message then, and the result is null. On success `errorText` is left as it was.
  virtual IService* parseService(const char* file, std::string& errorText, bool loadProgram) = 0;

  // Reads the data dictionary in the `len` bytes at `buf`; `id` names them in messages.
  virtual IProgram* parseCobolDD(const char* id, const unsigned char* buf, unsigned int len) = 0;

  // Reads the service definition in the `len` bytes at `buf`; `id` names them in messages. The
  // dictionary asked for by `loadProgram` is read from its file all the same.
  virtual IService* parseService(const char* id, const unsigned char* buf, unsigned int len,
                                 bool loadProgram) = 0;

  // The same, but tells the expected failures through `errorText` as above.
  virtual IService* parseService(const char* id, const unsigned char* buf, unsigned int len,
                                 std::string& errorText, bool loadProgram) = 0;

  AS_RTTI_ROOT(IAgentServices)
};

}  // namespace as

#endif  // AS_IAGENTSERVICES_H_

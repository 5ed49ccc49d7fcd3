// The entry object: reads data dictionaries and service definitions.
#ifndef AS_IAGENTSERVICES_H_
#define AS_IAGENTSERVICES_H_

#include <string>

#include "as/RTTI.h"

namespace as {

class IProgram;
class IService;

// Every parse request validates its document against the schema files in the schema directory. The
// first message of the XML parser ends the request, a warning like an error (one is that a schema
// named in the document, needed or not, cannot be opened).
//
// A document has to name its schema, or it is refused: attribute "xsi:schemaLocation" of its root
// pairs its namespace with the place of the schema, which is that namespace again or the bare name
// of the file (both are in as/Namespaces.h). The file of that name in the schema directory is read
// then, and also when the place is some other file: with a schema directory set, a document brings
// no schema of its own for the namespaces of this library.
//
// A request returns the root of a new model, which the caller owns and deletes; it outlives this
// object. The result is null when the document is valid but its root makes no model, which the
// shipped schemas never let happen. A request that runs out of memory makes no model: it throws
// as::CASException or gives null, and nothing that is this library's is leaked. (Refused memory
// itself, the XML parser may lose some of its own, or end the process.)
//
// Refused, with as::CASParseException, whoever made the document:
//  - elements nested deeper than 2,048 levels;
//  - an element with more than 1,000 attributes, namespace declarations included, or with more
//    than 4,000 namespace declarations together with the elements around it, or more than 2,000
//    different prefixes or namespaces that are declared in all, or, where the document brings
//    schemas, more than 10,000 different names of attributes;
//  - more than 1,000 references to entities that the document declares, those in the text of an
//    entity counted each time, and an entity whose text is longer than 65,536 characters;
//  - more than 5,000 declarations in a DTD, or more than 50,000 parts of its content models, of
//    which a name comes to some;
//  - a schema, or a dictionary that a service names, whose name is longer than 4,096 characters;
//  - an external DTD, a reference to an external entity, any parameter entity, and declarations of
//    attributes in a DTD;
//  - a document, schema or entity on a network: nothing is ever fetched over one;
//  - a directory in place of a document, and whatever is no regular file in place of a schema or of
//    a dictionary that a service names. (The client may name a device or pipe as the document.) A
//    file is read no further than it reached when it was opened;
//  - an element that no schema declares, or that the model has no object for.
// The content of documents is what the schemas of the schema directory let through. Without a
// schema directory a document brings schemas of its own, and they decide: of such a document only
// what stands above is promised.
//
// Schemas that a document brings for other namespaces, or without a schema directory, are refused,
// too, when they hold in a DTD what is refused in a document's, or, all together, more than
//  - 1,000 places of schemas, those that the document itself tells included;
//  - 1,048,576 bytes, or characters with entities in their places;
//  - 2,000 elements, and namespaces in lists of wildcards, as many times as minOccurs, maxOccurs
//    and references to groups have them laid out, or 100 levels of elements;
//  - 256 characters in a pattern, or a pattern that leaves a choice how to go on;
//  - 16 members of unions, or 256 words of enumerated values, or 16 elements that stand for others
//    (in substitution groups);
//  - 16 paths of keys, references to keys and unique values, or 64 of these that hold for an
//    element and those around it;
//  - 256 characters in a default or fixed value, or 100,000 of these values taken over.
// A character beyond U+FFFF counts as two, and a schema that is read for several namespaces each
// time. What comes of all schemas may take 67,108,864 bytes. SECURITY.md gives the reasons, and
// tells what is not promised.
//
// A relative file name counts from the current directory; a URL of a local file (file:///...) is
// taken too. A null file name or buffer identifier counts as an empty one, a null buffer as a
// buffer of no bytes. A buffer is neither copied nor kept; it must stay valid during the call.
//
// REQUIRES (all operations): one thread at a time, process-wide; see as::IElement.
class AS_EXPORT IAgentServices {
 public:
  // The models that the object has made stay.
  virtual ~IAgentServices();

  // Names the directory of the schema files for later requests of this object. It is not looked at
  // before a request, and a relative one counts from the current directory of each request. A "/"
  // is put behind `dir` always, also where it ends in one or in a backslash (harmless to the file
  // system).
  // Throws std::out_of_range for an empty or null `dir`; this object then has no schema directory,
  // as at first: schemas are looked up where the document says, beside it where the place is a
  // relative one. A place that is one of this library's namespaces is on a network then, and the
  // document is refused.
  virtual void setSchemaLocation(const char* dir) = 0;

  // Reads the data dictionary in the file named `file`. The caller owns the program.
  // Throws as::CASParseException when the document cannot be opened, is not well formed or not
  // valid, as::CASInvalidNamespaceException when its root is not in the dictionary namespace, and
  // as::CASException with "An unexpected error occurred processing the data dictionary" on any
  // other failure.
  virtual IProgram* parseCobolDD(const char* file) = 0;

  // Reads the service definition in the file named `file`. The caller owns the service.
  //
  // With `loadProgram`, the dictionary that the service names (its getDDFilename(), taken as it
  // stands: a relative name counts from the current directory, not from where the service is) is
  // read too, and its program is given to the service, which owns it. That rewrites two attributes
  // of the service: "programName" to the program's name, and "dataDictFilename" to the dictionary's
  // file name without its directory. When the document named the dictionary with a directory, or by
  // a URL with escapes ("%20"), that name may not lead to it any more once the service is written
  // and read: set it again with setDDFilename().
  //
  // Throws as::CASParseException when the document cannot be opened, is not well formed or not
  // valid, as::CASInvalidNamespaceException when its root is in the namespace of no flavour, and
  // as::CASException with "An unexpected error occurred processing the service definition" on any
  // other failure. A failure to read the dictionary is a failure of the request.
  virtual IService* parseService(const char* file, bool loadProgram) = 0;

  // The same, but tells the two expected failures, of the service or of its dictionary, through
  // `errorText`, with a null result: for as::CASParseException its getErrorText(), for
  // as::CASInvalidNamespaceException "The parser encountered an unexpected or unsupported
  // namespace". Otherwise `errorText` is left as it was; a null result then means that the document
  // makes no model (see above). as::CASException is still thrown.
  virtual IService* parseService(const char* file, std::string& errorText, bool loadProgram) = 0;

  // Reads the data dictionary in the `len` bytes at `buf`. `id` names them in messages, and stands
  // for the file name: relative places that the document names count from it.
  virtual IProgram* parseCobolDD(const char* id, const unsigned char* buf, unsigned int len) = 0;

  // Reads the service definition in the `len` bytes at `buf`; `id` as above. The dictionary asked
  // for by `loadProgram` is read from its file all the same, and `id` has no part in finding it.
  virtual IService* parseService(const char* id, const unsigned char* buf, unsigned int len,
                                 bool loadProgram) = 0;

  // The same, but tells the expected failures through `errorText` as above.
  virtual IService* parseService(const char* id, const unsigned char* buf, unsigned int len,
                                 std::string& errorText, bool loadProgram) = 0;

  AS_RTTI_ROOT(IAgentServices)
};

}  // namespace as

#endif  // AS_IAGENTSERVICES_H_

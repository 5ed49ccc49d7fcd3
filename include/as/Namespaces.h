// The namespaces of the documents, and the names of the schema files that setSchemaLocation's
// directory holds.
#ifndef AS_NAMESPACES_H_
#define AS_NAMESPACES_H_

namespace as {

// A kind of document. A document's root stands in the namespace `uri`; the schema of that namespace
// is the file `schemaFile` of the schema directory. In "xsi:schemaLocation" a document names the
// schema by either of the two: xsi:schemaLocation="URI URI" or "URI vorws.xsd".
struct Namespace {
  const char* uri;         // "http://..."
  const char* schemaFile;  // "vorws.xsd"
};

// namespaces::dd is that of data dictionaries; ws, com, java and dotnet are those of the flavours
// of services; service is that of what all flavours have in common: no document's root stands in
// it.
namespace namespaces {
// What a row of the table becomes.
#define AS_NAMESPACE(name, uri, schemaFile) inline constexpr Namespace name = {uri, schemaFile};
#include "as/Namespaces.def"
}  // namespace namespaces

}  // namespace as

#endif  // AS_NAMESPACES_H_

// The XML vocabulary that all document kinds share: namespaces, schema files, and the names of the
// XML namespace machinery.
#ifndef XML_VOCABULARY_H_
#define XML_VOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

#include "as/Globals.h"

#define AS_SCHEMA_HOST u"http://agentservices.example"

// The namespaces of the documents. For each schema: its URI, the name of its file, and (for those
// that new documents are written in) the pair that stands in "xsi:schemaLocation".
namespace XSDNS {

inline constexpr XMLCh xmlURI[] = u"http://www.w3.org/2000/xmlns/";
inline constexpr XMLCh xsiURI[] = u"http://www.w3.org/2001/XMLSchema-instance";

#define AS_SCHEMA_NAMES(prefix, path, file)                             \
  inline constexpr XMLCh prefix##URI[] = AS_SCHEMA_HOST path u"/" file; \
  inline constexpr XMLCh prefix##Name[] = file;
#define AS_SCHEMA_LOCATION(prefix, path, file)      \
  inline constexpr XMLCh prefix##SchemaLocation[] = \
      AS_SCHEMA_HOST path u"/" file u" " AS_SCHEMA_HOST path u"/" file;

AS_SCHEMA_NAMES(service, u"/schema/service/v2.0", u"vorservice.xsd")
AS_SCHEMA_NAMES(dd, u"/schema/cobol/v2.0", u"vorcobol.xsd")
AS_SCHEMA_NAMES(ws, u"/schema/ws/v1.0", u"vorws.xsd")
AS_SCHEMA_LOCATION(ws, u"/schema/ws/v1.0", u"vorws.xsd")
AS_SCHEMA_NAMES(com, u"/schema/com/v1.0", u"vorcom.xsd")
AS_SCHEMA_LOCATION(com, u"/schema/com/v1.0", u"vorcom.xsd")
AS_SCHEMA_NAMES(java, u"/schema/java/v2.0", u"vorjava.xsd")
AS_SCHEMA_LOCATION(java, u"/schema/java/v2.0", u"vorjava.xsd")
AS_SCHEMA_NAMES(dotnet, u"/schema/dotnet/v1.0", u"vordotnet.xsd")
AS_SCHEMA_LOCATION(dotnet, u"/schema/dotnet/v1.0", u"vordotnet.xsd")

#undef AS_SCHEMA_NAMES
#undef AS_SCHEMA_LOCATION

}  // namespace XSDNS

namespace XMLNS {

inline constexpr XMLCh xmlns[] = u"xmlns";
inline constexpr XMLCh core[] = u"Core";
inline constexpr XMLCh xsi[] = u"xsi";
inline constexpr XMLCh xmlnsxsi[] = u"xmlns:xsi";
inline constexpr XMLCh schemaLocation[] = u"schemaLocation";
inline constexpr XMLCh xsischemaLocation[] = u"xsi:schemaLocation";
inline constexpr XMLCh xmlnsws[] = u"xmlns:ws";
inline constexpr XMLCh xmlnscom[] = u"xmlns:com";
inline constexpr XMLCh type[] = u"type";

}  // namespace XMLNS

#endif  // XML_VOCABULARY_H_

// The XML vocabulary that all document kinds share: namespaces, schema files, and the names of the
// XML namespace machinery.
#ifndef XML_VOCABULARY_H_
#define XML_VOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

#include "as/Globals.h"

// The namespaces of the documents: for each its URI, the name of its schema file, and the pair that
// leads from one to the other.
namespace XSDNS {

inline constexpr XMLCh xmlURI[] = u"http://www.w3.org/2000/xmlns/";
inline constexpr XMLCh xsiURI[] = u"http://www.w3.org/2001/XMLSchema-instance";

#define AS_NAMESPACE(prefix, uri, file)          \
  inline constexpr XMLCh prefix##URI[] = u##uri; \
  inline constexpr XMLCh prefix##Name[] = u##file;
#include "as/Namespaces.def"
// What stands in "xsi:schemaLocation" of a new document: the namespace and, for its place, the
// same.
#define AS_NAMESPACE(prefix, uri, file) \
  inline constexpr XMLCh prefix##SchemaLocation[] = u##uri u" " u##uri;
#include "as/Namespaces.def"

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

#include "xml/VorEntityResolver.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/util/XMLString.hpp>

#include "xml/Vocabulary.h"

using xercesc::InputSource;
using xercesc::LocalFileInputSource;
using xercesc::XMLString;

namespace {

struct Schema {
  const XMLCh* uri;
  const XMLCh* fileName;
};

// The schemas, in the order in which a reference is compared with them.
constexpr Schema schemas[] = {
#define AS_NAMESPACE(prefix, uri, file) {XSDNS::prefix##URI, XSDNS::prefix##Name},
#include "as/Namespaces.def"
};

bool standsFor(const XMLCh* systemId, const Schema& schema) {
  return XMLString::equals(systemId, schema.uri) || XMLString::equals(systemId, schema.fileName);
}

}  // namespace

void VorEntityResolver::setSchemaLocation(const char* directory) { directory_ = directory; }

CXStr VorEntityResolver::getLocationForSchema(const XMLCh* fileName) {
  return static_cast<std::string>(directory_) + static_cast<std::string>(CXStr(fileName, false));
}

InputSource* VorEntityResolver::resolveEntity(const XMLCh* /*publicId*/, const XMLCh* systemId) {
  if (directory_.isEmpty()) return nullptr;
  for (const auto& schema : schemas) {
    if (standsFor(systemId, schema)) return open(schema.fileName);
  }
  return nullptr;
}

InputSource* VorEntityResolver::resolveNamespace(const XMLCh* uri) {
  if (directory_.isEmpty()) return nullptr;
  for (const auto& schema : schemas) {
    if (XMLString::equals(uri, schema.uri)) return open(schema.fileName);
  }
  return nullptr;
}

bool VorEntityResolver::isPlaceOf(const XMLCh* uri, const XMLCh* systemId) {
  return std::any_of(std::begin(schemas), std::end(schemas), [&](const Schema& schema) {
    return XMLString::equals(uri, schema.uri) && standsFor(systemId, schema);
  });
}

InputSource* VorEntityResolver::open(const XMLCh* fileName) {
  CXStr location = getLocationForSchema(fileName);
  return new LocalFileInputSource(location);
}

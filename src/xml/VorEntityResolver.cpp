#include "xml/VorEntityResolver.h"

#include <string>
#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/util/XMLString.hpp>

#include "xml/Vocabulary.h"

using xercesc::InputSource;
using xercesc::LocalFileInputSource;
using xercesc::XMLString;

namespace {

// The schemas, in the order in which a reference is compared with them.
constexpr struct {
  const XMLCh* uri;
  const XMLCh* fileName;
} schemas[] = {
#define AS_NAMESPACE(prefix, uri, file) {XSDNS::prefix##URI, XSDNS::prefix##Name},
#include "as/Namespaces.def"
};

}  // namespace

void VorEntityResolver::setSchemaLocation(const char* directory) { directory_ = directory; }

CXStr VorEntityResolver::getLocationForSchema(const XMLCh* fileName) {
  return static_cast<std::string>(directory_) + static_cast<std::string>(CXStr(fileName, false));
}

InputSource* VorEntityResolver::resolveEntity(const XMLCh* /*publicId*/, const XMLCh* systemId) {
  if (directory_.isEmpty()) return nullptr;
  for (const auto& schema : schemas) {
    if (XMLString::equals(systemId, schema.uri) || XMLString::equals(systemId, schema.fileName)) {
      return open(schema.fileName);
    }
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

InputSource* VorEntityResolver::open(const XMLCh* fileName) {
  CXStr location = getLocationForSchema(fileName);
  return new LocalFileInputSource(location);
}

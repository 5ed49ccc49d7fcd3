#include "xml/XMLParser.h"

#include <sys/stat.h>

#include <algorithm>
#include <climits>
#include <memory>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/framework/XMLBuffer.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLURL.hpp>
#include <xercesc/util/XMLUri.hpp>
#include <xercesc/validators/DTD/DTDElementDecl.hpp>
#include <xercesc/validators/DTD/DTDEntityDecl.hpp>

#include "as/CASInvalidNamespaceException.h"
#include "xml/XStr.h"

using xercesc::DOMNode;
using xercesc::DTDElementDecl;
using xercesc::DTDEntityDecl;
using xercesc::InputSource;
using xercesc::LocalFileInputSource;
using xercesc::Locator;
using xercesc::MemBufInputSource;
using xercesc::RefVectorOf;
using xercesc::SAXParseException;
using xercesc::SchemaElementDecl;
using xercesc::XMLAttr;
using xercesc::XMLBuffer;
using xercesc::XMLElementDecl;
using xercesc::XMLPlatformUtils;
using xercesc::XMLResourceIdentifier;
using xercesc::XMLString;
using xercesc::XMLUri;
using xercesc::XMLURL;

namespace {

std::string narrow(const XMLCh* text) { return CXStr(text, false); }

int position(XMLFileLoc at) {
  return static_cast<int>(std::min<XMLFileLoc>(at, static_cast<XMLFileLoc>(INT_MAX)));
}

// What kind of place the parser would read from; none when it is given no name of one.
enum class Place { none, network, regularFile, specialFile, directory };

Place placeOfFile(const XMLCh* path) {
  struct stat status = {};
  if (::stat(narrow(path).c_str(), &status) != 0)
    return Place::regularFile;  // Its absence is told.
  if (S_ISDIR(status.st_mode)) return Place::directory;
  return S_ISREG(status.st_mode) ? Place::regularFile : Place::specialFile;
}

// The path of a file URL, with its escapes (%41) resolved as the parser resolves them.
std::basic_string<XMLCh> unescaped(const XMLCh* path) {
  std::basic_string<XMLCh> result;
  const auto hexDigit = [](XMLCh c) {
    const auto lower = static_cast<XMLCh>(c | 0x20);
    if (c >= u'0' && c <= u'9') return c - u'0';
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
  };
  for (; path != nullptr && *path != 0; ++path) {
    const int high = *path == u'%' ? hexDigit(path[1]) : -1;
    const int low = high < 0 ? -1 : hexDigit(path[2]);
    if (low < 0) {
      result += *path;
    } else {
      result += static_cast<XMLCh>(high * 16 + low);
      path += 2;
    }
  }
  return result;
}

// Decides as the parser does what `systemId` names in a document named `base` (null for none,
// both): a URL, by itself or counted from a base that is one, or else a file.
Place placeOf(const XMLCh* base, const XMLCh* systemId) {
  if (systemId == nullptr) return Place::none;
  XMLURL url(XMLPlatformUtils::fgMemoryManager);
  if (!url.setURL(base, systemId, url) || url.isRelative()) {
    XMLBuffer path;
    XMLUri::normalizeURI(systemId, path);
    if (base == nullptr) return placeOfFile(path.getRawBuffer());
    return placeOfFile(LocalFileInputSource(base, path.getRawBuffer()).getSystemId());
  }
  const XMLCh* const host = url.getHost();
  const bool local = url.getProtocol() == XMLURL::File &&
                     (host == nullptr || *host == 0 || XMLString::equals(host, u"localhost"));
  return local ? placeOfFile(unescaped(url.getPath()).c_str()) : Place::network;
}

bool isSchemaReference(const XMLResourceIdentifier& reference) {
  switch (reference.getResourceIdentifierType()) {
    case XMLResourceIdentifier::SchemaGrammar:
    case XMLResourceIdentifier::SchemaImport:
    case XMLResourceIdentifier::SchemaInclude:
    case XMLResourceIdentifier::SchemaRedefine:
      return true;
    default:
      return false;
  }
}

// The namespace that a schema is needed for; null for a part of a schema that has been found.
const XMLCh* namespaceNeeded(const XMLResourceIdentifier& reference) {
  switch (reference.getResourceIdentifierType()) {
    case XMLResourceIdentifier::SchemaGrammar:
    case XMLResourceIdentifier::SchemaImport:
      return reference.getNameSpace();
    default:
      return nullptr;
  }
}

// The namespace of the root of the document that `node` stands in.
const XMLCh* rootNamespaceOf(const DOMNode* node) {
  return node->getOwnerDocument()->getDocumentElement()->getNamespaceURI();
}

// Parses as nothing: stands in for what was refused.
InputSource* emptySource() {
  static const XMLByte nothing[1] = {0};
  return new MemBufInputSource(nothing, 0, u"refused");
}

}  // namespace

CXMLParser::CXMLParser() { limits_.setEntityExpansionLimit(maxEntityExpansions); }

CXMLParser::~CXMLParser() = default;

void CXMLParser::parse(const XMLCh* systemId) {
  if (systemId == nullptr) systemId = u"";
  documentName_ = narrow(systemId);
  const auto refuseDocument = [&](const std::string& reason) {
    return as::CASParseException(0, 0, 0,
                                 "the document '" + documentName_ + "' is refused: " + reason,
                                 std::string(), documentName_);
  };
  // A client may name whatever file it likes; reading a directory the parser fails without freeing
  // what it has made.
  const Place place = placeOf(nullptr, systemId);
  if (place == Place::network) throw refuseDocument("documents are not read over a network");
  if (place == Place::directory) throw refuseDocument("it is a directory");
  run(systemId);
}

void CXMLParser::parse(MemBufInputSource* source) {
  documentName_ = narrow(source->getSystemId());
  run(*source);
}

template <class Source>
void CXMLParser::run(const Source& source) {
  setValidationScheme(Val_Always);
  setEntityResolver(&resolver_);
  setErrorHandler(this);
  setDoSchema(true);
  setDoNamespaces(true);
  setSecurityManager(&limits_);
  // The text of an entity counts as if it stood in its place, so that no list passes over it.
  setCreateEntityReferenceNodes(false);
  try {
    XercesDOMParser::parse(source);
  } catch (const as::CASParseException&) {
    throw;
  } catch (const as::CASInvalidNamespaceException&) {
    throw;
  } catch (...) {  // NOLINT(bugprone-empty-catch)
    // The caller finds what the handler had built until then.
  }
  if (firstMessage_) throw as::CASParseException(*firstMessage_);
}

void CXMLParser::startElement(const XMLElementDecl& declaration, unsigned int uriId,
                              const XMLCh* prefix, const RefVectorOf<XMLAttr>& attributes,
                              XMLSize_t attributeCount, bool isEmpty, bool isRoot) {
  if (attributeCount > maxAttributes) {
    // At once: the time that the DOM takes to hold them grows with their square.
    throw messageHere("an element has more than " + std::to_string(maxAttributes) + " attributes");
  }
  // For an empty element the base class would end it from here, in front of the handler's start.
  XercesDOMParser::startElement(declaration, uriId, prefix, attributes, attributeCount, false,
                                isRoot);
  DOMNode* const element = getCurrentNode();
  if (isRoot) {
    if (handler_ != nullptr) handler_->startDocument(element);
    rootSeen_ = true;
    if (firstMessage_) throw as::CASParseException(*firstMessage_);
  }
  // A DTD in the document, or a wildcard in a schema, may let elements in that no schema has
  // looked at: the handlers rely on the schema.
  if (declaration.getObjectType() != XMLElementDecl::Schema || !declaration.isDeclared()) {
    refuse("no schema declares the element '" + narrow(element->getNodeName()) + "'");
  }
  if (handler_ != nullptr &&
      !belongs(element, static_cast<const SchemaElementDecl&>(declaration))) {
    refuse("the element '" + narrow(element->getNodeName()) +
           "' has no place in a document of the namespace '" + narrow(rootNamespaceOf(element)) +
           "'");
  }
  if (++depth_ > maxDepth) {
    refuse("elements are nested deeper than " + std::to_string(maxDepth) + " levels");
  }
  if (handler_ != nullptr) handler_->startElement(element);
  if (isEmpty) endElement(declaration, uriId, isRoot, prefix);
}

bool CXMLParser::belongs(const DOMNode* element, const SchemaElementDecl& declaration) const {
  const XMLCh* const uri = element->getNamespaceURI();
  // A schema may declare what stands inside its own elements without a namespace.
  const bool isUnqualified = uri == nullptr && !declaration.isGlobalDecl();
  return (isUnqualified || XMLString::equals(uri, rootNamespaceOf(element))) &&
         handler_->takes(element);
}

void CXMLParser::endElement(const XMLElementDecl& declaration, unsigned int uriId, bool isRoot,
                            const XMLCh* prefix) {
  XercesDOMParser::endElement(declaration, uriId, isRoot, prefix);
  --depth_;
  if (handler_ != nullptr) handler_->newElement(getCurrentNode());
}

void CXMLParser::endDocument() {
  XercesDOMParser::endDocument();
  xercesc::DOMDocument* const document = getDocument();
  document->normalize();
  if (handler_ != nullptr) handler_->endParse(document);
}

void CXMLParser::entityDecl(const DTDEntityDecl& entity, bool isParameterEntity, bool isIgnored) {
  const std::string name = narrow(entity.getName());
  // What a DTD is made of is expanded without the limits that hold for content.
  if (isParameterEntity)
    throw messageHere("the parameter entity '" + name +
                      "' is refused: documents must be complete in themselves");
  if (entity.getValueLen() > maxEntityLength) {
    throw messageHere("the entity '" + name + "' is longer than " +
                      std::to_string(maxEntityLength) + " characters");
  }
  XercesDOMParser::entityDecl(entity, isParameterEntity, isIgnored);
}

void CXMLParser::startAttList(const DTDElementDecl& element) {
  // Defaults would be expanded without limits, and come into the model unseen by the schema.
  throw messageHere("the attribute declarations for '" + narrow(element.getFullName()) +
                    "' are refused: attributes are declared by the schema");
}

void CXMLParser::error(unsigned int code, const XMLCh* /*domain*/,
                       xercesc::XMLErrorReporter::ErrTypes /*type*/, const XMLCh* text,
                       const XMLCh* systemId, const XMLCh* publicId, XMLFileLoc line,
                       XMLFileLoc column) {
  report(as::CASParseException(static_cast<int>(code), position(line), position(column),
                               narrow(text), narrow(publicId), nameOf(systemId)));
}

InputSource* CXMLParser::resolveEntity(XMLResourceIdentifier* reference) {
  const XMLCh* const systemId = reference->getSystemId();
  const std::string name = narrow(systemId);
  if (!isSchemaReference(*reference)) {
    // At once, be the root seen or not: what the parser makes of an external DTD it never frees.
    throw messageHere("the external entity '" + name +
                      "' is refused: documents must be complete in themselves");
  }
  if (InputSource* const ours = resolver_.resolveEntity(reference->getPublicId(), systemId)) {
    return checked(ours);
  }
  switch (placeOf(reference->getBaseURI(), systemId)) {
    case Place::network:
      refuse("the schema '" + name + "' is refused: schemas are not read over a network" +
             (resolver_.hasSchemaLocation() ? "" : ", and no schema directory has been set"));
      return emptySource();
    case Place::directory:
    case Place::specialFile:
      refuse("the schema '" + name + "' is refused: it is no regular file");
      return emptySource();
    case Place::none:  // A schema may import a namespace without saying where its schema is.
    case Place::regularFile:
      break;
  }
  // Where the client has named the schemas of our namespaces, documents bring none of their own.
  return checked(resolver_.resolveNamespace(namespaceNeeded(*reference)));
}

InputSource* CXMLParser::checked(InputSource* schema) {
  std::unique_ptr<InputSource> owned(schema);
  if (schema == nullptr || placeOfFile(schema->getSystemId()) != Place::directory) {
    return owned.release();
  }
  refuse("the schema '" + narrow(schema->getSystemId()) + "' is refused: it is a directory");
  return emptySource();
}

void CXMLParser::warning(const SAXParseException& /*exception*/) {}

void CXMLParser::error(const SAXParseException& /*exception*/) {}

void CXMLParser::fatalError(const SAXParseException& /*exception*/) {}

void CXMLParser::resetErrors() {}

void CXMLParser::report(const as::CASParseException& message) {
  if (rootSeen_) throw as::CASParseException(message);
  if (!firstMessage_) firstMessage_ = message;
}

std::string CXMLParser::nameOf(const XMLCh* systemId) const {
  return systemId == nullptr || *systemId == 0 ? documentName_ : narrow(systemId);
}

void CXMLParser::refuse(const std::string& text) { report(messageHere(text)); }

as::CASParseException CXMLParser::messageHere(const std::string& text) const {
  const Locator* const at = getScanner()->getLocator();
  return {0,    position(at->getLineNumber()), position(at->getColumnNumber()),
          text, narrow(at->getPublicId()),     nameOf(at->getSystemId())};
}

#include "xml/XMLParser.h"

#include <limits>
#include <type_traits>
#include <utility>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/framework/XMLNotationDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/util/BinMemInputStream.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/validators/DTD/DTDElementDecl.hpp>
#include <xercesc/validators/DTD/DTDEntityDecl.hpp>

#include "as/CASInvalidNamespaceException.h"
#include "xml/DocumentPointer.h"
#include "xml/FileSource.h"
#include "xml/Limits.h"
#include "xml/Place.h"
#include "xml/Position.h"
#include "xml/Refusals.h"
#include "xml/XStr.h"

using xercesc::BinMemInputStream;
using xercesc::DOMNode;
using xercesc::DTDElementDecl;
using xercesc::DTDEntityDecl;
using xercesc::InputSource;
using xercesc::Locator;
using xercesc::MemBufInputSource;
using xercesc::RefVectorOf;
using xercesc::SAXParseException;
using xercesc::SchemaElementDecl;
using xercesc::XMLAttr;
using xercesc::XMLElementDecl;
using xercesc::XMLException;
using xercesc::XMLNotationDecl;
using xercesc::XMLPlatformUtils;
using xercesc::XMLResourceIdentifier;
using xercesc::XMLString;

namespace {

std::string narrow(const XMLCh* text) { return CXStr(text, false); }

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

// In the pieces in which the inspection has read them: the two of them would not agree else on a
// schema whose XML declaration is cut off.
StreamSource::Stream streamOfBytes(const std::string& bytes) {
  return std::make_unique<WatchedStream>(
      std::make_unique<BinMemInputStream>(reinterpret_cast<const XMLByte*>(bytes.data()),
                                          bytes.size(), BinMemInputStream::BufOpt_Reference),
      DtdGauge::pieceAt);
}

// The bytes have to stay as long.
std::unique_ptr<InputSource> sourceOfBytes(const std::string& bytes, const XMLCh* name) {
  return std::make_unique<StreamSource>(name, [&bytes] { return streamOfBytes(bytes); });
}

// Stands in for a schema that was refused: one with nothing in it, which lets the parser go on to
// the root.
const std::string& emptySchema() {
  static const std::string schema = "<schema xmlns='http://www.w3.org/2001/XMLSchema'/>";
  return schema;
}

std::unique_ptr<InputSource> emptySource() { return sourceOfBytes(emptySchema(), u"refused"); }

}  // namespace

// Parsers come from the XML parser's operator new, which gives no more.
static_assert(alignof(CXMLParser) <= alignof(void*));

CXMLParser::CXMLParser(std::shared_ptr<SharedSchemas> shared)
    : GrammarStore(std::move(shared)),
      TreeParser(nullptr, XMLPlatformUtils::fgMemoryManager, &grammars) {
  limits_.setEntityExpansionLimit(limits::entityExpansions);
  watchMemory();
  watchNames();
}

CXMLParser::~CXMLParser() {
  // Nothing is refused any more.
  memory.whenFull(nullptr);
  grammars.names().whenAsked(nullptr);
  // The base class would release it.
  const DocumentPointer document(adoptDocument());
}

void CXMLParser::watchMemory() {
  memory.whenFull([this] { refuseAtOnce(refusals::ofGrammars()); });
}

void CXMLParser::watchNames() {
  // The parser looks each prefix of an element up among all that this declares, and calls
  // startElement() only then. It asks for a few names besides the declared ones.
  constexpr XMLSize_t most = 2 * limits::attributes;
  grammars.names().whenAsked([this] {
    if (!isReadingSchema_ && ++named_ > most) refuseAtOnce(refusals::ofTooManyAttributes());
  });
}

void CXMLParser::parse(const XMLCh* systemId) {
  std::shared_ptr<const LocalFile> opened;
  parse(systemId, LocalFile::Opening::any, opened);
}

void CXMLParser::parse(const XMLCh* systemId, LocalFile::Opening opening,
                       std::shared_ptr<const LocalFile>& opened) {
  if (systemId == nullptr) systemId = u"";
  documentName_ = narrow(systemId);
  const auto refuseDocument = [&](const std::string& reason) {
    if (reason.empty()) return;
    throw as::CASParseException(0, 0, 0, reason, std::string(), documentName_);
  };
  if (opening == LocalFile::Opening::regular) {
    refuseDocument(refusals::ofName(documentName_, XMLString::stringLen(systemId)));
  }
  Place place;
  try {
    place = Place::ofDocument(systemId);
  } catch (const XMLException&) {
    // The current directory is gone: the parser tells.
    run(systemId, false);
    return;
  }
  if (place.kind == Place::Kind::network) {
    refuseDocument(refusals::ofDocumentOnNetwork(documentName_));
  }
  if (place.kind != Place::Kind::file) {
    run(*place.parsers, false);
    return;
  }
  if (opened == nullptr) opened = std::make_shared<const LocalFile>(place.path, opening);
  refuseDocument(opening == LocalFile::Opening::any
                     ? refusals::ofDocument(documentName_, opened->kind())
                     : refusals::ofReferredDocument(documentName_, opened->kind()));
  run(FileSource(opened, place.parsers->getSystemId()), opened->kind() == LocalFile::Kind::regular);
}

void CXMLParser::parse(MemBufInputSource* source) {
  documentName_ = narrow(source->getSystemId());
  run(*source, true);
}

template <class Source>
void CXMLParser::run(const Source& source, bool canRepeat) {
  setValidationScheme(Val_Always);
  setEntityResolver(&resolver_);
  setErrorHandler(this);
  setDoSchema(true);
  setDoNamespaces(true);
  setSecurityManager(&limits_);
  useCachedGrammarInParse(canRepeat && grammars.shared() != nullptr);
  // The text of an entity counts as if it stood in its place, so that no list passes over it.
  setCreateEntityReferenceNodes(false);
  setIncludeIgnorableWhitespace(handler_ == nullptr || handler_->keepsBlanks());
  try {
    if constexpr (std::is_base_of_v<InputSource, Source>) {
      XercesDOMParser::parse(StreamSource(source.getSystemId(), [&] { return watched(source); }));
    } else {
      XercesDOMParser::parse(source);
    }
  } catch (const as::CASParseException&) {
    throw;
  } catch (const as::CASInvalidNamespaceException&) {
    throw;
  } catch (const SharedSchemas::NotShared&) {
    throw;
  } catch (...) {
    // The caller finds what the handler had built until then.
    if (isSharing()) grammars.shared()->spoil();
  }
  if (firstMessage_) throw as::CASParseException(*firstMessage_);
  // The model keeps the parser.
  brought_.clear();
}

void CXMLParser::startElement(const XMLElementDecl& declaration, unsigned int uriId,
                              const XMLCh* prefix, const RefVectorOf<XMLAttr>& attributes,
                              XMLSize_t attributeCount, bool isEmpty, bool isRoot) {
  // In front of the DOM, which would hold them.
  if (attributeCount > limits::attributes) refuseAtOnce(refusals::ofTooManyAttributes());
  if (!brought_.empty()) countAttributes(attributes, attributeCount);
  named_ = 0;
  isReadingSchema_ = false;
  declared_ = 0;
  beginElement(declaration, uriId, prefix, attributes, attributeCount);
  if (declared_ > 0) checkNamespaces();
  if (!brought_.empty()) countConstraints(declaration);
  DOMNode* const element = getCurrentNode();
  if (isRoot) {
    dtd_.end();
    if (memory.isOverfull()) refuseAtOnce(refusals::ofGrammars());
    if (handler_ != nullptr) {
      handler_->startDocument(element);
      handler_->tellNames(names());
    }
    rootSeen_ = true;
    if (firstMessage_) throw as::CASParseException(*firstMessage_);
  }
  // A DTD in the document, or a wildcard in a schema, may let elements in that no schema has
  // looked at: the handlers rely on the schema.
  if (declaration.getObjectType() != XMLElementDecl::Schema || !declaration.isDeclared()) {
    refuse(refusals::ofUndeclared(narrow(element->getNodeName())));
  }
  if (handler_ != nullptr &&
      !belongs(element, static_cast<const SchemaElementDecl&>(declaration))) {
    refuse(refusals::ofForeign(narrow(element->getNodeName()), narrow(rootNamespaceOf(element))));
  }
  if (++depth_ > limits::depth) refuse(refusals::ofTooManyLevels());
  if (handler_ != nullptr) handler_->startElement(element);
  if (isEmpty) endElement(declaration, uriId, isRoot, prefix);
}

void CXMLParser::declaresNamespace(const XMLCh* prefix, const XMLCh* uri) {
  declared_++;
  prefixes_.insert(prefix);
  uris_.insert(uri);
  refuseAtOnce(refusals::ofNumber("different prefixes", prefixes_.size(), limits::prefixes));
  refuseAtOnce(refusals::ofNumber("different namespaces", uris_.size(), limits::prefixes));
}

void CXMLParser::checkNamespaces() {
  namespaces_.add(depth_, declared_);
  refuseAtOnce(refusals::ofNumber("namespace declarations of elements around each other",
                                  namespaces_.sum, limits::declaredNamespaces));
}

void CXMLParser::countConstraints(const XMLElementDecl& declaration) {
  if (declaration.getObjectType() != XMLElementDecl::Schema) return;
  constraints_.add(depth_,
                   static_cast<const SchemaElementDecl&>(declaration).getIdentityConstraintCount());
  refuseAtOnce(refusals::ofSchemas(
      "keys, references to keys and unique values of elements around each other", constraints_.sum,
      limits::schemaOpenConstraints));
}

void CXMLParser::OpenSum::add(XMLSize_t depth, XMLSize_t number) {
  if (number == 0) return;
  open.push_back({depth, number});
  sum += number;
}

void CXMLParser::OpenSum::leave(XMLSize_t depth) {
  if (open.empty() || open.back().depth != depth) return;
  sum -= open.back().number;
  open.pop_back();
}

void CXMLParser::countAttributes(const RefVectorOf<XMLAttr>& attributes, XMLSize_t attributeCount) {
  for (XMLSize_t i = 0; i < attributeCount; i++) {
    const XMLAttr& attribute = *attributes.elementAt(i);
    if (!attribute.getSpecified()) defaults_++;
    attributeNames_.insert(attribute.getQName());
  }
  refuseAtOnce(refusals::ofNumber("different names of attributes", attributeNames_.size(),
                                  limits::attributeNames));
  refuseAtOnce(refusals::ofSchemas("default and fixed values that the document takes over",
                                   defaults_, limits::schemaDefaults));
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
  namespaces_.leave(depth_);
  constraints_.leave(depth_);
  if (handler_ != nullptr) handler_->newElement(getCurrentNode());
}

void CXMLParser::endDocument() {
  XercesDOMParser::endDocument();
  // Needs no normalising, which would look at every node: the DOM parser puts a run of characters
  // into one text, in however many pieces it comes, as long as it makes no entity references.
  if (handler_ != nullptr) handler_->endParse(getDocument());
}

void CXMLParser::XMLDecl(const XMLCh* version, const XMLCh* encoding, const XMLCh* standalone,
                         const XMLCh* actualEncoding) {
  refuseAtOnce(refusals::ofVersion(version));
  XercesDOMParser::XMLDecl(version, encoding, standalone, actualEncoding);
}

void CXMLParser::doctypeDecl(const DTDElementDecl& root, const XMLCh* publicId,
                             const XMLCh* systemId, bool hasInternal, bool hasExternal) {
  // The parser goes other ways through a DTD where it shares grammars.
  if (isSharing()) throw SharedSchemas::NotShared();
  XercesDOMParser::doctypeDecl(root, publicId, systemId, hasInternal, hasExternal);
  if (!hasInternal) return;
  dtd_.begin();
  // A content model may be large, and what frees it needs as much memory again, in a destructor.
  memory.whenFull(nullptr);
}

void CXMLParser::endIntSubset() {
  XercesDOMParser::endIntSubset();
  refuseAtOnce(dtd_.reasonSoFar());
  dtd_.end();
  watchMemory();
}

void CXMLParser::entityDecl(const DTDEntityDecl& entity, bool isParameterEntity, bool isIgnored) {
  refuseAtOnce(refusals::ofEntity(entity, isParameterEntity));
  refuseAtOnce(dtd_.reasonAfterDeclaration());
  XercesDOMParser::entityDecl(entity, isParameterEntity, isIgnored);
}

void CXMLParser::startAttList(const DTDElementDecl& element) {
  refuseAtOnce(refusals::ofAttributeDeclarations(element));
}

void CXMLParser::elementDecl(const DTDElementDecl& element, bool isIgnored) {
  refuseAtOnce(dtd_.reasonAfterDeclaration());
  XercesDOMParser::elementDecl(element, isIgnored);
}

void CXMLParser::notationDecl(const XMLNotationDecl& notation, bool isIgnored) {
  refuseAtOnce(dtd_.reasonAfterDeclaration());
  XercesDOMParser::notationDecl(notation, isIgnored);
}

void CXMLParser::error(unsigned int code, const XMLCh* /*domain*/,
                       xercesc::XMLErrorReporter::ErrTypes /*type*/, const XMLCh* text,
                       const XMLCh* systemId, const XMLCh* publicId, XMLFileLoc line,
                       XMLFileLoc column) {
  report(as::CASParseException(static_cast<int>(code), position(line), position(column),
                               narrow(text), narrow(publicId), nameOf(systemId)));
}

InputSource* CXMLParser::resolveEntity(XMLResourceIdentifier* reference) {
  if (!isSchemaReference(*reference)) {
    // What the parser makes of an external DTD it never frees.
    refuseAtOnce(refusals::ofExternalEntity(narrow(reference->getSystemId())));
  }
  isReadingSchema_ = true;
  // A document that brings schemas has all of them to itself.
  if (isSharing()) throw SharedSchemas::NotShared();
  return sourceOf(*reference).release();
}

StreamSource::Stream CXMLParser::watched(const InputSource& source) {
  StreamSource::Stream stream(source.makeStream());
  if (!stream) return stream;
  return std::make_unique<WatchedStream>(std::move(stream), [this](XMLFilePos place) {
    refuseAtOnce(dtd_.reasonSoFar());
    // There is no DTD behind the root.
    return rootSeen_ ? std::numeric_limits<XMLSize_t>::max() : DtdGauge::pieceAt(place);
  });
}

std::unique_ptr<InputSource> CXMLParser::sourceOf(const XMLResourceIdentifier& reference) {
  const bool isPart =
      reference.getResourceIdentifierType() != XMLResourceIdentifier::SchemaGrammar &&
      reference.getBaseURI() != nullptr;
  const bool isFromClients = isPart && clients_.contains(reference.getBaseURI());
  if (!isFromClients) {
    refuseAtOnce(refusals::ofSchemas("places of schemas", ++places_, limits::schemaPlaces));
  }
  if (memory.isOverfull()) refuseAtOnce(refusals::ofGrammars());
  const auto ofDirectory = [&](InputSource* named) {
    const std::unique_ptr<InputSource> owned(named);
    return clients(narrow(named->getSystemId()), named->getSystemId());
  };
  const XMLCh* const systemId = reference.getSystemId();
  if (InputSource* const ours = resolver_.resolveEntity(reference.getPublicId(), systemId)) {
    return ofDirectory(ours);
  }
  const std::string name = narrow(systemId);
  Place place = Place::ofReference(reference.getBaseURI(), systemId);
  std::string reason = refusals::ofName(name, XMLString::stringLen(systemId));
  if (place.kind == Place::Kind::network) {
    reason = refusals::ofSchemaOnNetwork(name, resolver_.hasSchemaLocation());
  } else if (place.kind == Place::Kind::file) {
    reason = refusals::ofSchema(name, LocalFile::kindAt(place.path));
  }
  if (!reason.empty()) {
    refuse(reason);
    return emptySource();
  }
  // Where the client has named the schemas of our namespaces, documents bring none of their own.
  if (InputSource* const ours = resolver_.resolveNamespace(namespaceNeeded(reference))) {
    return ofDirectory(ours);
  }
  if (place.kind != Place::Kind::file) return std::move(place.parsers);
  const XMLCh* const called = place.parsers->getSystemId();
  if (isFromClients) return clients(place.path, called);
  return brought(place.path, called);
}

std::unique_ptr<InputSource> CXMLParser::clients(const std::string& path, const XMLCh* name) {
  auto file = std::make_shared<const LocalFile>(path, LocalFile::Opening::regular);
  const std::string reason = refusals::ofClientsSchema(narrow(name), file->kind());
  if (!reason.empty()) {
    refuse(reason);
    return emptySource();
  }
  clients_.insert(name);
  return std::make_unique<FileSource>(std::move(file), name);
}

std::unique_ptr<InputSource> CXMLParser::brought(const std::string& path, const XMLCh* name) {
  const auto [entry, isNew] = brought_.try_emplace(name);
  std::string& schema = entry->second;
  if (!isNew) {
    // Whether it is read again, for another namespace, is not known yet.
    return std::make_unique<StreamSource>(
        name, [this, &read = *entry] { return openBrought(read.second, read.first.c_str()); });
  }
  const auto file = std::make_shared<const LocalFile>(path, LocalFile::Opening::regular);
  if (file->kind() == LocalFile::Kind::missing) {
    brought_.erase(entry);
    return std::make_unique<FileSource>(file, name);
  }
  std::string reason = refusals::ofSchema(narrow(name), file->kind());
  if (reason.empty()) {
    // One byte more than there may be tells that there are too many.
    schema.resize(limits::schemaBytes - broughtBytes_ + 1);
    schema.resize(file->read(schema.data(), schema.size(), 0));
    schema.shrink_to_fit();
    broughtBytes_ += schema.size();
    reason = refusals::ofSchemas("bytes", broughtBytes_, limits::schemaBytes);
  }
  if (!reason.empty()) {
    schema = emptySchema();
    refuse(reason);
  } else if (const auto refusal = inspection_.refusalOf(schema, name)) {
    schema = emptySchema();
    report(*refusal);
  }
  return sourceOfBytes(schema, name);
}

StreamSource::Stream CXMLParser::openBrought(const std::string& schema, const XMLCh* name) {
  broughtBytes_ += schema.size();
  const std::string reason = refusals::ofSchemas("bytes", broughtBytes_, limits::schemaBytes);
  std::optional<as::CASParseException> refusal;
  if (!reason.empty()) {
    refusal = messageHere(reason);
  } else {
    refusal = inspection_.refusalOf(schema, name);
  }
  if (refusal) report(*refusal);
  return streamOfBytes(refusal ? emptySchema() : schema);
}

void CXMLParser::warning(const SAXParseException& /*exception*/) {}

void CXMLParser::error(const SAXParseException& /*exception*/) {}

void CXMLParser::fatalError(const SAXParseException& /*exception*/) {}

void CXMLParser::resetErrors() {}

void CXMLParser::report(const as::CASParseException& message) {
  if (rootSeen_) stop(message);
  if (!firstMessage_) firstMessage_ = message;
}

void CXMLParser::stop(const as::CASParseException& message) {
  throw as::CASParseException(firstMessage_ ? *firstMessage_ : message);
}

std::string CXMLParser::nameOf(const XMLCh* systemId) const {
  return systemId == nullptr || *systemId == 0 ? documentName_ : narrow(systemId);
}

void CXMLParser::refuse(const std::string& reason) {
  if (!reason.empty()) report(messageHere(reason));
}

void CXMLParser::refuseAtOnce(const std::string& reason) {
  if (!reason.empty()) stop(messageHere(reason));
}

as::CASParseException CXMLParser::messageHere(const std::string& text) const {
  const Locator* const at = getScanner()->getLocator();
  return {0,    position(at->getLineNumber()), position(at->getColumnNumber()),
          text, narrow(at->getPublicId()),     nameOf(at->getSystemId())};
}

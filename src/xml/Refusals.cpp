#include "xml/Refusals.h"

#include <xercesc/util/XMLString.hpp>

#include "xml/Limits.h"
#include "xml/XStr.h"

using xercesc::XMLString;

namespace {

std::string narrow(const XMLCh* text) { return CXStr(text, false); }

std::string refused(const std::string& what, const std::string& name, const std::string& reason) {
  return "the " + what + " '" + name + "' is refused: " + reason;
}

constexpr char incomplete[] = "documents must be complete in themselves";

}  // namespace

std::string refusals::ofDocument(const std::string& name, LocalFile::Kind kind) {
  if (kind != LocalFile::Kind::directory) return {};
  return refused("document", name, "it is a directory");
}

std::string refusals::ofDocumentOnNetwork(const std::string& name) {
  return refused("document", name, "documents are not read over a network");
}

std::string refusals::ofName(const std::string& name, XMLSize_t length) {
  if (length <= limits::placeLength) return {};
  constexpr std::size_t shown = 60;
  return "the name '" + name.substr(0, shown) + "...' is refused: it is longer than " +
         std::to_string(limits::placeLength) + " characters";
}

std::string refusals::ofReferredDocument(const std::string& name, LocalFile::Kind kind) {
  if (kind != LocalFile::Kind::special) return ofDocument(name, kind);
  return refused("document", name, "it is no regular file");
}

std::string refusals::ofSchema(const std::string& name, LocalFile::Kind kind) {
  // Reading a device or a FIFO may never end, and the parser fails to free what it has made for a
  // directory.
  if (kind == LocalFile::Kind::regular || kind == LocalFile::Kind::missing) return {};
  return refused("schema", name, "it is no regular file");
}

std::string refusals::ofClientsSchema(const std::string& name, LocalFile::Kind kind) {
  if (kind != LocalFile::Kind::directory) return ofSchema(name, kind);
  return refused("schema", name, "it is a directory");
}

std::string refusals::ofSchemaOnNetwork(const std::string& name, bool hasSchemaDirectory) {
  return refused("schema", name,
                 std::string("schemas are not read over a network") +
                     (hasSchemaDirectory ? "" : ", and no schema directory has been set"));
}

std::string refusals::ofExternalEntity(const std::string& name) {
  return refused("external entity", name, incomplete);
}

std::string refusals::ofEntity(const xercesc::DTDEntityDecl& entity, bool isParameterEntity) {
  const std::string name = narrow(entity.getName());
  // What a DTD is made of is expanded without the limits that hold for content.
  if (isParameterEntity) return refused("parameter entity", name, incomplete);
  if (entity.getValueLen() <= limits::entityLength) return {};
  return "the entity '" + name + "' is longer than " + std::to_string(limits::entityLength) +
         " characters";
}

std::string refusals::ofAttributeDeclarations(const xercesc::DTDElementDecl& element) {
  // Defaults would be expanded without limits, and come into the model unseen by the schema.
  return "the attribute declarations for '" + narrow(element.getFullName()) +
         "' are refused: attributes are declared by the schema";
}

std::string refusals::ofDtd(const char* what, XMLSize_t number, XMLSize_t limit) {
  if (number <= limit) return {};
  return "the DTD is refused: there are more than " + std::to_string(limit) + " " + what;
}

std::string refusals::ofVersion(const XMLCh* version) {
  // The parser reads others, too, but has no tree for them, and does not tell.
  if (XMLString::equals(version, u"1.0") || XMLString::equals(version, u"1.1")) return {};
  return "version '" + narrow(version) + "' of XML is not known";
}

std::string refusals::ofTooManyAttributes() {
  return "an element has more than " + std::to_string(limits::attributes) + " attributes";
}

std::string refusals::ofNumber(const char* what, XMLSize_t number, XMLSize_t limit) {
  if (number <= limit) return {};
  return "there are more than " + std::to_string(limit) + " " + what;
}

std::string refusals::ofTooManyLevels() {
  return "elements are nested deeper than " + std::to_string(limits::depth) + " levels";
}

std::string refusals::ofUndeclared(const std::string& element) {
  return "no schema declares the element '" + element + "'";
}

std::string refusals::ofForeign(const std::string& element, const std::string& uri) {
  return "the element '" + element + "' has no place in a document of the namespace '" + uri + "'";
}

std::string refusals::ofSchemas(const char* what, XMLSize_t number, XMLSize_t limit) {
  if (number <= limit) return {};
  return "the schemas that the document brings are refused: there are more than " +
         std::to_string(limit) + " " + what;
}

std::string refusals::ofPattern(const std::string& pattern) {
  return refused("pattern", pattern,
                 "a schema that a document brings may only have patterns in which every character "
                 "decides how they go on");
}

std::string refusals::ofGrammars() {
  return "the schemas are refused: what they come to takes more than " +
         std::to_string(limits::schemaMemory) + " bytes";
}

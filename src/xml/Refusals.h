// What is refused of documents, and of the schemas that they bring, in words: the policy of a
// parse.
#ifndef XML_REFUSALS_H_
#define XML_REFUSALS_H_

#include <string>
#include <xercesc/util/XercesDefs.hpp>
#include <xercesc/validators/DTD/DTDElementDecl.hpp>
#include <xercesc/validators/DTD/DTDEntityDecl.hpp>

#include "xml/LocalFile.h"

// Each function answers why a thing is refused; with nothing when it is not. The numbers are those
// of Limits.h.
namespace refusals {

// What the client names as a document: anything on this machine that can be read.
std::string ofDocument(const std::string& name, LocalFile::Kind kind);
std::string ofDocumentOnNetwork(const std::string& name);

// The name of a document or schema, of so many characters.
std::string ofName(const std::string& name, XMLSize_t length);

// A document that another names.
std::string ofReferredDocument(const std::string& name, LocalFile::Kind kind);

// What a document, or the client, has for a schema: only regular files. One that is missing the
// parser tells.
std::string ofSchema(const std::string& name, LocalFile::Kind kind);
std::string ofClientsSchema(const std::string& name, LocalFile::Kind kind);
std::string ofSchemaOnNetwork(const std::string& name, bool hasSchemaDirectory);
std::string ofExternalEntity(const std::string& name);

// What stands in a DTD.
std::string ofEntity(const xercesc::DTDEntityDecl& entity, bool isParameterEntity);
std::string ofAttributeDeclarations(const xercesc::DTDElementDecl& element);
std::string ofDtd(const char* what, XMLSize_t number, XMLSize_t limit);

// What stands in a document; the numbers are compared where they are counted, element by element.
std::string ofVersion(const XMLCh* version);
std::string ofTooManyAttributes();
std::string ofNumber(const char* what, XMLSize_t number, XMLSize_t limit);
std::string ofTooManyLevels();
std::string ofUndeclared(const std::string& element);
std::string ofForeign(const std::string& element, const std::string& uri);

// What stands in the schemas that a document brings: more of `what` than the limit.
std::string ofSchemas(const char* what, XMLSize_t number, XMLSize_t limit);
// A pattern in them.
std::string ofPattern(const std::string& pattern);
// What the parser has made of all schemas, which has reached the limit.
std::string ofGrammars();

}  // namespace refusals

#endif  // XML_REFUSALS_H_

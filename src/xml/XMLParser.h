// The validating parser: reads one document into a DOM tree and has a handler wrap it on the way.
#ifndef XML_XMLPARSER_H_
#define XML_XMLPARSER_H_

#include <optional>
#include <string>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/validators/schema/SchemaElementDecl.hpp>

#include "as/CASParseException.h"
#include "xml/ElementHandler.h"
#include "xml/VorEntityResolver.h"

// One parser serves one parse. It holds the DOM document afterwards, and is therefore kept by the
// model that was built from it.
//
// Documents may come from anywhere, so nothing that one names is fetched over a network; external
// entities, external DTDs, parameter entities and attribute declarations of a DTD are refused;
// expansion of internal entities and nesting are bounded. Every refusal is an
// as::CASParseException.
class CXMLParser : public xercesc::XercesDOMParser, public xercesc::ErrorHandler {
 public:
  // How deep elements may nest. Models are walked recursively; this keeps every walk within the
  // smallest usual thread stack.
  static constexpr int maxDepth = 2048;
  // How many attributes, namespace declarations included, an element may have.
  static constexpr XMLSize_t maxAttributes = 1000;
  // How many internal entities a document may expand, and how long each may be: together they
  // bound what a small document can blow up to.
  static constexpr int maxEntityExpansions = 1000;
  static constexpr XMLSize_t maxEntityLength = 65536;

  CXMLParser();
  ~CXMLParser() override;

  // The handler to drive; null for none: then only the DOM tree is built. Not owned.
  void setElementHandler(CElementHandler* handler) { handler_ = handler; }
  // See VorEntityResolver.
  void setSchemaLocation(const char* directory) { resolver_.setSchemaLocation(directory); }

  // Parses the document named `systemId`, or the memory buffer. Throws as::CASParseException with
  // the document's first message of whatever severity, and as::CASInvalidNamespaceException when
  // the handler does; any other exception is swallowed, and the caller finds what the handler had
  // built until then.
  //
  // Messages about a document whose root has not been seen yet give way to the handler's check of
  // the root's namespace: a root in a foreign namespace is also one that no schema declares.
  void parse(const XMLCh* systemId);
  void parse(xercesc::MemBufInputSource* source);

  // From the parser's document side: let the DOM parser do its work, then drive the handler.
  void startElement(const xercesc::XMLElementDecl& declaration, unsigned int uriId,
                    const XMLCh* prefix, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                    XMLSize_t attributeCount, bool isEmpty, bool isRoot) override;
  void endElement(const xercesc::XMLElementDecl& declaration, unsigned int uriId, bool isRoot,
                  const XMLCh* prefix) override;
  void endDocument() override;
  void entityDecl(const xercesc::DTDEntityDecl& entity, bool isParameterEntity,
                  bool isIgnored) override;
  void startAttList(const xercesc::DTDElementDecl& element) override;

  // From the parser's error reporter: every message, warnings included, ends the parse.
  void error(unsigned int code, const XMLCh* domain, xercesc::XMLErrorReporter::ErrTypes type,
             const XMLCh* text, const XMLCh* systemId, const XMLCh* publicId, XMLFileLoc line,
             XMLFileLoc column) override;

  // From the parser's entity handler: what a document refers to.
  xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* reference) override;

  // The error handler has nothing to do: no message gets that far.
  void warning(const xercesc::SAXParseException& exception) override;
  void error(const xercesc::SAXParseException& exception) override;
  void fatalError(const xercesc::SAXParseException& exception) override;
  void resetErrors() override;

 private:
  template <class Source>
  void run(const Source& source);
  // `schema`, a source of the resolver's or null, unless it is a directory, which is refused. Takes
  // and gives ownership.
  xercesc::InputSource* checked(xercesc::InputSource* schema);
  // Whether the handler may be given `element`, which that declaration of a schema let in.
  bool belongs(const xercesc::DOMNode* element,
               const xercesc::SchemaElementDecl& declaration) const;
  // Ends the parse with `message`, or keeps it for the root's sake; see parse().
  void report(const as::CASParseException& message);
  // Ends the parse with a message of this library's own, at the place reached in the document.
  void refuse(const std::string& text);
  // `systemId`, or the document's name for a message that is about no entity (one that cannot be
  // opened, say): a message always tells which document it is about.
  std::string nameOf(const XMLCh* systemId) const;
  // Such a message.
  as::CASParseException messageHere(const std::string& text) const;

  CElementHandler* handler_ = nullptr;
  VorEntityResolver resolver_;
  xercesc::SecurityManager limits_;
  std::string documentName_;
  bool rootSeen_ = false;
  int depth_ = 0;
  std::optional<as::CASParseException> firstMessage_;
};

#endif  // XML_XMLPARSER_H_

// The validating parser: reads one document into a DOM tree and has a handler wrap it on the way.
#ifndef XML_XMLPARSER_H_
#define XML_XMLPARSER_H_

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_set>
#include <vector>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/validators/schema/SchemaElementDecl.hpp>

#include "as/CASParseException.h"
#include "xml/DtdGauge.h"
#include "xml/ElementHandler.h"
#include "xml/LocalFile.h"
#include "xml/ParseGrammars.h"
#include "xml/SchemaInspection.h"
#include "xml/StreamSource.h"
#include "xml/TreeParser.h"
#include "xml/VorEntityResolver.h"

// One parser serves one parse. It holds the DOM document afterwards, and is therefore kept by the
// model that was built from it.
//
// Documents may come from anywhere. Refusals.h tells what is refused of them and of the schemas
// that they bring, Limits.def what bounds them. Every refusal is an as::CASParseException. Whatever
// is read is opened here, once, and judged as it is read: the parser opens nothing.
class CXMLParser : public TreeParser, public xercesc::ErrorHandler, protected virtual GrammarStore {
 public:
  // Parses with the schemas that are shared, where they are given and will do; the parse throws
  // SharedSchemas::NotShared where they will not, and is to be made again by another parser.
  explicit CXMLParser(std::shared_ptr<SharedSchemas> shared = nullptr);
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
  // The same for a document that another document names where that is how it must be opened.
  // `opened` is null at first; the parse that repeats one is given what that has left there, and
  // reads the very file that was opened.
  void parse(const XMLCh* systemId, LocalFile::Opening opening,
             std::shared_ptr<const LocalFile>& opened);

  // From the parser's document side: let the DOM parser do its work, then drive the handler.
  void startElement(const xercesc::XMLElementDecl& declaration, unsigned int uriId,
                    const XMLCh* prefix, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                    XMLSize_t attributeCount, bool isEmpty, bool isRoot) override;
  void endElement(const xercesc::XMLElementDecl& declaration, unsigned int uriId, bool isRoot,
                  const XMLCh* prefix) override;
  void endDocument() override;
  void XMLDecl(const XMLCh* version, const XMLCh* encoding, const XMLCh* standalone,
               const XMLCh* actualEncoding) override;
  void doctypeDecl(const xercesc::DTDElementDecl& root, const XMLCh* publicId,
                   const XMLCh* systemId, bool hasInternal, bool hasExternal) override;
  void entityDecl(const xercesc::DTDEntityDecl& entity, bool isParameterEntity,
                  bool isIgnored) override;
  void startAttList(const xercesc::DTDElementDecl& element) override;
  void elementDecl(const xercesc::DTDElementDecl& element, bool isIgnored) override;
  void notationDecl(const xercesc::XMLNotationDecl& notation, bool isIgnored) override;
  void endIntSubset() override;

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

 protected:
  void declaresNamespace(const XMLCh* prefix, const XMLCh* uri) override;

 private:
  // Whether the parse shares schemas.
  bool isSharing() const { return isUsingCachedGrammarInParse(); }
  // What `canRepeat` can be read again if need be: only then may the parse share schemas.
  template <class Source>
  void run(const Source& source, bool canRepeat);

  // The source of a schema: what `reference` leads to, or stands for.
  std::unique_ptr<xercesc::InputSource> sourceOf(const xercesc::XMLResourceIdentifier& reference);
  // That of a schema of the schema directory, or of one that such a schema refers to: the client's.
  std::unique_ptr<xercesc::InputSource> clients(const std::string& path, const XMLCh* name);
  // That of a schema which the document brings.
  std::unique_ptr<xercesc::InputSource> brought(const std::string& path, const XMLCh* name);

  // Opens a schema that the document brings, as it was read, once more.
  StreamSource::Stream openBrought(const std::string& schema, const XMLCh* name);

  // Has the parse end when what is made of schemas passes its limit.
  void watchMemory();

  // The document's source: pieces of it are handed out as long as nothing is refused.
  StreamSource::Stream watched(const xercesc::InputSource& source);

  // Has the parse end at an element that declares too many namespaces.
  void watchNames();

  // What is refused of the namespaces that an element declares, and those around it.
  void checkNamespaces();
  // Counts the constraints of a schema that the document has brought, which hold inside the
  // element.
  void countConstraints(const xercesc::XMLElementDecl& declaration);
  // Counts the names of attributes, and those that come from a schema, where the document has
  // brought one.
  void countAttributes(const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                       XMLSize_t attributeCount);
  // Whether the handler may be given `element`, which that declaration of a schema let in.
  bool belongs(const xercesc::DOMNode* element,
               const xercesc::SchemaElementDecl& declaration) const;

  // The one way out: the first message ends the parse, at once or, while the root has not been seen
  // yet, when it is; see parse().
  void report(const as::CASParseException& message);
  // For a message that cannot wait: the parse ends at once, with the first message all the same.
  [[noreturn]] void stop(const as::CASParseException& message);
  // The same with a message of this library's own, at the place reached in the document, unless
  // there is no reason for one.
  void refuse(const std::string& reason);
  void refuseAtOnce(const std::string& reason);
  // `systemId`, or the document's name for a message that is about no entity (one that cannot be
  // opened, say): a message always tells which document it is about.
  std::string nameOf(const XMLCh* systemId) const;
  // Such a message.
  as::CASParseException messageHere(const std::string& text) const;

  using Name = std::basic_string<XMLCh>;

  CElementHandler* handler_ = nullptr;
  VorEntityResolver resolver_;
  xercesc::SecurityManager limits_;
  std::string documentName_;
  bool rootSeen_ = false;
  XMLSize_t depth_ = 0;
  std::optional<as::CASParseException> firstMessage_;
  // The schemas that are the client's own.
  std::set<Name> clients_;
  // Those that the document brings, as they were read; only while it is parsed.
  std::map<Name, std::string> brought_;
  // How many places of schemas it has told, and they.
  XMLSize_t places_ = 0;
  XMLSize_t broughtBytes_ = 0;
  XMLSize_t defaults_ = 0;
  SchemaInspection inspection_;
  DtdGauge dtd_{memory};
  // What the elements that are open have of their own: only those that have something.
  struct Open {
    XMLSize_t depth;
    XMLSize_t number;
  };
  // A sum over the elements that are open.
  struct OpenSum {
    std::vector<Open> open;
    XMLSize_t sum = 0;
    void add(XMLSize_t depth, XMLSize_t number);
    void leave(XMLSize_t depth);
  };
  OpenSum namespaces_;
  OpenSum constraints_;
  XMLSize_t declared_ = 0;  // Namespaces, by the element that begins.
  // Names of namespaces that the parser has asked for since the last element began, and whether
  // some are those of a schema.
  XMLSize_t named_ = 0;
  bool isReadingSchema_ = false;
  std::unordered_set<std::u16string> prefixes_;
  std::unordered_set<std::u16string> uris_;
  std::unordered_set<std::u16string> attributeNames_;
};

#endif  // XML_XMLPARSER_H_

#include "xml/SchemaCompiler.h"

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/schema/SchemaSymbols.hpp>
#include <xercesc/validators/schema/XMLSchemaDescriptionImpl.hpp>

using xercesc::Grammar;
using xercesc::InputSource;
using xercesc::MemBufInputSource;
using xercesc::XMLPlatformUtils;
using xercesc::XMLUni;

namespace {

// Thrown where the parser has something to tell of a schema, or asks for more than it.
struct Unfit {};

class Compiler final : public xercesc::XercesDOMParser {
 public:
  explicit Compiler(xercesc::XMLGrammarPool* grammars)
      : XercesDOMParser(nullptr, XMLPlatformUtils::fgMemoryManager, grammars) {
    setValidationScheme(Val_Always);
    setDoNamespaces(true);
    setDoSchema(true);
    // Without these it would call nobody.
    setEntityResolver(&nobody_);
    setErrorHandler(&nobody_);
  }

  void error(unsigned int /*code*/, const XMLCh* /*domain*/,
             xercesc::XMLErrorReporter::ErrTypes /*type*/, const XMLCh* /*text*/,
             const XMLCh* /*systemId*/, const XMLCh* /*publicId*/, XMLFileLoc /*line*/,
             XMLFileLoc /*column*/) override {
    throw Unfit();
  }
  InputSource* resolveEntity(xercesc::XMLResourceIdentifier* /*reference*/) override {
    throw Unfit();
  }

 private:
  xercesc::HandlerBase nobody_;
};

}  // namespace

void numberNamespaces(xercesc::XMLStringPool& names) {
  for (const XMLCh* const name : {
           // Those of every parser, in the parser's order.
           XMLUni::fgZeroLenString,
           XMLUni::fgUnknownURIName,
           XMLUni::fgXMLURIName,
           XMLUni::fgXMLNSURIName,
           xercesc::SchemaSymbols::fgURI_SCHEMAFORSCHEMA,
#define AS_NAMESPACE(name, uri, file) static_cast<const XMLCh*>(u"" uri),
#include "as/Namespaces.def"
       }) {
    names.addOrFind(name);
  }
}

Grammar* compileSchema(const XMLCh* uri, const std::string& text,
                       xercesc::XMLGrammarPoolImpl& grammars) {
  const MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(), uri);
  try {
    Compiler compiler(&grammars);
    compiler.loadGrammar(source, Grammar::SchemaGrammarType, true);
  } catch (const Unfit&) {
    return nullptr;
  }
  // None when the schema is for another namespace.
  return grammarIn(grammars, uri);
}

Grammar* grammarIn(xercesc::XMLGrammarPoolImpl& grammars, const XMLCh* uri) {
  xercesc::XMLSchemaDescriptionImpl description(uri, XMLPlatformUtils::fgMemoryManager);
  return grammars.retrieveGrammar(&description);
}

#include "xml/SharedSchemas.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/validators/schema/XMLSchemaDescriptionImpl.hpp>

#include "xml/LocalFile.h"
#include "xml/XStr.h"

using xercesc::Grammar;
using xercesc::InputSource;
using xercesc::MemBufInputSource;
using xercesc::XMLPlatformUtils;

namespace {

// Thrown where the parser has something to tell of a schema, or asks for more than it.
struct Unfit {};

// Compiles one schema, as the parser of a document would.
class SchemaCompiler final : public xercesc::XercesDOMParser {
 public:
  explicit SchemaCompiler(xercesc::XMLGrammarPool* grammars)
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

std::string contentOf(const LocalFile& file) {
  constexpr std::size_t step = 65536;
  std::string content;
  for (std::size_t got = step; got == step;) {
    const std::size_t before = content.size();
    content.resize(before + step);
    got = file.read(content.data() + before, step, before);
    content.resize(before + got);
  }
  return content;
}

}  // namespace

SharedSchemas::SharedSchemas(std::string directory) : directory_(std::move(directory)) {
  resolver_.setSchemaLocation(directory_.c_str());
  // Whoever reads the schema by itself is told.
  memory_.whenFull([this] {
    spoil();
    throw NotShared();
  });
}

SharedSchemas::~SharedSchemas() {
  // Nothing is refused any more.
  memory_.whenFull(nullptr);
}

void SharedSchemas::add(const XMLCh* uri) {
  std::optional<std::string> text = textNow(uri);
  Grammar* const grammar = text ? compile(uri, *text) : nullptr;
  schemas_.emplace(uri, Schema{std::move(text), grammar});
}

Grammar* SharedSchemas::grammarFor(const XMLCh* uri, const XMLCh* place) {
  if (!VorEntityResolver::isPlaceOf(uri, place)) throw NotShared();
  const auto found = schemas_.find(uri);
  if (found == schemas_.end() || textNow(uri) != found->second.text) throw NotShared{uri};
  if (found->second.grammar == nullptr) throw NotShared();
  return found->second.grammar;
}

// What stands in the file of the schema.
std::optional<std::string> SharedSchemas::textNow(const XMLCh* uri) {
  const std::unique_ptr<InputSource> named(resolver_.resolveNamespace(uri));
  if (named == nullptr) return std::nullopt;
  const LocalFile file(CXStr(named->getSystemId(), false), LocalFile::Opening::regular);
  if (file.kind() != LocalFile::Kind::regular) return std::nullopt;
  return contentOf(file);
}

Grammar* SharedSchemas::compile(const XMLCh* uri, const std::string& text) {
  const MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(), uri);
  try {
    SchemaCompiler compiler(&grammars_);
    compiler.loadGrammar(source, Grammar::SchemaGrammarType, true);
  } catch (const Unfit&) {
    return nullptr;
  }
  // None when the schema is for another namespace.
  xercesc::XMLSchemaDescriptionImpl description(uri, XMLPlatformUtils::fgMemoryManager);
  return grammars_.retrieveGrammar(&description);
}

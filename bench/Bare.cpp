#include "Bare.h"

#include <stdexcept>
#include <utility>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/EntityResolver.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "Rounds.h"

namespace bench {

namespace {

// Answers every name with one schema file.
class Schema : public xercesc::EntityResolver {
 public:
  explicit Schema(std::string file) : file_(std::move(file)) {}

  xercesc::InputSource* resolveEntity(const XMLCh* /*publicId*/,
                                      const XMLCh* /*systemId*/) override {
    XMLCh* path = xercesc::XMLString::transcode(file_.c_str());
    auto* const source = new xercesc::LocalFileInputSource(path);
    xercesc::XMLString::release(&path);
    return source;
  }

 private:
  std::string file_;
};

xercesc::MemBufInputSource sourceOf(const std::string& text) {
  return {reinterpret_cast<const XMLByte*>(text.data()), text.size(), "bare"};
}

}  // namespace

std::unique_ptr<xercesc::XercesDOMParser> parseBare(const std::string& text,
                                                    const std::string& schema, Blanks blanks) {
  Schema resolver(AS_SCHEMA_DIR "/" + schema);
  auto parser = std::make_unique<xercesc::XercesDOMParser>();
  parser->setEntityResolver(&resolver);
  parser->setValidationScheme(xercesc::XercesDOMParser::Val_Always);
  parser->setDoNamespaces(true);
  parser->setDoSchema(true);
  parser->setCreateEntityReferenceNodes(false);
  parser->setIncludeIgnorableWhitespace(blanks == Blanks::kept);
  parser->parse(sourceOf(text));
  if (parser->getErrorCount() != 0) throw std::runtime_error("the document is not valid");
  parser->setEntityResolver(nullptr);
  return parser;
}

double secondsToWriteBare(const std::string& text) {
  xercesc::XercesDOMParser parser;
  parser.setDoNamespaces(true);
  parser.parse(sourceOf(text));
  auto* const implementation = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
  xercesc::DOMLSSerializer* const writer = implementation->createLSSerializer();
  xercesc::DOMLSOutput* const output = implementation->createLSOutput();
  xercesc::MemBufFormatTarget target;
  output->setEncoding(xercesc::XMLUni::fgUTF8EncodingString);
  output->setByteStream(&target);
  std::string written;
  const double seconds = timed([&] {
    writer->write(parser.getDocument(), output);
    written.assign(reinterpret_cast<const char*>(target.getRawBuffer()), target.getLen());
  });
  output->release();
  writer->release();
  // Up to how attributes and blanks in them are written, it is the same text.
  if (written.size() * 10 < text.size() * 9)
    throw std::runtime_error("the document was not written");
  return seconds;
}

}  // namespace bench

#include <strings.h>

#include <stdexcept>
#include <type_traits>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/Wrapper4InputSource.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "WholeJob.h"
#include "as/Namespaces.h"
#include "vorcobol.hxx"  // Made by xsdcxx.

namespace bench {

namespace {

class Reader {
 public:
  const Reading& reading() const { return reading_; }

  template <class Items>
  void readItems(const Items& items) {
    for (const auto& item : items) read(item);
  }

  // Sections and groups hold the same kinds of items.
  template <class Holder>
  void readMembers(const Holder& holder) {
    readItems(holder.numeric());
    readItems(holder.alphanumeric());
    readItems(holder.numericEdited());
    readItems(holder.national());
    readItems(holder.pointer());
    readItems(holder.cobolObject());
    readItems(holder.index());
  }

 private:
  template <class Text>
  void text(const Text& text) {
    if (text.present()) reading_.characters += text->size();
  }
  template <class Flag>
  void flag(const Flag& flag) {
    reading_.flags += flag.present() && ::strcasecmp(flag->c_str(), "true") == 0 ? 1 : 0;
  }
  template <class Number>
  void number(const Number& number) {
    if (number.present()) reading_.numbers += *number;
  }
  template <class Word>
  void code(const Word& word) {
    if (word.present()) {
      using Code = typename std::decay_t<decltype(*word)>::value;
      reading_.codes += static_cast<Code>(*word);
    }
  }

  template <class Item>
  void readCommon(const Item& item) {
    reading_.items++;
    reading_.characters += item.name().size();
    text(item.picture());
    number(item.length());
    number(item.minOccurs());
    number(item.maxOccurs());
    number(item.offset());
    number(item.line());
    text(item.odo());
    flag(item.linkage());
    flag(item.sync());
    flag(item.redefines());
    flag(item.renames());
    for (const auto& condition : item.numericCondition()) {
      reading_.characters += condition.name().size();
      for (const auto& value : condition.numericConstant()) {
        reading_.characters += value.value().size();
      }
      for (const auto& range : condition.numericRange()) {
        reading_.characters += range.from().size() + range.to().size();
      }
    }
  }

  void read(const tree::group& item) {
    readCommon(item);
    readItems(item.group1());
    readMembers(item);
  }
  void read(const tree::numeric& item) {
    readCommon(item);
    code(item.usage());
    code(item.sign());
    number(item.digits());
    number(item.alignment());
  }
  void read(const tree::alphanumeric& item) {
    readCommon(item);
    code(item.justified());
  }
  void read(const tree::numericEdited& item) {
    readCommon(item);
    number(item.digits());
    flag(item.blankWhenZero());
  }
  void read(const tree::national& item) {
    readCommon(item);
    code(item.usage());
  }
  void read(const tree::elementaryItem& item) { readCommon(item); }

  Reading reading_;
};

xercesc::MemBufInputSource sourceOf(const std::string& text) {
  return {reinterpret_cast<const XMLByte*>(text.data()), text.size(), "bindings"};
}

Reading readAll(const tree::program& program) {
  Reader reader;
  if (program.dataItems().present()) {
    reader.readItems(program.dataItems()->group());
    reader.readMembers(*program.dataItems());
  }
  return reader.reading();
}

// Ends at the first message.
class Messages : public xercesc::DOMErrorHandler {
 public:
  bool handleError(const xercesc::DOMError& /*error*/) override {
    throw std::runtime_error("the document is not valid");
  }
};

class BindingsKeeper : public Keeper {
 public:
  BindingsKeeper() {
    using xercesc::XMLUni;
    xercesc::DOMConfiguration& settings = *parser_->getDomConfig();
    settings.setParameter(XMLUni::fgDOMErrorHandler, &messages_);
    settings.setParameter(XMLUni::fgDOMComments, false);
    settings.setParameter(XMLUni::fgDOMDatatypeNormalization, true);
    settings.setParameter(XMLUni::fgDOMEntities, false);
    settings.setParameter(XMLUni::fgDOMNamespaces, true);
    settings.setParameter(XMLUni::fgDOMElementContentWhitespace, false);
    settings.setParameter(XMLUni::fgDOMValidate, true);
    settings.setParameter(XMLUni::fgXercesSchema, true);
    settings.setParameter(XMLUni::fgXercesSchemaFullChecking, false);
    settings.setParameter(XMLUni::fgXercesUserAdoptsDOMDocument, true);
    if (parser_->loadGrammar(AS_SCHEMA_DIR "/vorcobol.xsd", xercesc::Grammar::SchemaGrammarType,
                             true) == nullptr) {
      throw std::runtime_error("the schema cannot be loaded");
    }
    pool_.lockPool();
    settings.setParameter(XMLUni::fgXercesUseCachedGrammarInParse, true);
    settings.setParameter(XMLUni::fgXercesLoadSchema, false);
  }
  ~BindingsKeeper() override { parser_->release(); }
  BindingsKeeper(const BindingsKeeper&) = delete;
  BindingsKeeper& operator=(const BindingsKeeper&) = delete;

  Reading job(const std::string& text) override {
    xercesc::MemBufInputSource bytes = sourceOf(text);
    const xercesc::Wrapper4InputSource source(&bytes, false);
    xml_schema::dom::unique_ptr<xercesc::DOMDocument> document(parser_->parse(&source));
    return readAll(*tree::program_(*document, xml_schema::flags::dont_initialize));
  }

 private:
  Messages messages_;
  xercesc::XMLGrammarPoolImpl pool_;
  xercesc::DOMLSParser* parser_ =
      xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS")->createLSParser(
          xercesc::DOMImplementationLS::MODE_SYNCHRONOUS, nullptr,
          xercesc::XMLPlatformUtils::fgMemoryManager, &pool_);
};

}  // namespace

Reading jobOfBindings(const std::string& text) {
  xml_schema::properties properties;
  properties.schema_location(as::namespaces::dd.uri, AS_SCHEMA_DIR "/vorcobol.xsd");
  xercesc::MemBufInputSource source = sourceOf(text);
  return readAll(*tree::program_(source, xml_schema::flags::dont_initialize, properties));
}

std::unique_ptr<Keeper> keeperOfBindings() { return std::make_unique<BindingsKeeper>(); }

}  // namespace bench

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>
#include <strings.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "WholeJob.h"

namespace bench {

namespace {

class Reader {
 public:
  const Reading& reading() const { return reading_; }

  void readChildren(const xmlNode* parent) {
    for (xmlNode* node = parent->children; node != nullptr; node = node->next) {
      if (node->type != XML_ELEMENT_NODE) continue;
      if (is(node, "numericCondition")) {
        readCondition(node);
      } else {
        readItem(node);
      }
    }
  }

 private:
  static bool is(const xmlNode* node, const char* name) {
    return std::strcmp(reinterpret_cast<const char*>(node->name), name) == 0;
  }

  // Has `use` see the value of an attribute that is there.
  template <class Use>
  static void value(const xmlNode* node, const char* name, const Use& use) {
    xmlChar* const value = ::xmlGetNoNsProp(node, reinterpret_cast<const xmlChar*>(name));
    if (value == nullptr) return;
    use(reinterpret_cast<const char*>(value));
    ::xmlFree(value);
  }
  void text(const xmlNode* node, const char* name) {
    value(node, name, [&](const char* text) { reading_.characters += std::strlen(text); });
  }
  void number(const xmlNode* node, const char* name) {
    value(node, name, [&](const char* text) { reading_.numbers += std::atoi(text); });
  }
  void flag(const xmlNode* node, const char* name) {
    value(node, name,
          [&](const char* text) { reading_.flags += ::strcasecmp(text, "true") == 0 ? 1 : 0; });
  }
  // A word is not told from others here: it is a text.
  void word(const xmlNode* node, const char* name) {
    value(node, name, [&](const char* text) { reading_.codes += *text; });
  }

  void readItem(const xmlNode* item) {
    reading_.items++;
    for (const char* const name : {"name", "picture", "odo"}) text(item, name);
    for (const char* const name : {"length", "minOccurs", "maxOccurs", "offset", "line"}) {
      number(item, name);
    }
    for (const char* const name : {"linkage", "sync", "redefines", "renames"}) flag(item, name);
    if (is(item, "numeric")) {
      word(item, "usage");
      word(item, "sign");
      number(item, "digits");
      number(item, "alignment");
    } else if (is(item, "alphanumeric")) {
      word(item, "justified");
    } else if (is(item, "national")) {
      word(item, "usage");
    } else if (is(item, "numericEdited")) {
      number(item, "digits");
      flag(item, "blankWhenZero");
    }
    readChildren(item);
  }

  void readCondition(const xmlNode* condition) {
    text(condition, "name");
    for (xmlNode* node = condition->children; node != nullptr; node = node->next) {
      if (node->type != XML_ELEMENT_NODE) continue;
      for (const char* const name : {"value", "from", "to"}) text(node, name);
    }
  }

  Reading reading_;
};

template <auto release>
struct Release {
  template <class T>
  void operator()(T* released) const {
    release(released);
  }
};
template <class T, auto release>
using Owned = std::unique_ptr<T, Release<release>>;

}  // namespace

Reading jobOfLibxml2(const std::string& text) {
  const Owned<xmlSchemaParserCtxt, xmlSchemaFreeParserCtxt> schemaParser(
      ::xmlSchemaNewParserCtxt(AS_SCHEMA_DIR "/vorcobol.xsd"));
  const Owned<xmlSchema, xmlSchemaFree> schema(::xmlSchemaParse(schemaParser.get()));
  const Owned<xmlSchemaValidCtxt, xmlSchemaFreeValidCtxt> validator(
      ::xmlSchemaNewValidCtxt(schema.get()));
  const Owned<xmlDoc, xmlFreeDoc> document(
      ::xmlReadMemory(text.data(), static_cast<int>(text.size()), "libxml2", nullptr,
                      XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_COMPACT));
  if (::xmlSchemaValidateDoc(validator.get(), document.get()) != 0) {
    throw std::runtime_error("the dictionary is not valid");
  }
  Reader reader;
  for (xmlNode* node = ::xmlDocGetRootElement(document.get())->children; node != nullptr;
       node = node->next) {
    if (node->type == XML_ELEMENT_NODE) reader.readChildren(node);
  }
  return reader.reading();
}

}  // namespace bench

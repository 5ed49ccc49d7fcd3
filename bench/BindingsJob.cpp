#include <strings.h>

#include <type_traits>
#include <xercesc/framework/MemBufInputSource.hpp>

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

}  // namespace

Reading jobOfBindings(const std::string& text) {
  xml_schema::properties properties;
  properties.schema_location(as::namespaces::dd.uri, AS_SCHEMA_DIR "/vorcobol.xsd");
  xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                    "bindings");
  const auto program = tree::program_(source, xml_schema::flags::dont_initialize, properties);
  Reader reader;
  if (program->dataItems().present()) {
    reader.readItems(program->dataItems()->group());
    reader.readMembers(*program->dataItems());
  }
  return reader.reading();
}

}  // namespace bench

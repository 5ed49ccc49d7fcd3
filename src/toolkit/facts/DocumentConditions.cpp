#include "toolkit/facts/DocumentConditions.h"

#include <memory>
#include <string_view>
#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "toolkit/io/ParserMemory.h"

namespace as::toolkit {

namespace {

namespace xml = xercesc;

std::string narrow(const XMLCh* text) {
  if (text == nullptr) return "";
  const xml::TranscodeToStr utf8(text, "UTF-8");
  return {reinterpret_cast<const char*>(utf8.str()), utf8.length()};
}

std::basic_string<XMLCh> wide(const std::string& text) {
  const xml::TranscodeFromStr utf16(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                    "UTF-8");
  return {utf16.str(), utf16.length()};
}

bool isItem(std::string_view element) {
  for (const std::string_view word : {"group", "numeric", "alphanumeric", "numericEdited",
                                      "national", "pointer", "cobolObject", "index"}) {
    if (word == element) return true;
  }
  return false;
}

bool endsWith(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

class ConditionHandler : public xml::DefaultHandler {
 public:
  explicit ConditionHandler(std::vector<std::vector<ConditionFacts>>& conditions)
      : conditions_(conditions) {}

  void startElement(const XMLCh* /*uri*/, const XMLCh* localName, const XMLCh* /*name*/,
                    const xml::Attributes& attributes) override {
    const std::string element = narrow(localName);
    const auto value = [&](const char* attribute) {
      return narrow(attributes.getValue(wide(attribute).c_str()));
    };
    way_.push_back(way_.empty() ? 0 : way_.back());
    if (isItem(element)) {
      conditions_.emplace_back();
      way_.back() = conditions_.size();
    } else if (endsWith(element, "Condition") && way_.back() > 0) {
      conditions_[way_.back() - 1].push_back({value("name"), {}});
    } else if (endsWith(element, "Constant")) {
      addValue(value("value"));
    } else if (endsWith(element, "Range")) {
      addValue(value("from") + " THRU " + value("to"));
    }
  }

  void endElement(const XMLCh* /*uri*/, const XMLCh* /*localName*/,
                  const XMLCh* /*name*/) override {
    way_.pop_back();
  }

  // A document comes to no harm by what it names.
  xml::InputSource* resolveEntity(const XMLCh* /*publicId*/, const XMLCh* systemId) override {
    throw xml::SAXException(systemId);
  }

 private:
  void addValue(std::string value) {
    if (way_.back() == 0 || conditions_[way_.back() - 1].empty()) return;
    conditions_[way_.back() - 1].back().values.push_back(std::move(value));
  }

  std::vector<std::vector<ConditionFacts>>& conditions_;
  // For each open element: 1 more than the number of the item that it stands in.
  std::vector<std::size_t> way_;
};

}  // namespace

DocumentConditions::DocumentConditions(const DocumentSource& source) {
  withBadAlloc([&] { read(source); });
}

void DocumentConditions::read(const DocumentSource& source) {
  ConditionHandler handler(conditions_);
  try {
    const std::unique_ptr<xml::SAX2XMLReader> reader(xml::XMLReaderFactory::createXMLReader());
    // What entities of a document may come to: as the library has it.
    constexpr XMLSize_t mostEntities = 1000;
    xml::SecurityManager limits;
    limits.setEntityExpansionLimit(mostEntities);
    reader->setProperty(xml::XMLUni::fgXercesSecurityManager, &limits);
    reader->setFeature(xml::XMLUni::fgSAX2CoreValidation, false);
    reader->setFeature(xml::XMLUni::fgXercesSchema, false);
    reader->setFeature(xml::XMLUni::fgXercesLoadExternalDTD, false);
    reader->setContentHandler(&handler);
    reader->setErrorHandler(&handler);
    reader->setEntityResolver(&handler);
    if (source.text) {
      reader->parse(xml::MemBufInputSource(reinterpret_cast<const XMLByte*>(source.text->data()),
                                           source.text->size(), "document"));
    } else {
      reader->parse(xml::LocalFileInputSource(wide(source.name).c_str()));
    }
  } catch (const xml::XMLException&) {
    conditions_.clear();
  } catch (const xml::SAXException&) {
    conditions_.clear();
  }
}

}  // namespace as::toolkit

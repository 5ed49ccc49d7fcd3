#include "GeneratedText.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/EntityResolver.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/validators/common/Grammar.hpp>

namespace fuzz {

namespace {

using as::toolkit::GeneratedFile;
using Files = std::vector<GeneratedFile>;

[[noreturn]] void tell(const GeneratedFile& file, const std::string& problem) {
  std::fprintf(stderr, "%s\n%s: %s\n", file.content.c_str(), file.name.c_str(), problem.c_str());
  std::abort();
}

bool endsWith(const std::string& text, std::string_view end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// ------------------------------------------------------------------------------------- XML

std::string textOf(const XMLCh* text) {
  char* transcoded = xercesc::XMLString::transcode(text);
  std::string result = transcoded;
  xercesc::XMLString::release(&transcoded);
  return result;
}

std::unique_ptr<xercesc::MemBufInputSource> sourceOf(const GeneratedFile& file) {
  return std::make_unique<xercesc::MemBufInputSource>(
      reinterpret_cast<const XMLByte*>(file.content.data()), file.content.size(),
      file.name.c_str());
}

// Documents refer to the other files of the same output, and to nothing else.
class OwnFiles : public xercesc::EntityResolver {
 public:
  explicit OwnFiles(const Files& files) : files_(files) {}

  xercesc::InputSource* resolveEntity(const XMLCh* /*publicId*/, const XMLCh* systemId) override {
    const std::string name = textOf(systemId);
    for (const GeneratedFile& file : files_) {
      if (file.name == name) return sourceOf(file).release();
    }
    std::fprintf(stderr, "there is no file %s\n", name.c_str());
    std::abort();
  }

 private:
  const Files& files_;
};

class Strict : public xercesc::ErrorHandler {
 public:
  explicit Strict(const GeneratedFile& file) : file_(file) {}
  void warning(const xercesc::SAXParseException& problem) override { refuse(problem); }
  void error(const xercesc::SAXParseException& problem) override { refuse(problem); }
  void fatalError(const xercesc::SAXParseException& problem) override { refuse(problem); }
  void resetErrors() override {}

 private:
  void refuse(const xercesc::SAXParseException& problem) {
    tell(file_, std::to_string(problem.getLineNumber()) + ": " + textOf(problem.getMessage()));
  }

  const GeneratedFile& file_;
};

void requireXml(const Files& files, const GeneratedFile& file) {
  static const bool isReady = [] {
    xercesc::XMLPlatformUtils::Initialize();
    return true;
  }();
  static_cast<void>(isReady);
  Strict strict(file);
  OwnFiles own(files);
  xercesc::XercesDOMParser parser;
  parser.setDoNamespaces(true);
  parser.setDoSchema(true);
  parser.setErrorHandler(&strict);
  parser.setEntityResolver(&own);
  if (endsWith(file.name, ".xsd")) {
    parser.loadGrammar(*sourceOf(file), xercesc::Grammar::SchemaGrammarType, false);
  } else {
    parser.setValidationScheme(xercesc::XercesDOMParser::Val_Never);
    parser.parse(*sourceOf(file));
  }
}

// ------------------------------------------------------------------------------------ Code

// What is neither text nor comment: names, numbers, and the marks that the languages make use of.
bool isPlainCode(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
         static_cast<unsigned char>(c) >= 0x80 || c == '\n' ||
         std::string_view(" _.,;:(){}[]<>=@?*-").find(c) != std::string_view::npos;
}

// Reads code of the languages that write comments and texts as C does.
class Code {
 public:
  explicit Code(const GeneratedFile& file) : file_(file), text_(file.content) {}

  void check() {
    while (at_ < text_.size()) {
      if (starts("//")) {
        skipTo("\n");
      } else if (starts("/*")) {
        at_ += 2;
        skipTo("*/");
      } else if (text_[at_] == '"') {
        skipText();
      } else {
        take(text_[at_++]);
      }
    }
    if (!open_.empty()) tell(file_, "ends in the middle");
  }

 private:
  bool starts(std::string_view with) const { return text_.substr(at_, with.size()) == with; }

  void skipTo(std::string_view end) {
    const std::size_t found = text_.find(end, at_);
    if (found == std::string_view::npos) tell(file_, "a comment does not end");
    at_ = found + end.size();
  }

  void skipText() {
    for (++at_; at_ < text_.size() && text_[at_] != '"'; ++at_) {
      if (text_[at_] == '\n') break;
      if (text_[at_] == '\\') ++at_;
    }
    if (at_ >= text_.size() || text_[at_] != '"') tell(file_, "a text does not end");
    ++at_;
  }

  void take(char c) {
    constexpr std::string_view opens = "({[";
    constexpr std::string_view closes = ")}]";
    if (!isPlainCode(c)) tell(file_, std::string("outside of texts and comments stands a ") + c);
    if (opens.find(c) != std::string_view::npos) open_ += closes[opens.find(c)];
    if (closes.find(c) == std::string_view::npos) return;
    if (open_.empty() || open_.back() != c) tell(file_, std::string("closes nothing: ") + c);
    open_.pop_back();
  }

  const GeneratedFile& file_;
  std::string_view text_;
  std::size_t at_ = 0;
  std::string open_;  // What closes what is open.
};

void requireLines(const GeneratedFile& file) {
  for (const char c : file.content) {
    if (c != '\n' && static_cast<unsigned char>(c) < ' ') tell(file, "a control character");
  }
}

}  // namespace

void requireGood(const Files& files) {
  for (const GeneratedFile& file : files) {
    requireLines(file);
    if (endsWith(file.name, ".json")) {
      if (!nlohmann::json::accept(file.content)) tell(file, "no JSON");
    } else if (endsWith(file.name, ".xsd") || endsWith(file.name, ".wsdl")) {
      requireXml(files, file);
    } else if (!endsWith(file.name, ".md")) {
      Code(file).check();
    }
  }
}

}  // namespace fuzz

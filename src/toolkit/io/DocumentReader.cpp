#include "as/toolkit/DocumentReader.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>
#include <vector>

#include "as/CASException.h"
#include "as/CASInvalidNamespaceException.h"
#include "as/CASParseException.h"
#include "as/CAgentServicesFactory.h"
#include "as/IAgentServices.h"
#include "as/IProgram.h"
#include "as/IService.h"
#include "as/Namespaces.h"
#include "as/toolkit/Files.h"
#include "as/toolkit/Flavours.h"
#include "toolkit/io/HeldSource.h"
#include "toolkit/io/ServiceText.h"
#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

namespace {

namespace fs = std::filesystem;

std::string noDictionary() {
  return std::string("not a data dictionary: its root element is not in the namespace ") +
         as::namespaces::dd.uri;
}

std::string noService() {
  std::string text = "not a service: its root element is in none of the namespaces";
  std::vector<Flavour> all = flavours();
  std::sort(all.begin(), all.end(), [](const Flavour& left, const Flavour& right) {
    return left.implementation < right.implementation;
  });
  for (const Flavour& flavour : all) text.append(" ").append(flavour.documents.uri);
  return text;
}

RefusedDocument refused(const std::string& file, const std::string& text) {
  return RefusedDocument({file, 0, 0, text, ""});
}

RefusedDocument ofAnotherKind(const std::string& file, const std::string& text) {
  return RefusedDocument({file, 0, 0, text, "", true});
}

// The library tells less about a file that it cannot read.
void checkReadable(const std::string& file) {
  std::error_code ignored;
  if (fs::is_directory(file, ignored)) throw refused(file, "is a directory, not a document");
  if (!isUtf8(file)) {
    throw RefusedDocument({file, 0, 0, "cannot be read: its name is no UTF-8", "rename it"});
  }
  if (::access(file.c_str(), R_OK) != 0) {
    const int reason = errno;
    throw refused(file, "cannot be read: " + std::generic_category().message(reason));
  }
}

// The parser makes names absolute; its user knows the document by the name that he gave.
std::string nameFor(const std::string& systemId, const std::string& file) {
  std::error_code ignored;
  return systemId.empty() || fs::equivalent(systemId, file, ignored) ? file : systemId;
}

// What the library is to call the file: it takes ".." out of names as if folders were no links.
std::string calledForLibrary(const std::string& file) { return besideFile("", file); }

// What helps when the parser's message is about a root that no schema declares: the document does
// not lead the parser to the schema.
std::string hintFor(std::string_view message) {
  constexpr std::string_view start = "no declaration found for element '";
  if (message.substr(0, start.size()) != start) return "";
  std::string_view name = message.substr(start.size());
  name = name.substr(0, name.find('\''));
  const std::size_t colon = name.find(':');
  if (colon != std::string_view::npos) name.remove_prefix(colon + 1);
  const std::string advice =
      "name the schema in the root element: "
      "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"";
  const std::string uri = as::namespaces::dd.uri;
  if (name == "program") return advice + uri + " " + uri + "\"";
  if (name == "service") return advice + "NAMESPACE NAMESPACE\", with that of the root element";
  return "";
}

RefusedDocument refused(const std::string& file, const as::CASParseException& failure) {
  const std::string text = failure.getErrorText();
  return RefusedDocument({nameFor(failure.getSystemId(), file), failure.getLineNum(),
                          failure.getColNum(), text, hintFor(text)});
}

// The root that `request` answers for `file`; null when that is of another kind.
template <class Request>
auto rootFrom(const std::string& file, const Request& request) {
  std::unique_ptr<std::remove_pointer_t<decltype(request())>> root;
  try {
    root.reset(request());
  } catch (const as::CASParseException& failure) {
    throw refused(file, failure);
  } catch (const as::CASInvalidNamespaceException&) {
    return root;
  } catch (const as::CASException& failure) {
    throw refused(file, failure.getErrorText());
  }
  if (!root) throw refused(file, "nothing found in it");
  return root;
}

// The library takes the size as an unsigned int.
unsigned int sizeOf(const std::string& text, const std::string& file) {
  if (text.size() > std::numeric_limits<unsigned int>::max()) throw refused(file, "is too large");
  return static_cast<unsigned int>(text.size());
}

const unsigned char* bytesOf(const std::string& text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

as::IService* parseText(as::IAgentServices& services, const std::string& text,
                        const std::string& file, bool loadProgram) {
  return services.parseService(calledForLibrary(file).c_str(), bytesOf(text), sizeOf(text, file),
                               loadProgram);
}

// The dictionary that `service`, read from `file`, is to have its program from, which can be read.
std::string dictionaryOf(as::IService& service, const std::string& file,
                         const ProgramChoice& choice) {
  const std::string named = service.getDDFilename();
  if (!choice.dictionary && named.empty()) {
    throw RefusedDocument({file, 0, 0, "the service names no dictionary",
                           "write attribute dataDictFilename, or name a dictionary"});
  }
  std::string dictionary = choice.dictionary ? *choice.dictionary : besideFile(file, named);
  checkReadable(dictionary);
  return dictionary;
}

// `service`, which messages call `file`, read once more, with its program. The library reads the
// dictionary that a document names, counted from the current directory: `service` is told of it.
std::unique_ptr<as::IService> loaded(as::IAgentServices& services, as::IService& service,
                                     const std::string& file, const std::string& dictionary) {
  service.setDDFilename(calledForLibrary(dictionary).c_str());
  const std::string text = documentOf(service, file);
  std::unique_ptr<as::IService> result =
      rootFrom(dictionary, [&] { return parseText(services, text, file, true); });
  if (!result) throw refused(dictionary, noDictionary());
  return result;
}

}  // namespace

std::string textOf(const Refusal& refusal) {
  std::string text = refusal.file;
  if (refusal.line > 0) {
    text += ":" + std::to_string(refusal.line) + ":" + std::to_string(refusal.column);
  }
  return text + ": " + refusal.text;
}

RefusedDocument::RefusedDocument(Refusal refusal)
    : std::runtime_error(textOf(refusal)), refusal_(std::move(refusal)) {}
RefusedDocument::RefusedDocument(const RefusedDocument& other) = default;
RefusedDocument& RefusedDocument::operator=(const RefusedDocument& other) = default;
RefusedDocument::~RefusedDocument() = default;

DocumentReader::DocumentReader(const std::string& schemaDirectory)
    : services_(as::CAgentServicesFactory::CreateCachingAgentServices()) {
  services_->setSchemaLocation(schemaDirectory.c_str());
}

DocumentReader::~DocumentReader() = default;

Document DocumentReader::read(const std::string& file) const {
  checkReadable(file);
  const DocumentSource source{file};
  const HeldSource held(source);
  if (held.get().text) return read(held.get());
  Document document;
  document.dictionary =
      rootFrom(file, [&] { return services_->parseCobolDD(calledForLibrary(file).c_str()); });
  if (document.dictionary) return document;
  document.service = rootFrom(
      file, [&] { return services_->parseService(calledForLibrary(file).c_str(), false); });
  if (!document.service) throw ofAnotherKind(file, noDictionary() + "; and " + noService());
  return document;
}

Document DocumentReader::read(const DocumentSource& source) const {
  if (!source.text) return read(source.name);
  const std::string& file = source.name;
  Document document;
  document.dictionary = rootFrom(file, [&] {
    return services_->parseCobolDD(calledForLibrary(file).c_str(), bytesOf(*source.text),
                                   sizeOf(*source.text, file));
  });
  if (document.dictionary) return document;
  document.service =
      rootFrom(file, [&] { return parseText(*services_, *source.text, file, false); });
  if (!document.service) throw ofAnotherKind(file, noDictionary() + "; and " + noService());
  return document;
}

std::unique_ptr<as::IService> DocumentReader::readService(const DocumentSource& source) const {
  return source.text ? readServiceText(*source.text, source.name) : readService(source.name);
}

std::unique_ptr<as::IService> DocumentReader::readService(const std::string& file) const {
  checkReadable(file);
  std::unique_ptr<as::IService> service = rootFrom(
      file, [&] { return services_->parseService(calledForLibrary(file).c_str(), false); });
  if (!service) throw ofAnotherKind(file, noService());
  return service;
}

std::unique_ptr<as::IProgram> DocumentReader::readDictionary(const std::string& file) const {
  checkReadable(file);
  std::unique_ptr<as::IProgram> dictionary =
      rootFrom(file, [&] { return services_->parseCobolDD(calledForLibrary(file).c_str()); });
  if (!dictionary) throw ofAnotherKind(file, noDictionary());
  return dictionary;
}

std::unique_ptr<as::IService> DocumentReader::readServiceText(const std::string& text,
                                                              const std::string& file) const {
  std::unique_ptr<as::IService> service =
      rootFrom(file, [&] { return parseText(*services_, text, file, false); });
  if (!service) throw ofAnotherKind(file, noService());
  return service;
}

ServiceDocument DocumentReader::withProgram(as::IService& service, const std::string& file,
                                            const ProgramChoice& choice) const {
  ServiceDocument result;
  result.programName = service.getAttributeValue("programName");
  result.dictionary = service.getDDFilename();
  const std::string dictionary = dictionaryOf(service, file, choice);
  // A copy is told of it: the service keeps what it says, whatever fails.
  const std::unique_ptr<as::IService> copy = readServiceText(documentOf(service, file), file);
  result.service = loaded(*services_, *copy, file, dictionary);
  if (!result.dictionary.empty()) result.service->setDDFilename(result.dictionary.c_str());
  return result;
}

std::shared_ptr<as::IProgram> DocumentReader::programOf(as::IService& service,
                                                        const std::string& file,
                                                        const ProgramChoice& choice) const {
  const std::string dictionary = dictionaryOf(service, file, choice);
  // Read as what a service names, but for one of the flavour that holds nothing else.
  const std::string uri = flavourOf(service).documents.uri;
  const std::unique_ptr<as::IService> bare = readServiceText(
      R"(<service xmlns=")" + uri +
          R"(" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xsi:schemaLocation=")" + uri +
          " " + uri + R"("/>)",
      file);
  const std::shared_ptr<as::IService> owner = loaded(*services_, *bare, file, dictionary);
  return {owner, owner->getProgram()};
}

ServiceDocument DocumentReader::readServiceWithProgram(const std::string& file,
                                                       const ProgramChoice& choice) const {
  return withProgram(*readService(file), file, choice);
}

}  // namespace as::toolkit

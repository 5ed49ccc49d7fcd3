#include "toolkit/io/DocumentReader.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <type_traits>

#include "as/CASException.h"
#include "as/CASInvalidNamespaceException.h"
#include "as/CASParseException.h"
#include "as/CAgentServicesFactory.h"
#include "as/IAgentServices.h"
#include "as/IProgram.h"
#include "as/IService.h"

namespace {

namespace fs = std::filesystem;

const std::string dictionaryNamespace =
    "http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd";

constexpr const char* serviceNamespaces[] = {
    "http://agentservices.example/schema/ws/v1.0/vorws.xsd",
    "http://agentservices.example/schema/java/v2.0/vorjava.xsd",
    "http://agentservices.example/schema/com/v1.0/vorcom.xsd",
    "http://agentservices.example/schema/dotnet/v1.0/vordotnet.xsd",
};

const std::string noDictionary =
    "not a data dictionary: its root element is not in the namespace " + dictionaryNamespace;

std::string noService() {
  std::string text = "not a service: its root element is in none of the namespaces";
  for (const char* name : serviceNamespaces) text += std::string(" ") + name;
  return text;
}

Refusal refusal(const std::string& file, const std::string& text) {
  Refusal result;
  result.file = file;
  result.text = text;
  return result;
}

// The library tells less about a file that it cannot read.
void checkReadable(const std::string& file) {
  std::error_code ignored;
  if (fs::is_directory(file, ignored)) throw refusal(file, "is a directory, not a document");
  if (::access(file.c_str(), R_OK) != 0) {
    const int reason = errno;
    throw refusal(file, "cannot be read: " + std::generic_category().message(reason));
  }
}

// The parser makes names absolute; its user knows the document by the name that he gave.
std::string nameFor(const std::string& systemId, const std::string& file) {
  std::error_code ignored;
  return systemId.empty() || fs::equivalent(systemId, file, ignored) ? file : systemId;
}

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
  if (name == "program") return advice + dictionaryNamespace + " " + dictionaryNamespace + "\"";
  if (name == "service") return advice + "NAMESPACE NAMESPACE\", with that of the root element";
  return "";
}

Refusal refusal(const std::string& file, const as::CASParseException& failure) {
  Refusal result = refusal(nameFor(failure.getSystemId(), file), failure.getErrorText());
  result.line = failure.getLineNum();
  result.column = failure.getColNum();
  result.hint = hintFor(result.text);
  return result;
}

// The root that `request` answers for `file`; null when that is of another kind.
template <class Request>
auto rootFrom(const std::string& file, const Request& request) {
  std::unique_ptr<std::remove_pointer_t<decltype(request())>> root;
  try {
    root.reset(request());
  } catch (const as::CASParseException& failure) {
    throw refusal(file, failure);
  } catch (const as::CASInvalidNamespaceException&) {
    return root;
  } catch (const as::CASException& failure) {
    throw refusal(file, failure.getErrorText());
  }
  if (!root) throw refusal(file, "nothing found in it");
  return root;
}

as::IService* parseText(as::IAgentServices& services, const std::string& text,
                        const std::string& file, bool loadProgram) {
  return services.parseService(file.c_str(), reinterpret_cast<const unsigned char*>(text.data()),
                               static_cast<unsigned int>(text.size()), loadProgram);
}

}  // namespace

DocumentReader::DocumentReader(const std::string& schemaDirectory)
    : services_(as::CAgentServicesFactory::CreateAgentServices()) {
  services_->setSchemaLocation(schemaDirectory.c_str());
}

DocumentReader::~DocumentReader() = default;

Document DocumentReader::read(const std::string& file) const {
  checkReadable(file);
  Document document;
  document.dictionary = rootFrom(file, [&] { return services_->parseCobolDD(file.c_str()); });
  if (document.dictionary) return document;
  document.service = rootFrom(file, [&] { return services_->parseService(file.c_str(), false); });
  if (!document.service) throw refusal(file, noDictionary + "; and " + noService());
  return document;
}

std::unique_ptr<as::IService> DocumentReader::readService(const std::string& file) const {
  checkReadable(file);
  std::unique_ptr<as::IService> service =
      rootFrom(file, [&] { return services_->parseService(file.c_str(), false); });
  if (!service) throw refusal(file, noService());
  return service;
}

std::unique_ptr<as::IProgram> DocumentReader::readDictionary(const std::string& file) const {
  checkReadable(file);
  std::unique_ptr<as::IProgram> dictionary =
      rootFrom(file, [&] { return services_->parseCobolDD(file.c_str()); });
  if (!dictionary) throw refusal(file, noDictionary);
  return dictionary;
}

std::unique_ptr<as::IService> DocumentReader::readServiceText(const std::string& text,
                                                              const std::string& file) const {
  std::unique_ptr<as::IService> service =
      rootFrom(file, [&] { return parseText(*services_, text, file, false); });
  if (!service) throw refusal(file, noService());
  return service;
}

std::unique_ptr<as::IService> DocumentReader::withProgram(as::IService& service,
                                                          const std::string& file,
                                                          const std::string& dictionary) const {
  checkReadable(dictionary);
  // The library reads the dictionary that the document names, counted from the current directory:
  // name the right one in the document.
  service.setDDFilename(dictionary.c_str());
  const std::string text = as::CAgentServicesFactory::SerializeToString(&service);
  std::unique_ptr<as::IService> result =
      rootFrom(dictionary, [&] { return parseText(*services_, text, file, true); });
  if (!result) throw refusal(dictionary, noDictionary);
  return result;
}

std::string besideFile(const std::string& file, const std::string& name) {
  const fs::path folder = fs::path(file).parent_path();
  const fs::path plain = folder / name;
  // The library takes ".." out of a name as if folders were no links.
  std::error_code failure;
  if (!fs::exists(plain, failure) || fs::equivalent(plain, plain.lexically_normal(), failure)) {
    return plain.string();
  }
  return (fs::canonical(folder, failure) / name).lexically_normal().string();
}

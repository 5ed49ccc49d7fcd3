#include "DocumentReader.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "as/CASException.h"
#include "as/CASInvalidNamespaceException.h"
#include "as/CASParseException.h"
#include "as/CAgentServicesFactory.h"
#include "as/IAgentServices.h"
#include "as/IProgram.h"

namespace {

namespace fs = std::filesystem;

const std::string dictionaryNamespace =
    "http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd";

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

// Whether the parser's message is about a root in the right namespace that no schema declares:
// the document does not lead the parser to the schema.
bool tellsUndeclaredRoot(std::string_view message) {
  constexpr std::string_view start = "no declaration found for element '";
  if (message.substr(0, start.size()) != start) return false;
  std::string_view name = message.substr(start.size());
  name = name.substr(0, name.find('\''));
  const std::size_t colon = name.find(':');
  if (colon != std::string_view::npos) name.remove_prefix(colon + 1);
  return name == "program";
}

Refusal refusal(const std::string& file, const as::CASParseException& failure) {
  Refusal result = refusal(nameFor(failure.getSystemId(), file), failure.getErrorText());
  result.line = failure.getLineNum();
  result.column = failure.getColNum();
  if (tellsUndeclaredRoot(result.text)) {
    result.hint =
        "name the schema in the root element: "
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" +
        dictionaryNamespace + " " + dictionaryNamespace + "\"";
  }
  return result;
}

}  // namespace

DocumentReader::DocumentReader(const std::string& schemaDirectory)
    : services_(as::CAgentServicesFactory::CreateAgentServices()) {
  services_->setSchemaLocation(schemaDirectory.c_str());
}

DocumentReader::~DocumentReader() = default;

std::unique_ptr<as::IProgram> DocumentReader::readDictionary(const std::string& file) const {
  checkReadable(file);
  std::unique_ptr<as::IProgram> program;
  try {
    program.reset(services_->parseCobolDD(file.c_str()));
  } catch (const as::CASParseException& failure) {
    throw refusal(file, failure);
  } catch (const as::CASInvalidNamespaceException&) {
    throw refusal(file, "not a data dictionary: its root element is not in the namespace " +
                            dictionaryNamespace + " (a service definition?)");
  } catch (const as::CASException& failure) {
    throw refusal(file, failure.getErrorText());
  }
  if (!program) throw refusal(file, "no data dictionary found in it");
  return program;
}

#include "frame/AgentServices.h"

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <utility>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLUniDefs.hpp>

#include "as/CASException.h"
#include "as/CASInvalidNamespaceException.h"
#include "as/CASParseException.h"
#include "as/Globals.h"
#include "as/IProgram.h"
#include "as/IService.h"
#include "cobol/VorDDHandler.h"
#include "frame/DelegatingHandler.h"
#include "xml/Assertion.h"
#include "xml/XMLParser.h"
#include "xml/XStr.h"

using xercesc::MemBufInputSource;
using xercesc::XMLPlatformUtils;
using xercesc::XMLTranscoder;
using xercesc::XMLTransService;
using xercesc::XMLUni;

XMLTranscoder* gUTF8Transcoder = nullptr;

// All identities are registered by now, see AS_INTERFACES_FIRST: their clean-ups run after AtExit.
int nXercesInitStatus = InitXerces();

int InitXerces() {
  try {
    XMLPlatformUtils::Initialize();
  } catch (...) {
    return 0;
  }
  if (std::atexit(AtExit) != 0) return 0;
  XMLTransService::Codes result = XMLTransService::Ok;
  constexpr XMLSize_t blockSize = 4096;
  gUTF8Transcoder = XMLPlatformUtils::fgTransService->makeNewTranscoderFor(
      XMLUni::fgUTF8EncodingString, result, blockSize);
  AS_ASSERT(result == XMLTransService::Ok, "AgentServices");
  return 1;
}

void AtExit() {
  delete gUTF8Transcoder;
  gUTF8Transcoder = nullptr;
  XMLPlatformUtils::Terminate();
}

namespace {

constexpr char dictionaryFailure[] = "An unexpected error occurred processing the data dictionary";
constexpr char serviceFailure[] = "An unexpected error occurred processing the service definition";
constexpr char namespaceFailure[] = "The parser encountered an unexpected or unsupported namespace";

// Runs a request; whatever is thrown that is not one of the two expected failures becomes `text`.
template <class Request>
auto sortFailures(const char* text, const Request& request) -> decltype(request()) {
  try {
    return request();
  } catch (const as::CASParseException&) {
    throw;
  } catch (const as::CASInvalidNamespaceException&) {
    throw;
  } catch (...) {
    throw as::CASException(text);
  }
}

}  // namespace

struct CAgentServices::Source {
  const char* id = "";
  const unsigned char* buffer = nullptr;  // Null for a file named id.
  unsigned int length = 0;
  bool isReferred = false;  // The file is named by a document, not by the client.

  static Source file(const char* name) { return {name == nullptr ? "" : name, nullptr, 0}; }
  static Source referred(const std::string& name) { return {name.c_str(), nullptr, 0, true}; }
  static Source memory(const char* id, const unsigned char* buffer, unsigned int length) {
    static const unsigned char nothing[1] = {0};
    if (buffer == nullptr) return {id == nullptr ? "" : id, nothing, 0};
    return {id == nullptr ? "" : id, buffer, length};
  }

  // Parses the source with `parser`, which drives `handler` and holds the document afterwards. The
  // file is kept in `opened` for the parser that may have to repeat that.
  void parse(CXMLParser& parser, const std::string& schemaDirectory, CElementHandler& handler,
             std::shared_ptr<const LocalFile>& opened) const {
    parser.setSchemaLocation(schemaDirectory.c_str());
    parser.setElementHandler(&handler);
    CXStr name(id);
    if (buffer == nullptr) {
      parser.parse(static_cast<const XMLCh*>(name),
                   isReferred ? LocalFile::Opening::regular : LocalFile::Opening::any, opened);
    } else {
      MemBufInputSource input(buffer, length, static_cast<const XMLCh*>(name));
      parser.parse(&input);
    }
    // The handler goes after the request.
    parser.setElementHandler(nullptr);
  }
};

CAgentServices::CAgentServices(Schemas schemas) {
  if (schemas == Schemas::kept) schemas_.emplace();
}

void CAgentServices::setSchemaLocation(const char* dir) {
  std::string directory = dir == nullptr ? "" : dir;
  if (directory.empty()) schemaDirectory_.clear();
  // No character is both: a separator is appended whatever the directory ends in, and clients see
  // it in the names of schema files. Reading the last character of nothing fails.
  const char last = directory.at(directory.length() - 1);
  const bool isClosed = last == '\\' && last == '/';  // NOLINT(misc-redundant-expression)
  if (!isClosed) directory += "/";
  // Last: should memory run out, the directory is the one before.
  schemaDirectory_ = std::move(directory);
}

as::IProgram* CAgentServices::parseCobolDD(const char* file) {
  return parseProgram(Source::file(file));
}

as::IProgram* CAgentServices::parseCobolDD(const char* id, const unsigned char* buf,
                                           unsigned int len) {
  return parseProgram(Source::memory(id, buf, len));
}

as::IService* CAgentServices::parseService(const char* file, bool loadProgram) {
  return parseServiceDocument(Source::file(file), loadProgram);
}

as::IService* CAgentServices::parseService(const char* file, std::string& errorText,
                                           bool loadProgram) {
  return parseServiceDocument(Source::file(file), errorText, loadProgram);
}

as::IService* CAgentServices::parseService(const char* id, const unsigned char* buf,
                                           unsigned int len, bool loadProgram) {
  return parseServiceDocument(Source::memory(id, buf, len), loadProgram);
}

as::IService* CAgentServices::parseService(const char* id, const unsigned char* buf,
                                           unsigned int len, std::string& errorText,
                                           bool loadProgram) {
  return parseServiceDocument(Source::memory(id, buf, len), errorText, loadProgram);
}

as::IProgram* CAgentServices::parseProgram(const Source& source) {
  return sortFailures(dictionaryFailure, [&] {
    bool isWhole = true;
    return readProgram(source, isWhole).release();
  });
}

template <class Handler, class Take>
auto CAgentServices::read(const Source& source, const Take& take) {
  std::shared_ptr<const LocalFile> opened;
  const auto attempt = [&](std::shared_ptr<SharedSchemas> shared) {
    // The handler goes before the parser: what it releases may look at the document.
    auto parser = std::make_unique<CXMLParser>(std::move(shared));
    Handler handler;
    source.parse(*parser, schemaDirectory_, handler, opened);
    return take(handler, std::move(parser));
  };
  return schemas_ ? schemas_->run(schemaDirectory_, attempt)
                  : SchemaCache::runOnce(schemaDirectory_, attempt);
}

std::unique_ptr<as::IProgram> CAgentServices::readProgram(const Source& source, bool& isWhole) {
  return read<CVorDDHandler>(source,
                             [&](CVorDDHandler& handler, std::unique_ptr<CXMLParser> parser) {
                               isWhole = handler.isWhole();
                               std::unique_ptr<CProgramImpl> program = handler.takeProgram();
                               if (program) program->setParser(std::move(parser));
                               return program;
                             });
}

as::IService* CAgentServices::parseServiceDocument(const Source& source, bool loadProgram) {
  return sortFailures(serviceFailure, [&]() -> as::IService* {
    std::unique_ptr<CServiceImpl> service = read<CDelegatingHandler>(
        source, [](CDelegatingHandler& handler, std::unique_ptr<CXMLParser> parser) {
          std::unique_ptr<CServiceImpl> made = handler.takeService();
          if (made) made->setParser(std::move(parser));
          return made;
        });
    if (!service) return nullptr;
    if (loadProgram) {
      bool isWhole = true;
      std::unique_ptr<as::IProgram> program =
          readProgram(Source::referred(service->getDDFilename()), isWhole);
      if (!isWhole) throw std::runtime_error("the dictionary was not read to its end");
      if (program) {
        service->setProgram(program.get());
        static_cast<void>(program.release());  // The service's, now that nothing can fail any more.
      }
    }
    return as::interface_cast<as::IService>(service.release());
  });
}

as::IService* CAgentServices::parseServiceDocument(const Source& source, std::string& errorText,
                                                   bool loadProgram) {
  return sortFailures(serviceFailure, [&]() -> as::IService* {
    try {
      return parseServiceDocument(source, loadProgram);
    } catch (const as::CASParseException& failure) {
      errorText = failure.getErrorText();
    } catch (const as::CASInvalidNamespaceException&) {
      errorText = namespaceFailure;
    }
    return nullptr;
  });
}

// Makes requests of the library: parses documents, tells how a request ended, and writes services.
#ifndef TESTS_SUPPORT_REQUESTS_H_
#define TESTS_SUPPORT_REQUESTS_H_

#include <cstdlib>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

#include "as/AgentServices.h"

namespace test {

// Entry objects that have been told of no schemas: the plain one and that which keeps schemas.
inline std::unique_ptr<as::IAgentServices> plainServices() {
  return std::unique_ptr<as::IAgentServices>(as::CAgentServicesFactory::CreateAgentServices());
}
inline std::unique_ptr<as::IAgentServices> cachingServices() {
  return std::unique_ptr<as::IAgentServices>(
      as::CAgentServicesFactory::CreateCachingAgentServices());
}

// One of them: whole suites are run with either, as an environment variable says.
inline std::unique_ptr<as::IAgentServices> servicesWithoutSchemas() {
  static const bool keepsSchemas = std::getenv("AS_TEST_CACHING") != nullptr;
  return keepsSchemas ? cachingServices() : plainServices();
}

// One that validates against the shipped schemas.
inline std::unique_ptr<as::IAgentServices> newServices() {
  std::unique_ptr<as::IAgentServices> services = servicesWithoutSchemas();
  services->setSchemaLocation(AS_SCHEMA_DIR);
  return services;
}

// A document as the requests take it that read from memory.
inline const unsigned char* bytesOf(const std::string& document) {
  return reinterpret_cast<const unsigned char*>(document.data());
}
inline unsigned int lengthOf(const std::string& document) {
  return static_cast<unsigned int>(document.size());
}

// How a parse request ended.
enum class Result { root, null, parseException, namespaceException, exception };

inline std::ostream& operator<<(std::ostream& out, Result result) {
  switch (result) {
    case Result::root:
      return out << "a root";
    case Result::null:
      return out << "null";
    case Result::parseException:
      return out << "as::CASParseException";
    case Result::namespaceException:
      return out << "as::CASInvalidNamespaceException";
    case Result::exception:
      break;
  }
  return out << "as::CASException";
}

// What a parse request came to.
template <class Root>
struct Outcome {
  Result result = Result::null;
  std::unique_ptr<Root> root;
  as::CASParseException message{0, 0, 0, "", "", ""};  // The exception, when it is of that type.
  std::string text;                                    // The exception's text, when it has one.
};

// Makes the request, a callable that returns a new root, and tells what it came to.
template <class Request, class = std::enable_if_t<std::is_invocable_v<const Request&>>>
auto outcomeOf(const Request& request) {
  Outcome<std::remove_pointer_t<decltype(request())>> outcome;
  try {
    outcome.root.reset(request());
    outcome.result = outcome.root ? Result::root : Result::null;
  } catch (const as::CASParseException& exception) {
    outcome.result = Result::parseException;
    outcome.message = as::CASParseException(exception);
    outcome.text = exception.getErrorText();
  } catch (const as::CASInvalidNamespaceException&) {
    outcome.result = Result::namespaceException;
  } catch (const as::CASException& exception) {
    outcome.result = Result::exception;
    outcome.text = exception.getErrorText();
  }
  return outcome;
}

// What `services` makes of the dictionary `document`, read from memory.
inline Outcome<as::IProgram> outcomeOf(as::IAgentServices& services, const std::string& document,
                                       const char* id = "test.xml") {
  return outcomeOf(
      [&] { return services.parseCobolDD(id, bytesOf(document), lengthOf(document)); });
}

// The same with the shipped schemas.
inline Outcome<as::IProgram> outcomeOf(const std::string& document, const char* id = "test.xml") {
  return outcomeOf(*newServices(), document, id);
}

// The same of the dictionary in a file.
inline Outcome<as::IProgram> outcomeOfFile(const std::string& file) {
  return outcomeOf([&] { return newServices()->parseCobolDD(file.c_str()); });
}

// What `services` makes of the service `document`, read from memory.
inline Outcome<as::IService> serviceOutcomeOf(as::IAgentServices& services,
                                              const std::string& document, bool loadProgram = false,
                                              const char* id = "service.xml") {
  return outcomeOf([&] {
    return services.parseService(id, bytesOf(document), lengthOf(document), loadProgram);
  });
}

// The same with the shipped schemas.
inline Outcome<as::IService> serviceOutcomeOf(const std::string& document,
                                              bool loadProgram = false) {
  return serviceOutcomeOf(*newServices(), document, loadProgram);
}

template <class Root>
std::unique_ptr<Root> rootOfOutcome(Outcome<Root> outcome, const std::string& document) {
  if (!outcome.root) throw std::runtime_error(outcome.text + "\n" + document.substr(0, 5000));
  return std::move(outcome.root);
}

// The program in `document`; a standard exception, which tests tell more of, when there is none.
inline std::unique_ptr<as::IProgram> parse(const std::string& document,
                                           const char* id = "test.xml") {
  return rootOfOutcome(outcomeOf(document, id), document);
}

// The same for a service; with `loadProgram` it comes with the program that it names.
inline std::unique_ptr<as::IService> parseService(const std::string& document,
                                                  bool loadProgram = false) {
  return rootOfOutcome(serviceOutcomeOf(document, loadProgram), document);
}

inline std::string written(as::IService& service) {
  return as::CAgentServicesFactory::SerializeToString(&service);
}

// What is left of `service` when it is written and read again.
inline std::unique_ptr<as::IService> writtenAndRead(as::IService& service) {
  return parseService(written(service));
}

}  // namespace test

#endif  // TESTS_SUPPORT_REQUESTS_H_

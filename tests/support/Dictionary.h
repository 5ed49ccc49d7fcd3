// Dictionary documents for tests: wraps snippets into documents and parses them through the public
// interface.
#ifndef TESTS_SUPPORT_DICTIONARY_H_
#define TESTS_SUPPORT_DICTIONARY_H_

#include <memory>
#include <ostream>
#include <string>
#include <type_traits>

#include "as/AgentServices.h"

namespace test {

inline constexpr const char* dictionaryNamespace = as::namespaces::dd.uri;

// A dictionary document: the root with the namespace and the schema location, around `content`.
inline std::string dictionary(const std::string& content) {
  const std::string ns = dictionaryNamespace;
  return "<program xmlns=\"" + ns +
         "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" + ns +
         " " + ns + "\" name=\"PAYROLL\">" + content + "</program>";
}

// The same around top-level data items.
inline std::string dictionaryOf(const std::string& dataItems) {
  return dictionary("<dataItems>" + dataItems + "</dataItems>");
}

// An entry object that validates against the shipped schemas.
inline std::unique_ptr<as::IAgentServices> newServices() {
  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(AS_SCHEMA_DIR);
  return services;
}

// Parses `document` from memory; lets the library's exceptions through.
inline std::unique_ptr<as::IProgram> parse(const std::string& document,
                                           const char* id = "test.xml") {
  return std::unique_ptr<as::IProgram>(
      newServices()->parseCobolDD(id, reinterpret_cast<const unsigned char*>(document.data()),
                                  static_cast<unsigned int>(document.size())));
}

// The same for a service; with `loadProgram` it comes with the program that it names.
inline std::unique_ptr<as::IService> parseService(const std::string& document,
                                                  bool loadProgram = false) {
  return std::unique_ptr<as::IService>(newServices()->parseService(
      "service.xml", reinterpret_cast<const unsigned char*>(document.data()),
      static_cast<unsigned int>(document.size()), loadProgram));
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
  return outcomeOf([&] {
    return services.parseCobolDD(id, reinterpret_cast<const unsigned char*>(document.data()),
                                 static_cast<unsigned int>(document.size()));
  });
}

// The same with the shipped schemas.
inline Outcome<as::IProgram> outcomeOf(const std::string& document, const char* id = "test.xml") {
  return outcomeOf(*newServices(), document, id);
}

// The member of `list` seen as T; null when there is none or it is no T.
template <class T>
T* itemOf(as::IList* list, int index) {
  return as::interface_cast<T>(list->getItem(index));
}

// The program's top-level item number `index` seen as T.
template <class T>
T* topItem(as::IProgram& program, int index = 0) {
  return itemOf<T>(program.getDataItems(), index);
}

}  // namespace test

#endif  // TESTS_SUPPORT_DICTIONARY_H_

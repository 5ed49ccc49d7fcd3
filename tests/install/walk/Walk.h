// What the parts of the walk share: checking, the table of the operations walked, and short ways to
// the members of a list.
//
// The walk calls every public operation of the library once at least, the way a user's program
// does, and compares each answer with a known one:
//
//     CHECK(walked("IProgram::getName") && program.getName() == "DEPINT01");
//
// operations.cmake compares the names with the headers, and wants the operation to be called in the
// statement that names it.
#ifndef TESTS_WALK_WALK_H_
#define TESTS_WALK_WALK_H_

#include <as/AgentServices.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace walk {

// Where things are; no "/" at the end.
struct Places {
  std::string schemas;
  std::string examples;
  std::string work;  // For the files that the walk writes.
};

// Puts the operation into the table. True always, so that it goes into the condition that it names.
bool walked(const char* operation);

void failed(const char* file, int line, const char* expression);

// The object as one of its interfaces. Ends the walk when it is missing or no such thing, because
// nothing behind it can be walked then.
template <class Interface, class Object>
Interface& the(Object* object) {
  auto* const found = as::interface_cast<Interface>(object);
  if (found == nullptr) throw std::logic_error("an object of the model is missing");
  return *found;
}

template <class Interface>
Interface& member(as::IList* list, int index) {
  return the<Interface>(the<as::IList>(list).getItem(index));
}

// The member of that name.
template <class Interface>
Interface& named(as::IList* list, const std::string& name) {
  for (int i = 0; i < the<as::IList>(list).getLength(); i++) {
    if (list->getItem(i)->getAttributeValue("name") == name) return member<Interface>(list, i);
  }
  throw std::logic_error("there is no member " + name);
}

// The item at the end of a dotted path: "RECORD.GROUP.ITEM".
template <class Interface = as::IDataItem>
Interface& item(as::IProgram& program, const std::string& path) {
  as::IList* list = program.getDataItems();
  std::string rest = path;
  for (std::size_t dot = rest.find('.'); dot != std::string::npos; dot = rest.find('.')) {
    list = named<as::IGroup>(list, rest.substr(0, dot)).getChildren();
    rest.erase(0, dot + 1);
  }
  return named<Interface>(list, rest);
}

// Whether `action` throws an Exception for which `expected` holds.
template <class Exception, class Action, class Expected>
bool throws(const Action& action, const Expected& expected) {
  try {
    action();
  } catch (const Exception& exception) {
    return expected(exception);
  }
  return false;
}

template <class Exception, class Action>
bool throws(const Action& action) {
  return throws<Exception>(action, [](const Exception&) { return true; });
}

// An entry object that knows the schemas.
std::unique_ptr<as::IAgentServices> newServices(const Places& places);

// The program of a sample: program(places, "DEPINT01").
std::unique_ptr<as::IProgram> program(const Places& places, const std::string& name);

inline const unsigned char* bytes(const std::string& text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

inline unsigned int size(const std::string& text) { return static_cast<unsigned int>(text.size()); }

// A service of a document in memory.
std::unique_ptr<as::IService> service(const Places& places, const std::string& document,
                                      bool loadProgram = false);

// The same service, written and read again together with the program of a sample.
std::unique_ptr<as::IService> withProgram(const Places& places, as::IService& of,
                                          const std::string& name);

// A service document of a flavour ("ws", "com", "java", "dotnet") for the program WHSLOTS.
std::string document(const std::string& flavour, const std::string& content);

// The parts, in their order.
void walkGlobals();
void walkExceptions();
void walkIdentities();
void walkRequests(const Places& places);
void walkProgram(const Places& places);
void walkDataItems(const Places& places);
void walkCasts(const Places& places);
void walkService(const Places& places);
void walkFields(const Places& places);
void walkMappings(const Places& places);
void walkFactory(const Places& places);
void walkWebService(const Places& places);
void walkCOMService(const Places& places);
void walkJavaService(const Places& places);
void walkDotNETService(const Places& places);

}  // namespace walk

#define CHECK(...) \
  (static_cast<bool>(__VA_ARGS__) ? void() : ::walk::failed(__FILE__, __LINE__, #__VA_ARGS__))

#endif  // TESTS_WALK_WALK_H_

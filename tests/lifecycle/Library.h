// The library as a host meets it that is not linked with it: loaded from a file, found by name.
#ifndef TESTS_LIFECYCLE_LIBRARY_H_
#define TESTS_LIFECYCLE_LIBRARY_H_

#include <dlfcn.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "as/AgentServices.h"
#include "lifecycle/Work.h"

namespace lifecycle {

class Library {
 public:
  explicit Library(const char* file = AS_LIBRARY) : handle_(dlopen(file, RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) throw std::runtime_error(dlerror());
  }
  // Unloads it, unless somebody else holds it, too.
  ~Library() {
    if (handle_ != nullptr) dlclose(handle_);
  }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  // Leaves it loaded until the process ends.
  void keep() { handle_ = nullptr; }

  static bool isLoaded(const char* file = AS_LIBRARY) {
    void* const handle = dlopen(file, RTLD_NOW | RTLD_NOLOAD);
    if (handle != nullptr) dlclose(handle);
    return handle != nullptr;
  }

  std::unique_ptr<as::IAgentServices> createAgentServices() const {
    return create("_ZN2as21CAgentServicesFactory19CreateAgentServicesEv");
  }
  std::unique_ptr<as::IAgentServices> createCachingAgentServices() const {
    return create("_ZN2as21CAgentServicesFactory26CreateCachingAgentServicesEv");
  }

  void serialize(as::IService& service, const char* file) const {
    using Serialize = void(as::IService*, const char*);
    find<Serialize>("_ZN2as21CAgentServicesFactory9SerializeEPNS_8IServiceEPKc")(&service, file);
  }

  // What a client does, with this copy of the library; the text that it writes.
  std::string work() const {
    const auto write = [this](as::IService& service, const char* file) {
      serialize(service, file);
    };
    // Both kinds are there at once.
    const auto services = createAgentServices();
    const auto caching = createCachingAgentServices();
    const std::string text = lifecycle::work(*services, write);
    if (lifecycle::work(*caching, write) != text) throw std::runtime_error("another text");
    return text;
  }

  // The identity of an interface in this copy of the library.
  const RTTITypeinfo* record(const std::string& interface) const {
    const std::string length = std::to_string(interface.size());
    return find<RTTITypeinfo>(("_ZN2as" + length + interface + "8RTTI_objE").c_str());
  }

 private:
  std::unique_ptr<as::IAgentServices> create(const char* mangled) const {
    using Create = as::IAgentServices*();
    return std::unique_ptr<as::IAgentServices>(find<Create>(mangled)());
  }
  template <class T>
  T* find(const char* mangled) const {
    void* const found = dlsym(handle_, mangled);
    if (found == nullptr) throw std::runtime_error(dlerror());
    return reinterpret_cast<T*>(found);
  }

  void* handle_;
};

}  // namespace lifecycle

#endif  // TESTS_LIFECYCLE_LIBRARY_H_

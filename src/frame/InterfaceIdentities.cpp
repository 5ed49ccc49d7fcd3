// The identities of the public interfaces, and the little that interfaces answer by themselves.
#include "as/AgentServices.h"
#include "xml/Identity.h"

// The bases of a row, without their parentheses.
#define AS_BASES(...) __VA_ARGS__

namespace as {

namespace {

// Asks one base of `object`, as what it is there ...
template <class Base, class Interface>
void* castThroughBase(Interface* object, RTTItypeid id) {
  return object->Base::RTTI_cast(id);
}

// ... or all of them in turn.
template <class... Bases, class Interface>
void* castThrough([[maybe_unused]] Interface* object, [[maybe_unused]] RTTItypeid id) {
  void* found = nullptr;
  static_cast<void>(((found = castThroughBase<Bases>(object, id)) || ...));
  return found;
}

// The records of the bases that an interface registers with, ended by a null.
template <class... Bases>
constinit RTTITypeinfo* recordsOf[] = {&Bases::RTTI_obj..., nullptr};

}  // namespace

#define AS_INTERFACE(Interface, registered, bases) \
  Interface::~Interface() = default;               \
  AS_DEFINE_IDENTITY_COMMON(Interface)             \
  void* Interface::RTTI_cast(RTTItypeid id) {      \
    if (isDesignated(RTTI_obj, id)) return this;   \
    return castThrough<AS_BASES bases>(this, id);  \
  }
#include "frame/Interfaces.def"

// What an interface answers by itself.
bool IField::hasChildren() { return getChildren()->getLength() > 0; }

// Never reached: the implementation overrides all three.
std::string IWSParameter::getNamespace() { return {}; }
IWSField::FORM IWSParameter::getElementForm() { return static_cast<FORM>(-1); }
IWSField::FORM IWSParameter::getAttributeForm() { return static_cast<FORM>(-1); }

namespace {

// The factory is cast like the interfaces, but it is none: it registers with its own source file.
#define AS_INTERFACE(Interface, registered, bases)                         \
  AS_RELEASE_DERIVED(Interface, Interface)                                 \
  AS_INTERFACES_FIRST const IdentityRegistration registration_##Interface( \
      Interface::RTTI_obj, #Interface, recordsOf<AS_BASES registered>, &Interface::RTTI_scast);
#include "frame/Interfaces.def"

}  // namespace

}  // namespace as

// The library's side of the type identities: definition and registration of a class's record.
#ifndef XML_IDENTITY_H_
#define XML_IDENTITY_H_

#include <cstring>
#include <utility>

#include "as/RTTI.h"

// What RTTItypeid::designates() answers. Casts walk whole class trees, so most comparisons fail,
// and most of those at the second letter: without a call.
inline bool isDesignated(const RTTITypeinfo& record, RTTItypeid id) {
  const RTTITypeinfo* const given = id.record();
  if (given == &record) return true;
  if (given == nullptr || given->name == nullptr || record.name == nullptr) return false;
  const char* const name = given->name;
  return name[0] == record.name[0] && name[0] != '\0' && name[1] == record.name[1] &&
         std::strcmp(name, record.name) == 0;
}

// Registers one class for its lifetime: constructed when the library is loaded, destroyed when the
// process ends or the library is unloaded.
class IdentityRegistration {
 public:
  // Names `record` after the class (a copy), and appends it to the derived classes of every base.
  // `bases` ends with a null; it is kept, not copied, and may be null itself for no bases.
  IdentityRegistration(RTTITypeinfo& record, const char* name, RTTITypeinfo** bases,
                       RTTITypeinfo::StaticCast scast);

  // Frees the name and takes the record out of its bases' derived classes. Their counts and arrays
  // stay as they are: AS_RELEASE_DERIVED frees the arrays, later.
  ~IdentityRegistration();

  IdentityRegistration(const IdentityRegistration&) = delete;
  IdentityRegistration& operator=(const IdentityRegistration&) = delete;

 private:
  RTTITypeinfo& record_;
};

// In the body of an implementation class: its identity members, and the walk over its bases.
#define AS_IDENTITY(Class)                                    \
  AS_RTTI(Class)                                              \
 private:                                                     \
  template <class Base>                                       \
  void* castThrough(RTTItypeid id) {                          \
    return this->Base::RTTI_cast(id);                         \
  }                                                           \
  template <class... Bases>                                   \
  void* castThroughBases(RTTItypeid id) {                     \
    void* found = nullptr;                                    \
    ((found = this->template castThrough<Bases>(id)) || ...); \
    return found;                                             \
  }                                                           \
                                                              \
 public:

// The identity members that are the same for every class.
#define AS_DEFINE_IDENTITY_COMMON(Class)                                     \
  RTTITypeinfo Class::RTTI_obj = {nullptr, nullptr, 0, nullptr, 0, nullptr}; \
  RTTItypeid Class::RTTI_vinfo() const { return RTTItypeid(&RTTI_obj); }     \
  void* Class::RTTI_scast(int flag, void* p) {                               \
    if (flag != 0 || p == nullptr) return p;                                 \
    return static_cast<Class*>(p)->RTTI_cast(RTTItypeid(&RTTI_obj));         \
  }

// When a class is registered, while the library is loaded: interfaces before implementation
// classes, whatever file the linker put first, and both before anything that does not say when.
// Clean-ups run the other way round, so that the XML parser, started last, is stopped while every
// identity is still there. Within a file the order is that of its lines, among files that of the
// build's list.
#define AS_INTERFACES_FIRST [[gnu::init_priority(101)]]
#define AS_IMPLEMENTATIONS_NEXT [[gnu::init_priority(102)]]

// Frees the array of Class's derived classes when nobody can read it any more: behind all
// clean-ups, the client's own included, as the library's image goes. Without it each load would
// lose it anew.
#define AS_RELEASE_DERIVED(Class, name)                           \
  [[gnu::destructor(101)]] static void releaseDerivedOf##name() { \
    Class::RTTI_obj.derivedCount = 0;                             \
    delete[] std::exchange(Class::RTTI_obj.derived, nullptr);     \
  }

// Registers implementation class Class under `name` with the records given, ended by a null.
#define AS_REGISTER_IDENTITY(Class, name, ...)                                   \
  AS_RELEASE_DERIVED(Class, name)                                                \
  static constinit RTTITypeinfo* RTTI_base_##name[] = {__VA_ARGS__};             \
  AS_IMPLEMENTATIONS_NEXT static const IdentityRegistration registration_##name( \
      Class::RTTI_obj, #name, RTTI_base_##name, &Class::RTTI_scast);

// The whole identity of an implementation class with one, two or three bases. A cast asks the
// bases in the order given, the interface first.
#define AS_DEFINE_IDENTITY_CASTS(Class, ...)     \
  AS_DEFINE_IDENTITY_COMMON(Class)               \
  void* Class::RTTI_cast(RTTItypeid id) {        \
    if (isDesignated(RTTI_obj, id)) return this; \
    return castThroughBases<__VA_ARGS__>(id);    \
  }

#define AS_DEFINE_IDENTITY1(Class, Base) \
  AS_DEFINE_IDENTITY_CASTS(Class, Base)  \
  AS_REGISTER_IDENTITY(Class, Class, &Base::RTTI_obj, nullptr)

#define AS_DEFINE_IDENTITY2(Class, Base1, Base2) \
  AS_DEFINE_IDENTITY_CASTS(Class, Base1, Base2)  \
  AS_REGISTER_IDENTITY(Class, Class, &Base1::RTTI_obj, &Base2::RTTI_obj, nullptr)

#define AS_DEFINE_IDENTITY3(Class, Base1, Base2, Base3) \
  AS_DEFINE_IDENTITY_CASTS(Class, Base1, Base2, Base3)  \
  AS_REGISTER_IDENTITY(Class, Class, &Base1::RTTI_obj, &Base2::RTTI_obj, &Base3::RTTI_obj, nullptr)

#endif  // XML_IDENTITY_H_

// Type identities: how a client asks a model object for another of its interfaces.
//
// Model objects reach their interfaces through virtual inheritance, and a library is not always
// loaded together with the language's own type information for its classes. So every interface
// and every implementation class carries an identity record of its own, `RTTI_obj`, and two
// virtual operations, `RTTI_vinfo` and `RTTI_cast`. Most clients need only one line of this
// header:
//
//     as::IGroup* group = as::interface_cast<as::IGroup>(item);   // null when item is no group
#ifndef AS_RTTI_H_
#define AS_RTTI_H_

#include "as/Export.h"

// The identity record of one class: a static object in each class, registered when the library
// is loaded. Clients read it at most; only the library writes it.
struct AS_EXPORT RTTITypeinfo {
  // Sees an object as one of its classes; see RTTI_scast in the macros below.
  using StaticCast = void* (*)(int flag, void* object);

  // The class's name without namespace ("IGroup"); null until the class is registered.
  char* name;
  // The registered direct bases, ended by a null; null when there are none to tell.
  RTTITypeinfo** bases;
  // How many classes have registered this one as a base ...
  int derivedCount;
  // ... and their records, in the order in which they were registered.
  RTTITypeinfo** derived;
  // Kept 0.
  int reserved;
  // The class's RTTI_scast; null for null_type.
  StaticCast scast;

  // The identity of no type at all, named "NULL". No object casts to it.
  static RTTITypeinfo null_type;
};

// Designates one class: `RTTItypeid(&as::IGroup::RTTI_obj)`. A value; copies freely.
class AS_EXPORT RTTItypeid {
 public:
  // The record is not owned; it may be null (which designates no class).
  explicit RTTItypeid(const RTTITypeinfo* record) noexcept : record_(record) {}

  // The record given, which may be null.
  const RTTITypeinfo* record() const noexcept { return record_; }

  // True when this designates the class of `other`: it is the same record, or a record of the
  // same name. Names count so that the records of two copies of the library match each other.
  bool designates(const RTTITypeinfo& other) const noexcept;

 private:
  const RTTITypeinfo* record_;
};

// An identity obtained from an object at run time.
class AS_EXPORT RTTIdyntypeid : public RTTItypeid {
 public:
  using RTTItypeid::RTTItypeid;
  // Has no role of its own.
  static int a;
};

// The identity members of a class. RTTI_vinfo() returns the identity of the object's own class.
// RTTI_cast(id) returns the object seen as the class that id designates, or null when the object
// is no such thing; it never throws. RTTI_scast(flag, p) returns p unchanged for a flag other
// than 0; for 0 it takes p for a pointer to this class and returns it adjusted to this class's
// part of the object, null for null.
#define AS_RTTI_MEMBERS(Class, Specifier)           \
 public:                                            \
  virtual RTTItypeid RTTI_vinfo() const Specifier;  \
  virtual void* RTTI_cast(RTTItypeid id) Specifier; \
  static void* RTTI_scast(int flag, void* p);       \
  static RTTITypeinfo RTTI_obj;

// For a class that has no base with identity members ...
#define AS_RTTI_ROOT(Class) AS_RTTI_MEMBERS(Class, )
// ... and for one that has.
#define AS_RTTI(Class) AS_RTTI_MEMBERS(Class, override)

namespace as {

// The object seen as T, one of the interfaces, or null when it does not offer that interface;
// null for null. The result is the same object: nothing is created and nothing changes owner.
template <class T, class From>
T* interface_cast(From* object) {
  return object == nullptr ? nullptr : static_cast<T*>(object->RTTI_cast(RTTItypeid(&T::RTTI_obj)));
}

}  // namespace as

#endif  // AS_RTTI_H_

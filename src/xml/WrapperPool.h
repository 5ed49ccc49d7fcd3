// Where the wrappers of one document live: made one after the other, destroyed all at once.
#ifndef XML_WRAPPERPOOL_H_
#define XML_WRAPPERPOOL_H_

#include <memory_resource>
#include <type_traits>

#include "xml/ElementImpl.h"

// Every wrapper of a document but its root's is made here, while the document is parsed and while
// the model is edited; nothing else ever deletes one. Lists and members only point at wrappers. The
// root's wrapper is the client's to delete; it owns the pool and the document, so that all of a
// model goes with it, whatever state an edit or a parse that failed has left the model in.
class WrapperPool {
 public:
  WrapperPool() = default;
  // Destroys the wrappers. Looks at no element: the document may be in any state.
  ~WrapperPool();
  WrapperPool(const WrapperPool&) = delete;
  WrapperPool& operator=(const WrapperPool&) = delete;

  // A new wrapper of class Wrapper around `element`, which is bound to it.
  template <class Wrapper, class... Arguments>
  Wrapper* make(xercesc::DOMElement* element, Arguments... arguments) {
    void* const place = memory_.allocate(sizeof(Wrapper), alignof(Wrapper));
    auto* const made = new (place) Wrapper(element, arguments...);
    take(asElement(made));
    return made;
  }

  // Tells `parent`, which was made last or by itself, which wrappers are those of its element's
  // children: a document that is parsed has them made just before their parents. Does nothing
  // unless each of them has been told of its own. Edits do not change what has been told.
  void close(CElementImpl& parent) noexcept;
  // The wrapper made last.
  CElementImpl* newest() const { return newest_; }

 private:
  // Where a class hides that it is a wrapper, its identity still tells.
  template <class Wrapper>
  static CElementImpl* asElement(Wrapper* wrapper) {
    if constexpr (std::is_convertible_v<Wrapper*, CElementImpl*>) {
      return wrapper;
    } else {
      return as::interface_cast<CElementImpl>(wrapper);
    }
  }
  void take(CElementImpl* wrapper) noexcept;

  std::pmr::monotonic_buffer_resource memory_;
  CElementImpl* newest_ = nullptr;  // Each leads to the one made before it.
};

#endif  // XML_WRAPPERPOOL_H_

// Finds objects by their names, and by the names that these stand below.
#ifndef COBOL_NAMEINDEX_H_
#define COBOL_NAMEINDEX_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <xercesc/util/XercesDefs.hpp>

#include "xml/ElementImpl.h"

// Holds no text: the names are those that stand in the document, which must not change while the
// index is used. Objects that have all names from the outermost one on in common share an entry,
// wherever they stand. What is looked for by such a way of names is the first object of it in the
// order of the document, and that is the one that the entry keeps; so a look-up costs a step a
// name, however many objects there are and however many of them are called the same.
class NameIndex {
 public:
  struct Entry {
    CElementImpl* first;  // The first object that was added.
  };

  // Makes room for so many entries.
  void reserve(std::size_t count) { entries_.reserve(count); }

  // The entry of the objects called `name` below those of `around`, null for the outermost; a new
  // one starts with `object`. Entries keep their places.
  const Entry* add(const Entry* around, const XMLCh* name, CElementImpl* object) {
    return &entries_.try_emplace(Key{around, viewOf(name)}, Entry{object}).first->second;
  }

  // The same; null when nothing is called so.
  const Entry* find(const Entry* around, const XMLCh* name) const {
    const auto found = entries_.find(Key{around, viewOf(name)});
    return found == entries_.end() ? nullptr : &found->second;
  }

  // The first of the outermost objects called so; null for none.
  CElementImpl* first(const XMLCh* name) const {
    const Entry* const entry = find(nullptr, name);
    return entry == nullptr ? nullptr : entry->first;
  }

 private:
  using View = std::basic_string_view<XMLCh>;

  struct Key {
    const Entry* around;
    View name;
    bool operator==(const Key&) const = default;
  };
  struct Hash {
    std::size_t operator()(const Key& key) const noexcept {
      constexpr std::size_t odd = 0x9e3779b1;
      return std::hash<View>()(key.name) + std::hash<const void*>()(key.around) * odd;
    }
  };

  // No name is the same as an empty one.
  static View viewOf(const XMLCh* name) { return name == nullptr ? View() : View(name); }

  std::unordered_map<Key, Entry, Hash> entries_;
};

#endif  // COBOL_NAMEINDEX_H_

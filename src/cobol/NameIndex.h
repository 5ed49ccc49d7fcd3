// Finds objects by their names, and by the names that these stand below.
#ifndef COBOL_NAMEINDEX_H_
#define COBOL_NAMEINDEX_H_

#include <cstddef>
#include <memory_resource>
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
  using View = std::basic_string_view<XMLCh>;
  struct Entry {
    CElementImpl* first;  // The first object that was added.
  };

  // Makes room for so many entries.
  void reserve(std::size_t count) { entries_.reserve(count); }

  // The entry of the objects called `name` below those of `around`, null for the outermost; a new
  // one starts with `object`. Entries keep their places.
  const Entry* add(const Entry* around, const XMLCh* name, CElementImpl* object) {
    return &entries_.try_emplace(Key(around, viewOf(name)), Entry{object}).first->second;
  }

  // The same; null when nothing is called so.
  const Entry* find(const Entry* around, View name) const {
    const auto found = entries_.find(Key(around, name));
    return found == entries_.end() ? nullptr : &found->second;
  }

  // The first of the outermost objects called so; null for none.
  CElementImpl* first(const XMLCh* name) const {
    const Entry* const entry = find(nullptr, viewOf(name));
    return entry == nullptr ? nullptr : entry->first;
  }

 private:
  // No name is the same as an empty one.
  static View viewOf(const XMLCh* name) { return name == nullptr ? View() : View(name); }

  // Knows its hash: the table asks for that of every key that it passes.
  struct Key {
    Key(const Entry* outer, View text) : around(outer), name(text) {
      constexpr std::size_t odd = 0x9e3779b1;
      hash = std::hash<View>()(name) + std::hash<const void*>()(around) * odd;
    }
    bool operator==(const Key&) const = default;

    std::size_t hash = 0;  // Compared first.
    const Entry* around;
    View name;
  };
  struct Hash {
    std::size_t operator()(const Key& key) const noexcept { return key.hash; }
  };

  std::pmr::monotonic_buffer_resource memory_;  // Nothing is ever taken out.
  std::pmr::unordered_map<Key, Entry, Hash> entries_{&memory_};
};

#endif  // COBOL_NAMEINDEX_H_

// Finds the data items of a program by their paths.
#ifndef TOOLKIT_WALK_ITEMINDEX_H_
#define TOOLKIT_WALK_ITEMINDEX_H_

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace as {
class IDataItem;
class IProgram;
}  // namespace as

namespace as::toolkit {

// Items that have all names from the record on in common share an entry: an index of paths would
// hold every name as many times as there are items below it. Answers what a mapping leads to, so
// what no mapping can name has no entry, nor has anything below it.
class ItemIndex {
 public:
  struct Entry {
    const Entry* around = nullptr;  // Null for the program.
    std::string name;
    as::IDataItem* first = nullptr;  // The one that a mapping leads to; null for the program.
    // That of the item behind it in the document, mostly.
    mutable const Entry* next = nullptr;

    bool is(const Entry* group, std::string_view word) const {
      return around == group && name == word;
    }
  };

  explicit ItemIndex(as::IProgram& program);
  ItemIndex(const ItemIndex&) = delete;
  ItemIndex& operator=(const ItemIndex&) = delete;

  // The item that a mapping to that path, without subscripts, leads to: the first of it. Null when
  // there is none.
  as::IDataItem* find(std::string_view path) const;

  // The same step by step: the entry of the program, which the records stand below, ...
  const Entry* top() const { return &top_; }
  // ... and that of the items of a name below another; null when there is none, and below null.
  const Entry* below(const Entry* around, std::string_view name) const;

 private:
  // Looked up without a copy of the name.
  struct Key {
    const Entry* around;
    std::string_view name;
  };
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(const Key& key) const noexcept {
      constexpr std::size_t odd = 0x9e3779b1;
      return std::hash<std::string_view>()(key.name) + std::hash<const void*>()(key.around) * odd;
    }
    std::size_t operator()(const Entry& entry) const noexcept {
      return (*this)(Key{entry.around, entry.name});
    }
  };
  struct Equal {
    using is_transparent = void;
    template <class Left, class Right>
    bool operator()(const Left& left, const Right& right) const noexcept {
      return left.around == right.around && left.name == right.name;
    }
  };

  Entry top_;
  std::unordered_set<Entry, Hash, Equal> entries_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_WALK_ITEMINDEX_H_
